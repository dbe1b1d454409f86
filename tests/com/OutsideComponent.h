// The classes that the tests' outside components come in.
#pragma once

#include "System.h"

namespace orve::test {

enum class OutsideClass { WindSpeed, Coefficients, Broken };

inline GUID IdentityOf(OutsideClass outside) {
  return {0x6f9c1b10u + static_cast<unsigned>(outside),
          0x52aa,
          0x4d0b,
          {0x8e, 0x61, 0x3d, 0x2f, 0x77, 0x15, 0x90, 0xc4}};
}

}  // namespace orve::test
