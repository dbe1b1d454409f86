// Where figures come from, and the table files that replace them.
#include <cmath>
#include <filesystem>
#include <fstream>
#include <gtest/gtest.h>
#include <set>
#include <sstream>
#include <string>
#include <vector>

#include "coefficients/Refusal.h"
#include "coefficients/TableFile.h"
#include "coefficients/TableSet.h"
#include "common/Host.h"
#include "engines/coefficientAsking.h"

namespace orve::test {
namespace {

using namespace coefficients;

class CoefficientSource : public CoefficientAsking {};

TEST_F(CoefficientSource, GivesCornersFractionAndStatus) {
  Look(Walls, 0);
  Building(30, 15, 7);
  SourceRecord source = Source();
  EXPECT_EQ(source.standard, "BS 6399-2");
  EXPECT_EQ(source.table, "Table 5, windward and leeward");
  EXPECT_EQ(source.item, "zone Windward at Theta 0, pressure");
  EXPECT_EQ(source.status, SourceStatus::Confirmed);
  ASSERT_EQ(source.axes.size(), 1U);
  EXPECT_EQ(source.axes[0].name, "D/H");
  EXPECT_EQ(source.axes[0].high, 4);
  EXPECT_NEAR(source.axes[0].fraction, (15.0 / 7 - 1) / 3, 1e-12);
  EXPECT_EQ(source.corners, (std::vector<double>{0.85, 0.6}));
  EXPECT_EQ(source.StatusText(), "confirmed by one printed figure that fits the pair");

  // The weaker of the two corners rules: A isolated is recalled, A funnelling is consistent.
  Look(Walls, 90, 0);
  engine->Dim_gap(5);
  EXPECT_EQ(Source().status, SourceStatus::Recalled);
  Look(Walls, 90, 1);
  EXPECT_EQ(Source().status, SourceStatus::Consistent);
  EXPECT_EQ(Source().note, "0 isolated, 1 funnelling");
  engine->Method(1);
  EXPECT_NE(Source().note.find("figures of the standard method"), std::string::npos);
}

TEST_F(CoefficientSource, SubstitutesAreNeverShownAsFiguresOfTheStandard) {
  engine->Roof_Pitch(6);
  const struct {
    int shape;
    const char* standard;
    const char* replaces;
  } cases[] = {
      {Mono, "EN 1991-1-4", "BS 6399-2 Table 9"},
      {Duo, "EN 1991-1-4", "BS 6399-2 Table 10"},
      {Hipped, "EN 1991-1-4", "BS 6399-2 Table 11"},
  };
  for (const auto& test : cases) {
    Look(test.shape, 0);
    engine->Suction(true);
    const SourceRecord source = Source();
    EXPECT_EQ(source.standard, test.standard);
    EXPECT_EQ(source.status, SourceStatus::Substitute);
    EXPECT_EQ(source.replaces, test.replaces);
    EXPECT_NE(source.caution, "");
    EXPECT_EQ(source.axes.at(0).unit, "degrees");
    EXPECT_NEAR(source.axes.at(0).fraction, 0.1, 1e-12);
    EXPECT_EQ(source.corners.size(), 2U);
  }
  engine->Parapet_H(2);
  Look(Flat, 0);
  EXPECT_EQ(Source().standard, "recalled figures");
  EXPECT_EQ(Source().status, SourceStatus::Substitute);

  engine->Barrel_r(3);
  for (const double theta : {0.0, 90.0})
    for (int zone = 0; zone < 6; ++zone) {
      Look(Curved, theta, zone);
      EXPECT_EQ(Source().status, SourceStatus::Substitute);
      EXPECT_NE(Source().replaces.find("curved roofs"), std::string::npos);
    }
}

TEST_F(CoefficientSource, SaysWhatAStatusRestsOn) {
  const struct {
    int shape;
    double theta;
    const char* zone;
    float pitch;
    bool suction;
    const char* status;
  } cases[] = {
      {Walls, 180, "Leeward", 0, true, "recalled with high confidence"},
      {Walls, 90, "B", 0, true, "consistent with a sister table"},
      {Flat, 0, "A", 0, true, "consistent with a published calculation"},
      {Parapet, 0, "A", 0, false, "consistent with EN 1991-1-4, walls at least ten times as long as high"},
      {Mono, 180, "C", 30, true, "substitute table read in two public copies"},
      {Mono, 180, "C", 45, true, "substitute table read in two public copies, another differs"},
      {Duo, 0, "E", 15, false, "substitute table read in two public copies, another differs"},
      {Duo, 0, "G", 15, false, "substitute table read in two public copies"},
      {Hipped, 0, "A", 30, false, "substitute table read in two public copies"},
      {Hipped, 0, "B", 30, false, "substitute table read in one public copy"},
      {Hipped, 0, "F", 15, true, "substitute table read in one public copy, another differs"},
      {Hipped, 0, "G", 30, true, "substitute table read in two public copies, another differs"},
      {Curved, 0, "C", 0, true, "substitute table as recalled"},
      {Curved, 90, "A", 0, true, "substitute table that is consistent with a published calculation"},
  };
  engine->Barrel_r(3);
  for (const auto& test : cases) {
    engine->Roof_Pitch(test.pitch);
    ASSERT_TRUE(LookAt(test.shape, test.theta, test.zone)) << test.zone;
    engine->Suction(test.suction);
    EXPECT_EQ(Source().StatusText(), test.status) << Source().Text();
  }
  for (const char* name : {"Table 5", "Table 8", "Table 21"})
    for (const Block& block : FindBuiltInTable(name)->blocks)
      EXPECT_TRUE(!block.origin || block.origin->substitute || !block.basis.empty()) << block.heading;
}

TEST_F(CoefficientSource, ShowsABlankThatCountsAsZeroAsABlank) {
  engine->Roof_Pitch(-10);
  ASSERT_TRUE(LookAt(Duo, 0, "E"));
  EXPECT_FLOAT_EQ(Pressure(), 0.1F);
  const SourceRecord source = Source();
  EXPECT_EQ(source.corners, (std::vector<double>{0, 0.2}));
  EXPECT_EQ(source.blankCorners, (std::vector<std::size_t>{0}));
  EXPECT_NE(source.Text().find("(0.500): blank 0.2 ["), std::string::npos) << source.Text();
  EXPECT_NE(source.Text().find("a blank counts as 0"), std::string::npos);
}

TEST_F(CoefficientSource, NamesRecalledFiguresThatAreStrongerThanASubstitute) {
  std::set<std::string> found;
  for (const char* name : {"Table 9", "Table 10", "Table 11"})
    for (const Block& block : FindBuiltInTable(name)->blocks)
      for (std::size_t row = 0; row < block.rowCount; ++row)
        for (std::size_t column = 0; column < block.columns; ++column)
          for (const bool suction : {true, false}) {
            const Cell& cell = block.rows[row].cells[column];
            const double stronger = suction ? cell.strongerSuction : cell.strongerPressure;
            if (IsBlank(stronger)) continue;
            EXPECT_GT(std::fabs(stronger), std::fabs(suction ? cell.suction : cell.pressure));
            found.insert(std::string(name) + " " + std::string(block.letters[column]) + " " +
                         InputText(block.rows[row].parameter) + " " + InputText(stronger));
          }
  std::set<std::string> recalled;
  for (const std::string name : {"Table 9 ", "Table 10 "})
    for (const char* cell : {"A 5 -1.8", "A 30 0.8", "A 45 0.8", "A 60 0.8", "B 60 0.8", "C 60 0.8"})
      recalled.insert(name + cell);
  EXPECT_EQ(found, recalled);

  const struct {
    float pitch;
    bool suction;
    std::vector<std::string> texts;
  } cases[] = {
      {5, true, {"-1.7 for the recalled -1.8 of BS 6399-2 Table 10 (zone A, pitch 5 degrees)"}},
      {6, true, {"-1.7 for the recalled -1.8 of BS 6399-2 Table 10 (zone A, pitch 5 degrees)"}},
      {15, true, {}},
      {50,
       false,
       {"0.7 for the recalled 0.8 of BS 6399-2 Table 10 (zone A, pitch 45 degrees)",
        "0.7 for the recalled 0.8 of BS 6399-2 Table 10 (zone A, pitch 60 degrees)"}},
  };
  Look(Duo, 0, 0);
  for (const auto& test : cases) {
    engine->Roof_Pitch(test.pitch);
    engine->Suction(test.suction);
    std::vector<std::string> texts;
    for (const WeakerFigure& figure : Source().weaker) {
      texts.push_back(figure.Text());
      EXPECT_NE(Source().Text().find("weaker: " + figure.Text()), std::string::npos);
    }
    EXPECT_EQ(texts, test.texts) << test.pitch;
  }
}

std::string ReadSample(const std::string& name) {
  std::ifstream file(std::filesystem::path(ORVE_DATA_FOLDER) / "tables" / name, std::ios::binary);
  std::ostringstream text;
  text << file.rdbuf();
  return text.str();
}

TEST(TableFile, SamplesHoldTheBuiltInFigures) {
  for (const char* name : {"Table 5", "Table 8", "Table 9", "Table 10", "Table 11", "Table 21"}) {
    std::string file(name);
    std::erase(file, ' ');
    const TableFileResult result = ReadTableText(ReadSample(file + ".sample.txt"));
    ASSERT_EQ(result.index(), 0U) << name << " line " << std::get<TableFault>(result).line << ": "
                                  << std::get<TableFault>(result).reason;
    const Table& read = std::get<0>(result)->table;
    const Table& builtIn = *FindBuiltInTable(name);
    EXPECT_TRUE(read.blocks[0].origin->substitute);
    for (std::size_t b = 0; b < builtIn.blockCount; ++b) {
      ASSERT_EQ(read.blocks[b].rowCount, builtIn.blocks[b].rowCount) << name;
      for (std::size_t r = 0; r < builtIn.blocks[b].rowCount; ++r) {
        EXPECT_EQ(read.blocks[b].rows[r].parameter, builtIn.blocks[b].rows[r].parameter);
        for (std::size_t c = 0; c < builtIn.blocks[b].columns; ++c) {
          const Cell& one = read.blocks[b].rows[r].cells[c];
          const Cell& other = builtIn.blocks[b].rows[r].cells[c];
          EXPECT_TRUE(one.suction == other.suction || (IsBlank(one.suction) && IsBlank(other.suction)))
              << name;
          EXPECT_TRUE(one.pressure == other.pressure || (IsBlank(one.pressure) && IsBlank(other.pressure)))
              << name;
        }
      }
    }
  }
}

constexpr const char* kHead =
    "Table: Table 21\nStandard: BS 6399-2\nEdition: 1997\nChecked by: the office\nChecked on: 2026-11-24\n";
constexpr const char* kNoCorner =
    "[without return corner]\nsolidity A B C D\n0.8 1.2 1.2 1.2 1.2\n1 3.3 2.2 1.6 1.1\n";
constexpr const char* kCorner = "[with return corner]\nsolidity A B C D\n1 2.2 1.9 1.5 1.2\n";

TEST(TableFile, FaultsNameLineAndReason) {
  const std::string head = kHead, whole = head + kNoCorner + kCorner;
  const auto with = [&whole](const std::string& from, const std::string& to) {
    std::string text = whole;
    return text.replace(text.find(from), from.size(), to);
  };
  const struct {
    std::string text;
    std::size_t line;
    std::string reason;
  } cases[] = {
      {"", 0, "the head lacks \"Table\""},
      {with("Table 21", "Table 22"), 1, "is no table that can be replaced"},
      {with("Edition:", "Editon:"), 3, "\"Editon\" is no line of the head"},
      {with("2026-11-24", "24 Nov"), 5, "is no day"},
      {with("Checked by: the office\n", ""), 5, "the head lacks \"Checked by\""},
      {with("[with return", "[mit return"), 10, "is no section of Table 21"},
      {with("[with return", "[without return"), 10, "stands twice"},
      {head + kNoCorner, 9, "section \"with return corner\" is missing"},
      {with("solidity A B C D", "solidity A B C"), 7, "zone \"D\" is missing"},
      {with("solidity A B C D", "solidity A B C E"), 7, "\"E\" is no zone"},
      {with("solidity A B C D", "solidity A B C C"), 7, "zone \"C\" stands twice"},
      {with("solidity A B C D", "pitch A B C D"), 7, "instead of \"solidity\""},
      {with("1 3.3 2.2 1.6 1.1", "1 3.3 2.2 1.6"), 9, "3 cells instead of 4"},
      {with("1 3.3 2.2 1.6 1.1", "0.8 3.3 2.2 1.6 1.1"), 9, "doesn't rise"},
      {with("1 3.3 2.2 1.6 1.1", "nan 3.3 2.2 1.6 1.1"), 9, "\"nan\" is not a number"},
      {with("3.3", "3,3"), 9, "zone A: \"3,3\" is not a number"},
      {with("3.3", "33"), 9, "beyond 5"},
      {with("3.3", "-3.3"), 9, "net and positive"},
      {with("1 2.2 1.9 1.5 1.2\n", ""), 11, "has no rows"},
  };
  for (const auto& test : cases) {
    const TableFileResult result = ReadTableText(test.text);
    ASSERT_EQ(result.index(), 1U) << test.reason;
    EXPECT_EQ(std::get<1>(result).line, test.line) << std::get<1>(result).reason;
    EXPECT_NE(std::get<1>(result).reason.find(test.reason), std::string::npos) << std::get<1>(result).reason;
  }

  const std::string duo = ReadSample("Table10.sample.txt");
  const auto duoWith = [&duo](const std::string& from, const std::string& to) {
    std::string text = duo;
    return text.replace(text.find(from), from.size(), to);
  };
  for (const auto& [text, reason] : {std::pair{duoWith("\n-5 ", "\n-6 "), "-5 and 5"},
                                     std::pair{duoWith("0.0/+0.7", "0.0     "), "which case it is"},
                                     std::pair{duoWith("-1.7/+0.0", "+1.7/+0.0"), "is above 0"}}) {
    const TableFileResult result = ReadTableText(text);
    ASSERT_EQ(result.index(), 1U) << reason;
    EXPECT_NE(std::get<1>(result).reason.find(reason), std::string::npos) << std::get<1>(result).reason;
  }
}

/// A data folder of its own for one test.
class CoefficientTableFolder : public CoefficientAsking {
 protected:
  CoefficientTableFolder() {
    std::filesystem::create_directories(m_folder / "wzfdata");
    Host().SystemDirectory = [this] { return m_folder.string(); };
  }
  ~CoefficientTableFolder() override {
    Host().SystemDirectory = nullptr;
    std::filesystem::remove_all(m_folder);
  }

