#include "TextTable.h"

#include <algorithm>
#include <ostream>

#include "PrintableText.h"

namespace windcase {

namespace {

// A longer text doesn't widen its column: every row would be padded to it.
constexpr std::size_t kWidestColumn = 80;

// Characters of a UTF-8 text.
std::size_t Width(const std::string& text) {
  return static_cast<std::size_t>(std::count_if(
      text.begin(), text.end(), [](char c) { return (static_cast<unsigned char>(c) & 0xC0U) != 0x80U; }));
}

}  // namespace

void TextTable::Add(std::vector<std::string> row) {
  for (std::string& text : row) text = Printable(text, false);
  m_rows.push_back(std::move(row));
}

void TextTable::Print(std::ostream& out) const {
  std::vector<std::size_t> widths(m_rows.front().size());
  for (const auto& row : m_rows)
    for (std::size_t i = 0; i < row.size(); ++i)
      if (const std::size_t width = Width(row[i]); width <= kWidestColumn)
        widths[i] = std::max(widths[i], width);
  for (const auto& row : m_rows) {
    std::string line;
    for (std::size_t i = 0; i < row.size(); ++i)
      line += row[i] + std::string(widths[i] - std::min(widths[i], Width(row[i])) + 2, ' ');
    line.erase(line.find_last_not_of(' ') + 1);
    out << line << "\n";
  }
}

}  // namespace windcase
