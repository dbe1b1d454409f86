#include <gtest/gtest.h>

#include "support/FakeComponents.h"

namespace orve {

using test::ErrorOf;

const clsCommon common;

TEST(Common, FractionalModRoundsBothOperandsBeforeItDivides) {
  const double cases[][3] = {{365.5, 360, 5.5}, {359.4, 360, 359.4}, {359.6, 360, -0.4}, {29.6, 30, -0.4},
                             {45, 30, 15},      {15, 30, 15},        {-45, 30, -15},     {360.5, 360, 0.5}};
  for (const auto& [value, modulus, expected] : cases)
    EXPECT_NEAR(common.FractionalMod(value, modulus), expected, 1e-9) << value;
  EXPECT_EQ(ErrorOf([] { common.FractionalMod(5, 0.5); }), 11);
}

TEST(Common, SectorsAndAngles) {
  const std::pair<float, int> cases[] = {{0, 0},      {14.9f, 0},   {15, 1},  {344.9f, 11}, {345, 0},
                                         {359.9f, 0}, {-15.1f, 11}, {-15, 0}, {-390, 11},   {719, 0}};
  for (const auto& [angle, index] : cases) EXPECT_EQ(common.AngleToIndex(angle), index) << angle;
  EXPECT_EQ(common.AngleToPositive(-30), 330);
  EXPECT_NEAR(common.AngleToPositive(359.6f), -0.4, 1e-4);
  EXPECT_EQ(common.IndexToAngle(11), 330);
  EXPECT_EQ(common.IndexToAngle(12), 0);
  EXPECT_EQ(ErrorOf([] { common.IndexToAngle(1093); }), 6);
}

TEST(Common, InterpolatesAcrossTheSeam) {
  EXPECT_EQ(common.ValueForIntermediateAngle(330, 0, 1, 2, 345), 1.5f);
  EXPECT_EQ(common.ValueForIntermediateAngle(330, 0, 1, 2, 15), 2.5f);
  EXPECT_EQ(common.ValueForIntermediateAngle(300, 330, 1, 3, -45), 2.0f);
  EXPECT_EQ(ErrorOf([] { common.ValueForIntermediateAngle(30, 30, 1, 2, 30); }), 11);
  EXPECT_EQ(common.ValueForIntermediateSetting(5, 5, 7, 8, 99), 7.0f);
  EXPECT_EQ(common.ValueForIntermediateSetting(0, 10, 0, 1, 20), 2.0f);
}

TEST(Common, CutsNumbersOutOfTexts) {
  const char* cases[][2] = {{"+1.234 kN/m\u00B2", "+1.234"},
                            {"load: -.5 m", ".5"},
                            {"12", "12"},
                            {"", "none"},
                            {"no digits", "none"},
                            {"0", "0"},
                            {"1.234 kN/m2", "none"}};
  for (const auto& [text, expected] : cases) EXPECT_EQ(common.MakeNumeric(text, "none"), expected) << text;
  EXPECT_EQ(common.MakeNumeric(0.0, "none"), "none");
  EXPECT_EQ(common.MakeNumeric(0.1f, "none"), "0.1") << "at its own width";
  EXPECT_EQ(common.MakeNumeric(5, "none"), "5");
  EXPECT_EQ(common.MakeString(0, "none"), "0") << "a number, not a null pointer";
  EXPECT_EQ(common.MakeString(nullptr, "none"), "none");
  EXPECT_EQ(common.ReverseSign(5), -5);
  EXPECT_TRUE(common.MakeBoolean(" yes ", false));
  EXPECT_FALSE(common.MakeBoolean("N", true));
  EXPECT_TRUE(common.MakeBoolean("perhaps", true));
  EXPECT_TRUE(common.MakeBoolean(2.0, true));
  EXPECT_EQ(ErrorOf([] { common.CubeRoot(-1); }), 5);
  EXPECT_NEAR(common.CubeRoot(1000), 10, 1e-12);
  EXPECT_EQ(common.RoundArithmetically(-2.5, 0), -2);
  EXPECT_TRUE(common.CheckFixedDecimalPlace(2, 0, 1.001, 1.004));
  EXPECT_FALSE(common.CheckFixedDecimalPlace(2, 9, 1, 1));
}

}  // namespace orve
