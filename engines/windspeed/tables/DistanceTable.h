// The form of the tables that are entered by effective height and by a distance in kilometres.
#pragma once

#include <array>
#include <cstddef>
#include <string_view>

#include "Sources.h"

namespace orve::windspeed {

/// A table of the standard: rows by effective height He in m, columns by distance in km, as in the print.
template <std::size_t Rows, std::size_t Columns>
struct DistanceTable {
  std::string_view table;
  std::string_view item;
  std::string_view distance;
  SourceStatus status;
  std::array<double, Rows> he;
  std::array<double, Columns> km;
  std::array<std::array<double, Columns>, Rows> values;
};

}  // namespace orve::windspeed
