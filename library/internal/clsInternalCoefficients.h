// Internal pressure coefficients by face, the rules that write them, and internal loads.
#pragma once

#include <array>
#include <cstdint>
#include <memory>
#include <string>

#include "core/Enumerations.h"
#include "core/WithoutDefaults.h"
#include "external/WorstCaseSearch.h"

namespace orve {

/// Holds a pressure and a suction coefficient Cpi for each of the four faces, both as magnitudes. A rule
/// property is a shortcut that writes coefficients (2.6); it reads True only if it was chosen and its numbers
/// still stand, compared at three decimals. A face of exactly -1 means the property `Face`. Errors: 9 for a
/// face outside 0 to 3.
class clsInternalCoefficients : public std::enable_shared_from_this<clsInternalCoefficients> {
 public:
  clsInternalCoefficients();

  /// Selection, plain storage. Errors: 6 outside 16 bits.
  Faces Face() const { return static_cast<Faces>(m_Face); }
  void Face(Faces value);
  /// Enclosed, dominant opening or open sided. Errors: 6 outside 16 bits.
  StructureTypes StructureType() const { return static_cast<StructureTypes>(m_StructureType); }
  void StructureType(StructureTypes value);
  /// Diagonal of a dominant opening, metres (2.6.2).
  float DiagonalDimension_a() const { return m_DiagonalDimension_a; }
  void DiagonalDimension_a(float value);
  /// Internal volume of the storey, cubic metres (2.6.1).
  float InternalVolume() const { return m_InternalVolume; }
  void InternalVolume(float value);
  /// The wind area that the internal wind area follows. Errors: 6 outside 16 bits.
  WindPressureTypes WindPressureType() const { return static_cast<WindPressureTypes>(m_WindPressureType); }
  void WindPressureType(WindPressureTypes value);

  // Rules for an enclosed building (Table 16). A let of True writes all eight coefficients; a let of False
  // leaves them.
  /// Cpi +0.2 or -0.3, the more onerous.
  bool EnclosedBuilding_GeneralCase() const;
  void EnclosedBuilding_GeneralCase(bool value);
  /// Cpi 0 and -0.3.
  bool EnclosedBuilding_NoPositiveInternalPressure() const;
  void EnclosedBuilding_NoPositiveInternalPressure(bool value);
  /// Cpi +0.2.
  bool EnclosedBuilding_WindNormalToPermeableFace() const;
  void EnclosedBuilding_WindNormalToPermeableFace(bool value);
  /// Cpi -0.3.
  bool EnclosedBuilding_WindNormalToImpermeableFace() const;
  void EnclosedBuilding_WindNormalToImpermeableFace(bool value);
  /// Cpi -0.3.
  bool EnclosedBuilding_FourWallsEquallyPermeable() const;
  void EnclosedBuilding_FourWallsEquallyPermeable(bool value);

  /// Zone position for `DominantOpening_ZoneDescription`. Plain storage.
  std::int16_t DominantOpening_ZoneIndex() const { return m_DominantOpening_ZoneIndex; }
  void DominantOpening_ZoneIndex(std::int16_t value) { m_DominantOpening_ZoneIndex = value; }
  /// First and last wall zone (-1: none); a zone's name, -1 meaning `DominantOpening_ZoneIndex`. Errors: 9.
  std::int16_t DominantOpening_ZoneIndexFrom(Faces face = Faces(-1)) const;
  std::int16_t DominantOpening_ZoneIndexTo(Faces face = Faces(-1)) const;
  std::string DominantOpening_ZoneDescription(Faces face = Faces(-1), std::int16_t zoneIndex = -1) const;
  /// The wall zone in which the face's dominant opening lies. Errors: 6 outside 16 bits.
  WallZones DominantOpening_SelectedZoneIndex(Faces face = Faces(-1)) const;
  void DominantOpening_SelectedZoneIndex(Faces face, WallZones value);
  /// External coefficients of that zone; 0 if the face has no such zone.
  float DominantOpening_SelectedZoneCpe_Pressure(Faces face = Faces(-1)) const;
  float DominantOpening_SelectedZoneCpe_Suction(Faces face = Faces(-1)) const;
  /// Opening twice the rest: Cpi = 0.75 Cpe (Table 17).
  bool DominantOpening_Ratio2(Faces face = Faces(-1)) const;
  void DominantOpening_Ratio2(Faces face, bool value);
  /// Opening three times the rest or more: Cpi = 0.9 Cpe (Table 17).
  bool DominantOpening_Ratio3(Faces face = Faces(-1)) const;
  void DominantOpening_Ratio3(Faces face, bool value);

