// Narrowing to 32-bit floats and 16-bit integers, in one place: a value that doesn't fit raises error 6.
#pragma once

#include <cmath>
#include <cstdint>
#include <limits>
#include <type_traits>

#include "common/Error.h"

namespace orve {

[[noreturn]] void RaiseOverflow();

/// Narrows once to a 32-bit float; a finite value that is too large raises 6. NaN and infinity pass as they
/// are.
inline float ToSingle(double value) {
  // Half a step above the largest 32-bit value. It is compared before the conversion, which would raise a
  // floating-point exception.
  constexpr double tooLarge = 0x1.ffffffp127;
  if (std::isfinite(value) && std::fabs(value) >= tooLarge) RaiseOverflow();
  return static_cast<float>(value);
}

/// Narrows a whole number to 16 bits; raises 6 outside -32768 to 32767.
template <class Integer>
requires std::is_integral_v<Integer>
constexpr std::int16_t ToInt16(Integer value) {
  if (value < std::numeric_limits<std::int16_t>::min() || value > std::numeric_limits<std::int16_t>::max())
    RaiseOverflow();
  return static_cast<std::int16_t>(value);
}

/// Narrows an enumeration's value to the 16 bits that it is held in.
template <class Enumeration>
requires std::is_enum_v<Enumeration>
constexpr std::int16_t ToInt16(Enumeration value) {
  return ToInt16(static_cast<std::int32_t>(value));
}

/// Whole number nearest to a value, halves to the even neighbour, without regard to the rounding mode in
/// force.
double RoundHalfEven(double value);

/// A fraction to a whole number of 16 bits, halves to even; raises 6 if it doesn't fit or is no number.
std::int16_t ToInt16(double value);

/// A fraction to a whole number of 32 bits, halves to even; raises 6 if it doesn't fit or is no number.
std::int32_t ToInt32(double value);

}  // namespace orve
