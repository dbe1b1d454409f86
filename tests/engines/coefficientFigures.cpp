// Figures: published calculations, corners of the tables, interpolation, refusals, continuity.
#include <algorithm>
#include <cmath>
#include <functional>
#include <gtest/gtest.h>
#include <string>
#include <vector>

#include "engines/coefficientAsking.h"

namespace orve::test {
namespace {

class CoefficientFigures : public CoefficientAsking {
 protected:
  void Expect(double suction, double pressure, const std::string& what, double tolerance = 2e-7) {
    EXPECT_NEAR(Suction(), suction, tolerance) << what << ", suction";
    EXPECT_NEAR(Pressure(), pressure, tolerance) << what << ", pressure";
  }
};

// "Sample Wind Loading Spreadsheet to BS6399": D/H 1.4486, isolated.
TEST_F(CoefficientFigures, FrontWallOfAPublishedHall) {
  Building(32.38F, 16.275F, 11.235F);
  Look(Walls, 0);
  Expect(0.81262, 0.81262, "front", 1e-5);
}

// "WL: wind load, 28-storey building", 2017: face X, B 22.
TEST_F(CoefficientFigures, FlatRoofOfAPublishedTower) {
  Building(22, 22, 120);
  const double figures[] = {-2.0, -1.4, -0.7, -0.2};
  for (int zone = 0; zone < 4; ++zone) {
    Look(Flat, 0, zone);
    EXPECT_NEAR(Suction(), figures[zone], 0.005);
  }
  EXPECT_NEAR(Pressure(), 0.2, 0.005);
  EXPECT_NEAR(engine->Scale_b() / 4, 5.5, 0.05);
  EXPECT_NEAR(engine->Scale_b() / 10, 2.2, 0.05);
}

// On a row, between rows, a blank beside a figure (counts as 0) and zones of one sign (both asks give the one
// figure).
TEST_F(CoefficientFigures, PitchedRoofs) {
  const struct {
    int shape;
    double theta;
    std::string zone;
    float pitch;
    double suction, pressure;
  } cases[] = {
      {Mono, 0, "A", 5, -1.7, 0.0},
      {Mono, 0, "C", 37.5F, -0.1, 0.5},
      {Mono, 0, "B", 60, 0.7, 0.7},
      {Mono, 0, "A", 52.5F, 0, 0.7},
      {Mono, 180, "A", 15, -2.5, -2.5},
      {Mono, 180, "C", 75, -0.5, -0.5},
      {Mono, 90, "AU", 10, -2.25, -2.25},
      {Mono, 270, "AU", 75, -1.2, -1.2},
      {Mono, 89.9F, "AL", 10, -1.85, -1.85},
      {Mono, 270.1, "D", 52.5F, -0.8, -0.8},
      {Duo, 0, "A", -45, -0.6, -0.6},
      {Duo, 0, "A", -22.5F, -1.8, -1.8},
      {Duo, 180, "E", -10, -0.65, 0.1},
      {Duo, 0, "G", -5, -0.6, 0.2},
      {Duo, 0, "A", 6, -1.62, 0.02},
      {Duo, 0, "G", 5, -0.6, -0.6},
      {Duo, 0, "G", 10, -0.5, 0},
      {Duo, 0, "F", 15, -1.0, 0},
      {Duo, 0, "E", 52.5F, -0.3, 0},
      {Duo, 0, "E", 70, -0.3, -0.3},
      {Duo, 0, "A", 75, 0.8, 0.8},
      {Duo, 90, "B", 37.5F, -1.4, -1.4},
      {Duo, 270, "C", -20, -13.0 / 15, -13.0 / 15},
      {Hipped, 0, "A", 30, -0.5, 0.5},
      {Hipped, 90, "B", 30, -0.5, 0.7},
      {Hipped, 180, "H", 45, -1.3, -1.3},
      {Hipped, 270, "I", 52.5F, -0.6, -0.6},
      {Hipped, 0, "J", 10, -0.35, -0.35},
      {Hipped, 0, "F", 10, -0.9, -0.9},
  };
  for (const auto& test : cases) {
    ASSERT_TRUE(LookAt(test.shape, test.theta, test.zone));
    engine->Roof_Pitch(test.pitch);
    Expect(test.suction, test.pressure,
           test.zone + " of shape " + std::to_string(test.shape) + " at pitch " + std::to_string(test.pitch));
  }
}

TEST_F(CoefficientFigures, WallsByDepthOverHeight) {
  const std::pair<float, double> windward[] = {{1, 0.85},   {10, 0.85}, {20, 0.85 - 0.25 / 3},
                                               {25, 0.725}, {40, 0.6},  {90, 0.6}};
  for (const auto& [depth, figure] : windward) {
    Building(30, depth, 10);
    Look(Walls, 0);
    Expect(figure, figure, "windward");
    Look(Walls, 180);
    Expect(-0.5, -0.5, "leeward");
  }
}

TEST_F(CoefficientFigures, SideWallsByGap) {
  Building(30, 10, 10);
  const struct {
    float gap;
    double a, b, c;
  } cases[] = {{0, -1.3, -0.8, -0.5},  {2.5F, -1.3, -0.8, -0.5},   {3.75F, -1.45, -0.85, -0.7},
               {5, -1.6, -0.9, -0.9},  {7.5F, -1.45, -0.85, -0.7}, {10, -1.3, -0.8, -0.5},
               {100, -1.3, -0.8, -0.5}};
  for (const auto& test : cases) {
    engine->Dim_gap(test.gap);
    const double figures[] = {test.a, test.b, test.c};
    for (int zone = 0; zone < 3; ++zone) {
      Look(Walls, 90, zone);
      Expect(figures[zone], figures[zone], "side zone at gap " + std::to_string(test.gap));
    }
    Look(Walls, 0);
    Expect(0.85, 0.85, "the gap holds for side zones alone");
  }
}

TEST_F(CoefficientFigures, FlatRoofEaves) {
  Building(30, 15, 10);  // b 20 at 0, 15 at 90
  const struct {
    std::string what;
    void (BreCpX::*input)(float);
    float value;
    double theta;
    double figures[3];
  } cases[] = {
      {"parapet lower than the rows", &BreCpX::Parapet_H, 0.9F, 0, {-2.0, -1.4, -0.7}},
      {"parapet on the first row, h/b the lesser", &BreCpX::Parapet_H, 1, 0, {-1.8, -1.25, -0.7}},
      {"parapet between rows, b of the angle", &BreCpX::Parapet_H, 2.25F, 90, {-1.575, -1.1, -0.7}},
      {"parapet higher than the rows", &BreCpX::Parapet_H, 9, 0, {-1.4, -1.0, -0.7}},
      {"small radius", &BreCpX::Eaves_Radius, 0.5F, 0, {-2.0, -1.4, -0.7}},
      {"radius between rows", &BreCpX::Eaves_Radius, 1.5F, 0, {-0.875, -1.0, -0.35}},
      {"radius on the last row", &BreCpX::Eaves_Radius, 4, 0, {-0.55, -0.55, -0.3}},
      {"mansard on the first row", &BreCpX::Eaves_Pitch, 30, 0, {-0.95, -1.0, -0.3}},
      {"mansard between rows",
       &BreCpX::Eaves_Pitch,
       50,
       0,
       {-1.2 - 0.1 / 3, -1.3 + 0.05 / 3, -0.4 - 0.2 / 3}},
      {"mansard steeper than the rows", &BreCpX::Eaves_Pitch, 61, 0, {-2.0, -1.4, -0.7}},
  };
  for (const auto& test : cases) {
    (*engine.*test.input)(test.value);
    for (int zone = 0; zone < 3; ++zone) {
      Look(Flat, test.theta, zone);
      Expect(test.figures[zone], test.figures[zone], test.what);
    }
    Look(Flat, test.theta, 3);
    Expect(-0.2, 0.2, test.what);
    (*engine.*test.input)(0);
  }
}

TEST_F(CoefficientFigures, CurvedRoofs) {
  const struct {
    float rise, height;
    double theta;
    std::vector<std::pair<double, double>> figures;  // suction and pressure of A to F
  } cases[] = {
      {1, 6, 0, {{-1.4, -1.4}, {-0.9, -0.9}, {-0.8, -0.8}, {-0.8, -0.8}, {-0.8, -0.8}, {-0.7, -0.7}}},
      {2, 6, 180, {{-1.4, 0}, {-0.9, 0}, {-0.9, -0.9}, {-0.9, -0.9}, {-0.9, -0.9}, {-0.7, -0.7}}},
      {2.5F,
       6,
       0,
       {{-1.4, 0.075}, {-0.95, 0.075}, {-0.95, -0.95}, {-0.95, -0.95}, {-0.95, -0.95}, {-0.7, -0.7}}},
      {3, 6, 0, {{-1.4, 0.125}, {-1.0, 0.125}, {-1.0, -1.0}, {-1.0, -1.0}, {-1.0, -1.0}, {-0.7, -0.7}}},
      {6, 6, 0, {{-1.4, 0.95}, {-1.3, 0.95}, {-1.3, -1.3}, {-1.3, -1.3}, {-1.3, -1.3}, {-0.7, -0.7}}},
      {1, 0, 0, {{-1.4, 0.14}, {-0.8, 0.14}, {-0.8, -0.8}, {-0.8, -0.8}, {-0.8, -0.8}, {-0.7, -0.7}}},
      {2, 6, 90, {{-2.0, -2.0}, {-1.4, -1.4}, {-0.7, -0.7}, {-0.7, 0.2}, {-0.7, 0.2}, {-0.2, 0.2}}},
  };
  for (const auto& test : cases) {
    Building(30, 10, test.height);
    engine->Barrel_r(test.rise);
    for (int zone = 0; zone < 6; ++zone) {
      Look(Curved, test.theta, zone);
      Expect(test.figures[zone].first, test.figures[zone].second,
             engine->ZoneString() + " at rise " + std::to_string(test.rise));
    }
  }
}

TEST_F(CoefficientFigures, ParapetsArePositiveAtBothAngles) {
  const struct {
    float corner;
    double figures[4];
  } cases[] = {{0, {3.4, 2.1, 1.7, 1.2}},
               {1.1F, {3.4, 2.1, 1.7, 1.2}},
               {1.2F, {2.1, 1.8, 1.4, 1.2}},
               {15, {2.1, 1.8, 1.4, 1.2}}};
  for (const auto& test : cases)
    for (const double theta : {0.0, 180.0})
      for (int zone = 0; zone < 4; ++zone) {
        Building(30, test.corner, 1.2F);
        Look(Parapet, theta, zone);
        Expect(test.figures[zone], test.figures[zone], "return corner " + std::to_string(test.corner));
      }
}

TEST_F(CoefficientFigures, RefusalsNameQuantityValueAndRange) {
  const auto no = std::numeric_limits<float>::quiet_NaN();
  const struct {
    int shape;
    double theta;
    std::function<void(BreCpX&)> input;
    std::string text;
  } cases[] = {
      {Duo, 0, [](BreCpX& e) { e.Roof_Pitch(3); },
       "Table 10 (duo-pitched roofs), zone A at Theta 0: Roof_Pitch is 3 degrees; the range is -45 to -5 "
       "degrees and 5 to 75 "
       "degrees. Describe a roof flatter than 5 degrees as a flat roof"},
      {Duo, 90, [](BreCpX& e) { e.Roof_Pitch(-46); },
       "at Theta 90: Roof_Pitch is -46 degrees; the range is -45 to"},
      {Mono, 89.9F, [](BreCpX& e) { e.Roof_Pitch(0); },
       "Table 9 (mono-pitched roofs), zone AL at Theta 89.9: Roof_Pitch is 0 degrees; the range is 5 to 75 "
       "degrees. Describe"},
      {Hipped, 0, [](BreCpX& e) { e.Roof_Pitch(75.1F); },
       "Roof_Pitch is 75.1 degrees; the range is 5 to 75 degrees"},
      {Hipped, 0, [no](BreCpX& e) { e.Roof_Pitch(no); }, "Roof_Pitch is nan degrees"},
      {Walls, 0, [](BreCpX& e) { e.Dim_H(0); },
       "zone Windward at Theta 0: Dim_H is 0 m; the range is a finite number above 0"},
      {Walls, 90, [](BreCpX& e) { e.Dim_gap(-1); }, "Dim_gap is -1 m"},
      {Flat, 0, [](BreCpX& e) { e.Eaves_Radius(5); },
       "Table 8 (flat roofs), zone A at Theta 0: Eaves_Radius over b (r/b) is 0.25; "
       "the range is 0 to 0.2"},
      {Flat, 0, [](BreCpX& e) { e.Eaves_Pitch(29); },
       "Eaves_Pitch is 29 degrees; the range is 30 to 90 degrees"},
      {Flat, 0, [](BreCpX& e) { e.Eaves_Pitch(45), e.Parapet_H(1); }, "one kind of eaves at a time"},
      {Curved, 90, [](BreCpX& e) { e.Barrel_r(9.1F); }, "Barrel_r over Dim_W is 0.60666"},
      {Curved, 0, [](BreCpX& e) { e.Barrel_r(0); }, "as a flat roof"},
      {Parapet, 0, [](BreCpX& e) { e.Solidity(0); },
       "Table 21 (free-standing walls and parapets), zone A at Theta 0: Solidity is 0; "
       "the range is 0.8 to 1"},
      {Duo, 45, [](BreCpX&) {}, "Theta is 45"},
      {Duo, 0, [](BreCpX& e) { e.ZoneIndex(6); }, "ZoneIndex is 6; TypeIndex 4 at Theta 0 has zones 0 to 5"},
      {6, 0, [](BreCpX&) {}, "TypeIndex is 6, which names no shape"},
  };
  for (const auto& test : cases) {
    engine = CreateCoefficientEngine();
    Building(30, 15, 10);
    Look(test.shape, test.theta);
    test.input(*engine);
    EXPECT_NE(Refusal().find(test.text), std::string::npos) << Refusal();
    EXPECT_THROW(Source(), Error);
  }
}

// A ratio that is meant to lie on a limit lies on it, whatever its last bit.
TEST_F(CoefficientFigures, LimitsAreComparedAt32Bits) {
  Building(30, 1, 10);
  engine->Barrel_r(0.6F);
  Look(Curved, 0, 2);
  EXPECT_EQ(Refusal(), "");
  Building(1, 1, 10);
  engine->Eaves_Radius(0.2F);
  Look(Flat, 0);
  EXPECT_EQ(Refusal(), "");
}

// Along every axis a fine step never jumps, but where the rules do.
TEST_F(CoefficientFigures, AreContinuousButForTheListedJumps) {
  const struct {
    std::string axis;
    int shape;
    void (BreCpX::*input)(float);
    float from, to;
    std::vector<double> jumps;
  } cases[] = {
      {"mono pitch", Mono, &BreCpX::Roof_Pitch, 5, 75, {}},
      {"duo pitch below 0", Duo, &BreCpX::Roof_Pitch, -45, -5, {}},
      {"duo pitch", Duo, &BreCpX::Roof_Pitch, 5, 75, {}},
      {"hipped pitch", Hipped, &BreCpX::Roof_Pitch, 5, 75, {}},
      {"D/H and, at 90, b", Walls, &BreCpX::Dim_H, 1, 40, {}},
      {"gap", Walls, &BreCpX::Dim_gap, 0, 30, {}},
      {"parapet height: the table begins at a ratio of 0.05", Flat, &BreCpX::Parapet_H, 0, 10, {0.75, 1}},
      {"eaves radius: the table begins at r/b 0.05", Flat, &BreCpX::Eaves_Radius, 0, 3, {0.75, 1}},
      {"mansard slope: sharp eaves above 60 degrees", Flat, &BreCpX::Eaves_Pitch, 30, 90, {60}},
      {"curved rise over 15: other forms from 0.3", Curved, &BreCpX::Barrel_r, 0.1F, 9, {4.5}},
      {"return corner as long as the wall is high", Parapet, &BreCpX::Dim_W, 0, 30, {10}},
  };
  for (const auto& test : cases) {
    engine = CreateCoefficientEngine();
    Building(30, 15, 10);
    engine->Roof_Pitch(20);
    const int steps = 4000;
    const double step = (test.to - test.from) / steps;
    for (const double theta : {0.0, 90.0, 180.0, static_cast<double>(89.9F)})
      for (int zone = 0; zone < 9; ++zone)
        for (const bool suction : {false, true}) {
          Look(test.shape, theta, zone);
          if (!engine->Valid()) continue;
          engine->Suction(suction);
          double before = 0;
          for (int i = 0; i <= steps; ++i) {
            const double at = test.from + i * step;
            (*engine.*test.input)(static_cast<float>(at));
            // What the library takes of either ask.
            const double figure = suction ? std::min(engine->Cpe(), 0.0F) : std::max(engine->Cpe(), 0.0F);
            const bool jump = std::any_of(test.jumps.begin(), test.jumps.end(),
                                          [&](double where) { return std::fabs(at - where) <= 1.01 * step; });
            if (i == 0 || jump) before = figure;
            EXPECT_NEAR(figure, before, 0.02) << test.axis << " " << at << " zone " << zone;
            before = figure;
          }
          (*engine.*test.input)(test.shape == Walls ? 10.0F : 0.0F);
        }
  }
}

}  // namespace
}  // namespace orve::test
