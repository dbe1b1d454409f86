// Gust peak factor gt (Table 24 and annex F). The entries of Table 24 aren't at hand; the rule is recalled:
// gt = 3.44 - 0.42 ln t, t = max(1, (a/5) min(1, 22.5/V0)) in seconds.
#pragma once

#include <cmath>

namespace orve::windspeed {

/// gt of a 5 m diagonal, which holds for the standard and the hybrid method on every site (confirmed).
inline constexpr double kGustPeakAt5m = 3.44;
/// A diagonal up to this length (m) counts as this length.
inline constexpr double kLeastDiagonal = 5;
/// What gt falls by while the averaging time grows by the factor e.
inline constexpr double kGustPeakFall = 0.42;

/// ln(a/5) of a diagonal a: 0 up to 5 m.
inline double LogOfDiagonal(double a) {
  if (std::isnan(a)) return a;
  return a <= kLeastDiagonal ? 0 : std::log(a / kLeastDiagonal);
}

/// ln(min(1, 22.5/V0)) of a site's mean wind speed V0 in m/s: a gust passes a diagonal sooner in a stronger
/// wind.
inline double LogOfSpeed(double v0) {
  if (std::isnan(v0)) return v0;
  return v0 <= 22.5 ? 0 : std::log(22.5 / v0);
}

/// gt of the two logarithms; never below 0. NaN if one of the two is NaN.
inline double GustPeakFactor(double logOfDiagonal, double logOfSpeed) {
  if (std::isnan(logOfDiagonal)) return logOfDiagonal;
  if (std::isnan(logOfSpeed)) return logOfSpeed;
  const double logOfTime = logOfDiagonal + logOfSpeed;
  if (logOfTime <= 0) return kGustPeakAt5m;
  const double gt = kGustPeakAt5m - kGustPeakFall * logOfTime;
  return gt < 0 ? 0 : gt;
}

}  // namespace orve::windspeed
