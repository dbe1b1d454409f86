// Internal coefficients of a building with a dominant opening (Table 17): a fixed part of the external
// coefficients of the wall zone in which the opening lies.
#include "common/Narrow.h"
#include "core/CaseObjects.h"
#include "core/KeepAlive.h"
#include "core/Marks.h"
#include "external/ZoneSearch.h"
#include "external/clsExternalCoefficients.h"
#include "internal/EnclosedRule.h"
#include "internal/clsInternalCoefficients.h"

namespace orve {

namespace {

constexpr double Ratio2Factor = 0.75;
constexpr double Ratio3Factor = 0.9;

}  // namespace

std::int16_t clsInternalCoefficients::DominantOpening_ZoneIndexFrom(Faces face) const {
  return CaseExternalCoefficients()->ZoneIndexFrom(BuildingAreas::baWalls, Resolve(face));
}

std::int16_t clsInternalCoefficients::DominantOpening_ZoneIndexTo(Faces face) const {
  return CaseExternalCoefficients()->ZoneIndexTo(BuildingAreas::baWalls, Resolve(face), ResultsScreens(-1));
}

std::string clsInternalCoefficients::DominantOpening_ZoneDescription(Faces face,
                                                                     std::int16_t zoneIndex) const {
  const std::int16_t zone = zoneIndex == -1 ? DominantOpening_ZoneIndex() : zoneIndex;
  return CaseExternalCoefficients()->Hybrid_ZoneDescription(BuildingAreas::baWalls, Resolve(face), zone);
}

WallZones clsInternalCoefficients::DominantOpening_SelectedZoneIndex(Faces face) const {
  return static_cast<WallZones>(m_DominantOpening_SelectedZoneIndex[FaceIndex(face)]);
}

void clsInternalCoefficients::DominantOpening_SelectedZoneIndex(Faces face, WallZones value) {
  std::int16_t& selected = m_DominantOpening_SelectedZoneIndex[FaceIndex(face)];
  StoreAndMarkDirty(selected, ToInt16(value));
}

// Looks for the chosen zone among the wall zones of the face.
template <class ReadCpe>
float clsInternalCoefficients::SelectedZoneCpe(Faces face, ReadCpe readCpe) const {
  const Faces onFace = Resolve(face);
  const std::string_view text = PublishedText(DominantOpening_SelectedZoneIndex(onFace));
  const auto external = CaseExternalCoefficients();
  const std::int16_t to = external->ZoneIndexTo(BuildingAreas::baWalls, onFace, ResultsScreens(-1));
  const std::int16_t from = external->ZoneIndexFrom(BuildingAreas::baWalls, onFace);
  const ZoneSearch search = FindZone(from, to, text, [&](std::int16_t zone) {
    return external->Hybrid_ZoneDescription(BuildingAreas::baWalls, onFace, zone);
  });
  return search.Found ? readCpe(*external, onFace, static_cast<std::int16_t>(search.Index)) : 0;
}

float clsInternalCoefficients::DominantOpening_SelectedZoneCpe_Pressure(Faces face) const {
  return SelectedZoneCpe(face, [](clsExternalCoefficients& external, Faces onFace, std::int16_t zone) {
    return external.Hybrid_ExternalCoefficientFactor_Cpe_Pressure(BuildingAreas::baWalls, onFace, zone);
  });
}

float clsInternalCoefficients::DominantOpening_SelectedZoneCpe_Suction(Faces face) const {
  return SelectedZoneCpe(face, [](clsExternalCoefficients& external, Faces onFace, std::int16_t zone) {
    return external.Hybrid_ExternalCoefficientFactor_Cpe_Suction(BuildingAreas::baWalls, onFace, zone);
  });
}

bool clsInternalCoefficients::RatioStands(Faces face, const FaceFlags& flags, double ratio) const {
  const KeepAlive keep(*this);
  const Faces onFace = Resolve(face);
  const float cpiPressure = InternalCoefficientFactor_Cpi_Pressure(onFace);
  const double cpePressure = DominantOpening_SelectedZoneCpe_Pressure(onFace);
  const float cpiSuction = InternalCoefficientFactor_Cpi_Suction(onFace);
  const double cpeSuction = DominantOpening_SelectedZoneCpe_Suction(onFace);
  if (!SameAtThreeDecimals(cpiPressure, ratio * cpePressure)) return false;
  if (!SameAtThreeDecimals(cpiSuction, ratio * cpeSuction)) return false;
  return flags[FaceIndex(onFace)];
}

void clsInternalCoefficients::SetRatio(Faces face, FaceFlags& flags, double ratio, bool present, bool value) {
  const Faces onFace = static_cast<Faces>(FaceIndex(face));
  if (value == present) return;
  flags[FaceIndex(onFace)] = value;
  RunAll(MarkDirty, [&] {
    if (value) WriteRatio(onFace, ratio);
  });
}

void clsInternalCoefficients::WriteRatio(Faces face, double ratio) {
  const float pressure = ToSingle(ratio * DominantOpening_SelectedZoneCpe_Pressure(face));
  RunAll([&] { InternalCoefficientFactor_Cpi_Pressure(face, pressure); },
         [&] {
           const double suction = DominantOpening_SelectedZoneCpe_Suction(face);
           InternalCoefficientFactor_Cpi_Suction(face, ToSingle(ratio * suction));
         });
}

bool clsInternalCoefficients::DominantOpening_Ratio2(Faces face) const {
  return RatioStands(face, m_DominantOpening_Ratio2, Ratio2Factor);
}

void clsInternalCoefficients::DominantOpening_Ratio2(Faces face, bool value) {
  const KeepAlive keep(*this);
  SetRatio(face, m_DominantOpening_Ratio2, Ratio2Factor, DominantOpening_Ratio2(face), value);
}

bool clsInternalCoefficients::DominantOpening_Ratio3(Faces face) const {
  return RatioStands(face, m_DominantOpening_Ratio3, Ratio3Factor);
}

void clsInternalCoefficients::DominantOpening_Ratio3(Faces face, bool value) {
  const KeepAlive keep(*this);
  SetRatio(face, m_DominantOpening_Ratio3, Ratio3Factor, DominantOpening_Ratio3(face), value);
}

}  // namespace orve
