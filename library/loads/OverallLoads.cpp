// Zones and overall loads by zone: external and internal pressures combined at their worst.
#include <functional>
#include <memory>
#include <optional>

#include "common/LoadText.h"
#include "common/Narrow.h"
#include "common/clsCommon.h"
#include "core/CaseObjects.h"
#include "core/KeepAlive.h"
#include "core/Marks.h"
#include "core/Ranges.h"
#include "external/clsExternalCoefficients.h"
#include "geometry/clsBuildingDimensions.h"
#include "internal/clsInternalCoefficients.h"
#include "loads/clsOverallAppliedLoads.h"

namespace orve {

namespace {

// A term that is absent takes no part in the combinations; it isn't a term of zero.
using Term = std::optional<float>;

struct Terms {
  Term pressure;
  Term suction;
};

Terms ExternalTerms(clsExternalCoefficients& external, BuildingAreas area, Faces face, std::int16_t zone) {
  Terms terms;
  if (IsPresent(external.Hybrid_ExternalCoefficientFactor_Cpe_Pressure(area, face, zone)))
    terms.pressure = external.Hybrid_ExternalAppliedLoad_Pressure(area, face, zone);
  if (IsPresent(external.Hybrid_ExternalCoefficientFactor_Cpe_Suction(area, face, zone)))
    terms.suction =
        basBS6399_2::Common->ReverseSign(external.Hybrid_ExternalAppliedLoad_Suction(area, face, zone));
  return terms;
}

// Without positive internal pressure by rule, a factor of zero still counts: a real term of 0.
Terms InternalTerms(const clsInternalCoefficients& internal, Faces face) {
  Terms terms;
  const float cpiPressure = internal.InternalCoefficientFactor_Cpi_Pressure(face);
  const bool noPositivePressure = internal.EnclosedBuilding_NoPositiveInternalPressure();
  if (IsPresent(cpiPressure) || noPositivePressure)
    terms.pressure = internal.Hybrid_InternalAppliedLoad_Pressure(face);
  if (IsPresent(internal.InternalCoefficientFactor_Cpi_Suction(face)))
    terms.suction = basBS6399_2::Common->ReverseSign(internal.Hybrid_InternalAppliedLoad_Suction(face));
  return terms;
}

// The difference external minus internal that is furthest from 0 on the side told by `beats`.
template <class Beats>
float WorstDifference(const Terms& external, const Terms& internal, Beats beats) {
  float result = 0;
  for (const Term& outside : {external.pressure, external.suction})
    for (const Term& inside : {internal.pressure, internal.suction})
      if (outside && inside) {
        const float difference = ToSingle(double(*outside) - *inside);
        if (beats(difference, result)) result = difference;
      }
  return result;
}

template <class Beats>
float RoofOrWallLoad(BuildingAreas area, Faces face, std::int16_t zone, Beats beats) {
  const auto external = CaseExternalCoefficients();
  const Terms outside = ExternalTerms(*external, area, face, zone);
  const auto windFace = static_cast<Faces>(external->Hybrid_WindFromFace(area, face, zone));
  const Terms inside = InternalTerms(*CaseInternalCoefficients(), windFace);
  return WorstDifference(outside, inside, beats);
}

}  // namespace

void clsOverallAppliedLoads::BuildingArea(BuildingAreas value) {
  m_BuildingArea = ToInt16(value);
}
void clsOverallAppliedLoads::Face(Faces value) {
  m_Face = ToInt16(value);
}

BuildingAreas clsOverallAppliedLoads::Resolve(BuildingAreas buildingArea) const {
  return buildingArea == BuildingAreas(-1) ? BuildingArea() : buildingArea;
}

Faces clsOverallAppliedLoads::Resolve(Faces face) const {
  return face == Faces(-1) ? Face() : face;
}

std::int16_t clsOverallAppliedLoads::Resolve(std::int16_t zoneIndex) const {
  return zoneIndex == -1 ? ZoneIndex() : zoneIndex;
}

std::int16_t clsOverallAppliedLoads::ZoneIndexFrom(BuildingAreas buildingArea, Faces face) const {
  return CaseExternalCoefficients()->ZoneIndexFrom(Resolve(buildingArea), Resolve(face));
}

std::int16_t clsOverallAppliedLoads::ZoneIndexTo(BuildingAreas buildingArea, Faces face) const {
  return CaseExternalCoefficients()->ZoneIndexTo(Resolve(buildingArea), Resolve(face),
                                                 ResultsScreens::Overall_Applied_Loads);
}

std::string clsOverallAppliedLoads::Hybrid_ZoneDescription(BuildingAreas buildingArea, Faces face,
                                                           std::int16_t zoneIndex) const {
  return CaseExternalCoefficients()->Hybrid_ZoneDescription(Resolve(buildingArea), Resolve(face),
                                                            Resolve(zoneIndex));
}

std::string clsOverallAppliedLoads::Hybrid_ZoneDimensions(BuildingAreas buildingArea, Faces face,
                                                          std::int16_t zoneIndex) const {
  return CaseExternalCoefficients()->Hybrid_ZoneDimensions(
      Resolve(buildingArea), Resolve(face), Resolve(zoneIndex), ResultsScreens::Overall_Applied_Loads);
}

std::string clsOverallAppliedLoads::Hybrid_ExternalAppliedLoads(BuildingAreas buildingArea, Faces face,
                                                                std::int16_t zoneIndex) const {
  return CaseExternalCoefficients()->Hybrid_ExternalAppliedLoads(Resolve(buildingArea), Resolve(face),
                                                                 Resolve(zoneIndex));
}

std::string clsOverallAppliedLoads::Hybrid_InternalAppliedLoads(BuildingAreas buildingArea, Faces face,
                                                                std::int16_t zoneIndex) const {
  const KeepAlive keep(*this);
  const BuildingAreas area = Resolve(buildingArea);
  const Faces onFace = Resolve(face);
  const std::int16_t zone = Resolve(zoneIndex);
  if (!IsRoofOrWalls(area)) return {};
  const auto windFace =
      static_cast<Faces>(CaseExternalCoefficients()->Hybrid_WindFromFace(area, onFace, zone));
  return CaseInternalCoefficients()->Hybrid_InternalAppliedLoads(windFace);
}

float clsOverallAppliedLoads::Hybrid_OverallAppliedLoad_Pressure(BuildingAreas buildingArea, Faces face,
                                                                 std::int16_t zoneIndex) const {
  const BuildingAreas area = Resolve(buildingArea);
  const Faces onFace = Resolve(face);
  const std::int16_t zone = Resolve(zoneIndex);
  if (IsRoofOrWalls(area)) return RoofOrWallLoad(area, onFace, zone, std::greater<float>());
  if (area != BuildingAreas::baParapet) return 0;
  return CaseExternalCoefficients()->Hybrid_ExternalAppliedLoad_Pressure(area, onFace, zone);
}

float clsOverallAppliedLoads::Hybrid_OverallAppliedLoad_Suction(BuildingAreas buildingArea, Faces face,
                                                                std::int16_t zoneIndex) const {
  const BuildingAreas area = Resolve(buildingArea);
  const Faces onFace = Resolve(face);
  const std::int16_t zone = Resolve(zoneIndex);
  if (IsRoofOrWalls(area)) return RoofOrWallLoad(area, onFace, zone, std::less<float>());
  if (area != BuildingAreas::baParapet) return 0;
  return basBS6399_2::Common->ReverseSign(
      CaseExternalCoefficients()->Hybrid_ExternalAppliedLoad_Suction(area, onFace, zone));
}

std::string clsOverallAppliedLoads::Hybrid_OverallAppliedLoads(BuildingAreas buildingArea, Faces face,
                                                               std::int16_t zoneIndex) const {
  const KeepAlive keep(*this);
  const BuildingAreas area = Resolve(buildingArea);
  const Faces onFace = Resolve(face);
  const std::int16_t zone = Resolve(zoneIndex);
  const std::string pressure = FormatSignedLoad(Hybrid_OverallAppliedLoad_Pressure(area, onFace, zone));
  return JoinLoads(pressure, FormatSignedLoad(Hybrid_OverallAppliedLoad_Suction(area, onFace, zone)));
}

// Unequal cantilevers across the wind would leave no single width for a roof zone.
bool clsOverallAppliedLoads::CantileverZoneWidthWarning(BuildingAreas buildingArea, Faces face) const {
  if (Resolve(buildingArea) != BuildingAreas::baRoof) return false;
  const auto building = CaseBuildingDimensions();
  if (!building->ConsiderCantilever()) return false;
  if (!Differs(building->CantileverFace1Or2_Length(), building->CantileverFace3Or4_Length())) return false;
  switch (Resolve(face)) {
    case Faces::Face_1:
    case Faces::Face_3:
      return building->Wall_GableFaces() == GableFaces::Faces_2_and_4;
    case Faces::Face_2:
    case Faces::Face_4:
      return building->Wall_GableFaces() == GableFaces::Faces_1_and_3;
    default:
      return false;
  }
}

}  // namespace orve
