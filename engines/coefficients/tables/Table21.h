// Table 21, BS 6399-2:1997 with Amendment 1 and Corrigendum 1, clause 2.7.5: net pressure coefficients of
// free-standing walls and parapets. No unit; net across the wall, positive at either wind angle.
// Rows: solidity, linear from 0.8 to 1 (recalled). Status of the cells: consistent.
#pragma once

#include "coefficients/TableForm.h"
#include "coefficients/tables/Origins.h"

namespace orve::coefficients {

inline constexpr Mark kT21k = Mark::Consistent;

// clang-format off
inline constexpr Table kTable21 = MakeTable("Table 21", "free-standing walls and parapets", "2.7.5", {
  MakeBlock("without return corner", "solidity", kBs6399,
    {          "A",             "B",             "C",             "D"}, {
    {0.8, {   P(+1.2, kT21k),  P(+1.2, kT21k),  P(+1.2, kT21k),  P(+1.2, kT21k)}},
    {1.0, {   P(+3.4, kT21k),  P(+2.1, kT21k),  P(+1.7, kT21k),  P(+1.2, kT21k)}},
  }),
  // A return corner at least as long as the wall is high.
  MakeBlock("with return corner", "solidity", kBs6399,
    {          "A",             "B",             "C",             "D"}, {
    {0.8, {   P(+1.2, kT21k),  P(+1.2, kT21k),  P(+1.2, kT21k),  P(+1.2, kT21k)}},
    {1.0, {   P(+2.1, kT21k),  P(+1.8, kT21k),  P(+1.4, kT21k),  P(+1.2, kT21k)}},
  }),
}, true);
// clang-format on

}  // namespace orve::coefficients
