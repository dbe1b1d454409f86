// Construction, the document state and its events, and component start-up.
#include <fstream>
#include <gtest/gtest.h>
#include <sstream>
#include <string>
#include <vector>

#include "support/FakeComponents.h"

namespace orve {

using test::ErrorOf;
using test::FakeCase;
using Strings = std::vector<std::string>;

struct Lifecycle : FakeCase {
  Strings events;
  std::vector<Connection> connections;

  void Listen() {
    connections.push_back(
        root->DirtyUpdated.Connect([this](bool value) { events.push_back(value ? "dirty" : "clean"); }));
    connections.push_back(root->LocationUpdated.Connect(
        [this](const std::string& name) { events.push_back("location:" + name); }));
  }
  std::string Settings(const std::string& name = "ORVE_BS6399_2.INI") const {
    std::ifstream file(folder.Path(name));
    std::ostringstream text;
    text << file.rdbuf();
    return text.str();
  }
};

TEST_F(Lifecycle, FreshObject) {
  EXPECT_EQ(root->Location(), "");
  EXPECT_EQ(root->Description(), "");
  EXPECT_FALSE(root->IsDirty());
  EXPECT_EQ(root->Created(), 0);
  EXPECT_EQ(root->Modified(), 0);
  EXPECT_FALSE(root->LocationCorrect());
  EXPECT_TRUE(root->BreVe_Dirty()) << "the first read of a result calculates";
  EXPECT_TRUE(root->BreCp_Dirty());
  EXPECT_FALSE(root->BreOSDatabase());
  EXPECT_NE(Settings().find("[BS6399-2 Library]"), std::string::npos);
  EXPECT_NE(Settings().find("RecentFileLimit=99"), std::string::npos);
  EXPECT_EQ(basBS6399_2::Common->AppVersion().substr(0, 5), "v3.0.");
}

TEST_F(Lifecycle, EveryAssignmentRaisesItsEventAndClearDiscards) {
  Listen();
  root->Description("Shed");
  root->Description("Shed");
  root->BuildingDimensions()->Roof_Height(5);
  EXPECT_EQ(events, (Strings{"dirty", "dirty"}));
  events.clear();
  root->IsDirty(false);
  root->Location("C:/cases/Shed.WLC");
  EXPECT_EQ(events, (Strings{"clean", "location:C:\\cases\\Shed.WLC"}));
  events.clear();
  const auto stale = root->BuildingDimensions();
  ExternalPressure pressures;
  pressures.Wall2_Windward = {"5", "0.6"};
  root->CantileverWindloads()->ExternalPressures(pressures);
  root->Parent_Span(6);
  root->Clear();
  EXPECT_NE(root->BuildingDimensions(), stale);
  EXPECT_EQ(root->CantileverWindloads()->ExternalPressures().Wall2_Windward.Zone_ExternalPressures, "0");
  EXPECT_EQ(root->Description(), "");
  EXPECT_FALSE(root->IsDirty());
  EXPECT_EQ(root->Parent_Span(), 6);
  // Description; two defaults of the building, three of the site; Blank, Dirty, FileName; then the prefill's
  // last step.
  EXPECT_EQ(events,
            (Strings{"dirty", "dirty", "dirty", "dirty", "dirty", "clean", "clean", "location:", "clean"}));
}

TEST_F(Lifecycle, PathToWindLoadCasesGoesIntoTheSettingsOnceChanged) {
  root->PathToWindLoadCases("C:\\cases");
  EXPECT_NE(Settings().find("PathToSaveFiles=C:\\cases"), std::string::npos);
  std::filesystem::remove(folder.Path("ORVE_BS6399_2.INI"));
  root->PathToWindLoadCases("C:\\cases");
  EXPECT_EQ(Settings(), "");
  EXPECT_EQ(root->PathToWindLoadCases(), "C:\\cases");
}

TEST_F(Lifecycle, EarlierSettingsFileIsTakenOverOnce) {
  std::filesystem::remove(folder.Path("ORVE_BS6399_2.INI"));
  std::ofstream(folder.Path("QX1_BS6399_2.INI")) << "[QX1 BS6399-2 Library]\r\nRecentFile1=C:\\A.WLC\r\n";
  root = CreateCurrentCase();
  EXPECT_EQ(Settings().substr(0, 18), "[BS6399-2 Library]");
  EXPECT_EQ(root->WindCaseList()->Location(1), "C:\\A.WLC");
  EXPECT_NE(Settings("QX1_BS6399_2.INI").find("QX1 BS6399-2"), std::string::npos);
}

TEST_F(Lifecycle, HandlerMayReplaceWhatIsAtWork) {
  bool cleared = false;
  const Connection connection = root->DirtyUpdated.Connect([&](bool value) {
    if (value && !cleared) cleared = true, root->Clear();
  });
  root->DynamicPressure()->GridReference("SU1234");
  EXPECT_TRUE(cleared);
  EXPECT_EQ(root->DynamicPressure()->GridReference(), "");
  cleared = false;
  root->InternalCoefficients()->EnclosedBuilding_GeneralCase(true);
  EXPECT_FALSE(root->InternalCoefficients()->EnclosedBuilding_GeneralCase());
  EXPECT_THROW(
      {
        const Connection thrower = root->DirtyUpdated.Connect([](bool) { throw 42; });
        root->Description("x");
      },
      int);
}

TEST_F(Lifecycle, ParentValuesThatDoNotFitKeepTheOldOnes) {
  root->Parent_Span(6);
  for (const float value :
       {3e38f, std::numeric_limits<float>::infinity(), std::numeric_limits<float>::quiet_NaN()})
    EXPECT_EQ(ErrorOf([&] { root->Parent_Span(value); }), 6);
  EXPECT_EQ(ErrorOf([&] { root->Parent_Type(ParentTypes(70000)); }), 6);
  EXPECT_EQ(root->Parent_Span(), 6);
  EXPECT_EQ(root->Parent_Type(), ParentTypes::None);
}

TEST_F(Lifecycle, ComponentsAreStartedByClassWithFallback) {
  const std::string dataFolder = basBS6399_2::WinAPI->API_GetSystemDirectory() + "\\wzfdata";
  EXPECT_EQ(wind->dataPath, dataFolder);
  EXPECT_EQ(coefficients->dataPath, "");
  EXPECT_TRUE(root->OldBreVeVersion());
  EXPECT_FALSE(root->OldBreCpVersion());
  root->breDataPath("D:\\data");
  EXPECT_EQ(root->breDataPath(), "D:\\data");

  wind->dataPath = "", wind->typeName = "BVe2_2X", coefficients->typeName = "BreCpX";
  ComponentClasses().Clear();
  ComponentClasses().Register("BVe2_2XControl1.BVe2_2X", [this]() -> std::shared_ptr<BVe2X> { return wind; });
  ComponentClasses().Register("BreCpX1.BreCpX", [this]() -> std::shared_ptr<BreCpX> { return coefficients; });
  root = CreateCurrentCase();
  EXPECT_EQ(wind->dataPath, "");
  EXPECT_EQ(coefficients->dataPath, dataFolder);
  EXPECT_FALSE(root->OldBreVeVersion());
  EXPECT_TRUE(root->OldBreCpVersion());
  root->breDataPath("E:\\data");
  EXPECT_EQ(wind->dataPath, "") << "a newer class is left alone";
}

TEST_F(Lifecycle, InitialisationPresetsTheComponentsInOrder) {
  Record();
  root->Initialize_BreApps();
  EXPECT_TRUE(root->BreOSDatabase());
  EXPECT_EQ(log->calls, (Strings{"AutoWizard=True", "AutoSite=True", "Tick=0", "SiteAltWarn=False",
                                 "AutoBreadth=True", "Reporting=0"}));
}

TEST_F(Lifecycle, WithoutComponentsOnlyTheirUseFails) {
  ComponentClasses().Clear();
  root = CreateCurrentCase();
  root->BuildingDimensions()->Roof_Height(5);
  EXPECT_EQ(ErrorOf([&] { root->Initialize_BreApps(); }), 91);
  EXPECT_EQ(ErrorOf([&] { root->OldBreVeVersion(); }), 91);
  EXPECT_EQ(ErrorOf([&] { root->DynamicPressure()->DynamicPressure_q(); }), 91);
  EXPECT_EQ(ErrorOf([&] { root->ExternalCoefficients()->ZoneIndexTo(); }), 91);
  EXPECT_EQ(root->DynamicPressure()->GustPeakFactor_gt(), 3.44f);
  ComponentClasses().Register("BVe2XControl4.BVe2X",
                              []() -> std::shared_ptr<BVe2X> { throw std::runtime_error("broken"); });
  root = CreateCurrentCase();
  EXPECT_EQ(basBS6399_2::BreVe, nullptr) << "another error than 429 tries no fallback and is swallowed";
}

TEST_F(Lifecycle, FailedConstructionLeavesTheFormerReferences) {
  const auto former = root;
  std::filesystem::remove(folder.Path("ORVE_BS6399_2.INI"));
  std::ofstream(folder.Path("QX1_BS6399_2.INI")) << std::string(17 * 1024 * 1024, 'x');
  EXPECT_EQ(ErrorOf([] { CreateCurrentCase(); }), 5);
  EXPECT_EQ(basBS6399_2::CurrentCase, former);
  EXPECT_EQ(basBS6399_2::BreVe, wind);
}

TEST_F(Lifecycle, AnObjectSetToNothingRaisesAndDoesNotCrash) {
  root->BuildingDimensions(nullptr);
  EXPECT_EQ(ErrorOf([&] { root->DynamicPressure()->DynamicPressure_q(); }), 91);
  root->DynamicPressure(nullptr);
  EXPECT_EQ(ErrorOf([&] { root->OverallAppliedLoads()->ZoneIndexTo(); }), 91);
  root->Clear();
  EXPECT_NE(root->BuildingDimensions(), nullptr);
}

TEST(Enumerations, PublishedTexts) {
  EXPECT_EQ(PublishedText(Faces::Face_4), "Face 4");
  EXPECT_EQ(PublishedText(WindSectors::Degrees_30), " 30 degrees");
  EXPECT_EQ(PublishedText(ParentTypes(9)), "ptParapetDesign");
  EXPECT_EQ(PublishedText(ParentTypes(10)), "Cantilever Design - Double");
  EXPECT_EQ(PublishedText(SelectedLoadTypes::i), "i");
  EXPECT_EQ(PublishedText(WallZones::A_face_1), PublishedText(SelectedLoadTypes::A_face_1));
  EXPECT_EQ(PublishedText(FrameTypes(3)), "");
}

}  // namespace orve
