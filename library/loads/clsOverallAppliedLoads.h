// Overall loads by zone, selected, stepped and bay loads, and cantilevers.
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <memory>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "core/Enumerations.h"
#include "core/Records.h"
#include "core/WithoutDefaults.h"
#include "external/ZoneSearch.h"

namespace orve {

struct BayLoadCase;

/// Turns coefficients into the loads that a design uses. A load is a surface pressure in kN/m²: positive
/// pushes on the surface, negative is suction. An argument of exactly -1 means the object's own property.
/// Nothing is cached; errors of the objects asked pass to the caller unchanged.
class clsOverallAppliedLoads : public std::enable_shared_from_this<clsOverallAppliedLoads> {
 public:
  clsOverallAppliedLoads();

  /// Copies of the cantilever zone table and of the result table; empty if there is none.
  std::vector<CantileverZones> GetCantileverZones() const { return m_CantileverZones; }
  std::vector<CantileverResults> GetCantileverResults() const { return m_CantileverResults; }

  /// Selections, plain storage. Errors: 6 outside 16 bits.
  BuildingAreas BuildingArea() const { return static_cast<BuildingAreas>(m_BuildingArea); }
  void BuildingArea(BuildingAreas value);
  Faces Face() const { return static_cast<Faces>(m_Face); }
  void Face(Faces value);
  std::int16_t ZoneIndex() const { return m_ZoneIndex; }
  void ZoneIndex(std::int16_t value) { m_ZoneIndex = value; }

  /// First and last zone of a face on the screen of the overall applied loads; the last is -1 if there are
  /// none.
  std::int16_t ZoneIndexFrom(BuildingAreas buildingArea = BuildingAreas(-1), Faces face = Faces(-1)) const;
  std::int16_t ZoneIndexTo(BuildingAreas buildingArea = BuildingAreas(-1), Faces face = Faces(-1)) const;
  /// The zone's name, lengths, external loads and internal loads as texts. Parapets have no internal loads.
  std::string Hybrid_ZoneDescription(BuildingAreas buildingArea = BuildingAreas(-1), Faces face = Faces(-1),
                                     std::int16_t zoneIndex = -1) const;
  std::string Hybrid_ZoneDimensions(BuildingAreas buildingArea = BuildingAreas(-1), Faces face = Faces(-1),
                                    std::int16_t zoneIndex = -1) const;
  std::string Hybrid_ExternalAppliedLoads(BuildingAreas buildingArea = BuildingAreas(-1),
                                          Faces face = Faces(-1), std::int16_t zoneIndex = -1) const;
  std::string Hybrid_InternalAppliedLoads(BuildingAreas buildingArea = BuildingAreas(-1),
                                          Faces face = Faces(-1), std::int16_t zoneIndex = -1) const;
  /// Greatest positive and most negative net load over the combinations of external and internal load; 0
  /// where none reaches that side.
  float Hybrid_OverallAppliedLoad_Pressure(BuildingAreas buildingArea = BuildingAreas(-1),
                                           Faces face = Faces(-1), std::int16_t zoneIndex = -1) const;
  float Hybrid_OverallAppliedLoad_Suction(BuildingAreas buildingArea = BuildingAreas(-1),
                                          Faces face = Faces(-1), std::int16_t zoneIndex = -1) const;
  /// Both as text, as in "+1.250, -0.500 kN/m²".
  std::string Hybrid_OverallAppliedLoads(BuildingAreas buildingArea = BuildingAreas(-1),
                                         Faces face = Faces(-1), std::int16_t zoneIndex = -1) const;

  /// The face that the host has chosen. A change sets `IsDirty`; not persisted.
  Faces SelectedFace() const { return m_SelectedFace; }
  void SelectedFace(Faces value);
  /// The load chosen for an area and face. Errors: 9 for an area outside 0 to 2 or a face outside 0 to 3, 6
  /// for a value outside 16 bits.
  SelectedLoadTypes SelectedLoadType(BuildingAreas buildingArea = BuildingAreas(-1),
                                     Faces face = Faces(-1)) const;
  void SelectedLoadType(BuildingAreas buildingArea, Faces face, SelectedLoadTypes value);
  /// The chosen load as text; the stepped load over the end bay and over the internal bay, empty for any
  /// other choice.
  std::string SelectedLoadValues(BuildingAreas buildingArea = BuildingAreas(-1),
                                 Faces face = Faces(-1)) const;
  std::string SelectedLoadValues_External(BuildingAreas buildingArea = BuildingAreas(-1),
                                          Faces face = Faces(-1)) const;
  std::string SelectedLoadValues_Internal(BuildingAreas buildingArea = BuildingAreas(-1),
                                          Faces face = Faces(-1)) const;

