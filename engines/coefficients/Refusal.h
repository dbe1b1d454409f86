// How the engine refuses a figure: an error that names table, zone, wind angle, quantity, value and range.
#pragma once

#include <cmath>
#include <string>
#include <string_view>

#include "coefficients/Request.h"

namespace orve::coefficients {

/// Raises 5: `quantity` has `value` where `range` is asked for; `advice` says what to do instead, and may be
/// empty.
[[noreturn]] void Refuse(const Request& request, const TableTitle& table, std::string_view quantity,
                         double value, std::string_view unit, std::string_view range,
                         std::string_view advice = {});

/// Raises 5: the inputs name no zone, because of the shape, the wind angle or the zone number.
[[noreturn]] void RefuseZone(const Inputs& inputs, Shape shape, WindAngle angle);

/// Raises 5: a row of the table that is needed has no figure for the zone.
[[noreturn]] void RefuseBlank(const Request& request, const TableTitle& table, const Block& block,
                              const Position& position);

/// Raises 5 unless the value is a finite number above 0.
inline void RequirePositive(const Request& request, const TableTitle& table, std::string_view quantity,
                            double value, std::string_view unit) {
  if (!(std::isgreater(value, 0.0) && value <= kLargest))
    Refuse(request, table, quantity, value, unit, "a finite number above 0");
}

/// A number's shortest text at 32 bits, for inputs, which are of that width.
std::string InputText(double value);

}  // namespace orve::coefficients
