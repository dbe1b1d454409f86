// Paths, the file layer, profile files and the encoding of older files.
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <gtest/gtest.h>
#include <iterator>
#include <orve3_bs6399_2.h>
#include <stdlib.h>
#include <string>

#include "common/FileLayer.h"
#include "common/LetterCase.h"
#include "common/ProfileFile.h"
#include "common/TextEncoding.h"

namespace orve::test {
namespace {

namespace fs = std::filesystem;

class Files : public testing::Test {
 protected:
  void SetUp() override {
    std::string name = (fs::temp_directory_path() / "orve-files-XXXXXX").string();
    ASSERT_NE(::mkdtemp(name.data()), nullptr);
    folder = name;
  }
  void TearDown() override {
    Host() = HostServices();
    fs::remove_all(folder);
  }
  void Make(const std::string& name, const std::string& text = "") {
    std::ofstream(folder / name, std::ios::binary) << text;
  }
  std::string Text(const std::string& name) {
    std::ifstream file(folder / name, std::ios::binary);
    return {std::istreambuf_iterator<char>(file), {}};
  }
  std::string Stored(const std::string& name) { return StoredPath((folder / name).string()); }

  fs::path folder;
  clsCommon common;
  clsWinAPI api;
};

TEST(PathTexts, SplitAtTheLastSeparatorAndPoint) {
  struct Case {
    const char* path;
    const char* name;
    const char* folder;
    const char* extension;
    const char* bare;
    const char* slashed;
  };
  const Case cases[] = {{"C:\\a.b\\c.d.wlc", "c.d.wlc", "C:\\a.b\\", "wlc", "c.d", "C:\\a.b\\c.d.wlc\\"},
                        {"name", "name", "name", "", "name", "name\\"},
                        {"C:\\a.b\\name", "name", "C:\\a.b\\", "b\\name", "name", "C:\\a.b\\name\\"},
                        {"C:\\", "", "C:\\", "", "", "C:\\"},
                        {"", "", "", "", "", "\\"}};
  const clsCommon common;
  for (const Case& c : cases) {
    EXPECT_EQ(common.ExtractFileName(c.path), c.name);
    EXPECT_EQ(common.ExtractPathName(c.path), c.folder);
    EXPECT_EQ(common.ExtractFileExtension(c.path), c.extension);
    EXPECT_EQ(common.ExtractFileNameWithoutExtension(c.path), c.bare);
    EXPECT_EQ(common.EndWithSlash(c.path), c.slashed);
  }
  EXPECT_EQ(common.AppVersion().substr(0, 5), "v3.0.");
}

TEST(LetterCase, RaisesLatinLettersAndNothingElse) {
  EXPECT_EQ(UpperCase("straße äÿ÷ łžŋı ŀń µ α\xE4\xC3"), "STRAßE ÄŸ÷ ŁŽŊI ĿŃ µ α\xE4\xC3");
}

TEST(TextEncoding, TakesBytesThatAreNoUtf8AsWindows1252) {
  EXPECT_EQ(ToUtf8("m\xB2 m\u00B2 \x80\x81 \xC3"), "m\u00B2 m\u00B2 \u20AC\u0081 \u00C3");
  EXPECT_EQ(ToUtf8("\xED\xA0\x80"), "\u00ED\u00A0\u20AC") << "a surrogate isn't UTF-8";
  EXPECT_EQ(FileText("\xEF\xBB\xBFtext"), "text");
}

TEST_F(Files, FindsTheExactNameElseTheOneInAnotherCase) {
  fs::create_directory(folder / "Cases");
  Make("Cases/Shed \u00E9.wlc", "small");
  EXPECT_TRUE(common.FileExists(Stored("CASES\\SHED \u00C9.WLC")));
  EXPECT_TRUE(common.FileExists((folder / "cases/shed \u00E9.wlc").string()));
  EXPECT_EQ(NativePath(Stored("CASES\\shed \u00E9.WLC")), (folder / "Cases/Shed \u00E9.wlc").string());
  Make("Cases/SHED \u00E9.WLC", "capital");
  EXPECT_EQ(ReadWholeFile(Stored("Cases\\SHED \u00E9.WLC")), "capital");
  EXPECT_EQ(ReadWholeFile(Stored("cases\\Shed \u00E9.wlc")), "small");
  EXPECT_FALSE(common.FileExists(Stored("Cases\\shed \u00E9.wlc"))) << "two names differ in case alone";
  EXPECT_FALSE(common.FileExists(Stored("Cases")));
  EXPECT_FALSE(common.FileExists(""));
  EXPECT_FALSE(common.FileExists(Stored("Cases\\SHED \u00C9.WLC") + std::string("\0zz", 3)));
  WriteWholeFile(Stored("cases\\NEW.wlc"), "new", Durability::Flushed);
  EXPECT_EQ(Text("Cases/NEW.wlc"), "new");
}

TEST_F(Files, TruncatesAnExistingFile) {
  Make("a", "123456");
  EXPECT_NE(api.API_TruncateFile(Stored("A"), 2), 0);
  EXPECT_EQ(Text("a"), "12");
  EXPECT_EQ(api.API_TruncateFile(Stored("a"), -1), 0);
  EXPECT_EQ(api.API_TruncateFile(Stored("gone"), 0), 0);
}

TEST_F(Files, HostFoldersComeWithoutAClosingSeparator) {
  Host().LibraryFolder = [] { return std::string("/opt/app/"); };
  Host().SystemDirectory = [] { return std::string("C:\\sys\\"); };
  EXPECT_EQ(common.AppPathWithSlash(), "\\opt\\app\\");
  EXPECT_EQ(api.API_GetSystemDirectory(), "C:\\sys");
  Host().SystemDirectory = nullptr;
  EXPECT_TRUE(api.API_GetSystemDirectory().ends_with("\\share\\orve"));
}

TEST_F(Files, ReadsProfileValues) {
  Make("p.ini",
       "; c=0\n[Other]\nk=no\n[ Main ]\r\n;k=comment\r\n k = \"in quotes\" "
       "\r\nn=-12abc\nbig=99999999999\nempty=\nlatin=\xE9");
  const auto get = [&](const char* key) {
    return api.API_PrivateProfileString(Stored("P.INI"), "MAIN", key, "default");
  };
  EXPECT_EQ(get("K"), "in quotes");
  EXPECT_EQ(get("empty"), "");
  EXPECT_EQ(get("gone"), "default");
  EXPECT_EQ(get("latin"), "\u00E9");
  EXPECT_EQ(api.API_PrivateProfileInt(Stored("p.ini"), "Main", "n", 7), -12);
  EXPECT_EQ(api.API_PrivateProfileInt(Stored("p.ini"), "Main", "big", 7), 2147483647);
  EXPECT_EQ(api.API_PrivateProfileInt(Stored("p.ini"), "Main", "k", 7), 0);
  EXPECT_EQ(api.API_PrivateProfileInt(Stored("gone.ini"), "Main", "n", 7), 7);
  std::string twoLines(1100, 'x');
  twoLines.append("\r\n[Main2]");
  api.API_PrivateProfileString(Stored("p.ini"), "Main", "long", "", twoLines);
  EXPECT_EQ(get("long"), std::string(1024, 'x'));
}

TEST(ProfileText, StoresWhereTheKeyBelongs) {
  struct Case {
    const char* text;
    const char* section;
    const char* expected;
  };
  const Case cases[] = {{"", "A", "[A]\r\nk=v\r\n"},
                        {"[A]\r\nK = old\r\n", "a", "[A]\r\nK =v\r\n"},
                        {"[A]\r\nm=1\r\n\r\n[B]\r\nk=2\r\n", "A", "[A]\r\nm=1\r\nk=v\r\n\r\n[B]\r\nk=2\r\n"},
                        {"[A]\r\nm=1", "A", "[A]\r\nm=1\r\nk=v\r\n"},
                        {"[A]\nm=1\n", "C", "[A]\nm=1\n[C]\r\nk=v\r\n"}};
  for (const Case& c : cases) {
    ProfileFile profile{std::string(c.text)};
    profile.Value(c.section, "k", "v");
    EXPECT_EQ(profile.Text(), c.expected);
    EXPECT_EQ(profile.Value(c.section, "k"), "v");
  }
}

TEST(MousePointer, NestedPointersComeBackInReverseOrder) {
  Host() = HostServices();
  {
    clsMousePointer outer(11);
    clsMousePointer inner;
    EXPECT_EQ(inner.PointerType(), 0);
    inner.PointerType(5);
    EXPECT_EQ(inner.PointerType(), 5);
  }
  std::string set;
  Host().SetMousePointer = [&](std::int16_t type) { set += std::to_string(type); };
  { const clsMousePointer probe; }
  EXPECT_EQ(set, "0") << "the pointer of before is what is remembered";
  Host() = HostServices();
}

TEST(HostDefaults, AnswerWithCaution) {
  Host() = HostServices();
  const clsCommon common;
  EXPECT_EQ(common.MsgBox("?", 36, ""), 7);
  EXPECT_EQ(common.MsgBox("!", 16, ""), 1);
  clsCommonDialog dialog;
  dialog.ShowOpen();
  dialog.CancelError = true;
  try {
    dialog.ShowSave();
    ADD_FAILURE();
  } catch (const Error& error) {
    EXPECT_EQ(error.Number(), 32755);
  }
}

}  // namespace
}  // namespace orve::test
