// Averages of a stepped load over the bays of a continuous member.
#include <algorithm>
#include <cmath>
#include <gtest/gtest.h>
#include <limits>
#include <random>

#include "loads/BayLoads.h"
#include "orve3_bs6399_2.h"

namespace orve {
namespace {

struct BayRow {
  const char* Name;
  BayLoadCase Bays;
  float End;
  float Internal;
};

TEST(BayLoads, FollowsTheStepsThroughBothBays) {
  // Loads 1, 2 and 3 throughout.
  const BayRow rows[] = {
      {"no steps", {5, 5, 1, 2, 3, 0, 0}, 3, 3},
      {"all steps in the end bay", {5, 5, 1, 2, 3, 1, 2}, 2.2f, 3},
      {"second step ends with the end bay", {5, 5, 1, 2, 3, 2, 3}, 1.6f, 3},
      {"end bay ends in step 2, internal bay in step 3", {5, 5, 1, 2, 3, 2, 4}, 1.6f, 2.8f},
      {"first step ends with the end bay", {5, 5, 1, 2, 3, 5, 2}, 1, 2.6f},
      {"second step ends with the internal bay", {5, 5, 1, 2, 3, 2, 8}, 1.6f, 2},
      {"internal bay wholly in step 2", {5, 5, 1, 2, 3, 2, 9}, 1.6f, 2},
      {"both bays in step 1", {2, 4, 1, 2, 3, 7, 1}, 1, 1},
      {"first step ends with the internal bay", {2, 4, 1, 2, 3, 6, 1}, 1, 1},
      {"internal bay from step 1 to step 3", {2, 4, 1, 2, 3, 3, 1}, 1, 2.25f},
      {"internal bay from step 1 to the end of step 2", {2, 4, 1, 2, 3, 3, 3}, 1, 1.75f},
      {"internal bay from step 1 into step 2", {2, 4, 1, 2, 3, 3, 9}, 1, 1.75f},
  };
  for (const BayRow& row : rows) {
    EXPECT_EQ(EndBayLoad(row.Bays), row.End) << row.Name;
    EXPECT_EQ(SecondBayLoad(row.Bays), row.Internal) << row.Name;
  }
}

TEST(BayLoads, NarrowsASumBeforeItIsCompared) {
  // 4 + 1.0000002 isn't a 32-bit float: as one it is 5, so the second step ends with the end bay.
  const BayLoadCase bays{5, 5, 1, 1e7f, 3, 4, 1.0000002f};
  EXPECT_EQ(SecondBayLoad(bays), 3);
}

TEST(BayLoads, TellsABayOfNoLengthAndALoadThatDoesNotFit) {
  const auto number = [](float (*average)(const BayLoadCase&), const BayLoadCase& bays) {
    try {
      average(bays);
    } catch (const Error& error) {
      return error.Number();
    }
    return 0;
  };
  EXPECT_EQ(number(EndBayLoad, {0, 5, 1, 2, 3, 0, 0}), 11);
  EXPECT_EQ(number(EndBayLoad, {0, 5, 1, 2, 3, 1, 0}), 0) << "a load of W1 without a division";
  EXPECT_EQ(number(SecondBayLoad, {5, 0, 1, 2, 3, 5, 0}), 0) << "a load of W3 without a division";
  EXPECT_EQ(number(EndBayLoad, {0.5f, 1, 3e38f, 0, 0, -1, 0}), 6);
  EXPECT_EQ(number(EndBayLoad, {5, 5, 0, 0, 0, 3e38f, 3e38f}), 6);
  const float nan = std::numeric_limits<float>::quiet_NaN();
  EXPECT_EQ(number(EndBayLoad, {nan, nan, nan, nan, nan, nan, nan}), 0);
  EXPECT_EQ(number(SecondBayLoad, {nan, nan, nan, nan, nan, nan, nan}), 0);
}

double StepAt(const BayLoadCase& bays, double position) {
  if (position < bays.Z1) return bays.W1;
  return position < static_cast<double>(bays.Z1) + bays.Z2 ? bays.W2 : bays.W3;
}

// The integral from 0 to `length` by slices; only the slices that hold an end of a step aren't exact, so they
// are cut again.
double SummedLoad(const BayLoadCase& bays, double from, double to, int depth = 0) {
  constexpr int slices = 64;
  const double width = (to - from) / slices;
  double sum = 0;
  for (int slice = 0; slice < slices; ++slice) {
    const double start = from + slice * width;
    const double end = start + width;
    const double load = StepAt(bays, start);
    const bool cut = load != StepAt(bays, end) || StepAt(bays, start + width / 2) != load;
    sum +=
        cut && depth < 4 ? SummedLoad(bays, start, end, depth + 1) : StepAt(bays, (start + end) / 2) * width;
  }
  return sum;
}

TEST(BayLoads, BothBaysTogetherCarryTheWholeStepFunction) {
  std::mt19937 random(20261124);
  std::uniform_real_distribution<float> span(0.1f, 12), load(-3, 3), step(0, 15);
  for (int run = 0; run < 2000; ++run) {
    const BayLoadCase bays{span(random),
                           span(random),
                           load(random),
                           load(random),
                           load(random),
                           step(random),
                           run % 5 == 0 ? 0 : step(random)};
    const double both =
        static_cast<double>(EndBayLoad(bays)) * bays.L1 + static_cast<double>(SecondBayLoad(bays)) * bays.L2;
    ASSERT_NEAR(both, SummedLoad(bays, 0, static_cast<double>(bays.L1) + bays.L2), 1e-5)
        << "L " << bays.L1 << ", " << bays.L2 << " W " << bays.W1 << ", " << bays.W2 << ", " << bays.W3
        << " Z " << bays.Z1 << ", " << bays.Z2;
  }
}

}  // namespace
}  // namespace orve
