// Counts what the program allocates.
#pragma once

#include <cstddef>

namespace bench {

/// Calls of `operator new`, in any form, since the program started.
std::size_t Allocations();

}  // namespace bench
