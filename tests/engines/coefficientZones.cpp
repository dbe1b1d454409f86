// Zones, lengths and the members that never raise.
#include <cfenv>
#include <cmath>
#include <gtest/gtest.h>
#include <limits>
#include <random>
#include <string>
#include <vector>

#include "engines/coefficientAsking.h"
#include "support/AllocationCount.h"

namespace orve::test {
namespace {

class CoefficientZones : public CoefficientAsking {
 protected:
  std::string Letters(int shape, double theta) {
    std::string all;
    for (int zone = 0; zone <= 25; ++zone) {
      Look(shape, theta, zone);
      EXPECT_EQ(engine->Valid(), !engine->ZoneString().empty());
      if (engine->Valid()) all.append(all.empty() ? "" : " ").append(engine->ZoneString());
    }
    return all;
  }
};

TEST_F(CoefficientZones, StandInScanOrder) {
  const struct {
    int shape;
    std::vector<double> thetas;
    std::string letters;
  } cases[] = {
      {Walls, {90, 270}, "A B C"},
      {Flat, {0, 90, 180, 270}, "A B C D"},
      {Mono, {0, 180}, "A B C"},
      {Mono, {90, 270}, "AU"},
      {Mono, {89.9, 89.9F, 270.1, 270.1F}, "AL B C D"},
      {Duo, {0, 180}, "A B C E F G"},
      {Duo, {90, 270}, "A B C D"},
      {Hipped, {0, 90, 180, 270}, "A B C E F G H I J"},
      {Curved, {0, 90, 180, 270}, "A B C D E F"},
      {Parapet, {0, 180}, "A B C D"},
      {Parapet, {90, 270}, ""},
      {Duo, {45, 360, -90, 89.9, 270.1, std::nan("")}, ""},
      {1, {0}, ""},
      {7, {0}, ""},
  };
  for (const auto& test : cases)
    for (const double theta : test.thetas)
      EXPECT_EQ(Letters(test.shape, theta), test.letters) << test.shape << " at " << theta;
}

TEST_F(CoefficientZones, WindwardAndLeewardWallsAreZoneZeroAlone) {
  for (const double theta : {0.0, 180.0})
    for (int zone = -1; zone <= 25; ++zone) {
      Look(Walls, theta, zone);
      EXPECT_EQ(engine->Valid(), zone == 0);
    }
}

TEST_F(CoefficientZones, StayWhenTheBuildingIsTooSmallForThem) {
  Building(0, 0, 0);
  EXPECT_EQ(Letters(Duo, 0), "A B C E F G");
}

TEST_F(CoefficientZones, ThetaReadsBackExactly) {
  for (const double theta : {89.9, static_cast<double>(89.9F), 270.1}) {
    engine->Theta(theta);
    EXPECT_EQ(engine->Theta(), theta);
  }
}

TEST_F(CoefficientZones, LengthsTurnWithTheWind) {
  const struct {
    int shape;
    double theta;
    float height, rise;
    float breadth, depth, scale;
  } cases[] = {
      {Flat, 0, 10, 0, 30, 15, 20},    {Flat, 180, 20, 0, 30, 15, 30},  {Duo, 90, 6, 0, 15, 30, 12},
      {Duo, 270, 10, 0, 15, 30, 15},   {Mono, 89.9, 10, 0, 15, 30, 15}, {Mono, 270.1, 10, 0, 15, 30, 15},
      {Curved, 0, 7, 3, 30, 15, 20},   {Curved, 90, 2, 3, 15, 30, 10},  {Walls, 45, 10, 0, 0, 0, 0},
      {Flat, 0, 3e38F, 0, 30, 15, 30},
  };
  for (const auto& test : cases) {
    Building(30, 15, test.height);
    engine->Barrel_r(test.rise);
    Look(test.shape, test.theta);
    EXPECT_EQ(engine->Breadth(), test.breadth) << test.shape << " at " << test.theta;
    EXPECT_EQ(engine->Depth(), test.depth) << test.shape << " at " << test.theta;
    EXPECT_EQ(engine->Scale_b(), test.scale) << test.shape << " at " << test.theta;
  }
}

// Any input: what isn't a result never raises, and a result is a sensible figure or a refusal.
TEST_F(CoefficientZones, AnyInputIsTaken) {
  constexpr float inf = std::numeric_limits<float>::infinity();
  const std::vector<float> lengths = {std::nanf(""), inf,  -inf, 0,  -0.0F, -1, 3.4e38F,
                                      1e-40F,        0.7F, 5,    12, 30,    48, 75};
  const std::vector<double> angles = {0, 89.9F, 90, 180, 270, 270.1, 45, -1, 1e300, std::nan("")};
  const std::vector<int> shapes = {Walls, Flat, Mono, Duo, Hipped, Parapet, Curved, 1, -1, 2147483647};
  std::mt19937 random(1997);
  const auto pick = [&random](const auto& from) { return from[random() % from.size()]; };
  int figures = 0;
  for (int round = 0; round < 50000; ++round) {
    Look(pick(shapes), pick(angles), static_cast<int>(random() % 12) - 1);
    Building(pick(lengths), pick(lengths), pick(lengths));
    engine->Roof_Pitch(pick(lengths));
    engine->Barrel_r(pick(lengths));
    engine->Eaves_Pitch(random() % 2 ? 0 : pick(lengths));
    engine->Eaves_Radius(random() % 2 ? 0 : pick(lengths));
    engine->Parapet_H(random() % 2 ? 0 : pick(lengths));
    engine->Dim_gap(pick(lengths));
    engine->Solidity(static_cast<int>(random() % 4) - 1);
    engine->Suction(random() % 2 == 0);
    std::feclearexcept(FE_ALL_EXCEPT);
    (void)(engine->Valid(), engine->ZoneString(), engine->Breadth(), engine->Depth(), engine->Scale_b());
    try {
      const float figure = engine->Cpe();
      EXPECT_LE(std::fabs(figure), 3.4F);
      EXPECT_FALSE(figure == 0 && std::signbit(figure));
      ++figures;
    } catch (const Error& error) {
      EXPECT_EQ(error.Number(), static_cast<int>(ErrorNumber::InvalidArgument));
    }
    ASSERT_FALSE(std::fetestexcept(FE_INVALID | FE_DIVBYZERO | FE_OVERFLOW))
        << "some hosts let them trap, round " << round;
  }
  EXPECT_GT(figures, 1000);
}

TEST_F(CoefficientZones, MembersAllocateNothing) {
  engine->Roof_Pitch(17);
  const std::size_t before = AllocationCount();
  for (const int shape : {Walls, Flat, Mono, Duo, Hipped, Parapet})
    for (int zone = 0; zone <= 25; ++zone) {
      Look(shape, 0, zone);
      const std::string letters = engine->ZoneString();
      if (engine->Valid()) Suction();
    }
  EXPECT_EQ(AllocationCount(), before);
}

}  // namespace
}  // namespace orve::test
