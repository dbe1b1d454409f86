// Mono-pitched, duo-pitched and hipped roofs: Tables 9, 10 and 11, clauses 2.5.2 and 2.5.3.
#include <algorithm>
#include <cmath>

#include "coefficients/Refusal.h"
#include "coefficients/Rules.h"

namespace orve::coefficients {

namespace {

constexpr double kFlattestPitch = 5;  ///< Below it a roof counts as flat.

constexpr std::string_view kDescribeFlat = "Describe a roof flatter than 5 degrees as a flat roof";

std::string Range(double from, double to) {
  return InputText(from) + " to " + InputText(to) + " degrees";
}

[[noreturn]] void RefusePitch(const Request& request, const Table& table, const std::string& range) {
  const double pitch = request.inputs.roofPitch;
  Refuse(request, table, "Roof_Pitch", pitch, "degrees", range,
         std::isless(std::fabs(pitch), kFlattestPitch) ? kDescribeFlat : std::string_view());
}

/// Reads a column at the roof's pitch, between the block's first row and its last and not flatter than 5
/// degrees.
Reading ReadPitch(const Request& request, const Table& table, const Block& block, std::size_t column) {
  const double pitch = request.inputs.roofPitch;
  const bool inside = std::isgreaterequal(pitch, block.First()) && std::islessequal(pitch, block.Last());
  const bool flat = std::isless(std::fabs(pitch), kFlattestPitch);
  if (!inside || flat)
    RefusePitch(request, table,
                block.First() < 0
                    ? Range(block.First(), -kFlattestPitch) + " and " + Range(kFlattestPitch, block.Last())
                    : Range(block.First(), block.Last()));
  return ReadBlock(request, table, block, column, pitch, request.inputs.suction);
}

}  // namespace

Reading ReadMonoPitchedRoof(const Request& request) {
  const Table& table = request.tables.Require(TableNumber::Table9);
  switch (request.angle) {
    case WindAngle::At0:
      return ReadPitch(request, table, table.blocks[0], request.zone);
    case WindAngle::At180:
      return ReadPitch(request, table, table.blocks[1], request.zone);
    case WindAngle::At90:
    case WindAngle::At270:
      return ReadPitch(request, table, table.blocks[2], request.zone);
    default:
      break;
  }
  // Column 0 is the upper corner, which lies at 90 and 270 alone.
  return ReadPitch(request, table, table.blocks[2], request.zone + 1);
}

Reading ReadDuoPitchedRoof(const Request& request) {
  const Table& table = request.tables.Require(TableNumber::Table10);
  return ReadPitch(request, table, table.blocks[AlongLength(request.angle) ? 1 : 0], request.zone);
}

Reading ReadHippedRoof(const Request& request) {
  const Table& table = request.tables.Require(TableNumber::Table11);
  return ReadPitch(request, table, table.blocks[0], request.zone);
}

}  // namespace orve::coefficients
