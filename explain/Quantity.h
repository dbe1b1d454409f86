// One quantity of a calculation and the quantities that it follows from.
#pragma once

#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "Sources.h"
#include "Warning.h"

namespace orve::explain {

/// Where a quantity's value was read.
enum class Layer {
  Library,    ///< A member of the object library: formulas hold exactly, rounded once to 32 bits.
  Component,  ///< A result of one of the two components: formulas hold within 1e-6.
  Input,      ///< Entered by the user or held in the site's data.
};

struct Quantity;
using QuantityPtr = std::shared_ptr<const Quantity>;

/// A node of the tree. Its value is a read of the library, of a component or of an engine's source record;
/// nothing is worked out a second time. A quantity that several others follow from is one object below all
/// of them.
///
/// A formula holds symbols of the children, decimal numbers, + - × / ^, brackets, and max, min, ln, sqrt and
/// cbrt of a bracket.
struct Quantity {
  std::string symbol;  ///< As "q" or "Cpe_p"; what stands behind "_" is an index. Unique among siblings.
  std::string name;
  Layer layer = Layer::Library;
  std::optional<double> value;  ///< Nothing for a quantity that is a text, as a wind face.
  std::string unit;             ///< Empty for a factor.
  std::string text;             ///< Number or text as the library prints it, without the unit.
  std::string formula;          ///< With symbols; empty for what is read from a table, entered or chosen.
  std::string numbers;          ///< The formula with the numbers put in.
  std::string note;             ///< What governs, and why no formula stands here.
  std::string clause;           ///< Clause, table or figure of BS 6399-2.
  std::optional<SourceRecord> source;  ///< Where an engine's figure comes from.
  std::vector<Warning> warnings;       ///< What a reader has to know before relying on the value.
  std::vector<QuantityPtr> children;
};

// Makers of nodes.

/// A number with its text at three decimals.
Quantity Number(std::string symbol, std::string name, float value, std::string unit = {});
/// A text.
Quantity Text(std::string symbol, std::string name, std::string text);

/// The same quantity, told to be an input.
Quantity Input(Quantity quantity);
/// The same quantity, read from a component; with the engine's record, if it has one.
Quantity FromComponent(Quantity quantity, std::optional<SourceRecord> source = {});

/// Adds a child and returns it.
QuantityPtr Add(Quantity& parent, Quantity child);
QuantityPtr Add(Quantity& parent, QuantityPtr child);

/// Sets the formula and puts the numbers of the children in.
void SetFormula(Quantity& quantity, std::string formula);

}  // namespace orve::explain
