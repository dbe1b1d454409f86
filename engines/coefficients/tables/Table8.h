// Table 8, BS 6399-2:1997 with Amendment 1 and Corrigendum 1, clause 2.5.1: external pressure coefficients of
// flat roofs. No unit; suction below 0, pressure above 0. Linear between the rows of one kind of eaves. The
// sharp-eaves row agrees with a published calculation of a flat roof; the others as marked beside them.
// Parapets: recalled with medium confidence as a whole, and so a substitute table; their A and B are stronger
// than those of EN 1991-1-4 Table 7.2, which doesn't confirm them. Mansard eaves, A at 30 and B at 60
// degrees: 0.05 weaker than that table.
#pragma once

#include "coefficients/TableForm.h"
#include "coefficients/tables/Origins.h"

namespace orve::coefficients {

inline constexpr Mark kT8k = Mark::Consistent, kT8r = Mark::RecalledMedium, kT8s = Mark::SubstituteRecalled;
inline constexpr std::string_view kT8basis = "with EN 1991-1-4 Table 7.2";

// clang-format off
inline constexpr Table kTable8 = MakeTable("Table 8", "flat roofs", "2.5.1", {
  MakeBlock("sharp eaves", "eaves", kBs6399,
    {           "A",              "B",              "C",              "D"}, {
    {0,    {   S(-2.0,  kT8k),   S(-1.4,  kT8k),   S(-0.7, kT8k),    SP(-0.2, +0.2, kT8k)}, "sharp"},
  }, "with a published calculation"),
  // Rows: height of the parapet, the lesser of h/H and h/b.
  MakeBlock("parapets", "ratio", kRecalledParapets,
    {           "A",              "B",              "C",              "D"}, {
    {0.05, {   S(-1.8,  kT8s),   S(-1.25, kT8s),   S(-0.7, kT8s),    SP(-0.2, +0.2, kT8s)}},
    {0.10, {   S(-1.75, kT8s),   S(-1.2,  kT8s),   S(-0.7, kT8s),    SP(-0.2, +0.2, kT8s)}},
    {0.20, {   S(-1.4,  kT8s),   S(-1.0,  kT8s),   S(-0.7, kT8s),    SP(-0.2, +0.2, kT8s)}},
  }),
  MakeBlock("curved eaves", "r/b", kBs6399,
    {           "A",              "B",              "C",              "D"}, {
    {0.05, {   S(-1.0,  kT8k),   S(-1.2,  kT8k),   S(-0.4, kT8k),    SP(-0.2, +0.2, kT8k)}},
    {0.10, {   S(-0.75, kT8r),   S(-0.8,  kT8k),   S(-0.3, kT8k),    SP(-0.2, +0.2, kT8k)}},
    {0.20, {   S(-0.55, kT8r),   S(-0.55, kT8r),   S(-0.3, kT8k),    SP(-0.2, +0.2, kT8k)}},
  }, kT8basis),
  // Rows: slope of the eaves, degrees.
  MakeBlock("mansard eaves", "pitch", kBs6399,
    {           "A",              "B",              "C",              "D"}, {
    {30,   {   S(-0.95, kT8r),   S(-1.0,  kT8k),   S(-0.3, kT8k),    SP(-0.2, +0.2, kT8k)}},
    {45,   {   S(-1.2,  kT8k),   S(-1.3,  kT8k),   S(-0.4, kT8k),    SP(-0.2, +0.2, kT8k)}},
    {60,   {   S(-1.3,  kT8k),   S(-1.25, kT8r),   S(-0.6, kT8r),    SP(-0.2, +0.2, kT8k)}},
  }, kT8basis),
});
// clang-format on

}  // namespace orve::coefficients
