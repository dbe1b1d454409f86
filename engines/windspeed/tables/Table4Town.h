// Table 4, terrain and building factor Sb of the standard method (diagonal 5 m, gust peak factor 3.44): site
// 2 km or more inside a town, by effective height (m) and distance to the sea (km). No unit. Edition: BS
// 6399-2:1997 with Amendment 1 (March 2002). Linear in He and in km; beyond an end column the end column,
// below He 2 row 2, above He 100 Tables 22 and 23. Status: rows 2 to 15 and He 20 at 2 km confirmed, the
// other rows consistent; that the town half begins 2 km inside is consistent.
#pragma once

#include "windspeed/tables/DistanceTable.h"

namespace orve::windspeed {

// clang-format off
inline constexpr DistanceTable<8, 3> kTable4Town = {
  .table = "Table 4",
  .item = "Sb in town",
  .distance = "distance to the sea",
  .status = SourceStatus::Consistent,
  .he = {2, 5, 10, 15, 20, 30, 50, 100},
  .km = {   2,   10,  100},
  .values = {{
    {{1.18, 1.15, 1.07}},  //   2 m
    {{1.50, 1.45, 1.36}},  //   5 m
    {{1.73, 1.69, 1.58}},  //  10 m
    {{1.85, 1.82, 1.71}},  //  15 m
    {{1.90, 1.89, 1.77}},  //  20 m
    {{1.96, 1.96, 1.85}},  //  30 m
    {{2.04, 2.04, 1.95}},  //  50 m
    {{2.12, 2.12, 2.07}},  // 100 m
  }},
};
// clang-format on

}  // namespace orve::windspeed
