// The form in which a table of coefficients is held: laid out like the print, a row for each value of the
// parameter, a column for each zone, and in each cell the suction and the pressure figure.
#pragma once

#include <array>
#include <cstddef>
#include <initializer_list>
#include <limits>
#include <string_view>

namespace orve::coefficients {

/// What is known of a figure.
enum class Mark : unsigned char {
  Confirmed,              ///< Read in an outside source that applies the standard.
  Consistent,             ///< Known, and equal to what the block's `basis` names.
  Recalled,               ///< Known here only; confidence high.
  RecalledMedium,         ///< Known here only; confidence medium.
  SubstituteTwice,        ///< Of a substitute table, read in two public copies.
  SubstituteTwiceOfMore,  ///< The same, but another copy has another figure.
  Substitute,             ///< Of a substitute table, read in one public copy.
  SubstituteOnceOfMore,   ///< The same, but another copy has another figure.
  SubstituteRecalled,     ///< Of a substitute table, recalled.
  Office,                 ///< From an office's table file.
};

inline constexpr double kBlank = std::numeric_limits<double>::quiet_NaN();

constexpr bool IsBlank(double figure) {
  return figure != figure;
}

/// One cell: the suction figure (0 or below), the pressure figure (0 or above), or either of them blank.
struct Cell {
  double suction = kBlank;
  double pressure = kBlank;
  Mark mark = Mark::SubstituteTwice;
  Mark pressureMark = Mark::SubstituteTwice;
  /// In a substitute table, a recalled figure of BS 6399-2 that is stronger; blank if none is.
  double strongerSuction = kBlank;
  double strongerPressure = kBlank;

  /// The same cell beside a recalled figure of BS 6399-2 that is stronger than that of its sign.
  constexpr Cell WeakerThan(double recalled) const {
    Cell cell = *this;
    (recalled < 0 ? cell.strongerSuction : cell.strongerPressure) = recalled;
    return cell;
  }

  constexpr bool Empty() const { return IsBlank(suction) && IsBlank(pressure); }
};

// Cells as the table files of this folder write them; without a mark they are of a substitute table, read in
// two public copies.
constexpr Cell S(double suction, Mark mark = Mark::SubstituteTwice) {
  return {.suction = suction, .mark = mark, .pressureMark = mark};
}
constexpr Cell P(double pressure, Mark mark = Mark::SubstituteTwice) {
  return {.pressure = pressure, .mark = mark, .pressureMark = mark};
}
constexpr Cell SP(double suction, double pressure, Mark mark, Mark pressureMark) {
  return {.suction = suction, .pressure = pressure, .mark = mark, .pressureMark = pressureMark};
}
constexpr Cell SP(double suction, double pressure, Mark mark = Mark::SubstituteTwice) {
  return SP(suction, pressure, mark, mark);
}

inline constexpr std::size_t kMaxColumns = 9;
inline constexpr std::size_t kMaxRows = 16;
inline constexpr std::size_t kMaxBlocks = 4;

struct Row {
  double parameter = 0;
  std::array<Cell, kMaxColumns> cells{};
  std::string_view name{};  ///< Of a row that has a name for a parameter, e.g. "isolated".
};

/// Where the figures of a block come from.
struct Origin {
  std::string_view standard;
  std::string_view edition;
  std::string_view
      table;  ///< Table or figures of `standard`, where they aren't those of the block's own table.
  std::string_view remark;     ///< Said beside every value.
  bool substitute = false;     ///< True if the figures are used in the place of those of BS 6399-2.
  std::string_view caution{};  ///< Of a substitute table: how it may differ from the print.
};

/// One block of a table: the rows under one heading.
struct Block {
  std::string_view heading;    ///< As table files head the block, e.g. "Theta 0 180".
  std::string_view parameter;  ///< Name of the row parameter, e.g. "pitch".
  std::array<std::string_view, kMaxColumns> letters{};
  std::size_t columns = 0;
  std::array<Row, kMaxRows> rows{};
  std::size_t rowCount = 0;
  const Origin* origin = nullptr;
  /// What its confirmed and consistent cells rest on: "by ..." or "with ...".
  std::string_view basis{};

  constexpr double First() const { return rows[0].parameter; }
  constexpr double Last() const { return rows[rowCount - 1].parameter; }
};

/// A block of the rows given.
template <std::size_t R>
constexpr Block MakeBlock(std::string_view heading, std::string_view parameter, const Origin& origin,
                          std::initializer_list<std::string_view> letters, const Row (&rows)[R],
                          std::string_view basis = {}) {
  static_assert(R <= kMaxRows);
  Block block;
  block.heading = heading;
  block.parameter = parameter;
  block.origin = &origin;
  block.basis = basis;
  for (const std::string_view letter : letters) block.letters[block.columns++] = letter;
  for (const Row& row : rows) block.rows[block.rowCount++] = row;
  return block;
}

/// What a table is called.
struct TableTitle {
  std::string_view name;   ///< "Table 10"
  std::string_view title;  ///< "duo-pitched roofs"
  std::string_view clause;
};

/// A table of the standard.
struct Table : TableTitle {
  std::array<Block, kMaxBlocks> blocks{};
  std::size_t blockCount = 0;
  bool net = false;  ///< Net coefficients across a wall: pressure figures only.
};

constexpr Table MakeTable(std::string_view name, std::string_view title, std::string_view clause,
                          std::initializer_list<Block> blocks, bool net = false) {
  Table table;
  table.name = name;
  table.title = title;
  table.clause = clause;
  table.net = net;
  for (const Block& block : blocks) table.blocks[table.blockCount++] = block;
  return table;
}

}  // namespace orve::coefficients
