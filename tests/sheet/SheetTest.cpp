// The sheet as a reader gets it: its markup, its loads, its derivations and its digest.
#include <ctime>
#include <gtest/gtest.h>
#include <portal_building.h>
#include <sheet/Sheet.h>
#include <string>
#include <vector>

#include "common/LoadText.h"
#include "explain/FormulaValue.h"
#include "explain/RandomCase.h"
#include "sheet/SheetReader.h"

namespace orve::test {

namespace {

using namespace sheet;

using SheetTest = SheetCase;

#ifdef ORVE_SANITIZE
constexpr int kRandomCases = 8;
#else
constexpr int kRandomCases = 40;
#endif

constexpr BuildingAreas kAreas[] = {BuildingAreas::baRoof, BuildingAreas::baWalls, BuildingAreas::baParapet};
constexpr const char* kAreaNames[] = {"Roof", "Walls", "Parapet"};

std::string WithUnit(const std::string& load) {
  return load.empty() ? load : load + std::string(LoadUnit);
}

/// The rows of a face's table against the library: every load text, size and name.
int CompareFace(const std::string& html, clsCurrentCase& windCase, int area, int face) {
  const auto rows = RowsOf(html, std::string(kAreaNames[area]) + ", Face " + std::to_string(face + 1) +
                                     ": coefficients, and loads in kN/m\u00B2");
  const auto loads = windCase.OverallAppliedLoads();
  const bool parapet = kAreas[area] == BuildingAreas::baParapet;
  std::int16_t zone = 0;
  for (const auto& row : rows) {
    EXPECT_EQ(row.size(), parapet ? 9U : 10U);
    EXPECT_EQ(row[0], loads->Hybrid_ZoneDescription(kAreas[area], Faces(face), zone));
    const bool refused =
        ErrorOf([&] { loads->Hybrid_OverallAppliedLoads(kAreas[area], Faces(face), zone); }) != 0;
    EXPECT_EQ(refused, row.back() == "\u2013");
    if (!refused) {
      EXPECT_EQ(WithUnit(row[7]), loads->Hybrid_ExternalAppliedLoads(kAreas[area], Faces(face), zone));
      EXPECT_EQ(WithUnit(row.back()), loads->Hybrid_OverallAppliedLoads(kAreas[area], Faces(face), zone));
      if (!parapet) {
        EXPECT_EQ(WithUnit(row[8]), loads->Hybrid_InternalAppliedLoads(kAreas[area], Faces(face), zone));
      }
    }
    ++zone;
  }
  return zone;
}

/// The parts of a formula line: symbol, formula, numbers, result and rounded result.
std::vector<std::string> SidesOf(const std::string& line) {
  std::string text = line;
  for (std::size_t at = text.find(" \u2248 "); at != std::string::npos; at = text.find(" \u2248 "))
    text.replace(at, std::string(" \u2248 ").size(), " = ");
  std::vector<std::string> sides;
  for (std::size_t at = 0; at != std::string::npos;) {
    const std::size_t end = text.find(" = ", at);
    sides.push_back(text.substr(at, end - at));
    at = end == std::string::npos ? end : end + 3;
  }
  return sides;
}

double NumberAt(const std::string& text) {
  return TextToDouble(text.substr(0, text.find(' ')));
}

// The numbers of a line give its result to the digits that are printed; the rounded result is that of the
// library. Gives the count of formulas that were worked out.
int CheckLine(const std::string& line) {
  const auto noSymbols = [&](std::string_view symbol) {
    ADD_FAILURE() << "a symbol among numbers: " << symbol << " in " << line;
    return 0.0;
  };
  std::vector<std::string> sides = SidesOf(line);
  if (sides.size() < 3) return 0;
  if (Has(line, "\u2248")) {
    EXPECT_NEAR(NumberAt(sides.back()), NumberAt(sides[sides.size() - 2]), 0.0005001) << line;
    sides.pop_back();
  }
  if (sides.size() < 4) return 0;  // what it takes over from another line
  const double result = NumberAt(sides[3]);
  EXPECT_NEAR(FormulaValue(sides[2], noSymbols), result, 2e-5 * std::max(1.0, std::fabs(result))) << line;
  return 1;
}

TEST_F(SheetTest, PrintsTheLibrarysLoadsAndSoundMarkupForRandomCases) {
  std::mt19937 random(5);
  int zones = 0;
  int lines = 0;
  for (int i = 0; i < kRandomCases; ++i) {
    SCOPED_TRACE(i);
    root->Clear();
    FillRandomCase(*root, random);
    const std::string html = MakeSheet({"Project", "Author", "", "", ""});
    EXPECT_EQ(FaultsOf(html), "");
    for (int area = 0; area < 3; ++area)
      for (int face = 0; face < 4; ++face) zones += CompareFace(html, *root, area, face);
    for (const SheetTable& table : TablesOf(html))
      if (Has(table.caption, ": overall "))
        for (const auto& row : table.rows) lines += CheckLine(row.at(2));
  }
  EXPECT_GT(zones, 50 * kRandomCases);
  EXPECT_GT(lines, 35 * kRandomCases);
}

TEST_F(SheetTest, DoesNotTrustTextsAndSpeaksToReadersOfAllKinds) {
  examples::DescribePortalBuilding(*root);
  examples::DescribeSite(*root);
  const std::string hostile = "</style><script>alert(1)</script>\" & 'm\u00B2' \xFF \\";
  root->Description(hostile);
  const std::string html = MakeSheet({hostile, hostile, hostile, hostile, hostile});
  EXPECT_EQ(FaultsOf(html), "");
  EXPECT_TRUE(CheckSheet(html).isSheet);
  for (const char* part : {"<html lang=\"en-GB\">", "name=\"viewport\"", "<main>",
                           "<nav aria-label=", "<header>", "counter(page)", "counter(pages)", "@media print"})
    EXPECT_TRUE(Has(html, part)) << part;
  EXPECT_TRUE(Has(html, "Wall of Face 2 from outside</title><desc>Windward, 15.000 m: +"));
}

TEST_F(SheetTest, TellsInWordsWhatItCanNotGive) {
  const std::string blank = MakeSheet({});
  EXPECT_EQ(FaultsOf(blank), "");
  EXPECT_FALSE(Has(blank, "<figure>"));

  examples::DescribePortalBuilding(*root);
  examples::DescribeSite(*root);
  root->BuildingDimensions()->Roof_Pitch(2);
  root->BuildingDimensions()->Roof_Diagonal(0);
  root->BuildingDimensions()->Wall_GableFaces(GableFaces::Faces_1_and_3);
  const std::string html = MakeSheet({});
  EXPECT_EQ(FaultsOf(html), "");
  EXPECT_TRUE(Has(html, "<b>Not complete:</b> 20 results"));
  EXPECT_TRUE(Has(html, "Describe a roof flatter than 5 degrees as a flat roof"));
  EXPECT_TRUE(Has(html, "The gable faces are Faces 1 and 3"));
  root->BuildingDimensions()->Roof_Pitch(6);
  EXPECT_TRUE(Has(MakeSheet({}), "A coefficient is present but Ca is 0"));
}

TEST_F(SheetTest, TakesNumbersThatAreNone) {
  using Limits = std::numeric_limits<float>;
  using Let = void (clsBuildingDimensions::*)(float);
  const Let inputs[] = {&clsBuildingDimensions::Face1And3_Length, &clsBuildingDimensions::Wall_GableHeight,
                        &clsBuildingDimensions::Parapet_Height};
  for (const float value : {Limits::quiet_NaN(), Limits::infinity(), Limits::max()})
    for (const Let input : inputs) {
      root->Clear();
      examples::DescribePortalBuilding(*root);
      examples::DescribeSite(*root);
      ((*root->BuildingDimensions()).*input)(value);
      EXPECT_TRUE(MakeSheet({}).ends_with("</html>\n")) << value;
    }
  root->DynamicPressure()->BasicWindSpeed(Limits::max());
  EXPECT_TRUE(MakeSheet({}).ends_with("</html>\n"));
}

TEST_F(SheetTest, ShowsCantileversAndSteppedLoadsAndLeavesTheCaseAsItWas) {
  constexpr auto roof = BuildingAreas::baRoof;
  examples::DescribePortalBuilding(*root);
  examples::DescribeSite(*root);
  root->BuildingDimensions()->ConsiderCantilever(true);
  root->BuildingDimensions()->CantileverFace1Or2_Length(1.5f);
  root->BuildingDimensions()->CantileverFace3Or4_Length(2);
  const auto loads = root->OverallAppliedLoads();
  loads->SteppedWind_Load_1(roof, Faces::Face_1, -0.9f);
  loads->SteppedWind_Distance_1(roof, Faces::Face_1, 2);
  loads->SteppedWind_Load_2(roof, Faces::Face_1, -0.5f);
  loads->SteppedWind_Distance_2(roof, Faces::Face_1, 4);
  loads->SteppedWind_Span(roof, Faces::Face_1, 6);
  loads->SelectedLoadType(roof, Faces::Face_2, SelectedLoadTypes::C);
  loads->CantileverZoneIndexTo(7);
  const std::string html = MakeSheet({});

  EXPECT_EQ(loads->CantileverZoneIndexTo(), 7);
  EXPECT_EQ(root->CantileverWindloads()->ExternalPressures().Wall2_Windward.Zone_ExternalPressures, "0");
  const auto steps = RowsOf(html, "Stepped loads: (W1 Z1 + W2 Z2 + W3 Z3) / span, kN/m\u00B2 and m");
  ASSERT_EQ(steps.size(), 1U);
  EXPECT_EQ(steps[0][1], "(-0.900 \u00D7 2 + -0.500 \u00D7 4 + 0.000 \u00D7 0) / 6 = " +
                             FormatSignedLoad(loads->SteppedWind_Load(roof, Faces::Face_1)));
  const auto chosen = RowsOf(html, "Loads chosen");
  ASSERT_EQ(chosen.size(), 2U);
  EXPECT_EQ(chosen[1][2], loads->SelectedLoadValues(roof, Faces::Face_2));
  const auto rows = RowsOf(html, "Cantilevers, wind on Face 2");
  ASSERT_EQ(rows.size(), 3U);
  EXPECT_EQ(rows[0][0], "A (Cant)");
  EXPECT_EQ(rows[0][2], root->ExternalCoefficients()->Hybrid_ExternalAppliedLoads(roof, Faces::Face_2, 0));
  EXPECT_EQ(rows[0][3], root->ExternalCoefficients()->Hybrid_ExternalAppliedLoads(BuildingAreas::baWalls,
                                                                                  Faces::Face_2, 0));
}

TEST_F(SheetTest, GivesTheSameBytesForTheSameCaseAndChecksItsDigest) {
  examples::DescribePortalBuilding(*root);
  examples::DescribeSite(*root);
  const SheetOptions options{"P", "A \"& B\"", "C", "1", "2026-11-24"};
  const std::string html = MakeSheet(options);
  EXPECT_EQ(MakeSheet(options), html);
  EXPECT_TRUE(CheckSheet(html).sameBytes);
  EXPECT_FALSE(CheckSheet("<html></html>").isSheet);

  std::string changed = html;
  changed.replace(changed.find("class=\"o\">"), 12, "class=\"o\">+9");
  EXPECT_TRUE(CheckSheet(changed).sameDigest);
  EXPECT_FALSE(CheckSheet(changed).sameBytes);

  root->BuildingDimensions()->Wall_GapFace1(8.5f);
  const SheetVerdict verdict = CheckSheet(html);
  EXPECT_TRUE(verdict.sameVersion);
  EXPECT_FALSE(verdict.sameDigest);
  EXPECT_NE(verdict.digest, verdict.printedDigest);
  root->BuildingDimensions()->Wall_GapFace1(9);
  EXPECT_TRUE(CheckSheet(html).sameBytes);
}

#ifndef ORVE_SANITIZE
TEST_F(SheetTest, IsMadeInAMomentForTheDemosBuilding) {
  examples::DescribePortalBuilding(*root);
  examples::DescribeSite(*root);
  MakeSheet({});
  constexpr int rounds = 5;
  const std::clock_t start = std::clock();
  for (int i = 0; i < rounds; ++i) MakeSheet({});
  const double milliseconds = 1000.0 * static_cast<double>(std::clock() - start) / CLOCKS_PER_SEC / rounds;
  RecordProperty("milliseconds", std::to_string(milliseconds));
  EXPECT_LT(milliseconds, 100);
}
#endif

}  // namespace

}  // namespace orve::test
