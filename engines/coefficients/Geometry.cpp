#include "coefficients/Geometry.h"

#include <algorithm>

namespace orve::coefficients {

Plan PlanOf(const Inputs& inputs, Shape shape, WindAngle angle) {
  Plan plan;
  plan.height = inputs.height;
  // A curved roof's height is given to the springing.
  if (shape == Shape::Curved) plan.height += inputs.barrelRise;
  if (angle == WindAngle::None) return plan;
  const bool along = AlongLength(angle);
  plan.breadth = along ? inputs.width : inputs.length;
  plan.depth = along ? inputs.length : inputs.width;
  plan.scale = std::min(plan.breadth, 2 * plan.height);
  return plan;
}

}  // namespace orve::coefficients
