#include "core/Enumerations.h"

#include "Description.h"

namespace orve::automation {

namespace {

#define ORVE_ENUMERATOR(name)                                           \
  Enumerator {                                                          \
#name, static_cast < std::int32_t>(E::name), PublishedText(E::name) \
  }

std::vector<Enumerator> BuildingAreasMembers() {
  using E = BuildingAreas;
  return {ORVE_ENUMERATOR(baRoof), ORVE_ENUMERATOR(baWalls), ORVE_ENUMERATOR(baParapet)};
}

std::vector<Enumerator> FacesMembers() {
  using E = Faces;
  return {ORVE_ENUMERATOR(Face_1), ORVE_ENUMERATOR(Face_2), ORVE_ENUMERATOR(Face_3), ORVE_ENUMERATOR(Face_4)};
}

std::vector<Enumerator> ResultsScreensMembers() {
  using E = ResultsScreens;
  return {ORVE_ENUMERATOR(External_Coefficient), ORVE_ENUMERATOR(Overall_Applied_Loads)};
}

std::vector<Enumerator> ParentTypesMembers() {
  using E = ParentTypes;
  return {ORVE_ENUMERATOR(None),
          ORVE_ENUMERATOR(Purlin_Single),
          ORVE_ENUMERATOR(Purlin_Double),
          ORVE_ENUMERATOR(Siderail_Single),
          ORVE_ENUMERATOR(Siderail_Double),
          ORVE_ENUMERATOR(Purlin_Continuous_Single),
          ORVE_ENUMERATOR(Purlin_Continuous_Double),
          ORVE_ENUMERATOR(Eavesbeam_Design),
          ORVE_ENUMERATOR(Cantilever_Design_Single),
          ORVE_ENUMERATOR(Cantilever_Design_Double),
          ORVE_ENUMERATOR(ptParapetDesign)};
}

std::vector<Enumerator> WindSectorsMembers() {
  using E = WindSectors;
  return {ORVE_ENUMERATOR(Degrees_0),   ORVE_ENUMERATOR(Degrees_30),  ORVE_ENUMERATOR(Degrees_60),
          ORVE_ENUMERATOR(Degrees_90),  ORVE_ENUMERATOR(Degrees_120), ORVE_ENUMERATOR(Degrees_150),
          ORVE_ENUMERATOR(Degrees_180), ORVE_ENUMERATOR(Degrees_210), ORVE_ENUMERATOR(Degrees_240),
          ORVE_ENUMERATOR(Degrees_270), ORVE_ENUMERATOR(Degrees_300), ORVE_ENUMERATOR(Degrees_330)};
}

std::vector<Enumerator> RoofTypesMembers() {
  using E = RoofTypes;
  return {ORVE_ENUMERATOR(Flat_roof_with_sharp_eaves),
          ORVE_ENUMERATOR(Flat_roof_with_parapets),
          ORVE_ENUMERATOR(Flat_roof_with_curved_eaves),
          ORVE_ENUMERATOR(Flat_roof_with_mansard_eaves),
          ORVE_ENUMERATOR(Mono_pitched_roof),
          ORVE_ENUMERATOR(Duo_pitched_roof),
          ORVE_ENUMERATOR(Hipped_roof),
          ORVE_ENUMERATOR(Curved_roof)};
}

std::vector<Enumerator> FrameTypesMembers() {
  using E = FrameTypes;
  return {ORVE_ENUMERATOR(Frames_1), ORVE_ENUMERATOR(Frames_2), ORVE_ENUMERATOR(Frames_3_or_more)};
}

std::vector<Enumerator> GableFacesMembers() {
  using E = GableFaces;
  return {ORVE_ENUMERATOR(Faces_1_and_3), ORVE_ENUMERATOR(Faces_2_and_4)};
}

std::vector<Enumerator> LifeTimeMembers() {
  using E = LifeTime;
  return {ORVE_ENUMERATOR(Permanent), ORVE_ENUMERATOR(Temporary)};
}

std::vector<Enumerator> DurationsMembers() {
  using E = Durations;
  return {ORVE_ENUMERATOR(All_year), ORVE_ENUMERATOR(Winter),   ORVE_ENUMERATOR(Summer),
          ORVE_ENUMERATOR(Months_4), ORVE_ENUMERATOR(Months_2), ORVE_ENUMERATOR(Months_1)};
}

std::vector<Enumerator> MethodsMembers() {
  using E = Methods;
  return {ORVE_ENUMERATOR(Directional), ORVE_ENUMERATOR(Hybrid)};
}

std::vector<Enumerator> SaBasedOnTypesMembers() {
  using E = SaBasedOnTypes;
  return {ORVE_ENUMERATOR(Altitude), ORVE_ENUMERATOR(Topography)};
}

std::vector<Enumerator> MonthsMembers() {
  using E = Months;
  return {ORVE_ENUMERATOR(January), ORVE_ENUMERATOR(February), ORVE_ENUMERATOR(March),
          ORVE_ENUMERATOR(April),   ORVE_ENUMERATOR(May),      ORVE_ENUMERATOR(June),
          ORVE_ENUMERATOR(July),    ORVE_ENUMERATOR(August),   ORVE_ENUMERATOR(September),
          ORVE_ENUMERATOR(October), ORVE_ENUMERATOR(November), ORVE_ENUMERATOR(December)};
}

std::vector<Enumerator> WindAreasMembers() {
  using E = WindAreas;
  return {ORVE_ENUMERATOR(waRoof),     ORVE_ENUMERATOR(waSidewall),        ORVE_ENUMERATOR(waGable),
          ORVE_ENUMERATOR(waInternal), ORVE_ENUMERATOR(waSidewallParapet), ORVE_ENUMERATOR(waGableParapet)};
}

std::vector<Enumerator> BaysMembers() {
  using E = Bays;
  return {ORVE_ENUMERATOR(End_Bay), ORVE_ENUMERATOR(Second_Bay), ORVE_ENUMERATOR(All_Remaining_Bays)};
}

std::vector<Enumerator> WallZonesMembers() {
  using E = WallZones;
  return {ORVE_ENUMERATOR(Windward), ORVE_ENUMERATOR(Leeward),  ORVE_ENUMERATOR(A_face_1),
          ORVE_ENUMERATOR(B_face_1), ORVE_ENUMERATOR(C_face_1), ORVE_ENUMERATOR(A_face_2),
          ORVE_ENUMERATOR(B_face_2), ORVE_ENUMERATOR(C_face_2), ORVE_ENUMERATOR(A_face_3),
          ORVE_ENUMERATOR(B_face_3), ORVE_ENUMERATOR(C_face_3), ORVE_ENUMERATOR(A_face_4),
          ORVE_ENUMERATOR(B_face_4), ORVE_ENUMERATOR(C_face_4)};
}

std::vector<Enumerator> StructureTypesMembers() {
  using E = StructureTypes;
  return {ORVE_ENUMERATOR(Enclosed_building), ORVE_ENUMERATOR(Dominant_opening),
          ORVE_ENUMERATOR(Open_sided_building)};
}

std::vector<Enumerator> WindPressureTypesMembers() {
  using E = WindPressureTypes;
  return {ORVE_ENUMERATOR(wptSidewall), ORVE_ENUMERATOR(wptGable), ORVE_ENUMERATOR(wptRoof)};
}

std::vector<Enumerator> SelectedLoadTypesMembers() {
  using E = SelectedLoadTypes;
  return {ORVE_ENUMERATOR(Stepped_Wind_Load),
          ORVE_ENUMERATOR(Windward),
          ORVE_ENUMERATOR(Leeward),
          ORVE_ENUMERATOR(A_face_1),
          ORVE_ENUMERATOR(B_face_1),
          ORVE_ENUMERATOR(C_face_1),
          ORVE_ENUMERATOR(A_face_2),
          ORVE_ENUMERATOR(B_face_2),
          ORVE_ENUMERATOR(C_face_2),
          ORVE_ENUMERATOR(A_face_3),
          ORVE_ENUMERATOR(B_face_3),
          ORVE_ENUMERATOR(C_face_3),
          ORVE_ENUMERATOR(A_face_4),
          ORVE_ENUMERATOR(B_face_4),
          ORVE_ENUMERATOR(C_face_4),
          ORVE_ENUMERATOR(AU),
          ORVE_ENUMERATOR(AL),
          ORVE_ENUMERATOR(A),
          ORVE_ENUMERATOR(B),
          ORVE_ENUMERATOR(C),
          ORVE_ENUMERATOR(D),
          ORVE_ENUMERATOR(E),
          ORVE_ENUMERATOR(F),
          ORVE_ENUMERATOR(G),
          ORVE_ENUMERATOR(H),
          ORVE_ENUMERATOR(i),
          ORVE_ENUMERATOR(J)};
}

}  // namespace

const std::vector<EnumerationDescription>& Enumerations() {
  static const std::vector<EnumerationDescription> enumerations{
      {"BuildingAreas", "The part of the building that a zone lies on", BuildingAreasMembers()},
      {"Faces", "A face of the building", FacesMembers()},
      {"ResultsScreens", "The screen on whose behalf zones are asked for", ResultsScreensMembers()},
      {"ParentTypes", "The kind of design in the host", ParentTypesMembers()},
      {"WindSectors", "The twelve wind sectors; a sector's angle is its value times 30 degrees (Table 3)",
       WindSectorsMembers()},
      {"RoofTypes", "Roof form", RoofTypesMembers()},
      {"FrameTypes", "How many frames the building has (Table 12)", FrameTypesMembers()},
      {"GableFaces", "Which pair of faces are the gables", GableFacesMembers()},
      {"LifeTime", "Permanent or temporary structure", LifeTimeMembers()},
      {"Durations", "The part of the year for which the building is exposed (annex D)", DurationsMembers()},
      {"Methods", "The calculation method", MethodsMembers()},
      {"SaBasedOnTypes", "What the altitude factor rests on (2.2.2.2)", SaBasedOnTypesMembers()},
      {"Months", "Months, counted from 0", MonthsMembers()},
      {"WindAreas", "The area of the building for which a dynamic pressure is worked out",
       WindAreasMembers()},
      {"Bays", "The bay of a multi-span roof (Table 12)", BaysMembers()},
      {"WallZones", "The wall zone selected for a dominant opening", WallZonesMembers()},
      {"StructureTypes", "Enclosed, with a dominant opening, or open sided (2.6)", StructureTypesMembers()},
      {"WindPressureTypes", "The wind area that the internal wind area follows", WindPressureTypesMembers()},
      {"SelectedLoadTypes", "The load type picked for a building area and face", SelectedLoadTypesMembers()},
  };
  return enumerations;
}

}  // namespace orve::automation
