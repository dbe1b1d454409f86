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
                                                "substitute table"};
  const auto index = static_cast<std::size_t>(status);
  return index < std::size(kTexts) ? kTexts[index] : std::string_view();
}

SourceStatus Weaker(SourceStatus first, SourceStatus second) {
  return std::max(first, second);
}

std::string WeakerFigure::Text() const {
  return ShortestText(served) + " for the recalled " + ShortestText(recalled) + " of BS 6399-2 " + table +
         " (" + place + ")";
}

std::string SourceRecord::StatusText() const {
  std::string text(SourceStatusText(status));
  Append(text, " ", basis);
  return text;
}

std::string SourceRecord::Text() const {
  std::string text = standard;
  if (!edition.empty()) text += " (" + edition + ")";
  Append(text, ", ", table);
  Append(text, ", ", item);
  for (const SourceAxis& axis : axes) Append(text, ", ", AxisText(axis));
  std::string values;
  for (std::size_t i = 0; i < corners.size(); ++i) {
    const bool blank = std::find(blankCorners.begin(), blankCorners.end(), i) != blankCorners.end();
    Append(values, " ", blank ? "blank" : ShortestText(corners[i]));
  }
  Append(text, ": ", values);
  text += " [" + StatusText() + "]";
  std::string remarks = note;
  if (!replaces.empty()) Append(remarks, "; ", "substitute for " + replaces);
  if (!blankCorners.empty()) Append(remarks, "; ", "a blank counts as 0");
  for (const WeakerFigure& figure : weaker) Append(remarks, "; ", "weaker: " + figure.Text());
  Append(text, " ", remarks);
  return text;
}

}  // namespace orve
