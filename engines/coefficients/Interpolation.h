// Reading a block of a table: one axis, linear, suction and pressure figures each by themselves.
#pragma once

#include <cstddef>

#include "coefficients/TableForm.h"

namespace orve::coefficients {

/// Two neighbouring rows and the share of the way from the lower to the upper, 0 to 1. On a row and beyond an
/// end of the axis the two are one.
struct Position {
  std::size_t lower = 0;
  std::size_t upper = 0;
  double fraction = 0;
};

/// Where a parameter lies among the rows of a block; beyond its ends the end row. The parameter is a number.
Position Locate(const Block& block, double parameter);

/// A figure as read: its value and where it stands.
struct Figure {
  double value = 0;
  bool suction = false;    ///< The case that the value is of, which needn't be the case asked for.
  double lowerFigure = 0;  ///< The corner figures used; a blank beside a figure counts as 0.
  double upperFigure = 0;
  bool lowerBlank = false;
  bool upperBlank = false;
  double lowerStronger = kBlank;  ///< Recalled figures of BS 6399-2 that are stronger than the corners.
  double upperStronger = kBlank;
  Mark mark = Mark::SubstituteTwice;  ///< Of the weaker corner.
  bool found = false;                 ///< False if a row used has no figure at all in this column.
};

/// The figure of a column at a position. Each case is interpolated by itself, a blank beside a figure
/// counting as 0; where a case is blank in all rows used, the figure of the other case is the answer (a zone
/// of one sign).
Figure ReadFigure(const Block& block, std::size_t column, const Position& position, bool suction);

}  // namespace orve::coefficients
