// The stored building and the default diagonals.
#include <gtest/gtest.h>

#include "support/FakeComponents.h"

namespace orve {

using test::ErrorOf;

struct BuildingDimensions : test::FakeCase {
  std::shared_ptr<clsBuildingDimensions> building = root->BuildingDimensions();
};

TEST_F(BuildingDimensions, Defaults) {
  EXPECT_TRUE(building->OrientationUnknown());
  EXPECT_EQ(building->Wall_GableFaces(), GableFaces::Faces_2_and_4);
  EXPECT_EQ(building->RoofType(), RoofTypes::Flat_roof_with_sharp_eaves);
  EXPECT_FALSE(building->ConsiderRoof() || building->ConsiderWalls() || building->ConsiderCantilever());
  EXPECT_EQ(building->Roof_Diagonal(), 0);
}

TEST_F(BuildingDimensions, OnlyARealChangeMarksTheCase) {
  building->Roof_Height(0);
  building->OrientationUnknown(true);
  building->Roof_Height(std::numeric_limits<float>::quiet_NaN());
  EXPECT_FALSE(root->IsDirty()) << "NaN is neither less nor greater";
  building->Roof_Height(-3);
  EXPECT_TRUE(root->IsDirty());
  EXPECT_EQ(building->Roof_Height(), -3);
  building->Roof_Pitch(12);
  building->RoofType(RoofTypes::Duo_pitched_roof);
  building->RoofType(RoofTypes::Flat_roof_with_sharp_eaves);
  EXPECT_EQ(building->Roof_Pitch(), 12);
  building->RoofType(RoofTypes(99));
  EXPECT_EQ(building->RoofType(), RoofTypes(99));
  EXPECT_EQ(ErrorOf([&] { building->RoofType(RoofTypes(32768)); }), 6);
  EXPECT_EQ(building->RoofType(), RoofTypes(99));
}

TEST_F(BuildingDimensions, DefaultDiagonalsFollowTheParentDesign) {
  root->Parent_Span(6);
  root->Parent_Centres(1.5f);
  root->Parent_BaySize_m(5);
  root->Parent_HeightOfPost_m(1.2f);
  const struct {
    ParentTypes type;
    float roof, wall, parapet;
  } cases[] = {
      {ParentTypes::None, 0, 0, 0},
      {ParentTypes::Purlin_Single, 6.185f, 0, 0},
      {ParentTypes::Purlin_Double, 12.093f, 0, 0},
      {ParentTypes::Siderail_Single, 0, 6.185f, 0},
      {ParentTypes::Siderail_Double, 0, 12.093f, 0},
      {ParentTypes::Purlin_Continuous_Single, 6.185f, 0, 0},
      {ParentTypes::Purlin_Continuous_Double, 12.093f, 0, 0},
      {ParentTypes::Eavesbeam_Design, 0, 0, 0},
      {ParentTypes::Cantilever_Design_Single, 0, 0, 0},
      {ParentTypes::ptParapetDesign, 0, 0, 5.142f},
      {ParentTypes::Cantilever_Design_Double, 0, 0, 0},
      {ParentTypes(11), 0, 0, 0},
  };
  for (const auto& item : cases) {
    root->Parent_Type(item.type);
    EXPECT_EQ(building->Roof_Diagonal_Default(), item.roof) << int(item.type);
    EXPECT_EQ(building->Wall_SideDiagonal_Default(), item.wall) << int(item.type);
    EXPECT_EQ(building->Wall_GableDiagonal_Default(), item.wall) << int(item.type);
    EXPECT_EQ(building->Parapet_SideDiagonal_Default(), item.parapet) << int(item.type);
    EXPECT_EQ(building->Parapet_GableDiagonal_Default(), item.parapet) << int(item.type);
  }
}

TEST_F(BuildingDimensions, ANewCaseStartsWithTheDefaultsOfTheMoment) {
  root->Parent_Type(ParentTypes::Siderail_Single);
  root->Parent_Span(-6);
  root->Parent_Centres(1.5f);
  root->Clear();
  EXPECT_EQ(root->BuildingDimensions()->Wall_SideDiagonal(), 6.185f);
  root->Parent_Span(8);
  EXPECT_EQ(root->BuildingDimensions()->Wall_SideDiagonal(), 6.185f);
  EXPECT_EQ(root->BuildingDimensions()->Wall_SideDiagonal_Default(), 8.139f);
}

}  // namespace orve
