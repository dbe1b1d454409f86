// One cell of a table file.
#pragma once

#include <string>
#include <string_view>

#include "coefficients/TableForm.h"

namespace orve::coefficients {

/// A word as error texts show it, in quotation marks.
std::string Quoted(std::string_view word);

/// A plain decimal number, with or without a sign, that fills the word; NaN if it isn't one.
double WordToNumber(std::string_view word);

/// Reads a cell: "-1.2", "+0.4", "-0.5/+0.8", "-0.5/-", "-/+0.7" or "-". Returns the reason why it isn't one,
/// empty if it is. `net` cells hold no suction.
std::string ReadCell(std::string_view word, bool net, Cell& cell);

}  // namespace orve::coefficients
