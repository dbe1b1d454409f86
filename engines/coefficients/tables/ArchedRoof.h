// Curved roofs: BS 6399-2 prints no table for them. The substitute: the arched roofs of ASCE 7, figures for
// main systems, as recalled. r is rise over span; each figure is `slope` r + `constant`. No unit; suction
// below 0.
#pragma once

#include "coefficients/tables/Origins.h"

namespace orve::coefficients {

struct LineOfRise {
  double slope;
  double constant;

  constexpr double At(double r) const { return slope * r + constant; }
};

// clang-format off
inline constexpr struct {
  double riseLimit            = 0.6;
  // Windward quarter of a roof on an elevated structure.
  double middleFrom           = 0.2;
  double steepFrom            = 0.3;
  LineOfRise shallow          = {0,    -0.9};   // 0 < r < 0.2
  double middlePressureSlope  = 1.5;            // 0.2 <= r < 0.3, one case: 1.5 r - 0.3, which is 1.5 (r - 0.2)
  LineOfRise middleSuction    = {6,    -2.1};   // and the other
  LineOfRise steep            = {2.75, -0.7};   // 0.3 <= r <= 0.6
  // Windward quarter of a roof that springs from the ground.
  LineOfRise fromGround       = {1.4,   0};
  // Either.
  LineOfRise centreHalf       = {-1,   -0.7};
  LineOfRise leewardQuarter   = {0,    -0.5};
} kArchedRoof;
// clang-format on

}  // namespace orve::coefficients
