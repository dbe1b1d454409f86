' A shed driven from VBScript: the net loads of every zone of the roof.
Option Explicit
Dim windCase, building, site, loads, sector, face, zone, text

Set windCase = CreateObject("ORVE3_BS6399_2.clsCurrentCase")
windCase.Initialize_BreApps
Set building = windCase.BuildingDimensions
building.OrientationUnknown = False
building.Orientation = 90
building.Face1And3_Length = 24
building.Face2And4_Width = 12
building.Roof_Height = 5.5
building.Roof_Diagonal = 8
building.Wall_SideHeight = 5
building.Wall_SideDiagonal = 7
building.Wall_GableHeight = 5.5
building.Wall_GableDiagonal = 7.5
Set site = windCase.DynamicPressure
site.SiteAltitude = 40
site.BasicWindSpeed = 22
For sector = 0 To 11
  site.FetchesToSea(sector) = 30
Next
windCase.InternalCoefficients.InternalVolume = 24 * 12 * 5
windCase.InternalCoefficients.EnclosedBuilding_GeneralCase = True

Set loads = windCase.OverallAppliedLoads
loads.BuildingArea = 0
For face = 0 To 3
  loads.Face = face
  For zone = 0 To loads.ZoneIndexTo
    text = loads.Hybrid_OverallAppliedLoads(, , zone)
    WScript.Echo "Face " & (face + 1) & ", " & loads.Hybrid_ZoneDescription(, , zone) & ": " & _
                 Left(text, InStr(text, " kN") - 1)
  Next
Next