  /// Internal pressure coefficients of the face, as magnitudes.
  float InternalCoefficientFactor_Cpi_Pressure(Faces face = Faces(-1)) const;
  void InternalCoefficientFactor_Cpi_Pressure(Faces face, float value);
  float InternalCoefficientFactor_Cpi_Suction(Faces face = Faces(-1)) const;
  void InternalCoefficientFactor_Cpi_Suction(Faces face, float value);

  /// q of the worst wind for the face, in the wind area that `WindPressureType` names, kN/m².
  float Hybrid_WorstCase_DynamicPressure_q(Faces face = Faces(-1)) const;
  /// Diagonal for the size effect factor of internal pressure, metres (2.6.1, 2.6.2); 0 for an open-sided
  /// building.
  float Calculated_DiagonalDimension_a() const;
  /// Ca of the worst wind for the face, in the internal wind area.
  float Hybrid_WorstCase_SizeEffectFactor_Ca(Faces face = Faces(-1)) const;
  /// The whole record of either search, for a reader who asks why.
  WorstCase Hybrid_WorstCaseSearch_q(Faces face = Faces(-1)) const;
  WorstCase Hybrid_WorstCaseSearch_Ca(Faces face = Faces(-1)) const;

  /// Internal loads Ca q Cpi, kN/m²; the suction is a magnitude. Errors: 6 if the product doesn't fit.
  float Hybrid_InternalAppliedLoad_Pressure(Faces face = Faces(-1)) const;
  float Hybrid_InternalAppliedLoad_Suction(Faces face = Faces(-1)) const;
  /// Both loads as text.
  std::string Hybrid_InternalAppliedLoads(Faces face = Faces(-1)) const;

 private:
  friend class clsCurrentCase;
  static constexpr int FaceCount = 4;
  struct EnclosedRule;
  static const EnclosedRule GeneralCase;
  static const EnclosedRule NoPositiveInternalPressure;
  static const EnclosedRule WindNormalToPermeableFace;
  static const EnclosedRule WindNormalToImpermeableFace;
  static const EnclosedRule FourWallsEquallyPermeable;
  using FaceFlags = std::array<bool, FaceCount>;
  using FaceValues = std::array<float, FaceCount>;

  explicit clsInternalCoefficients(WithoutDefaults) {}
  void ApplyDefaults();
  void ReadFromSaveFile();
  void WriteToSaveFile();

  Faces Resolve(Faces face) const;
  int FaceIndex(Faces face) const;
  bool RuleStands(const EnclosedRule& rule) const;
  void WriteRule(const EnclosedRule& rule);
  void SetRule(const EnclosedRule& rule, bool present, bool value);
  void SetExclusiveRule(const EnclosedRule& rule, bool present, bool value);
  template <class ReadCpe>
  float SelectedZoneCpe(Faces face, ReadCpe readCpe) const;
  bool RatioStands(Faces face, const FaceFlags& flags, double ratio) const;
  void WriteRatio(Faces face, double ratio);
  void SetRatio(Faces face, FaceFlags& flags, double ratio, bool present, bool value);

  std::int16_t m_Face = 0;
  std::int16_t m_StructureType = 0;
  float m_DiagonalDimension_a = 0;
  float m_InternalVolume = 0;
  std::int16_t m_WindPressureType = 0;
  bool m_EnclosedBuilding_GeneralCase = false;
  bool m_EnclosedBuilding_NoPositiveInternalPressure = false;
  bool m_EnclosedBuilding_WindNormalToPermeableFace = false;
  bool m_EnclosedBuilding_WindNormalToImpermeableFace = false;
  bool m_EnclosedBuilding_FourWallsEquallyPermeable = false;
  std::int16_t m_DominantOpening_ZoneIndex = 0;
  std::array<std::int16_t, FaceCount> m_DominantOpening_SelectedZoneIndex{};
  FaceFlags m_DominantOpening_Ratio2{};
  FaceFlags m_DominantOpening_Ratio3{};
  FaceValues m_Cpi_Pressure{};
  FaceValues m_Cpi_Suction{};
};

}  // namespace orve
