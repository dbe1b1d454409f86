/* ORVE BS6399-2 Library 3.0 for C99 and C++: wind loads on buildings to BS 6399-2. Every function may be
 * called on one thread only, with any
 * floating-point state: calls mask exceptions and round to nearest, and the state comes back. Written by orve_generate from the description of the object model; don't edit it by hand. */
#ifndef ORVE3_BS6399_2_C_H
#define ORVE3_BS6399_2_C_H

#include <stdbool.h>
#include <stddef.h>
#include <stdint.h>

#if defined(_WIN32) && defined(ORVE_C_SHARED)
#ifdef ORVE_C_BUILD
#define ORVE_C_API __declspec(dllexport)
#else
#define ORVE_C_API __declspec(dllimport)
#endif
#elif defined(__GNUC__)
#define ORVE_C_API __attribute__((visibility("default")))
#else
#define ORVE_C_API
#endif

#ifdef __cplusplus
extern "C" {
#endif

/* 0, or the number of an error: 5 invalid argument (a null pointer where a text, record or result is wanted), 6
 * overflow, 7 out of memory, 9 subscript out of range, 11 division by zero, 13 type mismatch, 28 an event raised in
 * its own handlers without end, 53 to 76 file system, 91 object not set (a null handle, one that has been released,
 * or one of another class), 429 class can't be created, 440 an exception that isn't the library's. A function that
 * fails leaves its results alone. */
typedef int32_t orve_error;

/* Text of the last error on this thread, in full; empty if its last call succeeded. It stays until the thread's
 * next call. */
ORVE_C_API const char* orve_error_text(void);
/* Text of the error that a callback is about to return. */
ORVE_C_API void orve_set_error_text(const char* text);

/* Releases any handle: an object or a connection, which ends it. A null handle is left alone. Errors: 91. */
ORVE_C_API orve_error orve_release(const void* handle);
/* Frees a text that a function gave. */
ORVE_C_API void orve_free_text(char* text);

/* Makes the built-in engines the components; call it before orve_clsCurrentCase_create. */
ORVE_C_API void orve_register_built_in_engines(void);
/* The version, as in "v3.0.33". */
ORVE_C_API orve_error orve_app_version(char** result);
/* The version of the library that runs, as ORVE_C_VERSION is the one of this header: 30033 for 3.0.33. */
ORVE_C_API int32_t orve_version(void);
/* A stored path, "\" as separator, as the machine's own. */
ORVE_C_API orve_error orve_native_path(const char* path, char** result);
/* The file that opening and saving a name use, as a full path: the exact name, else the one that differs in case and
 * outer blanks alone. For a file that isn't there yet, the path that a save would make. Errors: 75 for an empty name. */
ORVE_C_API orve_error orve_resolve_file_name(const char* name, char** result);
/* True if opening that name would find a file, and saving to it would write over one. */
ORVE_C_API orve_error orve_case_file_exists(const char* name, bool* result);
/* True if the file of the open case isn't as the last opening or save of it here left it: changed, replaced or gone. Ask
 * before saving. */
ORVE_C_API orve_error orve_case_file_changed(bool* result);
/* The path of the copy that an interrupted save left of a file that it was writing in place, if the file isn't the same;
 * empty if there is none. Errors: 75 for an empty name. */
ORVE_C_API orve_error orve_copy_put_aside(const char* name, char** result);
/* Shortest decimal text of a number, point as decimal sign, whatever the locale. */
ORVE_C_API orve_error orve_single_text(float value, char** result);
ORVE_C_API orve_error orve_double_text(double value, char** result);

/* Optional arguments: this stands for one that is left out, the object's own selection. */
#define ORVE_DEFAULT (-1)

/* The version of this header: 10000 major + 100 minor + revision. */
#define ORVE_C_VERSION 30033

/* The part of the building that a zone lies on. */
typedef int32_t orve_BuildingAreas;
enum {
  orve_BuildingAreas_baRoof = 0, /* "baRoof" */
  orve_BuildingAreas_baWalls = 1, /* "baWalls" */
  orve_BuildingAreas_baParapet = 2 /* "baParapet" */
};
/* The published text of a value; null outside the enumeration. */
ORVE_C_API const char* orve_BuildingAreas_text(orve_BuildingAreas value);

/* A face of the building. */
typedef int32_t orve_Faces;
enum {
  orve_Faces_Face_1 = 0, /* "Face 1" */
  orve_Faces_Face_2 = 1, /* "Face 2" */
  orve_Faces_Face_3 = 2, /* "Face 3" */
  orve_Faces_Face_4 = 3 /* "Face 4" */
};
/* The published text of a value; null outside the enumeration. */
ORVE_C_API const char* orve_Faces_text(orve_Faces value);

/* The screen on whose behalf zones are asked for. */
typedef int32_t orve_ResultsScreens;
enum {
  orve_ResultsScreens_External_Coefficient = 0, /* "External Coefficient" */
  orve_ResultsScreens_Overall_Applied_Loads = 1 /* "Overall Applied Loads" */
};
/* The published text of a value; null outside the enumeration. */
ORVE_C_API const char* orve_ResultsScreens_text(orve_ResultsScreens value);

/* The kind of design in the host. */
typedef int32_t orve_ParentTypes;
enum {
  orve_ParentTypes_None = 0, /* "None" */
  orve_ParentTypes_Purlin_Single = 1, /* "Purlin - Single" */
  orve_ParentTypes_Purlin_Double = 2, /* "Purlin - Double" */
  orve_ParentTypes_Siderail_Single = 3, /* "Siderail - Single" */
  orve_ParentTypes_Siderail_Double = 4, /* "Siderail - Double" */
  orve_ParentTypes_Purlin_Continuous_Single = 5, /* "Purlin - Continuous Single" */
  orve_ParentTypes_Purlin_Continuous_Double = 6, /* "Purlin - Continuous Double" */
  orve_ParentTypes_Eavesbeam_Design = 7, /* "Eavesbeam Design" */
  orve_ParentTypes_Cantilever_Design_Single = 8, /* "Cantilever Design - Single" */
  orve_ParentTypes_Cantilever_Design_Double = 10, /* "Cantilever Design - Double" */
  orve_ParentTypes_ptParapetDesign = 9 /* "ptParapetDesign" */
};
/* The published text of a value; null outside the enumeration. */
ORVE_C_API const char* orve_ParentTypes_text(orve_ParentTypes value);

/* The twelve wind sectors; a sector's angle is its value times 30 degrees (Table 3). */
typedef int32_t orve_WindSectors;
enum {
  orve_WindSectors_Degrees_0 = 0, /* "  0 degrees" */
  orve_WindSectors_Degrees_30 = 1, /* " 30 degrees" */
  orve_WindSectors_Degrees_60 = 2, /* " 60 degrees" */
  orve_WindSectors_Degrees_90 = 3, /* " 90 degrees" */
  orve_WindSectors_Degrees_120 = 4, /* "120 degrees" */
  orve_WindSectors_Degrees_150 = 5, /* "150 degrees" */
  orve_WindSectors_Degrees_180 = 6, /* "180 degrees" */
  orve_WindSectors_Degrees_210 = 7, /* "210 degrees" */
  orve_WindSectors_Degrees_240 = 8, /* "240 degrees" */
  orve_WindSectors_Degrees_270 = 9, /* "270 degrees" */
  orve_WindSectors_Degrees_300 = 10, /* "300 degrees" */
  orve_WindSectors_Degrees_330 = 11 /* "330 degrees" */
};
/* The published text of a value; null outside the enumeration. */
ORVE_C_API const char* orve_WindSectors_text(orve_WindSectors value);

/* Roof form. */
typedef int32_t orve_RoofTypes;
enum {
  orve_RoofTypes_Flat_roof_with_sharp_eaves = 0, /* "Flat roof with sharp eaves" */
  orve_RoofTypes_Flat_roof_with_parapets = 1, /* "Flat roof with parapets" */
  orve_RoofTypes_Flat_roof_with_curved_eaves = 2, /* "Flat roof with curved eaves" */
  orve_RoofTypes_Flat_roof_with_mansard_eaves = 3, /* "Flat roof with mansard eaves" */
  orve_RoofTypes_Mono_pitched_roof = 4, /* "Mono-pitched roof" */
  orve_RoofTypes_Duo_pitched_roof = 5, /* "Duo-pitched roof" */
  orve_RoofTypes_Hipped_roof = 6, /* "Hipped roof" */
  orve_RoofTypes_Curved_roof = 7 /* "Curved roof" */
};
/* The published text of a value; null outside the enumeration. */
ORVE_C_API const char* orve_RoofTypes_text(orve_RoofTypes value);

/* How many frames the building has (Table 12). */
typedef int32_t orve_FrameTypes;
enum {
  orve_FrameTypes_Frames_1 = 0, /* "1 Frame" */
  orve_FrameTypes_Frames_2 = 1, /* "2 Frames" */
  orve_FrameTypes_Frames_3_or_more = 2 /* "3+ Frames" */
};
/* The published text of a value; null outside the enumeration. */
ORVE_C_API const char* orve_FrameTypes_text(orve_FrameTypes value);

/* Which pair of faces are the gables. */
typedef int32_t orve_GableFaces;
enum {
  orve_GableFaces_Faces_1_and_3 = 0, /* "Faces 1 and 3" */
  orve_GableFaces_Faces_2_and_4 = 1 /* "Faces 2 and 4" */
};
/* The published text of a value; null outside the enumeration. */
ORVE_C_API const char* orve_GableFaces_text(orve_GableFaces value);

/* Permanent or temporary structure. */
typedef int32_t orve_LifeTime;
enum {
  orve_LifeTime_Permanent = 0, /* "Permanent" */
  orve_LifeTime_Temporary = 1 /* "Temporary" */
};
/* The published text of a value; null outside the enumeration. */
ORVE_C_API const char* orve_LifeTime_text(orve_LifeTime value);

/* The part of the year for which the building is exposed (annex D). */
typedef int32_t orve_Durations;
enum {
  orve_Durations_All_year = 0, /* "All year" */
  orve_Durations_Winter = 1, /* "Winter" */
  orve_Durations_Summer = 2, /* "Summer" */
  orve_Durations_Months_4 = 3, /* "4 months" */
  orve_Durations_Months_2 = 4, /* "2 months" */
  orve_Durations_Months_1 = 5 /* "1 month" */
};
/* The published text of a value; null outside the enumeration. */
ORVE_C_API const char* orve_Durations_text(orve_Durations value);

/* The calculation method. */
typedef int32_t orve_Methods;
enum {
  orve_Methods_Directional = 0, /* "Directional" */
  orve_Methods_Hybrid = 1 /* "Hybrid" */
};
/* The published text of a value; null outside the enumeration. */
ORVE_C_API const char* orve_Methods_text(orve_Methods value);

/* What the altitude factor rests on (2.2.2.2). */
typedef int32_t orve_SaBasedOnTypes;
enum {
  orve_SaBasedOnTypes_Altitude = 0, /* "Altitude" */
  orve_SaBasedOnTypes_Topography = 1 /* "Topography" */
};
/* The published text of a value; null outside the enumeration. */
ORVE_C_API const char* orve_SaBasedOnTypes_text(orve_SaBasedOnTypes value);

/* Months, counted from 0. */
typedef int32_t orve_Months;
enum {
  orve_Months_January = 0, /* "January" */
  orve_Months_February = 1, /* "February" */
  orve_Months_March = 2, /* "March" */
  orve_Months_April = 3, /* "April" */
  orve_Months_May = 4, /* "May" */
  orve_Months_June = 5, /* "June" */
  orve_Months_July = 6, /* "July" */
  orve_Months_August = 7, /* "August" */
  orve_Months_September = 8, /* "September" */
  orve_Months_October = 9, /* "October" */
  orve_Months_November = 10, /* "November" */
  orve_Months_December = 11 /* "December" */
};
/* The published text of a value; null outside the enumeration. */
ORVE_C_API const char* orve_Months_text(orve_Months value);

/* The area of the building for which a dynamic pressure is worked out. */
typedef int32_t orve_WindAreas;
enum {
  orve_WindAreas_waRoof = 0, /* "waRoof" */
  orve_WindAreas_waSidewall = 1, /* "waSidewall" */
  orve_WindAreas_waGable = 2, /* "waGable" */
  orve_WindAreas_waInternal = 3, /* "waInternal" */
  orve_WindAreas_waSidewallParapet = 4, /* "waSidewallParapet" */
  orve_WindAreas_waGableParapet = 5 /* "waGableParapet" */
};
/* The published text of a value; null outside the enumeration. */
ORVE_C_API const char* orve_WindAreas_text(orve_WindAreas value);

/* The bay of a multi-span roof (Table 12). */
typedef int32_t orve_Bays;
enum {
  orve_Bays_End_Bay = 0, /* "End Bay" */
  orve_Bays_Second_Bay = 1, /* "Second Bay" */
  orve_Bays_All_Remaining_Bays = 2 /* "All Remaining Bays" */
};
/* The published text of a value; null outside the enumeration. */
ORVE_C_API const char* orve_Bays_text(orve_Bays value);

/* The wall zone selected for a dominant opening. */
typedef int32_t orve_WallZones;
enum {
  orve_WallZones_Windward = 0, /* "Windward" */
  orve_WallZones_Leeward = 1, /* "Leeward" */
  orve_WallZones_A_face_1 = 2, /* "A (face 1)" */
  orve_WallZones_B_face_1 = 3, /* "B (face 1)" */
  orve_WallZones_C_face_1 = 4, /* "C (face 1)" */
  orve_WallZones_A_face_2 = 5, /* "A (face 2)" */
  orve_WallZones_B_face_2 = 6, /* "B (face 2)" */
  orve_WallZones_C_face_2 = 7, /* "C (face 2)" */
  orve_WallZones_A_face_3 = 8, /* "A (face 3)" */
  orve_WallZones_B_face_3 = 9, /* "B (face 3)" */
  orve_WallZones_C_face_3 = 10, /* "C (face 3)" */
  orve_WallZones_A_face_4 = 11, /* "A (face 4)" */
  orve_WallZones_B_face_4 = 12, /* "B (face 4)" */
  orve_WallZones_C_face_4 = 13 /* "C (face 4)" */
};
/* The published text of a value; null outside the enumeration. */
ORVE_C_API const char* orve_WallZones_text(orve_WallZones value);

/* Enclosed, with a dominant opening, or open sided (2.6). */
typedef int32_t orve_StructureTypes;
enum {
  orve_StructureTypes_Enclosed_building = 0, /* "Enclosed building" */
  orve_StructureTypes_Dominant_opening = 1, /* "Dominant opening" */
  orve_StructureTypes_Open_sided_building = 2 /* "Open sided building" */
};
/* The published text of a value; null outside the enumeration. */
ORVE_C_API const char* orve_StructureTypes_text(orve_StructureTypes value);

/* The wind area that the internal wind area follows. */
typedef int32_t orve_WindPressureTypes;
enum {
  orve_WindPressureTypes_wptSidewall = 0, /* "wptSidewall" */
  orve_WindPressureTypes_wptGable = 1, /* "wptGable" */
  orve_WindPressureTypes_wptRoof = 2 /* "wptRoof" */
};
/* The published text of a value; null outside the enumeration. */
ORVE_C_API const char* orve_WindPressureTypes_text(orve_WindPressureTypes value);

/* The load type picked for a building area and face. */
typedef int32_t orve_SelectedLoadTypes;
enum {
  orve_SelectedLoadTypes_Stepped_Wind_Load = 0, /* "Stepped Wind Load" */
  orve_SelectedLoadTypes_Windward = 1, /* "Windward" */
  orve_SelectedLoadTypes_Leeward = 2, /* "Leeward" */
  orve_SelectedLoadTypes_A_face_1 = 3, /* "A (face 1)" */
  orve_SelectedLoadTypes_B_face_1 = 4, /* "B (face 1)" */
  orve_SelectedLoadTypes_C_face_1 = 5, /* "C (face 1)" */
  orve_SelectedLoadTypes_A_face_2 = 6, /* "A (face 2)" */
  orve_SelectedLoadTypes_B_face_2 = 7, /* "B (face 2)" */
  orve_SelectedLoadTypes_C_face_2 = 8, /* "C (face 2)" */
  orve_SelectedLoadTypes_A_face_3 = 9, /* "A (face 3)" */
  orve_SelectedLoadTypes_B_face_3 = 10, /* "B (face 3)" */
  orve_SelectedLoadTypes_C_face_3 = 11, /* "C (face 3)" */
  orve_SelectedLoadTypes_A_face_4 = 12, /* "A (face 4)" */
  orve_SelectedLoadTypes_B_face_4 = 13, /* "B (face 4)" */
  orve_SelectedLoadTypes_C_face_4 = 14, /* "C (face 4)" */
  orve_SelectedLoadTypes_AU = 15, /* "AU" */
  orve_SelectedLoadTypes_AL = 16, /* "AL" */
  orve_SelectedLoadTypes_A = 17, /* "A" */
  orve_SelectedLoadTypes_B = 18, /* "B" */
  orve_SelectedLoadTypes_C = 19, /* "C" */
  orve_SelectedLoadTypes_D = 20, /* "D" */
  orve_SelectedLoadTypes_E = 21, /* "E" */
  orve_SelectedLoadTypes_F = 22, /* "F" */
  orve_SelectedLoadTypes_G = 23, /* "G" */
  orve_SelectedLoadTypes_H = 24, /* "H" */
  orve_SelectedLoadTypes_i = 25, /* "i" */
  orve_SelectedLoadTypes_J = 26 /* "J" */
};
/* The published text of a value; null outside the enumeration. */
ORVE_C_API const char* orve_SelectedLoadTypes_text(orve_SelectedLoadTypes value);

/* Records; their fields never change. A null text in a record that is given to a function stands for an empty one. */

/* The two lengths of a zone, in metres. */
typedef struct orve_ZoneDimensionsXY {
  float DimensionX;
  float DimensionY;
} orve_ZoneDimensionsXY;

/* One row of the cantilever zone table. */
typedef struct orve_CantileverZones {
  const char* Cantilever_ZoneDescription;
  const char* Cantilever_ZoneDimensions;
  const char* Cantilever_ExternalAppliedLoads;
  const char* Cantilever_InternalAppliedLoads;
  const char* Cantilever_OverallAppliedLoads;
} orve_CantileverZones;
/* Frees the texts of records that a function gave, and of an array the rows themselves. */
ORVE_C_API void orve_CantileverZones_free(orve_CantileverZones* record);
ORVE_C_API void orve_CantileverZones_free_rows(orve_CantileverZones* rows, size_t count);

/* One row of the cantilever result table. */
typedef struct orve_CantileverResults {
  const char* Cantilever_Face;
  const char* Cantilever_Zone;
  const char* Cantilever_WindPressure;
  const char* Cantilever_WindUplift;
} orve_CantileverResults;
/* Frees the texts of records that a function gave, and of an array the rows themselves. */
ORVE_C_API void orve_CantileverResults_free(orve_CantileverResults* record);
ORVE_C_API void orve_CantileverResults_free_rows(orve_CantileverResults* rows, size_t count);

/* Dimensions and external pressure of one wall zone, as texts. */
typedef struct orve_CantileverZone {
  const char* Zone_Dimensions;
  const char* Zone_ExternalPressures;
} orve_CantileverZone;
/* Frees the texts of records that a function gave, and of an array the rows themselves. */
ORVE_C_API void orve_CantileverZone_free(orve_CantileverZone* record);
ORVE_C_API void orve_CantileverZone_free_rows(orve_CantileverZone* rows, size_t count);

/* Pressures of the roof zones and of the wall zones under the cantilevers. */
typedef struct orve_ExternalPressure {
  const char* Roof1_A_Face;
  const char* Roof1_B_Face;
  const char* Roof2_A_Face;
  const char* Roof2_B_Face;
  const char* Roof2_C_Face;
  orve_CantileverZone Wall2_Windward;
  orve_CantileverZone Wall2_Leeward;
  orve_CantileverZone Wall2_A_Face_1;
  orve_CantileverZone Wall2_B_Face_1;
  orve_CantileverZone Wall2_C_Face_1;
  orve_CantileverZone Wall2_A_Face_3;
  orve_CantileverZone Wall2_B_Face_3;
  orve_CantileverZone Wall2_C_Face_3;
  orve_CantileverZone Wall4_Windward;
  orve_CantileverZone Wall4_Leeward;
  orve_CantileverZone Wall4_A_Face_1;
  orve_CantileverZone Wall4_B_Face_1;
  orve_CantileverZone Wall4_C_Face_1;
  orve_CantileverZone Wall4_A_Face_3;
  orve_CantileverZone Wall4_B_Face_3;
  orve_CantileverZone Wall4_C_Face_3;
} orve_ExternalPressure;
/* Frees the texts of records that a function gave, and of an array the rows themselves. */
ORVE_C_API void orve_ExternalPressure_free(orve_ExternalPressure* record);
ORVE_C_API void orve_ExternalPressure_free_rows(orve_ExternalPressure* rows, size_t count);

/* Handles: counted references, each to be released. */
typedef struct orve_clsCurrentCase_handle* orve_clsCurrentCase;
typedef struct orve_clsBuildingDimensions_handle* orve_clsBuildingDimensions;
typedef struct orve_clsDynamicPressure_handle* orve_clsDynamicPressure;
typedef struct orve_clsExternalCoefficients_handle* orve_clsExternalCoefficients;
typedef struct orve_clsInternalCoefficients_handle* orve_clsInternalCoefficients;
typedef struct orve_clsOverallAppliedLoads_handle* orve_clsOverallAppliedLoads;
typedef struct orve_clsCantileverWindLoads_handle* orve_clsCantileverWindLoads;
typedef struct orve_clsWindCaseList_handle* orve_clsWindCaseList;
typedef struct orve_connection_handle* orve_connection;

/* A callback's result as text: hand it to orve_reply_text. */
typedef struct orve_reply orve_reply;
ORVE_C_API void orve_reply_text(orve_reply* reply, const char* text);

/* Settings of a file dialog. Paths have "\" as separator. Later versions may add fields at its end; a field is there if it
 * ends within orve_file_dialog_size() of the library that runs. */
typedef struct orve_file_dialog {
  const char* DialogTitle;
  const char* Filter;
  const char* DefaultExt;
  const char* InitDir;
  const char* FileName;
  int32_t Flags;
} orve_file_dialog;
ORVE_C_API size_t orve_file_dialog_size(void);

/* Services of the host. Each callback gets the user pointer given with it; a null callback brings the headless
 * default back. A dialog gives the name chosen, or the site reference, by orve_reply_text and returns true, or
 * returns false for Cancel. MsgBox returns the button: 6 Yes, 7 No, 1 OK. */
typedef int32_t (*orve_message_box)(const char* prompt, int32_t buttons, const char* title, void* user);
typedef bool (*orve_show_file_dialog)(const orve_file_dialog* dialog, orve_reply* file_name, void* user);
typedef bool (*orve_show_site_dialog)(orve_reply* site_reference, void* user);
typedef bool (*orve_edit_site)(void* user);
typedef void (*orve_give_text)(orve_reply* text, void* user);
typedef double (*orve_clock)(void* user);
typedef void (*orve_notify)(void* user);
typedef int16_t (*orve_get_pointer)(void* user);
typedef void (*orve_set_pointer)(int16_t pointer_type, void* user);
ORVE_C_API void orve_host_MsgBox(orve_message_box callback, void* user);
ORVE_C_API void orve_host_OpenFileDialog(orve_show_file_dialog callback, void* user);
ORVE_C_API void orve_host_SaveFileDialog(orve_show_file_dialog callback, void* user);
ORVE_C_API void orve_host_MousePointer(orve_get_pointer callback, void* user);
ORVE_C_API void orve_host_SetMousePointer(orve_set_pointer callback, void* user);
ORVE_C_API void orve_host_DoEvents(orve_notify callback, void* user);
ORVE_C_API void orve_host_LibraryFolder(orve_give_text callback, void* user);
ORVE_C_API void orve_host_SystemDirectory(orve_give_text callback, void* user);
ORVE_C_API void orve_host_Now(orve_clock callback, void* user);
ORVE_C_API void orve_host_SiteBrowse(orve_show_site_dialog callback, void* user);
ORVE_C_API void orve_host_SiteSelect(orve_show_site_dialog callback, void* user);
ORVE_C_API void orve_host_SiteEdit(orve_edit_site callback, void* user);

/* Events call a handler inside the call that raises them, until its connection is released. A handler
 * returns 0, or the number of an error that then comes out of that call. */

/* clsCurrentCase: The one wind load case that is open. */
/* At every assignment to IsDirty. */
typedef orve_error (*orve_clsCurrentCase_DirtyUpdated)(bool NewValue, void* user);
/* At every assignment to Location. */
typedef orve_error (*orve_clsCurrentCase_LocationUpdated)(const char* NewValue, void* user);
/* At the end of the reading or writing of a case. */
typedef orve_error (*orve_clsCurrentCase_WindCaseListUpdated)(void* user);
/* After a case has been read; Location is still empty. */
typedef orve_error (*orve_clsCurrentCase_WindCaseOpened)(const char* FileName, void* user);
/* After the file has been written; Location still holds the former name. */
typedef orve_error (*orve_clsCurrentCase_WindCaseSaved)(const char* FileName, void* user);
ORVE_C_API orve_error orve_clsCurrentCase_create(orve_clsCurrentCase* result);
/* The coefficient component has to be told the method anew.
 * Range: True or False. */
ORVE_C_API orve_error orve_clsCurrentCase_get_BreCp_Dirty(orve_clsCurrentCase object, bool* result);
ORVE_C_API orve_error orve_clsCurrentCase_let_BreCp_Dirty(orve_clsCurrentCase object, bool value);
/* Switch for the wind-speed component's database.
 * Range: True or False. */
ORVE_C_API orve_error orve_clsCurrentCase_get_BreOSDatabase(orve_clsCurrentCase object, bool* result);
ORVE_C_API orve_error orve_clsCurrentCase_let_BreOSDatabase(orve_clsCurrentCase object, bool value);
/* Inputs of the wind-speed component have changed.
 * Range: True or False. */
ORVE_C_API orve_error orve_clsCurrentCase_get_BreVe_Dirty(orve_clsCurrentCase object, bool* result);
ORVE_C_API orve_error orve_clsCurrentCase_let_BreVe_Dirty(orve_clsCurrentCase object, bool value);
/* Kind of design in the host; let it last of the Parent values.
 * Range: None to ptParapetDesign.
 * Errors: 6 for a value that doesn't fit; the old one stays. */
ORVE_C_API orve_error orve_clsCurrentCase_get_Parent_Type(orve_clsCurrentCase object, orve_ParentTypes* result);
ORVE_C_API orve_error orve_clsCurrentCase_let_Parent_Type(orve_clsCurrentCase object, orve_ParentTypes value);
/* Span of the host's member, m.
 * Range: any finite number; 0 where there is none.
 * Errors: 6 for a value that doesn't fit; the old one stays. */
ORVE_C_API orve_error orve_clsCurrentCase_get_Parent_Span(orve_clsCurrentCase object, float* result);
ORVE_C_API orve_error orve_clsCurrentCase_let_Parent_Span(orve_clsCurrentCase object, float value);
/* Spacing of the host's members, m.
 * Range: any finite number; 0 where there is none.
 * Errors: 6 for a value that doesn't fit; the old one stays. */
ORVE_C_API orve_error orve_clsCurrentCase_get_Parent_Centres(orve_clsCurrentCase object, float* result);
ORVE_C_API orve_error orve_clsCurrentCase_let_Parent_Centres(orve_clsCurrentCase object, float value);
/* Roof pitch in the host, whole degrees, degrees.
 * Range: -32768 to 32767. */
ORVE_C_API orve_error orve_clsCurrentCase_get_Parent_RoofPitch(orve_clsCurrentCase object, int16_t* result);
ORVE_C_API orve_error orve_clsCurrentCase_let_Parent_RoofPitch(orve_clsCurrentCase object, int16_t value);
/* Height of the parapet post, m.
 * Range: any finite number; 0 where there is none.
 * Errors: 6 for a value that doesn't fit; the old one stays. */
ORVE_C_API orve_error orve_clsCurrentCase_get_Parent_HeightOfPost_m(orve_clsCurrentCase object, float* result);
ORVE_C_API orve_error orve_clsCurrentCase_let_Parent_HeightOfPost_m(orve_clsCurrentCase object, float value);
/* Height of the top of the post above finished floor level, m.
 * Range: any finite number; 0 where there is none.
 * Errors: 6 for a value that doesn't fit; the old one stays. */
ORVE_C_API orve_error orve_clsCurrentCase_get_Parent_HeightToTopOfPostFromFFL_m(orve_clsCurrentCase object, float* result);
ORVE_C_API orve_error orve_clsCurrentCase_let_Parent_HeightToTopOfPostFromFFL_m(orve_clsCurrentCase object, float value);
/* Bay size, m.
 * Range: any finite number; 0 where there is none.
 * Errors: 6 for a value that doesn't fit; the old one stays. */
ORVE_C_API orve_error orve_clsCurrentCase_get_Parent_BaySize_m(orve_clsCurrentCase object, float* result);
ORVE_C_API orve_error orve_clsCurrentCase_let_Parent_BaySize_m(orve_clsCurrentCase object, float value);
/* Plain storage for the host.
 * Range: any text. */
ORVE_C_API orve_error orve_clsCurrentCase_get_PathToHelp(orve_clsCurrentCase object, char** result);
ORVE_C_API orve_error orve_clsCurrentCase_let_PathToHelp(orve_clsCurrentCase object, const char* value);
/* Folder of the wind load cases.
 * Range: any text.
 * Errors: 70, 75, 76 if the settings file can't be written. */
ORVE_C_API orve_error orve_clsCurrentCase_get_PathToWindLoadCases(orve_clsCurrentCase object, char** result);
ORVE_C_API orve_error orve_clsCurrentCase_let_PathToWindLoadCases(orve_clsCurrentCase object, const char* value);
/* The case has unsaved changes; every let raises DirtyUpdated.
 * Range: True or False.
 * Errors: those of a handler. */
ORVE_C_API orve_error orve_clsCurrentCase_get_IsDirty(orve_clsCurrentCase object, bool* result);
ORVE_C_API orve_error orve_clsCurrentCase_let_IsDirty(orve_clsCurrentCase object, bool value);
/* Full path of the case's file, empty for a new one.
 * Range: any text.
 * Errors: those of a handler. */
ORVE_C_API orve_error orve_clsCurrentCase_get_Location(orve_clsCurrentCase object, char** result);
ORVE_C_API orve_error orve_clsCurrentCase_let_Location(orve_clsCurrentCase object, const char* value);
/* True if a file of that name is there.
 * Range: True or False. */
ORVE_C_API orve_error orve_clsCurrentCase_get_LocationCorrect(orve_clsCurrentCase object, bool* result);
/* Free text of the case.
 * Range: any text. */
ORVE_C_API orve_error orve_clsCurrentCase_get_Description(orve_clsCurrentCase object, char** result);
ORVE_C_API orve_error orve_clsCurrentCase_let_Description(orve_clsCurrentCase object, const char* value);
/* Date of the first save, 0 if there was none.
 * Range: 0 for none. */
ORVE_C_API orve_error orve_clsCurrentCase_get_Created(orve_clsCurrentCase object, double* result);
/* Date of the last save, 0 if there was none.
 * Range: 0 for none. */
ORVE_C_API orve_error orve_clsCurrentCase_get_Modified(orve_clsCurrentCase object, double* result);
/* Data folder of the wind-speed component.
 * Range: any text.
 * Errors: 91 without a component. */
ORVE_C_API orve_error orve_clsCurrentCase_get_breDataPath(orve_clsCurrentCase object, char** result);
ORVE_C_API orve_error orve_clsCurrentCase_let_breDataPath(orve_clsCurrentCase object, const char* value);
/* Geometry of the building.
 * Range: an object of the class, or nothing. */
ORVE_C_API orve_error orve_clsCurrentCase_get_BuildingDimensions(orve_clsCurrentCase object, orve_clsBuildingDimensions* result);
ORVE_C_API orve_error orve_clsCurrentCase_set_BuildingDimensions(orve_clsCurrentCase object, orve_clsBuildingDimensions value);
/* Site and dynamic pressures.
 * Range: an object of the class, or nothing. */
ORVE_C_API orve_error orve_clsCurrentCase_get_DynamicPressure(orve_clsCurrentCase object, orve_clsDynamicPressure* result);
ORVE_C_API orve_error orve_clsCurrentCase_set_DynamicPressure(orve_clsCurrentCase object, orve_clsDynamicPressure value);
/* Zones and external pressure coefficients.
 * Range: an object of the class, or nothing. */
ORVE_C_API orve_error orve_clsCurrentCase_get_ExternalCoefficients(orve_clsCurrentCase object, orve_clsExternalCoefficients* result);
ORVE_C_API orve_error orve_clsCurrentCase_set_ExternalCoefficients(orve_clsCurrentCase object, orve_clsExternalCoefficients value);
/* Internal pressure coefficients.
 * Range: an object of the class, or nothing. */
ORVE_C_API orve_error orve_clsCurrentCase_get_InternalCoefficients(orve_clsCurrentCase object, orve_clsInternalCoefficients* result);
ORVE_C_API orve_error orve_clsCurrentCase_set_InternalCoefficients(orve_clsCurrentCase object, orve_clsInternalCoefficients value);
/* Loads.
 * Range: an object of the class, or nothing. */
ORVE_C_API orve_error orve_clsCurrentCase_get_OverallAppliedLoads(orve_clsCurrentCase object, orve_clsOverallAppliedLoads* result);
ORVE_C_API orve_error orve_clsCurrentCase_set_OverallAppliedLoads(orve_clsCurrentCase object, orve_clsOverallAppliedLoads value);
/* The recent wind load cases.
 * Range: an object of the class, or nothing. */
ORVE_C_API orve_error orve_clsCurrentCase_get_WindCaseList(orve_clsCurrentCase object, orve_clsWindCaseList* result);
ORVE_C_API orve_error orve_clsCurrentCase_set_WindCaseList(orve_clsCurrentCase object, orve_clsWindCaseList value);
/* Wall pressures under the cantilevers.
 * Range: an object of the class, or nothing. */
ORVE_C_API orve_error orve_clsCurrentCase_get_CantileverWindloads(orve_clsCurrentCase object, orve_clsCantileverWindLoads* result);
ORVE_C_API orve_error orve_clsCurrentCase_set_CantileverWindloads(orve_clsCurrentCase object, orve_clsCantileverWindLoads value);
/* Presets the components; call it once after construction.
 * Errors: 91 without a component. */
ORVE_C_API orve_error orve_clsCurrentCase_Initialize_BreApps(orve_clsCurrentCase object);
/* Starts a new, blank case without a question.
 * Errors: those of a handler. */
ORVE_C_API orve_error orve_clsCurrentCase_Clear(orve_clsCurrentCase object);
/* Asks the user for a file and opens it; True if a case was opened.
 * Range: False after Cancel.
 * Errors: those of reading: 5 for a file over 16 MB, 6 and 13 for a value, 53 to 76 of the file system. */
ORVE_C_API orve_error orve_clsCurrentCase_Browse(orve_clsCurrentCase object, bool* result);
/* Opens a file; True if a case was opened.
 * Range: False if there is no such file, or after No to the question about unsaved changes.
 * Arguments: FileNameToOpen any text.
 * Errors: those of reading: 5 for a file over 16 MB, 6 and 13 for a value, 53 to 76 of the file system. */
ORVE_C_API orve_error orve_clsCurrentCase_OpenExisting(orve_clsCurrentCase object, const char* FileNameToOpen, bool* result);
/* Saves under the present location; with none, asks for a name.
 * Errors: those of writing: 53 to 76 of the file system. */
ORVE_C_API orve_error orve_clsCurrentCase_Save(orve_clsCurrentCase object);
/* Asks for a name and saves.
 * Errors: those of writing: 53 to 76 of the file system. */
ORVE_C_API orve_error orve_clsCurrentCase_SaveAs(orve_clsCurrentCase object);
/* The type name of the wind-speed component is BVe2X.
 * Range: True or False.
 * Errors: 91 without a component. */
ORVE_C_API orve_error orve_clsCurrentCase_get_OldBreVeVersion(orve_clsCurrentCase object, bool* result);
/* The type name of the coefficient component is BreCpX.
 * Range: True or False.
 * Errors: 91 without a component. */
ORVE_C_API orve_error orve_clsCurrentCase_get_OldBreCpVersion(orve_clsCurrentCase object, bool* result);
ORVE_C_API orve_error orve_clsCurrentCase_connect_DirtyUpdated(orve_clsCurrentCase object, orve_clsCurrentCase_DirtyUpdated handler, void* user, orve_connection* result);
ORVE_C_API orve_error orve_clsCurrentCase_connect_LocationUpdated(orve_clsCurrentCase object, orve_clsCurrentCase_LocationUpdated handler, void* user, orve_connection* result);
ORVE_C_API orve_error orve_clsCurrentCase_connect_WindCaseListUpdated(orve_clsCurrentCase object, orve_clsCurrentCase_WindCaseListUpdated handler, void* user, orve_connection* result);
ORVE_C_API orve_error orve_clsCurrentCase_connect_WindCaseOpened(orve_clsCurrentCase object, orve_clsCurrentCase_WindCaseOpened handler, void* user, orve_connection* result);
ORVE_C_API orve_error orve_clsCurrentCase_connect_WindCaseSaved(orve_clsCurrentCase object, orve_clsCurrentCase_WindCaseSaved handler, void* user, orve_connection* result);

/* clsBuildingDimensions: Geometry of the building. */
/* The orientation isn't known and isn't used.
 * Range: True or False. */
ORVE_C_API orve_error orve_clsBuildingDimensions_get_OrientationUnknown(orve_clsBuildingDimensions object, bool* result);
ORVE_C_API orve_error orve_clsBuildingDimensions_let_OrientationUnknown(orve_clsBuildingDimensions object, bool value);
/* Angle of the normal to Face 2, whole degrees, degrees.
 * Range: 0 to 359; any 16-bit number is stored. */
ORVE_C_API orve_error orve_clsBuildingDimensions_get_Orientation(orve_clsBuildingDimensions object, int16_t* result);
ORVE_C_API orve_error orve_clsBuildingDimensions_let_Orientation(orve_clsBuildingDimensions object, int16_t value);
/* Roof form; selects which shape property is read.
 * Range: 0 to 7, a member of RoofTypes.
 * Errors: 6 outside 16 bits. */
ORVE_C_API orve_error orve_clsBuildingDimensions_get_RoofType(orve_clsBuildingDimensions object, orve_RoofTypes* result);
ORVE_C_API orve_error orve_clsBuildingDimensions_let_RoofType(orve_clsBuildingDimensions object, orve_RoofTypes value);
/* Plan length along Faces 1 and 3, m.
 * Range: 0 or more; any number is stored. */
ORVE_C_API orve_error orve_clsBuildingDimensions_get_Face1And3_Length(orve_clsBuildingDimensions object, float* result);
ORVE_C_API orve_error orve_clsBuildingDimensions_let_Face1And3_Length(orve_clsBuildingDimensions object, float value);
/* Plan length along Faces 2 and 4, m.
 * Range: 0 or more; any number is stored. */
ORVE_C_API orve_error orve_clsBuildingDimensions_get_Face2And4_Width(orve_clsBuildingDimensions object, float* result);
ORVE_C_API orve_error orve_clsBuildingDimensions_let_Face2And4_Width(orve_clsBuildingDimensions object, float value);
/* The design in hand concerns the roof.
 * Range: True or False. */
ORVE_C_API orve_error orve_clsBuildingDimensions_get_ConsiderRoof(orve_clsBuildingDimensions object, bool* result);
ORVE_C_API orve_error orve_clsBuildingDimensions_let_ConsiderRoof(orve_clsBuildingDimensions object, bool value);
/* The design in hand concerns the walls.
 * Range: True or False. */
ORVE_C_API orve_error orve_clsBuildingDimensions_get_ConsiderWalls(orve_clsBuildingDimensions object, bool* result);
ORVE_C_API orve_error orve_clsBuildingDimensions_let_ConsiderWalls(orve_clsBuildingDimensions object, bool value);
/* The building has cantilevers.
 * Range: True or False. */
ORVE_C_API orve_error orve_clsBuildingDimensions_get_ConsiderCantilever(orve_clsBuildingDimensions object, bool* result);
ORVE_C_API orve_error orve_clsBuildingDimensions_let_ConsiderCantilever(orve_clsBuildingDimensions object, bool value);
/* The design in hand concerns the parapet.
 * Range: True or False. */
ORVE_C_API orve_error orve_clsBuildingDimensions_get_ConsiderParapet(orve_clsBuildingDimensions object, bool* result);
ORVE_C_API orve_error orve_clsBuildingDimensions_let_ConsiderParapet(orve_clsBuildingDimensions object, bool value);
/* Height of the roof, m.
 * Range: 0 or more; any number is stored. */
ORVE_C_API orve_error orve_clsBuildingDimensions_get_Roof_Height(orve_clsBuildingDimensions object, float* result);
ORVE_C_API orve_error orve_clsBuildingDimensions_let_Roof_Height(orve_clsBuildingDimensions object, float value);
/* Diagonal dimension for the roof, m.
 * Range: 0 or more; any number is stored.
 * BS 6399-2: Figure 5. */
ORVE_C_API orve_error orve_clsBuildingDimensions_get_Roof_Diagonal(orve_clsBuildingDimensions object, float* result);
ORVE_C_API orve_error orve_clsBuildingDimensions_let_Roof_Diagonal(orve_clsBuildingDimensions object, float value);
/* Default of Roof_Diagonal from the parent design, m.
 * Range: 0 or more.
 * Errors: 6 if it doesn't fit. */
ORVE_C_API orve_error orve_clsBuildingDimensions_get_Roof_Diagonal_Default(orve_clsBuildingDimensions object, float* result);
/* Parapet height of a flat roof with parapets, m.
 * Range: 0 or more; any number is stored. */
ORVE_C_API orve_error orve_clsBuildingDimensions_get_Roof_ParapetHeight(orve_clsBuildingDimensions object, float* result);
ORVE_C_API orve_error orve_clsBuildingDimensions_let_Roof_ParapetHeight(orve_clsBuildingDimensions object, float value);
/* Eaves radius of a flat roof with curved eaves, m.
 * Range: 0 or more; any number is stored. */
ORVE_C_API orve_error orve_clsBuildingDimensions_get_Roof_EavesRadius(orve_clsBuildingDimensions object, float* result);
ORVE_C_API orve_error orve_clsBuildingDimensions_let_Roof_EavesRadius(orve_clsBuildingDimensions object, float value);
/* Eaves slope of a flat roof with mansard eaves, degrees.
 * Range: any number is stored; what the tables don't have raises 5 at the read of a coefficient. */
ORVE_C_API orve_error orve_clsBuildingDimensions_get_Roof_MansardSlope(orve_clsBuildingDimensions object, float* result);
ORVE_C_API orve_error orve_clsBuildingDimensions_let_Roof_MansardSlope(orve_clsBuildingDimensions object, float value);
/* Pitch of mono-pitched, duo-pitched and hipped roofs, degrees.
 * Range: any number is stored; what the tables don't have raises 5 at the read of a coefficient. */
ORVE_C_API orve_error orve_clsBuildingDimensions_get_Roof_Pitch(orve_clsBuildingDimensions object, float* result);
ORVE_C_API orve_error orve_clsBuildingDimensions_let_Roof_Pitch(orve_clsBuildingDimensions object, float value);
/* Rise of a curved roof, m.
 * Range: 0 or more; any number is stored. */
ORVE_C_API orve_error orve_clsBuildingDimensions_get_Roof_RiseHeight(orve_clsBuildingDimensions object, float* result);
ORVE_C_API orve_error orve_clsBuildingDimensions_let_Roof_RiseHeight(orve_clsBuildingDimensions object, float value);
/* How many frames the building has.
 * Range: 0 to 2, a member of FrameTypes.
 * Errors: 6 outside 16 bits.
 * BS 6399-2: Table 12. */
ORVE_C_API orve_error orve_clsBuildingDimensions_get_Roof_FrameType(orve_clsBuildingDimensions object, orve_FrameTypes* result);
ORVE_C_API orve_error orve_clsBuildingDimensions_let_Roof_FrameType(orve_clsBuildingDimensions object, orve_FrameTypes value);
/* Height of the side walls, m.
 * Range: 0 or more; any number is stored. */
ORVE_C_API orve_error orve_clsBuildingDimensions_get_Wall_SideHeight(orve_clsBuildingDimensions object, float* result);
ORVE_C_API orve_error orve_clsBuildingDimensions_let_Wall_SideHeight(orve_clsBuildingDimensions object, float value);
/* Diagonal dimension for the side walls, m.
 * Range: 0 or more; any number is stored. */
ORVE_C_API orve_error orve_clsBuildingDimensions_get_Wall_SideDiagonal(orve_clsBuildingDimensions object, float* result);
ORVE_C_API orve_error orve_clsBuildingDimensions_let_Wall_SideDiagonal(orve_clsBuildingDimensions object, float value);
/* Default of Wall_SideDiagonal from the parent design, m.
 * Range: 0 or more.
 * Errors: 6 if it doesn't fit. */
ORVE_C_API orve_error orve_clsBuildingDimensions_get_Wall_SideDiagonal_Default(orve_clsBuildingDimensions object, float* result);
/* Height of the gable walls, m.
 * Range: 0 or more; any number is stored. */
ORVE_C_API orve_error orve_clsBuildingDimensions_get_Wall_GableHeight(orve_clsBuildingDimensions object, float* result);
ORVE_C_API orve_error orve_clsBuildingDimensions_let_Wall_GableHeight(orve_clsBuildingDimensions object, float value);
/* Diagonal dimension for the gable walls, m.
 * Range: 0 or more; any number is stored. */
ORVE_C_API orve_error orve_clsBuildingDimensions_get_Wall_GableDiagonal(orve_clsBuildingDimensions object, float* result);
ORVE_C_API orve_error orve_clsBuildingDimensions_let_Wall_GableDiagonal(orve_clsBuildingDimensions object, float value);
/* Default of Wall_GableDiagonal from the parent design, m.
 * Range: 0 or more.
 * Errors: 6 if it doesn't fit. */
ORVE_C_API orve_error orve_clsBuildingDimensions_get_Wall_GableDiagonal_Default(orve_clsBuildingDimensions object, float* result);
/* Which pair of faces are the gables.
 * Range: 0 to 1, a member of GableFaces.
 * Errors: 6 outside 16 bits. */
ORVE_C_API orve_error orve_clsBuildingDimensions_get_Wall_GableFaces(orve_clsBuildingDimensions object, orve_GableFaces* result);
ORVE_C_API orve_error orve_clsBuildingDimensions_let_Wall_GableFaces(orve_clsBuildingDimensions object, orve_GableFaces value);
/* Gap beside Face 1, m.
 * Range: 0 or more; any number is stored.
 * BS 6399-2: 2.4.1.4. */
ORVE_C_API orve_error orve_clsBuildingDimensions_get_Wall_GapFace1(orve_clsBuildingDimensions object, float* result);
ORVE_C_API orve_error orve_clsBuildingDimensions_let_Wall_GapFace1(orve_clsBuildingDimensions object, float value);
/* Gap beside Face 2, m.
 * Range: 0 or more; any number is stored.
 * BS 6399-2: 2.4.1.4. */
ORVE_C_API orve_error orve_clsBuildingDimensions_get_Wall_GapFace2(orve_clsBuildingDimensions object, float* result);
ORVE_C_API orve_error orve_clsBuildingDimensions_let_Wall_GapFace2(orve_clsBuildingDimensions object, float value);
/* Gap beside Face 3, m.
 * Range: 0 or more; any number is stored.
 * BS 6399-2: 2.4.1.4. */
ORVE_C_API orve_error orve_clsBuildingDimensions_get_Wall_GapFace3(orve_clsBuildingDimensions object, float* result);
ORVE_C_API orve_error orve_clsBuildingDimensions_let_Wall_GapFace3(orve_clsBuildingDimensions object, float value);
/* Gap beside Face 4, m.
 * Range: 0 or more; any number is stored.
 * BS 6399-2: 2.4.1.4. */
ORVE_C_API orve_error orve_clsBuildingDimensions_get_Wall_GapFace4(orve_clsBuildingDimensions object, float* result);
ORVE_C_API orve_error orve_clsBuildingDimensions_let_Wall_GapFace4(orve_clsBuildingDimensions object, float value);
/* Length of the cantilever on Face 1 or Face 2, m.
 * Range: 0 or more; any number is stored. */
ORVE_C_API orve_error orve_clsBuildingDimensions_get_CantileverFace1Or2_Length(orve_clsBuildingDimensions object, float* result);
ORVE_C_API orve_error orve_clsBuildingDimensions_let_CantileverFace1Or2_Length(orve_clsBuildingDimensions object, float value);
/* Length of the cantilever on Face 3 or Face 4, m.
 * Range: 0 or more; any number is stored. */
ORVE_C_API orve_error orve_clsBuildingDimensions_get_CantileverFace3Or4_Length(orve_clsBuildingDimensions object, float* result);
ORVE_C_API orve_error orve_clsBuildingDimensions_let_CantileverFace3Or4_Length(orve_clsBuildingDimensions object, float value);
/* Height of the parapet itself, m.
 * Range: 0 or more; any number is stored. */
ORVE_C_API orve_error orve_clsBuildingDimensions_get_Parapet_Height(orve_clsBuildingDimensions object, float* result);
ORVE_C_API orve_error orve_clsBuildingDimensions_let_Parapet_Height(orve_clsBuildingDimensions object, float value);
/* Height of the top of the parapet above finished floor level, m.
 * Range: 0 or more; any number is stored. */
ORVE_C_API orve_error orve_clsBuildingDimensions_get_Parapet_HeightFromFFL_m(orve_clsBuildingDimensions object, float* result);
ORVE_C_API orve_error orve_clsBuildingDimensions_let_Parapet_HeightFromFFL_m(orve_clsBuildingDimensions object, float value);
/* Diagonal dimension for the side parapet, m.
 * Range: 0 or more; any number is stored. */
ORVE_C_API orve_error orve_clsBuildingDimensions_get_Parapet_SideDiagonal(orve_clsBuildingDimensions object, float* result);
ORVE_C_API orve_error orve_clsBuildingDimensions_let_Parapet_SideDiagonal(orve_clsBuildingDimensions object, float value);
/* Default of Parapet_SideDiagonal from the parent design, m.
 * Range: 0 or more.
 * Errors: 6 if it doesn't fit. */
ORVE_C_API orve_error orve_clsBuildingDimensions_get_Parapet_SideDiagonal_Default(orve_clsBuildingDimensions object, float* result);
/* Diagonal dimension for the gable parapet, m.
 * Range: 0 or more; any number is stored. */
ORVE_C_API orve_error orve_clsBuildingDimensions_get_Parapet_GableDiagonal(orve_clsBuildingDimensions object, float* result);
ORVE_C_API orve_error orve_clsBuildingDimensions_let_Parapet_GableDiagonal(orve_clsBuildingDimensions object, float value);
/* Default of Parapet_GableDiagonal from the parent design, m.
 * Range: 0 or more.
 * Errors: 6 if it doesn't fit. */
ORVE_C_API orve_error orve_clsBuildingDimensions_get_Parapet_GableDiagonal_Default(orve_clsBuildingDimensions object, float* result);
/* The side parapet has a return corner.
 * Range: True or False.
 * BS 6399-2: Table 21. */
ORVE_C_API orve_error orve_clsBuildingDimensions_get_Parapet_SideReturnCorner(orve_clsBuildingDimensions object, bool* result);
ORVE_C_API orve_error orve_clsBuildingDimensions_let_Parapet_SideReturnCorner(orve_clsBuildingDimensions object, bool value);
/* The gable parapet has a return corner.
 * Range: True or False.
 * BS 6399-2: Table 21. */
ORVE_C_API orve_error orve_clsBuildingDimensions_get_Parapet_GableReturnCorner(orve_clsBuildingDimensions object, bool* result);
ORVE_C_API orve_error orve_clsBuildingDimensions_let_Parapet_GableReturnCorner(orve_clsBuildingDimensions object, bool value);

/* clsDynamicPressure: The site, and dynamic pressure and its factors by wind area and sector. */
/* Wind area taken where an argument is -1.
 * Range: 0 to 5, a member of WindAreas.
 * Errors: 6 outside 16 bits. */
ORVE_C_API orve_error orve_clsDynamicPressure_get_WindArea(orve_clsDynamicPressure object, orve_WindAreas* result);
ORVE_C_API orve_error orve_clsDynamicPressure_let_WindArea(orve_clsDynamicPressure object, orve_WindAreas value);
/* Wind sector taken where an argument is -1.
 * Range: 0 to 11, a member of WindSectors.
 * Errors: 6 outside 16 bits. */
ORVE_C_API orve_error orve_clsDynamicPressure_get_WindSector(orve_clsDynamicPressure object, orve_WindSectors* result);
ORVE_C_API orve_error orve_clsDynamicPressure_let_WindSector(orve_clsDynamicPressure object, orve_WindSectors value);
/* The site is still to be loaded into the component.
 * Range: True or False. */
ORVE_C_API orve_error orve_clsDynamicPressure_get_SiteDirty(orve_clsDynamicPressure object, bool* result);
ORVE_C_API orve_error orve_clsDynamicPressure_let_SiteDirty(orve_clsDynamicPressure object, bool value);
/* A site reference has been assigned.
 * Range: True or False. */
ORVE_C_API orve_error orve_clsDynamicPressure_get_SiteSelected(orve_clsDynamicPressure object, bool* result);
ORVE_C_API orve_error orve_clsDynamicPressure_let_SiteSelected(orve_clsDynamicPressure object, bool value);
/* The site differs from what its reference alone gives.
 * Range: True or False. */
ORVE_C_API orve_error orve_clsDynamicPressure_get_SiteEdited(orve_clsDynamicPressure object, bool* result);
ORVE_C_API orve_error orve_clsDynamicPressure_let_SiteEdited(orve_clsDynamicPressure object, bool value);
/* The method of BS 6399-2.
 * Range: 0 to 1, a member of Methods.
 * Errors: 6 outside 16 bits. */
ORVE_C_API orve_error orve_clsDynamicPressure_get_Method(orve_clsDynamicPressure object, orve_Methods* result);
ORVE_C_API orve_error orve_clsDynamicPressure_let_Method(orve_clsDynamicPressure object, orve_Methods value);
/* q and Ca come from the hand-entered tables.
 * Range: True or False. */
ORVE_C_API orve_error orve_clsDynamicPressure_get_ManualResults(orve_clsDynamicPressure object, bool* result);
ORVE_C_API orve_error orve_clsDynamicPressure_let_ManualResults(orve_clsDynamicPressure object, bool value);
/* Site reference of the component; empty: none.
 * Range: any text; the built-in engine looks for a site file of that name. */
ORVE_C_API orve_error orve_clsDynamicPressure_get_GridReference(orve_clsDynamicPressure object, char** result);
ORVE_C_API orve_error orve_clsDynamicPressure_let_GridReference(orve_clsDynamicPressure object, const char* value);
/* What the altitude factor rests on.
 * Range: 0 to 1, a member of SaBasedOnTypes.
 * Errors: 6 outside 16 bits.
 * BS 6399-2: 2.2.2.2. */
ORVE_C_API orve_error orve_clsDynamicPressure_get_SaBasedOn(orve_clsDynamicPressure object, orve_SaBasedOnTypes* result);
ORVE_C_API orve_error orve_clsDynamicPressure_let_SaBasedOn(orve_clsDynamicPressure object, orve_SaBasedOnTypes value);
/* Altitude of the site, m.
 * Range: any number is stored. */
ORVE_C_API orve_error orve_clsDynamicPressure_get_SiteAltitude(orve_clsDynamicPressure object, float* result);
ORVE_C_API orve_error orve_clsDynamicPressure_let_SiteAltitude(orve_clsDynamicPressure object, float value);
/* Basic wind speed Vb, m/s.
 * Range: above 0; any number is stored.
 * BS 6399-2: Figure 6. */
ORVE_C_API orve_error orve_clsDynamicPressure_get_BasicWindSpeed(orve_clsDynamicPressure object, float* result);
ORVE_C_API orve_error orve_clsDynamicPressure_let_BasicWindSpeed(orve_clsDynamicPressure object, float value);
/* Annual risk of exceedance Q.
 * Range: above 0 and below 1; any number is stored.
 * BS 6399-2: annex D. */
ORVE_C_API orve_error orve_clsDynamicPressure_get_AnnualRisk(orve_clsDynamicPressure object, float* result);
ORVE_C_API orve_error orve_clsDynamicPressure_let_AnnualRisk(orve_clsDynamicPressure object, float value);
/* Permanent or temporary structure.
 * Range: 0 to 1, a member of LifeTime.
 * Errors: 6 outside 16 bits. */
ORVE_C_API orve_error orve_clsDynamicPressure_get_LifeTime(orve_clsDynamicPressure object, orve_LifeTime* result);
ORVE_C_API orve_error orve_clsDynamicPressure_let_LifeTime(orve_clsDynamicPressure object, orve_LifeTime value);
/* Part of the year of the exposure.
 * Range: 0 to 5, a member of Durations.
 * Errors: 6 outside 16 bits.
 * BS 6399-2: annex D. */
ORVE_C_API orve_error orve_clsDynamicPressure_get_Duration(orve_clsDynamicPressure object, orve_Durations* result);
ORVE_C_API orve_error orve_clsDynamicPressure_let_Duration(orve_clsDynamicPressure object, orve_Durations value);
/* First month of the exposure.
 * Range: 0 to 11, a member of Months.
 * Errors: 6 outside 16 bits.
 * BS 6399-2: annex D. */
ORVE_C_API orve_error orve_clsDynamicPressure_get_StartMonth(orve_clsDynamicPressure object, orve_Months* result);
ORVE_C_API orve_error orve_clsDynamicPressure_let_StartMonth(orve_clsDynamicPressure object, orve_Months value);
/* Crest height Z of the topographic feature, m.
 * Range: 0 or more; any number is stored.
 * Arguments: WindSector 0 to 11; -1 or left out: the object's own.
 * Errors: a let: 9 for a sector that isn't there; a get: 91 without a component, and those of the component.
 * BS 6399-2: Figure 7. */
ORVE_C_API orve_error orve_clsDynamicPressure_get_CrestHeight_Z(orve_clsDynamicPressure object, orve_WindSectors WindSector, float* result);
ORVE_C_API orve_error orve_clsDynamicPressure_let_CrestHeight_Z(orve_clsDynamicPressure object, orve_WindSectors WindSector, float value);
/* Distance X of the site from the crest, negative upwind, m.
 * Range: any number.
 * Arguments: WindSector 0 to 11; -1 or left out: the object's own.
 * Errors: a let: 9 for a sector that isn't there; a get: 91 without a component, and those of the component.
 * BS 6399-2: Figure 7. */
ORVE_C_API orve_error orve_clsDynamicPressure_get_SiteLocation_X(orve_clsDynamicPressure object, orve_WindSectors WindSector, float* result);
ORVE_C_API orve_error orve_clsDynamicPressure_let_SiteLocation_X(orve_clsDynamicPressure object, orve_WindSectors WindSector, float value);
/* Upwind slope length LU, m.
 * Range: 0 or more; any number is stored.
 * Arguments: WindSector 0 to 11; -1 or left out: the object's own.
 * Errors: a let: 9 for a sector that isn't there; a get: 91 without a component, and those of the component.
 * BS 6399-2: Figure 7. */
ORVE_C_API orve_error orve_clsDynamicPressure_get_UpwindLength_LU(orve_clsDynamicPressure object, orve_WindSectors WindSector, float* result);
ORVE_C_API orve_error orve_clsDynamicPressure_let_UpwindLength_LU(orve_clsDynamicPressure object, orve_WindSectors WindSector, float value);
/* Downwind slope length LD, m.
 * Range: 0 or more; any number is stored.
 * Arguments: WindSector 0 to 11; -1 or left out: the object's own.
 * Errors: a let: 9 for a sector that isn't there; a get: 91 without a component, and those of the component.
 * BS 6399-2: Figure 7. */
ORVE_C_API orve_error orve_clsDynamicPressure_get_DownwindLength_LD(orve_clsDynamicPressure object, orve_WindSectors WindSector, float* result);
ORVE_C_API orve_error orve_clsDynamicPressure_let_DownwindLength_LD(orve_clsDynamicPressure object, orve_WindSectors WindSector, float value);
/* Altitude of the base of the feature, m.
 * Range: any number.
 * Arguments: WindSector 0 to 11; -1 or left out: the object's own.
 * Errors: a let: 9 for a sector that isn't there; a get: 91 without a component, and those of the component. */
ORVE_C_API orve_error orve_clsDynamicPressure_get_BaseAltitude(orve_clsDynamicPressure object, orve_WindSectors WindSector, float* result);
ORVE_C_API orve_error orve_clsDynamicPressure_let_BaseAltitude(orve_clsDynamicPressure object, orve_WindSectors WindSector, float value);
/* Height Ho of the obstructions, m.
 * Range: 0 or more; any number is stored.
 * Arguments: WindSector 0 to 11; -1 or left out: the object's own.
 * Errors: a let: 9 for a sector that isn't there; a get: 91 without a component, and those of the component.
 * BS 6399-2: 1.7.3. */
ORVE_C_API orve_error orve_clsDynamicPressure_get_ObstructionHeight_Ho(orve_clsDynamicPressure object, orve_WindSectors WindSector, float* result);
ORVE_C_API orve_error orve_clsDynamicPressure_let_ObstructionHeight_Ho(orve_clsDynamicPressure object, orve_WindSectors WindSector, float value);
/* Upwind spacing Xo of the obstructions, m.
 * Range: 0 or more; any number is stored.
 * Arguments: WindSector 0 to 11; -1 or left out: the object's own.
 * Errors: a let: 9 for a sector that isn't there; a get: 91 without a component, and those of the component.
 * BS 6399-2: 1.7.3. */
ORVE_C_API orve_error orve_clsDynamicPressure_get_ObstructionSpacing_Xo(orve_clsDynamicPressure object, orve_WindSectors WindSector, float* result);
ORVE_C_API orve_error orve_clsDynamicPressure_let_ObstructionSpacing_Xo(orve_clsDynamicPressure object, orve_WindSectors WindSector, float value);
/* Distance to the sea, km.
 * Range: 0 or more; any number is stored.
 * Arguments: WindSector 0 to 11; -1 or left out: the object's own.
 * Errors: a let: 9 for a sector that isn't there; a get: 91 without a component, and those of the component.
 * BS 6399-2: Table 22. */
ORVE_C_API orve_error orve_clsDynamicPressure_get_FetchesToSea(orve_clsDynamicPressure object, orve_WindSectors WindSector, float* result);
ORVE_C_API orve_error orve_clsDynamicPressure_let_FetchesToSea(orve_clsDynamicPressure object, orve_WindSectors WindSector, float value);
/* Distance in the town from its upwind edge, km.
 * Range: 0 or more; any number is stored.
 * Arguments: WindSector 0 to 11; -1 or left out: the object's own.
 * Errors: a let: 9 for a sector that isn't there; a get: 91 without a component, and those of the component.
 * BS 6399-2: Table 23. */
ORVE_C_API orve_error orve_clsDynamicPressure_get_FetchesInTown(orve_clsDynamicPressure object, orve_WindSectors WindSector, float* result);
ORVE_C_API orve_error orve_clsDynamicPressure_let_FetchesInTown(orve_clsDynamicPressure object, orve_WindSectors WindSector, float value);
/* Probability factor Sp.
 * Range: 0 or more.
 * Errors: 91 without a component; 5 and others of the component.
 * BS 6399-2: annex D. */
ORVE_C_API orve_error orve_clsDynamicPressure_get_ProbabilityFactor_Sp(orve_clsDynamicPressure object, float* result);
/* Seasonal factor Ss.
 * Range: 0 or more.
 * Errors: 91 without a component; 5 and others of the component.
 * BS 6399-2: annex D. */
ORVE_C_API orve_error orve_clsDynamicPressure_get_SeasonalFactor_Ss(orve_clsDynamicPressure object, float* result);
/* Direction factor Sd.
 * Range: 0 or more.
 * Arguments: WindArea 0 to 5, WindSector 0 to 11; -1 or left out: the object's own.
 * Errors: 91 without a component; 5 and others of the component.
 * BS 6399-2: Table 3. */
ORVE_C_API orve_error orve_clsDynamicPressure_get_DirectionFactor_Sd(orve_clsDynamicPressure object, orve_WindAreas WindArea, orve_WindSectors WindSector, float* result);
/* Altitude factor Sa.
 * Range: 0 or more.
 * Arguments: WindArea 0 to 5, WindSector 0 to 11; -1 or left out: the object's own.
 * Errors: 91 without a component; 5 and others of the component.
 * BS 6399-2: 2.2.2.2. */
ORVE_C_API orve_error orve_clsDynamicPressure_get_AltitudeFactor_Sa(orve_clsDynamicPressure object, orve_WindAreas WindArea, orve_WindSectors WindSector, float* result);
/* Displacement height Hd, m.
 * Range: 0 or more.
 * Arguments: WindArea 0 to 5, WindSector 0 to 11; -1 or left out: the object's own.
 * Errors: 91 without a component; 5 and others of the component.
 * BS 6399-2: 1.7.3. */
ORVE_C_API orve_error orve_clsDynamicPressure_get_DisplacementHeight_Hd(orve_clsDynamicPressure object, orve_WindAreas WindArea, orve_WindSectors WindSector, float* result);
/* Effective height He, m.
 * Range: 0 or more.
 * Arguments: WindArea 0 to 5, WindSector 0 to 11; -1 or left out: the object's own.
 * Errors: 91 without a component; 5 and others of the component.
 * BS 6399-2: 1.7.3. */
ORVE_C_API orve_error orve_clsDynamicPressure_get_EffectiveHeight_He(orve_clsDynamicPressure object, orve_WindAreas WindArea, orve_WindSectors WindSector, float* result);
/* Topographic increment Sh.
 * Range: 0 or more.
 * Arguments: WindArea 0 to 5, WindSector 0 to 11; -1 or left out: the object's own.
 * Errors: 91 without a component; 5 and others of the component.
 * BS 6399-2: Table 25. */
ORVE_C_API orve_error orve_clsDynamicPressure_get_TopographicIncrement_Sh(orve_clsDynamicPressure object, orve_WindAreas WindArea, orve_WindSectors WindSector, float* result);
/* Fetch factor Sc.
 * Range: 0 or more.
 * Arguments: WindArea 0 to 5, WindSector 0 to 11; -1 or left out: the object's own.
 * Errors: 91 without a component; 5 and others of the component.
 * BS 6399-2: Table 22. */
ORVE_C_API orve_error orve_clsDynamicPressure_get_FetchFactor_Sc(orve_clsDynamicPressure object, orve_WindAreas WindArea, orve_WindSectors WindSector, float* result);
/* Turbulence factor St.
 * Range: 0 or more.
 * Arguments: WindArea 0 to 5, WindSector 0 to 11; -1 or left out: the object's own.
 * Errors: 91 without a component; 5 and others of the component.
 * BS 6399-2: Table 22. */
ORVE_C_API orve_error orve_clsDynamicPressure_get_TurbulenceFactor_St(orve_clsDynamicPressure object, orve_WindAreas WindArea, orve_WindSectors WindSector, float* result);
/* Fetch adjustment factor Tc.
 * Range: 0 or more.
 * Arguments: WindArea 0 to 5, WindSector 0 to 11; -1 or left out: the object's own.
 * Errors: 91 without a component; 5 and others of the component.
 * BS 6399-2: Table 23. */
ORVE_C_API orve_error orve_clsDynamicPressure_get_FetchAdjustmentFactor_Tc(orve_clsDynamicPressure object, orve_WindAreas WindArea, orve_WindSectors WindSector, float* result);
/* Turbulence adjustment factor Tt.
 * Range: 0 or more.
 * Arguments: WindArea 0 to 5, WindSector 0 to 11; -1 or left out: the object's own.
 * Errors: 91 without a component; 5 and others of the component.
 * BS 6399-2: Table 23. */
ORVE_C_API orve_error orve_clsDynamicPressure_get_TurbulenceAdjustmentFactor_Tt(orve_clsDynamicPressure object, orve_WindAreas WindArea, orve_WindSectors WindSector, float* result);
/* Gust peak factor gt.
 * Range: 3.44 under Hybrid, whatever the arguments.
 * Arguments: WindArea 0 to 5, WindSector 0 to 11; -1 or left out: the object's own.
 * Errors: 91 without a component; 5 and others of the component.
 * BS 6399-2: Table 24. */
ORVE_C_API orve_error orve_clsDynamicPressure_get_GustPeakFactor_gt(orve_clsDynamicPressure object, orve_WindAreas WindArea, orve_WindSectors WindSector, float* result);
/* Terrain and building factor Sb.
 * Range: 0 or more.
 * Arguments: WindArea 0 to 5, WindSector 0 to 11; -1 or left out: the object's own.
 * Errors: 91 without a component; 5 and others of the component. */
ORVE_C_API orve_error orve_clsDynamicPressure_get_TerrainAndBuildingFactor_Sb(orve_clsDynamicPressure object, orve_WindAreas WindArea, orve_WindSectors WindSector, float* result);
/* Effective wind speed Ve, m/s.
 * Range: 0 or more.
 * Arguments: WindArea 0 to 5, WindSector 0 to 11; -1 or left out: the object's own.
 * Errors: 91 without a component; 5 and others of the component. */
ORVE_C_API orve_error orve_clsDynamicPressure_get_EffectiveWindSpeed_Ve(orve_clsDynamicPressure object, orve_WindAreas WindArea, orve_WindSectors WindSector, float* result);
/* Dynamic pressure q; a let counts while ManualResults is True, kN/m².
 * Range: 0 or more.
 * Arguments: WindArea 0 to 5, WindSector 0 to 11; -1 or left out: the object's own.
 * Errors: 91 without a component; 5 and others of the component; with ManualResults 9 for an area or sector that isn't there. */
ORVE_C_API orve_error orve_clsDynamicPressure_get_DynamicPressure_q(orve_clsDynamicPressure object, orve_WindAreas WindArea, orve_WindSectors WindSector, float* result);
ORVE_C_API orve_error orve_clsDynamicPressure_let_DynamicPressure_q(orve_clsDynamicPressure object, orve_WindAreas WindArea, orve_WindSectors WindSector, float value);
/* Size effect factor Ca; a let counts while ManualResults is True.
 * Range: 0 for a diagonal of 0 or less.
 * Arguments: WindArea 0 to 5, WindSector 0 to 11; -1 or left out: the object's own.
 * Errors: 91 without a component; 5 and others of the component; with ManualResults 9 for an area or sector that isn't there.
 * BS 6399-2: Figure 4. */
ORVE_C_API orve_error orve_clsDynamicPressure_get_SizeEffectFactor_Ca(orve_clsDynamicPressure object, orve_WindAreas WindArea, orve_WindSectors WindSector, float* result);
ORVE_C_API orve_error orve_clsDynamicPressure_let_SizeEffectFactor_Ca(orve_clsDynamicPressure object, orve_WindAreas WindArea, orve_WindSectors WindSector, float value);
/* Site wind speed Vs, m/s.
 * Range: 0 or more.
 * Arguments: WindArea 0 to 5, WindSector 0 to 11; -1 or left out: the object's own.
 * Errors: 91 without a component; 5 and others of the component. */
ORVE_C_API orve_error orve_clsDynamicPressure_get_SiteWindSpeed_Vs(orve_clsDynamicPressure object, orve_WindAreas WindArea, orve_WindSectors WindSector, float* result);
/* Site dialog that picks a site; True if the user accepted.
 * Range: False after Cancel.
 * Errors: 91 without a component; 5 and others of the component. */
ORVE_C_API orve_error orve_clsDynamicPressure_SelectSite(orve_clsDynamicPressure object, bool* result);
/* Site dialog that enters a site; True if the user accepted.
 * Range: False after Cancel.
 * Errors: 91 without a component; 5 and others of the component. */
ORVE_C_API orve_error orve_clsDynamicPressure_EnterSite(orve_clsDynamicPressure object, bool* result);
/* Site dialog that edits the present site; True if the user accepted.
 * Range: False after Cancel.
 * Errors: 91 without a component; 5 and others of the component. */
ORVE_C_API orve_error orve_clsDynamicPressure_EditSite(orve_clsDynamicPressure object, bool* result);

/* clsExternalCoefficients: Zones of roof, walls and parapets, their coefficients and external loads. */
/* Building area taken where an argument is -1.
 * Range: 0 to 2, a member of BuildingAreas.
 * Errors: 6 outside 16 bits. */
ORVE_C_API orve_error orve_clsExternalCoefficients_get_BuildingArea(orve_clsExternalCoefficients object, orve_BuildingAreas* result);
ORVE_C_API orve_error orve_clsExternalCoefficients_let_BuildingArea(orve_clsExternalCoefficients object, orve_BuildingAreas value);
/* Face taken where an argument is -1.
 * Range: 0 to 3, a member of Faces.
 * Errors: 6 outside 16 bits. */
ORVE_C_API orve_error orve_clsExternalCoefficients_get_Face(orve_clsExternalCoefficients object, orve_Faces* result);
ORVE_C_API orve_error orve_clsExternalCoefficients_let_Face(orve_clsExternalCoefficients object, orve_Faces value);
/* Zone taken where an argument is -1.
 * Range: -32768 to 32767. */
ORVE_C_API orve_error orve_clsExternalCoefficients_get_ZoneIndex(orve_clsExternalCoefficients object, int16_t* result);
ORVE_C_API orve_error orve_clsExternalCoefficients_let_ZoneIndex(orve_clsExternalCoefficients object, int16_t value);
/* First zone of a face: 0.
 * Range: 0.
 * Arguments: BuildingArea 0 to 2, Face 0 to 3; -1 or left out: the object's own.
 * Errors: 91 without a component, and those of the component. */
ORVE_C_API orve_error orve_clsExternalCoefficients_get_ZoneIndexFrom(orve_clsExternalCoefficients object, orve_BuildingAreas BuildingArea, orve_Faces Face, int16_t* result);
/* Last zone of a face; -1 if there are none.
 * Range: -1 or more.
 * Arguments: BuildingArea 0 to 2, Face 0 to 3, ResultsScreen 0 to 1; -1 or left out: the object's own.
 * Errors: 91 without a component, and those of the component. */
ORVE_C_API orve_error orve_clsExternalCoefficients_get_ZoneIndexTo(orve_clsExternalCoefficients object, orve_BuildingAreas BuildingArea, orve_Faces Face, orve_ResultsScreens ResultsScreen, int16_t* result);
/* Coefficients come from the hand-entered tables.
 * Range: True or False. */
ORVE_C_API orve_error orve_clsExternalCoefficients_get_ManualResults(orve_clsExternalCoefficients object, bool* result);
ORVE_C_API orve_error orve_clsExternalCoefficients_let_ManualResults(orve_clsExternalCoefficients object, bool value);
/* Bay of a multi-span roof.
 * Range: 0 to 2, a member of Bays.
 * Errors: 6 outside 16 bits.
 * BS 6399-2: Table 12. */
ORVE_C_API orve_error orve_clsExternalCoefficients_get_Bay(orve_clsExternalCoefficients object, orve_Bays* result);
ORVE_C_API orve_error orve_clsExternalCoefficients_let_Bay(orve_clsExternalCoefficients object, orve_Bays value);
/* Whether the face is a gable wall.
 * Range: True or False.
 * Arguments: Face 0 to 3; -1 or left out: the object's own. */
ORVE_C_API orve_error orve_clsExternalCoefficients_get_GableFace(orve_clsExternalCoefficients object, orve_Faces Face, bool* result);
/* The face whose normal wind gives the zone its coefficients.
 * Range: 0 to 3, a value of Faces.
 * Arguments: BuildingArea 0 to 2, Face 0 to 3, ZoneIndex first to last zone of the face; -1 or left out: the object's own.
 * Errors: 9 for a zone that isn't there; 91 without a component; 5 and others of the components. */
ORVE_C_API orve_error orve_clsExternalCoefficients_get_Hybrid_WindFromFace(orve_clsExternalCoefficients object, orve_BuildingAreas BuildingArea, orve_Faces Face, int16_t ZoneIndex, int16_t* result);
/* Wind angle normal to the face; -1 if the orientation is unknown, degrees.
 * Range: 0 to 359, or -1.
 * Arguments: Face 0 to 3; -1 or left out: the object's own. */
ORVE_C_API orve_error orve_clsExternalCoefficients_get_Hybrid_AngleNormalToFace(orve_clsExternalCoefficients object, orve_Faces Face, float* result);
/* q of the worst wind for the zone, kN/m².
 * Range: 0 or more.
 * Arguments: BuildingArea 0 to 2, Face 0 to 3, ZoneIndex first to last zone of the face; -1 or left out: the object's own.
 * Errors: 9 for a zone that isn't there; 91 without a component; 5 and others of the components. */
ORVE_C_API orve_error orve_clsExternalCoefficients_get_Hybrid_WorstCase_DynamicPressure_q(orve_clsExternalCoefficients object, orve_BuildingAreas BuildingArea, orve_Faces Face, int16_t ZoneIndex, float* result);
/* Ca of the worst wind for the zone.
 * Range: 0 or more.
 * Arguments: BuildingArea 0 to 2, Face 0 to 3, ZoneIndex first to last zone of the face; -1 or left out: the object's own.
 * Errors: 9 for a zone that isn't there; 91 without a component; 5 and others of the components. */
ORVE_C_API orve_error orve_clsExternalCoefficients_get_Hybrid_WorstCase_SizeEffectFactor_Ca(orve_clsExternalCoefficients object, orve_BuildingAreas BuildingArea, orve_Faces Face, int16_t ZoneIndex, float* result);
/* The zone's name.
 * Arguments: BuildingArea 0 to 2, Face 0 to 3, ZoneIndex first to last zone of the face; -1 or left out: the object's own.
 * Errors: 9 for a zone that isn't there; 91 without a component; 5 and others of the components. */
ORVE_C_API orve_error orve_clsExternalCoefficients_get_Hybrid_ZoneDescription(orve_clsExternalCoefficients object, orve_BuildingAreas BuildingArea, orve_Faces Face, int16_t ZoneIndex, char** result);
/* The zone's two lengths; 0 where it shows none, m.
 * Range: 0 or more.
 * Arguments: BuildingArea 0 to 2, Face 0 to 3, ZoneIndex first to last zone of the face, ResultsScreen 0 to 1; -1 or left out: the object's own.
 * Errors: 9 for a zone that isn't there; 91 without a component; 5 and others of the components. */
ORVE_C_API orve_error orve_clsExternalCoefficients_get_Hybrid_ZoneDimensionsXY(orve_clsExternalCoefficients object, orve_BuildingAreas BuildingArea, orve_Faces Face, int16_t ZoneIndex, orve_ResultsScreens ResultsScreen, orve_ZoneDimensionsXY* result);
/* The zone's first length, m.
 * Range: 0 or more.
 * Arguments: BuildingArea 0 to 2, Face 0 to 3, ZoneIndex first to last zone of the face, ResultsScreen 0 to 1; -1 or left out: the object's own.
 * Errors: 9 for a zone that isn't there; 91 without a component; 5 and others of the components. */
ORVE_C_API orve_error orve_clsExternalCoefficients_get_Hybrid_ZoneDimensionX(orve_clsExternalCoefficients object, orve_BuildingAreas BuildingArea, orve_Faces Face, int16_t ZoneIndex, orve_ResultsScreens ResultsScreen, float* result);
/* The zone's second length, m.
 * Range: 0 or more.
 * Arguments: BuildingArea 0 to 2, Face 0 to 3, ZoneIndex first to last zone of the face, ResultsScreen 0 to 1; -1 or left out: the object's own.
 * Errors: 9 for a zone that isn't there; 91 without a component; 5 and others of the components. */
ORVE_C_API orve_error orve_clsExternalCoefficients_get_Hybrid_ZoneDimensionY(orve_clsExternalCoefficients object, orve_BuildingAreas BuildingArea, orve_Faces Face, int16_t ZoneIndex, orve_ResultsScreens ResultsScreen, float* result);
/* The zone's lengths as text.
 * Arguments: BuildingArea 0 to 2, Face 0 to 3, ZoneIndex first to last zone of the face, ResultsScreen 0 to 1; -1 or left out: the object's own.
 * Errors: 9 for a zone that isn't there; 91 without a component; 5 and others of the components. */
ORVE_C_API orve_error orve_clsExternalCoefficients_get_Hybrid_ZoneDimensions(orve_clsExternalCoefficients object, orve_BuildingAreas BuildingArea, orve_Faces Face, int16_t ZoneIndex, orve_ResultsScreens ResultsScreen, char** result);
/* External pressure coefficient; a let counts while ManualResults is True.
 * Range: 0 or more; leeward zones of a parapet keep the component's sign.
 * Arguments: BuildingArea 0 to 2, Face 0 to 3, ZoneIndex first to last zone of the face; -1 or left out: the object's own.
 * Errors: 9 for a zone that isn't there, by hand zones 0 to 27; 91 without a component; 5 and others of the components. */
ORVE_C_API orve_error orve_clsExternalCoefficients_get_Hybrid_ExternalCoefficientFactor_Cpe_Pressure(orve_clsExternalCoefficients object, orve_BuildingAreas BuildingArea, orve_Faces Face, int16_t ZoneIndex, float* result);
ORVE_C_API orve_error orve_clsExternalCoefficients_let_Hybrid_ExternalCoefficientFactor_Cpe_Pressure(orve_clsExternalCoefficients object, orve_BuildingAreas BuildingArea, orve_Faces Face, int16_t ZoneIndex, float value);
/* External suction coefficient, a magnitude; a let counts while ManualResults is True.
 * Range: 0 or more; leeward zones of a parapet keep the component's sign.
 * Arguments: BuildingArea 0 to 2, Face 0 to 3, ZoneIndex first to last zone of the face; -1 or left out: the object's own.
 * Errors: 9 for a zone that isn't there, by hand zones 0 to 27; 91 without a component; 5 and others of the components. */
ORVE_C_API orve_error orve_clsExternalCoefficients_get_Hybrid_ExternalCoefficientFactor_Cpe_Suction(orve_clsExternalCoefficients object, orve_BuildingAreas BuildingArea, orve_Faces Face, int16_t ZoneIndex, float* result);
ORVE_C_API orve_error orve_clsExternalCoefficients_let_Hybrid_ExternalCoefficientFactor_Cpe_Suction(orve_clsExternalCoefficients object, orve_BuildingAreas BuildingArea, orve_Faces Face, int16_t ZoneIndex, float value);
/* External pressure Ca q Cpe, kN/m².
 * Range: 0 or more; leeward zones of a parapet keep the component's sign.
 * Arguments: BuildingArea 0 to 2, Face 0 to 3, ZoneIndex first to last zone of the face; -1 or left out: the object's own.
 * Errors: 9 for a zone that isn't there; 6 if the product doesn't fit; 91 without a component; 5 and others of the components. */
ORVE_C_API orve_error orve_clsExternalCoefficients_get_Hybrid_ExternalAppliedLoad_Pressure(orve_clsExternalCoefficients object, orve_BuildingAreas BuildingArea, orve_Faces Face, int16_t ZoneIndex, float* result);
/* External suction Ca q Cpe, a magnitude, kN/m².
 * Range: 0 or more; leeward zones of a parapet keep the component's sign.
 * Arguments: BuildingArea 0 to 2, Face 0 to 3, ZoneIndex first to last zone of the face; -1 or left out: the object's own.
 * Errors: 9 for a zone that isn't there; 6 if the product doesn't fit; 91 without a component; 5 and others of the components. */
ORVE_C_API orve_error orve_clsExternalCoefficients_get_Hybrid_ExternalAppliedLoad_Suction(orve_clsExternalCoefficients object, orve_BuildingAreas BuildingArea, orve_Faces Face, int16_t ZoneIndex, float* result);
/* Both external loads as text.
 * Range: as "+0.512, -0.300 kN/m²"; a side without a load is left out.
 * Arguments: BuildingArea 0 to 2, Face 0 to 3, ZoneIndex first to last zone of the face; -1 or left out: the object's own.
 * Errors: 9 for a zone that isn't there; 6 if the product doesn't fit; 91 without a component; 5 and others of the components. */
ORVE_C_API orve_error orve_clsExternalCoefficients_get_Hybrid_ExternalAppliedLoads(orve_clsExternalCoefficients object, orve_BuildingAreas BuildingArea, orve_Faces Face, int16_t ZoneIndex, char** result);

/* clsInternalCoefficients: Internal pressure coefficients by face and internal loads. */
/* Face taken where an argument is -1.
 * Range: 0 to 3, a member of Faces.
 * Errors: 6 outside 16 bits. */
ORVE_C_API orve_error orve_clsInternalCoefficients_get_Face(orve_clsInternalCoefficients object, orve_Faces* result);
ORVE_C_API orve_error orve_clsInternalCoefficients_let_Face(orve_clsInternalCoefficients object, orve_Faces value);
/* Enclosed, with a dominant opening, or open sided.
 * Range: 0 to 2, a member of StructureTypes.
 * Errors: 6 outside 16 bits.
 * BS 6399-2: 2.6. */
ORVE_C_API orve_error orve_clsInternalCoefficients_get_StructureType(orve_clsInternalCoefficients object, orve_StructureTypes* result);
ORVE_C_API orve_error orve_clsInternalCoefficients_let_StructureType(orve_clsInternalCoefficients object, orve_StructureTypes value);
/* Diagonal of a dominant opening, m.
 * Range: 0 or more; any number is stored.
 * BS 6399-2: 2.6.2. */
ORVE_C_API orve_error orve_clsInternalCoefficients_get_DiagonalDimension_a(orve_clsInternalCoefficients object, float* result);
ORVE_C_API orve_error orve_clsInternalCoefficients_let_DiagonalDimension_a(orve_clsInternalCoefficients object, float value);
/* Internal volume of the storey, m³.
 * Range: 0 or more; any number is stored.
 * BS 6399-2: 2.6.1. */
ORVE_C_API orve_error orve_clsInternalCoefficients_get_InternalVolume(orve_clsInternalCoefficients object, float* result);
ORVE_C_API orve_error orve_clsInternalCoefficients_let_InternalVolume(orve_clsInternalCoefficients object, float value);
/* The wind area that the internal wind area follows.
 * Range: 0 to 2, a member of WindPressureTypes.
 * Errors: 6 outside 16 bits. */
ORVE_C_API orve_error orve_clsInternalCoefficients_get_WindPressureType(orve_clsInternalCoefficients object, orve_WindPressureTypes* result);
ORVE_C_API orve_error orve_clsInternalCoefficients_let_WindPressureType(orve_clsInternalCoefficients object, orve_WindPressureTypes value);
/* Rule: Cpi +0.2 or -0.3.
 * Range: True if it was chosen and its coefficients still stand; a let of True writes them, one of False leaves them.
 * BS 6399-2: Table 16. */
ORVE_C_API orve_error orve_clsInternalCoefficients_get_EnclosedBuilding_GeneralCase(orve_clsInternalCoefficients object, bool* result);
ORVE_C_API orve_error orve_clsInternalCoefficients_let_EnclosedBuilding_GeneralCase(orve_clsInternalCoefficients object, bool value);
/* Rule: Cpi 0 and -0.3.
 * Range: True if it was chosen and its coefficients still stand; a let of True writes them, one of False leaves them.
 * BS 6399-2: Table 16. */
ORVE_C_API orve_error orve_clsInternalCoefficients_get_EnclosedBuilding_NoPositiveInternalPressure(orve_clsInternalCoefficients object, bool* result);
ORVE_C_API orve_error orve_clsInternalCoefficients_let_EnclosedBuilding_NoPositiveInternalPressure(orve_clsInternalCoefficients object, bool value);
/* Rule: Cpi +0.2.
 * Range: True if it was chosen and its coefficients still stand; a let of True writes them, one of False leaves them.
 * BS 6399-2: Table 16. */
ORVE_C_API orve_error orve_clsInternalCoefficients_get_EnclosedBuilding_WindNormalToPermeableFace(orve_clsInternalCoefficients object, bool* result);
ORVE_C_API orve_error orve_clsInternalCoefficients_let_EnclosedBuilding_WindNormalToPermeableFace(orve_clsInternalCoefficients object, bool value);
/* Rule: Cpi -0.3.
 * Range: True if it was chosen and its coefficients still stand; a let of True writes them, one of False leaves them.
 * BS 6399-2: Table 16. */
ORVE_C_API orve_error orve_clsInternalCoefficients_get_EnclosedBuilding_WindNormalToImpermeableFace(orve_clsInternalCoefficients object, bool* result);
ORVE_C_API orve_error orve_clsInternalCoefficients_let_EnclosedBuilding_WindNormalToImpermeableFace(orve_clsInternalCoefficients object, bool value);
/* Rule: Cpi -0.3.
 * Range: True if it was chosen and its coefficients still stand; a let of True writes them, one of False leaves them.
 * BS 6399-2: Table 16. */
ORVE_C_API orve_error orve_clsInternalCoefficients_get_EnclosedBuilding_FourWallsEquallyPermeable(orve_clsInternalCoefficients object, bool* result);
ORVE_C_API orve_error orve_clsInternalCoefficients_let_EnclosedBuilding_FourWallsEquallyPermeable(orve_clsInternalCoefficients object, bool value);
/* Zone taken for DominantOpening_ZoneDescription.
 * Range: -32768 to 32767. */
ORVE_C_API orve_error orve_clsInternalCoefficients_get_DominantOpening_ZoneIndex(orve_clsInternalCoefficients object, int16_t* result);
ORVE_C_API orve_error orve_clsInternalCoefficients_let_DominantOpening_ZoneIndex(orve_clsInternalCoefficients object, int16_t value);
/* First wall zone of a face.
 * Range: 0.
 * Arguments: Face 0 to 3; -1 or left out: the object's own.
 * Errors: 91 without a component, and those of the component. */
ORVE_C_API orve_error orve_clsInternalCoefficients_get_DominantOpening_ZoneIndexFrom(orve_clsInternalCoefficients object, orve_Faces Face, int16_t* result);
/* Last wall zone of a face.
 * Range: -1 or more.
 * Arguments: Face 0 to 3; -1 or left out: the object's own.
 * Errors: 91 without a component, and those of the component. */
ORVE_C_API orve_error orve_clsInternalCoefficients_get_DominantOpening_ZoneIndexTo(orve_clsInternalCoefficients object, orve_Faces Face, int16_t* result);
/* Name of a wall zone.
 * Arguments: Face 0 to 3, ZoneIndex first to last zone of the face; -1 or left out: the object's own.
 * Errors: 9 for a zone that isn't there; 91 without a component; 5 and others of the component. */
ORVE_C_API orve_error orve_clsInternalCoefficients_get_DominantOpening_ZoneDescription(orve_clsInternalCoefficients object, orve_Faces Face, int16_t ZoneIndex, char** result);
/* The wall zone in which the face's dominant opening lies.
 * Range: 0 to 13, a member of WallZones.
 * Arguments: Face 0 to 3; -1 or left out: the object's own.
 * Errors: 9 for a face that isn't there; 6 outside 16 bits. */
ORVE_C_API orve_error orve_clsInternalCoefficients_get_DominantOpening_SelectedZoneIndex(orve_clsInternalCoefficients object, orve_Faces Face, orve_WallZones* result);
ORVE_C_API orve_error orve_clsInternalCoefficients_let_DominantOpening_SelectedZoneIndex(orve_clsInternalCoefficients object, orve_Faces Face, orve_WallZones value);
/* External pressure coefficient of that zone.
 * Range: 0 or more; 0 if the face has no such zone.
 * Arguments: Face 0 to 3; -1 or left out: the object's own.
 * Errors: 9 for a face that isn't there; 91 without a component; 5 and others of the components. */
ORVE_C_API orve_error orve_clsInternalCoefficients_get_DominantOpening_SelectedZoneCpe_Pressure(orve_clsInternalCoefficients object, orve_Faces Face, float* result);
/* External suction coefficient of that zone.
 * Range: 0 or more; 0 if the face has no such zone.
 * Arguments: Face 0 to 3; -1 or left out: the object's own.
 * Errors: 9 for a face that isn't there; 91 without a component; 5 and others of the components. */
ORVE_C_API orve_error orve_clsInternalCoefficients_get_DominantOpening_SelectedZoneCpe_Suction(orve_clsInternalCoefficients object, orve_Faces Face, float* result);
/* Rule: Cpi = 0.75 Cpe.
 * Range: True if it was chosen and its coefficients still stand; a let of True writes them, one of False leaves them.
 * Arguments: Face 0 to 3; -1 or left out: the object's own.
 * Errors: 9 for a face that isn't there; 91 without a component; 5 and others of the components.
 * BS 6399-2: Table 17. */
ORVE_C_API orve_error orve_clsInternalCoefficients_get_DominantOpening_Ratio2(orve_clsInternalCoefficients object, orve_Faces Face, bool* result);
ORVE_C_API orve_error orve_clsInternalCoefficients_let_DominantOpening_Ratio2(orve_clsInternalCoefficients object, orve_Faces Face, bool value);
/* Rule: Cpi = 0.9 Cpe.
 * Range: True if it was chosen and its coefficients still stand; a let of True writes them, one of False leaves them.
 * Arguments: Face 0 to 3; -1 or left out: the object's own.
 * Errors: 9 for a face that isn't there; 91 without a component; 5 and others of the components.
 * BS 6399-2: Table 17. */
ORVE_C_API orve_error orve_clsInternalCoefficients_get_DominantOpening_Ratio3(orve_clsInternalCoefficients object, orve_Faces Face, bool* result);
ORVE_C_API orve_error orve_clsInternalCoefficients_let_DominantOpening_Ratio3(orve_clsInternalCoefficients object, orve_Faces Face, bool value);
/* Internal pressure coefficient.
 * Range: 0 or more; any number is stored.
 * Arguments: Face 0 to 3; -1 or left out: the object's own.
 * Errors: 9 for a face that isn't there. */
ORVE_C_API orve_error orve_clsInternalCoefficients_get_InternalCoefficientFactor_Cpi_Pressure(orve_clsInternalCoefficients object, orve_Faces Face, float* result);
ORVE_C_API orve_error orve_clsInternalCoefficients_let_InternalCoefficientFactor_Cpi_Pressure(orve_clsInternalCoefficients object, orve_Faces Face, float value);
/* Internal suction coefficient, a magnitude.
 * Range: 0 or more; any number is stored.
 * Arguments: Face 0 to 3; -1 or left out: the object's own.
 * Errors: 9 for a face that isn't there. */
ORVE_C_API orve_error orve_clsInternalCoefficients_get_InternalCoefficientFactor_Cpi_Suction(orve_clsInternalCoefficients object, orve_Faces Face, float* result);
ORVE_C_API orve_error orve_clsInternalCoefficients_let_InternalCoefficientFactor_Cpi_Suction(orve_clsInternalCoefficients object, orve_Faces Face, float value);
/* q of the worst wind for the face, kN/m².
 * Range: 0 or more.
 * Arguments: Face 0 to 3; -1 or left out: the object's own.
 * Errors: 9 for a face that isn't there; 91 without a component; 5 and others of the components. */
ORVE_C_API orve_error orve_clsInternalCoefficients_get_Hybrid_WorstCase_DynamicPressure_q(orve_clsInternalCoefficients object, orve_Faces Face, float* result);
/* Diagonal for the size effect factor of internal pressure, m.
 * Range: 0 or more; 0 for an open-sided building.
 * Errors: 6 if it doesn't fit.
 * BS 6399-2: 2.6.1, 2.6.2. */
ORVE_C_API orve_error orve_clsInternalCoefficients_get_Calculated_DiagonalDimension_a(orve_clsInternalCoefficients object, float* result);
/* Ca of the worst wind for the face.
 * Range: 0 or more.
 * Arguments: Face 0 to 3; -1 or left out: the object's own.
 * Errors: 9 for a face that isn't there; 91 without a component; 5 and others of the components. */
ORVE_C_API orve_error orve_clsInternalCoefficients_get_Hybrid_WorstCase_SizeEffectFactor_Ca(orve_clsInternalCoefficients object, orve_Faces Face, float* result);
/* Internal pressure Ca q Cpi, kN/m².
 * Range: 0 or more.
 * Arguments: Face 0 to 3; -1 or left out: the object's own.
 * Errors: 9 for a face that isn't there; 6 if the product doesn't fit; 91 without a component; 5 and others of the components. */
ORVE_C_API orve_error orve_clsInternalCoefficients_get_Hybrid_InternalAppliedLoad_Pressure(orve_clsInternalCoefficients object, orve_Faces Face, float* result);
/* Internal suction Ca q Cpi, a magnitude, kN/m².
 * Range: 0 or more.
 * Arguments: Face 0 to 3; -1 or left out: the object's own.
 * Errors: 9 for a face that isn't there; 6 if the product doesn't fit; 91 without a component; 5 and others of the components. */
ORVE_C_API orve_error orve_clsInternalCoefficients_get_Hybrid_InternalAppliedLoad_Suction(orve_clsInternalCoefficients object, orve_Faces Face, float* result);
/* Both internal loads as text.
 * Range: as "+0.129, -0.193 kN/m²"; a side without a load is left out.
 * Arguments: Face 0 to 3; -1 or left out: the object's own.
 * Errors: 9 for a face that isn't there; 6 if the product doesn't fit; 91 without a component; 5 and others of the components. */
ORVE_C_API orve_error orve_clsInternalCoefficients_get_Hybrid_InternalAppliedLoads(orve_clsInternalCoefficients object, orve_Faces Face, char** result);

/* clsOverallAppliedLoads: Loads by zone, selected, stepped and bay loads, and cantilevers. */
/* Copy of the cantilever zone table.
 * Range: no rows before CantileverValues. */
ORVE_C_API orve_error orve_clsOverallAppliedLoads_GetCantileverZones(orve_clsOverallAppliedLoads object, orve_CantileverZones** rows, size_t* count);
/* Copy of the cantilever result table.
 * Range: no rows before CantileverValues. */
ORVE_C_API orve_error orve_clsOverallAppliedLoads_GetCantileverResults(orve_clsOverallAppliedLoads object, orve_CantileverResults** rows, size_t* count);
/* Building area taken where an argument is -1.
 * Range: 0 to 2, a member of BuildingAreas.
 * Errors: 6 outside 16 bits. */
ORVE_C_API orve_error orve_clsOverallAppliedLoads_get_BuildingArea(orve_clsOverallAppliedLoads object, orve_BuildingAreas* result);
ORVE_C_API orve_error orve_clsOverallAppliedLoads_let_BuildingArea(orve_clsOverallAppliedLoads object, orve_BuildingAreas value);
/* Face taken where an argument is -1.
 * Range: 0 to 3, a member of Faces.
 * Errors: 6 outside 16 bits. */
ORVE_C_API orve_error orve_clsOverallAppliedLoads_get_Face(orve_clsOverallAppliedLoads object, orve_Faces* result);
ORVE_C_API orve_error orve_clsOverallAppliedLoads_let_Face(orve_clsOverallAppliedLoads object, orve_Faces value);
/* Zone taken where an argument is -1.
 * Range: -32768 to 32767. */
ORVE_C_API orve_error orve_clsOverallAppliedLoads_get_ZoneIndex(orve_clsOverallAppliedLoads object, int16_t* result);
ORVE_C_API orve_error orve_clsOverallAppliedLoads_let_ZoneIndex(orve_clsOverallAppliedLoads object, int16_t value);
/* First zone of a face.
 * Range: 0.
 * Arguments: BuildingArea 0 to 2, Face 0 to 3; -1 or left out: the object's own.
 * Errors: 91 without a component, and those of the component. */
ORVE_C_API orve_error orve_clsOverallAppliedLoads_get_ZoneIndexFrom(orve_clsOverallAppliedLoads object, orve_BuildingAreas BuildingArea, orve_Faces Face, int16_t* result);
/* Last zone of a face; -1 if there are none.
 * Range: -1 or more.
 * Arguments: BuildingArea 0 to 2, Face 0 to 3; -1 or left out: the object's own.
 * Errors: 91 without a component, and those of the component. */
ORVE_C_API orve_error orve_clsOverallAppliedLoads_get_ZoneIndexTo(orve_clsOverallAppliedLoads object, orve_BuildingAreas BuildingArea, orve_Faces Face, int16_t* result);
/* The zone's name.
 * Arguments: BuildingArea 0 to 2, Face 0 to 3, ZoneIndex first to last zone of the face; -1 or left out: the object's own.
 * Errors: 9 for a zone that isn't there; 91 without a component; 5 and others of the components. */
ORVE_C_API orve_error orve_clsOverallAppliedLoads_get_Hybrid_ZoneDescription(orve_clsOverallAppliedLoads object, orve_BuildingAreas BuildingArea, orve_Faces Face, int16_t ZoneIndex, char** result);
/* The zone's lengths as text.
 * Arguments: BuildingArea 0 to 2, Face 0 to 3, ZoneIndex first to last zone of the face; -1 or left out: the object's own.
 * Errors: 9 for a zone that isn't there; 91 without a component; 5 and others of the components. */
ORVE_C_API orve_error orve_clsOverallAppliedLoads_get_Hybrid_ZoneDimensions(orve_clsOverallAppliedLoads object, orve_BuildingAreas BuildingArea, orve_Faces Face, int16_t ZoneIndex, char** result);
/* The zone's external loads as text.
 * Arguments: BuildingArea 0 to 2, Face 0 to 3, ZoneIndex first to last zone of the face; -1 or left out: the object's own.
 * Errors: 9 for a zone that isn't there; 91 without a component; 5 and others of the components. */
ORVE_C_API orve_error orve_clsOverallAppliedLoads_get_Hybrid_ExternalAppliedLoads(orve_clsOverallAppliedLoads object, orve_BuildingAreas BuildingArea, orve_Faces Face, int16_t ZoneIndex, char** result);
/* The zone's internal loads as text.
 * Range: empty for a parapet.
 * Arguments: BuildingArea 0 to 2, Face 0 to 3, ZoneIndex first to last zone of the face; -1 or left out: the object's own.
 * Errors: 9 for a zone that isn't there; 91 without a component; 5 and others of the components. */
ORVE_C_API orve_error orve_clsOverallAppliedLoads_get_Hybrid_InternalAppliedLoads(orve_clsOverallAppliedLoads object, orve_BuildingAreas BuildingArea, orve_Faces Face, int16_t ZoneIndex, char** result);
/* Greatest positive net load, kN/m².
 * Range: 0 or more; 0 where no combination is positive.
 * Arguments: BuildingArea 0 to 2, Face 0 to 3, ZoneIndex first to last zone of the face; -1 or left out: the object's own.
 * Errors: 9 for a zone that isn't there; 91 without a component; 5 and others of the components. */
ORVE_C_API orve_error orve_clsOverallAppliedLoads_get_Hybrid_OverallAppliedLoad_Pressure(orve_clsOverallAppliedLoads object, orve_BuildingAreas BuildingArea, orve_Faces Face, int16_t ZoneIndex, float* result);
/* Most negative net load, kN/m².
 * Range: 0 or less; 0 where no combination is negative.
 * Arguments: BuildingArea 0 to 2, Face 0 to 3, ZoneIndex first to last zone of the face; -1 or left out: the object's own.
 * Errors: 9 for a zone that isn't there; 91 without a component; 5 and others of the components. */
ORVE_C_API orve_error orve_clsOverallAppliedLoads_get_Hybrid_OverallAppliedLoad_Suction(orve_clsOverallAppliedLoads object, orve_BuildingAreas BuildingArea, orve_Faces Face, int16_t ZoneIndex, float* result);
/* Both net loads as text.
 * Range: as "+1.250, -0.500 kN/m²"; a side without a load is left out.
 * Arguments: BuildingArea 0 to 2, Face 0 to 3, ZoneIndex first to last zone of the face; -1 or left out: the object's own.
 * Errors: 9 for a zone that isn't there; 91 without a component; 5 and others of the components. */
ORVE_C_API orve_error orve_clsOverallAppliedLoads_get_Hybrid_OverallAppliedLoads(orve_clsOverallAppliedLoads object, orve_BuildingAreas BuildingArea, orve_Faces Face, int16_t ZoneIndex, char** result);
/* The face that the host has chosen.
 * Range: 0 to 3, a member of Faces. */
ORVE_C_API orve_error orve_clsOverallAppliedLoads_get_SelectedFace(orve_clsOverallAppliedLoads object, orve_Faces* result);
ORVE_C_API orve_error orve_clsOverallAppliedLoads_let_SelectedFace(orve_clsOverallAppliedLoads object, orve_Faces value);
/* The load chosen for an area and face.
 * Range: 0 to 26, a member of SelectedLoadTypes.
 * Arguments: BuildingArea 0 to 2, Face 0 to 3; -1 or left out: the object's own.
 * Errors: 9 for an area or face that isn't there; 6 outside 16 bits. */
ORVE_C_API orve_error orve_clsOverallAppliedLoads_get_SelectedLoadType(orve_clsOverallAppliedLoads object, orve_BuildingAreas BuildingArea, orve_Faces Face, orve_SelectedLoadTypes* result);
ORVE_C_API orve_error orve_clsOverallAppliedLoads_let_SelectedLoadType(orve_clsOverallAppliedLoads object, orve_BuildingAreas BuildingArea, orve_Faces Face, orve_SelectedLoadTypes value);
/* The chosen load as text.
 * Arguments: BuildingArea 0 to 2, Face 0 to 3; -1 or left out: the object's own.
 * Errors: 9 for an area, face or zone that isn't there; 91 without a component; 5 and others of the components. */
ORVE_C_API orve_error orve_clsOverallAppliedLoads_get_SelectedLoadValues(orve_clsOverallAppliedLoads object, orve_BuildingAreas BuildingArea, orve_Faces Face, char** result);
/* The stepped load over the end bay as text.
 * Range: empty unless a stepped load is chosen.
 * Arguments: BuildingArea 0 to 2, Face 0 to 3; -1 or left out: the object's own.
 * Errors: 9 for an area, face or zone that isn't there; 91 without a component; 5 and others of the components. */
ORVE_C_API orve_error orve_clsOverallAppliedLoads_get_SelectedLoadValues_External(orve_clsOverallAppliedLoads object, orve_BuildingAreas BuildingArea, orve_Faces Face, char** result);
/* The stepped load over the internal bay as text.
 * Range: empty unless a stepped load is chosen.
 * Arguments: BuildingArea 0 to 2, Face 0 to 3; -1 or left out: the object's own.
 * Errors: 9 for an area, face or zone that isn't there; 91 without a component; 5 and others of the components. */
ORVE_C_API orve_error orve_clsOverallAppliedLoads_get_SelectedLoadValues_Internal(orve_clsOverallAppliedLoads object, orve_BuildingAreas BuildingArea, orve_Faces Face, char** result);
/* Load of the first step, kN/m².
 * Range: any number.
 * Arguments: BuildingArea 0 to 2, Face 0 to 3; -1 or left out: the object's own.
 * Errors: 9 for an area or face that isn't there. */
ORVE_C_API orve_error orve_clsOverallAppliedLoads_get_SteppedWind_Load_1(orve_clsOverallAppliedLoads object, orve_BuildingAreas BuildingArea, orve_Faces Face, float* result);
ORVE_C_API orve_error orve_clsOverallAppliedLoads_let_SteppedWind_Load_1(orve_clsOverallAppliedLoads object, orve_BuildingAreas BuildingArea, orve_Faces Face, float value);
/* Load of the second step, kN/m².
 * Range: any number.
 * Arguments: BuildingArea 0 to 2, Face 0 to 3; -1 or left out: the object's own.
 * Errors: 9 for an area or face that isn't there. */
ORVE_C_API orve_error orve_clsOverallAppliedLoads_get_SteppedWind_Load_2(orve_clsOverallAppliedLoads object, orve_BuildingAreas BuildingArea, orve_Faces Face, float* result);
ORVE_C_API orve_error orve_clsOverallAppliedLoads_let_SteppedWind_Load_2(orve_clsOverallAppliedLoads object, orve_BuildingAreas BuildingArea, orve_Faces Face, float value);
/* Load behind the second step, kN/m².
 * Range: any number.
 * Arguments: BuildingArea 0 to 2, Face 0 to 3; -1 or left out: the object's own.
 * Errors: 9 for an area or face that isn't there. */
ORVE_C_API orve_error orve_clsOverallAppliedLoads_get_SteppedWind_Load_3(orve_clsOverallAppliedLoads object, orve_BuildingAreas BuildingArea, orve_Faces Face, float* result);
ORVE_C_API orve_error orve_clsOverallAppliedLoads_let_SteppedWind_Load_3(orve_clsOverallAppliedLoads object, orve_BuildingAreas BuildingArea, orve_Faces Face, float value);
/* Length of the first step, m.
 * Range: 0 or more; any number is stored.
 * Arguments: BuildingArea 0 to 2, Face 0 to 3; -1 or left out: the object's own.
 * Errors: 9 for an area or face that isn't there. */
ORVE_C_API orve_error orve_clsOverallAppliedLoads_get_SteppedWind_Distance_1(orve_clsOverallAppliedLoads object, orve_BuildingAreas BuildingArea, orve_Faces Face, float* result);
ORVE_C_API orve_error orve_clsOverallAppliedLoads_let_SteppedWind_Distance_1(orve_clsOverallAppliedLoads object, orve_BuildingAreas BuildingArea, orve_Faces Face, float value);
/* Length of the second step, m.
 * Range: 0 or more; any number is stored.
 * Arguments: BuildingArea 0 to 2, Face 0 to 3; -1 or left out: the object's own.
 * Errors: 9 for an area or face that isn't there. */
ORVE_C_API orve_error orve_clsOverallAppliedLoads_get_SteppedWind_Distance_2(orve_clsOverallAppliedLoads object, orve_BuildingAreas BuildingArea, orve_Faces Face, float* result);
ORVE_C_API orve_error orve_clsOverallAppliedLoads_let_SteppedWind_Distance_2(orve_clsOverallAppliedLoads object, orve_BuildingAreas BuildingArea, orve_Faces Face, float value);
/* Length of the third step, m.
 * Range: 0 or more; any number is stored.
 * Arguments: BuildingArea 0 to 2, Face 0 to 3; -1 or left out: the object's own.
 * Errors: 9 for an area or face that isn't there. */
ORVE_C_API orve_error orve_clsOverallAppliedLoads_get_SteppedWind_Distance_3(orve_clsOverallAppliedLoads object, orve_BuildingAreas BuildingArea, orve_Faces Face, float* result);
ORVE_C_API orve_error orve_clsOverallAppliedLoads_let_SteppedWind_Distance_3(orve_clsOverallAppliedLoads object, orve_BuildingAreas BuildingArea, orve_Faces Face, float value);
/* Span of the member, m.
 * Range: 0 or more; any number is stored.
 * Arguments: BuildingArea 0 to 2, Face 0 to 3; -1 or left out: the object's own.
 * Errors: 9 for an area or face that isn't there. */
ORVE_C_API orve_error orve_clsOverallAppliedLoads_get_SteppedWind_Span(orve_clsOverallAppliedLoads object, orve_BuildingAreas BuildingArea, orve_Faces Face, float* result);
ORVE_C_API orve_error orve_clsOverallAppliedLoads_let_SteppedWind_Span(orve_clsOverallAppliedLoads object, orve_BuildingAreas BuildingArea, orve_Faces Face, float value);
/* Average over the span, kN/m².
 * Range: 0 for a span of 0.
 * Arguments: BuildingArea 0 to 2, Face 0 to 3; -1 or left out: the object's own.
 * Errors: 9 for an area or face that isn't there; 6 if it doesn't fit. */
ORVE_C_API orve_error orve_clsOverallAppliedLoads_get_SteppedWind_Load(orve_clsOverallAppliedLoads object, orve_BuildingAreas BuildingArea, orve_Faces Face, float* result);
/* Average over the end bay, kN/m².
 * Range: 0 for a span of 0.
 * Arguments: BuildingArea 0 to 2, Face 0 to 3; -1 or left out: the object's own.
 * Errors: 9 for an area or face that isn't there; 6 if it doesn't fit. */
ORVE_C_API orve_error orve_clsOverallAppliedLoads_get_SteppedWind_Load_External(orve_clsOverallAppliedLoads object, orve_BuildingAreas BuildingArea, orve_Faces Face, float* result);
/* Average over the internal bay, kN/m².
 * Range: 0 for a span of 0.
 * Arguments: BuildingArea 0 to 2, Face 0 to 3; -1 or left out: the object's own.
 * Errors: 9 for an area or face that isn't there; 6 if it doesn't fit. */
ORVE_C_API orve_error orve_clsOverallAppliedLoads_get_SteppedWind_Load_Internal(orve_clsOverallAppliedLoads object, orve_BuildingAreas BuildingArea, orve_Faces Face, float* result);
/* First row of the cantilever zone table.
 * Range: -32768 to 32767, plain storage. */
ORVE_C_API orve_error orve_clsOverallAppliedLoads_get_CantileverZoneIndexFrom(orve_clsOverallAppliedLoads object, int16_t* result);
ORVE_C_API orve_error orve_clsOverallAppliedLoads_let_CantileverZoneIndexFrom(orve_clsOverallAppliedLoads object, int16_t value);
/* Last row of the cantilever zone table.
 * Range: -32768 to 32767, plain storage. */
ORVE_C_API orve_error orve_clsOverallAppliedLoads_get_CantileverZoneIndexTo(orve_clsOverallAppliedLoads object, int16_t* result);
ORVE_C_API orve_error orve_clsOverallAppliedLoads_let_CantileverZoneIndexTo(orve_clsOverallAppliedLoads object, int16_t value);
/* Label of a cantilever zone.
 * Arguments: CantileverZoneIndex CantileverZoneIndexFrom to CantileverZoneIndexTo.
 * Errors: 9 for a row that isn't there. */
ORVE_C_API orve_error orve_clsOverallAppliedLoads_get_CantileverZoneDescription(orve_clsOverallAppliedLoads object, int16_t CantileverZoneIndex, char** result);
/* Lengths of a cantilever zone as text.
 * Arguments: CantileverZoneIndex CantileverZoneIndexFrom to CantileverZoneIndexTo.
 * Errors: 9 for a row that isn't there. */
ORVE_C_API orve_error orve_clsOverallAppliedLoads_get_CantileverZoneDimensions(orve_clsOverallAppliedLoads object, int16_t CantileverZoneIndex, char** result);
/* Roof load above a cantilever zone as text.
 * Arguments: CantileverZoneIndex CantileverZoneIndexFrom to CantileverZoneIndexTo.
 * Errors: 9 for a row that isn't there. */
ORVE_C_API orve_error orve_clsOverallAppliedLoads_get_Cantilever_ExternalAppliedLoads(orve_clsOverallAppliedLoads object, int16_t CantileverZoneIndex, char** result);
/* Wall pressures under a cantilever zone as text.
 * Arguments: CantileverZoneIndex CantileverZoneIndexFrom to CantileverZoneIndexTo.
 * Errors: 9 for a row that isn't there. */
ORVE_C_API orve_error orve_clsOverallAppliedLoads_get_Cantilever_InternalAppliedLoads(orve_clsOverallAppliedLoads object, int16_t CantileverZoneIndex, char** result);
/* Net loads of a cantilever zone as text.
 * Arguments: CantileverZoneIndex CantileverZoneIndexFrom to CantileverZoneIndexTo.
 * Errors: 9 for a row that isn't there. */
ORVE_C_API orve_error orve_clsOverallAppliedLoads_get_Cantilever_OverallAppliedLoads(orve_clsOverallAppliedLoads object, int16_t CantileverZoneIndex, char** result);
/* Average of a stepped load over the first bay, kN/m².
 * Range: any number.
 * Arguments: Span_L1 any number, Span_L2 any number, Span_L3 any number, WindLoad_W1 any number, WindLoad_W2 any number, WindLoad_W3 any number, Step_Z1 any number, Step_Z2 any number.
 * Errors: 11 for a bay length of 0 where it divides; 6 if the result doesn't fit. */
ORVE_C_API orve_error orve_clsOverallAppliedLoads_ExternalBayLoad(orve_clsOverallAppliedLoads object, float Span_L1, float Span_L2, float Span_L3, float WindLoad_W1, float WindLoad_W2, float WindLoad_W3, float Step_Z1, float Step_Z2, float* result);
/* Average of a stepped load over the second bay, kN/m².
 * Range: any number.
 * Arguments: Span_L1 any number, Span_L2 any number, Span_L3 any number, WindLoad_W1 any number, WindLoad_W2 any number, WindLoad_W3 any number, Step_Z1 any number, Step_Z2 any number.
 * Errors: 11 for a bay length of 0 where it divides; 6 if the result doesn't fit. */
ORVE_C_API orve_error orve_clsOverallAppliedLoads_InternalBayLoad(orve_clsOverallAppliedLoads object, float Span_L1, float Span_L2, float Span_L3, float WindLoad_W1, float WindLoad_W2, float WindLoad_W3, float Step_Z1, float Step_Z2, float* result);
/* Finds the cantilever zones of a wind face and their loads; True if there are any.
 * Range: True or False.
 * Arguments: BuildingArea 0 to 2, Face 0 to 3, Results True or False; -1 or left out: the object's own.
 * Errors: 5 for a zone without an external load; 9 without a result table; 13 for texts of the wall pressures that don't convert; those of the components. */
ORVE_C_API orve_error orve_clsOverallAppliedLoads_CantileverValues(orve_clsOverallAppliedLoads object, orve_BuildingAreas BuildingArea, orve_Faces Face, bool Results, bool* result);
/* The chosen load in the form of a cantilever text.
 * Arguments: BuildingArea 0 to 2, Face 0 to 3; -1 or left out: the object's own.
 * Errors: 9 for an area, face or zone that isn't there; 91 without a component; 5 and others of the components. */
ORVE_C_API orve_error orve_clsOverallAppliedLoads_SelectedCantileverLoadValues(orve_clsOverallAppliedLoads object, orve_BuildingAreas BuildingArea, orve_Faces Face, char** result);
/* Makes the result table one blank row. */
ORVE_C_API orve_error orve_clsOverallAppliedLoads_ResetCantileverResults(orve_clsOverallAppliedLoads object);
/* Drops the blank last row of the result table.
 * Errors: 9 if there is no table. */
ORVE_C_API orve_error orve_clsOverallAppliedLoads_TrimCantileverResults(orve_clsOverallAppliedLoads object);
/* Unequal cantilevers lie across the wind on this roof face.
 * Range: True or False.
 * Arguments: BuildingArea 0 to 2, Face 0 to 3; -1 or left out: the object's own. */
ORVE_C_API orve_error orve_clsOverallAppliedLoads_get_CantileverZoneWidthWarning(orve_clsOverallAppliedLoads object, orve_BuildingAreas BuildingArea, orve_Faces Face, bool* result);
/* The end-bay and internal-bay loads are the ones that apply.
 * Range: True or False.
 * Arguments: BuildingArea 0 to 2, Face 0 to 3; -1 or left out: the object's own.
 * Errors: 9 for an area or face that isn't there. */
ORVE_C_API orve_error orve_clsOverallAppliedLoads_get_ContinuousSteppedWind(orve_clsOverallAppliedLoads object, orve_BuildingAreas BuildingArea, orve_Faces Face, bool* result);
/* Zone of a load type on a face; ZoneIndexTo + 1 if there is none.
 * Range: 0 to ZoneIndexTo + 1.
 * Arguments: SelectedLoadType 0 to 26, BuildingArea 0 to 2, Face 0 to 3; -1 or left out: the object's own.
 * Errors: 91 without a component, and those of the component. */
ORVE_C_API orve_error orve_clsOverallAppliedLoads_ZoneIndexFromSelectedLoadType(orve_clsOverallAppliedLoads object, orve_SelectedLoadTypes SelectedLoadType, orve_BuildingAreas BuildingArea, orve_Faces Face, int16_t* result);
/* Load type of a zone of a face.
 * Range: 0 to 26; 0 if the zone has none.
 * Arguments: ZoneIndex first to last zone of the face, BuildingArea 0 to 2, Face 0 to 3; -1 or left out: the object's own.
 * Errors: 9 for a zone that isn't there; 91 without a component; 5 and others of the components. */
ORVE_C_API orve_error orve_clsOverallAppliedLoads_SelectedLoadTypeFromZoneIndex(orve_clsOverallAppliedLoads object, int16_t ZoneIndex, orve_BuildingAreas BuildingArea, orve_Faces Face, int16_t* result);
/* Load type of a zone's name.
 * Range: 0 to 26; 0 if the name isn't known.
 * Arguments: ZoneDescription any text. */
ORVE_C_API orve_error orve_clsOverallAppliedLoads_SelectedLoadTypeFromZoneDescription(orve_clsOverallAppliedLoads object, const char* ZoneDescription, int16_t* result);
/* Zone's name of a load type.
 * Range: empty for a value outside the enumeration.
 * Arguments: SelectedLoadType 0 to 26. */
ORVE_C_API orve_error orve_clsOverallAppliedLoads_ZoneDescriptionFromSelectedLoadType(orve_clsOverallAppliedLoads object, orve_SelectedLoadTypes SelectedLoadType, char** result);
/* Zone of a name on a face; ZoneIndexTo + 1 if there is none.
 * Range: 0 to ZoneIndexTo + 1.
 * Arguments: ZoneDescription any text, BuildingArea 0 to 2, Face 0 to 3; -1 or left out: the object's own.
 * Errors: 91 without a component, and those of the component. */
ORVE_C_API orve_error orve_clsOverallAppliedLoads_ZoneIndexFromZoneDescription(orve_clsOverallAppliedLoads object, const char* ZoneDescription, orve_BuildingAreas BuildingArea, orve_Faces Face, int16_t* result);

/* clsCantileverWindLoads: The wall pressures under the cantilevers, filled by the host. */
ORVE_C_API orve_error orve_clsCantileverWindLoads_create(orve_clsCantileverWindLoads* result);
/* The record of pressures; get and let copy it whole.
 * Range: texts, "0" at first; CantileverValues reads the numbers in them. */
ORVE_C_API orve_error orve_clsCantileverWindLoads_get_ExternalPressures(orve_clsCantileverWindLoads object, orve_ExternalPressure* result);
ORVE_C_API orve_error orve_clsCantileverWindLoads_let_ExternalPressures(orve_clsCantileverWindLoads object, const orve_ExternalPressure* value);

/* clsWindCaseList: The recent wind load cases with their descriptions and dates. */
/* The selected entry, counted from 1.
 * Range: 1 to Count; any 32-bit number is stored. */
ORVE_C_API orve_error orve_clsWindCaseList_get_Index(orve_clsWindCaseList object, int32_t* result);
ORVE_C_API orve_error orve_clsWindCaseList_let_Index(orve_clsWindCaseList object, int32_t value);
/* Length of the list.
 * Range: 0 or more. */
ORVE_C_API orve_error orve_clsWindCaseList_get_Count(orve_clsWindCaseList object, int32_t* result);
/* Maximum length of the list, kept in the settings file.
 * Range: 0 to 32767.
 * Errors: 6 outside 16 bits; 70, 75, 76 if the settings file can't be written. */
ORVE_C_API orve_error orve_clsWindCaseList_get_MaxCount(orve_clsWindCaseList object, int32_t* result);
ORVE_C_API orve_error orve_clsWindCaseList_let_MaxCount(orve_clsWindCaseList object, int32_t value);
/* Full path of an entry, upper case; empty if there is none.
 * Range: empty if there is no such entry.
 * Arguments: Index 1 to Count; -1 or left out: the object's own.
 * Errors: 6 for an index outside 16 bits. */
ORVE_C_API orve_error orve_clsWindCaseList_get_Location(orve_clsWindCaseList object, int32_t Index, char** result);
/* True if the entry's file is there.
 * Range: True or False.
 * Arguments: Index 1 to Count; -1 or left out: the object's own.
 * Errors: 6 for an index outside 16 bits. */
ORVE_C_API orve_error orve_clsWindCaseList_get_LocationCorrect(orve_clsWindCaseList object, int32_t Index, bool* result);
/* Description of the entry's case.
 * Range: empty if the file isn't there.
 * Arguments: Index 1 to Count; -1 or left out: the object's own.
 * Errors: 6 for an index outside 16 bits; 53 to 76 for a file that can't be read. */
ORVE_C_API orve_error orve_clsWindCaseList_get_Description(orve_clsWindCaseList object, int32_t Index, char** result);
/* Date of the entry's first save; 0 if it isn't known.
 * Range: 0 if the file isn't there.
 * Arguments: Index 1 to Count; -1 or left out: the object's own.
 * Errors: 6 for an index outside 16 bits; 53 to 76 for a file that can't be read. */
ORVE_C_API orve_error orve_clsWindCaseList_get_Created(orve_clsWindCaseList object, int32_t Index, double* result);
/* Date of the entry's last save; 0 if it isn't known.
 * Range: 0 if the file isn't there.
 * Arguments: Index 1 to Count; -1 or left out: the object's own.
 * Errors: 6 for an index outside 16 bits; 53 to 76 for a file that can't be read. */
ORVE_C_API orve_error orve_clsWindCaseList_get_Modified(orve_clsWindCaseList object, int32_t Index, double* result);

#ifdef __cplusplus
}
#endif

#endif
