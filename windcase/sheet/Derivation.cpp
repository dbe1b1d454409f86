#include "Derivation.h"

#include <Formula.h>
#include <algorithm>
#include <map>

#include "Html.h"

namespace orve::sheet {

namespace {

using explain::Quantity;
using explain::QuantityPtr;

// The candidates of a search that didn't win have no line of their own: their numbers stand in its products.
bool HasLine(const Quantity& quantity) {
  return !quantity.children.empty() || quantity.layer != explain::Layer::Component || quantity.source ||
         !quantity.clause.empty() || !quantity.note.empty() || !quantity.warnings.empty();
}

class Lines {
 public:
  int Number(const Quantity& quantity) {
    if (const auto known = m_numbers.find(&quantity); known != m_numbers.end()) return known->second;
    DerivationLine line{0, &quantity, {}};
    for (const QuantityPtr& child : quantity.children)
      if (HasLine(*child)) line.from.push_back(Number(*child));
    line.number = static_cast<int>(m_lines.size()) + 1;
    std::sort(line.from.begin(), line.from.end());
    m_numbers[&quantity] = line.number;
    m_lines.push_back(std::move(line));
    return m_lines.back().number;
  }
  std::vector<DerivationLine> Take() { return std::move(m_lines); }

 private:
  std::map<const Quantity*, int> m_numbers;
  std::vector<DerivationLine> m_lines;
};

constexpr std::string_view kTimes = "\u00D7";

bool IsDigit(char c) {
  return c >= '0' && c <= '9';
}

bool StartsSymbol(std::string_view text) {
  const char c = text.empty() ? ' ' : text.front();
  if (text.substr(0, kTimes.size()) == kTimes) return false;
  return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z') || (static_cast<unsigned char>(c) & 0x80U) != 0;
}

std::size_t FirstCharacter(std::string_view text) {
  std::size_t length = 1;
  while (length < text.size() && (static_cast<unsigned char>(text[length]) & 0xC0U) == 0x80U) ++length;
  return length;
}

std::size_t SymbolLength(std::string_view text) {
  std::size_t length = 0;
  while (length < text.size() && (StartsSymbol(text.substr(length)) ||
                                  (length > 0 && (IsDigit(text[length]) || text[length] == '_'))))
    ++length;
  return length;
}

bool IsFunction(std::string_view token) {
  return token == "max" || token == "min" || token == "ln" || token == "sqrt" || token == "cbrt";
}

std::string Result(const Quantity& quantity) {
  std::string text = quantity.text;
  if (quantity.value) {
    const std::string full = explain::FormulaNumber(*quantity.value);
    const bool same = text.empty() || explain::FormulaNumber(*quantity.value) == text;
    text = same ? "<b>" + Escaped(full) + "</b>" : Escaped(full) + " \u2248 <b>" + Escaped(text) + "</b>";
    if (!quantity.unit.empty()) text += " " + Escaped(quantity.unit);
    return text;
  }
  return "<b>" + Escaped(text) + "</b>";
}

}  // namespace

std::vector<DerivationLine> Derive(const Quantity& zone, bool pressure) {
  Lines lines;
  for (const QuantityPtr& child : zone.children)
    if (child->symbol != (pressure ? "p_min" : "p_max")) lines.Number(*child);
  return lines.Take();
}

std::string SymbolMarkup(std::string_view symbol) {
  const std::size_t first = FirstCharacter(symbol);
  std::string index;
  for (const char c : symbol.substr(std::min(first, symbol.size())))
    index += c == '_' ? (index.empty() ? "" : ",") : std::string(1, c);
  std::string markup = "<i>" + Escaped(symbol.substr(0, first)) + "</i>";
  if (!index.empty()) markup += "<sub>" + Escaped(index) + "</sub>";
  return markup;
}

std::string FormulaMarkup(std::string_view formula) {
  std::string markup;
  while (!formula.empty()) {
    std::size_t used = 1;
    if (const std::size_t length = SymbolLength(formula)) {
      const std::string_view token = formula.substr(0, length);
      markup += IsFunction(token) ? std::string(token) : SymbolMarkup(token);
      used = length;
    } else if (formula.front() == '^') {
      while (used < formula.size() && IsDigit(formula[used])) ++used;
      markup += "<sup>" + std::string(formula.substr(1, used - 1)) + "</sup>";
    } else if (formula.front() == '-') {
      markup += "\u2212";
    } else if (formula.substr(0, kTimes.size()) == kTimes) {
      markup += kTimes;
      used = kTimes.size();
    } else {
      markup += Escaped(formula.substr(0, 1));
    }
    formula.remove_prefix(used);
  }
  return markup;
}

std::string LineMarkup(const Quantity& quantity) {
  std::string markup;
  if (quantity.value) markup += SymbolMarkup(quantity.symbol) + " = ";
  if (!quantity.formula.empty()) {
    markup += FormulaMarkup(quantity.formula) + "<br>= ";
    if (quantity.numbers != quantity.formula) markup += FormulaMarkup(quantity.numbers) + "<br>= ";
  }
  return markup + Result(quantity);
}

}  // namespace orve::sheet
