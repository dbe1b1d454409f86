// Linear interpolation between the lines of a table; beyond an end the end line holds.
#pragma once

#include <array>
#include <cstddef>

#include "windspeed/Inputs.h"
#include "windspeed/tables/DistanceTable.h"

namespace orve::windspeed {

/// Where a value lies on an axis: between two neighbouring lines, at a fraction of 0 to 1. NaN gives a
/// fraction of NaN, and so a figure of NaN.
struct Bracket {
  std::size_t low = 0;
  std::size_t high = 0;
  double fraction = 0;
};

template <std::size_t Lines>
Bracket Locate(const std::array<double, Lines>& axis, double value) {
  if (std::isnan(value)) return {0, 0, kNotKnown};
  if (value <= axis.front()) return {};
  if (value >= axis.back()) return {Lines - 1, Lines - 1, 0};
  std::size_t high = 1;
  while (high + 1 < Lines && value >= axis[high]) ++high;
  return {high - 1, high, (value - axis[high - 1]) / (axis[high] - axis[high - 1])};
}

inline double Between(double low, double high, double fraction) {
  return low + fraction * (high - low);
}

/// A table's figure, linear in He and in km.
template <std::size_t Rows, std::size_t Columns>
double At(const DistanceTable<Rows, Columns>& table, const Bracket& row, const Bracket& column) {
  if (!AllKnown(row.fraction, column.fraction)) return kNotKnown;
  const auto& low = table.values[row.low];
  const auto& high = table.values[row.high];
  return Between(Between(low[column.low], high[column.low], row.fraction),
                 Between(low[column.high], high[column.high], row.fraction), column.fraction);
}

/// Whether a value is at most a limit, within the width of a 32-bit value: a limit that was typed in decimals
/// is met.
inline bool AtMost(double value, double limit) {
  const double width = 1.2e-7 * (limit < 0 ? -limit : limit);
  return value <= limit + width;
}

}  // namespace orve::windspeed
