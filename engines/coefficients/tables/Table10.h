// Table 10, clause 2.5.2: external pressure coefficients of duo-pitched roofs. No unit; suction below 0,
// pressure above 0. Rows: roof pitch, degrees; no interpolation between -5 and 5. The whole table is a
// substitute: EN 1991-1-4:2005 Tables 7.4a and 7.4b, recommended cpe,10. At 0: A B C are its F G H, E and F
// its J, G its I; at 90: A B C D are its F G H I. Status: every cell read in two public copies; another copy
// differs in the cells marked kT10d (pressure of E and F, and of G at -5).
// WeakerThan names a figure of BS 6399-2, recalled with medium confidence, that is stronger than the cell;
// half-remembered figures aren't used.
#pragma once

#include "coefficients/TableForm.h"
#include "coefficients/tables/Origins.h"

namespace orve::coefficients {

inline constexpr Mark kT10 = Mark::SubstituteTwice, kT10d = Mark::SubstituteTwiceOfMore;

// clang-format off
inline constexpr Table kTable10 = MakeTable("Table 10", "duo-pitched roofs", "2.5.2", {
  MakeBlock("Theta 0 180", "pitch", kEnDuoPitched,
    {          "A",                               "B",                         "C",                         "E",                        "F",                        "G"}, {
    {-45, {    S(-0.6),                           S(-0.6),                     S(-0.8),                     S(-1.0),                    S(-1.0),                    S(-0.7)}},
    {-30, {    S(-1.1),                           S(-0.8),                     S(-0.8),                     S(-0.8),                    S(-0.8),                    S(-0.6)}},
    {-15, {    S(-2.5),                           S(-1.3),                     S(-0.9),                     S(-0.7),                    S(-0.7),                    S(-0.5)}},
    { -5, {    S(-2.3),                           S(-1.2),                     S(-0.8),                    SP(-0.6, +0.2, kT10, kT10d), SP(-0.6, +0.2, kT10, kT10d), SP(-0.6, +0.2, kT10, kT10d)}},
    {  5, {   SP(-1.7, +0.0).WeakerThan(-1.8),   SP(-1.2, +0.0),              SP(-0.6, +0.0),              SP(-0.6, +0.2, kT10, kT10d), SP(-0.6, +0.2, kT10, kT10d),  S(-0.6)}},
    { 15, {   SP(-0.9, +0.2),                    SP(-0.8, +0.2),              SP(-0.3, +0.2),              SP(-1.0, +0.0, kT10, kT10d), SP(-1.0, +0.0, kT10, kT10d), SP(-0.4, +0.0)}},
    { 30, {   SP(-0.5, +0.7).WeakerThan(+0.8),   SP(-0.5, +0.7),              SP(-0.2, +0.4),              SP(-0.5, +0.0, kT10, kT10d), SP(-0.5, +0.0, kT10, kT10d), SP(-0.4, +0.0)}},
    { 45, {   SP( 0.0, +0.7).WeakerThan(+0.8),   SP( 0.0, +0.7),              SP( 0.0, +0.6),              SP(-0.3, +0.0, kT10, kT10d), SP(-0.3, +0.0, kT10, kT10d), SP(-0.2, +0.0)}},
    { 60, {    P(+0.7).WeakerThan(+0.8),          P(+0.7).WeakerThan(+0.8),    P(+0.7).WeakerThan(+0.8),    S(-0.3),                    S(-0.3),                    S(-0.2)}},
    { 75, {    P(+0.8),                           P(+0.8),                     P(+0.8),                     S(-0.3),                    S(-0.3),                    S(-0.2)}},
  }),
  MakeBlock("Theta 90 270", "pitch", kEnDuoPitched,
    {          "A",       "B",       "C",       "D"}, {
    {-45, {    S(-1.4),   S(-1.2),   S(-1.0),   S(-0.9)}},
    {-30, {    S(-1.5),   S(-1.2),   S(-1.0),   S(-0.9)}},
    {-15, {    S(-1.9),   S(-1.2),   S(-0.8),   S(-0.8)}},
    { -5, {    S(-1.8),   S(-1.2),   S(-0.7),   S(-0.6)}},
    {  5, {    S(-1.6),   S(-1.3),   S(-0.7),   S(-0.6)}},
    { 15, {    S(-1.3),   S(-1.3),   S(-0.6),   S(-0.5)}},
    { 30, {    S(-1.1),   S(-1.4),   S(-0.8),   S(-0.5)}},
    { 45, {    S(-1.1),   S(-1.4),   S(-0.9),   S(-0.5)}},
    { 60, {    S(-1.1),   S(-1.2),   S(-0.8),   S(-0.5)}},
    { 75, {    S(-1.1),   S(-1.2),   S(-0.8),   S(-0.5)}},
  }),
});
// clang-format on

}  // namespace orve::coefficients
