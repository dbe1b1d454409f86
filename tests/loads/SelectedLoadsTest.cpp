// The load chosen for a member, stepped loads, and the names of a zone.
#include <gtest/gtest.h>
#include <limits>

#include "loads/MemberCase.h"

namespace orve {
namespace {

using SelectedLoads = MemberCase;
constexpr auto Face1 = Faces::Face_1;
constexpr auto Face2 = Faces::Face_2;

TEST_F(SelectedLoads, AverageTheStepsOverSpanEndBayAndInternalBay) {
  const auto set = [&](float span, float z1, float z2, float z3) {
    Loads().SteppedWind_Load_1(Roof, Face2, 1);
    Loads().SteppedWind_Load_2(Roof, Face2, 2);
    Loads().SteppedWind_Load_3(Roof, Face2, 3);
    Loads().SteppedWind_Distance_1(Roof, Face2, z1);
    Loads().SteppedWind_Distance_2(Roof, Face2, z2);
    Loads().SteppedWind_Distance_3(Roof, Face2, z3);
    Loads().SteppedWind_Span(Roof, Face2, span);
  };
  set(10, 2, 4, 0);
  Loads().BuildingArea(Roof);
  Loads().Face(Face2);
  EXPECT_EQ(Loads().SteppedWind_Load(), 1) << "the third distance is an input of its own";
  EXPECT_EQ(Loads().SteppedWind_Load_External(), 1.6f);
  EXPECT_EQ(Loads().SteppedWind_Load_Internal(), 2.8f);
  EXPECT_EQ(Loads().SelectedLoadValues(), "+1.000 kN/m²");
  EXPECT_EQ(Loads().SelectedLoadValues_External(), "+1.600 kN/m²");
  EXPECT_EQ(Loads().SelectedLoadValues_Internal(), "+2.800 kN/m²");
  EXPECT_EQ(Loads().SelectedLoadValues_Internal(Roof, Face1), "") << "the other faces have no steps";
  set(0, 2, 4, 4);
  EXPECT_EQ(
      Loads().SteppedWind_Load() + Loads().SteppedWind_Load_External() + Loads().SteppedWind_Load_Internal(),
      0);
  EXPECT_EQ(Loads().SelectedLoadValues() + Loads().SelectedLoadValues_External(), "");
}

TEST_F(SelectedLoads, MarkTheCaseOnlyWhenAValueChanges) {
  Case->IsDirty(false);
  Loads().SelectedFace(Face1);
  Loads().SelectedLoadType(Walls, Face2, SelectedLoadTypes::Stepped_Wind_Load);
  Loads().SteppedWind_Distance_3(Parapet, Faces::Face_4, 0);
  Loads().BuildingArea(Walls);
  EXPECT_FALSE(Case->IsDirty());
  Loads().SteppedWind_Distance_3(Parapet, Faces::Face_4, -1);
  EXPECT_TRUE(Case->IsDirty());
  Case->IsDirty(false);
  Loads().SelectedFace(Face2);
  EXPECT_TRUE(Case->IsDirty());
  Case->IsDirty(false);
  Loads().SelectedLoadType(Walls, Face2, SelectedLoadTypes(-300));
  EXPECT_TRUE(Case->IsDirty()) << "nothing is validated";
  EXPECT_EQ(Loads().SelectedLoadType(Walls, Face2), SelectedLoadTypes(-300));
}

TEST_F(SelectedLoads, TellWhatLiesOutsideTheTables) {
  for (const auto area : {BuildingAreas(3), BuildingAreas(-2), BuildingAreas(70000)}) {
    EXPECT_EQ(ErrorOf([&] { Loads().SelectedLoadValues(area, Face1); }), 9);
    EXPECT_EQ(ErrorOf([&] { Loads().SteppedWind_Load(area, Face1); }), 9);
    EXPECT_EQ(ErrorOf([&] { Loads().SteppedWind_Span(Roof, Faces(static_cast<int>(area) + 2), 1); }),
              area == BuildingAreas(-2) ? 0 : 9);
  }
  EXPECT_EQ(ErrorOf([&] { Loads().SelectedLoadType(Roof, Faces(4), SelectedLoadTypes::A); }), 9);
  EXPECT_EQ(ErrorOf([&] { Loads().SelectedLoadType(Roof, Face1, SelectedLoadTypes(40000)); }), 6);
  EXPECT_EQ(Loads().SelectedLoadType(Roof, Face1), SelectedLoadTypes::Stepped_Wind_Load);
}

TEST_F(SelectedLoads, GiveTheOverallLoadOfTheChosenZone) {
  UnitCase(RoofTypes::Flat_roof_with_sharp_eaves);
  Case->InternalCoefficients()->EnclosedBuilding_NoPositiveInternalPressure(true);
  Cpe(Roof, Face1, 1, 0.2f, 0.9f);
  Loads().SelectedLoadType(Roof, Face1, SelectedLoadTypes::B);
  EXPECT_EQ(Loads().SelectedLoadValues(Roof, Face1), Loads().Hybrid_OverallAppliedLoads(Roof, Face1, 1));
  EXPECT_NE(Loads().SelectedLoadValues(Roof, Face1), "");
  EXPECT_EQ(Loads().SelectedLoadValues_External(Roof, Face1), "") << "not for a zone";
  Loads().SelectedLoadType(Roof, Face1, SelectedLoadTypes::AU);
  EXPECT_EQ(Loads().SelectedLoadValues(Roof, Face1), "") << "no such zone";
}

TEST_F(SelectedLoads, PairTheWindwardAndLeewardZonesOfAParapet) {
  UnitCase(RoofTypes::Flat_roof_with_sharp_eaves);
  const auto zone = [&](const char* description) {
    return Loads().ZoneIndexFromZoneDescription(description, Parapet, Face1);
  };
  const struct {
    SelectedLoadTypes type;
    const char* windward;
    const char* leeward;
    float pressure;
    float suction;
    const char* text;
  } pairs[] = {{SelectedLoadTypes::A, "A (windward)", "A (leeward)", 2.5f, 1.25f, "+2.500, -1.250 kN/m²"},
               {SelectedLoadTypes::B, "B (windward)", "B (leeward)", 1.5f, 0.75f, "+1.500, -0.750 kN/m²"},
               {SelectedLoadTypes::C, "C (windward)", "C (leeward)", 1.25f, 0.5f, "+1.250, -0.500 kN/m²"},
               {SelectedLoadTypes::D, "D (windward)", "D (leeward)", 1, 0.25f, "+1.000, -0.250 kN/m²"}};
  for (const auto& pair : pairs) {
    Cpe(Parapet, Face1, zone(pair.windward), pair.pressure, 0);
    Cpe(Parapet, Face1, zone(pair.leeward), 0, pair.suction);
  }
  for (const auto& pair : pairs) {
    Loads().SelectedLoadType(Parapet, Face1, pair.type);
    EXPECT_EQ(Loads().SelectedLoadValues(Parapet, Face1), pair.text);
  }
  Loads().SelectedLoadType(Parapet, Face1, SelectedLoadTypes::B);
  Cpe(Parapet, Face1, zone("B (leeward)"), 0, 0);
  EXPECT_EQ(Loads().SelectedLoadValues(Parapet, Face1), "+1.500 kN/m²");
  for (const auto type : {SelectedLoadTypes::E, SelectedLoadTypes::Windward}) {
    Loads().SelectedLoadType(Parapet, Face1, type);
    EXPECT_EQ(Loads().SelectedLoadValues(Parapet, Face1), "");
  }
}

TEST_F(SelectedLoads, ConvertBetweenTypeDescriptionAndZone) {
  UnitCase(RoofTypes::Mono_pitched_roof);
  const std::int16_t last = Loads().ZoneIndexTo(Roof, Face2);
  EXPECT_EQ(Loads().ZoneIndexFromSelectedLoadType(SelectedLoadTypes::AL, Roof, Face2), 1);
  EXPECT_EQ(Loads().ZoneIndexFromZoneDescription("D", Roof, Face2), last);
  EXPECT_EQ(Loads().SelectedLoadTypeFromZoneIndex(1, Roof, Face2), 16);
  for (const auto type : {SelectedLoadTypes::Stepped_Wind_Load, SelectedLoadTypes::A, SelectedLoadTypes(99)})
    EXPECT_EQ(Loads().ZoneIndexFromSelectedLoadType(type, Roof, Face2), last + 1) << "no such zone";
  EXPECT_EQ(Loads().ZoneIndexFromZoneDescription("d", Roof, Face2), last + 1);
  const struct {
    int Type;
    const char* Description;
  } rows[] = {
      {1, "Windward"}, {3, "A (face 1)"}, {11, "C (face 3)"}, {14, "C (face 4)"}, {15, "AU"},
      {17, "A"},       {24, "H"},         {25, "I"},          {26, "J"},          {0, "Stepped wind load"}};
  for (const auto& row : rows) {
    EXPECT_EQ(Loads().ZoneDescriptionFromSelectedLoadType(SelectedLoadTypes(row.Type)), row.Description);
    EXPECT_EQ(Loads().SelectedLoadTypeFromZoneDescription(row.Description), row.Type);
  }
  for (const char* unknown : {"A (windward)", "i", "Stepped Wind Load", "leeward", ""})
    EXPECT_EQ(Loads().SelectedLoadTypeFromZoneDescription(unknown), 0) << unknown;
  for (const int outside : {-1, 27})
    EXPECT_EQ(Loads().ZoneDescriptionFromSelectedLoadType(SelectedLoadTypes(outside)), "");
}

TEST_F(SelectedLoads, ApplyTheBayLoadsToTheSteppedRoofLoadOfAContinuousPurlin) {
  for (const auto parent : {ParentTypes::Purlin_Continuous_Single, ParentTypes::Purlin_Continuous_Double}) {
    Case->Parent_Type(parent);
    EXPECT_TRUE(Loads().ContinuousSteppedWind(Roof, Face2));
    EXPECT_FALSE(Loads().ContinuousSteppedWind(Walls, Face2));
    EXPECT_FALSE(Loads().ContinuousSteppedWind(Parapet, Face2));
  }
  Loads().SelectedLoadType(Roof, Face2, SelectedLoadTypes::A);
  EXPECT_FALSE(Loads().ContinuousSteppedWind(Roof, Face2));
  EXPECT_TRUE(Loads().ContinuousSteppedWind(Roof, Face1));
  Case->Parent_Type(ParentTypes::Purlin_Double);
  EXPECT_FALSE(Loads().ContinuousSteppedWind(Roof, Face1));
}

}  // namespace
}  // namespace orve
