// Section [OverallAppliedLoads] of the case file.
#include "core/Ranges.h"
#include "core/basBS6399_2.h"
#include "core/clsCurrentCase.h"
#include "loads/clsOverallAppliedLoads.h"
#include "storage/CaseSection.h"

namespace orve {

namespace {

constexpr const char* LoadsSection = "OverallAppliedLoads";

using L = clsOverallAppliedLoads;

template <class Value>
using Get = Value (L::*)(BuildingAreas, Faces) const;
template <class Value>
using Set = void (L::*)(BuildingAreas, Faces, Value);

void DescribeFace(CaseSection& section, L& loads, BuildingAreas area, Faces face) {
  const auto key = [&]<class Value>(const char* name, Get<Value> get, Set<Value> set, Value absent) {
    section.Key(
        IndexedKey(name, {static_cast<std::int32_t>(area), static_cast<std::int32_t>(face)}), absent,
        [&] { return (loads.*get)(area, face); }, [&](Value value) { (loads.*set)(area, face, value); });
  };
  const auto measure = [&](const char* name, Get<float> get, Set<float> set) {
    key.operator()<float>(name, get, set, 0);
  };
  key.operator()<SelectedLoadTypes>("SelectedLoadType", &L::SelectedLoadType, &L::SelectedLoadType,
                                    SelectedLoadTypes(0));
  measure("SteppedWind_Load_1", &L::SteppedWind_Load_1, &L::SteppedWind_Load_1);
  measure("SteppedWind_Load_2", &L::SteppedWind_Load_2, &L::SteppedWind_Load_2);
  measure("SteppedWind_Load_3", &L::SteppedWind_Load_3, &L::SteppedWind_Load_3);
  measure("SteppedWind_Distance_1", &L::SteppedWind_Distance_1, &L::SteppedWind_Distance_1);
  measure("SteppedWind_Distance_2", &L::SteppedWind_Distance_2, &L::SteppedWind_Distance_2);
  measure("SteppedWind_Distance_3", &L::SteppedWind_Distance_3, &L::SteppedWind_Distance_3);
  measure("SteppedWind_Span", &L::SteppedWind_Span, &L::SteppedWind_Span);
}

void Describe(CaseSection& section, L& loads) {
  for (std::int32_t area = 0; area < BuildingAreaCount; ++area)
    for (std::int32_t face = 0; face < FaceCount; ++face)
      DescribeFace(section, loads, BuildingAreas(area), Faces(face));
}

}  // namespace

void clsOverallAppliedLoads::ReadFromSaveFile() {
  CaseSection section(RequireCurrentCase().m_iclsSaveFile, LoadsSection, CaseSection::Way::Read);
  Describe(section, *this);
}

void clsOverallAppliedLoads::WriteToSaveFile() {
  CaseSection section(RequireCurrentCase().m_iclsSaveFile, LoadsSection, CaseSection::Way::Write);
  Describe(section, *this);
}

}  // namespace orve
