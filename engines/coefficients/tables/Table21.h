// Table 21, BS 6399-2:1997 with Amendment 1 and Corrigendum 1, clause 2.7.5: net pressure coefficients of
// free-standing walls and parapets. No unit; net across the wall, positive at either wind angle.
// Rows: solidity, linear from 0.8 to 1 (recalled). Status of the cells: consistent. One row for every length
// of wall: Amendment 1 has reduction factors for short walls, which aren't at hand, so that these figures are
// on the safe side.
#pragma once

#include "coefficients/TableForm.h"
#include "coefficients/tables/Origins.h"

namespace orve::coefficients {

inline constexpr Mark kT21k = Mark::Consistent;
inline constexpr std::string_view kT21basis = "with EN 1991-1-4, walls at least ten times as long as high";

// clang-format off
inline constexpr Table kTable21 = MakeTable("Table 21", "free-standing walls and parapets", "2.7.5", {
  MakeBlock("without return corner", "solidity", kBs6399,
    {          "A",             "B",             "C",             "D"}, {
    {0.8, {   P(+1.2, kT21k),  P(+1.2, kT21k),  P(+1.2, kT21k),  P(+1.2, kT21k)}},
    {1.0, {   P(+3.4, kT21k),  P(+2.1, kT21k),  P(+1.7, kT21k),  P(+1.2, kT21k)}},
  }, kT21basis),
  // A return corner at least as long as the wall is high.
  MakeBlock("with return corner", "solidity", kBs6399,
    {          "A",             "B",             "C",             "D"}, {
    {0.8, {   P(+1.2, kT21k),  P(+1.2, kT21k),  P(+1.2, kT21k),  P(+1.2, kT21k)}},
    {1.0, {   P(+2.1, kT21k),  P(+1.8, kT21k),  P(+1.4, kT21k),  P(+1.2, kT21k)}},
  }, kT21basis),
}, true);
// clang-format on

}  // namespace orve::coefficients
