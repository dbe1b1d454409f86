// A rule for an enclosed building: its stored flag and the coefficients that it writes.
#pragma once

#include "common/NumberText.h"
#include "internal/clsInternalCoefficients.h"

namespace orve {

struct clsInternalCoefficients::EnclosedRule {
  bool clsInternalCoefficients::*flag;
  float pressure;
  float suction;
};

/// Two coefficients compared as the texts of the format "0.000", each at its own width.
template <class First, class Second>
bool SameAtThreeDecimals(First first, Second second) {
  constexpr int places = 3;
  return FormatFixed(first, places) == FormatFixed(second, places);
}

}  // namespace orve
