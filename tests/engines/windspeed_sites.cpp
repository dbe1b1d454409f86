// Sites by reference, the site dialogs, and where results come from.
#include <filesystem>
#include <fstream>
#include <gtest/gtest.h>
#include <string>
#include <vector>

#include "BuiltInEngines.h"
#include "common/Error.h"
#include "common/Host.h"
#include "engines/windspeed_support.h"
#include "support/FakeComponents.h"
#include "windspeed/SiteFile.h"

namespace orve::test {
namespace {

std::string GoodSite() {
  std::string text = "[Site]\r\nName=Test\r\nSiteAltitude = 120.5\r\nBasicWindSpeed=23\r\n";
  for (int sector = 0; sector < 12; ++sector)
    text += "[sector " + std::to_string(sector) +
            "]\r\nCrestHeight_Z=0\r\nSiteLocation_X=-5e1\r\nUpwindLength_LU=0\r\nDownwindLength_LD=0\r\n"
            "BaseAltitude=100\r\nObstructionHeight_Ho=6\r\nObstructionSpacing_Xo=12\r\nFetchesToSea=" +
            std::to_string(10 + sector) + "\r\nFetchesInTown=2.5\r\n";
  return text;
}

std::string Replaced(std::string text, const std::string& from, const std::string& to) {
  return text.replace(text.find(from), from.size(), to);
}

std::string FaultOf(const BVe2X& engine) {
  try {
    engine.BSGust(kWest);
  } catch (const Error& error) {
    return error.what();
  }
  return "";
}

class WindSpeedSites : public testing::Test {
 protected:
  WindSpeedSites() {
    std::filesystem::create_directories(m_folder / "data");
    m_engine->datapath((m_folder / "data").string());
    Write("data/AB 12.site", GoodSite());
    Write("outside.site", GoodSite());
  }
  ~WindSpeedSites() override {
    std::filesystem::remove_all(m_folder);
    Host() = HostServices{};
  }

  void Write(const std::string& name, const std::string& text) { std::ofstream(m_folder / name) << text; }
  void Load(const std::string& reference) {
    m_engine->SiteID(reference);
    m_engine->GBSite();
    m_engine->Calculate();
  }

