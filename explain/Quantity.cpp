#include "Quantity.h"

#include "Formula.h"
#include "common/NumberText.h"

namespace orve::explain {

Quantity Number(std::string symbol, std::string name, float value, std::string unit) {
  constexpr int places = 3;
  Quantity quantity;
  quantity.symbol = std::move(symbol);
  quantity.name = std::move(name);
  quantity.value = value;
  quantity.unit = std::move(unit);
  quantity.text = FormatFixed(value, places);
  return quantity;
}

Quantity Text(std::string symbol, std::string name, std::string text) {
  Quantity quantity;
  quantity.symbol = std::move(symbol);
  quantity.name = std::move(name);
  quantity.text = std::move(text);
  return quantity;
}

Quantity Input(Quantity quantity) {
  quantity.layer = Layer::Input;
  return quantity;
}

Quantity FromComponent(Quantity quantity, std::optional<SourceRecord> source) {
  quantity.layer = Layer::Component;
  quantity.source = std::move(source);
  return quantity;
}

QuantityPtr Add(Quantity& parent, Quantity child) {
  return Add(parent, std::make_shared<const Quantity>(std::move(child)));
}

QuantityPtr Add(Quantity& parent, QuantityPtr child) {
  parent.children.push_back(child);
  return child;
}

void SetFormula(Quantity& quantity, std::string formula) {
  quantity.numbers = PutNumbersIn(formula, quantity.children);
  quantity.formula = std::move(formula);
}

}  // namespace orve::explain
