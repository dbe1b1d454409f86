// Files that other people and programs touch: names, outputs, damaged texts, two writers.
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

#include "CaseTextCheck.h"
#include "windcase/Program.h"

namespace orve::test {

namespace {

namespace fs = std::filesystem;
using Words = std::vector<std::string>;

/// One line as it would be typed, its exit code and a text that it prints.
struct Step {
  Words words;
  int code;
  std::string printed;
};

class Files : public Program {
 protected:
  void Follow(const std::vector<Step>& steps) const {
    for (const Step& step : steps) {
      std::string line;
      for (const std::string& word : step.words) line += word + " ";
      const Ending ending = Run(step.words);
      EXPECT_EQ(ending.code, step.code) << line << ending.err;
      EXPECT_NE((ending.out + ending.err).find(step.printed), std::string::npos)
          << line << ending.out << ending.err;
    }
  }
  mode_t Rights(const std::string& name) const {
    struct stat status {};
    return ::stat(Path(name).c_str(), &status) == 0 ? status.st_mode & 0777 : 0;
  }
  bool Holds(const std::string& name, const std::string& text) const {
    return Content(name).find(text) != std::string::npos;
  }
};

std::string Replaced(std::string text, const std::string& from, const std::string& to) {
  const std::size_t at = text.find(from);
  EXPECT_NE(at, std::string::npos) << from;
  return text.replace(at, from.size(), to);
}

TEST_F(Files, MeansOneFileByANameHoweverItIsUsed) {
  fs::create_directories(Path("other/deep"));
  fs::create_directory_symlink("other/deep", Path("link"));
  const std::string there = "is there already";
  Follow({{{"new", "shed.wlc", "Description=good"}, 0, "shed.wlc is made"},
          {{"new", "SHED.wlc", "Description=bad"}, 3, there},
          {{"new", "shed.wlc ", "Description=bad"}, 3, there},
          {{"new", "other/b.wlc", "Description=good"}, 0, ""},
          {{"new", "other\\b.wlc", "Description=bad"}, 3, there},
          {{"new", "link/../b.wlc", "Description=bad"}, 3, there},
          {{"new", "b.wlc"}, 0, ""},
          {{"set", "link/../b.wlc", "Roof_Pitch=33"}, 0, ""},
          {{"set", "SHED.WLC", "Roof_Pitch=12"}, 0, ""},
          {{"new", "SHED.wlc", "Description=wanted", "--force"}, 0, "shed.wlc is made"}});
  EXPECT_TRUE(Holds("shed.wlc", "Description=wanted"));
  EXPECT_TRUE(Holds("other/b.wlc", "Description=good"));
  EXPECT_TRUE(Holds("other/b.wlc", "Roof_Pitch=33"));
  EXPECT_FALSE(Holds("b.wlc", "Roof_Pitch=33"));
}

TEST_F(Files, WritesOutputsOverNoCaseAndUnaskedOverNothing) {
  MakeShed("shed.wlc");
  fs::copy(Path("shed.wlc"), Path("case.html"));
  fs::permissions(Path("shed.wlc"), fs::perms(0640));
  Write("open.html", "mine");
  fs::permissions(Path("open.html"), fs::perms(0666));
  const std::string before = Content("shed.wlc");
  const std::string isCase = "is a wind load case";
  const std::string there = "is there already";
  Follow({{{"sheet", "shed.wlc", "-o", "shed.wlc", "--force"}, 3, isCase},
          {{"sheet", "shed.wlc", "-o", "SHED.WLC", "--force"}, 3, isCase},
          {{"sheet", "shed.wlc", "-o", "case.html", "--force"}, 3, isCase},
          {{"sheet", "case.html", "--force"}, 3, isCase},
          {{"check", "shed.wlc", "--store", "--results", "shed.wlc", "--force"}, 3, isCase},
          {{"sheet", "shed.wlc", "-o", "open.html"}, 3, there},
          {{"sheet", "shed.wlc", "-o", "open.html", "--force"}, 0, ""},
          {{"check", "shed.wlc", "--store"}, 0, ""},
          {{"check", "shed.wlc", "--store"}, 3, there},
          {{"check", "shed.wlc", "--store", "--force"}, 0, ""},
          {{"batch", ".", "--results", "."}, 1, there},
          {{"sheet", "shed.wlc", "-o", "none/at/all.html"}, 3, "error 76"}});
  EXPECT_EQ(Content("shed.wlc"), before);
  EXPECT_EQ(Content("case.html"), before);
  for (const char* output : {"open.html", "shed.wlc.results.json"})
    EXPECT_EQ(Rights(output) & ~mode_t{0640}, 0U) << output;
  EXPECT_EQ(Rights("config/windcase"), mode_t{0700});
}

TEST_F(Files, RefusesATextThatLosesLinesAndRepairsIt) {
  MakeShed("shed.wlc");
  const std::string sound = Replaced(Content("shed.wlc"), "Description=", "Description=a shed");
  struct Damage {
    const char* from;
    const char* to;
    const char* printed;
    std::string meant;  ///< A line of the repaired file.
  };
  const std::vector<Damage> damages = {
      {"a shed", "see [BuildingDimensions]", "damaged.wlc, line 2 ",
       "Description=%%see %5BBuildingDimensions]\r\n"},
      {"a shed", "%%a%0Ab [c]", "line 2 ", "Description=%%a%0Ab %5Bc]\r\n"},
      {"a shed\r", "a shed", "line 2 ", "Description=a shed\r\n"},
      {"a shed\r\n", "a shed\r", "line 2 ", "Description=a shed\r\n"},
      {"[DynamicPressure]", "[ DynamicPressure ]", "the head of a section", "[DynamicPressure]\r\n"},
      {"[DynamicPressure]", "[DynamicPressure] site", "behind the head", "[DynamicPressure]\r\nsite\r\n"},
      {"Roof_Pitch=15", " Roof_Pitch =15", "blanks around its key", "\r\nRoof_Pitch=15\r\n"},
      {"Roof_Pitch=15", "Roof_Pitch=15\r\nRoof_Pitch=16", "Roof_Pitch a second time", "Roof_Pitch=15\r\n"},
      {"Roof_Pitch=15", "[New]\r\n[BuildingDimensions]\r\nRoof_Pitch=15", "second head",
       "Roof_Pitch=15\r\n"}};
  for (const Damage& damage : damages) {
    SCOPED_TRACE(damage.to);
    const std::string damaged = Replaced(sound, damage.from, damage.to);
    Write("damaged.wlc", damaged);
    Follow({{{"set", "damaged.wlc", "Roof_Height=8"}, 3, damage.printed},
            {{"loads", "damaged.wlc"}, 3, "windcase repair damaged.wlc"},
            {{"sheet", "damaged.wlc"}, 3, "would be lost"},
            {{"show", "damaged.wlc"}, 0, "warning: "}});
    EXPECT_EQ(Content("damaged.wlc"), damaged);
    Follow({{{"repair", "damaged.wlc"}, 0, damage.printed + (damage.printed[0] == 'd' ? 13 : 0)},
            {{"repair", "damaged.wlc"}, 0, "nothing to repair"},
            {{"set", "damaged.wlc", "Roof_Height=8"}, 0, "7 -> 8"}});
    EXPECT_TRUE(Holds("damaged.wlc", damage.meant)) << Content("damaged.wlc").substr(0, 200);
    EXPECT_TRUE(Holds("damaged.wlc", "\r\nBasicWindSpeed=22.5\r\n"));
  }
  EXPECT_EQ(Content("damaged.wlc.before-repair"), Replaced(sound, damages[0].from, damages[0].to));
  EXPECT_TRUE(fs::exists(Path("damaged.wlc.before-repair-9")));

  const std::string hopeless = Replaced(sound, "Roof_Pitch=15", "Roof_Pitch=[15");
  Write("damaged.wlc", hopeless);
  Follow({{{"repair", "damaged.wlc"}, 3, "Roof_Pitch in [BuildingDimensions]"}});
  EXPECT_EQ(Content("damaged.wlc"), hopeless);
}

TEST(CaseText, HasNoFaultsInWhatTheLibraryReadsAsItIsMeant) {
  using windcase::CheckCaseText;
  for (const char* text : {"[A]\nKey=1\n\n[B]\nno key\n", "\xEF\xBB\xBF[A]\r\nKey=%%x%5B\r\r\n\r\n", "",
                           "[Own]\r\n a = 1\r\n a = 2"}) {
    EXPECT_TRUE(CheckCaseText(text).empty()) << text;
    EXPECT_TRUE(CheckCaseText(windcase::MeantCaseText(text)).empty()) << text;
  }
  for (const char* text :
       {"a[b\n[c\n[d]e[\r[[e]]\nk[=[\n", "[WindLoadCase]\n[\n]=[\r\r[", "\r[ ]\n[]x=[y]\r\n"})
    EXPECT_TRUE(CheckCaseText(windcase::MeantCaseText(text)).empty()) << windcase::MeantCaseText(text);
}

TEST_F(Files, KeepsBothOfTwoChangesAtOnce) {
  Output({"new", "a.wlc"});
  for (int i = 1; i <= 15; ++i) {
    const std::string number = std::to_string(i);
    const pid_t other = fork();
    if (other == 0) _exit(Run({"set", "a.wlc", "Roof_Pitch=" + number}).code);
    EXPECT_EQ(Run({"set", "a.wlc", "Face1And3_Length=" + number}).code, 0);
    int status = 0;
    waitpid(other, &status, 0);
    EXPECT_EQ(status, 0);
    EXPECT_TRUE(Holds("a.wlc", "Roof_Pitch=" + number + "\r") &&
                Holds("a.wlc", "Face1And3_Length=" + number + "\r"))
        << i;
  }
}

TEST_F(Files, TakesWhatStrangersMadeForWhatItIs) {
  MakeShed("shed.wlc");
  std::string strange = Replaced(Content("shed.wlc"), "Roof_Pitch=", "FutureKey(x=1\r\nRoof_Pitch=");
  strange = Replaced(strange, "Description=", "Description=a\x1B]0;owned\x07 \xE2\x80\xAE");
  Write("strange.wlc", strange + "[X]\r\nabc\r\n\r\ndef\r\n");
  Write("long.wlc",
        Replaced(Content("shed.wlc"), "Description=", "Description=" + std::string(1000000, 'x')));
  Output({"set", "shed.wlc", "DynamicPressure.ManualResults=True", "DynamicPressure_q(*, *)=1",
          "SizeEffectFactor_Ca(*, *)=1"});
  Write("shed.wlc",
        Replaced(Content("shed.wlc"), "DynamicPressure_q(Roof, 0)=1", "DynamicPressure_q(Roof, 0)=inf"));
  ASSERT_EQ(::mkfifo(Path("pipe").c_str(), 0600), 0);
  Write("large.wlc", "");
  fs::resize_file(Path("large.wlc"), 3000000000);
  const std::string deep(1000000, '[');
  Write("deep.json", "{\"version\":\"v\",\"inputs\":" + deep + "}");
  Write("types.json", "{\"version\":\"v\",\"inputs\":{\"a\":1},\"loads\":[]}");
  Follow({{{"show", "strange.wlc"}, 0, "a\\u001b]0;owned\\u0007 \\u202e"},
          {{"show", "strange.wlc", "--json"}, 0, "a\\u001b]0;owned\\u0007 \\u202e"},
          {{"check", "strange.wlc", "--store"}, 0, "52 zones"},
          {{"compare", "strange.wlc", "strange.wlc"}, 0, "The inputs are the same."},
          {{"check", "shed.wlc", "--store"}, 0, ""},
          {{"check", "shed.wlc"}, 0, "All 52 zones are the same."},
          {{"check", "shed.wlc", "--results", "deep.json"}, 3, "nested too deep"},
          {{"check", "shed.wlc", "--results", "types.json"}, 3, "isn't a file of stored results"},
          {{"show", "pipe"}, 3, "isn't a plain file"},
          {{"show", "/dev/zero"}, 3, "isn't a plain file"},
          {{"check", "shed.wlc", "--sheet", "pipe"}, 3, "isn't a plain file"},
          {{"batch", "."}, 1, "large.wlc is larger than 16 MB"}});
  EXPECT_TRUE(Holds("shed.wlc.results.json", "\"suction\": \"-inf\""));
  EXPECT_LT(Output({"show", "long.wlc"}).size(), 1100000U);
}

}  // namespace

}  // namespace orve::test
