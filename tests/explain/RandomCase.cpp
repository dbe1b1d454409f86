#include "explain/RandomCase.h"

#include "orve3_bs6399_2.h"

namespace orve::test {

namespace {

class Draw {
 public:
  explicit Draw(std::mt19937& random) : m_random(random) {}

  int Whole(int from, int to) {
    return from + static_cast<int>(m_random() % static_cast<unsigned>(to - from + 1));
  }
  bool OneIn(int count) { return Whole(1, count) == 1; }
  /// Tenths of a unit, as an engineer would enter them.
  float Tenths(float from, float to) {
    return static_cast<float>(Whole(static_cast<int>(from * 10), static_cast<int>(to * 10))) / 10;
  }

 private:
  std::mt19937& m_random;
};

void FillBuilding(clsBuildingDimensions& building, Draw& draw) {
  building.OrientationUnknown(draw.OneIn(4));
  building.Orientation(static_cast<std::int16_t>(draw.Whole(0, 359)));
  building.RoofType(RoofTypes(draw.Whole(0, 7)));
  building.Face1And3_Length(draw.Tenths(8, 80));
  building.Face2And4_Width(draw.Tenths(6, 40));
  building.Roof_Height(draw.Tenths(4, 20));
  building.Roof_Diagonal(draw.OneIn(12) ? 0 : draw.Tenths(2, 60));
  building.Roof_ParapetHeight(draw.Tenths(0.5f, 2));
  building.Roof_EavesRadius(draw.Tenths(0.5f, 1));
  building.Roof_MansardSlope(static_cast<float>(draw.Whole(30, 60)));
  building.Roof_Pitch(draw.Tenths(5, 60));
  building.Roof_RiseHeight(draw.Tenths(1, 3));
  building.Roof_FrameType(FrameTypes(draw.Whole(0, 2)));
  building.Wall_SideHeight(draw.Tenths(3, 18));
  building.Wall_SideDiagonal(draw.Tenths(2, 40));
  building.Wall_GableHeight(draw.Tenths(4, 20));
  building.Wall_GableDiagonal(draw.Tenths(2, 40));
  building.Wall_GableFaces(GableFaces(draw.Whole(0, 1)));
  building.Wall_GapFace1(draw.OneIn(2) ? draw.Tenths(1, 30) : 0);
  building.ConsiderCantilever(draw.OneIn(3));
  building.CantileverFace1Or2_Length(draw.Tenths(0, 2));
  building.CantileverFace3Or4_Length(draw.OneIn(2) ? building.CantileverFace1Or2_Length()
                                                   : draw.Tenths(0, 2));
  building.Parapet_Height(draw.Tenths(0.5f, 2));
  building.Parapet_HeightFromFFL_m(draw.Tenths(4, 20));
  building.Parapet_SideDiagonal(draw.Tenths(2, 40));
  building.Parapet_GableDiagonal(draw.Tenths(2, 40));
  building.Parapet_SideReturnCorner(draw.OneIn(2));
}

void FillSector(clsDynamicPressure& site, WindSectors sector, Draw& draw, bool topography) {
  site.FetchesToSea(sector, draw.Tenths(0, 150));
  if (draw.OneIn(2)) site.FetchesInTown(sector, draw.Tenths(0, 30));
  site.ObstructionHeight_Ho(sector, draw.Tenths(0, 12));
  site.ObstructionSpacing_Xo(sector, draw.Tenths(0, 60));
  if (!topography) return;
  site.CrestHeight_Z(sector, draw.Tenths(0, 90));
  site.UpwindLength_LU(sector, draw.Tenths(100, 900));
  site.DownwindLength_LD(sector, draw.Tenths(0, 900));
  site.SiteLocation_X(sector, draw.Tenths(-300, 300));
  site.BaseAltitude(sector, draw.Tenths(0, 60));
}

void FillSite(clsDynamicPressure& site, Draw& draw) {
  site.Method(Methods(draw.Whole(0, 1)));
  const bool topography = draw.OneIn(3);
  site.SaBasedOn(topography ? SaBasedOnTypes::Topography : SaBasedOnTypes::Altitude);
  site.SiteAltitude(draw.Tenths(0, 250));
  site.BasicWindSpeed(draw.Tenths(20, 30));
  if (draw.OneIn(3)) site.AnnualRisk(static_cast<float>(draw.Whole(5, 400)) / 1000);
  site.Duration(Durations(draw.Whole(0, 5)));
  site.StartMonth(Months(draw.Whole(0, 11)));
  for (int sector = 0; sector < 12; ++sector) FillSector(site, WindSectors(sector), draw, topography);
  if (!draw.OneIn(8)) return;
  site.ManualResults(true);
  for (int area = 0; area < 6; ++area)
    for (int sector = 0; sector < 12; ++sector) {
      site.DynamicPressure_q(WindAreas(area), WindSectors(sector), draw.Tenths(0, 2));
      site.SizeEffectFactor_Ca(WindAreas(area), WindSectors(sector), draw.Tenths(0.6f, 1));
    }
}

void FillInternal(clsInternalCoefficients& internal, Draw& draw) {
  internal.StructureType(StructureTypes(draw.Whole(0, 2)));
  internal.InternalVolume(draw.Tenths(-10, 4000));
  internal.DiagonalDimension_a(draw.Tenths(0, 8));
  internal.WindPressureType(WindPressureTypes(draw.Whole(0, 2)));
  switch (draw.Whole(0, 4)) {
    case 0:
      return internal.EnclosedBuilding_GeneralCase(true);
    case 1:
      return internal.EnclosedBuilding_NoPositiveInternalPressure(true);
    case 2:
      return internal.EnclosedBuilding_WindNormalToPermeableFace(true);
    default:
      break;
  }
  for (int face = 0; face < 4; ++face) {
    internal.DominantOpening_SelectedZoneIndex(Faces(face), WallZones(draw.Whole(0, 4)));
    internal.InternalCoefficientFactor_Cpi_Suction(Faces(face), draw.Tenths(0, 1));
    if (draw.OneIn(3)) internal.DominantOpening_Ratio2(Faces(face), true);
  }
}

void FillExternal(clsExternalCoefficients& external, Draw& draw) {
  external.Bay(Bays(draw.Whole(0, 2)));
  if (!draw.OneIn(8)) return;
  external.ManualResults(true);
  for (int area = 0; area < 3; ++area)
    for (int face = 0; face < 4; ++face)
      for (std::int16_t zone = 0; zone < 10; ++zone)
        external.Hybrid_ExternalCoefficientFactor_Cpe_Suction(BuildingAreas(area), Faces(face), zone,
                                                              draw.Tenths(0, 2));
}

}  // namespace

void FillRandomCase(clsCurrentCase& windCase, std::mt19937& random) {
  Draw draw(random);
  FillBuilding(*windCase.BuildingDimensions(), draw);
  FillSite(*windCase.DynamicPressure(), draw);
  FillExternal(*windCase.ExternalCoefficients(), draw);
  // A rule of a dominant opening reads wall coefficients, which the engine refuses for some buildings.
  try {
    FillInternal(*windCase.InternalCoefficients(), draw);
  } catch (const Error&) {
  }
}

}  // namespace orve::test
