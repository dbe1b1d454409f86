// Benchmarks of the built-in engines by themselves: what one recalculation and one read cost.
#pragma once

namespace bench {

void RegisterEngineBenchmarks();

}  // namespace bench
