#include "text_table.h"

#include <algorithm>
#include <common/NumberText.h>
#include <utility>

namespace examples {

namespace {

// Characters of a UTF-8 text, which is what a terminal counts.
std::size_t Width(const std::string& text) {
  return static_cast<std::size_t>(
      std::count_if(text.begin(), text.end(), [](char byte) { return (byte & 0xC0) != 0x80; }));
}

}  // namespace

std::string Number(double value, int places) {
  return orve::FormatFixed(value, places);
}

TextTable::TextTable(std::vector<std::string> header, std::size_t leftColumns) : m_leftColumns(leftColumns) {
  m_rows.push_back(std::move(header));
}

void TextTable::Print(std::ostream& out) const {
  std::vector<std::size_t> widths(m_rows.front().size(), 0);
  for (const auto& row : m_rows)
    for (std::size_t i = 0; i < row.size(); ++i) widths.at(i) = std::max(widths.at(i), Width(row[i]));

  for (const auto& row : m_rows) {
    std::string line;
    for (std::size_t i = 0; i < row.size(); ++i) {
      const std::string blanks(widths[i] - Width(row[i]), ' ');
      line += i < m_leftColumns ? "  " + row[i] + blanks : "  " + blanks + row[i];
    }
    line.erase(line.find_last_not_of(' ') + 1);
    out << line << "\n";
  }
}

void PrintHeading(std::ostream& out, const std::string& text) {
  out << "\n" << text << "\n" << std::string(Width(text), '-') << "\n";
}

}  // namespace examples
