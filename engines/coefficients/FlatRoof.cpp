// Flat roofs: Table 8 and clause 2.5.1.
#include <algorithm>
#include <cmath>

#include "coefficients/Refusal.h"
#include "coefficients/Rules.h"

namespace orve::coefficients {

namespace {

constexpr std::size_t kSharpBlock = 0;
constexpr std::size_t kParapetBlock = 1;
constexpr std::size_t kCurvedBlock = 2;
constexpr std::size_t kMansardBlock = 3;

void RequirePlan(const Request& request, const Table& table) {
  RequirePositive(request, table, "breadth B", request.plan.breadth, "m");
  RequirePositive(request, table, "Dim_H", request.plan.height, "m");
}

/// 0 is a feature that isn't there; anything else has to be a finite number above 0.
bool HasFeature(const Request& request, const Table& table, std::string_view quantity, float value,
                std::string_view unit) {
  if (value == 0) return false;
  if (!(std::isgreater(value, 0.0F) && value <= kLargest))
    Refuse(request, table, quantity, value, unit, "a finite number of 0 or above");
  return true;
}

Reading ReadSharp(const Request& request, const Table& table, std::string_view note) {
  Reading reading =
      ReadBlock(request, table, table.blocks[kSharpBlock], request.zone, 0, request.inputs.suction);
  reading.note = note;
  return reading;
}

Reading ReadRows(const Request& request, const Table& table, std::size_t block, double parameter) {
  return ReadBlock(request, table, table.blocks[block], request.zone, parameter, request.inputs.suction);
}

/// The ratio that the rows are headed by. Unless a table file settles which it is, the lesser of h/H and h/b:
/// the safe side, since a parapet only lowers the suction.
double ParapetRatio(const Request& request, const Block& block) {
  const double h = request.inputs.parapetHeight;
  if (block.parameter == "h/H") return h / request.plan.height;
  if (block.parameter == "h/b") return h / request.plan.scale;
  return std::min(h / request.plan.height, h / request.plan.scale);
}

Reading ReadParapets(const Request& request, const Table& table) {
  RequirePlan(request, table);
  const double ratio = ParapetRatio(request, table.blocks[kParapetBlock]);
  if (Below(ratio, table.blocks[kParapetBlock].First()))
    return ReadSharp(request, table, "parapet lower than the first row: sharp eaves");
  return ReadRows(request, table, kParapetBlock, ratio);
}

Reading ReadCurvedEaves(const Request& request, const Table& table) {
  RequirePlan(request, table);
  const Block& block = table.blocks[kCurvedBlock];
  const double ratio = request.inputs.eavesRadius / request.plan.scale;
  if (Below(ratio, block.First()))
    return ReadSharp(request, table, "radius smaller than the first row: sharp eaves");
  if (Below(block.Last(), ratio))
    Refuse(request, table, "Eaves_Radius over b (r/b)", ratio, "", "0 to " + InputText(block.Last()));
  return ReadRows(request, table, kCurvedBlock, ratio);
}

Reading ReadMansardEaves(const Request& request, const Table& table) {
  constexpr double vertical = 90;
  const Block& block = table.blocks[kMansardBlock];
  const double slope = request.inputs.eavesPitch;
  if (slope < block.First() || slope > vertical)
    Refuse(request, table, "Eaves_Pitch", slope, "degrees", InputText(block.First()) + " to 90 degrees");
  if (slope > block.Last()) return ReadSharp(request, table, "steeper than the last row: sharp eaves");
  return ReadRows(request, table, kMansardBlock, slope);
}

}  // namespace

Reading ReadSharpEaves(const Request& request, std::size_t column, bool suction) {
  const Table& table = request.tables.Require(TableNumber::Table8);
  return ReadBlock(request, table, table.blocks[kSharpBlock], column, 0, suction);
}

Reading ReadFlatRoof(const Request& request) {
  const Table& table = request.tables.Require(TableNumber::Table8);
  const Inputs& inputs = request.inputs;
  const bool parapets = HasFeature(request, table, "Parapet_H", inputs.parapetHeight, "m");
  const bool curved = HasFeature(request, table, "Eaves_Radius", inputs.eavesRadius, "m");
  const bool mansard = HasFeature(request, table, "Eaves_Pitch", inputs.eavesPitch, "degrees");
  if (parapets && (curved || mansard))
    Refuse(request, table, "Parapet_H", inputs.parapetHeight, "m", "0 beside another kind of eaves",
           "Describe one kind of eaves at a time");
  if (curved && mansard)
    Refuse(request, table, "Eaves_Radius", inputs.eavesRadius, "m", "0 beside another kind of eaves",
           "Describe one kind of eaves at a time");
  if (parapets) return ReadParapets(request, table);
  if (curved) return ReadCurvedEaves(request, table);
  if (mansard) return ReadMansardEaves(request, table);
  return ReadSharp(request, table, {});
}

}  // namespace orve::coefficients
