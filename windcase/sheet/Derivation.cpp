#include "Derivation.h"

#include <Formula.h>
#include <algorithm>
#include <map>

#include "Html.h"

namespace orve::sheet {

namespace {

using explain::Quantity;
using explain::QuantityPtr;

bool StartsWith(const std::string& text, std::string_view start) {
  return text.compare(0, start.size(), start) == 0;
}

// The candidates of a search that didn't win have no line of their own: their numbers stand in its products.
bool HasLine(const Quantity& quantity) {
  const bool ofCandidate = StartsWith(quantity.symbol, "q_") || StartsWith(quantity.symbol, "Ca_");
  return !ofCandidate || !quantity.children.empty() || quantity.source ||
         quantity.layer == explain::Layer::Input || !quantity.warnings.empty();
}

// Numbers the lines. The same quantity, met again in another place, keeps its first line.
class Lines {
 public:
  int Number(const Quantity& quantity) {
    if (const auto known = m_met.find(&quantity); known != m_met.end()) return known->second;
    DerivationLine line{0, &quantity, {}};
    for (const QuantityPtr& child : quantity.children)
      if (HasLine(*child)) line.from.push_back(Number(*child));
    std::sort(line.from.begin(), line.from.end());
    const auto [place, isNew] = m_numbers.emplace(KeyOf(line), static_cast<int>(m_lines.size()) + 1);
    m_met[&quantity] = line.number = place->second;
    if (isNew) m_lines.push_back(std::move(line));
    return place->second;
  }
  std::vector<DerivationLine> Take() { return std::move(m_lines); }

 private:
  static std::string KeyOf(const DerivationLine& line) {
    const Quantity& quantity = *line.quantity;
    std::string key;
    for (const std::string* part : {&quantity.symbol, &quantity.name, &quantity.text, &quantity.formula,
                                    &quantity.numbers, &quantity.note})
      key += *part + '\n';
    if (quantity.value) key += explain::FormulaNumber(*quantity.value);
    if (quantity.source) key += quantity.source->Text();
    for (const int number : line.from) key += "\n" + std::to_string(number);
    return key;
  }

  std::map<const Quantity*, int> m_met;
  std::map<std::string, int> m_numbers;
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

std::string WithoutZeros(std::string text) {
  if (text.find('.') == std::string::npos) return text;
  text.erase(text.find_last_not_of('0') + 1);
  if (text.back() == '.') text.pop_back();
  return text;
}

// All digits that formulas show, then the number as the library prints it.
std::string Result(const Quantity& quantity) {
  if (!quantity.value) return "<b>" + Escaped(quantity.text) + "</b>";
  const std::string full = explain::FormulaNumber(*quantity.value);
  const bool same = quantity.text.empty() || WithoutZeros(quantity.text) == full;
  std::string markup = same ? "<b>" + FormulaMarkup(full) + "</b>"
                            : FormulaMarkup(full) + " \u2248 <b>" + FormulaMarkup(quantity.text) + "</b>";
  if (!quantity.unit.empty()) markup += " " + Escaped(quantity.unit);
  return markup;
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

std::string NoteMarkup(std::string_view note) {
  constexpr std::string_view governs = " governs";
  if (note.size() <= governs.size() || note.substr(note.size() - governs.size()) != governs)
    return Escaped(note);
  return FormulaMarkup(note.substr(0, note.size() - governs.size())) + std::string(governs);
}

std::string LineMarkup(const Quantity& quantity) {
  std::string markup;
  if (quantity.value) markup += SymbolMarkup(quantity.symbol) + " = ";
  if (!quantity.formula.empty()) {
    markup += FormulaMarkup(quantity.formula) + " = ";
    const bool moreToSay = quantity.numbers != quantity.formula &&
                           !(quantity.value && quantity.numbers == explain::FormulaNumber(*quantity.value));
    if (moreToSay) markup += FormulaMarkup(quantity.numbers) + " = ";
  }
  return markup + Result(quantity);
}

}  // namespace orve::sheet
