#include "TextTable.h"

#include <algorithm>
#include <ostream>

namespace windcase {

namespace {

// Characters of a UTF-8 text.
std::size_t Width(const std::string& text) {
  return static_cast<std::size_t>(std::count_if(
      text.begin(), text.end(), [](char c) { return (static_cast<unsigned char>(c) & 0xC0U) != 0x80U; }));
}

}  // namespace

void TextTable::Print(std::ostream& out) const {
  std::vector<std::size_t> widths(m_rows.front().size());
  for (const auto& row : m_rows)
    for (std::size_t i = 0; i < row.size(); ++i) widths[i] = std::max(widths[i], Width(row[i]));
  for (const auto& row : m_rows) {
    std::string line;
    for (std::size_t i = 0; i < row.size(); ++i)
      line += row[i] + std::string(widths[i] - Width(row[i]) + 2, ' ');
    line.erase(line.find_last_not_of(' ') + 1);
    out << line << "\n";
  }
}

}  // namespace windcase
