// Figures 9 and 10, topographic location factor s: coefficients of the curves, in ascending powers. No unit.
// Edition: BS 6399-2:1997 with Amendment 1 (March 2002). The curves themselves aren't
// digitised: these are the published fits of EN 1991-1-4, A.3, to like curves.
// Status: consistent.
#pragma once

#include <array>

namespace orve::windspeed {

struct LocationFactorFits {
  // Upwind, and downwind of a hill or ridge: s = A exp(B X/L), polynomials in r = H/Le.
  std::array<double, 5> crest;     // A
  std::array<double, 3> upwind;    // B
  std::array<double, 3> downwind;  // B
  // Downwind of a cliff or escarpment: s = A k^2 + B k + C, k = log10(X/Le), polynomials in log10(r).
  std::array<double, 4> cliffA;
  std::array<double, 4> cliffB;
  std::array<double, 4> cliffC;
};

// clang-format off
inline constexpr LocationFactorFits kFigures9And10Fits = {
  .crest    = {1.0124, -1.9115, 1.8133, -0.8575, 0.1552},
  .upwind   = {2.6456, -1.0577, 0.3542},
  .downwind = {-1.7637, 1.0212, -0.3056},
  .cliffA   = {-0.0791, 0.4609, -0.8222, -1.3420},
  .cliffB   = {-0.1156, 0.5343, -0.8910, -1.0196},
  .cliffC   = {0.1606, -0.5738, 0.4236, 0.8030},
};
// clang-format on

}  // namespace orve::windspeed
