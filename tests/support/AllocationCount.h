// Counts the allocations of a test program. A program that uses it compiles AllocationCount.cpp in.
#pragma once

#include <cstddef>

namespace orve::test {

/// Allocations through operator new since the program's start.
std::size_t AllocationCount();

}  // namespace orve::test
