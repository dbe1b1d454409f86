// The tables in force: those built in, each of which an office's table file may replace.
#pragma once

#include <array>
#include <cstddef>
#include <memory>
#include <string>

#include "coefficients/TableForm.h"

namespace orve::coefficients {

/// The tables that the engine reads.
enum class TableNumber : unsigned char { Table5, Table8, Table9, Table10, Table11, Table21 };

inline constexpr std::size_t kTableCount = 6;

/// The table as it is built in.
const Table& BuiltInTable(TableNumber number);

/// The table of a name as "Table 10"; null if there is none.
const Table* FindBuiltInTable(std::string_view name);

struct OfficeTable;

/// The tables of one engine.
class TableSet {
 public:
  /// The built-in tables.
  TableSet();
  ~TableSet();
  TableSet(const TableSet&) = delete;
  TableSet& operator=(const TableSet&) = delete;

  /// Takes in the table files of a folder ("\\" as separator), one file named after each table
  /// ("Table10.txt"): a good one replaces its table, a faulty one bars it. A table without a file stays as it
  /// is built in.
  void ReadFolder(const std::string& folder);

  /// The table in force. Error 5 with file, line and reason if its table file is faulty.
  const Table& Require(TableNumber number) const {
    const Entry& entry = m_entries[static_cast<std::size_t>(number)];
    if (!entry.table) RaiseFault(entry);
    return *entry.table;
  }

 private:
  struct Entry {
    const Table* table = nullptr;  ///< Null if its table file is faulty.
    std::unique_ptr<const OfficeTable> office;
    std::string fault;
  };

  [[noreturn]] static void RaiseFault(const Entry& entry);

  std::array<Entry, kTableCount> m_entries;
};

}  // namespace orve::coefficients
