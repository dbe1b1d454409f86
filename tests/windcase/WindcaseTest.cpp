// The commands for one case, or two, through the real program.
#include <BuiltInEngines.h>
#include <fstream>
#include <gtest/gtest.h>
#include <string>
#include <vector>

#include "support/FakeComponents.h"
#include "windcase/Program.h"

namespace orve::test {

namespace {

using Words = std::vector<std::string>;

bool Has(const std::string& text, const std::string& part) {
  return text.find(part) != std::string::npos;
}

/// An input as `show --json` prints it.
std::string Shown(const std::string& key, const std::string& value) {
  return "\"" + key + "\": \"" + value + "\"";
}

/// The first words of the lines, up to two blanks.
Words FirstColumn(const std::string& table) {
  Words words;
  std::size_t begin = 0;
  for (std::size_t end = table.find('\n'); end != std::string::npos; end = table.find('\n', begin)) {
    const std::string line = table.substr(begin, end - begin);
    words.push_back(line.substr(0, line.find("  ")));
    begin = end + 1;
  }
  return words;
}

TEST_F(Program, GivesTheLibrarysLoadsAfterThreeSetLines) {
  MakeShed("shed.wlc");
  const std::string table = Output({"loads", "shed.wlc"});
  const std::string json = Output({"loads", "shed.wlc", "--json", "--area", "walls", "--face", "2"});
  EXPECT_FALSE(Has(json, "Roof"));
  EXPECT_FALSE(Has(json, "Face 1"));

  const PrivateFolder settings;
  RegisterBuiltInEngines();
  const auto windCase = CreateCurrentCase();
  windCase->Initialize_BreApps();
  ASSERT_TRUE(windCase->OpenExisting(Path("shed.wlc")));
  const auto loads = windCase->OverallAppliedLoads();
  int zones = 0;
  for (const BuildingAreas area : {BuildingAreas::baRoof, BuildingAreas::baWalls})
    for (int face = 0; face < 4; ++face)
      for (std::int16_t zone = 0; zone <= loads->ZoneIndexTo(area, Faces(face)); ++zone, ++zones) {
        const std::string overall = loads->Hybrid_OverallAppliedLoads(area, Faces(face), zone);
        EXPECT_TRUE(Has(table, "  " + overall + "\n")) << overall;
        const bool listed = area == BuildingAreas::baWalls && face == 1;
        EXPECT_TRUE(!listed || Has(json, Shown("overall", overall))) << overall;
      }
  EXPECT_EQ(zones, 52);
  ReleaseProcess();
}

TEST_F(Program, SetsEveryKindOfInput) {
  Output({"new", "a.wlc", "Description=Shed [1]"});
  struct Set {
    const char* assignment;
    std::string shown;
  };
  for (const auto& [assignment, shown] : std::vector<Set>{
           {"Roof_Pitch=12.5", Shown("BuildingDimensions.Roof_Pitch", "12.5")},
           {"RoofType=6", Shown("BuildingDimensions.RoofType", "Hipped roof")},
           {"rooftype=curved ROOF", Shown("BuildingDimensions.RoofType", "Curved roof")},
           {"OrientationUnknown=False", Shown("BuildingDimensions.OrientationUnknown", "False")},
           {"SteppedWind_Span(0, 1)=6", Shown("OverallAppliedLoads.SteppedWind_Span(0, 1)", "6")},
           {"SelectedLoadType(baWalls, Face 2)=A (face 1)",
            Shown("OverallAppliedLoads.SelectedLoadType(1, 1)", "A (face 1)")},
           {"FetchesToSea(90 degrees)=12", Shown("DynamicPressure.FetchesToSea(3)", "12")},
           {"InternalCoefficientFactor_Cpi_Suction(*)=0.3",
            Shown("InternalCoefficients.InternalCoefficientFactor_Cpi_Suction(3)", "0.3")},
           {"DynamicPressure.ManualResults=True", Shown("DynamicPressure.ManualResults", "True")},
           {"DynamicPressure_q(Roof, 3)=0.9", Shown("DynamicPressure.DynamicPressure_q(Roof, 3)", "0.9")},
           {"Description=Barn", Shown("Description", "Barn")},
       }) {
    Output({"set", "a.wlc", assignment});
    EXPECT_TRUE(Has(Output({"show", "a.wlc", "--json"}), shown)) << assignment;
  }
  const std::string changed = Output({"show", "a.wlc", "--changed"});
  EXPECT_TRUE(Has(changed, "Roof_Pitch"));
  EXPECT_FALSE(Has(changed, "Wall_SideHeight"));
}

// A site reference brings its own values in before those that follow it.
TEST_F(Program, KeepsValuesSetBehindASiteReference) {
  Output({"new", "a.wlc", "GridReference=RIDGE", "SiteAltitude=33", "FetchesToSea(0)=7"});
  const std::string shown = Output({"show", "a.wlc", "--json"});
  EXPECT_TRUE(Has(shown, Shown("DynamicPressure.SiteAltitude", "33")));
  EXPECT_TRUE(Has(shown, Shown("DynamicPressure.FetchesToSea(0)", "7")));
  EXPECT_TRUE(Has(shown, Shown("DynamicPressure.CrestHeight_Z(1)", "60")));
}

TEST_F(Program, FillsANewCaseFromTheHostsDesign) {
  const Ending ending = Run({"new", "a.wlc", "Description=x", "Parent_Type=Purlin - Single", "Parent_Span=6",
                             "Parent_Centres=1.5"});
  EXPECT_EQ(ending.code, 0) << ending.err;
  EXPECT_TRUE(
      Has(Output({"show", "a.wlc", "--json"}), Shown("OverallAppliedLoads.SteppedWind_Span(0, 0)", "6")));
  EXPECT_EQ(Run({"set", "a.wlc", "Parent_Span=7"}).code, 2);
}

TEST_F(Program, RefusesWhatItDoesntUnderstandAndSavesNothing) {
  MakeShed("shed.wlc");
  const std::string before = Content("shed.wlc");
  struct Refusal {
    Words arguments;
    int code;
    const char* told;
  };
  Write("junk.wlc", "no case at all");
  Write("cut.wlc", "[WindLoadCase]\r\nDescription=x\r\n\r\n[BuildingDimensions]\r\nRoof_Pitch=\r\n");
  for (const auto& [arguments, code, told] : std::vector<Refusal>{
           {{"set", "shed.wlc", "Roof_Pitch=20", "Roof_Pich=3"}, 2, "did you mean Roof_Pitch?"},
           {{"set", "shed.wlc", "Roof_Pitch=steep"}, 2, "isn't a number"},
           {{"set", "shed.wlc", "RoofType=Thatched"}, 2, "5 \"Duo-pitched roof\""},
           {{"set", "shed.wlc", "ManualResults=True"}, 2, "DynamicPressure.ManualResults or "},
           {{"set", "shed.wlc", "FetchesToSea=3"}, 2, "FetchesToSea(WindSector)"},
           {{"set", "shed.wlc", "SteppedWind_Span(0, 1=3"}, 2, "bracket"},
           {{"set", "shed.wlc", "OverallAppliedLoads.Face=2"}, 2, "isn't stored"},
           {{"set", "shed.wlc", "Location=b.wlc"}, 2, "isn't an input"},
           {{"set", "shed.wlc", "DynamicPressure_q(Roof, 0)=1"}, 2, "ManualResults"},
           {{"set", "shed.wlc", "FetchesToSea(14)=1"}, 4, "0 to 11"},
           {{"set", "shed.wlc"}, 2, "KEY=VALUE"},
           {{"loads", "shed.wlc", "--face", "5"}, 2, "1, 2, 3 or 4"},
           {{"loads", "shed.wlc", "--area", "floor"}, 2, "roof, walls or parapet"},
           {{"loads", "nowhere.wlc"}, 3, "There is no file nowhere.wlc"},
           {{"loads", "junk.wlc"}, 3, "isn't a wind load case"},
           {{"loads", "cut.wlc"}, 3, "Roof_Pitch"},
           {{"new", "shed.wlc"}, 3, "--force"},
           {{"new", "no/such/folder/a.wlc"}, 3, "error 76"},
           {{"explain", "shed.wlc", "roof", "1", "Z"}, 2, "A, B, C, E, F, G"},
           {{"check", "shed.wlc"}, 3, "--store"},
           {{"batch", "."}, 1, "junk.wlc"},
           {{"batch", "nowhere"}, 3, "nowhere"},
           {{"paint", "shed.wlc"}, 2, "A subcommand is required"},
           {{}, 2, "A subcommand is required"},
       }) {
    const Ending ending = Run(arguments);
    const std::string name = arguments.empty() ? "" : arguments.back();
    EXPECT_EQ(ending.code, code) << name << ": " << ending.err;
    EXPECT_TRUE(Has(ending.out + ending.err, told)) << name << ": " << ending.err;
  }
  EXPECT_EQ(Content("shed.wlc"), before);
  EXPECT_TRUE(Has(Output({"--help"}), "Exit codes"));
}

TEST_F(Program, CompareNamesExactlyTheInputsThatDiffer) {
  MakeShed("a.wlc");
  MakeShed("b.wlc");
  EXPECT_TRUE(Has(Output({"compare", "a.wlc", "b.wlc"}), "The inputs are the same."));
  Output({"set", "b.wlc", "Roof_Pitch=20", "FetchesToSea(3)=2", "SteppedWind_Span(2, 1)=4",
          "InternalCoefficientFactor_Cpi_Pressure(2)=0.25"});
  const Ending ending = Run({"compare", "a.wlc", "b.wlc"});
  EXPECT_EQ(ending.code, 1);
  const Words inputs = FirstColumn(ending.out.substr(0, ending.out.find("\n\n") + 1));
  // The rule of the general case no longer stands once one of its numbers is another.
  EXPECT_EQ(inputs, (Words{"Input", "BuildingDimensions.Roof_Pitch", "DynamicPressure.FetchesToSea(3)",
                           "InternalCoefficients.EnclosedBuilding_GeneralCase",
                           "InternalCoefficients.InternalCoefficientFactor_Cpi_Pressure(2)",
                           "OverallAppliedLoads.SteppedWind_Span(2, 1)"}));
  EXPECT_TRUE(Has(ending.out, "Roof, Face 1, A"));
  EXPECT_TRUE(Has(ending.out, "Suction moved"));
}

// One file holds the values by sector, the other none, since it has all of them from the new case.
TEST_F(Program, CompareReadsWhatOneFileDoesntHold) {
  Output({"new", "a.wlc"});
  Output({"new", "b.wlc", "ObstructionHeight_Ho(5)=4"});
  const std::string out = Run({"compare", "a.wlc", "b.wlc"}).out;
  EXPECT_EQ(FirstColumn(out.substr(0, out.find("\n\n") + 1)),
            (Words{"Input", "DynamicPressure.ObstructionHeight_Ho(5)"}));
}

TEST_F(Program, CheckComparesWithStoredResults) {
  MakeShed("shed.wlc");
  Output({"check", "shed.wlc", "--store"});
  EXPECT_TRUE(Has(Output({"check", "shed.wlc"}), "All 52 zones are the same."));
  const std::string mark = "\"overall\": \"+";
  std::string stored = Content("shed.wlc.results.json");
  stored.at(stored.find(mark) + mark.size()) = '9';
  Write("other.json", stored);
  const Ending tampered = Run({"check", "shed.wlc", "--results", "other.json"});
  EXPECT_EQ(tampered.code, 1);
  EXPECT_TRUE(Has(tampered.out, "The inputs are the same."));
  EXPECT_TRUE(Has(tampered.out, "Roof, Face 1, A"));
  Output({"set", "shed.wlc", "BasicWindSpeed=23"});
  EXPECT_TRUE(Has(Run({"check", "shed.wlc"}).out, "DynamicPressure.BasicWindSpeed  22.5  23"));
  Write("broken.json", "{");
  EXPECT_EQ(Run({"check", "shed.wlc", "--results", "broken.json"}).code, 3);
}

TEST_F(Program, ExplainsALoadDownToItsTables) {
  MakeShed("shed.wlc");
  const std::string tree = Output({"explain", "shed.wlc", "roof", "1", "A"});
  for (const char* part :
       {"pe_p + pi_s governs", "= Ca \u00D7 q \u00D7 Cpe_p", "Sb \u00D7 Vs", "worst wind: 240 degrees",
        "Table 22", "[substitute table read in two public copies]",
        "Roof, Face 1, zone A: +0.348, -0.851 kN/m\u00B2"})
    EXPECT_TRUE(Has(tree, part)) << part;
  EXPECT_FALSE(Has(Output({"explain", "shed.wlc", "roof", "Face 1", "0", "--depth", "2"}), "Table 22"));
  EXPECT_TRUE(
      Has(Output({"explain", "shed.wlc", "walls", "2", "A (face 1)"}), "overall pressure = 0 kN/m\u00B2"));
  EXPECT_TRUE(Has(Output({"explain", "shed.wlc", "roof", "1", "A", "--json"}), "\"see\": "));
}

TEST_F(Program, WarnsOfLoadsThatAreTooSmallAndOfSubstitutes) {
  MakeShed("shed.wlc");
  EXPECT_TRUE(Has(Output({"loads", "shed.wlc"}), "substitute table for BS 6399-2 Table 10"));
  EXPECT_TRUE(Has(Output({"set", "shed.wlc", "Wall_GableFaces=Faces 1 and 3"}), "warning: The gable faces"));
  Output({"set", "shed.wlc", "Roof_Diagonal=0", "InternalVolume=0"});
  const std::string loads = Output({"loads", "shed.wlc"});
  EXPECT_TRUE(Has(loads, "The gable faces are Faces 1 and 3"));
  EXPECT_TRUE(Has(loads, "A coefficient is present but Ca is 0"));
  EXPECT_TRUE(Has(loads, "An internal coefficient is present but its Ca is 0"));
  // q of internal pressure is that of the side walls; the sea and a town make both ends of the window the
  // worst.
  Output({"set", "shed.wlc", "Wall_SideDiagonal=0", "Roof_Diagonal=5", "InternalVolume=4800",
          "OrientationUnknown=False", "Orientation=50", "FetchesToSea(*)=60", "FetchesToSea(0)=0.1",
          "FetchesInTown(*)=0", "FetchesInTown(1)=10", "FetchesInTown(2)=10", "FetchesInTown(3)=10",
          "FetchesInTown(4)=0.2"});
  const std::string asJson = Output({"loads", "shed.wlc", "--json"});
  Output({"sheet", "shed.wlc"});
  for (const char* part : {"their diagonal is 0: give Wall_SideDiagonal", "% below the 0."})
    for (const std::string& text : {Output({"explain", "shed.wlc", "roof", "2", "C"}),
                                    Output({"loads", "shed.wlc"}), asJson, Content("shed.html")})
      EXPECT_TRUE(Has(text, part)) << part;
  Output({"set", "shed.wlc", "Roof_Pitch=2"});
  const Ending refused = Run({"loads", "shed.wlc"});
  EXPECT_EQ(refused.code, 1);
  EXPECT_TRUE(Has(refused.out, "no load: "));
}

/// The words of a command line, with those in quotation marks kept together.
Words SplitWords(const std::string& line) {
  Words words;
  bool quoted = false;
  bool begins = true;
  for (const char c : line) {
    if (c == '"') quoted = !quoted;
    const bool blank = c == ' ' && !quoted;
    if (!blank && begins) words.emplace_back();
    begins = blank;
    if (!blank && c != '"') words.back() += c;
  }
  return words;
}

// The lines that the README shows are printed, in their order; "..." stands for those left out.
TEST_F(Program, PrintsWhatTheReadmeShows) {
  std::ifstream readme(ORVE_README);
  const std::string prompt = "$ windcase ";
  std::string printed;
  std::size_t place = 0;
  int commands = 0;
  bool shown = false;
  for (std::string line; std::getline(readme, line);) {
    const bool command = line.compare(0, prompt.size(), prompt) == 0;
    if (command) {
      printed = Output(SplitWords(line.substr(prompt.size())));
      place = 0;
      ++commands;
    }
    shown = (shown || command) && line != "```";
    if (!shown || command || line == "...") continue;
    const std::size_t found = printed.find(line + "\n", place);
    ASSERT_NE(found, std::string::npos) << line << "\n" << printed;
    place = found + line.size();
  }
  EXPECT_GE(commands, 6);
}

TEST_F(Program, ListsRecentCasesByTheirNativePaths) {
  EXPECT_TRUE(Has(Output({"recent"}), "no recent cases"));
  Output({"new", "Barn.wlc", "Description=A barn"});
  Output({"new", "shed.wlc"});
  std::filesystem::remove(Path("shed.wlc"));
  const std::string recent = Output({"recent"});
  EXPECT_TRUE(Has(recent, "A barn"));
  EXPECT_TRUE(Has(recent, Path("Barn.wlc") + "\n"));
  EXPECT_TRUE(Has(recent, "(not there)"));
  EXPECT_TRUE(std::filesystem::exists(Path("config/windcase")));
}

}  // namespace

}  // namespace orve::test
