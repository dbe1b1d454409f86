// The three loads that docs/validation.md works out by hand: the program prints the same digits.
#include <gtest/gtest.h>

#include "orve3_bs6399_2.h"
#include "portal_building.h"
#include "published/BuiltInCase.h"

namespace orve::test {
namespace {

struct ByHand {
  BuildingAreas area;
  std::int16_t zone;
  const char* description;
  const char* size;
  const char* external;
  const char* internal;
  const char* overall;
};

TEST_F(BuiltInCase, TheDemoBuildingsLoadsAreThoseWorkedOutByHand) {
  examples::DescribePortalBuilding(*windCase);
  examples::DescribeSite(*windCase);
  const ByHand calculations[] = {
      {BuildingAreas::baRoof, 0, "A", "6.800 m, 1.360 m", "+0.018, -1.426 kN/m\u00B2",
       "+0.151, -0.227 kN/m\u00B2", "+0.245, -1.578 kN/m\u00B2"},
      {BuildingAreas::baWalls, 5, "A (face 4)", "2.400 m", "-1.306 kN/m\u00B2", "+0.154, -0.231 kN/m\u00B2",
       "-1.460 kN/m\u00B2"},
      {BuildingAreas::baWalls, 1, "Leeward", "30.000 m", "-0.293 kN/m\u00B2", "+0.100, -0.150 kN/m\u00B2",
       "-0.393 kN/m\u00B2"}};
  const auto loads = windCase->OverallAppliedLoads();
  for (const ByHand& hand : calculations) {
    const auto face = Faces::Face_1;
    EXPECT_EQ(loads->Hybrid_ZoneDescription(hand.area, face, hand.zone), hand.description);
    EXPECT_EQ(loads->Hybrid_ZoneDimensions(hand.area, face, hand.zone), hand.size);
    EXPECT_EQ(loads->Hybrid_ExternalAppliedLoads(hand.area, face, hand.zone), hand.external);
    EXPECT_EQ(loads->Hybrid_InternalAppliedLoads(hand.area, face, hand.zone), hand.internal);
    EXPECT_EQ(loads->Hybrid_OverallAppliedLoads(hand.area, face, hand.zone), hand.overall);
  }
}

}  // namespace
}  // namespace orve::test
