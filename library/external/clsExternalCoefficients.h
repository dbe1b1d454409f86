// The zones of roof, walls and parapets, their sizes, external coefficients and external loads.
#pragma once

#include <array>
#include <cstdint>
#include <memory>
#include <string>
#include <vector>

#include "core/Enumerations.h"
#include "core/Records.h"
#include "core/WithoutDefaults.h"
#include "external/WorstCaseSearch.h"
#include "external/ZoneRecord.h"

namespace orve {

class BreCpX;

/// Answers for a building area, a face and a zone. `zoneIndex` is a position in the zone list of that area
/// and face, from 0; it means nothing for another area or face. An argument of exactly -1 means the object's
/// own property. Every read works from the present building; nothing is cached. Errors: 9 for a zone that
/// isn't there, 91 without a component, and those of the components as they come. Coefficients and Ca have no
/// unit, q and loads are in kN/m², lengths in metres.
class clsExternalCoefficients : public std::enable_shared_from_this<clsExternalCoefficients> {
 public:
  clsExternalCoefficients();

  /// Selections, plain storage. Errors: 6 outside 16 bits.
  BuildingAreas BuildingArea() const { return static_cast<BuildingAreas>(m_BuildingArea); }
  void BuildingArea(BuildingAreas value);
  Faces Face() const { return static_cast<Faces>(m_Face); }
  void Face(Faces value);
  std::int16_t ZoneIndex() const { return m_ZoneIndex; }
  void ZoneIndex(std::int16_t value) { m_ZoneIndex = value; }

  /// First zone of a face: always 0.
  std::int16_t ZoneIndexFrom(BuildingAreas buildingArea = BuildingAreas(-1), Faces face = Faces(-1));
  /// Last zone of a face; -1 if there are none. `resultsScreen` -1 means `External Coefficient`.
  std::int16_t ZoneIndexTo(BuildingAreas buildingArea = BuildingAreas(-1), Faces face = Faces(-1),
                           ResultsScreens resultsScreen = ResultsScreens(-1));

  /// Coefficients come from the hand-entered tables and not from the component.
  bool ManualResults() const { return m_ManualResults; }
  void ManualResults(bool value);
  /// Bay of a multi-span roof (Table 12). A change sets `IsDirty` and `BreCp_Dirty`. Errors: 6 outside 16
  /// bits.
  Bays Bay() const { return static_cast<Bays>(m_Bay); }
  void Bay(Bays value);

  /// Whether the face is a gable wall.
  bool GableFace(Faces face = Faces(-1)) const;
  /// The face whose normal wind gives the zone its coefficients, a `Faces` value.
  std::int16_t Hybrid_WindFromFace(BuildingAreas buildingArea = BuildingAreas(-1), Faces face = Faces(-1),
                                   std::int16_t zoneIndex = -1);
  /// Wind angle normal to the face, degrees; -1 if the orientation is unknown.
  float Hybrid_AngleNormalToFace(Faces face = Faces(-1)) const;

  /// q and Ca of the worst wind for the zone: of the greatest q Ca of the whole sectors within 45 degrees of
  /// the wind face's normal, or of all sectors if the orientation is unknown. An end of the window between
  /// two sectors takes their place if it is greater; if both ends are, the upper one stands, even where the
  /// lower one is the greater.
  float Hybrid_WorstCase_DynamicPressure_q(BuildingAreas buildingArea = BuildingAreas(-1),
                                           Faces face = Faces(-1), std::int16_t zoneIndex = -1);
  float Hybrid_WorstCase_SizeEffectFactor_Ca(BuildingAreas buildingArea = BuildingAreas(-1),
                                             Faces face = Faces(-1), std::int16_t zoneIndex = -1);
  /// The whole record of that search. Reads what the two members above read, for a reader who asks why.
  WorstCase Hybrid_WorstCaseSearch(BuildingAreas buildingArea = BuildingAreas(-1), Faces face = Faces(-1),
                                   std::int16_t zoneIndex = -1);

  /// The zone's name.
  std::string Hybrid_ZoneDescription(BuildingAreas buildingArea = BuildingAreas(-1), Faces face = Faces(-1),
                                     std::int16_t zoneIndex = -1);
  /// The zone's two lengths; 0 where it shows none. `resultsScreen` -1 means `External Coefficient`.
  ZoneDimensionsXY Hybrid_ZoneDimensionsXY(BuildingAreas buildingArea = BuildingAreas(-1),
                                           Faces face = Faces(-1), std::int16_t zoneIndex = -1,
                                           ResultsScreens resultsScreen = ResultsScreens(-1));
  float Hybrid_ZoneDimensionX(BuildingAreas buildingArea = BuildingAreas(-1), Faces face = Faces(-1),
                              std::int16_t zoneIndex = -1, ResultsScreens resultsScreen = ResultsScreens(-1));
  float Hybrid_ZoneDimensionY(BuildingAreas buildingArea = BuildingAreas(-1), Faces face = Faces(-1),
                              std::int16_t zoneIndex = -1, ResultsScreens resultsScreen = ResultsScreens(-1));
  /// The lengths as text, as in "12.500 m, 3.000 m".
  std::string Hybrid_ZoneDimensions(BuildingAreas buildingArea = BuildingAreas(-1), Faces face = Faces(-1),
                                    std::int16_t zoneIndex = -1,
                                    ResultsScreens resultsScreen = ResultsScreens(-1));

