// Benchmarks of the case file: opening, saving, and the search of one key.
#pragma once

namespace bench {

void RegisterCaseFileBenchmarks();

}  // namespace bench
