// Where a figure of the built-in engines comes from: the record that each engine gives beside its contract.
#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace orve {

/// How well a figure is known, from the best to the weakest.
enum class SourceStatus {
  Confirmed,     ///< Read in an outside source, or pinned by two or more published calculations.
  Consistent,    ///< Agrees with published calculations, a sister table or a formula of the standard.
  Recalled,      ///< Known by recollection only: to be checked against the print.
  EngineChoice,  ///< No rule of the standard is known: the engine's own, stated choice.
  StandingIn,    ///< A figure of another standard that stands in for a table not at hand.
};

/// "confirmed", "consistent", "recalled", "engine choice" or "standing in".
std::string_view SourceStatusText(SourceStatus status);

/// The weaker of two statuses.
SourceStatus Weaker(SourceStatus first, SourceStatus second);

/// One axis of a table as it was entered: the two neighbouring lines and how far the value lies between them.
struct SourceAxis {
  std::string name;     ///< As "He", "distance to the sea" or "pitch".
  std::string unit;     ///< As "m", "km" or "degrees"; may be empty.
  double low = 0;       ///< The line at or below the value.
  double high = 0;      ///< The line at or above it; equal to `low` on a line and beyond an end.
  double fraction = 0;  ///< Share of the way from `low` to `high`, 0 to 1.
};

/// Where one figure comes from.
struct SourceRecord {
  std::string standard;  ///< As "BS 6399-2:1997"; of a standing-in figure the standard that it is taken from.
  std::string edition;   ///< Edition and amendment, or who checked a table file and when.
  std::string table;     ///< Table, figure, clause or annex, as "Table 22".
  std::string item;      ///< What is read there: the factor, or zone and wind direction.
  SourceStatus status = SourceStatus::Recalled;
  std::vector<SourceAxis> axes;  ///< Axes of the table; empty for a formula.
  /// The table's figures that were read, the last axis fastest: both lines of each axis, one where `low` is
  /// `high`; a formula's constant if it has one.
  std::vector<double> corners;
  std::string note;  ///< The formula, the engine's choice or a warning; may be empty.

  /// The record in one line, for sheets and lists.
  std::string Text() const;
};

}  // namespace orve
