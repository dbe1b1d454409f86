// What a host can ask about case files.
#include "StorageTest.h"

namespace orve::test {
namespace {

namespace fs = std::filesystem;

class FileQueries : public CaseTest {
 protected:
  std::string Canonical(const std::string& name) const { return (fs::canonical(folder) / name).string(); }
};

TEST_F(FileQueries, ResolveANameAsOpeningAndSavingDo) {
  fs::create_directories(folder / "other/deep");
  fs::create_symlink("other/deep", folder / "link");
  fs::create_symlink("shed.wlc", folder / "alias.wlc");
  fs::create_symlink("gone.wlc", folder / "dangling.wlc");
  for (const char* name : {"shed.wlc", "two.wlc", "Two.wlc"}) WriteBytes(folder / name, "");
  struct Case {
    const char* name;
    const char* file;
    bool exists;
  };
  const Case cases[] = {{"shed.wlc", "shed.wlc", true},
                        {"SHED.wlc", "shed.wlc", true},
                        {"shed.wlc ", "shed.wlc", true},
                        {"other\\..\\SHED.wlc", "shed.wlc", true},
                        {"link/../shed.wlc", "other/shed.wlc", false},
                        {"gone/../shed.wlc", "gone/../shed.wlc", false},
                        {"alias.wlc", "shed.wlc", true},
                        {"dangling.wlc", "gone.wlc", false},
                        {"new.wlc", "new.wlc", false},
                        {"TWO.wlc", "TWO.wlc", false},
                        {"Link/New.wlc", "other/deep/New.wlc", false},
                        {"other", "other", false}};
  for (const Case& c : cases) {
    EXPECT_EQ(ResolveFileName(In(c.name)), Canonical(c.file)) << c.name;
    EXPECT_EQ(CaseFileExists(In(c.name)), c.exists) << c.name;
  }
  SaveAs("link/../Shed.WLC");
  EXPECT_NE(ReadBytes(folder / "other/Shed.WLC"), "");
  EXPECT_EQ(ReadBytes(folder / "shed.wlc"), "");
  EXPECT_FALSE(CaseFileExists(In("shed.wlc") + std::string("\0zz", 3)));
  EXPECT_EQ(RaisedBy([] { ResolveFileName(""); }).number, 75);
}

TEST_F(FileQueries, NoticeThatTheOpenCasesFileChanged) {
  const fs::path file = folder / "a.wlc";
  const auto replace = [&] {
    WriteBytes(folder / "b.wlc", ReadBytes(file));
    fs::last_write_time(folder / "b.wlc", fs::last_write_time(file));
    fs::rename(folder / "b.wlc", file);
  };
  struct Case {
    const char* what;
    std::function<void()> change;
    bool changed;
  };
  const Case cases[] = {
      {"nothing", [] {}, false},
      {"saved again", [&] { root->Save(); }, false},
      {"longer", [&] { std::ofstream(file, std::ios::app) << "x"; }, true},
      {"a later time",
       [&] { fs::last_write_time(file, fs::last_write_time(file) + std::chrono::seconds(1)); }, true},
      {"another file of the same text and time", replace, true},
      {"gone", [&] { fs::remove(file); }, true},
      {"the same file by another name", [&] { root->Location(In("A.wlc")); }, false},
      {"a name that no file has", [&] { root->Location(In("new.wlc")); }, false},
      {"the name of another file", [&] { root->Location(In("taken.wlc")); }, true},
      {"a new case", [&] { root->Clear(); }, false},
      {"a new case with the name of the old", [&] { root->Clear(), root->Location(In("a.wlc")); }, true}};
  WriteBytes(folder / "taken.wlc", "");
  for (const Case& c : cases) {
    for (const bool opened : {false, true}) {
      SaveAs("a.wlc");
      if (opened) {
        ASSERT_TRUE(Open("a.wlc"));
      }
      c.change();
      EXPECT_EQ(CaseFileChanged(), c.changed) << c.what << (opened ? ", opened" : ", saved");
    }
  }
  root.reset();
  basBS6399_2::CurrentCase.reset();
  EXPECT_FALSE(CaseFileChanged());
}

}  // namespace
}  // namespace orve::test
