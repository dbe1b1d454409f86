// The whole sheet of a case, read through the library: every member of every zone of roof, walls and parapet,
// on all four faces.
#pragma once

#include <cstddef>
#include <vector>

namespace orve {
class clsCurrentCase;
}

namespace bench {

/// Net loads of one zone, kN/m².
struct NetLoads {
  float pressure;
  float suction;
};

/// Net loads of all zones, in the order of areas, faces and zones.
std::vector<NetLoads> ReadNetLoads(const orve::clsCurrentCase& windCase);

/// Reads all members that give a number; the result is their sum.
double ReadNumbers(const orve::clsCurrentCase& windCase);

/// The texts of a sheet, and how many of them are too long to be held in place.
struct Texts {
  std::size_t count = 0;
  std::size_t allocated = 0;
};

/// Reads all members that give a text.
Texts ReadTexts(const orve::clsCurrentCase& windCase);

}  // namespace bench
