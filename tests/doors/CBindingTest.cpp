// The C binding under misuse: handles, pointers and callbacks that aren't what they should be.
#include <cfenv>
#include <gtest/gtest.h>
#include <string>

#include "orve3_bs6399_2_c.h"
#include "published/BuiltInCase.h"

namespace orve::test {
namespace {

class CBindingTest : public testing::Test {
 protected:
  CBindingTest() {
    // The shared library has services of its own.
    orve_host_LibraryFolder(
        [](orve_reply* reply, void* path) { orve_reply_text(reply, static_cast<char*>(path)); },
        m_path.data());
    orve_register_built_in_engines();
    EXPECT_EQ(orve_clsCurrentCase_create(&root), 0) << orve_error_text();
    EXPECT_EQ(orve_clsCurrentCase_get_BuildingDimensions(root, &building), 0);
  }
  ~CBindingTest() override {
    orve_release(building);
    orve_release(root);
    orve_host_LibraryFolder(nullptr, nullptr);
  }

  examples::PrivateFolder m_folder;
  std::string m_path = m_folder.Path().string();
  orve_clsCurrentCase root = nullptr;
  orve_clsBuildingDimensions building = nullptr;
};

TEST_F(CBindingTest, NullAndForeignHandlesAreErrors) {
  float value = 7;
  EXPECT_EQ(orve_clsBuildingDimensions_get_Roof_Pitch(nullptr, &value), 91);
  EXPECT_STREQ(orve_error_text(), "Object is not set: the handle is null");
  const auto foreign = reinterpret_cast<orve_clsBuildingDimensions>(root);
  EXPECT_EQ(orve_clsBuildingDimensions_get_Roof_Pitch(foreign, &value), 91);
  const auto wild = reinterpret_cast<orve_clsBuildingDimensions>(&value);
  EXPECT_EQ(orve_clsBuildingDimensions_let_Roof_Pitch(wild, 5), 91);
  EXPECT_EQ(orve_clsCurrentCase_set_BuildingDimensions(root, wild), 91);
  EXPECT_EQ(value, 7);
  EXPECT_EQ(orve_release(&value), 91);
  EXPECT_EQ(orve_release(nullptr), 0);
  EXPECT_STREQ(orve_error_text(), "");
}

TEST_F(CBindingTest, AReleasedHandleIsNotTakenForItsSuccessor) {
  orve_clsBuildingDimensions second = nullptr, third = nullptr;
  ASSERT_EQ(orve_clsCurrentCase_get_BuildingDimensions(root, &second), 0);
  EXPECT_EQ(orve_release(second), 0);
  ASSERT_EQ(orve_clsCurrentCase_get_BuildingDimensions(root, &third), 0);
  EXPECT_NE(second, third);
  EXPECT_EQ(orve_clsBuildingDimensions_let_Roof_Pitch(second, 5), 91);
  EXPECT_EQ(orve_release(second), 91);
  EXPECT_EQ(orve_clsBuildingDimensions_let_Roof_Pitch(third, 5), 0);
  EXPECT_EQ(orve_release(third), 0);
}

TEST_F(CBindingTest, NullPointersAreErrorsBeforeAnythingHappens) {
  EXPECT_EQ(orve_clsBuildingDimensions_get_Roof_Pitch(building, nullptr), 5);
  EXPECT_EQ(orve_clsCurrentCase_create(nullptr), 5);
  EXPECT_EQ(orve_clsCurrentCase_let_Description(root, nullptr), 5);
  EXPECT_STREQ(orve_error_text(), "Invalid argument: value is null");
  bool opened = true;
  EXPECT_EQ(orve_clsCurrentCase_OpenExisting(root, nullptr, &opened), 5);
  EXPECT_EQ(orve_clsCurrentCase_connect_DirtyUpdated(root, nullptr, nullptr, nullptr), 5);
  orve_clsCantileverWindLoads pressures = nullptr;
  ASSERT_EQ(orve_clsCantileverWindLoads_create(&pressures), 0);
  EXPECT_EQ(orve_clsCantileverWindLoads_let_ExternalPressures(pressures, nullptr), 5);
  EXPECT_EQ(orve_release(pressures), 0);
  orve_free_text(nullptr);
  orve_ExternalPressure_free(nullptr);
  orve_CantileverZones_free_rows(nullptr, 3);
}

TEST_F(CBindingTest, ACallbacksErrorComesOutOfTheCallWithItsWholeText) {
  static const std::string text(5000, 'x');
  orve_connection connection = nullptr;
  const auto refuse = [](bool, void*) -> orve_error {
    orve_set_error_text(text.c_str());
    return 1234;
  };
  ASSERT_EQ(orve_clsCurrentCase_connect_DirtyUpdated(root, refuse, nullptr, &connection), 0);
  EXPECT_EQ(orve_clsBuildingDimensions_let_Roof_Pitch(building, 5), 1234);
  EXPECT_EQ(orve_error_text(), text);
  EXPECT_EQ(orve_release(connection), 0);
  EXPECT_EQ(orve_clsBuildingDimensions_let_Roof_Pitch(building, 6), 0);
}

TEST_F(CBindingTest, AnExceptionOutOfACallbackStaysInside) {
  orve_connection connection = nullptr;
  const auto failing = [](bool, void*) -> orve_error { throw std::runtime_error("the host's own"); };
  ASSERT_EQ(orve_clsCurrentCase_connect_DirtyUpdated(root, failing, nullptr, &connection), 0);
  EXPECT_EQ(orve_clsBuildingDimensions_let_Roof_Pitch(building, 5), 440);
  EXPECT_STREQ(orve_error_text(), "the host's own");
  EXPECT_EQ(orve_release(connection), 0);
}

TEST_F(CBindingTest, AHandlerMayReleaseWhatRuns) {
  static orve_connection connection;
  static int calls;
  calls = 0;
  const auto once = [](bool, void* held) -> orve_error {
    ++calls;
    orve_release(connection);
    return orve_release(held);
  };
  orve_clsBuildingDimensions second = nullptr;
  ASSERT_EQ(orve_clsCurrentCase_get_BuildingDimensions(root, &second), 0);
  ASSERT_EQ(orve_clsCurrentCase_connect_DirtyUpdated(root, once, second, &connection), 0);
  EXPECT_EQ(orve_clsBuildingDimensions_let_Roof_Pitch(second, 5), 0) << orve_error_text();
  EXPECT_EQ(orve_clsBuildingDimensions_let_Roof_Pitch(second, 6), 91);
  EXPECT_EQ(orve_clsBuildingDimensions_let_Roof_Pitch(building, 6), 0);
  EXPECT_EQ(calls, 1);
}

TEST_F(CBindingTest, AnObjectPropertyTakesAndGivesNothing) {
  orve_clsBuildingDimensions held = building;
  EXPECT_EQ(orve_clsCurrentCase_set_BuildingDimensions(root, nullptr), 0);
  EXPECT_EQ(orve_clsCurrentCase_get_BuildingDimensions(root, &held), 0);
  EXPECT_EQ(held, nullptr);
  EXPECT_EQ(orve_clsCurrentCase_set_BuildingDimensions(root, building), 0);
}

TEST_F(CBindingTest, HeaderAndLibraryAreOfOneVersion) {
  EXPECT_EQ(orve_version(), ORVE_C_VERSION);
  EXPECT_EQ(orve_file_dialog_size(), sizeof(orve_file_dialog));
}

TEST_F(CBindingTest, AHostMayTrapAndRoundAsItLikes) {
  orve_clsDynamicPressure site = nullptr;
  ASSERT_EQ(orve_clsCurrentCase_get_DynamicPressure(root, &site), 0);
  static int handlersRounding;
  const auto note = [](bool, void*) -> orve_error {
    handlersRounding = std::fegetround();
    return 0;
  };
  orve_connection connection = nullptr;
  ASSERT_EQ(orve_clsCurrentCase_connect_DirtyUpdated(root, note, nullptr, &connection), 0);
  float nearest = 0, upward = 0;
  std::fesetround(FE_UPWARD);
#ifdef __GLIBC__
  feenableexcept(FE_INVALID | FE_DIVBYZERO | FE_OVERFLOW);
#endif
  const orve_error let = orve_clsBuildingDimensions_let_Roof_Height(building, 7);
  const orve_error got = orve_clsDynamicPressure_get_TerrainAndBuildingFactor_Sb(site, 0, 0, &upward);
  const int after = std::fegetround();
#ifdef __GLIBC__
  EXPECT_EQ(fegetexcept(), FE_INVALID | FE_DIVBYZERO | FE_OVERFLOW);
#endif
  std::fesetenv(FE_DFL_ENV);
  EXPECT_EQ(let, 0);
  EXPECT_EQ(got, 0) << orve_error_text();
  EXPECT_EQ(after, FE_UPWARD);
  EXPECT_EQ(handlersRounding, FE_UPWARD);
  EXPECT_EQ(orve_clsDynamicPressure_get_TerrainAndBuildingFactor_Sb(site, 0, 0, &nearest), 0);
  EXPECT_EQ(upward, nearest);
  orve_release(connection);
  orve_release(site);
}

TEST_F(CBindingTest, NullTextsOfARecordAreEmpty) {
  orve_clsCantileverWindLoads pressures = nullptr;
  ASSERT_EQ(orve_clsCantileverWindLoads_create(&pressures), 0);
  orve_ExternalPressure given{}, held{};
  given.Wall2_A_Face_1.Zone_Dimensions = "3.6 m";
  EXPECT_EQ(orve_clsCantileverWindLoads_let_ExternalPressures(pressures, &given), 0);
  EXPECT_EQ(orve_clsCantileverWindLoads_get_ExternalPressures(pressures, &held), 0);
  EXPECT_STREQ(held.Wall2_A_Face_1.Zone_Dimensions, "3.6 m");
  EXPECT_STREQ(held.Roof1_A_Face, "");
  orve_ExternalPressure_free(&held);
  EXPECT_EQ(held.Roof1_A_Face, nullptr);
  EXPECT_EQ(orve_release(pressures), 0);
}

}  // namespace
}  // namespace orve::test
