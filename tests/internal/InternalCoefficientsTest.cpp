// Internal coefficients, the rules that write them, and internal loads.
#include <cmath>
#include <gtest/gtest.h>

#include "support/FakeComponents.h"

namespace orve {

using test::ErrorOf;

struct Internal : test::FakeCase {
  std::shared_ptr<clsInternalCoefficients> internal = root->InternalCoefficients();
  std::shared_ptr<clsBuildingDimensions> building = root->BuildingDimensions();

  Internal() {
    building->Face1And3_Length(30);
    building->Face2And4_Width(15);
    building->Wall_SideHeight(6);
    building->Wall_GableHeight(7);
    building->Wall_SideDiagonal(10);
    building->Wall_GableDiagonal(12);
    coefficients->zones = {{0, 0, 0, "x", 0.8f, 0.8f}, {0, 90, 0, "A", -1.3f, -1.3f}};
    root->IsDirty(false);
  }
  void SetAll(float pressure, float suction) {
    for (int face = 0; face < 4; ++face) {
      internal->InternalCoefficientFactor_Cpi_Pressure(Faces(face), pressure);
      internal->InternalCoefficientFactor_Cpi_Suction(Faces(face), suction);
    }
  }
};

TEST_F(Internal, ANewObjectHasNoRuleAndNoCoefficients) {
  EXPECT_FALSE(internal->EnclosedBuilding_GeneralCase() ||
               internal->EnclosedBuilding_FourWallsEquallyPermeable());
  EXPECT_EQ(internal->InternalCoefficientFactor_Cpi_Suction(Faces::Face_4), 0);
  EXPECT_EQ(internal->Calculated_DiagonalDimension_a(), 0);
  EXPECT_EQ(internal->Hybrid_InternalAppliedLoads(Faces::Face_1), "");
  EXPECT_EQ(ErrorOf([&] { internal->InternalCoefficientFactor_Cpi_Pressure(Faces(4)); }), 9);
  EXPECT_EQ(ErrorOf([&] { internal->DominantOpening_Ratio2(Faces(-2), true); }), 9);
}

TEST_F(Internal, RulesWriteTheirNumbersAndStandWhileTheyStand) {
  using Get = bool (clsInternalCoefficients::*)() const;
  using Let = void (clsInternalCoefficients::*)(bool);
  using C = clsInternalCoefficients;
  const struct {
    Get get;
    Let let;
    float pressure, suction;
  } rules[] = {
      {&C::EnclosedBuilding_GeneralCase, &C::EnclosedBuilding_GeneralCase, 0.2f, 0.3f},
      {&C::EnclosedBuilding_NoPositiveInternalPressure, &C::EnclosedBuilding_NoPositiveInternalPressure, 0,
       0.3f},
      {&C::EnclosedBuilding_WindNormalToPermeableFace, &C::EnclosedBuilding_WindNormalToPermeableFace, 0.2f,
       0},
      {&C::EnclosedBuilding_WindNormalToImpermeableFace, &C::EnclosedBuilding_WindNormalToImpermeableFace, 0,
       0.3f},
      {&C::EnclosedBuilding_FourWallsEquallyPermeable, &C::EnclosedBuilding_FourWallsEquallyPermeable, 0,
       0.3f},
  };
  for (const auto& rule : rules) {
    (internal.get()->*rule.let)(true);
    for (int face = 0; face < 4; ++face) {
      EXPECT_EQ(internal->InternalCoefficientFactor_Cpi_Pressure(Faces(face)), rule.pressure);
      EXPECT_EQ(internal->InternalCoefficientFactor_Cpi_Suction(Faces(face)), rule.suction);
    }
    EXPECT_TRUE((internal.get()->*rule.get)());
    internal->InternalCoefficientFactor_Cpi_Pressure(Faces::Face_2, 0.25f);
    EXPECT_FALSE((internal.get()->*rule.get)());
    internal->InternalCoefficientFactor_Cpi_Pressure(Faces::Face_2, rule.pressure + 0.0004f);
    EXPECT_TRUE((internal.get()->*rule.get)()) << "equal at three decimals";
  }
  EXPECT_FALSE(internal->EnclosedBuilding_NoPositiveInternalPressure())
      << "the last of the three excludes the others";
  EXPECT_FALSE(internal->EnclosedBuilding_WindNormalToImpermeableFace());
  SetAll(0.2f, 0.3f);
  EXPECT_TRUE(internal->EnclosedBuilding_GeneralCase()) << "its flag stayed, and its numbers are back";
}

TEST_F(Internal, FalseTurnsOffOnlyTheFreeRules) {
  internal->EnclosedBuilding_GeneralCase(true);
  internal->EnclosedBuilding_GeneralCase(false);
  EXPECT_FALSE(internal->EnclosedBuilding_GeneralCase());
  EXPECT_EQ(internal->InternalCoefficientFactor_Cpi_Suction(Faces::Face_1), 0.3f);
  internal->EnclosedBuilding_NoPositiveInternalPressure(true);
  root->IsDirty(false);
  internal->EnclosedBuilding_NoPositiveInternalPressure(false);
  EXPECT_TRUE(internal->EnclosedBuilding_NoPositiveInternalPressure())
      << "the three exclusive rules store True";
  EXPECT_TRUE(root->IsDirty());
  root->IsDirty(false);
  internal->EnclosedBuilding_WindNormalToImpermeableFace(false);
  EXPECT_FALSE(root->IsDirty()) << "it read False already";
}

TEST_F(Internal, DiagonalByVolumeAndOpening) {
  internal->InternalVolume(1000);
  EXPECT_EQ(internal->Calculated_DiagonalDimension_a(), 100);
  internal->StructureType(StructureTypes::Dominant_opening);
  internal->DiagonalDimension_a(1);
  EXPECT_EQ(internal->Calculated_DiagonalDimension_a(), 2);
  internal->DiagonalDimension_a(5);
  EXPECT_EQ(internal->Calculated_DiagonalDimension_a(), 5);
  internal->InternalVolume(0);
  EXPECT_EQ(internal->Calculated_DiagonalDimension_a(), 5) << "a volume of 0 isn't below 0";
  internal->StructureType(StructureTypes::Open_sided_building);
  EXPECT_EQ(internal->Calculated_DiagonalDimension_a(), 0);
  internal->StructureType(StructureTypes::Enclosed_building);
  internal->InternalVolume(-1);
  EXPECT_EQ(internal->Calculated_DiagonalDimension_a(), 0);
  EXPECT_EQ(ErrorOf([&] { internal->StructureType(StructureTypes(-40000)); }), 6);
  EXPECT_EQ(ErrorOf([&] { internal->DominantOpening_SelectedZoneIndex(Faces(9), WallZones(70000)); }), 9)
      << "the face comes first";
}

TEST_F(Internal, DominantOpeningTakesAPartOfItsZone) {
  EXPECT_EQ(internal->DominantOpening_ZoneIndexTo(Faces::Face_1), 1);
  EXPECT_EQ(internal->DominantOpening_ZoneDescription(Faces::Face_1, 1), "A (face 2)");
  internal->DominantOpening_Ratio2(Faces::Face_1, true);
  EXPECT_EQ(internal->InternalCoefficientFactor_Cpi_Pressure(Faces::Face_1), 0.6f);
  EXPECT_TRUE(internal->DominantOpening_Ratio2(Faces::Face_1));
  EXPECT_FALSE(internal->DominantOpening_Ratio3(Faces::Face_1));
  EXPECT_EQ(internal->InternalCoefficientFactor_Cpi_Pressure(Faces::Face_2), 0)
      << "one face leaves the others";
  internal->DominantOpening_Ratio3(Faces::Face_1, true);
  EXPECT_EQ(internal->InternalCoefficientFactor_Cpi_Pressure(Faces::Face_1), 0.72f);
  EXPECT_FALSE(internal->DominantOpening_Ratio2(Faces::Face_1));
  internal->DominantOpening_SelectedZoneIndex(Faces::Face_1, WallZones::A_face_2);
  EXPECT_FALSE(internal->DominantOpening_Ratio3(Faces::Face_1)) << "nothing follows by itself";
  EXPECT_EQ(internal->InternalCoefficientFactor_Cpi_Pressure(Faces::Face_1), 0.72f);
  internal->DominantOpening_Ratio3(Faces::Face_1, true);
  EXPECT_EQ(internal->InternalCoefficientFactor_Cpi_Suction(Faces::Face_1),
            static_cast<float>(0.9 * double(1.3f)));
  internal->DominantOpening_SelectedZoneIndex(Faces::Face_1, WallZones::A_face_1);
  EXPECT_EQ(internal->DominantOpening_SelectedZoneCpe_Suction(Faces::Face_1), 0) << "not a zone of this face";
  internal->DominantOpening_Ratio2(Faces::Face_1, true);
  EXPECT_EQ(internal->InternalCoefficientFactor_Cpi_Suction(Faces::Face_1), 0);
  coefficients->zones.clear();
  EXPECT_EQ(internal->DominantOpening_SelectedZoneCpe_Pressure(Faces::Face_2), 0);
}

TEST_F(Internal, LoadsTakeQAndCaFromTheirOwnWindAreas) {
  building->OrientationUnknown(true);
  internal->InternalVolume(1000);
  wind->bsGust.fill(1000), wind->bsGust[3] = 1100;
  wind->hybridCa.fill(0.8f);
  internal->InternalCoefficientFactor_Cpi_Pressure(Faces::Face_1, 0.2f);
  internal->InternalCoefficientFactor_Cpi_Suction(Faces::Face_1, 0.3f);
  EXPECT_EQ(internal->Hybrid_InternalAppliedLoads(Faces::Face_1), "+0.176, -0.264 kN/m\u00B2");
  internal->InternalCoefficientFactor_Cpi_Pressure(Faces::Face_1, 0);
  EXPECT_EQ(internal->Hybrid_InternalAppliedLoads(Faces::Face_1), "-0.264 kN/m\u00B2");
  internal->WindPressureType(WindPressureTypes::wptGable);
  EXPECT_EQ(internal->Hybrid_WorstCaseSearch_q(Faces::Face_1).WindArea, WindAreas::waGable);
  EXPECT_EQ(internal->Hybrid_WorstCaseSearch_Ca(Faces::Face_1).WindArea, WindAreas::waInternal);
  internal->WindPressureType(WindPressureTypes(7));
  EXPECT_EQ(internal->Hybrid_WorstCaseSearch_q(Faces::Face_1).WindArea, WindAreas::waRoof);
  internal->WindPressureType(WindPressureTypes::wptSidewall);
  Record();
  internal->Hybrid_InternalAppliedLoad_Suction(Faces::Face_1);
  const auto lets = std::count(log->calls.begin(), log->calls.end(), "A=100");
  EXPECT_EQ(lets, 12) << "q and Ca of the internal area have diagonals of their own, sector by sector";
}

}  // namespace orve