  std::filesystem::path m_folder =
      std::filesystem::path(testing::TempDir()) /
      ("orve_sites_" + std::string(testing::UnitTest::GetInstance()->current_test_info()->name()));
  std::shared_ptr<BVe2X> m_engine = Engine();
};

TEST_F(WindSpeedSites, LoadsTheValuesOfTheReference) {
  Load("AB 12");
  EXPECT_EQ(FaultOf(*m_engine), "");
  EXPECT_EQ(m_engine->SiteAltitude(), 120.5F);
  EXPECT_EQ(m_engine->BaseV(), 23.0F);
  EXPECT_EQ(m_engine->CrestX(kWest), -50.0F);
  EXPECT_EQ(m_engine->ToSea(WindSectors::Degrees_330), 21.0F);
  EXPECT_EQ(m_engine->InTown(WindSectors::Degrees_0), 2.5F);
  EXPECT_EQ(m_engine->Wizard(), 0);
  Write("data/CD.site", Replaced(GoodSite(), "Name=Test", "Wizard=1"));
  Load("CD");
  EXPECT_EQ(m_engine->Wizard(), 1);
}

TEST_F(WindSpeedSites, UnknownReferenceKeepsTheValuesAndRefusesUntilASectorIsEntered) {
  Load("NOWHERE");
  EXPECT_EQ(m_engine->BaseV(), 20.0F);
  EXPECT_NE(FaultOf(*m_engine).find("site NOWHERE isn't in"), std::string::npos);
  EXPECT_EQ(m_engine->Sp(), 1.0F);
  m_engine->BaseV(21);
  m_engine->SiteAltitude(8);
  m_engine->setToSea(kWest, 50);  // the same value again
  EXPECT_NE(FaultOf(*m_engine), "");
  m_engine->setToSea(kWest, 7);
  EXPECT_EQ(FaultOf(*m_engine), "");
  Load("AB 12");
  EXPECT_EQ(FaultOf(*m_engine), "");
  Load("NOWHERE");
  EXPECT_NE(FaultOf(*m_engine), "");
}

TEST_F(WindSpeedSites, ReferencesDontLeadOutOfTheFolder) {
  for (const char* reference :
       {"..\\outside", "../outside", "", ".", "..", "sub/AB 12", "C:outside", "A\nB"}) {
    Load("AB 12");
    Load(reference);
    EXPECT_NE(FaultOf(*m_engine), "") << reference;
  }
  m_engine->datapath("");
  Load("AB 12");
  EXPECT_NE(FaultOf(*m_engine), "");
}

TEST_F(WindSpeedSites, FaultyFilesAreRefusedWithFileKeyAndReason) {
  struct Faulty {
    const char* from;
    const char* to;
    const char* told;
  };
  const Faulty kFiles[] = {
      {"= 120.5", "= 120,5", "line 3, key SiteAltitude"},
      {"= 120.5", "=", "key SiteAltitude"},
      {"=23", "=nan", "key BasicWindSpeed: nan isn't"},
      {"=23", "=1e99", "doesn't fit"},
      {"CrestHeight_Z=0", "CrestHeight=0", "no such key"},
      {"BasicWindSpeed=23", ";", "BasicWindSpeed: the key isn't"},
      {"FetchesToSea=21", ";", "FetchesToSea of sector 11"},
      {"[sector 3]", "[sector 12]", "no such section"},
      {"[sector 3]", "[sector 2]", "stands twice"},
      {"[Site]", "", "before the first section"},
      {"[Site]", "[Site", "ends in"},
      {"Name=Test", "Name", "needs a key"},
  };
  for (const Faulty& faulty : kFiles) {
    std::string text = GoodSite();
    Write("data/F.site", Replaced(text, faulty.from, faulty.to));
    Load("F");
    EXPECT_NE(FaultOf(*m_engine).find("F.site"), std::string::npos) << faulty.to;
    EXPECT_NE(FaultOf(*m_engine).find(faulty.told), std::string::npos) << FaultOf(*m_engine);
    EXPECT_EQ(m_engine->BaseV(), 20.0F) << "values stay as they were";
  }
}

TEST_F(WindSpeedSites, DialogsAreTheHosts) {
  EXPECT_FALSE(m_engine->Browse() || m_engine->SelectDlg() || m_engine->Edit());
  Host().SiteBrowse = [](std::string& reference) { return reference = "AB 12", true; };
  Host().SiteSelect = [](std::string& reference) { return reference = "XY", false; };
  Host().SiteEdit = [this] { return m_engine->BaseV(25), true; };
  EXPECT_TRUE(m_engine->Browse());
  EXPECT_FALSE(m_engine->SelectDlg());
  EXPECT_EQ(m_engine->SiteID(), "AB 12");
  const float before = m_engine->BSGust(kWest);
  EXPECT_TRUE(m_engine->Edit());
  EXPECT_GT(m_engine->BSGust(kWest), before) << "results are current after Edit";
  m_engine->AutoWizard(true);
  EXPECT_TRUE(m_engine->AutoWizard());
}

// Cases on the built-in engine, with one good site file.
struct SiteCase : testing::Test {
  SiteCase() {
    RegisterBuiltInEngines();
    root = CreateCurrentCase();
    root->breDataPath(folder.Path(""));
    std::ofstream(folder.Path("GOOD.site")) << GoodSite();
  }
  ~SiteCase() override { ReleaseProcess(); }

  clsDynamicPressure& Site() { return *root->DynamicPressure(); }
  std::string Fault() {
    try {
      Site().DynamicPressure_q(WindAreas::waRoof, kWest);
    } catch (const Error& error) {
      return error.what();
    }
    return "";
  }
  bool Refuses(const std::string& reference) {
    return Fault().find("The site " + reference + " isn't in") != std::string::npos;
  }
  void Building() {
    root->BuildingDimensions()->Roof_Height(8);
    Site().BasicWindSpeed(23);
  }
  std::string Saved(const char* name) {
    root->Location(folder.Path(name));
    root->Save();
    return folder.Path(name);
  }
  float SumOfSectors() {
    float sum = 0;
    for (int index = 0; index < 12; ++index) {
      const auto sector = WindSectors(index);
      sum += Site().FetchesToSea(sector) + Site().FetchesInTown(sector) +
             Site().ObstructionHeight_Ho(sector) + Site().BaseAltitude(sector);
    }
    return sum;
  }

