"""A shed driven from Python: q and Ca by sector, and the net loads of every zone of roof and walls."""
import orve3_bs6399_2 as orve


def describe(case):
    building = case.BuildingDimensions
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
    site = case.DynamicPressure
    site.SiteAltitude = 40
    site.BasicWindSpeed = 22
    for sector in orve.WindSectors:
        site.set_FetchesToSea(sector, 30)
    case.InternalCoefficients.InternalVolume = 24 * 12 * 5
    case.InternalCoefficients.EnclosedBuilding_GeneralCase = True


def print_sectors(site):
    for sector in orve.WindSectors:
        q = site.DynamicPressure_q(orve.WindAreas.waRoof, sector)
        ca = site.SizeEffectFactor_Ca(WindArea=orve.WindAreas.waRoof, WindSector=sector)
        print(f"{sector * 30:3d} degrees: q {q:.3f} kN/m², Ca {ca:.3f}")


def print_face(loads, area, face):
    for zone in range(loads.ZoneIndexFrom(area, face), loads.ZoneIndexTo(area, face) + 1):
        name = loads.Hybrid_ZoneDescription(area, face, zone)
        print(f"{area.text}, {face.text}, {name}: {loads.Hybrid_OverallAppliedLoads(area, face, zone)}")


if __name__ == "__main__":
    orve.register_built_in_engines()
    case = orve.clsCurrentCase()
    case.Initialize_BreApps()
    describe(case)
    print_sectors(case.DynamicPressure)
    for area in (orve.BuildingAreas.baRoof, orve.BuildingAreas.baWalls):
        for face in orve.Faces:
            print_face(case.OverallAppliedLoads, area, face)
