// Where a figure of the built-in engines comes from: the record that each engine gives beside its contract.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

namespace orve {

/// How well a figure is known, from the best to the weakest.
enum class SourceStatus {
  Confirmed,     ///< Read in an outside source, or pinned by two or more published calculations.
  Consistent,    ///< Agrees with a published calculation, a sister table or a formula of the standard.
  Recalled,      ///< Known by recollection only: to be checked against the print.
  EngineChoice,  ///< No rule of the standard is known: the engine's own, stated choice.
  Substitute,    ///< Taken from a substitute table, since that of BS 6399-2 isn't at hand.
};

/// "confirmed", "consistent", "recalled", "engine choice" or "substitute table".
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

/// A figure of a substitute table that is weaker than a recalled figure of BS 6399-2.
struct WeakerFigure {
  std::string place;    ///< As "zone A, pitch 5 degrees".
  std::string table;    ///< Table of BS 6399-2 that the recalled figure belongs to.
  double served = 0;    ///< The substitute figure.
  double recalled = 0;  ///< The recalled one.

  /// As "-1.7 for the recalled -1.8 of BS 6399-2 Table 10 (zone A, pitch 5 degrees)".
  std::string Text() const;
};

/// Where one figure comes from.
struct SourceRecord {
  std::string standard;  ///< As "BS 6399-2:1997"; of a substitute figure the standard that it is taken from.
  std::string edition;   ///< Edition and amendment, or who checked a table file and when.
  std::string table;     ///< Table, figure, clause or annex, as "Table 22".
  std::string item;      ///< What is read there: the factor, or zone and wind direction.
  SourceStatus status = SourceStatus::Recalled;
  std::string basis;  ///< What the status rests on, as read after it: "with EN 1991-1-4 ..."; may be empty.
  std::vector<SourceAxis> axes;  ///< Axes of the table; empty for a formula.
  /// The table's figures that were read, the last axis fastest: both lines of each axis, one where `low` is
  /// `high`; a formula's constant if it has one.
  std::vector<double> corners;
  std::vector<std::size_t> blankCorners;  ///< Positions in `corners` of blanks, which count as 0.
  std::vector<WeakerFigure> weaker;       ///< Corners that are weaker than recalled figures of BS 6399-2.
  std::string replaces;  ///< Of a substitute table: that of BS 6399-2, as "BS 6399-2 Table 10".
  std::string caution;   ///< Of a substitute table: how it may differ from the print; may be empty.
  std::string note;      ///< The formula, the engine's choice or a warning; may be empty.

  /// The status with its basis, as "confirmed by the office's table file".
  std::string StatusText() const;
  /// The record in one line, for sheets and lists.
  std::string Text() const;
};

}  // namespace orve
