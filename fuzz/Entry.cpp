// The fuzzer's entry; ORVE_FUZZ_TARGET is the target that this program feeds.
#include <cstddef>
#include <cstdint>

#include "FuzzTargets.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  orve::fuzz::ORVE_FUZZ_TARGET({reinterpret_cast<const char*>(data), size});
  return 0;
}
