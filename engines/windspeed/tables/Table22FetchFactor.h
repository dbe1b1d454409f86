// Table 22, fetch factor Sc, by effective height (m) and distance to the sea (km). No unit.
// Edition: BS 6399-2:1997 with Amendment 1 (March 2002).
// Linear in He and in km; a height or distance beyond an end takes the end row or column. Status: confirmed.
// Above He 300: row 300, the engine's choice.
#pragma once

#include "windspeed/tables/DistanceTable.h"

namespace orve::windspeed {

// clang-format off
inline constexpr DistanceTable<10, 7> kTable22FetchFactor = {
  .table = "Table 22",
  .item = "fetch factor Sc",
  .distance = "distance to the sea",
  .status = SourceStatus::Confirmed,
  .he = {2, 5, 10, 15, 20, 30, 50, 100, 200, 300},
  .km = {  0.1,   0.3,     1,     3,    10,    30,   100},
  .values = {{
    {{0.873, 0.840, 0.812, 0.792, 0.774, 0.761, 0.723}},  //   2 m
    {{1.06,  1.02,  0.990, 0.966, 0.944, 0.928, 0.882}},  //   5 m
    {{1.21,  1.17,  1.13,  1.10,  1.07,  1.06,  1.00}},   //  10 m
    {{1.28,  1.25,  1.21,  1.18,  1.15,  1.13,  1.08}},   //  15 m
    {{1.32,  1.31,  1.27,  1.23,  1.21,  1.19,  1.13}},   //  20 m
    {{1.39,  1.39,  1.35,  1.31,  1.28,  1.26,  1.20}},   //  30 m
    {{1.47,  1.47,  1.46,  1.42,  1.39,  1.36,  1.30}},   //  50 m
    {{1.59,  1.59,  1.59,  1.57,  1.54,  1.51,  1.43}},   // 100 m
    {{1.74,  1.74,  1.74,  1.73,  1.70,  1.67,  1.59}},   // 200 m
    {{1.84,  1.84,  1.84,  1.83,  1.82,  1.78,  1.70}},   // 300 m
  }},
};
// clang-format on

}  // namespace orve::windspeed
