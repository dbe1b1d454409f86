// The floating-point state at the border: the library's inside a call, the host's in its handlers and
// afterwards.
#include <cfenv>
#include <gtest/gtest.h>
#include <limits>

#include "FloatState.h"

namespace orve {
namespace {

double Third() {
  volatile double one = 1;
  volatile double three = 3;
  return one / three;
}

double InvalidAndByZero() {
  volatile double zero = 0;
  volatile bool less = std::numeric_limits<double>::quiet_NaN() < zero;
  return less ? 0 : 1 / zero;
}

/// A host that traps and rounds upwards; the state of the test comes back at its end.
class StrictHost {
 public:
  StrictHost() {
    std::fegetenv(&m_test);
    std::fesetround(FE_UPWARD);
    std::feclearexcept(FE_ALL_EXCEPT);
    feenableexcept(FE_INVALID | FE_DIVBYZERO | FE_OVERFLOW);
  }
  ~StrictHost() { std::fesetenv(&m_test); }

 private:
  std::fenv_t m_test;
};

bool HostStateHolds() {
  return std::fegetround() == FE_UPWARD && std::fetestexcept(FE_DIVBYZERO | FE_INVALID) == 0;
}

TEST(FloatState, TheLibraryComputesMaskedAndRoundsToNearest) {
  const double nearest = Third();
  const StrictHost host;
  const double upward = Third();
  {
    const LibraryFloatState inside;
    EXPECT_EQ(Third(), nearest);
    EXPECT_GT(InvalidAndByZero(), 1e300);
  }
  EXPECT_TRUE(HostStateHolds());
  EXPECT_GT(upward, nearest);
  EXPECT_EQ(Third(), upward);
}

TEST(FloatState, AHandlerRunsWithTheHostsStateAndMayChangeIt) {
  const double nearest = Third();
  const StrictHost host;
  const double upward = Third();
  try {
    const LibraryFloatState outer;
    EXPECT_GT(InvalidAndByZero(), 1e300);
    {
      const HostFloatState handler;
      EXPECT_TRUE(HostStateHolds());
      EXPECT_EQ(Third(), upward);
      const LibraryFloatState nested;
      EXPECT_EQ(Third(), nearest);
      EXPECT_GT(InvalidAndByZero(), 1e300);
    }
    EXPECT_EQ(Third(), nearest);
    const HostFloatState handler;
    EXPECT_TRUE(HostStateHolds());
    std::fesetround(FE_DOWNWARD);
    throw 1;
  } catch (int) {
  }
  EXPECT_EQ(std::fegetround(), FE_DOWNWARD);
}

TEST(FloatState, OutsideACallTheHostsStateIsLeftAlone) {
  const StrictHost host;
  const HostFloatState handler;
  EXPECT_TRUE(HostStateHolds());
}

}  // namespace
}  // namespace orve
