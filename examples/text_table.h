// Aligned tables of text, and the texts of numbers in them.
#pragma once

#include <cstddef>
#include <ostream>
#include <string>
#include <vector>

namespace examples {

/// A value with a fixed number of decimal places.
std::string Number(double value, int places);

/// A table that sets its columns to their widest cell. The first columns stand left, the others right.
class TextTable {
 public:
  explicit TextTable(std::vector<std::string> header, std::size_t leftColumns = 1);

  void Add(std::vector<std::string> row) { m_rows.push_back(std::move(row)); }
  bool Empty() const { return m_rows.size() < 2; }
  void Print(std::ostream& out) const;

 private:
  std::size_t m_leftColumns;
  std::vector<std::vector<std::string>> m_rows;
};

/// A heading, underlined.
void PrintHeading(std::ostream& out, const std::string& text);

}  // namespace examples