  // Steps of a stepped wind load by area and face: loads in kN/m², distances and span in one length unit. A
  // change sets `IsDirty`. Errors: 9 for an area outside 0 to 2 or a face outside 0 to 3.
  float SteppedWind_Load_1(BuildingAreas buildingArea = BuildingAreas(-1), Faces face = Faces(-1)) const;
  void SteppedWind_Load_1(BuildingAreas buildingArea, Faces face, float value);
  float SteppedWind_Load_2(BuildingAreas buildingArea = BuildingAreas(-1), Faces face = Faces(-1)) const;
  void SteppedWind_Load_2(BuildingAreas buildingArea, Faces face, float value);
  float SteppedWind_Load_3(BuildingAreas buildingArea = BuildingAreas(-1), Faces face = Faces(-1)) const;
  void SteppedWind_Load_3(BuildingAreas buildingArea, Faces face, float value);
  float SteppedWind_Distance_1(BuildingAreas buildingArea = BuildingAreas(-1), Faces face = Faces(-1)) const;
  void SteppedWind_Distance_1(BuildingAreas buildingArea, Faces face, float value);
  float SteppedWind_Distance_2(BuildingAreas buildingArea = BuildingAreas(-1), Faces face = Faces(-1)) const;
  void SteppedWind_Distance_2(BuildingAreas buildingArea, Faces face, float value);
  float SteppedWind_Distance_3(BuildingAreas buildingArea = BuildingAreas(-1), Faces face = Faces(-1)) const;
  void SteppedWind_Distance_3(BuildingAreas buildingArea, Faces face, float value);
  float SteppedWind_Span(BuildingAreas buildingArea = BuildingAreas(-1), Faces face = Faces(-1)) const;
  void SteppedWind_Span(BuildingAreas buildingArea, Faces face, float value);
  /// Average of the stepped load over the whole span, over the end bay (first half) and over the internal bay
  /// (second half), kN/m²; 0 for a span of 0.
  float SteppedWind_Load(BuildingAreas buildingArea = BuildingAreas(-1), Faces face = Faces(-1)) const;
  float SteppedWind_Load_External(BuildingAreas buildingArea = BuildingAreas(-1),
                                  Faces face = Faces(-1)) const;
  float SteppedWind_Load_Internal(BuildingAreas buildingArea = BuildingAreas(-1),
                                  Faces face = Faces(-1)) const;

  /// First and last row of the zone table after the last `CantileverValues` that found zones. Plain storage.
  std::int16_t CantileverZoneIndexFrom() const { return m_CantileverZoneIndexFrom; }
  void CantileverZoneIndexFrom(std::int16_t value) { m_CantileverZoneIndexFrom = value; }
  std::int16_t CantileverZoneIndexTo() const { return m_CantileverZoneIndexTo; }
  void CantileverZoneIndexTo(std::int16_t value) { m_CantileverZoneIndexTo = value; }
  /// Fields of one row of the zone table. Errors: 9 for a row that isn't there.
  std::string CantileverZoneDescription(std::int16_t cantileverZoneIndex) const;
  std::string CantileverZoneDimensions(std::int16_t cantileverZoneIndex) const;
  std::string Cantilever_ExternalAppliedLoads(std::int16_t cantileverZoneIndex) const;
  std::string Cantilever_InternalAppliedLoads(std::int16_t cantileverZoneIndex) const;
  std::string Cantilever_OverallAppliedLoads(std::int16_t cantileverZoneIndex) const;

  /// Average of a step function (W1 over Z1, W2 over Z2, then W3) over the first bay and over the second bay
  /// of a continuous member. Errors: 11 for a bay length of 0 where it divides, 6 if the result doesn't fit.
  float ExternalBayLoad(float span_L1, float span_L2, float span_L3, float windLoad_W1, float windLoad_W2,
                        float windLoad_W3, float step_Z1, float step_Z2) const;
  float InternalBayLoad(float span_L1, float span_L2, float span_L3, float windLoad_W1, float windLoad_W2,
                        float windLoad_W3, float step_Z1, float step_Z2) const;

