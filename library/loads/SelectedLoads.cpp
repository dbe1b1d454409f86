// The load chosen for a member, and the three names of a zone: type, description and index.
#include <algorithm>
#include <array>
#include <iterator>

#include "common/LoadText.h"
#include "common/Narrow.h"
#include "core/KeepAlive.h"
#include "core/Marks.h"
#include "loads/clsOverallAppliedLoads.h"

namespace orve {
namespace {

// The description of each load type, by its value. The capital I of the zone stands under the type published
// as "i", and "Stepped wind load" isn't written as that type's published name.
// clang-format off
constexpr std::array<std::string_view, 27> Descriptions = {
    "Stepped wind load",                       //  0
    "Windward", "Leeward",                     //  1,  2
    "A (face 1)", "B (face 1)", "C (face 1)",  //  3 to  5
    "A (face 2)", "B (face 2)", "C (face 2)",  //  6 to  8
    "A (face 3)", "B (face 3)", "C (face 3)",  //  9 to 11
    "A (face 4)", "B (face 4)", "C (face 4)",  // 12 to 14
    "AU", "AL",                                // 15, 16
    "A", "B", "C", "D", "E",                   // 17 to 21
    "F", "G", "H", "I", "J",                   // 22 to 26
};
// clang-format on

// The pair of parapet zones that a load type stands for.
struct ParapetPair {
  SelectedLoadTypes Type;
  std::string_view PressureZone;
  std::string_view SuctionZone;
};
constexpr ParapetPair ParapetPairs[] = {
    {SelectedLoadTypes::A, "A (windward)", "A (leeward)"},
    {SelectedLoadTypes::B, "B (windward)", "B (leeward)"},
    {SelectedLoadTypes::C, "C (windward)", "C (leeward)"},
    {SelectedLoadTypes::D, "D (windward)", "D (leeward)"},
};

std::string LoadWithUnit(float load) {
  return JoinLoads(FormatSignedLoad(load), {});
}

}  // namespace

void clsOverallAppliedLoads::SelectedFace(Faces value) {
  StoreAndMarkDirty(m_SelectedFace, value);
}

SelectedLoadTypes clsOverallAppliedLoads::SelectedLoadType(BuildingAreas buildingArea, Faces face) const {
  const AreaFace entry = Entry(buildingArea, face);
  return static_cast<SelectedLoadTypes>(m_SelectedLoadType[entry.Area][entry.Face]);
}

void clsOverallAppliedLoads::SelectedLoadType(BuildingAreas buildingArea, Faces face,
                                              SelectedLoadTypes value) {
  const AreaFace entry = Entry(buildingArea, face);
  StoreAndMarkDirty(m_SelectedLoadType[entry.Area][entry.Face], ToInt16(value));
}

std::string clsOverallAppliedLoads::SelectedLoadValues(BuildingAreas buildingArea, Faces face) const {
  const KeepAlive keep(*this);
  const BuildingAreas area = Resolve(buildingArea);
  const Faces resolvedFace = Resolve(face);
  const SelectedLoadTypes type = SelectedLoadType(area, resolvedFace);
  if (type == SelectedLoadTypes::Stepped_Wind_Load) return SteppedLoadText(area, resolvedFace);
  if (area == BuildingAreas::baParapet) return SelectedParapetLoads(type, resolvedFace);
  const ZoneSearch zone = FindZoneOf(ZoneDescriptionFromSelectedLoadType(type), area, resolvedFace);
  if (!zone.Found) return {};
  return Hybrid_OverallAppliedLoads(area, resolvedFace, ToInt16(zone.Index));
}

std::string clsOverallAppliedLoads::SelectedParapetLoads(SelectedLoadTypes selectedLoadType,
                                                         Faces face) const {
  const KeepAlive keep(*this);
  const auto pair =
      std::find_if(std::begin(ParapetPairs), std::end(ParapetPairs),
                   [selectedLoadType](const ParapetPair& each) { return each.Type == selectedLoadType; });
  if (pair == std::end(ParapetPairs)) return {};
  constexpr auto area = BuildingAreas::baParapet;
  std::string pressure, suction;
  if (const ZoneSearch zone = FindZoneOf(pair->PressureZone, area, face); zone.Found)
    pressure = FormatSignedLoad(Hybrid_OverallAppliedLoad_Pressure(area, face, ToInt16(zone.Index)));
  if (const ZoneSearch zone = FindZoneOf(pair->SuctionZone, area, face); zone.Found)
    suction = FormatSignedLoad(Hybrid_OverallAppliedLoad_Suction(area, face, ToInt16(zone.Index)));
  return JoinLoads(pressure, suction);
}

std::string clsOverallAppliedLoads::SelectedLoadValues_External(BuildingAreas buildingArea,
                                                                Faces face) const {
  const BuildingAreas area = Resolve(buildingArea);
  const Faces resolvedFace = Resolve(face);
  if (SelectedLoadType(area, resolvedFace) != SelectedLoadTypes::Stepped_Wind_Load) return {};
  return LoadWithUnit(SteppedWind_Load_External(area, resolvedFace));
}

std::string clsOverallAppliedLoads::SelectedLoadValues_Internal(BuildingAreas buildingArea,
                                                                Faces face) const {
  const BuildingAreas area = Resolve(buildingArea);
  const Faces resolvedFace = Resolve(face);
  if (SelectedLoadType(area, resolvedFace) != SelectedLoadTypes::Stepped_Wind_Load) return {};
  return LoadWithUnit(SteppedWind_Load_Internal(area, resolvedFace));
}

std::string clsOverallAppliedLoads::SteppedLoadText(BuildingAreas area, Faces face) const {
  return LoadWithUnit(SteppedWind_Load(area, face));
}

bool clsOverallAppliedLoads::ContinuousSteppedWind(BuildingAreas buildingArea, Faces face) const {
  const BuildingAreas area = Resolve(buildingArea);
  if (SelectedLoadType(area, Resolve(face)) != SelectedLoadTypes::Stepped_Wind_Load) return false;
  if (area != BuildingAreas::baRoof) return false;
  const ParentTypes parent = RequireCurrentCase().Parent_Type();
  return parent == ParentTypes::Purlin_Continuous_Single || parent == ParentTypes::Purlin_Continuous_Double;
}

ZoneSearch clsOverallAppliedLoads::FindZoneOf(std::string_view description, BuildingAreas area,
                                              Faces face) const {
  const KeepAlive keep(*this);
  const std::int16_t to = ZoneIndexTo(area, face);
  const std::int16_t from = ZoneIndexFrom(area, face);
  return FindZone(from, to, description,
                  [&](std::int16_t zone) { return Hybrid_ZoneDescription(area, face, zone); });
}

std::int16_t clsOverallAppliedLoads::ZoneIndexFromSelectedLoadType(SelectedLoadTypes selectedLoadType,
                                                                   BuildingAreas buildingArea,
                                                                   Faces face) const {
  return ZoneIndexFromZoneDescription(ZoneDescriptionFromSelectedLoadType(selectedLoadType), buildingArea,
                                      face);
}

std::int16_t clsOverallAppliedLoads::SelectedLoadTypeFromZoneIndex(std::int16_t zoneIndex,
                                                                   BuildingAreas buildingArea,
                                                                   Faces face) const {
  return SelectedLoadTypeFromZoneDescription(Hybrid_ZoneDescription(buildingArea, face, zoneIndex));
}

std::int16_t clsOverallAppliedLoads::SelectedLoadTypeFromZoneDescription(
    const std::string& zoneDescription) const {
  const auto found = std::find(Descriptions.begin(), Descriptions.end(), zoneDescription);
  return found == Descriptions.end() ? std::int16_t{0} : ToInt16(found - Descriptions.begin());
}

std::string clsOverallAppliedLoads::ZoneDescriptionFromSelectedLoadType(
    SelectedLoadTypes selectedLoadType) const {
  const auto value = static_cast<std::int32_t>(selectedLoadType);
  if (value < 0 || value >= static_cast<std::int32_t>(Descriptions.size())) return {};
  return std::string(Descriptions[static_cast<std::size_t>(value)]);
}

std::int16_t clsOverallAppliedLoads::ZoneIndexFromZoneDescription(const std::string& zoneDescription,
                                                                  BuildingAreas buildingArea,
                                                                  Faces face) const {
  return ToInt16(FindZoneOf(zoneDescription, Resolve(buildingArea), Resolve(face)).Index);
}

}  // namespace orve
