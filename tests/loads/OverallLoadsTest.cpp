// Overall loads by zone: external and internal pressures at their worst.
#include <cmath>
#include <gtest/gtest.h>

#include "support/FakeComponents.h"

namespace orve {

using test::ErrorOf;

constexpr auto Roof = BuildingAreas::baRoof;
constexpr auto Parapet = BuildingAreas::baParapet;
constexpr auto Face1 = Faces::Face_1;

struct Overall : test::FakeCase {
  std::shared_ptr<clsOverallAppliedLoads> loads = root->OverallAppliedLoads();
  std::shared_ptr<clsInternalCoefficients> internal = root->InternalCoefficients();

  Overall() {
    const auto building = root->BuildingDimensions();
    building->Face1And3_Length(30);
    building->Face2And4_Width(15);
    building->Roof_Height(7);
    building->Roof_Diagonal(10);
    building->Wall_SideHeight(6);
    building->Wall_SideDiagonal(10);
    building->Parapet_Height(1);
    building->Parapet_SideDiagonal(10);
    internal->InternalVolume(1000);
    wind->bsGust.fill(1000);
    wind->hybridCa.fill(1);
  }
  void Set(float cpePressure, float cpeSuction, float cpiPressure, float cpiSuction) {
    coefficients->zones = {{2, 0, 0, "A", cpePressure, cpeSuction}};
    internal->InternalCoefficientFactor_Cpi_Pressure(Face1, cpiPressure);
    internal->InternalCoefficientFactor_Cpi_Suction(Face1, cpiSuction);
  }
};

TEST_F(Overall, WorstOfTheFourCombinations) {
  const struct {
    float cpePressure, cpeSuction, cpiPressure, cpiSuction;
    const char* text;
  } cases[] = {
      {0.95f, -0.3f, 0.2f, 0.3f, "+1.250, -0.500 kN/m\u00B2"},
      {0.95f, 0, 0, 0.3f, "+1.250 kN/m\u00B2"},
      {0, -0.3f, 0.2f, 0, "-0.500 kN/m\u00B2"},
      {0.5f, -0.3f, 0, 0, ""},                  // No internal term is there, so no pair is.
      {0, 0, 0.2f, 0.3f, ""},                   // No external term.
      {0.5f, 0, 0.2f, 0, "+0.300 kN/m\u00B2"},  // All differences on one side.
      {0.2f, 0, 0.2f, 0, ""},                   // A net load of exactly 0 is absent.
  };
  for (const auto& item : cases) {
    Set(item.cpePressure, item.cpeSuction, item.cpiPressure, item.cpiSuction);
    EXPECT_EQ(loads->Hybrid_OverallAppliedLoads(Roof, Face1, 0), item.text);
  }
}

TEST_F(Overall, NoPositiveInternalPressureMakesTheInternalPressureARealZero) {
  Set(0.5f, -0.4f, 0, 0.3f);
  EXPECT_EQ(loads->Hybrid_OverallAppliedLoads(Roof, Face1, 0), "+0.800, -0.100 kN/m\u00B2");
  internal->EnclosedBuilding_NoPositiveInternalPressure(true);
  EXPECT_EQ(loads->Hybrid_OverallAppliedLoads(Roof, Face1, 0), "+0.800, -0.400 kN/m\u00B2");
}

TEST_F(Overall, TheInternalSideIsThatOfTheWindFace) {
  coefficients->zones = {{0, 180, 0, "x", -0.5f, -0.5f}};
  internal->InternalCoefficientFactor_Cpi_Pressure(Faces::Face_3, 0.2f);
  EXPECT_EQ(loads->Hybrid_OverallAppliedLoads(BuildingAreas::baWalls, Face1, 0), "-0.700 kN/m\u00B2");
  EXPECT_EQ(loads->Hybrid_InternalAppliedLoads(BuildingAreas::baWalls, Face1, 0), "+0.200 kN/m\u00B2");
}

TEST_F(Overall, ParapetsHaveNoInternalSideAndTestNoCoefficient) {
  internal->InternalCoefficientFactor_Cpi_Pressure(Face1, 0.2f);
  coefficients->zones = {{8, 0, 0, "A", 2.1f, 2.1f}, {8, 180, 0, "A", 1.2f, 1.2f}};
  EXPECT_EQ(loads->Hybrid_OverallAppliedLoads(Parapet, Face1, 0), "+2.100 kN/m\u00B2");
  EXPECT_EQ(loads->Hybrid_OverallAppliedLoads(Parapet, Face1, 1), "-1.200 kN/m\u00B2");
  EXPECT_EQ(loads->Hybrid_OverallAppliedLoad_Suction(Parapet, Face1, 0), 0);
  EXPECT_EQ(loads->Hybrid_InternalAppliedLoads(Parapet, Face1, 0), "");
  EXPECT_EQ(loads->Hybrid_OverallAppliedLoads(BuildingAreas(3), Face1, 0), "");
}

TEST_F(Overall, ItsOwnSelectionStandsForArgumentsLeftOut) {
  Set(0.95f, -0.3f, 0.2f, 0.3f);
  root->ExternalCoefficients()->Face(Faces::Face_2);
  root->ExternalCoefficients()->ZoneIndex(7);
  EXPECT_EQ(loads->Hybrid_OverallAppliedLoads(), "+1.250, -0.500 kN/m\u00B2");
  loads->ZoneIndex(1);
  EXPECT_EQ(ErrorOf([&] { loads->Hybrid_OverallAppliedLoads(); }), 9);
  EXPECT_EQ(ErrorOf([&] { loads->Face(Faces(1 << 16)); }), 6);
}

TEST_F(Overall, ANaNCoefficientFromTheComponentDoesNotSpread) {
  Set(std::numeric_limits<float>::quiet_NaN(), -0.3f, 0.2f, 0.3f);
  EXPECT_EQ(loads->Hybrid_OverallAppliedLoad_Suction(Roof, Face1, 0), -0.5f);
}

}  // namespace orve
