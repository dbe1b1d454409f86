// q, Ca, speeds and factors by wind area and sector.
#include "sitewind/clsDynamicPressure.h"

#include "common/Narrow.h"
#include "core/CaseObjects.h"
#include "core/KeepAlive.h"
#include "core/Marks.h"
#include "geometry/clsBuildingDimensions.h"
#include "internal/clsInternalCoefficients.h"
#include "sitewind/BVe2X.h"
#include "sitewind/WindPressureArea.h"

namespace orve {

namespace {

constexpr float HybridGustPeakFactor = 3.44f;  // 2.2.3: gust of 1 s, diagonal of 5 m.
constexpr float HybridTerrainDiagonal = 5.0f;
constexpr std::int32_t PascalUnits = 1;
constexpr double PascalsInKilopascal = 1000;
constexpr float DefaultAnnualRisk = 0.02f;

}  // namespace

clsDynamicPressure::clsDynamicPressure() {
  ApplyDefaults();
}

void clsDynamicPressure::ApplyDefaults() {
  using D = clsDynamicPressure;
  OwedLets<D> let(*this);
  let(&D::SiteSelected, false);
  let(&D::SiteEdited, false);
  let(&D::Method, Methods::Hybrid);
  let(&D::ManualResults, false);
  let(&D::GridReference, "");
  let(&D::SaBasedOn, SaBasedOnTypes::Altitude);
  let(&D::SiteAltitude, 0);
  let(&D::BasicWindSpeed, 0);
  let(&D::AnnualRisk, DefaultAnnualRisk);
  let(&D::LifeTime, orve::LifeTime::Permanent);
  let(&D::Duration, Durations::All_year);
  let(&D::StartMonth, Months::January);
  let.Finish();
}

void clsDynamicPressure::WindArea(WindAreas value) {
  m_WindArea = ToInt16(value);
}
void clsDynamicPressure::WindSector(WindSectors value) {
  m_WindSector = ToInt16(value);
}

void clsDynamicPressure::Method(Methods value) {
  StoreAndMarkDirty(m_Method, ToInt16(value), [] { RequireCurrentCase().BreCp_Dirty(true); });
}

void clsDynamicPressure::ManualResults(bool value) {
  StoreAndMarkDirty(m_ManualResults, value);
}

WindAreas clsDynamicPressure::Resolve(WindAreas windArea) const {
  return windArea == WindAreas(-1) ? WindArea() : windArea;
}

WindSectors clsDynamicPressure::Resolve(WindSectors windSector) const {
  return windSector == WindSectors(-1) ? WindSector() : windSector;
}

WindAreas clsDynamicPressure::FollowWindPressureType(WindAreas windArea) const {
  if (windArea != WindAreas::waInternal) return windArea;
  return WindAreaOf(CaseInternalCoefficients()->WindPressureType());
}

float clsDynamicPressure::HeightOf(WindAreas windArea) const {
  const auto building = CaseBuildingDimensions();
  switch (windArea) {
    case WindAreas::waRoof:
      return building->Roof_Height();
    case WindAreas::waSidewall:
      return building->Wall_SideHeight();
    case WindAreas::waGable:
      return building->Wall_GableHeight();
    case WindAreas::waSidewallParapet:
    case WindAreas::waGableParapet:
      return building->Parapet_HeightFromFFL_m();
    default:
      return 0;
  }
}

float clsDynamicPressure::DiagonalOf(WindAreas windArea) const {
  const auto building = CaseBuildingDimensions();
  switch (windArea) {
    case WindAreas::waRoof:
      return building->Roof_Diagonal();
    case WindAreas::waSidewall:
      return building->Wall_SideDiagonal();
    case WindAreas::waGable:
      return building->Wall_GableDiagonal();
    case WindAreas::waSidewallParapet:
      return building->Parapet_SideDiagonal();
    case WindAreas::waGableParapet:
      return building->Parapet_GableDiagonal();
    default:
      return 0;
  }
}

void clsDynamicPressure::SetHeightAndDiagonal(BVe2X& component, float height, float diagonal) {
  if (Differs(component.H(), height)) {
    component.H(height);
    RequireCurrentCase().BreVe_Dirty(true);
  }
  if (Differs(component.A(), diagonal)) {
    component.A(diagonal);
    RequireCurrentCase().BreVe_Dirty(true);
  }
}

float clsDynamicPressure::Factor(WindAreas windArea, WindSectors windSector, ComponentFactor factor,
                                 bool terrainFactor) {
  const KeepAlive keep(*this);
  const WindAreas area = FollowWindPressureType(Resolve(windArea));
  const WindSectors sector = Resolve(windSector);
  const float height = HeightOf(area);
  const bool fixedDiagonal = terrainFactor && Method() == Methods::Hybrid;
  const float diagonal = fixedDiagonal ? HybridTerrainDiagonal : DiagonalOf(area);
  const auto component = RequireBreVe();
  SetHeightAndDiagonal(*component, height, diagonal);
  RefreshWindComponent();
  return (component.get()->*factor)(sector);
}

float clsDynamicPressure::ProbabilityFactor_Sp() {
  const KeepAlive keep(*this);
  RefreshWindComponent();
  return RequireBreVe()->Sp();
}

float clsDynamicPressure::SeasonalFactor_Ss() {
  const KeepAlive keep(*this);
  RefreshWindComponent();
  return RequireBreVe()->Ss();
}

float clsDynamicPressure::DirectionFactor_Sd(WindAreas windArea, WindSectors windSector) {
  return Factor(windArea, windSector, &BVe2X::Sd);
}

float clsDynamicPressure::AltitudeFactor_Sa(WindAreas windArea, WindSectors windSector) {
  return Factor(windArea, windSector, &BVe2X::Sa);
}

float clsDynamicPressure::DisplacementHeight_Hd(WindAreas windArea, WindSectors windSector) {
  return Factor(windArea, windSector, &BVe2X::Zd);
}

float clsDynamicPressure::EffectiveHeight_He(WindAreas windArea, WindSectors windSector) {
  return Factor(windArea, windSector, &BVe2X::He);
}

float clsDynamicPressure::TopographicIncrement_Sh(WindAreas windArea, WindSectors windSector) {
  return Factor(windArea, windSector, &BVe2X::Sh);
}

float clsDynamicPressure::FetchFactor_Sc(WindAreas windArea, WindSectors windSector) {
  return Factor(windArea, windSector, &BVe2X::Sc);
}

float clsDynamicPressure::TurbulenceFactor_St(WindAreas windArea, WindSectors windSector) {
  return Factor(windArea, windSector, &BVe2X::St);
}

float clsDynamicPressure::FetchAdjustmentFactor_Tc(WindAreas windArea, WindSectors windSector) {
  return Factor(windArea, windSector, &BVe2X::Tc);
}

float clsDynamicPressure::TurbulenceAdjustmentFactor_Tt(WindAreas windArea, WindSectors windSector) {
  return Factor(windArea, windSector, &BVe2X::Tt);
}

float clsDynamicPressure::GustPeakFactor_gt(WindAreas windArea, WindSectors windSector) {
  if (Method() == Methods::Hybrid) return HybridGustPeakFactor;
  return Factor(windArea, windSector, &BVe2X::gt);
}

float clsDynamicPressure::TerrainAndBuildingFactor_Sb(WindAreas windArea, WindSectors windSector) {
  return Factor(windArea, windSector, &BVe2X::Sb, true);
}

float clsDynamicPressure::SiteWindSpeed_Vs(WindAreas windArea, WindSectors windSector) {
  const KeepAlive keep(*this);
  const WindAreas area = Resolve(windArea);
  const WindSectors sector = Resolve(windSector);
  const double sa = AltitudeFactor_Sa(area, sector);
  const double sd = DirectionFactor_Sd(area, sector);
  const double ss = SeasonalFactor_Ss();
  const double sp = ProbabilityFactor_Sp();
  return ToSingle(sa * BasicWindSpeed() * sd * ss * sp);
}

float clsDynamicPressure::EffectiveWindSpeed_Ve(WindAreas windArea, WindSectors windSector) {
  const KeepAlive keep(*this);
  const double sb = TerrainAndBuildingFactor_Sb(windArea, windSector);
  return ToSingle(sb * SiteWindSpeed_Vs(windArea, windSector));
}

float& clsDynamicPressure::ManualResult(ResultTable& table, WindAreas windArea,
                                        WindSectors windSector) const {
  const auto area = static_cast<std::int32_t>(FollowWindPressureType(windArea));
  const auto sector = static_cast<std::int32_t>(windSector);
  if (area < 0 || area >= AreaCount) RaiseSubscript("wind area", area, 0, AreaCount - 1);
  if (sector < 0 || sector >= SectorCount) RaiseSubscript("wind sector", sector, 0, SectorCount - 1);
  return table[area][sector];
}

float clsDynamicPressure::DynamicPressure_q(WindAreas windArea, WindSectors windSector) {
  const KeepAlive keep(*this);
  const WindAreas given = Resolve(windArea);
  const WindSectors sector = Resolve(windSector);
  if (ManualResults()) return ManualResult(m_ManualDynamicPressure_q, given, sector);
  const WindAreas area = FollowWindPressureType(given);
  const float height = HeightOf(area);
  const float diagonal = DiagonalOf(area);
  const auto component = RequireBreVe();
  SetHeightAndDiagonal(*component, height, diagonal);
  if (component->Units() != PascalUnits) {
    component->Units(PascalUnits);
    RequireCurrentCase().BreVe_Dirty(true);
  }
  RefreshWindComponent();
  const float pascals = Method() == Methods::Hybrid ? component->BSGust(sector) : component->DirVal(sector);
  return ToSingle(pascals / PascalsInKilopascal);
}

void clsDynamicPressure::DynamicPressure_q(WindAreas windArea, WindSectors windSector, float value) {
  if (!ManualResults()) return;
  const WindAreas area = FollowWindPressureType(Resolve(windArea));
  const WindSectors sector = Resolve(windSector);
  if (!Differs(DynamicPressure_q(area, sector), value)) return;
  StoreAndMarkDirty(ManualResult(m_ManualDynamicPressure_q, area, sector), value);
}

float clsDynamicPressure::SizeEffectFactor_Ca(WindAreas windArea, WindSectors windSector) {
  const KeepAlive keep(*this);
  const WindAreas given = Resolve(windArea);
  const WindSectors sector = Resolve(windSector);
  if (ManualResults()) return ManualResult(m_ManualSizeEffectFactor_Ca, given, sector);
  const WindAreas area = FollowWindPressureType(given);
  const float height = HeightOf(area);
  const float diagonal = given == WindAreas::waInternal
                             ? CaseInternalCoefficients()->Calculated_DiagonalDimension_a()
                             : DiagonalOf(area);
  const auto component = RequireBreVe();
  SetHeightAndDiagonal(*component, height, diagonal);
  if (!(component->A() > 0)) return 0;
  RefreshWindComponent();
  return component->HybridCa(sector);
}

void clsDynamicPressure::SizeEffectFactor_Ca(WindAreas windArea, WindSectors windSector, float value) {
  if (!ManualResults()) return;
  const WindAreas area = FollowWindPressureType(Resolve(windArea));
  const WindSectors sector = Resolve(windSector);
  if (!Differs(SizeEffectFactor_Ca(area, sector), value)) return;
  StoreAndMarkDirty(ManualResult(m_ManualSizeEffectFactor_Ca, area, sector), value);
}

}  // namespace orve
