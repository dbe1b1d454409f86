// The texts of formulas.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "Quantity.h"

namespace orve::explain {

/// A number as formulas show it: at most six significant digits, never with an exponent.
std::string FormulaNumber(double value);

/// Whether a formula holds a symbol.
bool UsesSymbol(std::string_view formula, std::string_view symbol);

/// The formula with each symbol replaced by the number of the quantity that bears it; negative numbers stand
/// in brackets.
std::string PutNumbersIn(std::string_view formula, const std::vector<QuantityPtr>& quantities);

}  // namespace orve::explain
