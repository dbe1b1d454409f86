// Which zones a shape has at a wind angle, in the order of their numbers.
#pragma once

#include <span>
#include <string_view>

#include "coefficients/Shapes.h"

namespace orve::coefficients {

/// Letters of the zones, zone number 0 first; empty if there are none. Zones stay in the list when the
/// building is too small for them, because zones are addressed by number.
std::span<const std::string_view> ZonesOf(Shape shape, WindAngle angle);

}  // namespace orve::coefficients
