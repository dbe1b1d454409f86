// A load followed by hand: one line for each quantity, each after those that it follows from.
#pragma once

#include <Quantity.h>
#include <string>
#include <string_view>
#include <vector>

namespace orve::sheet {

struct DerivationLine {
  int number = 0;
  const explain::Quantity* quantity = nullptr;
  std::vector<int> from;  ///< Numbers of the lines that it follows from.
};

/// The lines of a zone's overall pressure or suction.
std::vector<DerivationLine> Derive(const explain::Quantity& zone, bool pressure);

// Markup of quantities.

/// "Cpe_p" as an italic letter with its index.
std::string SymbolMarkup(std::string_view symbol);
/// A formula with symbols or with numbers; powers raised, minus signs as such.
std::string FormulaMarkup(std::string_view formula);
/// What governs, as a formula, or a note in words.
std::string NoteMarkup(std::string_view note);
/// The whole line: symbol, formula, numbers and result.
std::string LineMarkup(const explain::Quantity& quantity);

}  // namespace orve::sheet
