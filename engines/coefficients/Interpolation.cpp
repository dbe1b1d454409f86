#include "coefficients/Interpolation.h"

#include <algorithm>

namespace orve::coefficients {

Position Locate(const Block& block, double parameter) {
  const std::size_t last = block.rowCount - 1;
  if (!(parameter > block.rows[0].parameter)) return {0, 0, 0};
  if (!(parameter < block.rows[last].parameter)) return {last, last, 0};
  std::size_t upper = 1;
  while (block.rows[upper].parameter < parameter) ++upper;
  const double high = block.rows[upper].parameter;
  if (high == parameter) return {upper, upper, 0};
  const double low = block.rows[upper - 1].parameter;
  return {upper - 1, upper, (parameter - low) / (high - low)};
}

namespace {

double FigureOf(const Cell& cell, bool suction) {
  return suction ? cell.suction : cell.pressure;
}

Mark MarkOf(const Cell& cell, bool suction) {
  return suction ? cell.mark : cell.pressureMark;
}

double StrongerOf(const Cell& cell, bool suction) {
  return suction ? cell.strongerSuction : cell.strongerPressure;
}

double BlankAsZero(double figure) {
  return IsBlank(figure) ? 0.0 : figure;
}

/// Mark of two corners: the weaker one's; a blank corner has none of its own.
Mark MarkOf(const Cell& lower, const Cell& upper, bool suction) {
  if (IsBlank(FigureOf(lower, suction))) return MarkOf(upper, suction);
  if (IsBlank(FigureOf(upper, suction))) return MarkOf(lower, suction);
  return std::max(MarkOf(lower, suction), MarkOf(upper, suction));
}

}  // namespace

Figure ReadFigure(const Block& block, std::size_t column, const Position& position, bool suction) {
  const Cell& lower = block.rows[position.lower].cells[column];
  const Cell& upper = block.rows[position.upper].cells[column];
  Figure figure;
  if (lower.Empty() || upper.Empty()) return figure;
  figure.found = true;
  const bool asked = !IsBlank(FigureOf(lower, suction)) || !IsBlank(FigureOf(upper, suction));
  figure.suction = asked ? suction : !suction;
  figure.lowerFigure = BlankAsZero(FigureOf(lower, figure.suction));
  figure.upperFigure = BlankAsZero(FigureOf(upper, figure.suction));
  figure.lowerBlank = IsBlank(FigureOf(lower, figure.suction));
  figure.upperBlank = IsBlank(FigureOf(upper, figure.suction));
  figure.lowerStronger = StrongerOf(lower, figure.suction);
  figure.upperStronger = StrongerOf(upper, figure.suction);
  figure.mark = MarkOf(lower, upper, figure.suction);
  figure.value = figure.lowerFigure + position.fraction * (figure.upperFigure - figure.lowerFigure);
  return figure;
}

}  // namespace orve::coefficients
