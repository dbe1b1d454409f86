// Random buildings, sites and coefficients, the same for the same seed.
#pragma once

#include <random>

namespace orve {
class clsCurrentCase;
}

namespace orve::test {

/// Fills the new case of a root object. Most of its zones have loads; some are refused by the engines.
void FillRandomCase(clsCurrentCase& windCase, std::mt19937& random);

}  // namespace orve::test
