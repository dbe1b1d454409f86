// Zones, sizes, coefficients and loads on recording components.
#include <cmath>
#include <gtest/gtest.h>
#include <string>
#include <vector>

#include "support/FakeComponents.h"

namespace orve {

using test::ErrorOf;
using test::FakeZone;
using Strings = std::vector<std::string>;

constexpr auto Roof = BuildingAreas::baRoof;
constexpr auto Walls = BuildingAreas::baWalls;
constexpr auto Parapet = BuildingAreas::baParapet;
constexpr Faces AllFaces[] = {Faces::Face_1, Faces::Face_2, Faces::Face_3, Faces::Face_4};

struct External : test::FakeCase {
  std::shared_ptr<clsExternalCoefficients> external = root->ExternalCoefficients();
  std::shared_ptr<clsBuildingDimensions> building = root->BuildingDimensions();

  External() {
    building->Face1And3_Length(30);
    building->Face2And4_Width(15);
    building->Roof_Height(7);
    building->Wall_SideHeight(6);
    building->Wall_GableHeight(8);
    building->Roof_Diagonal(10);
    building->Wall_SideDiagonal(10);
    building->Wall_GableDiagonal(10);
    building->Parapet_Height(1);
    building->Parapet_SideDiagonal(10);
    building->Parapet_GableDiagonal(10);
    wind->bsGust.fill(1000);
    wind->hybridCa.fill(0.9f);
    coefficients->zones = {{0, 0, 0, "x", 0.85f, 0.85f},   {0, 180, 0, "x", -0.5f, -0.5f},
                           {0, 90, 3, "A", -1.3f, -1.3f},  {0, 90, 4, "B", -0.8f, -0.8f},
                           {0, 270, 3, "A", -1.3f, -1.3f}, {8, 0, 1, "A", 2.1f, 2.1f},
                           {8, 180, 1, "A", -0.5f, -0.5f}};
    AddRoof(2, {"A", "B", "C", "D"}, -1.3f);
    root->IsDirty(false);
  }
  void AddRoof(int type, const Strings& letters, float cpe, std::vector<double> angles = {0, 90, 180, 270}) {
    for (const double theta : angles)
      for (int zone = 0; zone < int(letters.size()); ++zone)
        coefficients->zones.push_back({type, theta, zone, letters[zone], cpe, cpe});
  }
  Strings Names(BuildingAreas area, Faces face) {
    Strings names;
    for (std::int16_t zone = 0; zone <= external->ZoneIndexTo(area, face); ++zone)
      names.push_back(external->Hybrid_ZoneDescription(area, face, zone));
    return names;
  }
};

TEST_F(External, ZoneListOfAWallKeepsTheOrder) {
  building->Wall_GapFace2(4);
  building->ConsiderCantilever(true);
  building->CantileverFace1Or2_Length(1);
  building->CantileverFace3Or4_Length(2);
  external->ZoneIndexTo(Walls, Faces::Face_2);
  Record();
  external->ZoneIndexTo(Walls, Faces::Face_2);
  Strings expected = {"TypeIndex=0", "Barrel_r=0",   "Eaves_Pitch=0", "Eaves_Radius=0",
                      "Parapet_H=0", "Roof_Pitch=0", "Solidity=0",    "TypeIndex?",
                      "Dim_L=15",    "Dim_W=27",     "Dim_H=8",       "Dim_gap=0"};
  const Strings readBack = {"Dim_L?", "Dim_W?", "Dim_H?", "Dim_gap?"};
  const auto add = [&](const Strings& calls) { expected.insert(expected.end(), calls.begin(), calls.end()); };
  for (const char* theta : {"Theta=0", "Theta=180"}) {
    add({theta, "ZoneIndex=0", "Valid?", "Theta?"});
    add(readBack);
    add({"Breadth?"});
  }
  add({"Dim_L=15", "Dim_W=27", "Dim_gap=4"});
  for (const auto& [theta, zones] : {std::pair{"Theta=90", 2}, std::pair{"Theta=270", 1}}) {
    add({theta});
    for (int zone = 0; zone <= 25; ++zone) {
      add({"ZoneIndex=" + std::to_string(zone), "Valid?"});
      if (zone < 3 || zone >= 3 + zones) continue;
      add({"TypeIndex?", "ZoneString?", "Theta?", "Scale_b?", "Depth?", "Theta?", "ZoneString?"});
      add(readBack);
    }
  }
  EXPECT_EQ(log->calls, expected);
}

TEST_F(External, CoefficientKeepsTheOrder) {
  Record();
  EXPECT_EQ(external->Hybrid_ExternalCoefficientFactor_Cpe_Suction(Walls, Faces::Face_1, 2), 1.3f);
  const Strings tail(log->calls.end() - 8, log->calls.end());
  EXPECT_EQ(tail, (Strings{"Theta=90", "ZoneIndex=3", "Dim_L=30", "Dim_W=15", "Dim_H=6", "Dim_gap=0",
                           "Suction=True", "Cpe?"}));
  EXPECT_EQ(log->calls[0], "Method=0") << "hybrid is 0 on the component";
  log->calls.clear();
  EXPECT_EQ(external->Hybrid_ExternalCoefficientFactor_Cpe_Pressure(Walls, Faces::Face_1, 2), 0);
  EXPECT_NE(log->calls[0], "Method=0") << "sent once";
  EXPECT_EQ(log->calls[log->calls.size() - 2], "Suction=False");
  log->calls.clear();
  EXPECT_EQ(external->Hybrid_ExternalCoefficientFactor_Cpe_Suction(Parapet, Faces::Face_1, 1), -0.5f)
      << "a leeward parapet keeps the component's sign";
  const Strings parapet(log->calls.end() - 4, log->calls.end());
  EXPECT_EQ(parapet, (Strings{"Theta=180", "ZoneIndex=1", "Theta?", "Cpe?"}));
  EXPECT_EQ(external->Hybrid_ExternalCoefficientFactor_Cpe_Pressure(Parapet, Faces::Face_1, 1), 0);
  EXPECT_EQ(external->Hybrid_ExternalCoefficientFactor_Cpe_Pressure(Parapet, Faces::Face_1, 0), 2.1f);
  root->DynamicPressure()->Method(Methods(7));
  log->calls.clear();
  external->ZoneIndexTo(Roof, Faces::Face_1);
  EXPECT_EQ(log->calls[0], "TypeIndex=2") << "an unknown method sends nothing";
  EXPECT_FALSE(root->BreCp_Dirty()) << "but the flag is cleared";
}

TEST_F(External, WorstWindKeepsTheOrder) {
  building->OrientationUnknown(false);
  building->Orientation(90);
  wind->bsGust[11] = 1300;
  external->Hybrid_WorstCase_DynamicPressure_q(Roof, Faces::Face_1, 0);
  Record();
  EXPECT_EQ(external->Hybrid_WorstCase_DynamicPressure_q(Roof, Faces::Face_1, 0), 1.3f);
  Strings expected;
  for (const char* s : {"11", "0", "1"})
    for (const auto& call : {"H?", "A?", "Units?"}) {
      expected.push_back(call);
      if (std::string(call) != "Units?") continue;
      const std::string sector = std::string("(") + s + ")?";
      expected.insert(expected.end(), {"BSGust" + sector, "H?", "A?", "A?", "HybridCa" + sector});
    }
  for (const auto& [s1, s2] : {std::pair{"10", "11"}, std::pair{"1", "2"}}) {
    for (const char* s : {s1, s2})
      expected.insert(expected.end(), {"H?", "A?", "Units?", std::string("BSGust(") + s + ")?"});
    for (const char* s : {s1, s2})
      expected.insert(expected.end(), {"H?", "A?", "A?", std::string("HybridCa(") + s + ")?"});
  }
  EXPECT_EQ(log->calls, expected);
}

TEST_F(External, WorstWindOverTheWindow) {
  building->OrientationUnknown(false);
  const auto walk = [&](std::int16_t orientation) {
    building->Orientation(orientation);
    return external->Hybrid_WorstCaseSearch(Roof, Faces::Face_2, 0);
  };
  const auto sectors = [](const WorstCase& record) {
    std::vector<int> walked;
    for (int i = 0; i < record.Count; ++i) walked.push_back(record.Candidates[i].Sector1);
    return walked;
  };
  EXPECT_EQ(sectors(walk(0)), (std::vector<int>{11, 0, 1, 10, 1}));
  EXPECT_EQ(sectors(walk(15)), (std::vector<int>{11, 0, 1, 2}));
  EXPECT_EQ(sectors(walk(330)), (std::vector<int>{10, 11, 0, 9, 0}));
  EXPECT_EQ(walk(15).Winner, 0) << "of equal products the first stays";
  EXPECT_EQ(ErrorOf([&] { building->Orientation(32767), external->Hybrid_AngleNormalToFace(Faces::Face_1); }),
            6);

  wind->hybridCa.fill(1);
  wind->bsGust = {3000, 3000, 5000, 0, 0, 0, 0, 0, 0, 0, 7000, 3000};
  WorstCase record = walk(0);
  EXPECT_EQ(record.Candidates[3].Product, 5) << "low end at 315";
  EXPECT_EQ(record.Candidates[4].Product, 4) << "high end at 45";
  EXPECT_EQ(record.q(), 4) << "both beat the best whole sector: the high end stands";
  wind->bsGust[2] = 3000;
  EXPECT_EQ(walk(0).q(), 5);
  wind->bsGust.fill(-1);
  EXPECT_EQ(walk(0).q(), 0) << "a product of 0 or less never wins";

  building->OrientationUnknown(true);
  wind->bsGust.fill(1000), wind->bsGust[7] = 1100, wind->bsGust[9] = 1100;
  record = external->Hybrid_WorstCaseSearch(Walls, Faces::Face_2, 0);
  EXPECT_EQ(record.Count, 12);
  EXPECT_EQ(record.Winner, 7);
  EXPECT_EQ(record.WindArea, WindAreas::waGable) << "the area follows the face that carries the zone";
}

TEST_F(External, NormalAndGables) {
  EXPECT_EQ(external->Hybrid_AngleNormalToFace(Faces::Face_1), -1);
  building->OrientationUnknown(false);
  building->Orientation(30);
  const float normals[] = {300, 30, 120, 210};
  for (const Faces face : AllFaces) EXPECT_EQ(external->Hybrid_AngleNormalToFace(face), normals[int(face)]);
  building->Orientation(-400);
  EXPECT_EQ(external->Hybrid_AngleNormalToFace(Faces::Face_2), -40);
  EXPECT_EQ(external->Hybrid_AngleNormalToFace(Faces(9)), 0);
  EXPECT_FALSE(external->GableFace(Faces::Face_3));
  EXPECT_TRUE(external->GableFace(Faces::Face_4));
  building->RoofType(RoofTypes::Mono_pitched_roof);
  EXPECT_TRUE(external->GableFace(Faces::Face_3));
  EXPECT_FALSE(external->GableFace(Faces::Face_1));
}

TEST_F(External, NamesAndWindFaces) {
  EXPECT_EQ(Names(Walls, Faces::Face_3),
            (Strings{"Windward", "Leeward", "A (face 2)", "B (face 2)", "A (face 4)"}));
  EXPECT_EQ(Names(Walls, Faces::Face_4),
            (Strings{"Windward", "Leeward", "A (face 1)", "B (face 1)", "A (face 3)"}));
  const int wallFaces[4][5] = {{0, 2, 1, 1, 3}, {1, 3, 0, 0, 2}, {2, 0, 1, 1, 3}, {3, 1, 0, 0, 2}};
  for (const Faces face : AllFaces) {
    for (std::int16_t zone = 0; zone < 5; ++zone)
      EXPECT_EQ(external->Hybrid_WindFromFace(Walls, face, zone), wallFaces[int(face)][zone]);
    EXPECT_EQ(external->Hybrid_WindFromFace(Roof, face, 99), int(face));
    EXPECT_EQ(external->Hybrid_WindFromFace(Parapet, face, 0), int(face));
    EXPECT_EQ(external->Hybrid_WindFromFace(Parapet, face, 1), (int(face) + 2) % 4);
  }
  EXPECT_EQ(external->Hybrid_WindFromFace(BuildingAreas(5), Faces::Face_3, 0), 0);
  EXPECT_EQ(ErrorOf([&] { external->Hybrid_ZoneDescription(Walls, Faces::Face_1, 5); }), 9);
  coefficients->zones.clear();
  EXPECT_EQ(external->ZoneIndexTo(Roof, Faces::Face_1), -1);
  EXPECT_EQ(ErrorOf([&] { external->Hybrid_ZoneDescription(Roof, Faces::Face_1, 0); }), 9);
}

TEST_F(External, MonoPitchedRoofIsAskedAtTwoAnglesAlongTheSlope) {
  building->RoofType(RoofTypes::Mono_pitched_roof);
  AddRoof(3, {"A", "B", "C"}, -1, {0, 180});
  AddRoof(3, {"AU"}, -2.1f, {90, 270});
  AddRoof(3, {"AL", "B", "C", "D"}, -1.6f, {89.9, 270.1});
  EXPECT_EQ(Names(Roof, Faces::Face_1), (Strings{"A", "B", "C"}));
  EXPECT_EQ(Names(Roof, Faces::Face_2), (Strings{"AU", "AL", "B", "C", "D"}));
  EXPECT_EQ(external->Hybrid_ExternalCoefficientFactor_Cpe_Suction(Roof, Faces::Face_4, 1), 1.6f);
  EXPECT_EQ(coefficients->theta, double(270.1f)) << "comes as a 32-bit float before Cpe";
}

TEST_F(External, ShapesSendTheirOwnParameterAndLengths) {
  building->Roof_ParapetHeight(1.2f);
  building->Roof_EavesRadius(0.5f);
  building->Roof_MansardSlope(45);
  building->Roof_Pitch(6);
  building->Roof_RiseHeight(3);
  const struct {
    RoofTypes type;
    Strings shape;
    const char* height;
  } cases[] = {
      {RoofTypes::Flat_roof_with_sharp_eaves, {"2", "0", "0", "0", "0", "0"}, "7"},
      {RoofTypes::Flat_roof_with_parapets, {"2", "0", "0", "0", "1.2", "0"}, "7"},
      {RoofTypes::Flat_roof_with_curved_eaves, {"2", "0", "0", "0.5", "0", "0"}, "7"},
      {RoofTypes::Flat_roof_with_mansard_eaves, {"2", "0", "45", "0", "0", "0"}, "7"},
      {RoofTypes::Mono_pitched_roof, {"3", "0", "0", "0", "0", "6"}, "7"},
      {RoofTypes::Duo_pitched_roof, {"4", "0", "0", "0", "0", "6"}, "7"},
      {RoofTypes::Hipped_roof, {"5", "0", "0", "0", "0", "6"}, "7"},
      {RoofTypes::Curved_roof, {"11", "3", "0", "0", "0", "0"}, "4"},
      {RoofTypes(42), {"0", "0", "0", "0", "0", "0"}, "0"},
  };
  external->ZoneIndexTo(Roof, Faces::Face_2);
  for (const auto& item : cases) {
    building->RoofType(item.type);
    Record();
    external->ZoneIndexTo(Roof, Faces::Face_2);
    const char* names[] = {
        "TypeIndex=", "Barrel_r=", "Eaves_Pitch=", "Eaves_Radius=", "Parapet_H=", "Roof_Pitch="};
    for (int i = 0; i < 6; ++i) EXPECT_EQ(log->calls[i], names[i] + item.shape[i]);
    const Strings rest(log->calls.begin() + 6, log->calls.begin() + 12);
    EXPECT_EQ(rest, (Strings{std::string("Dim_H=") + item.height, "Dim_gap=0", "Dim_L=30", "Dim_W=15",
                             "Solidity=0", "TypeIndex?"}));
  }
  building->Parapet_GableReturnCorner(true);
  for (const auto& [face, length, width] :
       {std::tuple{Faces::Face_1, "30", "0"}, {Faces::Face_2, "15", "30"}, {Faces(4), "15", "30"}}) {
    Record();
    external->ZoneIndexTo(Parapet, face);
    const bool sent = std::count(log->calls.begin(), log->calls.end(), std::string("Dim_L=") + length) > 0;
    EXPECT_EQ(sent, int(face) < 4) << "no lengths for a face that there isn't";
    EXPECT_EQ(ShortestText(coefficients->dimW), width);
  }
}

struct SizeCase {
  int type;
  const char* name;
  double theta;
  float L, W, H;
  bool cantilevers;
  float x, y;  // NaN: no such zone; 0 and 0: no lengths shown
};

TEST_F(External, ZoneSizes) {
  const float none = std::numeric_limits<float>::quiet_NaN();
  const SizeCase cases[] = {
      // Flat roof, b 20.
      {2, "A", 0, 30, 25, 10, false, 5, 2},
      {2, "B", 180, 30, 25, 10, false, 20, 2},
      {2, "C", 0, 30, 25, 10, false, 30, 8},
      {2, "D", 0, 30, 25, 10, false, 30, 15},
      {2, "A", 0, 30, 25, 10, true, 4, 2},
      {2, "C", 0, 30, 25, 10, true, 27, 8},
      {2, "A", 90, 25, 30, 10, true, 5, 1},
      {2, "D", 90, 25, 30, 10, true, 30, 13},
      {2, "A", 270, 25, 30, 10, true, 5, none},
      {2, "D", 270, 25, 30, 10, true, 30, 14},
      {2, "Z", 0, 30, 25, 10, false, none, none},
      // Duo-pitched roof, b 14 at 0 and at 90.
      {4, "A", 0, 30, 15, 7, false, 7, 1.4f},
      {4, "C", 0, 30, 15, 7, false, 0, 0},
      {4, "E", 0, 30, 15, 7, false, 7, 1.4f},
      {4, "F", 180, 30, 15, 7, false, 16, 1.4f},
      {4, "B", 90, 30, 15, 7, true, 3.75f, 0.4f},
      {4, "C", 270, 30, 15, 7, false, 7.5f, 5.6f},
      {4, "D", 270, 30, 15, 7, false, 0, 0},
      // Mono-pitched roof.
      {3, "A", 0, 30, 15, 7, false, 7, 1.4f},
      {3, "AL", 89.9, 30, 15, 7, true, 3.5f, 0.4f},
      {3, "B", 270.1, 30, 15, 7, false, 8, 1.4f},
      {3, "D", 89.9, 30, 15, 7, false, 0, 0},
      // Hipped and curved roofs; the curved one by twice the roof's height, 14.
      {5, "J", 90, 30, 15, 7, true, 1.4f, 7},
      {11, "B", 0, 30, 15, 7, true, 27, 2.5f},
      {11, "A", 90, 30, 15, 7, true, 5, 0.4f},
      {11, "C", 270, 30, 15, 7, false, 15, 3.6f},
      {11, "F", 90, 30, 15, 7, true, 15, 13},
  };
  building->Roof_Height(7);
  building->Wall_GableFaces(GableFaces::Faces_1_and_3);
  building->CantileverFace1Or2_Length(1);
  building->CantileverFace3Or4_Length(2);
  const std::pair<int, RoofTypes> types[] = {{2, RoofTypes::Flat_roof_with_sharp_eaves},
                                             {3, RoofTypes::Mono_pitched_roof},
                                             {4, RoofTypes::Duo_pitched_roof},
                                             {5, RoofTypes::Hipped_roof},
                                             {11, RoofTypes::Curved_roof}};
  for (const SizeCase& item : cases) {
    coefficients->zones = {{item.type, item.theta, 0, item.name, 1, 1}};
    for (const auto& [type, roof] : types)
      if (type == item.type) building->RoofType(roof);
    building->Face1And3_Length(item.L), building->Face2And4_Width(item.W), building->Roof_Height(item.H);
    building->ConsiderCantilever(item.cantilevers);
    // Unequal cantilevers warn on the faces across them, so the gables lie where the rule lets the sizes
    // through.
    const bool across = item.theta == 0 || item.theta == 180;
    building->Wall_GableFaces(across ? GableFaces::Faces_1_and_3 : GableFaces::Faces_2_and_4);
    const auto face = static_cast<Faces>(static_cast<int>(item.theta + 0.5) / 90);
    const auto screen = ResultsScreens::Overall_Applied_Loads;
    SCOPED_TRACE(std::string(item.name) + " of type " + std::to_string(item.type) + " at " +
                 ShortestText(item.theta));
    if (std::isnan(item.x)) {
      EXPECT_EQ(external->ZoneIndexTo(Roof, face, screen), -1);
      continue;
    }
    const ZoneDimensionsXY size = external->Hybrid_ZoneDimensionsXY(Roof, face, 0, screen);
    EXPECT_FLOAT_EQ(size.DimensionX, item.x);
    if (std::isnan(item.y))
      EXPECT_LE(size.DimensionY, 0) << "one positive length is enough";
    else
      EXPECT_NEAR(size.DimensionY, item.y, 1e-6);
  }
  building->ConsiderCantilever(true);
  coefficients->zones = {{2, 0, 0, "A", 1, 1}};
  building->RoofType(RoofTypes::Flat_roof_with_sharp_eaves);
  building->Wall_GableFaces(GableFaces::Faces_2_and_4);
  EXPECT_TRUE(root->OverallAppliedLoads()->CantileverZoneWidthWarning(Roof, Faces::Face_1));
  EXPECT_EQ(external->Hybrid_ZoneDimensionX(Roof, Faces::Face_1, 0, ResultsScreens::Overall_Applied_Loads),
            3.5f)
      << "a warning leaves the cantilevers out";
}

TEST_F(External, WallAndParapetSizesAsText) {
  const auto text = [&](BuildingAreas area, const char* name, float L, float W, float H) {
    coefficients->zones = {{0, 90, 0, name, 1, 1}, {8, 0, 0, name, 1, 1}};
    building->Face1And3_Length(W), building->Face2And4_Width(L);
    building->Wall_SideHeight(H), building->Parapet_Height(H);
    if (external->ZoneIndexTo(area, area == Parapet ? Faces::Face_2 : Faces::Face_1) < 0)
      return std::string("none");
    return external->Hybrid_ZoneDimensions(area, area == Parapet ? Faces::Face_2 : Faces::Face_1, 0);
  };
  // Walls at 90: B and b are the width, D the length.
  EXPECT_EQ(text(Walls, "A", 10, 6, 5), "2.000 m");
  EXPECT_EQ(text(Walls, "B", 10, 6, 5), "4.000 m");
  EXPECT_EQ(text(Walls, "C", 10, 6, 5), "none");
  EXPECT_EQ(text(Walls, "B", 10, 20, 5), "8.000 m");
  EXPECT_EQ(text(Walls, "C", 10, 20, 5), "10.000 m");
  EXPECT_EQ(text(Walls, "B", 10, 1, 5), "none");
  EXPECT_EQ(text(Parapet, "A", 3, 9, 1), "0.300 m");
  EXPECT_EQ(text(Parapet, "B", 3, 9, 1), "1.700 m");
  EXPECT_EQ(text(Parapet, "C", 3, 9, 1), "1.000 m");
  EXPECT_EQ(text(Parapet, "D", 3, 9, 1), "none");
  EXPECT_EQ(text(Parapet, "A", 0.2f, 9, 1), "0.200 m");
  EXPECT_EQ(text(Parapet, "B", 0.2f, 9, 1), "none");
  coefficients->zones = {{2, 0, 0, "B", 1, 1}, {2, 0, 1, "C", 1, 1}};
  building->Face1And3_Length(12.5f), building->Roof_Height(15);
  EXPECT_EQ(external->Hybrid_ZoneDimensions(Roof, Faces::Face_1, 0), "6.250 m, 1.250 m");
}

TEST_F(External, BayFactorAndManualCoefficients) {
  building->Roof_FrameType(FrameTypes::Frames_3_or_more);
  external->Bay(Bays::All_Remaining_Bays);
  EXPECT_TRUE(root->BreCp_Dirty());
  coefficients->zones = {{2, 0, 0, "A", 1, -1}, {2, 90, 0, "A", 1, -1}};
  EXPECT_EQ(external->Hybrid_ExternalCoefficientFactor_Cpe_Pressure(Roof, Faces::Face_1, 0), 0.6f);
  EXPECT_EQ(external->Hybrid_ExternalCoefficientFactor_Cpe_Suction(Roof, Faces::Face_1, 0), 0.6f);
  EXPECT_EQ(external->Hybrid_ExternalCoefficientFactor_Cpe_Pressure(Roof, Faces::Face_2, 0), 1);
  root->IsDirty(false);
  external->Hybrid_ExternalCoefficientFactor_Cpe_Pressure(Roof, Faces::Face_1, 0, 5);
  EXPECT_FALSE(root->IsDirty());
  external->ManualResults(true);
  external->Hybrid_ExternalCoefficientFactor_Cpe_Pressure(Roof, Faces::Face_1, 27, 0.7f);
  EXPECT_EQ(external->Hybrid_ExternalCoefficientFactor_Cpe_Pressure(Roof, Faces::Face_1, 27), 0.7f);
  EXPECT_EQ(external->Hybrid_ExternalCoefficientFactor_Cpe_Suction(Roof, Faces::Face_1, 27), 0);
  root->IsDirty(false);
  external->Hybrid_ExternalCoefficientFactor_Cpe_Pressure(Roof, Faces::Face_1, 27, 0.7f);
  EXPECT_FALSE(root->IsDirty());
  for (const auto& [area, face, zone] : {std::tuple{3, 0, 0}, {0, 4, 0}, {0, 0, 28}, {0, 0, -2}, {-2, 0, 0}})
    EXPECT_EQ(ErrorOf([&, a = area, f = face, z = zone] {
                external->Hybrid_ExternalCoefficientFactor_Cpe_Suction(BuildingAreas(a), Faces(f),
                                                                       std::int16_t(z), 1);
              }),
              9);
}

TEST_F(External, LoadTexts) {
  EXPECT_EQ(external->Hybrid_ExternalAppliedLoads(Roof, Faces::Face_1, 0), "-1.170 kN/m\u00B2");
  EXPECT_EQ(external->Hybrid_ExternalAppliedLoads(Walls, Faces::Face_1, 0), "+0.765 kN/m\u00B2");
  EXPECT_EQ(external->Hybrid_ExternalAppliedLoads(Parapet, Faces::Face_1, 1), "+0.450 kN/m\u00B2")
      << "a negative leeward coefficient reverses";
  coefficients->zones = {{2, 0, 0, "A", 0.5f, -0.3f}};
  EXPECT_EQ(external->Hybrid_ExternalAppliedLoads(Roof, Faces::Face_1, 0), "+0.450, -0.270 kN/m\u00B2");
  wind->bsGust.fill(0);
  EXPECT_EQ(external->Hybrid_ExternalAppliedLoads(Roof, Faces::Face_1, 0), "+0.000, +0.000 kN/m\u00B2");
  coefficients->zones = {{2, 0, 0, "A", 0, 0}};
  EXPECT_EQ(external->Hybrid_ExternalAppliedLoads(Roof, Faces::Face_1, 0), "");
  wind->bsGust.fill(3e38f);
  coefficients->zones = {{2, 0, 0, "A", 3e38f, 0}};
  EXPECT_EQ(ErrorOf([&] { external->Hybrid_ExternalAppliedLoad_Pressure(Roof, Faces::Face_1, 0); }), 6);
}

}  // namespace orve
