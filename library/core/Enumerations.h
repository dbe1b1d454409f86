// Every enumeration of the public interface, with the texts under which its members are published. The values
// are what case files store. A value outside an enumeration is never rejected by the type itself.
#pragma once

#include <cstdint>
#include <string_view>

namespace orve {

/// The part of the building that a zone lies on.
enum class BuildingAreas : std::int32_t {
  baRoof = 0,
  baWalls = 1,
  baParapet = 2,
};

/// A face of the building.
enum class Faces : std::int32_t {
  Face_1 = 0,
  Face_2 = 1,
  Face_3 = 2,
  Face_4 = 3,
};

/// The screen on whose behalf zones and zone dimensions are asked for.
enum class ResultsScreens : std::int32_t {
  External_Coefficient = 0,
  Overall_Applied_Loads = 1,
};

/// The kind of design in the host. The declared order isn't the order of the values.
enum class ParentTypes : std::int32_t {
  None = 0,
  Purlin_Single = 1,
  Purlin_Double = 2,
  Siderail_Single = 3,
  Siderail_Double = 4,
  Purlin_Continuous_Single = 5,
  Purlin_Continuous_Double = 6,
  Eavesbeam_Design = 7,
  Cantilever_Design_Single = 8,
  Cantilever_Design_Double = 10,
  ptParapetDesign = 9,
};

/// The twelve 30-degree wind sectors; a sector's angle in degrees is its value times 30 (Table 3).
enum class WindSectors : std::int32_t {
  Degrees_0 = 0,
  Degrees_30 = 1,
  Degrees_60 = 2,
  Degrees_90 = 3,
  Degrees_120 = 4,
  Degrees_150 = 5,
  Degrees_180 = 6,
  Degrees_210 = 7,
  Degrees_240 = 8,
  Degrees_270 = 9,
  Degrees_300 = 10,
  Degrees_330 = 11,
};

/// Roof form.
enum class RoofTypes : std::int32_t {
  Flat_roof_with_sharp_eaves = 0,
  Flat_roof_with_parapets = 1,
  Flat_roof_with_curved_eaves = 2,
  Flat_roof_with_mansard_eaves = 3,
  Mono_pitched_roof = 4,
  Duo_pitched_roof = 5,
  Hipped_roof = 6,
  Curved_roof = 7,
};

/// How many frames (spans) the building has (Table 12).
enum class FrameTypes : std::int32_t {
  Frames_1 = 0,
  Frames_2 = 1,
  Frames_3_or_more = 2,
};

/// Which pair of faces are the gables.
enum class GableFaces : std::int32_t {
  Faces_1_and_3 = 0,
  Faces_2_and_4 = 1,
};

/// Permanent or temporary structure.
enum class LifeTime : std::int32_t {
  Permanent = 0,
  Temporary = 1,
};

/// The part of the year for which the building is exposed (annex D, seasonal factor).
enum class Durations : std::int32_t {
  All_year = 0,
  Winter = 1,
  Summer = 2,
  Months_4 = 3,
  Months_2 = 4,
  Months_1 = 5,
};

/// The calculation method of BS 6399-2.
enum class Methods : std::int32_t {
  Directional = 0,
  Hybrid = 1,
};

/// Whether the altitude factor rests on altitude or on topography (2.2.2.2).
enum class SaBasedOnTypes : std::int32_t {
  Altitude = 0,
  Topography = 1,
};

/// Months, counted from 0.
enum class Months : std::int32_t {
  January = 0,
  February = 1,
  March = 2,
  April = 3,
  May = 4,
  June = 5,
  July = 6,
  August = 7,
  September = 8,
  October = 9,
  November = 10,
  December = 11,
};

/// The area of the building for which a dynamic pressure is worked out.
enum class WindAreas : std::int32_t {
  waRoof = 0,
  waSidewall = 1,
  waGable = 2,
  waInternal = 3,
  waSidewallParapet = 4,
  waGableParapet = 5,
};

/// The bay of a multi-span roof (Table 12).
enum class Bays : std::int32_t {
  End_Bay = 0,
  Second_Bay = 1,
  All_Remaining_Bays = 2,
};

/// The wall zone selected for a dominant opening. Each value is one lower than that of the same name in
/// `SelectedLoadTypes`.
enum class WallZones : std::int32_t {
  Windward = 0,
  Leeward = 1,
  A_face_1 = 2,
  B_face_1 = 3,
  C_face_1 = 4,
  A_face_2 = 5,
  B_face_2 = 6,
  C_face_2 = 7,
  A_face_3 = 8,
  B_face_3 = 9,
  C_face_3 = 10,
  A_face_4 = 11,
  B_face_4 = 12,
  C_face_4 = 13,
};

/// Enclosed, with a dominant opening, or open sided (2.6).
enum class StructureTypes : std::int32_t {
  Enclosed_building = 0,
  Dominant_opening = 1,
  Open_sided_building = 2,
};

/// The wind area that the internal wind area follows.
enum class WindPressureTypes : std::int32_t {
  wptSidewall = 0,
  wptGable = 1,
  wptRoof = 2,
};

/// The load type picked for a building area and face.
enum class SelectedLoadTypes : std::int32_t {
  Stepped_Wind_Load = 0,
  Windward = 1,
  Leeward = 2,
  A_face_1 = 3,
  B_face_1 = 4,
  C_face_1 = 5,
  A_face_2 = 6,
  B_face_2 = 7,
  C_face_2 = 8,
  A_face_3 = 9,
  B_face_3 = 10,
  C_face_3 = 11,
  A_face_4 = 12,
  B_face_4 = 13,
  C_face_4 = 14,
  AU = 15,
  AL = 16,
  A = 17,
  B = 18,
  C = 19,
  D = 20,
  E = 21,
  F = 22,
  G = 23,
  H = 24,
  i = 25,
  J = 26,
};

// The published text of a member, exactly as it stands; empty for a value outside the enumeration.
std::string_view PublishedText(BuildingAreas value);
std::string_view PublishedText(Faces value);
std::string_view PublishedText(ResultsScreens value);
std::string_view PublishedText(ParentTypes value);
std::string_view PublishedText(WindSectors value);
std::string_view PublishedText(RoofTypes value);
std::string_view PublishedText(FrameTypes value);
std::string_view PublishedText(GableFaces value);
std::string_view PublishedText(LifeTime value);
std::string_view PublishedText(Durations value);
std::string_view PublishedText(Methods value);
std::string_view PublishedText(SaBasedOnTypes value);
std::string_view PublishedText(Months value);
std::string_view PublishedText(WindAreas value);
std::string_view PublishedText(Bays value);
std::string_view PublishedText(WallZones value);
std::string_view PublishedText(StructureTypes value);
std::string_view PublishedText(WindPressureTypes value);
std::string_view PublishedText(SelectedLoadTypes value);

}  // namespace orve