  /// Finds the cantilever zones of a wind face and their loads; True if there are any. `results` True adds
  /// them to the result table. Errors: 5 for a zone without an external load, 9 without a result table, 13
  /// for texts of the wall pressures that don't convert.
  bool CantileverValues(BuildingAreas buildingArea = BuildingAreas(-1), Faces face = Faces(-1),
                        bool results = false);
  /// The chosen load of an area and face in the form of an overall cantilever text.
  std::string SelectedCantileverLoadValues(BuildingAreas buildingArea = BuildingAreas(-1),
                                           Faces face = Faces(-1));
  /// Makes the result table one blank row.
  void ResetCantileverResults();
  /// Drops the blank last row of the result table. Errors: 9 if there is no table.
  void TrimCantileverResults();
  /// True if unequal cantilevers lie across the wind on this roof face, so that zone widths leave them out.
  bool CantileverZoneWidthWarning(BuildingAreas buildingArea = BuildingAreas(-1),
                                  Faces face = Faces(-1)) const;

  /// Whether the end-bay and internal-bay loads are the ones that apply.
  bool ContinuousSteppedWind(BuildingAreas buildingArea = BuildingAreas(-1), Faces face = Faces(-1)) const;

  // Conversions between the three names of a zone. A search that finds nothing gives `ZoneIndexTo` + 1; a
  // description or type that isn't in the table gives 0 or the empty text.
  std::int16_t ZoneIndexFromSelectedLoadType(SelectedLoadTypes selectedLoadType,
                                             BuildingAreas buildingArea = BuildingAreas(-1),
                                             Faces face = Faces(-1)) const;
  std::int16_t SelectedLoadTypeFromZoneIndex(std::int16_t zoneIndex,
                                             BuildingAreas buildingArea = BuildingAreas(-1),
                                             Faces face = Faces(-1)) const;
  std::int16_t SelectedLoadTypeFromZoneDescription(const std::string& zoneDescription) const;
  std::string ZoneDescriptionFromSelectedLoadType(SelectedLoadTypes selectedLoadType) const;
  std::int16_t ZoneIndexFromZoneDescription(const std::string& zoneDescription,
                                            BuildingAreas buildingArea = BuildingAreas(-1),
                                            Faces face = Faces(-1)) const;

 private:
  friend class clsCurrentCase;
  static constexpr int AreaCount = 3;
  static constexpr int FaceCount = 4;
  template <class Value>
  using AreaFaceTable = std::array<std::array<Value, FaceCount>, AreaCount>;

  explicit clsOverallAppliedLoads(WithoutDefaults) {}
  void ApplyDefaults();
  void ReadFromSaveFile();
  void WriteToSaveFile();

  BuildingAreas Resolve(BuildingAreas buildingArea) const;
  Faces Resolve(Faces face) const;
  std::int16_t Resolve(std::int16_t zoneIndex) const;

  // Position in the tables by area and face. Errors: 9 outside them.
  struct AreaFace {
    std::size_t Area;
    std::size_t Face;
  };
  AreaFace Entry(BuildingAreas buildingArea, Faces face) const;
  float SteppedValue(const AreaFaceTable<float>& table, BuildingAreas buildingArea, Faces face) const;
  void SteppedValue(AreaFaceTable<float>& table, BuildingAreas buildingArea, Faces face, float value);
  BayLoadCase SteppedBays(BuildingAreas buildingArea, Faces face) const;
  ZoneSearch FindZoneOf(std::string_view description, BuildingAreas area, Faces face) const;
  std::string SteppedLoadText(BuildingAreas area, Faces face) const;
  std::string SelectedParapetLoads(SelectedLoadTypes selectedLoadType, Faces face) const;

  const CantileverZones& CantileverRow(std::int16_t cantileverZoneIndex) const;
  CantileverZones& LastCantileverRow();
  void ListCantileverZones(Faces face, float width, bool results);
  void AppendCantileverResult(Faces face, const std::string& label, const std::string& overallLoads);

  std::int16_t m_BuildingArea = 0;
  std::int16_t m_Face = 0;
  std::int16_t m_ZoneIndex = 0;
  Faces m_SelectedFace = Faces::Face_1;
  AreaFaceTable<std::int16_t> m_SelectedLoadType{};
  AreaFaceTable<float> m_SteppedWind_Load_1{};
  AreaFaceTable<float> m_SteppedWind_Load_2{};
  AreaFaceTable<float> m_SteppedWind_Load_3{};
  AreaFaceTable<float> m_SteppedWind_Distance_1{};
  AreaFaceTable<float> m_SteppedWind_Distance_2{};
  AreaFaceTable<float> m_SteppedWind_Distance_3{};
  AreaFaceTable<float> m_SteppedWind_Span{};
  std::int16_t m_CantileverZoneIndexFrom = 0;
  std::int16_t m_CantileverZoneIndexTo = 0;
  std::vector<CantileverZones> m_CantileverZones;
  std::vector<CantileverResults> m_CantileverResults;
};

}  // namespace orve
