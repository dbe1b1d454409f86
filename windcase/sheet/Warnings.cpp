#include "Warnings.h"

#include <algorithm>

namespace orve::sheet {

void Warnings::Mark(Marks& marks, const std::string& text) {
  const auto found = std::find(m_texts.begin(), m_texts.end(), text);
  const int number = static_cast<int>(found - m_texts.begin()) + 1;
  if (found == m_texts.end()) m_texts.push_back(text);
  if (std::find(marks.begin(), marks.end(), number) == marks.end()) marks.push_back(number);
}

}  // namespace orve::sheet
