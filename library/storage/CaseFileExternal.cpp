// Section [ExternalCoefficients] of the case file.
#include "core/Ranges.h"
#include "core/basBS6399_2.h"
#include "core/clsCurrentCase.h"
#include "external/clsExternalCoefficients.h"
#include "storage/CaseSection.h"

namespace orve {

namespace {

constexpr const char* ExternalSection = "ExternalCoefficients";

using E = clsExternalCoefficients;
using ZoneGet = float (E::*)(BuildingAreas, Faces, std::int16_t);
using ZoneSet = void (E::*)(BuildingAreas, Faces, std::int16_t, float);

void DescribeZone(CaseSection& section, E& external, BuildingAreas area, Faces face, std::int16_t zone) {
  const auto key = [&](const char* name, ZoneGet get, ZoneSet set) {
    section.Key(
        IndexedKey(name, {static_cast<std::int32_t>(area), static_cast<std::int32_t>(face), zone}), 0.0f,
        [&] { return (external.*get)(area, face, zone); },
        [&](float value) { (external.*set)(area, face, zone, value); });
  };
  key("Hybrid_ExternalCoefficientFactor_Cpe_Pressure", &E::Hybrid_ExternalCoefficientFactor_Cpe_Pressure,
      &E::Hybrid_ExternalCoefficientFactor_Cpe_Pressure);
  key("Hybrid_ExternalCoefficientFactor_Cpe_Suction", &E::Hybrid_ExternalCoefficientFactor_Cpe_Suction,
      &E::Hybrid_ExternalCoefficientFactor_Cpe_Suction);
}

void DescribeManualResults(CaseSection& section, E& external) {
  for (std::int32_t area = 0; area < BuildingAreaCount; ++area)
    for (std::int32_t face = 0; face < FaceCount; ++face) {
      const std::int32_t from = external.ZoneIndexFrom(BuildingAreas(area), Faces(face));
      const std::int32_t to = external.ZoneIndexTo(BuildingAreas(area), Faces(face));
      for (std::int32_t zone = from; zone <= to; ++zone)
        DescribeZone(section, external, BuildingAreas(area), Faces(face), static_cast<std::int16_t>(zone));
    }
}

void Describe(CaseSection& section, E& external) {
  const PropertyKeys<E> key(section, external);
  key("ManualResults", &E::ManualResults, &E::ManualResults, false);
  if (external.ManualResults())
    DescribeManualResults(section, external);
  else
    key("Bay", &E::Bay, &E::Bay, Bays(0));
}

}  // namespace

void clsExternalCoefficients::ReadFromSaveFile() {
  CaseSection section(RequireCurrentCase().m_iclsSaveFile, ExternalSection, CaseSection::Way::Read);
  Describe(section, *this);
}

void clsExternalCoefficients::WriteToSaveFile() {
  CaseSection section(RequireCurrentCase().m_iclsSaveFile, ExternalSection, CaseSection::Way::Write);
  Describe(section, *this);
}

}  // namespace orve
