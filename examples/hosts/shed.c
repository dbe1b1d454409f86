/* A shed driven from C: q and Ca by sector, and the net loads of every zone of roof and walls. */
#include <stdio.h>
#include <stdlib.h>

#include "orve3_bs6399_2_c.h"

/* Every call gives 0 or the number of an error. */
static void check(orve_error error) {
  if (error == 0) return;
  fprintf(stderr, "Error %d: %s\n", (int)error, orve_error_text());
  exit(1);
}

/* The settings file lies in a folder that the host names. */
static void name_folder(orve_reply* folder, void* user) {
  orve_reply_text(folder, (const char*)user);
}

static void describe_building(orve_clsCurrentCase wind_case) {
  orve_clsBuildingDimensions building;
  check(orve_clsCurrentCase_get_BuildingDimensions(wind_case, &building));
  check(orve_clsBuildingDimensions_let_OrientationUnknown(building, false));
  check(orve_clsBuildingDimensions_let_Orientation(building, 90));
  check(orve_clsBuildingDimensions_let_Face1And3_Length(building, 24));
  check(orve_clsBuildingDimensions_let_Face2And4_Width(building, 12));
  check(orve_clsBuildingDimensions_let_Roof_Height(building, 5.5f));
  check(orve_clsBuildingDimensions_let_Roof_Diagonal(building, 8));
  check(orve_clsBuildingDimensions_let_Wall_SideHeight(building, 5));
  check(orve_clsBuildingDimensions_let_Wall_SideDiagonal(building, 7));
  check(orve_clsBuildingDimensions_let_Wall_GableHeight(building, 5.5f));
  check(orve_clsBuildingDimensions_let_Wall_GableDiagonal(building, 7.5f));
  check(orve_release(building));
}

static void describe_site(orve_clsDynamicPressure site) {
  check(orve_clsDynamicPressure_let_SiteAltitude(site, 40));
  check(orve_clsDynamicPressure_let_BasicWindSpeed(site, 22));
  for (orve_WindSectors sector = 0; sector < 12; ++sector)
    check(orve_clsDynamicPressure_let_FetchesToSea(site, sector, 30));
}

static void describe_inside(orve_clsCurrentCase wind_case) {
  orve_clsInternalCoefficients inside;
  check(orve_clsCurrentCase_get_InternalCoefficients(wind_case, &inside));
  check(orve_clsInternalCoefficients_let_InternalVolume(inside, 24 * 12 * 5));
  check(orve_clsInternalCoefficients_let_EnclosedBuilding_GeneralCase(inside, true));
  check(orve_release(inside));
}

static void print_sectors(orve_clsDynamicPressure site) {
  for (orve_WindSectors sector = 0; sector < 12; ++sector) {
    float q, ca;
    check(orve_clsDynamicPressure_get_DynamicPressure_q(site, orve_WindAreas_waRoof, sector, &q));
    check(orve_clsDynamicPressure_get_SizeEffectFactor_Ca(site, orve_WindAreas_waRoof, sector, &ca));
    printf("%3d degrees: q %.3f kN/m², Ca %.3f\n", (int)sector * 30, q, ca);
  }
}

static void print_face(orve_clsOverallAppliedLoads loads, orve_BuildingAreas area, orve_Faces face) {
  int16_t first, last;
  check(orve_clsOverallAppliedLoads_get_ZoneIndexFrom(loads, area, face, &first));
  check(orve_clsOverallAppliedLoads_get_ZoneIndexTo(loads, area, face, &last));
  for (int16_t zone = first; zone <= last; ++zone) {
    char *name, *load;
    check(orve_clsOverallAppliedLoads_get_Hybrid_ZoneDescription(loads, area, face, zone, &name));
    check(orve_clsOverallAppliedLoads_get_Hybrid_OverallAppliedLoads(loads, area, face, zone, &load));
    printf("%s, %s, %s: %s\n", orve_BuildingAreas_text(area), orve_Faces_text(face), name, load);
    orve_free_text(name);
    orve_free_text(load);
  }
}

int main(int count, char** arguments) {
  const char* folder = count > 1 ? arguments[1] : "/tmp";
  orve_host_LibraryFolder(name_folder, (void*)folder);
  orve_register_built_in_engines();
  orve_clsCurrentCase wind_case;
  check(orve_clsCurrentCase_create(&wind_case));
  check(orve_clsCurrentCase_Initialize_BreApps(wind_case));

  orve_clsDynamicPressure site;
  check(orve_clsCurrentCase_get_DynamicPressure(wind_case, &site));
  describe_building(wind_case);
  describe_site(site);
  describe_inside(wind_case);
  print_sectors(site);
  check(orve_release(site));

  orve_clsOverallAppliedLoads loads;
  check(orve_clsCurrentCase_get_OverallAppliedLoads(wind_case, &loads));
  for (orve_BuildingAreas area = orve_BuildingAreas_baRoof; area <= orve_BuildingAreas_baWalls; ++area)
    for (orve_Faces face = 0; face < 4; ++face) print_face(loads, area, face);
  check(orve_release(loads));
  check(orve_release(wind_case));
  return 0;
}
