#include "Sources.h"

#include <algorithm>
#include <cstddef>
#include <iterator>

#include "common/NumberText.h"

namespace orve {

namespace {

std::string AxisText(const SourceAxis& axis) {
  std::string text = axis.name + " " + ShortestText(axis.low);
  if (axis.high != axis.low) text += " to " + ShortestText(axis.high);
  if (!axis.unit.empty()) text += " " + axis.unit;
  if (axis.high != axis.low) text += " (" + FormatFixed(axis.fraction, 3) + ")";
  return text;
}

void Append(std::string& text, std::string_view separator, const std::string& part) {
  if (part.empty()) return;
  if (!text.empty()) text += separator;
  text += part;
}

}  // namespace

std::string_view SourceStatusText(SourceStatus status) {
  static constexpr std::string_view kTexts[] = {"confirmed", "consistent", "recalled", "engine choice",
                                                "standing in"};
  const auto index = static_cast<std::size_t>(status);
  return index < std::size(kTexts) ? kTexts[index] : std::string_view();
}

SourceStatus Weaker(SourceStatus first, SourceStatus second) {
  return std::max(first, second);
}

std::string SourceRecord::Text() const {
  std::string text = standard;
  if (!edition.empty()) text += " (" + edition + ")";
  Append(text, ", ", table);
  Append(text, ", ", item);
  for (const SourceAxis& axis : axes) Append(text, ", ", AxisText(axis));
  std::string values;
  for (const double corner : corners) Append(values, " ", ShortestText(corner));
  Append(text, ": ", values);
  text += " [" + std::string(SourceStatusText(status)) + "]";
  Append(text, " ", note);
  return text;
}

}  // namespace orve
