// The save-file manager: keys, state, dialogs and the recent-file list.
#include <gtest/gtest.h>
#include <string>
#include <vector>

#include "StorageTest.h"

namespace orve::test {
namespace {

class SaveFile : public StorageTest {
 protected:
  void SetUp() override {
    StorageTest::SetUp();
    file.ApplicationName("App");
    file.PathToApplicationINI(Stored("settings.ini"));
    file.FileExtension("WLC");
    file.CommonDialog(&dialog);
  }

  void Load(const std::string& text) {
    WriteBytes(folder / "text.wlc", text);
    file.ReadData(In("text.wlc"));
  }
  std::string Settings() const { return ReadBytes(folder / "settings.ini"); }
  std::string Recent() const {
    std::string list;
    for (std::int16_t index = 1; index <= file.RecentFileCount(); ++index)
      list += file.RecentFile(index) + " ";
    return list;
  }

  clsSaveFile file;
  clsCommonDialog dialog;
};

TEST_F(SaveFile, FindsAValueByItsExactKeyInItsSection) {
  Load("[A]\r\nfirst=1\r\nk =blank\r\nk=2  \r\nempty=\r\ntext=a[b\r\nhidden=3\r\n[B]\r\nk=last");
  const auto get = [&](const char* section, const char* key) { return file.Data(section, key, "none"); };
  EXPECT_EQ(get("A", "first"), "1");
  EXPECT_EQ(get("A", "k"), "2  ");
  EXPECT_EQ(get("A", "empty"), "");
  EXPECT_EQ(get("A", "K"), "none");
  EXPECT_EQ(get("A", "hidden"), "none") << "a section ends at the next bracket anywhere";
  EXPECT_EQ(get("B", "first"), "none");
  EXPECT_EQ(get("C", "k"), "none");
  EXPECT_EQ(get("B", "k"), "last") << "without a line end";
}

TEST_F(SaveFile, StoresAKeyWhereItStands) {
  struct Case {
    const char* text;
    const char* section;
    const char* key;
    const char* value;
    const char* expected;
  };
  const Case cases[] = {
      {"", "A", "k", "1", "[A]\r\nk=1\r\n"},
      {"[A]\r\nk=1\r\n", "B", "k", "2", "[A]\r\nk=1\r\n\r\n[B]\r\nk=2\r\n"},
      {"[A]\r\nk=1\r\n\r\n[B]\r\nk=2\r\n", "A", "m", "3", "[A]\r\nk=1\r\nm=3\r\n\r\n[B]\r\nk=2\r\n"},
      {"[A]\r\nk=1", "A", "m", "3", "[A]\r\nk=1\r\nm=3\r\n"},
      {"[A]\r\n", "A", "k", "1", "[A]\r\nk=1\r\n"},
      {"[A]\r\nk=long value  \r\nm=2\r\n", "A", "k", "x", "[A]\r\nk=x  \r\nm=2\r\n"},
      {"[A]\r\nk=\r\nm=2\r\n", "A", "k", "x", "[A]\r\nk=x\r\nm=2\r\n"},
      {"[A]\r\nm=2\r\nk=", "A", "k", "x", "[A]\r\nm=2\r\nk=x"},
      {"[A]\r\nk=1\r\nk=2\r\n", "A", "k", "", "[A]\r\nk=\r\nk=2\r\n"},
      {"[A]\r\n[B]\r\nk=1\r\n", "A", "k", "2", "[A]\r\nk=2\r\n[B]\r\nk=1\r\n"},
  };
  for (const Case& c : cases) {
    Load(c.text);
    file.Data(c.section, c.key, "unused", c.value);
    EXPECT_EQ(file.DataBuffer(), c.expected);
    EXPECT_EQ(std::string(file.Data(c.section, c.key, "none")).substr(0, 1),
              std::string(c.value).substr(0, 1));
  }
}

TEST_F(SaveFile, GivesAFileWithoutCarriageReturnsThemOnReading) {
  Load("[A]\nk=1\nm=2\n");
  EXPECT_EQ(file.DataBuffer(), "[A]\r\nk=1\r\nm=2\r\n");
  Load("[A]\nk=1\r\n");
  EXPECT_EQ(file.DataBuffer(), "[A]\nk=1\r\n");
}

TEST_F(SaveFile, WritesTheLogLineAndLeavesNoOldBytes) {
  WriteBytes(folder / "text.wlc", std::string(5000, 'x'));
  file.Data("A", "k", "", "1");
  file.WriteData(In("text.wlc"));
  now += 1.0 / 86400;
  file.WriteData(In("text.wlc"));
  const std::string version = clsCommon().AppVersion();
  EXPECT_EQ(ReadBytes(folder / "text.wlc"),
            "[A]\r\nk=1\r\n\r\n[UpdateLog]\r\n" + version + "=24 November 2026, 10:21:01\r\n");
}

TEST_F(SaveFile, RaisesAnEventAtEveryAssignmentAndNeverIsBlankAndDirty) {
  std::string events;
  const auto blank = file.BlankUpdated.Connect([&](bool value) { events += value ? "B1 " : "B0 "; });
  const auto dirty = file.DirtyUpdated.Connect([&](bool value) { events += value ? "D1 " : "D0 "; });
  const auto name =
      file.FileNameUpdated.Connect([&](const std::string& value) { events += "N" + value + " "; });
  file.Dirty(true);
  file.Dirty(true);
  file.Blank(true);
  EXPECT_EQ(events, "D1 B0 D1 B0 B1 D0 ");
  events.clear();
  EXPECT_TRUE(file.NewFile());
  EXPECT_EQ(events, "B1 D0 D0 N ");
  const auto refuse = file.NewFileEvent.Connect([](bool& cancel) { cancel = true; });
  events.clear();
  EXPECT_FALSE(file.NewFile());
  EXPECT_EQ(events, "");
}

TEST_F(SaveFile, OpensAndSavesThroughItsOwner) {
  WriteBytes(folder / "a.wlc", "");
  bool refuse = false;
  int number = 0;
  const auto work = [&](const std::string&, bool& cancel) {
    cancel = refuse;
    if (number != 0) throw Error(number, "owner");
  };
  const auto opened = file.OpenFileEvent.Connect(work);
  const auto saved = file.SaveFileEvent.Connect(work);
  EXPECT_TRUE(file.OpenFile(In("a.wlc")));
  EXPECT_EQ(file.FileName(), Stored("a.wlc"));
  EXPECT_TRUE(file.SaveFile(In("other/a.wlc")));
  EXPECT_EQ(file.PathToSaveFiles(), Stored("other\\")) << "a save notes its folder too";
  EXPECT_TRUE(file.OpenFile(In("a.wlc")));
  file.Dirty(true);
  refuse = true;
  EXPECT_FALSE(file.SaveFile(In("b.wlc")));
  refuse = false;
  number = 32755;
  EXPECT_FALSE(file.SaveFile(In("b.wlc"))) << "a Cancel in the owner's work";
  number = 61;
  EXPECT_EQ(RaisedBy([&] { file.SaveFile(In("b.wlc")); }).text, "owner");
  EXPECT_TRUE(file.Dirty());
  EXPECT_EQ(file.FileName(), Stored("a.wlc"));
}

TEST_F(SaveFile, TellsOfAFileThatIsNotThereAndKeepsItsFolder) {
  EXPECT_FALSE(file.OpenFile(Stored("gone\\x.wlc") + " "));
  EXPECT_EQ(messages, std::vector<std::string>{"Cannot Continue|16|Unable to Access Save File: " +
                                               Stored("gone\\x.wlc")});
  EXPECT_EQ(file.PathToSaveFiles(), Stored("gone\\"));
}

TEST_F(SaveFile, SetsTheDialogUpAndTakesACancelAsFalse) {
  EXPECT_FALSE(file.OpenFile("  "));
  EXPECT_TRUE(shown.CancelError);
  EXPECT_EQ(shown.DialogTitle, "Open");
  EXPECT_EQ(shown.Filter, "Save Files (*.WLC)|*.WLC|All Files (*.*)|*.*");
  EXPECT_EQ(shown.Flags, 6144);
  EXPECT_EQ(shown.InitDir, Stored("").substr(0, Stored("").size() - 1)) << "the library's folder";
  file.FileDescription("Wind Load Case");
  file.FileName("C:\\cases\\shed.2.wlc");
  file.PathToSaveFiles("C:\\cases\\");
  chosen = In("new.wlc");
  EXPECT_TRUE(file.SaveFile(""));
  EXPECT_EQ(shown.DefaultExt, "WLC");
  EXPECT_EQ(shown.DialogTitle, "Save Wind Load Case As");
  EXPECT_EQ(shown.Filter, "Wind Load Case Files (*.WLC)|*.WLC|All Files (*.*)|*.*");
  EXPECT_EQ(shown.Flags, 2050);
  EXPECT_EQ(shown.InitDir, "C:\\cases\\");
  EXPECT_EQ(shown.FileName, "shed.2");
  EXPECT_EQ(file.FileName(), Stored("new.wlc"));
}

TEST_F(SaveFile, PutsTheCurrentFolderBackAfterADialog) {
  const auto before = std::filesystem::current_path();
  Host().OpenFileDialog = [this](clsCommonDialog&) {
    std::filesystem::current_path(folder);
    return false;
  };
  file.OpenFile("");
  EXPECT_EQ(std::filesystem::current_path(), before);
}

TEST_F(SaveFile, KeepsTheRecentListInOrder) {
  EXPECT_EQ(file.RecentFileLimit(), 8);
  file.RecentFileLimit(3);
  for (const char* name : {"a", "b", " c "}) file.RecentFileAdd(name);
  EXPECT_EQ(Recent(), "C B A ");
  file.RecentFileAdd("b");
  EXPECT_EQ(Recent(), "B C A ");
  file.RecentFileAdd("d/\xC3\xA9");
  EXPECT_EQ(Recent(), "D\\\xC3\x89 B C ") << "the list is full, so its last entry goes";
  file.RecentFileLimit(2);
  file.RecentFileAdd("e");
  EXPECT_EQ(Recent(), "E D\\\xC3\x89 C ") << "entries behind a smaller limit stay";
  file.RecentFile(2, "");
  EXPECT_EQ(file.RecentFileCount(), 1);
}

TEST_F(SaveFile, LosesNoSettingsThatItCannotRead) {
  WriteBytes(folder / "settings.ini", "");
  std::filesystem::resize_file(folder / "settings.ini", 17u << 20);
  file.RecentFileAdd("a");
  EXPECT_EQ(std::filesystem::file_size(folder / "settings.ini"), 17u << 20);
}

}  // namespace
}  // namespace orve::test
