// Effective height behind obstructions (clause 1.7.3).
#pragma once

#include <algorithm>
#include <cmath>

#include "windspeed/TerrainFactors.h"

namespace orve::windspeed {

/// Displacement height Hd in m, by the height Ho and the upwind spacing Xo of the obstructions (m). None in
/// country terrain (recalled), nor for an Ho that isn't above 0 (the engine's choice). NaN if an input that
/// counts is NaN.
inline double DisplacementHeight(double ho, double xo, double toSea, double inTown) {
  if (std::isnan(inTown)) return inTown;
  if (InCountry(inTown, toSea)) return 0;
  if (std::isnan(ho)) return ho;
  if (ho <= 0) return 0;
  if (std::isnan(xo)) return xo;
  return std::clamp(1.2 * ho - 0.2 * xo, 0.0, 0.8 * ho);
}

/// Effective height He in m of a reference height Hr; NaN if one of the two is NaN.
inline double EffectiveHeight(double hr, double hd) {
  if (!AllKnown(hr, hd)) return kNotKnown;
  const double height = hr - hd;
  return height < 0.4 * hr ? 0.4 * hr : height;
}

}  // namespace orve::windspeed
