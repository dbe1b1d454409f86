// Section [InternalCoefficients] of the case file.
#include "core/Ranges.h"
#include "core/basBS6399_2.h"
#include "core/clsCurrentCase.h"
#include "internal/clsInternalCoefficients.h"
#include "storage/CaseSection.h"

namespace orve {

namespace {

constexpr const char* InternalSection = "InternalCoefficients";

using I = clsInternalCoefficients;

template <class Value>
using FaceGet = Value (I::*)(Faces) const;
template <class Value>
using FaceSet = void (I::*)(Faces, Value);

void DescribeFace(CaseSection& section, I& internal, Faces face) {
  const auto key = [&]<class Value>(const char* name, FaceGet<Value> get, FaceSet<Value> set, Value absent) {
    section.Key(
        IndexedKey(name, {static_cast<std::int32_t>(face)}), absent, [&] { return (internal.*get)(face); },
        [&](Value value) { (internal.*set)(face, value); });
  };
  key.operator()<WallZones>("DominantOpening_SelectedZoneIndex", &I::DominantOpening_SelectedZoneIndex,
                            &I::DominantOpening_SelectedZoneIndex, WallZones(0));
  key.operator()<float>("InternalCoefficientFactor_Cpi_Pressure", &I::InternalCoefficientFactor_Cpi_Pressure,
                        &I::InternalCoefficientFactor_Cpi_Pressure, 0);
  key.operator()<float>("InternalCoefficientFactor_Cpi_Suction", &I::InternalCoefficientFactor_Cpi_Suction,
                        &I::InternalCoefficientFactor_Cpi_Suction, 0);
}

void Describe(CaseSection& section, I& internal) {
  const PropertyKeys<I> key(section, internal);
  // Key, the property's get and let, and the value for an absent key.
  key("StructureType", &I::StructureType, &I::StructureType, StructureTypes(0));
  key("DiagonalDimension_a", &I::DiagonalDimension_a, &I::DiagonalDimension_a, 0);
  key("InternalVolume", &I::InternalVolume, &I::InternalVolume, 0);
  key("WindPressureType", &I::WindPressureType, &I::WindPressureType, WindPressureTypes(0));
  key("EnclosedBuilding_GeneralCase", &I::EnclosedBuilding_GeneralCase, &I::EnclosedBuilding_GeneralCase,
      false);
  key("EnclosedBuilding_NoPositiveInternalPressure", &I::EnclosedBuilding_NoPositiveInternalPressure,
      &I::EnclosedBuilding_NoPositiveInternalPressure, false);
  key("EnclosedBuilding_WindNormalToPermeableFace", &I::EnclosedBuilding_WindNormalToPermeableFace,
      &I::EnclosedBuilding_WindNormalToPermeableFace, false);
  key("EnclosedBuilding_WindNormalToImpermeableFace", &I::EnclosedBuilding_WindNormalToImpermeableFace,
      &I::EnclosedBuilding_WindNormalToImpermeableFace, false);
  key("EnclosedBuilding_FourWallsEquallyPermeable", &I::EnclosedBuilding_FourWallsEquallyPermeable,
      &I::EnclosedBuilding_FourWallsEquallyPermeable, false);
  for (std::int32_t face = 0; face < FaceCount; ++face) DescribeFace(section, internal, Faces(face));
}

}  // namespace

void clsInternalCoefficients::ReadFromSaveFile() {
  CaseSection section(RequireCurrentCase().m_iclsSaveFile, InternalSection, CaseSection::Way::Read);
  Describe(section, *this);
}

void clsInternalCoefficients::WriteToSaveFile() {
  CaseSection section(RequireCurrentCase().m_iclsSaveFile, InternalSection, CaseSection::Way::Write);
  Describe(section, *this);
}

}  // namespace orve
