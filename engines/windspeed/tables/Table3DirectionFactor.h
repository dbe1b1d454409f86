// Table 3, direction factor Sd, by wind direction (degrees from north, every 30). No unit.
// Edition: BS 6399-2:1997 with Amendment 1 (March 2002).
// Status: consistent (equal to the direction factor of the UK annex to EN 1991-1-4).
#pragma once

#include <array>

namespace orve::windspeed {

// clang-format off
inline constexpr std::array<double, 12> kTable3DirectionFactor = {
  0.78,  //   0
  0.73,  //  30
  0.73,  //  60
  0.74,  //  90
  0.73,  // 120
  0.80,  // 150
  0.85,  // 180
  0.93,  // 210
  1.00,  // 240
  0.99,  // 270
  0.91,  // 300
  0.82,  // 330
};
// clang-format on

}  // namespace orve::windspeed
