// Coefficients, the worst wind for a zone and external loads.
#include "common/LoadText.h"
#include "common/Narrow.h"
#include "common/NumberText.h"
#include "common/clsCommon.h"
#include "core/CaseObjects.h"
#include "core/KeepAlive.h"
#include "core/Marks.h"
#include "core/Ranges.h"
#include "external/BreCpX.h"
#include "external/clsExternalCoefficients.h"
#include "geometry/clsBuildingDimensions.h"
#include "sitewind/clsDynamicPressure.h"

namespace orve {

namespace {

constexpr double SecondBayFactor = 0.8;      // Table 12.
constexpr double RemainingBaysFactor = 0.6;  // Table 12.

double BayFactor(Bays bay) {
  switch (bay) {
    case Bays::Second_Bay:
      return SecondBayFactor;
    case Bays::All_Remaining_Bays:
      return RemainingBaysFactor;
    default:
      return 1;
  }
}

}  // namespace

float& clsExternalCoefficients::ManualCpe(ManualTable& table, const ZoneAddress& zone) {
  const auto area = static_cast<std::int32_t>(zone.area);
  const auto face = static_cast<std::int32_t>(zone.face);
  if (area < 0 || area >= AreaCount) RaiseSubscript("building area", area, 0, AreaCount - 1);
  if (face < 0 || face >= FaceCount) RaiseSubscript("face", face, 0, FaceCount - 1);
  if (zone.zone < 0 || zone.zone >= ManualZoneCount)
    RaiseSubscript("zone index", zone.zone, 0, ManualZoneCount - 1);
  return table[area][face][zone.zone];
}

// The zone's coefficient as the component gives it for one of the two cases.
float clsExternalCoefficients::ComponentCpe(const ZoneAddress& zone, bool suction) {
  const auto held = RequireBreCp();
  BreCpX& component = *held;
  BuildZoneTable(component, zone.area, zone.face, ResultsScreens(-1));
  const ZoneRecord record = ZoneAt(zone.zone);
  component.Theta(record.Theta);
  component.ZoneIndex(record.ComponentZoneIndex);
  if (IsRoofOrWalls(zone.area)) {
    component.Dim_L(record.Dim_L);
    component.Dim_W(record.Dim_W);
    component.Dim_H(record.Dim_H);
    component.Dim_gap(record.Dim_gap);
    component.Suction(suction);
    const float cpe = component.Cpe();
    if (suction) return cpe > 0 ? 0 : basBS6399_2::Common->ReverseSign(cpe);
    return cpe < 0 ? 0 : cpe;
  }
  if (zone.area != BuildingAreas::baParapet) return 0;
  const bool windward = component.Theta() == 0;
  return windward != suction ? component.Cpe() : 0;
}

float clsExternalCoefficients::ApplyBayFactor(float coefficient, const ZoneAddress& zone) const {
  if (zone.area != BuildingAreas::baRoof) return coefficient;
  if (zone.face != Faces::Face_1 && zone.face != Faces::Face_3) return coefficient;
  if (CaseBuildingDimensions()->Roof_FrameType() == FrameTypes::Frames_1) return coefficient;
  return ToSingle(coefficient * BayFactor(Bay()));
}

float clsExternalCoefficients::Hybrid_ExternalCoefficientFactor_Cpe_Pressure(BuildingAreas buildingArea,
                                                                             Faces face,
                                                                             std::int16_t zoneIndex) {
  const KeepAlive keep(*this);
  const ZoneAddress zone = Resolve(buildingArea, face, zoneIndex);
  if (ManualResults()) return ManualCpe(m_ManualCpe_Pressure, zone);
  return ApplyBayFactor(ComponentCpe(zone, false), zone);
}

void clsExternalCoefficients::Hybrid_ExternalCoefficientFactor_Cpe_Pressure(BuildingAreas buildingArea,
                                                                            Faces face,
                                                                            std::int16_t zoneIndex,
                                                                            float value) {
  if (!ManualResults()) return;
  const ZoneAddress zone = Resolve(buildingArea, face, zoneIndex);
  if (Differs(Hybrid_ExternalCoefficientFactor_Cpe_Pressure(zone.area, zone.face, zone.zone), value))
    StoreAndMarkDirty(ManualCpe(m_ManualCpe_Pressure, zone), value);
}

float clsExternalCoefficients::Hybrid_ExternalCoefficientFactor_Cpe_Suction(BuildingAreas buildingArea,
                                                                            Faces face,
                                                                            std::int16_t zoneIndex) {
  const KeepAlive keep(*this);
  const ZoneAddress zone = Resolve(buildingArea, face, zoneIndex);
  if (ManualResults()) return ManualCpe(m_ManualCpe_Suction, zone);
  return ApplyBayFactor(ComponentCpe(zone, true), zone);
}

void clsExternalCoefficients::Hybrid_ExternalCoefficientFactor_Cpe_Suction(BuildingAreas buildingArea,
                                                                           Faces face, std::int16_t zoneIndex,
                                                                           float value) {
  if (!ManualResults()) return;
  const ZoneAddress zone = Resolve(buildingArea, face, zoneIndex);
  if (Differs(Hybrid_ExternalCoefficientFactor_Cpe_Suction(zone.area, zone.face, zone.zone), value))
    StoreAndMarkDirty(ManualCpe(m_ManualCpe_Suction, zone), value);
}

// The wind area follows the face that carries the zone, the normal follows the face that the wind comes from.
WindAreas clsExternalCoefficients::WindAreaOf(BuildingAreas buildingArea, Faces face) const {
  switch (buildingArea) {
    case BuildingAreas::baWalls:
      return GableFace(face) ? WindAreas::waGable : WindAreas::waSidewall;
    case BuildingAreas::baParapet:
      return GableFace(face) ? WindAreas::waGableParapet : WindAreas::waSidewallParapet;
    default:
      return WindAreas::waRoof;
  }
}

WorstCase clsExternalCoefficients::Hybrid_WorstCaseSearch(BuildingAreas buildingArea, Faces face,
                                                          std::int16_t zoneIndex) {
  const KeepAlive keep(*this);
  const BuildingAreas area = Resolve(buildingArea);
  const Faces onFace = Resolve(face);
  const WindAreas windArea = WindAreaOf(area, onFace);
  const Faces windFace = area == BuildingAreas::baRoof
                             ? onFace
                             : static_cast<Faces>(Hybrid_WindFromFace(area, onFace, Resolve(zoneIndex)));
  const bool orientationUnknown = CaseBuildingDimensions()->OrientationUnknown();
  const float normal = orientationUnknown ? -1.0f : Hybrid_AngleNormalToFace(windFace);
  return SearchWorstCase(*CaseDynamicPressure(), windArea, orientationUnknown, normal);
}

float clsExternalCoefficients::Hybrid_WorstCase_DynamicPressure_q(BuildingAreas buildingArea, Faces face,
                                                                  std::int16_t zoneIndex) {
  return Hybrid_WorstCaseSearch(buildingArea, face, zoneIndex).q();
}

float clsExternalCoefficients::Hybrid_WorstCase_SizeEffectFactor_Ca(BuildingAreas buildingArea, Faces face,
                                                                    std::int16_t zoneIndex) {
  return Hybrid_WorstCaseSearch(buildingArea, face, zoneIndex).Ca();
}

float clsExternalCoefficients::Hybrid_ExternalAppliedLoad_Pressure(BuildingAreas buildingArea, Faces face,
                                                                   std::int16_t zoneIndex) {
  const KeepAlive keep(*this);
  const auto [area, onFace, zone] = Resolve(buildingArea, face, zoneIndex);
  const double ca = Hybrid_WorstCase_SizeEffectFactor_Ca(area, onFace, zone);
  const double cpe = Hybrid_ExternalCoefficientFactor_Cpe_Pressure(area, onFace, zone);
  const double q = Hybrid_WorstCase_DynamicPressure_q(area, onFace, zone);
  return ToSingle(ca * q * cpe);
}

float clsExternalCoefficients::Hybrid_ExternalAppliedLoad_Suction(BuildingAreas buildingArea, Faces face,
                                                                  std::int16_t zoneIndex) {
  const KeepAlive keep(*this);
  const auto [area, onFace, zone] = Resolve(buildingArea, face, zoneIndex);
  const double ca = Hybrid_WorstCase_SizeEffectFactor_Ca(area, onFace, zone);
  const double cpe = Hybrid_ExternalCoefficientFactor_Cpe_Suction(area, onFace, zone);
  const double q = Hybrid_WorstCase_DynamicPressure_q(area, onFace, zone);
  return ToSingle(ca * q * cpe);
}

std::string clsExternalCoefficients::Hybrid_ExternalAppliedLoads(BuildingAreas buildingArea, Faces face,
                                                                 std::int16_t zoneIndex) {
  const KeepAlive keep(*this);
  const auto [area, onFace, zone] = Resolve(buildingArea, face, zoneIndex);
  std::string pressure;
  if (IsPresent(Hybrid_ExternalCoefficientFactor_Cpe_Pressure(area, onFace, zone)))
    pressure = FormatSigned(Hybrid_ExternalAppliedLoad_Pressure(area, onFace, zone));
  std::string suction;
  if (IsPresent(Hybrid_ExternalCoefficientFactor_Cpe_Suction(area, onFace, zone)))
    suction = FormatSigned(
        basBS6399_2::Common->ReverseSign(Hybrid_ExternalAppliedLoad_Suction(area, onFace, zone)));
  return JoinLoads(pressure, suction);
}

}  // namespace orve
