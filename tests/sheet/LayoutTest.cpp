// Zones on plans and elevations: they cover their surface, each with the size that the library gives.
#include <array>
#include <cmath>
#include <gtest/gtest.h>
#include <sheet/Content.h>
#include <sheet/Drawings.h>
#include <string>
#include <vector>

#include "explain/RandomCase.h"
#include "sheet/SheetReader.h"

namespace orve::test {

namespace {

using namespace sheet;

double AreaOf(const Pieces& pieces) {
  double area = 0;
  for (const Piece& piece : pieces) area += Area(piece.outline);
  return area;
}

ZoneSizes SizesOf(clsExternalCoefficients& external, BuildingAreas area, Faces face) {
  ZoneSizes sizes;
  for (std::int16_t zone = 0; zone <= external.ZoneIndexTo(area, face); ++zone) {
    const ZoneDimensionsXY size = external.Hybrid_ZoneDimensionsXY(area, face, zone);
    sizes.push_back({external.Hybrid_ZoneDescription(area, face, zone),
                     !external.Hybrid_ZoneDimensions(area, face, zone).empty(), size.DimensionX,
                     size.DimensionY});
  }
  return sizes;
}

/// The surface is covered once: no piece leaves it, and together they are as large.
void ExpectCovered(const Polygon& surface, const Pieces& pieces, const std::string& what) {
  EXPECT_NEAR(AreaOf(pieces), Area(surface), 1e-6 * Area(surface)) << what;
  const Box box = BoxOf(surface);
  for (const Piece& piece : pieces) {
    const Box inside = BoxOf(piece.outline);
    EXPECT_TRUE(inside.left >= box.left - 1e-6 && inside.right <= box.right + 1e-6 &&
                inside.bottom >= -1e-6 && inside.top <= box.top + 1e-6)
        << what;
  }
}

using LayoutTest = SheetCase;

TEST_F(LayoutTest, ZonesOfRandomBuildingsCoverRoofWallsAndParapets) {
  std::mt19937 random(11);
  for (int i = 0; i < 150; ++i) {
    root->Clear();
    FillRandomCase(*root, random);
    const BuildingForm building = ReadBuilding();
    const auto external = root->ExternalCoefficients();
    for (const Faces face : kFaces) {
      const std::string what = "case " + std::to_string(i) + ", face " + std::to_string(int(face));
      const ZoneSizes roof = SizesOf(*external, BuildingAreas::baRoof, face);
      ExpectCovered(Rectangle(building.length, building.width),
                    LayOutRoof(building.roofType, face, roof, building.length, building.width),
                    "roof, " + what);
      const ZoneSizes walls = SizesOf(*external, BuildingAreas::baWalls, face);
      const Polygon wall = WallOutline(building, face, walls.at(0).x);
      for (const WallWind wind : {WallWind::Onto, WallWind::Away, WallWind::FromLeft, WallWind::FromRight})
        ExpectCovered(wall, LayOutWall(wall, face, wind, walls), "walls, " + what);
      const double length = face == Faces::Face_1 || face == Faces::Face_3 ? building.length : building.width;
      const ZoneSizes parapet = SizesOf(*external, BuildingAreas::baParapet, face);
      for (const bool windward : {true, false})
        ExpectCovered(Rectangle(length, building.parapetHeight),
                      LayOutParapet(length, building.parapetHeight, windward, parapet), "parapet, " + what);
    }
  }
}

/// A zone's pieces: how many, how large together, and where the first has its centre.
struct Expected {
  const char* zone;
  int count;
  double area;
  Point first;
};

void ExpectPieces(RoofTypes roof, Faces face, const ZoneSizes& zones, const std::vector<Expected>& expected) {
  const Pieces pieces = LayOutRoof(roof, face, zones, 30, 20);
  for (const Expected& one : expected) {
    Pieces own;
    for (const Piece& piece : pieces)
      if (zones[piece.zone].name == one.zone) own.push_back(piece);
    EXPECT_EQ(static_cast<int>(own.size()), one.count) << one.zone;
    EXPECT_NEAR(AreaOf(own), one.area, 1e-9) << one.zone;
    if (own.empty()) continue;
    EXPECT_NEAR(Centre(own[0].outline).x, one.first.x, 1e-9) << one.zone;
    EXPECT_NEAR(Centre(own[0].outline).y, one.first.y, 1e-9) << one.zone;
  }
}

TEST(RoofLayout, PutsZonesWhereTheStandardsFiguresHaveThem) {
  const ZoneSizes flat = {{"A", true, 5, 2}, {"B", true, 20, 2}, {"C", true, 30, 8}, {"D", true, 30, 10}};
  ExpectPieces(
      RoofTypes::Flat_roof_with_sharp_eaves, Faces::Face_1, flat,
      {{"A", 2, 20, {2.5, 1}}, {"B", 1, 40, {15, 1}}, {"C", 1, 240, {15, 6}}, {"D", 1, 300, {15, 15}}});
  const ZoneSizes mono = {
      {"AU", true, 4, 2}, {"AL", true, 4, 2}, {"B", true, 12, 2}, {"C", true, 20, 6}, {"D"}};
  ExpectPieces(
      RoofTypes::Mono_pitched_roof, Faces::Face_4, mono,
      {{"AL", 1, 8, {29, 2}}, {"AU", 1, 8, {29, 18}}, {"B", 1, 24, {29, 10}}, {"D", 1, 440, {11, 10}}});
  const ZoneSizes duo = {{"A", true, 6, 1.2}, {"B", true, 18, 1.2}, {"C"},
                         {"E", true, 6, 1.2}, {"F", true, 18, 1.2}, {"G"}};
  ExpectPieces(RoofTypes::Duo_pitched_roof, Faces::Face_3, duo,
               {{"A", 2, 14.4, {3, 19.4}},
                {"C", 1, 264, {15, 14.4}},
                {"E", 2, 14.4, {3, 9.4}},
                {"G", 1, 264, {15, 4.4}}});
  const ZoneSizes gable = {{"A", true, 5, 1}, {"B", true, 5, 1}, {"C", true, 10, 4}, {"D"}};
  ExpectPieces(
      RoofTypes::Duo_pitched_roof, Faces::Face_2, gable,
      {{"A", 2, 10, {0.5, 2.5}}, {"B", 2, 10, {0.5, 7.5}}, {"C", 2, 80, {3, 5}}, {"D", 2, 500, {17.5, 5}}});
}

// Strips along hips are as wide as those along eaves and ridge, so that an eaves cuts them at the root of
// two.
TEST(RoofLayout, DividesTheFourSlopesOfAHippedRoof) {
  ZoneSizes zones;
  for (const char* name : {"A", "B", "C", "E", "F", "G", "H", "I", "J"})
    zones.push_back({name, true, 1.2, 6});
  const double strip = 1.2 * std::sqrt(2.0);
  const double ridge = (2 * 10.6 - 10 - 2 * strip) * 1.2;
  const Pieces pieces = LayOutRoof(RoofTypes::Hipped_roof, Faces::Face_1, zones, 30, 20);
  std::array<double, 9> area{};
  for (const Piece& piece : pieces) area[piece.zone] += Area(piece.outline);
  EXPECT_NEAR(area[0] + area[1] + area[2], 200, 1e-9);  // windward slope
  EXPECT_NEAR(area[1], (30 - 12) * 1.2, 1e-9);
  EXPECT_NEAR(area[3], 20 * strip, 1e-9);
  EXPECT_NEAR(area[4], ridge, 1e-9);
  EXPECT_NEAR(area[5], 200 - 20 * strip - ridge, 1e-9);
  EXPECT_NEAR(area[6] + area[7] + area[8], 200, 1e-9);  // both side slopes
}

TEST(RoofLayout, CutsAtTheEdgeWhatDoesNotFit) {
  const ZoneSizes deep = {
      {"A", true, 20, 15}, {"B", true, -10, 15}, {"C", true, 30, 12}, {"D", true, 30, -7}};
  ExpectPieces(RoofTypes::Flat_roof_with_parapets, Faces::Face_1, deep,
               {{"A", 2, 450, {10, 7.5}}, {"B", 0, 0, {}}, {"C", 1, 150, {15, 17.5}}, {"D", 0, 0, {}}});
}

TEST(WallLayout, BeginsAtTheEndThatTheWindComesFrom) {
  const ZoneSizes zones = {{"Windward", true, 20, 20},   {"Leeward", true, 20, 20},
                           {"A (face 2)", true, 2, 2},   {"B (face 2)", true, 8, 8},
                           {"C (face 2)", true, 10, 10}, {"A (face 4)", true, 2, 2},
                           {"B (face 4)", true, 8, 8},   {"C (face 4)", true, 10, 10}};
  const Polygon wall = Rectangle(20, 5);
  const Pieces left = LayOutWall(wall, Faces::Face_1, WallWind::FromLeft, zones);
  const Pieces right = LayOutWall(wall, Faces::Face_1, WallWind::FromRight, zones);
  ASSERT_EQ(left.size(), 3U);
  ASSERT_EQ(right.size(), 3U);
  EXPECT_NEAR(Centre(left[0].outline).x, 1, 1e-9);
  EXPECT_NEAR(Centre(right[0].outline).x, 19, 1e-9);
  EXPECT_EQ(zones[right[0].zone].name, "A (face 4)");
  EXPECT_NEAR(Centre(left[2].outline).x, 15, 1e-9);
}

}  // namespace

}  // namespace orve::test
