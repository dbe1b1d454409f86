#include "TreeText.h"

#include <ostream>
#include <set>

namespace windcase {

using orve::explain::Layer;
using orve::explain::Quantity;

namespace {

class Printer {
 public:
  Printer(std::ostream& out, int depth) : m_out(out), m_depth(depth) {}

  void Print(const Quantity& quantity, int level) {
    const std::string indent(static_cast<std::size_t>(level) * 2, ' ');
    m_out << indent << Head(quantity);
    if (!quantity.children.empty() && !m_seen.insert(&quantity).second) {
      m_out << "  (as above)\n";
      return;
    }
    m_out << "\n";
    const std::string detail = indent + "    ";
    if (!quantity.formula.empty()) m_out << detail << "= " << quantity.formula << "\n";
    const bool bareSymbol = quantity.formula.find(' ') == std::string::npos;
    if (!bareSymbol) m_out << detail << "= " << quantity.numbers << "\n";
    if (!quantity.note.empty()) m_out << detail << quantity.note << "\n";
    if (quantity.source) m_out << detail << "from " << quantity.source->Text() << "\n";
    for (const auto& warning : quantity.warnings) m_out << detail << "warning: " << warning.text << "\n";
    if (m_depth != 0 && level + 1 >= m_depth) return;
    for (const auto& child : quantity.children)
      if (!IsShownInFormula(*child)) Print(*child, level + 1);
  }

 private:
  // A figure of which nothing more is known than its number, which the formula holds.
  static bool IsShownInFormula(const Quantity& quantity) {
    return quantity.layer == Layer::Component && quantity.value && quantity.children.empty() &&
           !quantity.source && quantity.note.empty();
  }

  static std::string Head(const Quantity& quantity) {
    std::string head = quantity.name;
    if (quantity.value) head = quantity.symbol + "  " + head;
    // The library prints nothing for a load of 0.
    if (quantity.value)
      head += " = " + (quantity.text.empty() ? "0" : quantity.text);
    else if (!quantity.text.empty())
      head += ": " + quantity.text;
    if (!quantity.unit.empty()) head += " " + quantity.unit;
    if (!quantity.clause.empty()) head += "  [" + quantity.clause + "]";
    if (quantity.layer == Layer::Input) head += "  (input)";
    return head;
  }

  std::ostream& m_out;
  int m_depth;
  std::set<const Quantity*> m_seen;
};

}  // namespace

void PrintTree(std::ostream& out, const Quantity& tree, int depth) {
  Printer(out, depth).Print(tree, 0);
}

}  // namespace windcase
