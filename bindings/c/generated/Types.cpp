// Written by orve_generate from the description of the object model; don't edit it by hand.
#include "Types.h"

#include <cstdlib>

using namespace orve::c;

const char* orve_BuildingAreas_text(orve_BuildingAreas value) { return StaticText(PublishedText(static_cast<orve::BuildingAreas>(value))); }
const char* orve_Faces_text(orve_Faces value) { return StaticText(PublishedText(static_cast<orve::Faces>(value))); }
const char* orve_ResultsScreens_text(orve_ResultsScreens value) { return StaticText(PublishedText(static_cast<orve::ResultsScreens>(value))); }
const char* orve_ParentTypes_text(orve_ParentTypes value) { return StaticText(PublishedText(static_cast<orve::ParentTypes>(value))); }
const char* orve_WindSectors_text(orve_WindSectors value) { return StaticText(PublishedText(static_cast<orve::WindSectors>(value))); }
const char* orve_RoofTypes_text(orve_RoofTypes value) { return StaticText(PublishedText(static_cast<orve::RoofTypes>(value))); }
const char* orve_FrameTypes_text(orve_FrameTypes value) { return StaticText(PublishedText(static_cast<orve::FrameTypes>(value))); }
const char* orve_GableFaces_text(orve_GableFaces value) { return StaticText(PublishedText(static_cast<orve::GableFaces>(value))); }
const char* orve_LifeTime_text(orve_LifeTime value) { return StaticText(PublishedText(static_cast<orve::LifeTime>(value))); }
const char* orve_Durations_text(orve_Durations value) { return StaticText(PublishedText(static_cast<orve::Durations>(value))); }
const char* orve_Methods_text(orve_Methods value) { return StaticText(PublishedText(static_cast<orve::Methods>(value))); }
const char* orve_SaBasedOnTypes_text(orve_SaBasedOnTypes value) { return StaticText(PublishedText(static_cast<orve::SaBasedOnTypes>(value))); }
const char* orve_Months_text(orve_Months value) { return StaticText(PublishedText(static_cast<orve::Months>(value))); }
const char* orve_WindAreas_text(orve_WindAreas value) { return StaticText(PublishedText(static_cast<orve::WindAreas>(value))); }
const char* orve_Bays_text(orve_Bays value) { return StaticText(PublishedText(static_cast<orve::Bays>(value))); }
const char* orve_WallZones_text(orve_WallZones value) { return StaticText(PublishedText(static_cast<orve::WallZones>(value))); }
const char* orve_StructureTypes_text(orve_StructureTypes value) { return StaticText(PublishedText(static_cast<orve::StructureTypes>(value))); }
const char* orve_WindPressureTypes_text(orve_WindPressureTypes value) { return StaticText(PublishedText(static_cast<orve::WindPressureTypes>(value))); }
const char* orve_SelectedLoadTypes_text(orve_SelectedLoadTypes value) { return StaticText(PublishedText(static_cast<orve::SelectedLoadTypes>(value))); }

void orve_CantileverZones_free(orve_CantileverZones* record) {
  if (record == nullptr) return;
  FreeText(record->Cantilever_ZoneDescription);
  FreeText(record->Cantilever_ZoneDimensions);
  FreeText(record->Cantilever_ExternalAppliedLoads);
  FreeText(record->Cantilever_InternalAppliedLoads);
  FreeText(record->Cantilever_OverallAppliedLoads);
}

void orve_CantileverZones_free_rows(orve_CantileverZones* rows, size_t count) {
  if (rows == nullptr) return;
  for (size_t i = 0; i < count; ++i) orve_CantileverZones_free(rows + i);
  std::free(rows);
}

void orve_CantileverResults_free(orve_CantileverResults* record) {
  if (record == nullptr) return;
  FreeText(record->Cantilever_Face);
  FreeText(record->Cantilever_Zone);
  FreeText(record->Cantilever_WindPressure);
  FreeText(record->Cantilever_WindUplift);
}

void orve_CantileverResults_free_rows(orve_CantileverResults* rows, size_t count) {
  if (rows == nullptr) return;
  for (size_t i = 0; i < count; ++i) orve_CantileverResults_free(rows + i);
  std::free(rows);
}

void orve_CantileverZone_free(orve_CantileverZone* record) {
  if (record == nullptr) return;
  FreeText(record->Zone_Dimensions);
  FreeText(record->Zone_ExternalPressures);
}

