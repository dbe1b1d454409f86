// Plain tables for a terminal.
#pragma once

#include <iosfwd>
#include <string>
#include <vector>

namespace windcase {

/// Rows of texts in columns as wide as their widest text, but for texts so long that they stick out; the
/// first row is the head.
class TextTable {
 public:
  explicit TextTable(std::vector<std::string> head) { m_rows.push_back(std::move(head)); }
  /// Control characters are shown, not sent.
  void Add(std::vector<std::string> row);
  bool Empty() const { return m_rows.size() == 1; }
  void Print(std::ostream& out) const;

 private:
  std::vector<std::vector<std::string>> m_rows;
};

}  // namespace windcase
