#include "coefficients/Refusal.h"

#include <cmath>

#include "coefficients/Zones.h"
#include "common/Error.h"
#include "common/NumberText.h"

namespace orve::coefficients {

namespace {

std::string WithUnit(double value, std::string_view unit) {
  std::string text = InputText(value);
  if (!unit.empty()) text.append(" ").append(unit);
  return text;
}

std::string Place(const Request& request, const TableTitle& table) {
  std::string text(table.name);
  text.append(" (").append(table.title).append("), zone ").append(request.letters);
  return text + " at Theta " + ShortestText(static_cast<float>(request.inputs.theta));
}

[[noreturn]] void Raise(const std::string& text) {
  throw Error(ErrorNumber::InvalidArgument, text);
}

}  // namespace

std::string InputText(double value) {
  if (std::isgreater(std::fabs(value), kLargest)) return ShortestText(value);
  return ShortestText(static_cast<float>(value));
}

void Refuse(const Request& request, const TableTitle& table, std::string_view quantity, double value,
            std::string_view unit, std::string_view range, std::string_view advice) {
  std::string text = Place(request, table) + ": ";
  text.append(quantity).append(" is ").append(WithUnit(value, unit));
  text.append("; the range is ").append(range);
  if (!advice.empty()) text.append(". ").append(advice);
  Raise(text);
}

void RefuseZone(const Inputs& inputs, Shape shape, WindAngle angle) {
  if (shape == Shape::None)
    Raise("TypeIndex is " + std::to_string(inputs.typeIndex) +
          ", which names no shape; the shapes are 0, 2, 3, 4, 5, 8 and 11");
  const std::size_t count = ZonesOf(shape, angle).size();
  const std::string theta = ShortestText(inputs.theta);
  if (count == 0)
    Raise("Theta is " + theta + ", at which TypeIndex " + std::to_string(inputs.typeIndex) +
          " has no zones; the angles are " +
          (shape == Shape::Parapet       ? "0 and 180"
           : shape == Shape::MonoPitched ? "0, 89.9, 90, 180, 270 and 270.1"
                                         : "0, 90, 180 and 270"));
  Raise("ZoneIndex is " + std::to_string(inputs.zoneIndex) + "; TypeIndex " +
        std::to_string(inputs.typeIndex) + " at Theta " + theta + " has zones 0 to " +
        std::to_string(count - 1));
}

void RefuseBlank(const Request& request, const TableTitle& table, const Block& block,
                 const Position& position) {
  std::string text = Place(request, table) + ": the table has no figure between ";
  text.append(block.parameter).append(" ").append(InputText(block.rows[position.lower].parameter));
  text.append(" and ").append(InputText(block.rows[position.upper].parameter));
  Raise(text);
}

}  // namespace orve::coefficients
