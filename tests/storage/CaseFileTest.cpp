// Opening and saving a case: what the file holds, what a missing or odd value means, and the events.
#include <algorithm>
#include <gtest/gtest.h>
#include <string>
#include <vector>

#include "StorageTest.h"

namespace orve::test {
namespace {

class CaseFile : public CaseTest {
 protected:
  bool OpenText(const std::string& text) {
    WriteBytes(folder / "text.wlc", text);
    root->IsDirty(false);
    return Open("text.wlc");
  }
  std::string Saved() {
    SaveAs("saved.wlc");
    return ReadBytes(folder / "saved.wlc");
  }
};

TEST_F(CaseFile, SavesEachSampleCaseAsItStands) {
  for (const char* name : {"shed", "office_manual_results", "canopy_with_cantilevers", "site_by_sector"}) {
    const auto sample = std::filesystem::path(ORVE_SAMPLE_CASES) / (std::string(name) + ".wlc");
    ASSERT_TRUE(root->OpenExisting(sample.string())) << name;
    EXPECT_FALSE(root->IsDirty());
    EXPECT_EQ(Saved(), ReadBytes(sample)) << name;
    EXPECT_TRUE(root->OverallAppliedLoads()
                    ->Hybrid_OverallAppliedLoads(BuildingAreas::baRoof, Faces::Face_1, 0)
                    .ends_with("kN/m\u00B2"));
  }
}

TEST_F(CaseFile, WritesSectionsOfANewCaseInTheirOrder) {
  root->BuildingDimensions()->Roof_Height(6.185f);
  const std::string text = Saved();
  std::string sections;
  for (std::size_t at = text.find('['); at != std::string::npos; at = text.find('[', at + 1)) {
    sections += text.substr(at, text.find(']', at) + 1 - at);
    EXPECT_EQ(text.substr(at - std::min<std::size_t>(at, 4), std::min<std::size_t>(at, 4)),
              at == 0 ? "" : "\r\n\r\n")
        << "an empty line before each section";
  }
  EXPECT_EQ(sections,
            "[WindLoadCase][BuildingDimensions][DynamicPressure][ExternalCoefficients]"
            "[InternalCoefficients][OverallAppliedLoads][UpdateLog]");
  EXPECT_NE(text.find("\r\nRoof_Height=6.185\r\n"), std::string::npos);
  EXPECT_NE(text.find("\r\nAnnualRisk=0.02\r\n"), std::string::npos);
}

TEST_F(CaseFile, OpensAnEmptyFileAsANewCase) {
  root->Description("before");
  ASSERT_TRUE(OpenText(""));
  EXPECT_EQ(root->Description(), "");
  EXPECT_EQ(root->Created(), 0);
  EXPECT_TRUE(root->BuildingDimensions()->OrientationUnknown());
  EXPECT_EQ(root->BuildingDimensions()->Wall_GableFaces(), GableFaces::Faces_2_and_4);
  EXPECT_EQ(root->DynamicPressure()->Method(), Methods::Hybrid);
  EXPECT_EQ(root->DynamicPressure()->AnnualRisk(), 0.02f);
}

TEST_F(CaseFile, TakesAnAbsentDiagonalFromTheParentOfThatMoment) {
  root->Parent_Span(7);
  root->Parent_Centres(2);
  root->Parent_Type(ParentTypes::Purlin_Single);
  const float diagonal = root->BuildingDimensions()->Roof_Diagonal_Default();
  ASSERT_GT(diagonal, 0);
  ASSERT_TRUE(OpenText("[BuildingDimensions]\r\nRoof_Height=3\r\n"));
  EXPECT_EQ(root->BuildingDimensions()->Roof_Diagonal(), diagonal);
}

TEST_F(CaseFile, ReadsABlockByTheConditionJustRead) {
  ASSERT_TRUE(
      OpenText("[DynamicPressure]\r\nDynamicPressure_q(Roof, 3)=0.9\r\nManualResults=False\r\n"
               "[ExternalCoefficients]\r\nManualResults=True\r\nBay=2\r\n"));
  root->DynamicPressure()->ManualResults(true);
  EXPECT_EQ(root->DynamicPressure()->DynamicPressure_q(WindAreas::waRoof, WindSectors(3)), 0);
  EXPECT_EQ(root->ExternalCoefficients()->Bay(), Bays::End_Bay);
  ASSERT_TRUE(
      OpenText("[DynamicPressure]\r\nDynamicPressure_q(Roof, 3)=0.9\r\nManualResults=True\r\n"
               "SiteEdited=True\r\nSiteAltitude=40\r\n"));
  EXPECT_EQ(root->DynamicPressure()->DynamicPressure_q(WindAreas::waRoof, WindSectors(3)), 0.9f);
  EXPECT_EQ(root->DynamicPressure()->FetchesToSea(WindSectors(4)), 0);
  EXPECT_TRUE(root->DynamicPressure()->SiteEdited());
}

TEST_F(CaseFile, LaysStoredSiteValuesOverThoseOfTheReference) {
  ASSERT_TRUE(OpenText(
      "[DynamicPressure]\r\nGridReference=COASTAL TOWN\r\nSiteAltitude=30\r\nBasicWindSpeed=24\r\n"));
  EXPECT_EQ(root->DynamicPressure()->SiteAltitude(), 30);
  EXPECT_EQ(root->DynamicPressure()->FetchesToSea(WindSectors(1)), 3.5f) << "from the site's own data";
  EXPECT_FALSE(root->DynamicPressure()->SiteEdited());
}

TEST_F(CaseFile, StopsAtAValueThatDoesNotConvert) {
  struct Case {
    const char* line;
    int number;
  };
  const Case cases[] = {{"Roof_Height=", 13},       {"Roof_Height=6 m", 13}, {"Orientation=40000", 6},
                        {"RoofType=3000000000", 6}, {"RoofType=40000", 6},   {"ConsiderRoof=maybe", 13},
                        {"Roof_Height=1e40", 6},    {"RoofType=99", 0},      {"ConsiderRoof=2", 0},
                        {"ConsiderRoof= tRUE ", 0}, {"Orientation=2.5", 0},  {"Roof_Height= 1.5e1 ", 0}};
  for (const Case& c : cases) {
    root->Clear();
    const std::string text =
        std::string("[WindLoadCase]\r\nDescription=read\r\n[BuildingDimensions]\r\n").append(c.line);
    const Raised raised = RaisedBy([&] { OpenText(text); });
    EXPECT_EQ(raised.number, c.number) << c.line;
    if (c.number == 0) continue;
    EXPECT_NE(raised.text, "");
    EXPECT_EQ(root->Location(), "");
    EXPECT_EQ(root->Description(), "read") << "what was read stands";
  }
  EXPECT_EQ(root->BuildingDimensions()->Roof_Height(), 15);
  const Raised raised = RaisedBy([&] { OpenText("[WindLoadCase]\r\nCreated=yesterday\r\n"); });
  EXPECT_EQ(raised.number, 13);
  EXPECT_EQ(raised.text, "Type mismatch: \"yesterday\" isn't a date (Created in [WindLoadCase])");
}

TEST_F(CaseFile, OpensAFileOfAnOlderMachine) {
  const std::string old =
      "[WindLoadCase]\r\nDescription=Roof \xA3"
      "40/m\xB2 \x96 caf\xE9\r\nCreated=24/11/2009 10:21:00\r\n"
      "Modified=05/06/10 1:02:03 PM\r\n\r\n[BuildingDimensions]\r\nRoof_Height=6\r\n\r\n"
      "[UpdateLog]\r\nv2.1.7=24 November 2009, 10:21:00\r\n";
  ASSERT_TRUE(OpenText(old));
  EXPECT_EQ(root->Description(),
            "Roof \u00A3"
            "40/m\u00B2 \u2013 caf\u00E9");
  EXPECT_EQ(root->Created(), 40141.43125);
  EXPECT_EQ(root->Modified(), 40334 + (13 * 3600 + 2 * 60 + 3) / 86400.0);
  const std::string text = Saved();
  EXPECT_NE(text.find("\r\nDescription=Roof \u00A3"
                      "40/m\u00B2 \u2013 caf\u00E9\r\n"),
            std::string::npos);
  EXPECT_NE(text.find("\r\nCreated=2009-11-24 10:21:00\r\n"), std::string::npos);
  EXPECT_NE(text.find("\r\nv2.1.7=24 November 2009, 10:21:00\r\n"), std::string::npos);
  std::string lines = old;
  lines.erase(std::remove(lines.begin(), lines.end(), '\r'), lines.end());
  ASSERT_TRUE(OpenText(lines));
  EXPECT_EQ(root->BuildingDimensions()->Roof_Height(), 6) << "without carriage returns";
}

TEST_F(CaseFile, KeepsWhatItDoesNotKnow) {
  ASSERT_TRUE(
      OpenText("[Future]\r\nkey=1\r\n\r\n[BuildingDimensions]\r\nRoof_Colour=green\r\nRoof_Height=4\r\n"));
  root->BuildingDimensions()->Roof_Height(5);
  const std::string text = Saved();
  EXPECT_TRUE(text.starts_with(
      "[Future]\r\nkey=1\r\n\r\n[BuildingDimensions]\r\nRoof_Colour=green\r\nRoof_Height=5\r\n"));
}

TEST_F(CaseFile, KeepsEveryCharacterOfATextAndWritesPlainOnesAsTheyAre) {
  struct Case {
    const char* text;
    const char* written;
  };
  const Case cases[] = {{"50% of m\u00B2 = \"half\"", "50% of m\u00B2 = \"half\""},
                        {" leading", " leading"},
                        {"a[b]", "%%a%5Bb]"},
                        {"two\r\nlines", "%%two%0D%0Alines"},
                        {"%%", "%%%25%25"},
                        {"ends in blanks  ", "%%ends in blanks %20"},
                        {"[WindLoadCase]\nDescription=x%", "%%%5BWindLoadCase]%0ADescription=x%25"}};
  for (const Case& c : cases) {
    root->Clear();
    root->Description(c.text);
    root->DynamicPressure()->GridReference(c.text);
    SaveAs("text.wlc");
    EXPECT_NE(
        ReadBytes(folder / "text.wlc").find(std::string("\r\nDescription=").append(c.written).append("\r\n")),
        std::string::npos)
        << c.written;
    ASSERT_TRUE(Open("text.wlc"));
    EXPECT_EQ(root->Description(), c.text);
    EXPECT_EQ(root->DynamicPressure()->GridReference(), c.text);
    EXPECT_EQ(root->WindCaseList()->Description(1), c.text);
  }
}

TEST_F(CaseFile, KeepsTheDateOfTheFirstSave) {
  ASSERT_TRUE(OpenText("[WindLoadCase]\r\nDescription=undated\r\nCreated=00:00:00\r\n"));
  EXPECT_EQ(root->Created(), 0);
  root->Save();
  EXPECT_EQ(root->Created(), now);
  const double first = now;
  now += 1;
  root->Save();
  EXPECT_EQ(root->Created(), first);
  EXPECT_EQ(root->Modified(), now);
  ASSERT_TRUE(Open("text.wlc"));
  EXPECT_EQ(root->Created(), first);
}

TEST_F(CaseFile, RaisesItsEventsInOrder) {
  std::string events;
  const auto note = [&](const char* event) { events += std::string(event) + "@" + root->Location() + " "; };
  const auto opened = root->WindCaseOpened.Connect([&](const std::string&) { note("opened"); });
  const auto saved = root->WindCaseSaved.Connect([&](const std::string&) { note("saved"); });
  const auto listed = root->WindCaseListUpdated.Connect([&] { note("list"); });
  SaveAs("a.wlc");
  EXPECT_EQ(events, "saved@ list@ ");
  events.clear();
  const auto dirty = root->DirtyUpdated.Connect([&](bool value) { events += value ? "D1 " : "D0 "; });
  const auto located =
      root->LocationUpdated.Connect([&](const std::string& value) { events += "L" + value + " "; });
  ASSERT_TRUE(Open("a.wlc"));
  const std::string end = "opened@ list@ D0 L" + Stored("a.wlc") + " ";
  EXPECT_TRUE(events.ends_with(end)) << events;
}

TEST_F(CaseFile, AsksBeforeItDropsUnsavedChanges) {
  SaveAs("a.wlc");
  root->Description("unsaved");
  answer = 7;
  const auto building = root->BuildingDimensions();
  EXPECT_FALSE(Open("a.wlc"));
  EXPECT_EQ(messages,
            std::vector<std::string>{"Open Wind Load Case|36|Current Wind Load Case Information Will "
                                     "Be Lost - Proceed?"});
  EXPECT_EQ(root->Description(), "unsaved");
  EXPECT_EQ(root->BuildingDimensions(), building);
  answer = 6;
  chosen = In("a.wlc");
  EXPECT_TRUE(root->Browse());
  EXPECT_EQ(root->Description(), "");
}

TEST_F(CaseFile, ShowsTheWaitCursorWhileItWorks) {
  std::string pointers;
  Host().SetMousePointer = [&](std::int16_t type) { pointers += std::to_string(type) + " "; };
  Host().MousePointer = [] { return std::int16_t{3}; };
  EXPECT_NE(RaisedBy([&] { OpenText("[BuildingDimensions]\r\nRoof_Height=x\r\n"); }).number, 0);
  EXPECT_EQ(pointers, "11 3 ") << "also after an error";
}

class CaseList : public CaseFile {};

TEST_F(CaseList, ListsRecentCasesWithoutTouchingTheOpenOne) {
  const auto list = root->WindCaseList();
  EXPECT_EQ(list->MaxCount(), 99);
  EXPECT_EQ(list->Count(), 0);
  EXPECT_EQ(list->Location(1), "");
  EXPECT_FALSE(list->LocationCorrect(1));
  WriteBytes(folder / "old.wlc", "");
  ASSERT_TRUE(Open("old.wlc"));
  SaveAs("new.wlc");
  WriteBytes(folder / "old.wlc",
             "[WindLoadCase]\r\nDescription=%%a%5Bb\r\nCreated=24/11/2009\r\nModified=soon\r\n");
  std::string upper = Stored("old.wlc");
  for (char& c : upper) c = c >= 'a' && c <= 'z' ? static_cast<char>(c - 'a' + 'A') : c;
  EXPECT_EQ(list->Count(), 2);
  EXPECT_EQ(list->Location(2), upper);
  EXPECT_TRUE(list->LocationCorrect(2)) << "found in the case that the file has";
  list->Index(2);
  EXPECT_EQ(list->Location(0), "") << "an index of 0 isn't the selected entry";
  EXPECT_EQ(list->Description(), "a[b");
  EXPECT_EQ(list->Created(), 40141);
  EXPECT_EQ(list->Modified(), 0) << "a date that doesn't convert";
  const std::string before = ReadBytes(folder / "new.wlc");
  root->Save();
  EXPECT_EQ(ReadBytes(folder / "new.wlc"), before) << "nothing of the listed file got into the open case";
  std::filesystem::remove(folder / "old.wlc");
  EXPECT_EQ(list->Description(), "");
  EXPECT_EQ(list->Count(), 2);
  EXPECT_EQ(RaisedBy([&] { list->Location(40000); }).number, 6);
  EXPECT_EQ(RaisedBy([&] { list->MaxCount(40000); }).number, 6);
}

}  // namespace
}  // namespace orve::test
