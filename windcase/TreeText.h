// A tree of quantities as text.
#pragma once

#include <iosfwd>

#include "Quantity.h"

namespace windcase {

/// Prints a tree, indented; what was shown before is only named again. `depth` 0 means all levels.
void PrintTree(std::ostream& out, const orve::explain::Quantity& tree, int depth);

}  // namespace windcase
