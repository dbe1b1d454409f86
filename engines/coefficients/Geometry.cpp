#include "coefficients/Geometry.h"

#include <cmath>
#include <limits>

namespace orve::coefficients {

namespace {

// A sum without arithmetic on NaN or on infinities of both signs, which would trap in some hosts.
double Sum(double first, double second) {
  const bool known = !std::isnan(first) && !std::isnan(second);
  const bool opposite = std::isinf(first) && std::isinf(second) && first != second;
  return known && !opposite ? first + second : std::numeric_limits<double>::quiet_NaN();
}

}  // namespace

Plan PlanOf(const Inputs& inputs, Shape shape, WindAngle angle) {
  Plan plan;
  plan.height = inputs.height;
  // A curved roof's height is given to the springing.
  if (shape == Shape::Curved) plan.height = Sum(plan.height, inputs.barrelRise);
  if (angle == WindAngle::None) return plan;
  const bool along = AlongLength(angle);
  plan.breadth = along ? inputs.width : inputs.length;
  plan.depth = along ? inputs.length : inputs.width;
  const double twiceHeight = std::isnan(plan.height) ? plan.height : 2 * plan.height;
  plan.scale = std::isless(twiceHeight, plan.breadth) ? twiceHeight : plan.breadth;
  return plan;
}

}  // namespace orve::coefficients
