// Works a formula of the tree out, so that a test can put the quantities together again.
#pragma once

#include <functional>
#include <string_view>

namespace orve::test {

/// The value of a symbol.
using SymbolValue = std::function<double(std::string_view symbol)>;

/// The formula's value in 64 bits, from left to right. Fails the test for a formula that it can't read.
double FormulaValue(std::string_view formula, const SymbolValue& valueOf);

}  // namespace orve::test
