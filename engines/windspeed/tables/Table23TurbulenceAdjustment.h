// Table 23, turbulence adjustment factor Tt, by effective height (m) and distance in the town from its upwind
// edge (km). No unit. Edition: BS 6399-2:1997 with Amendment 1 (March 2002).
// Linear in He and in km; a height or distance beyond an end takes the end row or column. Status: confirmed.
// Above He 300: row 300, the engine's choice.
#pragma once

#include "windspeed/tables/DistanceTable.h"

namespace orve::windspeed {

// clang-format off
inline constexpr DistanceTable<10, 6> kTable23TurbulenceAdjustment = {
  .table = "Table 23",
  .item = "turbulence adjustment factor Tt",
  .distance = "distance in the town",
  .status = SourceStatus::Confirmed,
  .he = {2, 5, 10, 15, 20, 30, 50, 100, 200, 300},
  .km = { 0.1,  0.3,    1,    3,   10,   30},
  .values = {{
    {{1.92, 1.93, 1.93, 1.93, 1.93, 1.93}},  //   2 m
    {{1.41, 1.60, 1.63, 1.63, 1.63, 1.63}},  //   5 m
    {{1.16, 1.34, 1.50, 1.52, 1.52, 1.52}},  //  10 m
    {{1.04, 1.22, 1.38, 1.47, 1.47, 1.47}},  //  15 m
    {{1.00, 1.17, 1.35, 1.44, 1.45, 1.45}},  //  20 m
    {{1.00, 1.06, 1.21, 1.33, 1.43, 1.43}},  //  30 m
    {{1.00, 1.00, 1.12, 1.24, 1.38, 1.42}},  //  50 m
    {{1.00, 1.00, 1.00, 1.14, 1.28, 1.38}},  // 100 m
    {{1.00, 1.00, 1.00, 1.07, 1.19, 1.31}},  // 200 m
    {{1.00, 1.00, 1.00, 1.04, 1.14, 1.24}},  // 300 m
  }},
};
// clang-format on

}  // namespace orve::windspeed
