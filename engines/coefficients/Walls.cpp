// Vertical walls: Table 5 and clause 2.4.1.
#include <algorithm>
#include <cmath>
#include <iterator>

#include "coefficients/Refusal.h"
#include "coefficients/Rules.h"
#include "coefficients/tables/Funnelling.h"

namespace orve::coefficients {

namespace {

constexpr std::size_t kFaceBlock = 0;
constexpr std::size_t kSideBlock = 1;

Reading ReadFace(const Request& request, const Table& table) {
  RequirePositive(request, table, "depth D", request.plan.depth, "m");
  RequirePositive(request, table, "Dim_H", request.plan.height, "m");
  // Constant below the first ratio and above the last.
  return ReadBlock(request, table, table.blocks[kFaceBlock], request.angle == WindAngle::At0 ? 0 : 1,
                   request.plan.depth / request.plan.height, request.inputs.suction);
}

/// Share of the funnelling figures (2.4.1.4); no neighbour for a gap of 0.
double FunnellingFactor(const Request& request, const Table& table) {
  const double gap = request.inputs.gap;
  if (gap == 0) return 0;
  if (!(std::isgreater(gap, 0.0) && gap <= kLargest))
    Refuse(request, table, "Dim_gap", gap, "m", "a finite number of 0 or above");
  RequirePositive(request, table, "breadth B", request.plan.breadth, "m");
  RequirePositive(request, table, "Dim_H", request.plan.height, "m");
  const double ratio = gap / request.plan.scale;
  if (ratio <= std::begin(kFunnelling)->gapOverB) return 0;
  for (const FunnellingPoint* high = std::begin(kFunnelling) + 1; high != std::end(kFunnelling); ++high) {
    const FunnellingPoint* low = high - 1;
    if (ratio > high->gapOverB) continue;
    return low->factor +
           (ratio - low->gapOverB) / (high->gapOverB - low->gapOverB) * (high->factor - low->factor);
  }
  return 0;
}

}  // namespace

Reading ReadWalls(const Request& request) {
  const Table& table = request.tables.Require(TableNumber::Table5);
  if (!AlongLength(request.angle)) return ReadFace(request, table);
  return ReadBlock(request, table, table.blocks[kSideBlock], request.zone, FunnellingFactor(request, table),
                   request.inputs.suction);
}

}  // namespace orve::coefficients
