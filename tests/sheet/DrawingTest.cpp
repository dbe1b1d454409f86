// Drawings: outlines, tones, labels and what they say without being seen.
#include <gtest/gtest.h>
#include <portal_building.h>
#include <sheet/Drawings.h>
#include <string>

#include "sheet/SheetReader.h"

namespace orve::test {

namespace {

using namespace sheet;

BuildingForm Portal(RoofTypes roof) {
  BuildingForm form;
  form.roofType = roof;
  form.length = 30;
  form.width = 15;
  form.wallHeight = {6, 8, roof == RoofTypes::Mono_pitched_roof ? 8.0 : 6.0, 8};
  form.gable = {false, true, roof == RoofTypes::Mono_pitched_roof, true};
  form.parapetHeight = 1;
  return form;
}

TEST(WallOutline, FollowsThePitchOfItsGables) {
  struct Case {
    RoofTypes roof;
    Faces face;
    double leftHeight;
    double middleHeight;
    double rightHeight;
  };
  const Case cases[] = {{RoofTypes::Duo_pitched_roof, Faces::Face_2, 6, 8, 6},
                        {RoofTypes::Duo_pitched_roof, Faces::Face_1, 6, 6, 6},
                        {RoofTypes::Mono_pitched_roof, Faces::Face_2, 8, 7, 6},
                        {RoofTypes::Mono_pitched_roof, Faces::Face_4, 6, 7, 8},
                        {RoofTypes::Mono_pitched_roof, Faces::Face_3, 8, 8, 8},
                        {RoofTypes::Hipped_roof, Faces::Face_2, 8, 8, 8}};
  for (const Case& one : cases) {
    const Polygon wall = WallOutline(Portal(one.roof), one.face, 10);
    const auto heightAt = [&](double x) {
      return BoxOf(Within(Within(wall, {1, 0}, x + 1e-6), {-1, 0}, 1e-6 - x)).top;
    };
    EXPECT_NEAR(heightAt(0), one.leftHeight, 1e-5);
    EXPECT_NEAR(heightAt(5), one.middleHeight, 1e-5);
    EXPECT_NEAR(heightAt(10), one.rightHeight, 1e-5);
  }
}

TEST(Tones, RiseWithTheLoad) {
  EXPECT_STREQ(ToneOf(0, 1), "#fff");
  EXPECT_STREQ(ToneOf(0, 0), "#fff");
  EXPECT_STREQ(ToneOf(std::numeric_limits<double>::quiet_NaN(), 1), "#fff");
  std::string previous = "#g";
  for (const double load : {0.2, 0.4, 0.6, 0.9}) {
    const std::string tone = ToneOf(load, 1);
    EXPECT_LT(tone, previous);
    previous = tone;
  }
}

TEST(RoofDrawing, TellsWindNorthAndLoads) {
  BuildingForm building = Portal(RoofTypes::Curved_roof);
  FaceZones zones{Faces::Face_1, {}};
  ZoneRow row;
  row.name = "A";
  row.size = {"A", true, 30, 2.5};
  row.overall.text = "+0.250, -1.071 kN/m\u00B2";
  row.pressure = 0.25f;
  row.suction = -1.071f;
  zones.rows.push_back(row);
  const Drawing unknown = DrawRoof(building, zones, 1.071);
  EXPECT_TRUE(
      Has(unknown.svg, "<title>Roof, wind on Face 1</title><desc>A: +0.250, -1.071 kN/m\u00B2.</desc>"));
  EXPECT_TRUE(Has(unknown.svg, ">+0.250 -1.071</text>"));
  EXPECT_FALSE(Has(unknown.svg, ">N</text>"));
  building.orientationKnown = true;
  EXPECT_TRUE(Has(DrawRoof(building, zones, 1.071).svg, ">N</text>"));
  building.width = 0;
  EXPECT_EQ(DrawRoof(building, zones, 1.071).svg, "");
  building.width = std::numeric_limits<double>::infinity();
  EXPECT_EQ(DrawRoof(building, zones, 1.071).svg, "");
}

TEST(Rose, HasAWedgeForEachSectorWithWind) {
  SectorTable table{"Roof", {}, {}, true};
  table.q = {1, 0.5, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0.25};
  const Drawing rose = DrawRose(table, 1);
  EXPECT_EQ(Between(rose.svg, "A", "z").size(), 3U);
  EXPECT_TRUE(Has(rose.svg, ">30\u00B0 0.500</text>"));
  EXPECT_TRUE(Has(rose.svg, "330 degrees: 0.250."));
  EXPECT_EQ(DrawRose(table, 0).svg, "");
}

}  // namespace

}  // namespace orve::test
