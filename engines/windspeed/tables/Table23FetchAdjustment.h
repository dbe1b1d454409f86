// Table 23, fetch adjustment factor Tc, by effective height (m) and distance in the town from its upwind edge
// (km). No unit. Edition: BS 6399-2:1997 with Amendment 1 (March 2002). Linear in He and in km; a height or
// distance beyond an end takes the end row or column. Status: confirmed. Above He 300: row 300, the engine's
// choice.
#pragma once

#include "windspeed/tables/DistanceTable.h"

namespace orve::windspeed {

// clang-format off
inline constexpr DistanceTable<10, 6> kTable23FetchAdjustment = {
  .table = "Table 23",
  .item = "fetch adjustment factor Tc",
  .distance = "distance in the town",
  .status = SourceStatus::Confirmed,
  .he = {2, 5, 10, 15, 20, 30, 50, 100, 200, 300},
  .km = {  0.1,   0.3,     1,     3,    10,    30},
  .values = {{
    {{0.695, 0.653, 0.619, 0.596, 0.576, 0.562}},  //   2 m
    {{0.846, 0.795, 0.754, 0.725, 0.701, 0.684}},  //   5 m
    {{0.929, 0.873, 0.828, 0.796, 0.770, 0.751}},  //  10 m
    {{0.969, 0.911, 0.863, 0.831, 0.803, 0.783}},  //  15 m
    {{0.984, 0.935, 0.886, 0.853, 0.824, 0.804}},  //  20 m
    {{0.984, 0.965, 0.915, 0.880, 0.851, 0.830}},  //  30 m
    {{0.984, 0.984, 0.947, 0.912, 0.881, 0.859}},  //  50 m
    {{0.984, 0.984, 0.984, 0.948, 0.917, 0.894}},  // 100 m
    {{0.984, 0.984, 0.984, 0.980, 0.947, 0.924}},  // 200 m
    {{0.984, 0.984, 0.984, 0.984, 0.964, 0.940}},  // 300 m
  }},
};
// clang-format on

}  // namespace orve::windspeed
