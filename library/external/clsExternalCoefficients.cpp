// Stored properties, zone queries and the two members that need no zone table.
#include "external/clsExternalCoefficients.h"

#include "common/Narrow.h"
#include "common/NumberText.h"
#include "core/CaseObjects.h"
#include "core/KeepAlive.h"
#include "core/Marks.h"
#include "external/WindFace.h"
#include "geometry/clsBuildingDimensions.h"

namespace orve {

clsExternalCoefficients::clsExternalCoefficients() {
  ApplyDefaults();
}

void clsExternalCoefficients::ApplyDefaults() {
  using E = clsExternalCoefficients;
  OwedLets<E> let(*this);
  let(&E::ManualResults, false);
  let(&E::Bay, Bays::End_Bay);
  let.Finish();
}

void clsExternalCoefficients::BuildingArea(BuildingAreas value) {
  m_BuildingArea = ToInt16(value);
}
void clsExternalCoefficients::Face(Faces value) {
  m_Face = ToInt16(value);
}
void clsExternalCoefficients::ManualResults(bool value) {
  StoreAndMarkDirty(m_ManualResults, value);
}

void clsExternalCoefficients::Bay(Bays value) {
  StoreAndMarkDirty(m_Bay, ToInt16(value), [] { RequireCurrentCase().BreCp_Dirty(true); });
}

BuildingAreas clsExternalCoefficients::Resolve(BuildingAreas buildingArea) const {
  return buildingArea == BuildingAreas(-1) ? BuildingArea() : buildingArea;
}

Faces clsExternalCoefficients::Resolve(Faces face) const {
  return face == Faces(-1) ? Face() : face;
}

std::int16_t clsExternalCoefficients::Resolve(std::int16_t zoneIndex) const {
  return zoneIndex == -1 ? ZoneIndex() : zoneIndex;
}

clsExternalCoefficients::ZoneAddress clsExternalCoefficients::Resolve(BuildingAreas buildingArea, Faces face,
                                                                      std::int16_t zoneIndex) const {
  return {Resolve(buildingArea), Resolve(face), Resolve(zoneIndex)};
}

bool clsExternalCoefficients::GableFace(Faces face) const {
  const auto building = CaseBuildingDimensions();
  const GableFaces gables = building->Wall_GableFaces();
  switch (Resolve(face)) {
    case Faces::Face_1:
      return gables == GableFaces::Faces_1_and_3;
    case Faces::Face_3:
      return gables == GableFaces::Faces_1_and_3 || building->RoofType() == RoofTypes::Mono_pitched_roof;
    case Faces::Face_2:
    case Faces::Face_4:
      return gables == GableFaces::Faces_2_and_4;
    default:
      return false;
  }
}

float clsExternalCoefficients::Hybrid_AngleNormalToFace(Faces face) const {
  const auto building = CaseBuildingDimensions();
  if (building->OrientationUnknown()) return -1;
  constexpr int offsets[] = {270, 0, 90, 180};
  const auto index = static_cast<std::int32_t>(Resolve(face));
  if (index < 0 || index >= FaceCount) return 0;
  return static_cast<float>(ToInt16(building->Orientation() + offsets[index]) % 360);
}

std::int16_t clsExternalCoefficients::ZoneIndexFrom(BuildingAreas, Faces) {
  return 0;
}

std::int16_t clsExternalCoefficients::ZoneIndexTo(BuildingAreas buildingArea, Faces face,
                                                  ResultsScreens resultsScreen) {
  const KeepAlive keep(*this);
  BuildZoneTable(buildingArea, face, resultsScreen);
  return static_cast<std::int16_t>(static_cast<int>(m_ZoneTable.size()) - 1);
}

const ZoneRecord& clsExternalCoefficients::ZoneAt(std::int16_t zoneIndex) const {
  const auto count = static_cast<std::int32_t>(m_ZoneTable.size());
  if (zoneIndex < 0 || zoneIndex >= count) RaiseSubscript("zone index", zoneIndex, 0, count - 1);
  return m_ZoneTable[zoneIndex];
}

std::int16_t clsExternalCoefficients::Hybrid_WindFromFace(BuildingAreas buildingArea, Faces face,
                                                          std::int16_t zoneIndex) {
  const KeepAlive keep(*this);
  const auto [area, onFace, zone] = Resolve(buildingArea, face, zoneIndex);
  switch (area) {
    case BuildingAreas::baRoof:
      return ToInt16(onFace);
    case BuildingAreas::baWalls:
      return WindFaceOfWallZone(Hybrid_ZoneDescription(area, onFace, zone), onFace);
    case BuildingAreas::baParapet:
      return WindFaceOfParapetZone(Hybrid_ZoneDescription(area, onFace, zone), onFace);
    default:
      return 0;
  }
}

std::string clsExternalCoefficients::Hybrid_ZoneDescription(BuildingAreas buildingArea, Faces face,
                                                            std::int16_t zoneIndex) {
  const KeepAlive keep(*this);
  BuildZoneTable(buildingArea, face, ResultsScreens(-1));
  return ZoneAt(Resolve(zoneIndex)).Description;
}

ZoneDimensionsXY clsExternalCoefficients::Hybrid_ZoneDimensionsXY(BuildingAreas buildingArea, Faces face,
                                                                  std::int16_t zoneIndex,
                                                                  ResultsScreens resultsScreen) {
  const KeepAlive keep(*this);
  BuildZoneTable(buildingArea, face, resultsScreen);
  const ZoneExtent& extent = ZoneAt(Resolve(zoneIndex)).Extent;
  if (extent.NoDimensions) return {};
  return {extent.DimensionX, extent.DimensionY};
}

float clsExternalCoefficients::Hybrid_ZoneDimensionX(BuildingAreas buildingArea, Faces face,
                                                     std::int16_t zoneIndex, ResultsScreens resultsScreen) {
  return Hybrid_ZoneDimensionsXY(buildingArea, face, zoneIndex, resultsScreen).DimensionX;
}

float clsExternalCoefficients::Hybrid_ZoneDimensionY(BuildingAreas buildingArea, Faces face,
                                                     std::int16_t zoneIndex, ResultsScreens resultsScreen) {
  return Hybrid_ZoneDimensionsXY(buildingArea, face, zoneIndex, resultsScreen).DimensionY;
}

std::string clsExternalCoefficients::Hybrid_ZoneDimensions(BuildingAreas buildingArea, Faces face,
                                                           std::int16_t zoneIndex,
                                                           ResultsScreens resultsScreen) {
  const KeepAlive keep(*this);
  const auto [area, onFace, zone] = Resolve(buildingArea, face, zoneIndex);
  BuildZoneTable(area, onFace, resultsScreen);
  const ZoneExtent& extent = ZoneAt(zone).Extent;
  if (extent.NoDimensions) return {};
  constexpr int places = 3;
  const std::string first = FormatFixed(extent.DimensionX, places) + " m";
  switch (area) {
    case BuildingAreas::baRoof:
      return extent.DimensionY == 0 ? first : first + ", " + FormatFixed(extent.DimensionY, places) + " m";
    case BuildingAreas::baWalls:
    case BuildingAreas::baParapet:
      return first;
    default:
      return {};
  }
}

}  // namespace orve
