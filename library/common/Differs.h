// How a let compares a new value with the stored one.
#pragma once

#include <concepts>

namespace orve {

/// Floats differ when one is less or greater than the other; NaN is neither, so it never counts as a change.
template <std::floating_point Float>
constexpr bool Differs(Float a, Float b) {
  return a < b || a > b;
}

template <class Value>
requires(!std::floating_point<Value>) constexpr bool Differs(const Value& a, const Value& b) {
  return !(a == b);
}

}  // namespace orve