void orve_CantileverZone_free_rows(orve_CantileverZone* rows, size_t count) {
  if (rows == nullptr) return;
  for (size_t i = 0; i < count; ++i) orve_CantileverZone_free(rows + i);
  std::free(rows);
}

void orve_ExternalPressure_free(orve_ExternalPressure* record) {
  if (record == nullptr) return;
  FreeText(record->Roof1_A_Face);
  FreeText(record->Roof1_B_Face);
  FreeText(record->Roof2_A_Face);
  FreeText(record->Roof2_B_Face);
  FreeText(record->Roof2_C_Face);
  orve_CantileverZone_free(&record->Wall2_Windward);
  orve_CantileverZone_free(&record->Wall2_Leeward);
  orve_CantileverZone_free(&record->Wall2_A_Face_1);
  orve_CantileverZone_free(&record->Wall2_B_Face_1);
  orve_CantileverZone_free(&record->Wall2_C_Face_1);
  orve_CantileverZone_free(&record->Wall2_A_Face_3);
  orve_CantileverZone_free(&record->Wall2_B_Face_3);
  orve_CantileverZone_free(&record->Wall2_C_Face_3);
  orve_CantileverZone_free(&record->Wall4_Windward);
  orve_CantileverZone_free(&record->Wall4_Leeward);
  orve_CantileverZone_free(&record->Wall4_A_Face_1);
  orve_CantileverZone_free(&record->Wall4_B_Face_1);
  orve_CantileverZone_free(&record->Wall4_C_Face_1);
  orve_CantileverZone_free(&record->Wall4_A_Face_3);
  orve_CantileverZone_free(&record->Wall4_B_Face_3);
  orve_CantileverZone_free(&record->Wall4_C_Face_3);
}

void orve_ExternalPressure_free_rows(orve_ExternalPressure* rows, size_t count) {
  if (rows == nullptr) return;
  for (size_t i = 0; i < count; ++i) orve_ExternalPressure_free(rows + i);
  std::free(rows);
}

