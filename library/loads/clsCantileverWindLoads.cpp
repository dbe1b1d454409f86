#include "loads/clsCantileverWindLoads.h"

namespace orve {

clsCantileverWindLoads::clsCantileverWindLoads() {
  ApplyDefaults();
}

void clsCantileverWindLoads::ApplyDefaults() {
  const std::string none = "0";
  ExternalPressure record;
  for (std::string* roof : {&record.Roof1_A_Face, &record.Roof1_B_Face, &record.Roof2_A_Face,
                            &record.Roof2_B_Face, &record.Roof2_C_Face})
    *roof = none;
  for (CantileverZone* wall :
       {&record.Wall2_Windward, &record.Wall2_Leeward, &record.Wall2_A_Face_1, &record.Wall2_B_Face_1,
        &record.Wall2_C_Face_1, &record.Wall2_A_Face_3, &record.Wall2_B_Face_3, &record.Wall2_C_Face_3,
        &record.Wall4_Windward, &record.Wall4_Leeward, &record.Wall4_A_Face_1, &record.Wall4_B_Face_1,
        &record.Wall4_C_Face_1, &record.Wall4_A_Face_3, &record.Wall4_B_Face_3, &record.Wall4_C_Face_3})
    *wall = {none, none};
  ExternalPressures(record);
}

}  // namespace orve
