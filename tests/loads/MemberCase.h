// A case whose loads are set by hand, zone by zone, so that a test knows every text to the character.
#pragma once

#include "BuiltInEngines.h"
#include "support/FakeComponents.h"

namespace orve {

using test::ErrorOf;

class MemberCase : public testing::Test {
 public:
  static constexpr auto Roof = BuildingAreas::baRoof;
  static constexpr auto Walls = BuildingAreas::baWalls;
  static constexpr auto Parapet = BuildingAreas::baParapet;

  void SetUp() override {
    RegisterBuiltInEngines();
    Case = CreateCurrentCase();
  }

  clsBuildingDimensions& Building() { return *Case->BuildingDimensions(); }
  clsOverallAppliedLoads& Loads() { return *Case->OverallAppliedLoads(); }

  // A building of 30 m by 12 m, 5 m high, with q and Ca of 1 everywhere: a load is its coefficient.
  void UnitCase(RoofTypes roofType) {
    Building().RoofType(roofType);
    Building().Face1And3_Length(30);
    Building().Face2And4_Width(12);
    Building().Roof_Height(5);
    Building().Roof_Pitch(10);
    Building().Roof_RiseHeight(1);
    Building().Wall_SideHeight(5);
    Building().Wall_GableHeight(5);
    Building().Parapet_Height(1);
    Case->DynamicPressure()->ManualResults(true);
    for (int area = 0; area < 6; ++area)
      for (int sector = 0; sector < 12; ++sector) {
        Case->DynamicPressure()->DynamicPressure_q(WindAreas(area), WindSectors(sector), 1);
        Case->DynamicPressure()->SizeEffectFactor_Ca(WindAreas(area), WindSectors(sector), 1);
      }
    Case->ExternalCoefficients()->ManualResults(true);
  }

  void Cpe(BuildingAreas area, Faces face, int zone, float pressure, float suction) {
    const auto zoneIndex = static_cast<std::int16_t>(zone);
    Case->ExternalCoefficients()->Hybrid_ExternalCoefficientFactor_Cpe_Pressure(area, face, zoneIndex,
                                                                                pressure);
    Case->ExternalCoefficients()->Hybrid_ExternalCoefficientFactor_Cpe_Suction(area, face, zoneIndex,
                                                                               suction);
  }

  test::PrivateFolder Folder;
  std::shared_ptr<clsCurrentCase> Case;
};

}  // namespace orve
