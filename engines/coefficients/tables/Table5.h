// Table 5, BS 6399-2:1997 with Amendment 1 and Corrigendum 1, clause 2.4.1: external pressure coefficients of
// the vertical walls of rectangular buildings. No unit; suction below 0, pressure above 0. Rows of the first
// block: D/H, linear between 1 and 4 and constant outside. The windward pair is confirmed by one printed
// figure that fits it; the others as marked beside them. Windward +0.85 and leeward -0.5 are the figures of
// Amendment 1.
#pragma once

#include "coefficients/TableForm.h"
#include "coefficients/tables/Origins.h"

namespace orve::coefficients {

inline constexpr Mark kT5c = Mark::Confirmed, kT5k = Mark::Consistent, kT5r = Mark::Recalled;

// clang-format off
inline constexpr Table kTable5 = MakeTable("Table 5", "vertical walls", "2.4.1", {
  MakeBlock("windward and leeward", "D/H", kBs6399,
    //          windward         leeward
    {          "Windward",      "Leeward"}, {
    {1, {     P(+0.85, kT5c),  S(-0.5, kT5r)}},
    {4, {     P(+0.6,  kT5c),  S(-0.5, kT5r)}},
  }, "by one printed figure that fits the pair"),
  // Rows: share of the funnelling figures (2.4.1.4).
  MakeBlock("side", "exposure", kBs6399,
    {          "A",             "B",             "C"}, {
    {0, {     S(-1.3, kT5r),   S(-0.8, kT5k),   S(-0.5, kT5k)}, "isolated"},
    {1, {     S(-1.6, kT5k),   S(-0.9, kT5k),   S(-0.9, kT5k)}, "funnelling"},
  }, "with a sister table"),
});
// clang-format on

}  // namespace orve::coefficients
