// One read of a coefficient, and how it was come by.
#pragma once

#include <cstddef>
#include <limits>
#include <string_view>

#include "coefficients/Geometry.h"
#include "coefficients/Interpolation.h"
#include "coefficients/Shapes.h"
#include "coefficients/TableSet.h"

namespace orve::coefficients {

/// Largest finite input.
inline constexpr double kLargest = std::numeric_limits<float>::max();

/// A ratio of inputs, which is a number, at their width of 32 bits; the largest there is for a larger one.
inline float AtInputWidth(double value) {
  return static_cast<float>(value > kLargest ? kLargest : value);
}

/// Compares at 32 bits, the width of the inputs: a ratio of inputs that is meant to lie on a limit lies on
/// it.
inline bool Below(double value, double limit) {
  return AtInputWidth(value) < AtInputWidth(limit);
}

/// What is asked: a valid zone of a shape at a wind angle.
struct Request {
  const Inputs& inputs;
  Shape shape;
  WindAngle angle;
  std::size_t zone;          ///< Number of the zone, within the list of zones.
  std::string_view letters;  ///< The zone's letters.
  Plan plan;
  const TableSet& tables;
};

/// A coefficient with the way that it was come by.
struct Reading {
  double value = 0;
  const TableTitle* table = nullptr;  ///< The table read.
  const Block* block = nullptr;       ///< Its block; null for a closed form.
  const Origin* origin = nullptr;
  std::string_view column;  ///< Letters of the column read.
  Position position;
  Figure figure;
  std::string_view note;  ///< A rule that led to this block rather than another; may be empty.
};

/// Reads a column of a block at a parameter that lies within it. Raises 5 at a blank row.
Reading ReadBlock(const Request& request, const Table& table, const Block& block, std::size_t column,
                  double parameter, bool suction);

}  // namespace orve::coefficients
