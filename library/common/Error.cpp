#include "common/Error.h"

namespace orve {

void RaiseSubscript(const char* what, long value, long low, long high) {
  const std::string range =
      high < low ? "there is none" : std::to_string(low) + " to " + std::to_string(high) + " is allowed";
  throw Error(ErrorNumber::SubscriptOutOfRange,
              std::string("Subscript out of range: ") + what + " " + std::to_string(value) + ", " + range);
}

}  // namespace orve
