// Why a result can't be served.
#pragma once

#include <cstddef>

#include "windspeed/Inputs.h"
#include "windspeed/WindSpeedSources.h"

namespace orve::windspeed {

/// Raises 5 for the first unusable input that a result hangs on: quantity, value and range; 6 if every input
/// is usable and the result is too large for a 32-bit float.
[[noreturn]] void Refuse(WindFactor factor, const InputValues& inputs, std::size_t sector);

/// The same for the factors of the standard method.
[[noreturn]] void RefuseStandardSb(const InputValues& inputs, std::size_t sector, double he);
[[noreturn]] void RefuseStandardSa(const InputValues& inputs, std::size_t sector);

/// A factor's name, as "Sb".
const char* FactorName(WindFactor factor);

}  // namespace orve::windspeed
