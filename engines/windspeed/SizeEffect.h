// Size effect factor Ca of the hybrid and standard method (Figure 4). Recalled: see the tables.
#pragma once

#include <array>
#include <optional>

#include "windspeed/tables/Figure4Key.h"

namespace orve::windspeed {

/// The line of Figure 4 for an effective height (m), distances to the sea and in the town (km); none if one
/// isn't usable.
std::optional<Figure4Key::Line> SizeEffectLine(double he, double toSea, double inTown);

/// Ca of the lines A, B, C for a diagonal a in m: 1 up to 5 m, above 1000 m as at 1000 m (the engine's
/// choice).
std::array<double, 3> SizeEffectFactors(double a);

}  // namespace orve::windspeed
