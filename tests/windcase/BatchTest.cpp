// A batch over many cases, one of them corrupt.
#include <BuiltInEngines.h>
#include <Workers.h>
#include <csignal>
#include <cstdlib>
#include <gtest/gtest.h>
#include <map>
#include <string>

#include "support/FakeComponents.h"
#include "windcase/Program.h"

namespace orve::test {

namespace {

// The sanitizers keep freed memory for a while, and are slow.
#ifdef ORVE_SANITIZE
constexpr bool kLongRuns = false;
#else
constexpr bool kLongRuns = true;
#endif

class Batch : public Program {
 protected:
  // Cases that differ in plan, pitch, height and site.
  void MakeCases(int count) const {
    MakeShed("first.wlc");
    std::filesystem::create_directory(Path("cases"));
    const PrivateFolder settings;
    RegisterBuiltInEngines();
    const auto windCase = CreateCurrentCase();
    windCase->Initialize_BreApps();
    ASSERT_TRUE(windCase->OpenExisting(Path("first.wlc")));
    for (int i = 0; i < count; ++i) {
      windCase->BuildingDimensions()->Face1And3_Length(static_cast<float>(20 + i % 37));
      windCase->BuildingDimensions()->Roof_Pitch(static_cast<float>(6 + i % 30));
      windCase->BuildingDimensions()->Roof_Height(static_cast<float>(60 + i % 23) / 10);
      windCase->DynamicPressure()->SiteAltitude(static_cast<float>(i % 200));
      windCase->Location(Path("cases/case " + std::to_string(i) + ".wlc"));
      windCase->Save();
    }
    ReleaseProcess();
  }

  /// The number that stands before a text.
  static double NumberBefore(const std::string& text, const std::string& mark) {
    const std::size_t end = text.find(mark);
    if (end == std::string::npos) return -1;
    const std::size_t blank = text.find_last_of(" \n", end - 1);
    const std::size_t begin = blank == std::string::npos ? 0 : blank + 1;
    return TextToDouble(text.substr(begin, end - begin));
  }
};

TEST_F(Batch, GoesOnPastACorruptCase) {
  const int count = kLongRuns && std::getenv("ORVE_LONG_TESTS") != nullptr ? 1000 : 60;
  MakeCases(count - 1);
  std::string corrupt = Content("cases/case 7.wlc");
  corrupt.replace(corrupt.find("Roof_Height="), 14, "Roof_Height=?");
  Write("cases/a corrupt.wlc", corrupt);
  Write("cases/notes.txt", "no case");
  const std::string recent = Content("config/windcase/ORVE_BS6399_2.INI");

  const Ending ending = Run({"batch", "cases", "--jobs", "2"});
  EXPECT_EQ(ending.code, 1);
  EXPECT_EQ(ending.out.find("failed: a corrupt.wlc: "), 0U) << ending.out;
  EXPECT_NE(ending.out.find("Roof_Height"), std::string::npos) << ending.out;
  EXPECT_EQ(NumberBefore(ending.out, " cases, 1 failed"), count) << ending.out;
  EXPECT_EQ(NumberBefore(ending.out, " zones"), (count - 1) * 52) << ending.out;
  EXPECT_EQ(Content("config/windcase/ORVE_BS6399_2.INI"), recent);
  RecordProperty("summary", ending.out);
  std::cout << ending.out;
#ifndef ORVE_SANITIZE
  EXPECT_LT(NumberBefore(ending.out, " MB at the end") - NumberBefore(ending.out, " MB after"), 1)
      << ending.out;
#endif
}

TEST_F(Batch, GivesTheSameResultsAsOneCaseByItself) {
  MakeCases(3);
  const std::string one = Output({"batch", "cases", "--jobs", "1", "--results", "one"});
  const std::string more = Output({"batch", "cases", "--jobs", "3", "--results", "more"});
  EXPECT_EQ(one.substr(0, one.find(" s in ") - 6), more.substr(0, one.find(" s in ") - 6));
  for (const char* name : {"case 0.wlc", "case 1.wlc", "case 2.wlc"}) {
    const std::string stored = std::string(name) + ".results.json";
    EXPECT_EQ(Content("one/" + stored), Content("more/" + stored));
    const Ending check = Run({"check", std::string("cases/") + name, "--results", "one/" + stored});
    EXPECT_EQ(check.code, 0) << check.out;
  }
}

TEST(Workers, CountAJobThatEndsItsProcessAsFailed) {
  std::map<std::uint32_t, bool> failed;
  const auto work = [](int) -> windcase::Work {
    return [](std::uint32_t job) {
      if (job % 10 == 3) std::raise(SIGKILL);
      return windcase::JobOutcome();
    };
  };
  windcase::RunJobs(40, 2, work, [&](const windcase::JobOutcome& outcome) {
    EXPECT_TRUE(failed.emplace(outcome.job, outcome.failed).second) << outcome.job;
  });
  EXPECT_EQ(failed.size(), 40U);
  for (const auto& [job, hasFailed] : failed) EXPECT_EQ(hasFailed, job % 10 == 3) << job;
}

}  // namespace

}  // namespace orve::test
