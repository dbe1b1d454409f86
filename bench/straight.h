// The floor of the whole sheet: the same net loads worked out once through, in straight code without the
// library's objects. Each q, Ca, zone and coefficient is asked of the engines once, each worst wind searched
// once.
#pragma once

#include <array>
#include <vector>

#include "component_log.h"
#include "sheet.h"

namespace bench {

/// Height and diagonal of a wind area, metres.
struct HeightAndDiagonal {
  float height;
  float diagonal;
};

/// What the straight code has to know: a duo-pitched building of one frame with gables on faces 2 and 4 and a
/// known orientation, whose internal pressures follow the roof.
struct PlainBuilding {
  float length;  ///< Along faces 1 and 3, metres.
  float width;   ///< Along faces 2 and 4, metres.
  float pitch;   ///< Degrees.
  int orientation;
  HeightAndDiagonal roof, side, gable, sideParapet, gableParapet, internal;
  std::array<float, 4> gaps;
  float parapetHeight;
  bool sideReturnCorner, gableReturnCorner;
  float CpiPressure, CpiSuction;
};

/// Net loads of all zones, in the order of areas, faces and zones.
std::vector<NetLoads> StraightNetLoads(const PlainBuilding& building, const Components& components);

}  // namespace bench
