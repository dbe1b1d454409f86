// The fourth scene of the demo: one building under each of the roofs that the library knows.
#pragma once

#include <ostream>

namespace orve {
class clsCurrentCase;
}

namespace examples {

/// Prints for each roof type the governing loads of the roof and how well its coefficients are known. The
/// case's data objects are new afterwards.
void PrintRoofScene(orve::clsCurrentCase& windCase, std::ostream& out);

}  // namespace examples
