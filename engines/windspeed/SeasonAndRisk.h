// Seasonal and probability factor (annex D).
#pragma once

namespace orve::windspeed {

/// Probability factor Sp of an annual risk Q, 0 < Q < 1; NaN for NaN.
double ProbabilityFactor(double risk);

/// Seasonal factor Ss of a `Durations` value and, for a period of months, its first month (0 is January); NaN
/// for NaN.
double SeasonalFactor(double season, double startMonth);

}  // namespace orve::windspeed
