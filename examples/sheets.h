// The sheets of the demo. Each reads the open case through the library's public members and prints what it
// finds; none of them works anything out by itself.
#pragma once

#include <ostream>

namespace orve {
class clsCurrentCase;
}

namespace examples {

/// The building and the site as they were described.
void PrintBuilding(std::ostream& out, const orve::clsCurrentCase& windCase);
/// Factors, wind speeds, q and Ca of the twelve sectors, for each wind area.
void PrintSectors(std::ostream& out, const orve::clsCurrentCase& windCase);
/// Zones, coefficients and loads of each face of roof, walls and parapet.
void PrintZones(std::ostream& out, const orve::clsCurrentCase& windCase);
/// The governing pressure and suction of each building area.
void PrintGoverningLoads(std::ostream& out, const orve::clsCurrentCase& windCase);
/// Where the figures behind the loads come from, and how well each is known.
void PrintSources(std::ostream& out, const orve::clsCurrentCase& windCase);

/// All of the above, in this order.
void PrintWholeSheet(std::ostream& out, const orve::clsCurrentCase& windCase);

}  // namespace examples