  /// External pressure coefficients, as magnitudes (leeward parapet zones keep the component's sign). A let
  /// stores into the hand-entered table while `ManualResults` is True (area 0 to 2, face 0 to 3, zone 0 to
  /// 27, else 9) and is dropped otherwise.
  float Hybrid_ExternalCoefficientFactor_Cpe_Pressure(BuildingAreas buildingArea = BuildingAreas(-1),
                                                      Faces face = Faces(-1), std::int16_t zoneIndex = -1);
  void Hybrid_ExternalCoefficientFactor_Cpe_Pressure(BuildingAreas buildingArea, Faces face,
                                                     std::int16_t zoneIndex, float value);
  float Hybrid_ExternalCoefficientFactor_Cpe_Suction(BuildingAreas buildingArea = BuildingAreas(-1),
                                                     Faces face = Faces(-1), std::int16_t zoneIndex = -1);
  void Hybrid_ExternalCoefficientFactor_Cpe_Suction(BuildingAreas buildingArea, Faces face,
                                                    std::int16_t zoneIndex, float value);
  /// External loads Ca q Cpe; the suction is a magnitude. Errors: 6 if the product doesn't fit.
  float Hybrid_ExternalAppliedLoad_Pressure(BuildingAreas buildingArea = BuildingAreas(-1),
                                            Faces face = Faces(-1), std::int16_t zoneIndex = -1);
  float Hybrid_ExternalAppliedLoad_Suction(BuildingAreas buildingArea = BuildingAreas(-1),
                                           Faces face = Faces(-1), std::int16_t zoneIndex = -1);
  /// Both loads as text, as in "+0.512, -0.300 kN/m²".
  std::string Hybrid_ExternalAppliedLoads(BuildingAreas buildingArea = BuildingAreas(-1),
                                          Faces face = Faces(-1), std::int16_t zoneIndex = -1);

 private:
  friend class clsCurrentCase;
  static constexpr int AreaCount = 3;
  static constexpr int FaceCount = 4;
  static constexpr int ManualZoneCount = 28;
  using ManualTable = std::array<std::array<std::array<float, ManualZoneCount>, FaceCount>, AreaCount>;
  struct ZoneAddress {
    BuildingAreas area;
    Faces face;
    std::int16_t zone;
  };

  explicit clsExternalCoefficients(WithoutDefaults) {}
  void ApplyDefaults();
  void ReadFromSaveFile();
  void WriteToSaveFile();

  BuildingAreas Resolve(BuildingAreas buildingArea) const;
  Faces Resolve(Faces face) const;
  std::int16_t Resolve(std::int16_t zoneIndex) const;
  ZoneAddress Resolve(BuildingAreas buildingArea, Faces face, std::int16_t zoneIndex) const;

  void BuildZoneTable(BuildingAreas buildingArea, Faces face, ResultsScreens resultsScreen);
  void BuildZoneTable(BreCpX& component, BuildingAreas buildingArea, Faces face,
                      ResultsScreens resultsScreen);
  void SendMethod(BreCpX& component);
  static void SetUpRoof(BreCpX& component);
  static void SetUpWalls(BreCpX& component);
  void SetUpParapet(BreCpX& component, Faces face);
  void ScanWalls(BreCpX& component, Faces face, bool warning);
  void ScanMonoPitchedRoof(BreCpX& component, Faces face, ResultsScreens resultsScreen, bool warning);
  void ScanParapet(BreCpX& component, bool warning);
  void ScanOtherRoof(BreCpX& component, Faces face, ResultsScreens resultsScreen, bool warning);
  void AppendFixedWallZone(BreCpX& component, double theta, const char* description);
  static ZoneRecord ReadZone(const BreCpX& component, std::int16_t componentZoneIndex);
  static void ReadBackDimensions(const BreCpX& component, ZoneRecord& zone);
  void AddComponentZone(BreCpX& component, std::int16_t componentZoneIndex, const char* suffix,
                        ResultsScreens resultsScreen, bool warning);
  void AddComponentZones(BreCpX& component, const char* suffix, ResultsScreens resultsScreen, bool warning);
  static bool CalculateZoneExtent(const BreCpX& component, ZoneExtent& extent, ResultsScreens resultsScreen,
                                  bool warning);
  const ZoneRecord& ZoneAt(std::int16_t zoneIndex) const;

  static float& ManualCpe(ManualTable& table, const ZoneAddress& zone);
  float ComponentCpe(const ZoneAddress& zone, bool suction);
  float ApplyBayFactor(float coefficient, const ZoneAddress& zone) const;
  WindAreas WindAreaOf(BuildingAreas buildingArea, Faces face) const;

  std::int16_t m_BuildingArea = 0;
  std::int16_t m_Face = 0;
  std::int16_t m_ZoneIndex = 0;
  bool m_ManualResults = false;
  std::int16_t m_Bay = 0;
  std::vector<ZoneRecord> m_ZoneTable;
  ManualTable m_ManualCpe_Pressure{};
  ManualTable m_ManualCpe_Suction{};
};

}  // namespace orve
