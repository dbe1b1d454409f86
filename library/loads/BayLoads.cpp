#include "loads/BayLoads.h"

#include "common/Error.h"
#include "common/Narrow.h"

namespace orve {
namespace {

float AverageOver(double length, double load) {
  if (length == 0) throw Error(ErrorNumber::DivisionByZero, "Division by zero: a bay has no length");
  return ToSingle(load / length);
}

float Sum(float a, float b) {
  return ToSingle(static_cast<double>(a) + b);
}

}  // namespace

float EndBayLoad(const BayLoadCase& bays) {
  const double L1 = bays.L1, W1 = bays.W1, W2 = bays.W2, W3 = bays.W3, Z1 = bays.Z1, Z2 = bays.Z2;
  if (Sum(bays.Z1, bays.Z2) <= bays.L1) return AverageOver(L1, W1 * Z1 + W2 * Z2 + W3 * (L1 - Z1 - Z2));
  if (bays.Z1 <= bays.L1) return AverageOver(L1, W1 * Z1 + W2 * (L1 - Z1));
  return bays.W1;
}

float SecondBayLoad(const BayLoadCase& bays) {
  const double L1 = bays.L1, L2 = bays.L2, W1 = bays.W1, W2 = bays.W2, W3 = bays.W3, Z1 = bays.Z1,
               Z2 = bays.Z2;
  const float endOfStep2 = Sum(bays.Z1, bays.Z2);
  if (endOfStep2 <= bays.L1) return bays.W3;
  const float endOfBay = Sum(bays.L1, bays.L2);
  if (bays.Z1 <= bays.L1) {
    if (endOfStep2 > endOfBay) return bays.W2;
    return AverageOver(L2, W3 * (L1 + L2 - Z1 - Z2) + W2 * (Z1 + Z2 - L1));
  }
  if (endOfBay < bays.Z1) return bays.W1;
  if (endOfStep2 <= endOfBay) return AverageOver(L2, W1 * (Z1 - L1) + W2 * Z2 + W3 * (L1 + L2 - Z1 - Z2));
  return AverageOver(L2, W1 * (Z1 - L1) + W2 * (L1 + L2 - Z1));
}

}  // namespace orve
