// Table 9, clause 2.5.2: external pressure coefficients of mono-pitched roofs. No unit; suction below 0,
// pressure above 0. Rows: roof pitch, degrees. The whole table is a substitute: EN 1991-1-4:2005 Tables 7.3a
// and 7.3b, recommended cpe,10, in the zone letters of BS 6399-2. Status: every cell read in two public
// copies; another copy differs in the cells marked kT9d. WeakerThan names a figure of BS 6399-2, recalled
// with medium confidence, that is stronger than the cell; half-remembered figures aren't used.
#pragma once

#include "coefficients/TableForm.h"
#include "coefficients/tables/Origins.h"

namespace orve::coefficients {

inline constexpr Mark kT9d = Mark::SubstituteTwiceOfMore;

// clang-format off
inline constexpr Table kTable9 = MakeTable("Table 9", "mono-pitched roofs", "2.5.2", {
  // Wind on the low eaves.
  MakeBlock("Theta 0", "pitch", kEnMonoPitched,
    {         "A",                                "B",                          "C"}, {
    { 5, {   SP(-1.7, +0.0).WeakerThan(-1.8),    SP(-1.2, +0.0),               SP(-0.6, +0.0)}},
    {15, {   SP(-0.9, +0.2),                     SP(-0.8, +0.2),               SP(-0.3, +0.2)}},
    {30, {   SP(-0.5, +0.7).WeakerThan(+0.8),    SP(-0.5, +0.7),               SP(-0.2, +0.4)}},
    {45, {   SP( 0.0, +0.7).WeakerThan(+0.8),    SP( 0.0, +0.7),               SP( 0.0, +0.6)}},
    {60, {    P(+0.7).WeakerThan(+0.8),           P(+0.7).WeakerThan(+0.8),     P(+0.7).WeakerThan(+0.8)}},
    {75, {    P(+0.8),                            P(+0.8),                      P(+0.8)}},
  }),
  // Wind on the high eaves.
  MakeBlock("Theta 180", "pitch", kEnMonoPitched,
    {         "A",              "B",              "C"}, {
    { 5, {    S(-2.3),          S(-1.3),          S(-0.8)}},
    {15, {    S(-2.5),          S(-1.3),          S(-0.9)}},
    {30, {    S(-1.1),          S(-0.8),          S(-0.8)}},
    {45, {    S(-0.6),          S(-0.5),          S(-0.7, kT9d)}},
    {60, {    S(-0.5),          S(-0.5),          S(-0.5, kT9d)}},
    {75, {    S(-0.5),          S(-0.5),          S(-0.5, kT9d)}},
  }),
  MakeBlock("Theta 90 270", "pitch", kEnMonoPitched,
    {         "AU",      "AL",      "B",       "C",       "D"}, {
    { 5, {    S(-2.1),   S(-2.1),   S(-1.8),   S(-0.6),   S(-0.5)}},
    {15, {    S(-2.4),   S(-1.6),   S(-1.9),   S(-0.8),   S(-0.7)}},
    {30, {    S(-2.1),   S(-1.3),   S(-1.5),   S(-1.0),   S(-0.8)}},
    {45, {    S(-1.5),   S(-1.3),   S(-1.4),   S(-1.0),   S(-0.9)}},
    {60, {    S(-1.2),   S(-1.2),   S(-1.2),   S(-1.0),   S(-0.7)}},
    {75, {    S(-1.2),   S(-1.2),   S(-1.2),   S(-1.0),   S(-0.5)}},
  }),
});
// clang-format on

}  // namespace orve::coefficients
