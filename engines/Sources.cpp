#include "Sources.h"

#include <algorithm>
#include <charconv>

namespace orve {

namespace {

std::string NumberText(double value) {
  char text[32];
  const auto end = std::to_chars(text, text + sizeof text, value).ptr;
  return {text, end};
}

std::string FractionText(double value) {
  char text[32];
  const auto end = std::to_chars(text, text + sizeof text, value, std::chars_format::fixed, 3).ptr;
  return {text, end};
}

std::string AxisText(const SourceAxis& axis) {
  std::string text = axis.name + " " + NumberText(axis.low);
  if (axis.high != axis.low) text += " to " + NumberText(axis.high);
  if (!axis.unit.empty()) text += " " + axis.unit;
  if (axis.high != axis.low) text += " (" + FractionText(axis.fraction) + ")";
  return text;
}

void Append(std::string& text, std::string_view separator, const std::string& part) {
  if (part.empty()) return;
  if (!text.empty()) text += separator;
  text += part;
}

}  // namespace

std::string_view SourceStatusText(SourceStatus status) {
  switch (status) {
    case SourceStatus::Confirmed:
      return "confirmed";
    case SourceStatus::Consistent:
      return "consistent";
    case SourceStatus::Recalled:
      return "recalled";
    case SourceStatus::EngineChoice:
      return "engine choice";
    case SourceStatus::StandingIn:
      return "standing in";
  }
  return {};
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
  for (const double corner : corners) Append(values, " ", NumberText(corner));
  Append(text, ": ", values);
  text += " [" + std::string(SourceStatusText(status)) + "]";
  Append(text, " ", note);
  return text;
}

}  // namespace orve
