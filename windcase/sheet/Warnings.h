// The warnings of a sheet, each numbered once.
#pragma once

#include <string>
#include <vector>

namespace orve::sheet {

/// Numbers of warnings, from 1.
using Marks = std::vector<int>;

class Warnings {
 public:
  /// Adds the number of a warning to the marks, once.
  void Mark(Marks& marks, const std::string& text);
  const std::vector<std::string>& Texts() const { return m_texts; }

 private:
  std::vector<std::string> m_texts;
};

}  // namespace orve::sheet
