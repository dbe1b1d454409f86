// Table 4, terrain and building factor Sb of the standard method (diagonal 5 m, gust peak factor 3.44): site
// in country, or less than 2 km inside a town, by effective height (m) and distance to the sea (km). No unit.
// Edition: BS 6399-2:1997 with Amendment 1 (March 2002).
// Linear in He and in km; beyond an end column the end column, below He 2 row 2, above He 100 Tables 22
// and 23. Status: rows 2 to 15 confirmed, rows 20 to 100 consistent.
#pragma once

#include "windspeed/tables/DistanceTable.h"

namespace orve::windspeed {

// clang-format off
inline constexpr DistanceTable<8, 4> kTable4Country = {
  .table = "Table 4",
  .item = "Sb in country",
  .distance = "distance to the sea",
  .status = SourceStatus::Consistent,
  .he = {2, 5, 10, 15, 20, 30, 50, 100},
  .km = { 0.1,    2,   10,  100},
  .values = {{
    {{1.48, 1.40, 1.35, 1.26}},  //   2 m
    {{1.65, 1.62, 1.57, 1.45}},  //   5 m
    {{1.78, 1.78, 1.73, 1.62}},  //  10 m
    {{1.85, 1.85, 1.82, 1.71}},  //  15 m
    {{1.90, 1.90, 1.89, 1.77}},  //  20 m
    {{1.96, 1.96, 1.96, 1.85}},  //  30 m
    {{2.04, 2.04, 2.04, 1.95}},  //  50 m
    {{2.12, 2.12, 2.12, 2.07}},  // 100 m
  }},
};
// clang-format on

}  // namespace orve::windspeed
