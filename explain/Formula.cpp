#include "Formula.h"

#include <algorithm>
#include <cmath>

#include "common/NumberText.h"

namespace orve::explain {

namespace {

constexpr std::string_view kTimes = "\u00D7";

bool IsDigit(char c) {
  return c >= '0' && c <= '9';
}

// Letters beyond ASCII count as letters, the multiplication sign excepted.
bool StartsSymbol(std::string_view text) {
  const char c = text.front();
  if (text.substr(0, kTimes.size()) == kTimes) return false;
  return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z') || (static_cast<unsigned char>(c) & 0x80U) != 0;
}

// A symbol, or one character of anything else.
std::string_view NextToken(std::string_view text) {
  std::size_t length = 0;
  if (StartsSymbol(text))
    while (length < text.size() &&
           (StartsSymbol(text.substr(length)) || IsDigit(text[length]) || text[length] == '_'))
      ++length;
  return text.substr(0, std::max<std::size_t>(length, 1));
}

std::string TrimZeros(std::string text) {
  if (text.find('.') == std::string::npos) return text;
  text.erase(text.find_last_not_of('0') + 1);
  if (text.back() == '.') text.pop_back();
  return text;
}

std::string Bracketed(const std::string& number) {
  return number.front() == '-' ? "(" + number + ")" : number;
}

}  // namespace

std::string FormulaNumber(double value) {
  constexpr int digits = 6;
  constexpr int mostPlaces = 15;
  if (value == 0 || !std::isfinite(value)) return ShortestText(value);
  const int exponent = static_cast<int>(std::floor(std::log10(std::fabs(value))));
  const int places = std::clamp(digits - 1 - exponent, 0, mostPlaces);
  // A 32-bit value is shown by its own digits, not by those of its 64-bit image.
  const auto single = static_cast<float>(value);
  return TrimZeros(single == value ? FormatFixed(single, places) : FormatFixed(value, places));
}

bool UsesSymbol(std::string_view formula, std::string_view symbol) {
  while (!formula.empty()) {
    const std::string_view token = NextToken(formula);
    if (token == symbol) return true;
    formula.remove_prefix(token.size());
  }
  return false;
}

std::string PutNumbersIn(std::string_view formula, const std::vector<QuantityPtr>& quantities) {
  std::string result;
  while (!formula.empty()) {
    const std::string_view token = NextToken(formula);
    const auto found = std::find_if(quantities.begin(), quantities.end(),
                                    [&](const QuantityPtr& quantity) { return quantity->symbol == token; });
    if (found != quantities.end() && (*found)->value)
      result += Bracketed(FormulaNumber(*(*found)->value));
    else
      result += token;
    formula.remove_prefix(token.size());
  }
  return result;
}

}  // namespace orve::explain
