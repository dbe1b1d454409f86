// Plan lengths as the wind meets them, and the scaling length b.
#pragma once

#include "coefficients/Shapes.h"

namespace orve::coefficients {

/// Lengths at one wind angle, in metres.
struct Plan {
  double breadth = 0;  ///< Crosswind breadth B.
  double depth = 0;    ///< Inwind depth D.
  double height = 0;   ///< Height H: highest point of the roof, or top of a free-standing wall.
  double scale = 0;    ///< Scaling length b, the lesser of B and 2 H.
};

/// Lengths of the inputs at a wind angle; B, D and b are 0 at an angle that no zone is defined for.
Plan PlanOf(const Inputs& inputs, Shape shape, WindAngle angle);

}  // namespace orve::coefficients
