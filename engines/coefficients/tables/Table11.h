// Table 11, clause 2.5.3: external pressure coefficients of hipped roofs. No unit; suction below 0, pressure
// above 0. Rows: roof pitch, degrees; the same at every wind angle. The whole table is a substitute: EN
// 1991-1-4:2005 Table 7.5, recommended cpe,10. A B C are its F G H, E its J, F its K, G its I, H I J its L M
// N. Status: suctions, and the pressure of A at 30, read in two public copies; the other pressures (kT11p) in
// one. Another copy differs from two read in F and G at 30 (kT11d), and from the one read in F and H at 15
// (kT11o).
#pragma once

#include "coefficients/TableForm.h"
#include "coefficients/tables/Origins.h"

namespace orve::coefficients {

inline constexpr Mark kT11 = Mark::SubstituteTwice, kT11p = Mark::Substitute,
                      kT11d = Mark::SubstituteTwiceOfMore, kT11o = Mark::SubstituteOnceOfMore;

// clang-format off
inline constexpr Table kTable11 = MakeTable("Table 11", "hipped roofs", "2.5.3", {
  MakeBlock("Theta 0 90 180 270", "pitch", kEnHipped,
    {         "A",                          "B",                          "C",                          "E",       "F",              "G",              "H",              "I",       "J"}, {
    { 5, {   SP(-1.7, +0.0, kT11, kT11p),  SP(-1.2, +0.0, kT11, kT11p),  SP(-0.6, +0.0, kT11, kT11p),   S(-0.6),   S(-0.6),          S(-0.3),          S(-1.2),          S(-0.6),   S(-0.4)}},
    {15, {   SP(-0.9, +0.2, kT11, kT11p),  SP(-0.8, +0.2, kT11, kT11p),  SP(-0.3, +0.2, kT11, kT11p),   S(-1.0),   S(-1.2, kT11o),   S(-0.5),          S(-1.4, kT11o),   S(-0.6),   S(-0.3)}},
    {30, {   SP(-0.5, +0.5),               SP(-0.5, +0.7, kT11, kT11p),  SP(-0.2, +0.4, kT11, kT11p),   S(-0.7),   S(-0.5, kT11d),   S(-0.4, kT11d),   S(-1.4),          S(-0.8),   S(-0.2)}},
    {45, {   SP( 0.0, +0.7, kT11, kT11p),  SP( 0.0, +0.7, kT11, kT11p),  SP( 0.0, +0.6, kT11, kT11p),   S(-0.6),   S(-0.3),          S(-0.3),          S(-1.3),          S(-0.8),   S(-0.2)}},
    {60, {    P(+0.7, kT11p),               P(+0.7, kT11p),               P(+0.7, kT11p),               S(-0.6),   S(-0.3),          S(-0.3),          S(-1.2),          S(-0.4),   S(-0.2)}},
    {75, {    P(+0.8, kT11p),               P(+0.8, kT11p),               P(+0.8, kT11p),               S(-0.6),   S(-0.3),          S(-0.3),          S(-1.2),          S(-0.4),   S(-0.2)}},
  }),
});
// clang-format on

}  // namespace orve::coefficients