  /// Puts a table file in the folder and makes the engine anew.
  void Put(const std::string& name, const std::string& text) {
    std::ofstream(m_folder / "wzfdata" / name, std::ios::binary) << text;
    engine = CreateCoefficientEngine();
    Building(30, 15, 1);
  }

  std::filesystem::path m_folder =
      std::filesystem::path(::testing::TempDir()) /
      ("orve_tables_" + std::string(::testing::UnitTest::GetInstance()->current_test_info()->name()));
};

TEST_F(CoefficientTableFolder, GoodFileReplacesTableAndSource) {
  Put("Table21.txt", std::string(kHead) + kNoCorner + kCorner);
  Look(Parapet, 0, 1);
  EXPECT_FLOAT_EQ(Pressure(), 1.9F);
  EXPECT_EQ(Source().standard, "BS 6399-2");
  EXPECT_EQ(Source().edition, "1997; checked by the office on 2026-11-24, table file");
  EXPECT_EQ(Source().StatusText(), "confirmed by the office's table file");
}

TEST_F(CoefficientTableFolder, FaultyFileBarsItsShapesAtCpeAlone) {
  Put("Table10.txt", std::string(kHead) + "[side]\n");
  Look(Duo, 0, 1);
  EXPECT_TRUE(engine->Valid());
  EXPECT_EQ(engine->ZoneString(), "B");
  EXPECT_NE(Refusal().find("Table10.txt, line 6: \"side\" is no section of Table 21"), std::string::npos)
      << Refusal();
  Look(Walls, 0);
  EXPECT_EQ(Refusal(), "");

  Put("Table10.txt", std::string(kHead) + kNoCorner + kCorner);
  Look(Duo, 0);
  EXPECT_NE(Refusal().find("the head names another table"), std::string::npos) << Refusal();
}

TEST_F(CoefficientTableFolder, BlankCellIsRefusedOnlyWhereItIsNeeded) {
  std::string text = std::string(kHead) + kNoCorner + kCorner;
  Put("Table21.txt", text.replace(text.find("2.2 1.9"), 7, "-   1.9"));
  Look(Parapet, 0, 0);
  EXPECT_NE(Refusal().find(
                "Table 21 (free-standing walls and parapets), zone A at Theta 0: the table has no figure"),
            std::string::npos)
      << Refusal();
  Look(Parapet, 0, 1);
  EXPECT_EQ(Refusal(), "");
}

TEST_F(CoefficientTableFolder, PrintSettlesTheParapetRatio) {
  const std::string sample = ReadSample("Table8.sample.txt");
  const std::pair<const char*, double> cases[] = {{"ratio", -1.8}, {"h/b  ", -1.8}, {"h/H  ", -1.75}};
  for (const auto& [name, figure] : cases) {
    std::string text = sample;
    Put("Table8.txt", text.replace(text.find("\nratio") + 1, 5, name));
    Building(30, 15, 10);
    engine->Parapet_H(1);
    Look(Flat, 0);
    EXPECT_NEAR(Suction(), figure, 1e-6) << name;
  }
}

}  // namespace
}  // namespace orve::test
