// Table 22, turbulence factor St, by effective height (m) and distance to the sea (km). No unit.
// Edition: BS 6399-2:1997 with Amendment 1 (March 2002).
// Linear in He and in km; a height or distance beyond an end takes the end row or column. Status: confirmed.
// Above He 300: row 300, the engine's choice.
#pragma once

#include "windspeed/tables/DistanceTable.h"

namespace orve::windspeed {

// clang-format off
inline constexpr DistanceTable<10, 7> kTable22TurbulenceFactor = {
  .table = "Table 22",
  .item = "turbulence factor St",
  .distance = "distance to the sea",
  .status = SourceStatus::Confirmed,
  .he = {2, 5, 10, 15, 20, 30, 50, 100, 200, 300},
  .km = {  0.1,   0.3,     1,     3,    10,    30,   100},
  .values = {{
    {{0.203, 0.215, 0.215, 0.215, 0.215, 0.215, 0.215}},  //   2 m
    {{0.161, 0.179, 0.192, 0.192, 0.192, 0.192, 0.192}},  //   5 m
    {{0.137, 0.154, 0.169, 0.175, 0.178, 0.178, 0.178}},  //  10 m
    {{0.131, 0.141, 0.156, 0.167, 0.171, 0.171, 0.171}},  //  15 m
    {{0.127, 0.132, 0.145, 0.157, 0.163, 0.164, 0.166}},  //  20 m
    {{0.120, 0.122, 0.132, 0.145, 0.155, 0.159, 0.159}},  //  30 m
    {{0.112, 0.113, 0.117, 0.125, 0.135, 0.145, 0.149}},  //  50 m
    {{0.097, 0.100, 0.100, 0.100, 0.110, 0.120, 0.132}},  // 100 m
    {{0.075, 0.075, 0.075, 0.078, 0.083, 0.093, 0.111}},  // 200 m
    {{0.065, 0.065, 0.065, 0.067, 0.068, 0.080, 0.092}},  // 300 m
  }},
};
// clang-format on

}  // namespace orve::windspeed
