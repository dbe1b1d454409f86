// The texts of cantilever zones.
#include <gtest/gtest.h>
#include <string>
#include <vector>

#include "loads/CantileverTexts.h"
#include "support/FakeComponents.h"

namespace orve {
namespace {

using test::ErrorOf;

TEST(CantileverTexts, TakesTheNumberPartBeforeTheUnit) {
  const struct {
    const char* Text;
    const char* Number;
  } rows[] = {
      {"+0.300 kN/m²", "+0.300"},
      {"0.3kN/m²", "0.3"},
      {" 2.000 m", "2.000"},
      {"2m, 3 m", "2"},
      {"+0.1, -0.2 kN/m²", "+0.1, -0.2"},
      {" kN/m²", ""},
      {"0", ""},
      {"", ""},
      {"3 KN/M²", ""},
  };
  for (const auto& row : rows) EXPECT_EQ(StripUnit(row.Text), row.Number) << row.Text;
}

TEST(CantileverTexts, SplitsTheRoofLoads) {
  const LoadValues both = SplitLoadValues("+0.500, -1.000 kN/m²");
  EXPECT_EQ(both.Count, 2);
  EXPECT_EQ(both.First, "+0.500");
  EXPECT_EQ(both.Second, "-1.000");
  const LoadValues one = SplitLoadValues("-1.170 kN/m²");
  EXPECT_EQ(one.Count, 1);
  EXPECT_EQ(one.First, "-1.170");
  EXPECT_EQ(one.Second, "");
  for (const char* text : {"", "+0.500", "+0.500 kN/m², -1.000"})
    EXPECT_EQ(ErrorOf([&] { SplitLoadValues(text); }), 5) << text;
}

struct CombineRow {
  const char* Name;
  const char* External;
  std::vector<std::string> Walls;
  const char* Internal;
  const char* Overall;
};

TEST(CantileverTexts, CombinesRoofLoadsAndWallPressures) {
  const CombineRow rows[] = {
      {"four net values",
       "+0.500, -1.000 kN/m²",
       {"+0.300 kN/m²", "-0.200 kN/m²"},
       "+0.300, -0.200 kN/m²",
       "+0.700, -1.300 kN/m²"},
      {"no wall", "+0.500, -1.000 kN/m²", {""}, " kN/m²", "+0.500, -1.000 kN/m²"},
      {"positive for all pairs",
       "+0.500 kN/m²",
       {"+0.300 kN/m²", "-0.200 kN/m²"},
       "+0.300, -0.200 kN/m²",
       "+0.700 kN/m²"},
      {"negative for all pairs", "-1.000 kN/m²", {"-0.200 kN/m²"}, "-0.200 kN/m²", "-0.800 kN/m²"},
      {"nothing is left", "+0.300 kN/m²", {"+0.300 kN/m²"}, "+0.300 kN/m²", " kN/m²"},
      {"a plain 0 has no unit and no pressure", "+0.500 kN/m²", {"0"}, " kN/m²", "+0.500 kN/m²"},
      {"a wall pressure of 0 doesn't show",
       "+0.500 kN/m²",
       {"0 kN/m²", "+0.3 kN/m²"},
       "+0.300 kN/m²",
       "+0.500 kN/m²"},
      {"a 0 behind one that shows",
       "+0.500 kN/m²",
       {"+0.3 kN/m²", "0.000 kN/m²"},
       "+0.300,  kN/m²",
       "+0.500 kN/m²"},
      {"the unit without its blank counts for the net load",
       "+0.500 kN/m²",
       {"0.3kN/m²"},
       " kN/m²",
       "+0.200 kN/m²"},
      {"metres count for the net load", "+0.500 kN/m²", {"0.3 m"}, " kN/m²", "+0.200 kN/m²"},
      {"a small net load keeps its sign", "-0.0001 kN/m²", {""}, " kN/m²", "-0.000 kN/m²"},
      {"seven digits come before three places", "+12345.678 kN/m²", {""}, " kN/m²", "+12345.680 kN/m²"},
      {"seven digits of a great load", "+12345678 kN/m²", {""}, " kN/m²", "+12345680.000 kN/m²"},
  };
  for (const CombineRow& row : rows) {
    const CantileverLoads loads = CombineCantileverLoads(row.External, row.Walls);
    EXPECT_EQ(loads.Internal, row.Internal) << row.Name;
    EXPECT_EQ(loads.Overall, row.Overall) << row.Name;
  }
}

TEST(CantileverTexts, TellsWhatDoesNotCombine) {
  const struct {
    const char* Name;
    const char* External;
    std::vector<std::string> Walls;
    int Number;
  } rows[] = {
      {"no external load", "", {""}, 5},
      {"no unit behind a pressure that shows", "+0.5 kN/m²", {"+0.3 kN/m²", "0"}, 5},
      {"no unit behind a pressure that doesn't show", "+0.5 kN/m²", {"0 kN/m²", "0"}, 0},
      {"two values in one wall pressure", "+0.5 kN/m²", {"+0.3, -0.2 kN/m²"}, 13},
      {"no number in a wall pressure", "+0.5 kN/m²", {"none kN/m²"}, 13},
      {"no number in the roof load", ", -0.2 kN/m²", {""}, 13},
      {"a net load that doesn't fit", "3e38 kN/m²", {"-3e38 kN/m²"}, 6},
  };
  for (const auto& row : rows)
    EXPECT_EQ(ErrorOf([&] { CombineCantileverLoads(row.External, row.Walls); }), row.Number) << row.Name;
}

TEST(CantileverTexts, SplitsAnOverallTextIntoWindAndUplift) {
  const struct {
    const char* Overall;
    const char* Wind;
    const char* Uplift;
  } rows[] = {
      {"+0.700, -1.300 kN/m²", "+0.700", "-1.300"},
      {"+0.700 kN/m²", "0.7", "0"},
      {"-1.300 kN/m²", "0", "1.3"},
      {" kN/m²", "0", "0"},
      {"-0.000 kN/m²", "0", "0"},
      {"", "0", "0"},
  };
  for (const auto& row : rows) {
    const WindAndUplift loads = SplitWindAndUplift(row.Overall);
    EXPECT_EQ(loads.Wind, row.Wind) << row.Overall;
    EXPECT_EQ(loads.Uplift, row.Uplift) << row.Overall;
  }
}

TEST(CantileverTexts, WritesOneOrTwoLengths) {
  EXPECT_EQ(FormatZoneDimensions(4.5f, 2.25f), "4.500 m, 2.250 m");
  EXPECT_EQ(FormatZoneDimensions(4.5f, 0), "4.500 m");
  EXPECT_EQ(FormatZoneDimensions(1.0005f, -1), "1.001 m, -1.000 m");
}

}  // namespace
}  // namespace orve
