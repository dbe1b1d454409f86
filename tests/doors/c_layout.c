/* Prints sizes and places of everything in the records of the object model, and of the fields of the file
 * dialog. */
#include <stdio.h>

#include "orve3_bs6399_2_c.h"

#define SIZE(type) printf(#type " %u\n", (unsigned)sizeof(type))
#define FIELD(type, field) printf(#type "." #field " %u\n", (unsigned)offsetof(type, field))

int main(void) {
  SIZE(orve_error);
  SIZE(orve_Faces);
  SIZE(orve_ZoneDimensionsXY);
  FIELD(orve_ZoneDimensionsXY, DimensionX);
  FIELD(orve_ZoneDimensionsXY, DimensionY);
  SIZE(orve_CantileverZones);
  FIELD(orve_CantileverZones, Cantilever_ZoneDescription);
  FIELD(orve_CantileverZones, Cantilever_ZoneDimensions);
  FIELD(orve_CantileverZones, Cantilever_ExternalAppliedLoads);
  FIELD(orve_CantileverZones, Cantilever_InternalAppliedLoads);
  FIELD(orve_CantileverZones, Cantilever_OverallAppliedLoads);
  SIZE(orve_CantileverResults);
  FIELD(orve_CantileverResults, Cantilever_Face);
  FIELD(orve_CantileverResults, Cantilever_Zone);
  FIELD(orve_CantileverResults, Cantilever_WindPressure);
  FIELD(orve_CantileverResults, Cantilever_WindUplift);
  SIZE(orve_CantileverZone);
  FIELD(orve_CantileverZone, Zone_Dimensions);
  FIELD(orve_CantileverZone, Zone_ExternalPressures);
  SIZE(orve_ExternalPressure);
  FIELD(orve_ExternalPressure, Roof1_A_Face);
  FIELD(orve_ExternalPressure, Roof2_C_Face);
  FIELD(orve_ExternalPressure, Wall2_Windward);
  FIELD(orve_ExternalPressure, Wall2_C_Face_3);
  FIELD(orve_ExternalPressure, Wall4_Windward);
  FIELD(orve_ExternalPressure, Wall4_C_Face_3);
  FIELD(orve_file_dialog, DialogTitle);
  FIELD(orve_file_dialog, Filter);
  FIELD(orve_file_dialog, DefaultExt);
  FIELD(orve_file_dialog, InitDir);
  FIELD(orve_file_dialog, FileName);
  FIELD(orve_file_dialog, Flags);
  return 0;
}
