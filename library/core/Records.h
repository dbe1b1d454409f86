// The records of the public interface: plain values, copied whole.
#pragma once

#include <string>

namespace orve {

/// The two lengths of a zone, in metres.
struct ZoneDimensionsXY {
  float DimensionX = 0;
  float DimensionY = 0;
};

/// One row of the cantilever zone table.
struct CantileverZones {
  std::string Cantilever_ZoneDescription;
  std::string Cantilever_ZoneDimensions;
  std::string Cantilever_ExternalAppliedLoads;
  std::string Cantilever_InternalAppliedLoads;
  std::string Cantilever_OverallAppliedLoads;
};

/// One row of the cantilever result table.
struct CantileverResults {
  std::string Cantilever_Face;
  std::string Cantilever_Zone;
  std::string Cantilever_WindPressure;
  std::string Cantilever_WindUplift;
};

/// Dimensions (a number and " m") and external pressure (a signed number and " kN/m²") of one wall zone, as
/// text.
struct CantileverZone {
  std::string Zone_Dimensions;
  std::string Zone_ExternalPressures;
};

/// The pressures of the roof zones and of the wall zones under the cantilevers, filled by the host.
struct ExternalPressure {
  std::string Roof1_A_Face;
  std::string Roof1_B_Face;
  std::string Roof2_A_Face;
  std::string Roof2_B_Face;
  std::string Roof2_C_Face;
  CantileverZone Wall2_Windward;
  CantileverZone Wall2_Leeward;
  CantileverZone Wall2_A_Face_1;
  CantileverZone Wall2_B_Face_1;
  CantileverZone Wall2_C_Face_1;
  CantileverZone Wall2_A_Face_3;
  CantileverZone Wall2_B_Face_3;
  CantileverZone Wall2_C_Face_3;
  CantileverZone Wall4_Windward;
  CantileverZone Wall4_Leeward;
  CantileverZone Wall4_A_Face_1;
  CantileverZone Wall4_B_Face_1;
  CantileverZone Wall4_C_Face_1;
  CantileverZone Wall4_A_Face_3;
  CantileverZone Wall4_B_Face_3;
  CantileverZone Wall4_C_Face_3;
};

}  // namespace orve