  PrivateFolder folder;
  std::shared_ptr<clsCurrentCase> root;
};

TEST_F(SiteCase, AMissingSiteRefusesUntilASectorIsEnteredAndLendsNothingFromTheCaseBefore) {
  Building();
  Site().GridReference("GOOD");
  EXPECT_EQ(Fault(), "");
  EXPECT_GT(SumOfSectors(), 0);
  root->Clear();
  Building();
  Site().GridReference("NOPE");
  EXPECT_TRUE(Refuses("NOPE"));
  EXPECT_EQ(Site().BasicWindSpeed(), 23);
  EXPECT_EQ(SumOfSectors(), 0);
  Site().BasicWindSpeed(24);
  Site().SiteAltitude(50);
  EXPECT_TRUE(Refuses("NOPE"));
  Site().FetchesToSea(kWest, 30);
  EXPECT_EQ(Fault(), "");
  EXPECT_EQ(SumOfSectors(), 30);
  Site().GridReference("");
  EXPECT_EQ(Fault(), "");
  EXPECT_EQ(SumOfSectors(), 30);
  Site().GridReference("NOPE");
  EXPECT_TRUE(Refuses("NOPE")) << "a new load, and nothing entered since";
  EXPECT_EQ(SumOfSectors(), 30);
  Site().GridReference("");
  EXPECT_EQ(Fault(), "");
  Site().GridReference("GOOD");
  EXPECT_EQ(Site().FetchesToSea(kWest), 18);
  Site().GridReference("NOPE");
  Site().FetchesToSea(kWest, 7);
  EXPECT_TRUE(Refuses("NOPE")) << "entered before the load";
  EXPECT_EQ(Site().FetchesToSea(kWest), 7) << "and not lost";
  root->Clear();
  Building();
  EXPECT_EQ(Fault(), "");
  EXPECT_EQ(SumOfSectors(), 0);
}

TEST_F(SiteCase, ACaseIsOpenedWithoutItsSiteFile) {
  Building();
  Site().GridReference("GOOD");
  EXPECT_EQ(Fault(), "");
  Site().SiteAltitude(60);
  const std::string byReference = Saved("by reference.wlc");
  Site().SiteEdited(true);
  const std::string edited = Saved("edited.wlc");
  root->Clear();
  Site().GridReference("NOPE");
  Site().SiteEdited(true);
  const std::string editedZeros = Saved("edited zeros.wlc");
  std::filesystem::remove(folder.Path("GOOD.site"));
  for (const bool otherBefore : {false, true}) {
    if (otherBefore) root->OpenExisting(edited);
    ASSERT_TRUE(root->OpenExisting(byReference));
    EXPECT_TRUE(Refuses("GOOD"));
    EXPECT_EQ(Site().SiteAltitude(), 60);
    EXPECT_EQ(SumOfSectors(), 0);
  }
  ASSERT_TRUE(root->OpenExisting(edited));
  root->BuildingDimensions()->Roof_Height(9);
  EXPECT_EQ(Fault(), "");
  EXPECT_EQ(Site().FetchesToSea(kWest), 18);
  root->IsDirty(false);
  ASSERT_TRUE(root->OpenExisting(editedZeros));
  Building();
  EXPECT_EQ(Fault(), "") << "its values are those that were held, and its own";
}

TEST_F(SiteCase, AnObjectOfAnEarlierCaseLendsNothingEither) {
  Building();
  Site().GridReference("GOOD");
  EXPECT_EQ(Fault(), "");
  const auto stale = root->DynamicPressure();
  root->Clear();
  Building();
  Site().GridReference("NOPE");
  stale->BasicWindSpeed(30);
  stale->DynamicPressure_q(WindAreas::waRoof, kWest);
  EXPECT_EQ(SumOfSectors(), 0);
  EXPECT_TRUE(Refuses("NOPE"));
}

TEST(WindSpeedSampleSites, AllSamplesLoad) {
  int samples = 0;
  for (const auto& file : std::filesystem::directory_iterator(ORVE_SAMPLE_SITES)) {
    std::ifstream stream(file.path());
    const std::string text{std::istreambuf_iterator<char>(stream), {}};
    EXPECT_EQ(windspeed::ParseSite(text, file.path().filename().string()).fault, "");
    ++samples;
  }
  EXPECT_GE(samples, 5);
}

TEST(WindSpeedSourceRecords, TellTableCornersFractionsAndStatus) {
  const auto engine = Engine({{"H", 8}, {"ToSea", 150}, {"InTown", 20}, {"A", 50}});
  const SourceRecord sc = SourcesOf(*engine).Source(WindFactor::Sc, kWest);
  EXPECT_EQ(sc.table, "Table 22");
  EXPECT_EQ(sc.status, SourceStatus::Confirmed);
  EXPECT_EQ(sc.corners, (std::vector<double>{0.882, 1.00}));
  const SourceRecord tc = SourcesOf(*engine).Source(WindFactor::Tc, kWest);
  EXPECT_EQ(tc.corners, (std::vector<double>{0.701, 0.684, 0.770, 0.751}));
  ASSERT_EQ(tc.axes.size(), 2U);
  EXPECT_EQ(tc.axes[1].low, 10);
  EXPECT_EQ(tc.axes[1].high, 30);
  EXPECT_NEAR(tc.axes[1].fraction, 0.5, 1e-9);
  EXPECT_NE(tc.Text().find("He 5 to 10 m (0.600), distance in the town 10 to 30 km (0.500): 0.701 0.684"),
            std::string::npos)
      << tc.Text();
  const SourceRecord ca = SourcesOf(*engine).Source(WindFactor::Ca, kWest);
  EXPECT_NE(ca.Text().find("line C: 0.19 [recalled with low confidence]"), std::string::npos) << ca.Text();

  struct Status {
    std::map<std::string, float> site;
    WindFactor factor;
    SourceStatus status;
  };
  const std::map<std::string, float> hill = {{"CrestHt", 20}, {"UpwLen", 100}, {"DnwLen", 100}};
  const Status kStatuses[] = {
      {{}, WindFactor::Sd, SourceStatus::Consistent},
      {{}, WindFactor::Ss, SourceStatus::Consistent},
      {{}, WindFactor::Sp, SourceStatus::Consistent},
      {{}, WindFactor::Ca, SourceStatus::Consistent},
      {{}, WindFactor::Sa, SourceStatus::Confirmed},
      {hill, WindFactor::Sa, SourceStatus::Recalled},
      {hill, WindFactor::Sh, SourceStatus::Recalled},
      {{{"InTown", 5}, {"ObsHt", 5}}, WindFactor::He, SourceStatus::Confirmed},
      {{{"H", 310}}, WindFactor::St, SourceStatus::EngineChoice},
      {{{"InTown", 5}, {"ToSea", 1}}, WindFactor::Tt, SourceStatus::EngineChoice},
      {{{"InTown", 5}, {"ToSea", 1}, {"A", 50}}, WindFactor::Ca, SourceStatus::EngineChoice},
      {{}, WindFactor::gt, SourceStatus::Confirmed},
      {{{"A", 50}}, WindFactor::gt, SourceStatus::Recalled},
      {{{"A", 50}}, WindFactor::Sb, SourceStatus::Recalled},
      {{{"H", 310}}, WindFactor::q, SourceStatus::EngineChoice},
  };
  for (const Status& expected : kStatuses) {
    const auto record = SourcesOf(*Engine(expected.site)).Source(expected.factor, kWest);
    EXPECT_EQ(record.status, expected.status) << record.Text();
    EXPECT_TRUE(record.status != SourceStatus::Consistent || !record.basis.empty()) << record.Text();
  }
  EXPECT_THROW(SourcesOf(*Engine({{"H", 0}})).Source(WindFactor::Sc, kWest), Error);
  EXPECT_THROW(SourcesOf(*engine).Source(static_cast<WindFactor>(15), kWest), Error);
}

}  // namespace
}  // namespace orve::test
