// The coefficient tables, the plain data and the rules for an enclosed building (Table 16).
#include "internal/clsInternalCoefficients.h"

#include "common/Narrow.h"
#include "common/NumberText.h"
#include "common/clsCommon.h"
#include "core/KeepAlive.h"
#include "core/Marks.h"
#include "internal/EnclosedRule.h"

namespace orve {

namespace {

constexpr double EnclosedVolumeFactor = 10;  // 2.6.1: a = 10 times the cube root of the volume.
constexpr double OpeningVolumeFactor =
    0.2;  // 2.6.2: a = 0.2 times the cube root, or the diagonal of the opening.

}  // namespace

clsInternalCoefficients::clsInternalCoefficients() {
  ApplyDefaults();
}

void clsInternalCoefficients::ApplyDefaults() {
  using I = clsInternalCoefficients;
  OwedLets<I> let(*this);
  let(&I::StructureType, StructureTypes::Enclosed_building);
  let(&I::DiagonalDimension_a, 0);
  let(&I::InternalVolume, 0);
  let(&I::WindPressureType, WindPressureTypes::wptSidewall);
  let(&I::EnclosedBuilding_GeneralCase, false);
  let(&I::EnclosedBuilding_NoPositiveInternalPressure, false);
  let(&I::EnclosedBuilding_WindNormalToPermeableFace, false);
  let(&I::EnclosedBuilding_WindNormalToImpermeableFace, false);
  let(&I::EnclosedBuilding_FourWallsEquallyPermeable, false);
  for (int face = 0; face < FaceCount; ++face) {
    let(&I::DominantOpening_SelectedZoneIndex, static_cast<Faces>(face), WallZones::Windward);
    let(&I::InternalCoefficientFactor_Cpi_Pressure, static_cast<Faces>(face), 0);
    let(&I::InternalCoefficientFactor_Cpi_Suction, static_cast<Faces>(face), 0);
  }
  let.Finish();
}

void clsInternalCoefficients::Face(Faces value) {
  m_Face = ToInt16(value);
}
void clsInternalCoefficients::StructureType(StructureTypes value) {
  StoreAndMarkDirty(m_StructureType, ToInt16(value));
}
void clsInternalCoefficients::DiagonalDimension_a(float value) {
  StoreAndMarkDirty(m_DiagonalDimension_a, value);
}
void clsInternalCoefficients::InternalVolume(float value) {
  StoreAndMarkDirty(m_InternalVolume, value);
}
void clsInternalCoefficients::WindPressureType(WindPressureTypes value) {
  StoreAndMarkDirty(m_WindPressureType, ToInt16(value));
}

Faces clsInternalCoefficients::Resolve(Faces face) const {
  return face == Faces(-1) ? Face() : face;
}

int clsInternalCoefficients::FaceIndex(Faces face) const {
  const auto index = static_cast<std::int32_t>(Resolve(face));
  if (index < 0 || index >= FaceCount) RaiseSubscript("face", index, 0, FaceCount - 1);
  return index;
}

float clsInternalCoefficients::InternalCoefficientFactor_Cpi_Pressure(Faces face) const {
  return m_Cpi_Pressure[FaceIndex(face)];
}

void clsInternalCoefficients::InternalCoefficientFactor_Cpi_Pressure(Faces face, float value) {
  const int index = FaceIndex(face);
  if (Differs(InternalCoefficientFactor_Cpi_Pressure(static_cast<Faces>(index)), value))
    StoreAndMarkDirty(m_Cpi_Pressure[index], value);
}

float clsInternalCoefficients::InternalCoefficientFactor_Cpi_Suction(Faces face) const {
  return m_Cpi_Suction[FaceIndex(face)];
}

void clsInternalCoefficients::InternalCoefficientFactor_Cpi_Suction(Faces face, float value) {
  const int index = FaceIndex(face);
  if (Differs(InternalCoefficientFactor_Cpi_Suction(static_cast<Faces>(index)), value))
    StoreAndMarkDirty(m_Cpi_Suction[index], value);
}

float clsInternalCoefficients::Calculated_DiagonalDimension_a() const {
  if (InternalVolume() < 0) return 0;
  const auto timesCubeRoot = [this](double factor) {
    return ToSingle(factor * basBS6399_2::Common->CubeRoot(InternalVolume()));
  };
  switch (StructureType()) {
    case StructureTypes::Enclosed_building:
      return timesCubeRoot(EnclosedVolumeFactor);
    case StructureTypes::Dominant_opening: {
      const float byVolume = timesCubeRoot(OpeningVolumeFactor);
      return DiagonalDimension_a() > byVolume ? DiagonalDimension_a() : byVolume;
    }
    default:
      return 0;
  }
}

const clsInternalCoefficients::EnclosedRule clsInternalCoefficients::GeneralCase = {
    &clsInternalCoefficients::m_EnclosedBuilding_GeneralCase, 0.2f, 0.3f};
const clsInternalCoefficients::EnclosedRule clsInternalCoefficients::NoPositiveInternalPressure = {
    &clsInternalCoefficients::m_EnclosedBuilding_NoPositiveInternalPressure, 0.0f, 0.3f};
const clsInternalCoefficients::EnclosedRule clsInternalCoefficients::WindNormalToPermeableFace = {
    &clsInternalCoefficients::m_EnclosedBuilding_WindNormalToPermeableFace, 0.2f, 0.0f};
const clsInternalCoefficients::EnclosedRule clsInternalCoefficients::WindNormalToImpermeableFace = {
    &clsInternalCoefficients::m_EnclosedBuilding_WindNormalToImpermeableFace, 0.0f, 0.3f};
const clsInternalCoefficients::EnclosedRule clsInternalCoefficients::FourWallsEquallyPermeable = {
    &clsInternalCoefficients::m_EnclosedBuilding_FourWallsEquallyPermeable, 0.0f, 0.3f};

// True if the rule was chosen and all eight coefficients are, at three decimals, those that it writes.
bool clsInternalCoefficients::RuleStands(const EnclosedRule& rule) const {
  std::array<float, FaceCount> pressures;
  std::array<float, FaceCount> suctions;
  for (int face = 0; face < FaceCount; ++face)
    pressures[face] = InternalCoefficientFactor_Cpi_Pressure(static_cast<Faces>(face));
  for (int face = 0; face < FaceCount; ++face)
    suctions[face] = InternalCoefficientFactor_Cpi_Suction(static_cast<Faces>(face));
  for (int face = 0; face < FaceCount; ++face)
    if (!SameAtThreeDecimals(pressures[face], rule.pressure) ||
        !SameAtThreeDecimals(suctions[face], rule.suction))
      return false;
  return this->*rule.flag;
}

void clsInternalCoefficients::WriteRule(const EnclosedRule& rule) {
  using I = clsInternalCoefficients;
  OwedLets<I> let(*this);
  for (int face = 0; face < FaceCount; ++face)
    let(&I::InternalCoefficientFactor_Cpi_Pressure, static_cast<Faces>(face), rule.pressure);
  for (int face = 0; face < FaceCount; ++face)
    let(&I::InternalCoefficientFactor_Cpi_Suction, static_cast<Faces>(face), rule.suction);
  let.Finish();
}

void clsInternalCoefficients::SetRule(const EnclosedRule& rule, bool present, bool value) {
  const KeepAlive keep(*this);
  if (value == present) return;
  this->*rule.flag = value;
  RunAll(MarkDirty, [&] {
    if (value) WriteRule(rule);
  });
}

// The three rules that share their values exclude each other: whichever value comes in, this one is then
// chosen.
void clsInternalCoefficients::SetExclusiveRule(const EnclosedRule& rule, bool present, bool value) {
  const KeepAlive keep(*this);
  if (value == present) return;
  m_EnclosedBuilding_NoPositiveInternalPressure = false;
  m_EnclosedBuilding_WindNormalToImpermeableFace = false;
  m_EnclosedBuilding_FourWallsEquallyPermeable = false;
  this->*rule.flag = true;
  RunAll(MarkDirty, [&] {
    if (value) WriteRule(rule);
  });
}

bool clsInternalCoefficients::EnclosedBuilding_GeneralCase() const {
  return RuleStands(GeneralCase);
}
void clsInternalCoefficients::EnclosedBuilding_GeneralCase(bool value) {
  SetRule(GeneralCase, EnclosedBuilding_GeneralCase(), value);
}

bool clsInternalCoefficients::EnclosedBuilding_NoPositiveInternalPressure() const {
  return RuleStands(NoPositiveInternalPressure);
}
void clsInternalCoefficients::EnclosedBuilding_NoPositiveInternalPressure(bool value) {
  SetExclusiveRule(NoPositiveInternalPressure, EnclosedBuilding_NoPositiveInternalPressure(), value);
}

bool clsInternalCoefficients::EnclosedBuilding_WindNormalToPermeableFace() const {
  return RuleStands(WindNormalToPermeableFace);
}
void clsInternalCoefficients::EnclosedBuilding_WindNormalToPermeableFace(bool value) {
  SetRule(WindNormalToPermeableFace, EnclosedBuilding_WindNormalToPermeableFace(), value);
}

bool clsInternalCoefficients::EnclosedBuilding_WindNormalToImpermeableFace() const {
  return RuleStands(WindNormalToImpermeableFace);
}
void clsInternalCoefficients::EnclosedBuilding_WindNormalToImpermeableFace(bool value) {
  SetExclusiveRule(WindNormalToImpermeableFace, EnclosedBuilding_WindNormalToImpermeableFace(), value);
}

bool clsInternalCoefficients::EnclosedBuilding_FourWallsEquallyPermeable() const {
  return RuleStands(FourWallsEquallyPermeable);
}
void clsInternalCoefficients::EnclosedBuilding_FourWallsEquallyPermeable(bool value) {
  SetExclusiveRule(FourWallsEquallyPermeable, EnclosedBuilding_FourWallsEquallyPermeable(), value);
}

}  // namespace orve
