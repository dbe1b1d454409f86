' A script host of the registered library. The last line tells how many checks passed and failed.
Option Explicit
Dim passed, failed
passed = 0
failed = 0

Sub Check(found, expected, what)
  If CStr(found) = CStr(expected) Then
    passed = passed + 1
  Else
    failed = failed + 1
    WScript.Echo "FAILED " & what & ": """ & found & """ instead of """ & expected & """"
  End If
End Sub

Dim windCase, building, zones, wind, loads, sector, given
Set windCase = CreateObject("ORVE3_BS6399_2.clsCurrentCase")
windCase.Initialize_BreApps
Check windCase.Location, "", "a new case has no file"
Check windCase.IsDirty, False, "and nothing to save"

Set building = windCase.BuildingDimensions
building.OrientationUnknown = False
building.Orientation = 90
building.Face1And3_Length = 30
building.Face2And4_Width = 18
building.Roof_Height = 7
building.Roof_Diagonal = 9
building.Wall_SideHeight = 6
building.Wall_SideDiagonal = 8.5
building.Wall_GableHeight = 7
building.Wall_GableDiagonal = 7.5
Check building.Wall_SideDiagonal, 8.5, "a property is let and read"
Check windCase.IsDirty, True, "which makes the case dirty"
Check (building Is windCase.BuildingDimensions), True, "an object is the same one at every read"

Set wind = windCase.DynamicPressure
wind.SiteAltitude = 85
wind.BasicWindSpeed = 22.5
For sector = 0 To 11
  wind.FetchesToSea(sector) = 20 + sector
Next
wind.FetchesInTown(3) = 2
Check wind.FetchesToSea(11), 31, "an indexed property"
wind.WindSector = 11
Check wind.FetchesToSea, 31, "an index left out"

Set zones = windCase.ExternalCoefficients
Check zones.Hybrid_ZoneDescription(0, 0, 0), "A", "a zone's name"
Check Left(zones.Hybrid_ExternalAppliedLoads(0, 0, 0), 6), "-1.357", "a zone's load"
zones.BuildingArea = 1
Check zones.ZoneIndexTo(, 0), zones.ZoneIndexTo(1, 0), "an argument left out in the middle"

Set loads = windCase.OverallAppliedLoads
given = loads.ExternalBayLoad(5, 5, 5, 1, 2, 3, 2, 4)
Check Abs(given - 1.6) < 0.000001, True, "a method with arguments"

' A record is an array of its fields in a script.
Dim fields(20), i
For i = 0 To 4
  fields(i) = "0"
Next
For i = 5 To 20
  fields(i) = Array("3.6 m", "+0.512 kN/m" & Chr(178))
Next
building.ConsiderCantilever = True
building.CantileverFace1Or2_Length = 1.5
building.CantileverFace3Or4_Length = 1.2
Dim pressures
Set pressures = CreateObject("ORVE3_BS6399_2.clsCantileverWindLoads")
pressures.ExternalPressures = fields
Set windCase.CantileverWindloads = pressures
given = loads.CantileverValues(0, 0)
Check given, True, "cantilever zones are found"
Check Left(loads.Cantilever_OverallAppliedLoads(0), 6), "-1.869", "and their loads"

On Error Resume Next
given = loads.CantileverZoneDescription(99)
Check Err.Number, 9, "an error's number"
Check Err.Description, "Subscript out of range: cantilever zone 99, 0 to 5 is allowed", "its text"
Check Err.Source, "ORVE3_BS6399_2", "its source"
Err.Clear
windCase.LocationCorrect = True
Check Err.Number, 438, "a let of a read-only property"
Err.Clear
building.RoofType = "no roof"
Check Err.Number, 13, "a text where a number is wanted"
Err.Clear
building.Roof_Height = Null
Check Err.Number, 94, "Null"
Err.Clear
building.Orientation = 40000
Check Err.Number, 6, "a number that doesn't fit"
Err.Clear
On Error Goto 0

windCase.Description = DateSerial(2026, 11, 24)
Check windCase.Description, "2026-11-24", "a date given to a text"
Check CreateObject("ORVE3_BS6399_2.clsLibrary").PublishedText("Faces", 1), "Face 2", "a published text"
windCase.Description = "A script's case"
windCase.Location = WScript.Arguments(0) & "\script.wlc"
windCase.Save
windCase.Clear
Check windCase.Description, "", "a new case"
given = windCase.OpenExisting(WScript.Arguments(0) & "\script.wlc")
Check given, True, "a case is opened again"
Check windCase.Description, "A script's case", "with its description"
Check windCase.BuildingDimensions.Roof_Diagonal, 9, "and its dimensions"
Check VarType(windCase.Created), 7, "a date's type"

WScript.Echo passed & " passed, " & failed & " failed"
