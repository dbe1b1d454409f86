// The first guess of the building from the member that the host designs.
#include <gtest/gtest.h>
#include <string>
#include <vector>

#include "loads/MemberCase.h"

namespace orve {
namespace {

class ParentPrefill : public MemberCase {
 public:
  void SetParent(ParentTypes type) {
    Case->Parent_Span(6);
    Case->Parent_Centres(1.5f);
    Case->Parent_RoofPitch(12);
    Case->Parent_HeightOfPost_m(1.1f);
    Case->Parent_HeightToTopOfPostFromFFL_m(9);
    Case->Parent_BaySize_m(5);
    Case->Parent_Type(type);
  }

  // What differs from a blank building, by name, and the spans of roof, walls and parapet.
  std::string State() {
    const auto switchText = [](bool on, const char* name) {
      return on ? std::string(name) + " " : std::string();
    };
    const auto valueText = [](float value, const char* name) {
      return value == 0 ? std::string() : name + std::string(" ") + std::to_string(value).substr(0, 6) + " ";
    };
    clsBuildingDimensions& building = Building();
    return switchText(building.ConsiderRoof(), "roof") + switchText(building.ConsiderWalls(), "walls") +
           switchText(building.ConsiderCantilever(), "cantilever") +
           switchText(building.ConsiderParapet(), "parapet") +
           valueText(building.Roof_Diagonal(), "roof-diagonal") + valueText(building.Roof_Pitch(), "pitch") +
           valueText(building.Wall_GableDiagonal(), "gable-diagonal") +
           valueText(building.Wall_SideDiagonal(), "side-diagonal") +
           valueText(building.Parapet_Height(), "height") +
           valueText(building.Parapet_HeightFromFFL_m(), "above-floor") +
           valueText(building.Parapet_SideDiagonal(), "parapet-side") +
           valueText(building.Parapet_GableDiagonal(), "parapet-gable") + "spans" +
           valueText(Loads().SteppedWind_Span(Roof, Faces::Face_4), "") +
           valueText(Loads().SteppedWind_Span(Walls, Faces::Face_1), "") +
           valueText(Loads().SteppedWind_Span(Parapet, Faces::Face_2), "");
  }
};

TEST_F(ParentPrefill, FollowsTheKindOfDesign) {
  const struct {
    int Type;
    const char* State;
  } rows[] = {
      {0, "spans"},
      {1, "roof roof-diagonal 6.1850 pitch 12.000 spans 6.0000  6.0000  6.0000 "},
      {2, "roof roof-diagonal 12.093 pitch 12.000 spans 6.0000  6.0000  6.0000 "},
      {3, "walls gable-diagonal 6.1850 side-diagonal 6.1850 spans 6.0000  6.0000  6.0000 "},
      {4, "walls gable-diagonal 12.093 side-diagonal 12.093 spans 6.0000  6.0000  6.0000 "},
      {5, "roof roof-diagonal 18.062 pitch 12.000 spans 12.000  6.0000  6.0000 "},
      {6, "roof roof-diagonal 18.062 pitch 12.000 spans 12.000  6.0000  6.0000 "},
      {7, "roof walls pitch 12.000 spans 6.0000  6.0000  6.0000 "},
      {8, "roof walls cantilever roof-diagonal 6.1850 pitch 12.000 spans 6.0000  6.0000  6.0000 "},
      {9,
       "parapet height 1.1000 above-floor 9.0000 parapet-side 5.1200 parapet-gable 5.1200 "
       "spans 6.0000  6.0000  6.0000 "},
      {10, "roof walls cantilever roof-diagonal 12.093 pitch 12.000 spans 6.0000  6.0000  6.0000 "},
      {11, "spans 6.0000  6.0000  6.0000 "},
  };
  for (const auto& row : rows) {
    Case = CreateCurrentCase();
    SetParent(ParentTypes(row.Type));
    EXPECT_EQ(State(), row.State) << row.Type;
    EXPECT_FALSE(Case->IsDirty());
  }
  EXPECT_EQ(ParentTypes::ptParapetDesign, ParentTypes(9));
}

TEST_F(ParentPrefill, NarrowsADiagonalOfThreeDecimals) {
  SetParent(ParentTypes::Purlin_Single);
  EXPECT_EQ(Building().Roof_Diagonal(), 6.185f);
}

TEST_F(ParentPrefill, TakesPlaceOncePerNewCase) {
  SetParent(ParentTypes::Purlin_Single);
  Case->Parent_Span(9);
  Case->Parent_Type(ParentTypes::Purlin_Double);
  EXPECT_EQ(Building().Roof_Diagonal(), 6.185f) << "no longer blank";
  EXPECT_FALSE(Case->IsDirty());
  Case->Clear();
  EXPECT_EQ(Building().Roof_Diagonal(), 18.062f) << "Clear prefills too";
  EXPECT_FALSE(Case->IsDirty());
  Case->Description("edited");
  Case->Parent_Type(ParentTypes::Siderail_Single);
  EXPECT_FALSE(Building().ConsiderWalls()) << "a changed case";
  EXPECT_TRUE(Case->IsDirty());
}

TEST_F(ParentPrefill, SetsInTheToldOrderAndEndsClean) {
  std::vector<std::string> changes;
  std::string before = State();
  auto connection = Case->DirtyUpdated.Connect([&](bool dirty) {
    if (!dirty) return changes.push_back("clean");
    const std::string now = State();
    if (now == before) return;  // A face whose span the state doesn't show.
    changes.push_back(now);
    before = now;
  });
  Case->Parent_HeightOfPost_m(1);
  Case->Parent_HeightToTopOfPostFromFFL_m(9);
  Case->Parent_BaySize_m(5);
  Case->Parent_Span(6);
  EXPECT_EQ(changes, std::vector<std::string>(4, "clean")) << "without a kind of design";
  changes.clear();
  Case->Parent_Type(ParentTypes::ptParapetDesign);
  const std::string parapet = "parapet height 1.0000 above-floor 9.0000 ";
  const std::vector<std::string> expected = {
      "parapet spans",
      "parapet height 1.0000 spans",
      parapet + "spans",
      parapet + "parapet-side 5.0990 spans",
      parapet + "parapet-side 5.0990 parapet-gable 5.0990 spans",
      parapet + "parapet-side 5.0990 parapet-gable 5.0990 spans 6.0000 ",
      parapet + "parapet-side 5.0990 parapet-gable 5.0990 spans 6.0000  6.0000 ",
      parapet + "parapet-side 5.0990 parapet-gable 5.0990 spans 6.0000  6.0000  6.0000 ",
      "clean",
  };
  EXPECT_EQ(changes, expected);
}

TEST_F(ParentPrefill, LeavesAnEavesBeamWithoutALoad) {
  UnitCase(RoofTypes::Flat_roof_with_sharp_eaves);
  Case->Clear();
  SetParent(ParentTypes::Eavesbeam_Design);
  EXPECT_EQ(Case->DynamicPressure()->SizeEffectFactor_Ca(WindAreas::waRoof, WindSectors::Degrees_0), 0);
}

TEST_F(ParentPrefill, PrefillsNothingWhenAValueDoesNotFit) {
  Case->Parent_Type(ParentTypes::Purlin_Continuous_Double);
  Case->Clear();
  const std::string before = State();
  EXPECT_EQ(ErrorOf([&] { Case->Parent_Span(3e38f); }), 6);
  EXPECT_EQ(ErrorOf([&] { Case->Parent_Type(ParentTypes(70000)); }), 6);
  EXPECT_EQ(Case->Parent_Type(), ParentTypes::Purlin_Continuous_Double);
  EXPECT_EQ(State(), before);
}

}  // namespace
}  // namespace orve
