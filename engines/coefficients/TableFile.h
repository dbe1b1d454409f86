// Table files: a table of the standard as an office writes it down from its own print.
#pragma once

#include <memory>
#include <string>
#include <string_view>
#include <variant>

#include "coefficients/TableForm.h"

namespace orve::coefficients {

/// A table read from a file, with the texts that it refers to. It keeps its place: `table` points into it.
struct OfficeTable {
  OfficeTable() = default;
  OfficeTable(const OfficeTable&) = delete;
  OfficeTable& operator=(const OfficeTable&) = delete;

  Table table;
  Origin origin;
  std::string standard;
  std::string edition;  ///< Edition, who checked the figures against it and when.
};

/// Why a file isn't taken, and the line where that shows, 1 for the first.
struct TableFault {
  std::size_t line = 0;
  std::string reason;
};

using TableFileResult = std::variant<std::unique_ptr<const OfficeTable>, TableFault>;

/// Reads the text of a table file. The form:
/// - `#` begins a remark line; empty lines are skipped; words are divided by blanks or tabs.
/// - A head of the lines `Table:`, `Standard:`, `Edition:`, `Checked by:`, `Checked on:` (year-month-day). A
/// standard
///   other than BS 6399-2 stays marked as a substitute.
/// - Every section of the table, `[heading]`: a line with the name of the row parameter and the zones'
/// letters, in any
///   order, then a line for each row: the parameter, rising, or the row's name, and a cell for each letter.
/// - A cell is `suction/pressure`, as `-0.5/+0.8`; one figure alone where the print has one; `-` for a blank.
TableFileResult ReadTableText(std::string_view text);

/// Reads the table file of a path ("\" as separator). A file that can't be read is a fault of line 0.
TableFileResult ReadTableFile(const std::string& path);

/// The file that a table is looked for in: "Table10.txt" for "Table 10".
std::string TableFileName(std::string_view tableName);

/// A fault as it is told: file, line and reason.
std::string FaultText(const std::string& path, const TableFault& fault);

}  // namespace orve::coefficients
