#include "coefficients/Shapes.h"

#include <cmath>

namespace orve::coefficients {

Shape ShapeOf(std::int32_t typeIndex) {
  switch (typeIndex) {
    case 0:
      return Shape::Walls;
    case 2:
      return Shape::Flat;
    case 3:
      return Shape::MonoPitched;
    case 4:
      return Shape::DuoPitched;
    case 5:
      return Shape::Hipped;
    case 8:
      return Shape::Parapet;
    case 11:
      return Shape::Curved;
    default:
      return Shape::None;
  }
}

WindAngle WindAngleOf(double theta) {
  if (!std::isfinite(theta)) return WindAngle::None;
  constexpr double tolerance = 0.05;
  const auto near = [theta](double angle) { return std::fabs(theta - angle) < tolerance; };
  if (near(0)) return WindAngle::At0;
  if (near(89.9)) return WindAngle::Near90;
  if (near(90)) return WindAngle::At90;
  if (near(180)) return WindAngle::At180;
  if (near(270)) return WindAngle::At270;
  if (near(270.1)) return WindAngle::Near270;
  return WindAngle::None;
}

}  // namespace orve::coefficients
