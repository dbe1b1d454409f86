// The second scene of the demo: loads that members are designed for.
#pragma once

#include <ostream>

namespace orve {
class clsCurrentCase;
}

namespace examples {

/// Begins a new case from a continuous double purlin, describes the portal building over it and prints the
/// purlin's stepped load and a chosen zone; then gives the building cantilevers on faces 2 and 4 and prints
/// their zones. The case's data objects are new afterwards, and the case stays as the scene leaves it.
void PrintMemberScene(orve::clsCurrentCase& windCase, std::ostream& out);

}  // namespace examples