namespace orve::c {

void Fill(orve_ZoneDimensionsXY& to, const orve::ZoneDimensionsXY& from) {
  to.DimensionX = from.DimensionX;
  to.DimensionY = from.DimensionY;
}

orve::ZoneDimensionsXY FromC(const orve_ZoneDimensionsXY& from) {
  orve::ZoneDimensionsXY to;
  to.DimensionX = from.DimensionX;
  to.DimensionY = from.DimensionY;
  return to;
}

void Fill(orve_CantileverZones& to, const orve::CantileverZones& from) {
  to.Cantilever_ZoneDescription = NewText(from.Cantilever_ZoneDescription);
  to.Cantilever_ZoneDimensions = NewText(from.Cantilever_ZoneDimensions);
  to.Cantilever_ExternalAppliedLoads = NewText(from.Cantilever_ExternalAppliedLoads);
  to.Cantilever_InternalAppliedLoads = NewText(from.Cantilever_InternalAppliedLoads);
  to.Cantilever_OverallAppliedLoads = NewText(from.Cantilever_OverallAppliedLoads);
}

orve::CantileverZones FromC(const orve_CantileverZones& from) {
  orve::CantileverZones to;
  to.Cantilever_ZoneDescription = TextOrEmpty(from.Cantilever_ZoneDescription);
  to.Cantilever_ZoneDimensions = TextOrEmpty(from.Cantilever_ZoneDimensions);
  to.Cantilever_ExternalAppliedLoads = TextOrEmpty(from.Cantilever_ExternalAppliedLoads);
  to.Cantilever_InternalAppliedLoads = TextOrEmpty(from.Cantilever_InternalAppliedLoads);
  to.Cantilever_OverallAppliedLoads = TextOrEmpty(from.Cantilever_OverallAppliedLoads);
  return to;
}

void Fill(orve_CantileverResults& to, const orve::CantileverResults& from) {
  to.Cantilever_Face = NewText(from.Cantilever_Face);
  to.Cantilever_Zone = NewText(from.Cantilever_Zone);
  to.Cantilever_WindPressure = NewText(from.Cantilever_WindPressure);
  to.Cantilever_WindUplift = NewText(from.Cantilever_WindUplift);
}

orve::CantileverResults FromC(const orve_CantileverResults& from) {
  orve::CantileverResults to;
  to.Cantilever_Face = TextOrEmpty(from.Cantilever_Face);
  to.Cantilever_Zone = TextOrEmpty(from.Cantilever_Zone);
  to.Cantilever_WindPressure = TextOrEmpty(from.Cantilever_WindPressure);
  to.Cantilever_WindUplift = TextOrEmpty(from.Cantilever_WindUplift);
  return to;
}

void Fill(orve_CantileverZone& to, const orve::CantileverZone& from) {
  to.Zone_Dimensions = NewText(from.Zone_Dimensions);
  to.Zone_ExternalPressures = NewText(from.Zone_ExternalPressures);
}

orve::CantileverZone FromC(const orve_CantileverZone& from) {
  orve::CantileverZone to;
  to.Zone_Dimensions = TextOrEmpty(from.Zone_Dimensions);
  to.Zone_ExternalPressures = TextOrEmpty(from.Zone_ExternalPressures);
  return to;
}

void Fill(orve_ExternalPressure& to, const orve::ExternalPressure& from) {
  to.Roof1_A_Face = NewText(from.Roof1_A_Face);
  to.Roof1_B_Face = NewText(from.Roof1_B_Face);
  to.Roof2_A_Face = NewText(from.Roof2_A_Face);
  to.Roof2_B_Face = NewText(from.Roof2_B_Face);
  to.Roof2_C_Face = NewText(from.Roof2_C_Face);
  Fill(to.Wall2_Windward, from.Wall2_Windward);
  Fill(to.Wall2_Leeward, from.Wall2_Leeward);
  Fill(to.Wall2_A_Face_1, from.Wall2_A_Face_1);
  Fill(to.Wall2_B_Face_1, from.Wall2_B_Face_1);
  Fill(to.Wall2_C_Face_1, from.Wall2_C_Face_1);
  Fill(to.Wall2_A_Face_3, from.Wall2_A_Face_3);
  Fill(to.Wall2_B_Face_3, from.Wall2_B_Face_3);
  Fill(to.Wall2_C_Face_3, from.Wall2_C_Face_3);
  Fill(to.Wall4_Windward, from.Wall4_Windward);
  Fill(to.Wall4_Leeward, from.Wall4_Leeward);
  Fill(to.Wall4_A_Face_1, from.Wall4_A_Face_1);
  Fill(to.Wall4_B_Face_1, from.Wall4_B_Face_1);
  Fill(to.Wall4_C_Face_1, from.Wall4_C_Face_1);
  Fill(to.Wall4_A_Face_3, from.Wall4_A_Face_3);
  Fill(to.Wall4_B_Face_3, from.Wall4_B_Face_3);
  Fill(to.Wall4_C_Face_3, from.Wall4_C_Face_3);
}

orve::ExternalPressure FromC(const orve_ExternalPressure& from) {
  orve::ExternalPressure to;
  to.Roof1_A_Face = TextOrEmpty(from.Roof1_A_Face);
  to.Roof1_B_Face = TextOrEmpty(from.Roof1_B_Face);
  to.Roof2_A_Face = TextOrEmpty(from.Roof2_A_Face);
  to.Roof2_B_Face = TextOrEmpty(from.Roof2_B_Face);
  to.Roof2_C_Face = TextOrEmpty(from.Roof2_C_Face);
  to.Wall2_Windward = FromC(from.Wall2_Windward);
  to.Wall2_Leeward = FromC(from.Wall2_Leeward);
  to.Wall2_A_Face_1 = FromC(from.Wall2_A_Face_1);
  to.Wall2_B_Face_1 = FromC(from.Wall2_B_Face_1);
  to.Wall2_C_Face_1 = FromC(from.Wall2_C_Face_1);
  to.Wall2_A_Face_3 = FromC(from.Wall2_A_Face_3);
  to.Wall2_B_Face_3 = FromC(from.Wall2_B_Face_3);
  to.Wall2_C_Face_3 = FromC(from.Wall2_C_Face_3);
  to.Wall4_Windward = FromC(from.Wall4_Windward);
  to.Wall4_Leeward = FromC(from.Wall4_Leeward);
  to.Wall4_A_Face_1 = FromC(from.Wall4_A_Face_1);
  to.Wall4_B_Face_1 = FromC(from.Wall4_B_Face_1);
  to.Wall4_C_Face_1 = FromC(from.Wall4_C_Face_1);
  to.Wall4_A_Face_3 = FromC(from.Wall4_A_Face_3);
  to.Wall4_B_Face_3 = FromC(from.Wall4_B_Face_3);
  to.Wall4_C_Face_3 = FromC(from.Wall4_C_Face_3);
  return to;
}

}  // namespace orve::c
