#include "common/Narrow.h"

namespace orve {

void RaiseOverflow() {
  throw Error(ErrorNumber::Overflow, "Overflow");
}

double RoundHalfEven(double value) {
  if (!std::isfinite(value)) return value;
  const double below = std::floor(value);
  const double fraction = value - below;
  if (fraction < 0.5) return below;
  if (fraction > 0.5) return below + 1;
  return std::fmod(below, 2) == 0 ? below : below + 1;
}

namespace {

template <class Integer>
Integer RoundInto(double value) {
  const double whole = RoundHalfEven(value);
  if (std::isnan(whole) ||
      !(whole >= std::numeric_limits<Integer>::min() && whole <= std::numeric_limits<Integer>::max()))
    RaiseOverflow();
  return static_cast<Integer>(whole);
}

}  // namespace

std::int16_t ToInt16(double value) {
  return RoundInto<std::int16_t>(value);
}

std::int32_t ToInt32(double value) {
  return RoundInto<std::int32_t>(value);
}

}  // namespace orve
