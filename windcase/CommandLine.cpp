#include "CommandLine.h"

#include <CLI/CLI.hpp>
#include <orve3_bs6399_2.h>

#include "Failure.h"

namespace windcase {

namespace {

constexpr const char* kExamples = R"(Examples:
  windcase new shed.wlc
  windcase set shed.wlc "RoofType=Duo-pitched roof" Face1And3_Length=30 Face2And4_Width=15
  windcase set shed.wlc "FetchesToSea(*)=50" "SteppedWind_Span(0, 1)=6"
  windcase loads shed.wlc --area roof --face 1
  windcase explain shed.wlc walls 1 Windward
  windcase sheet shed.wlc --project "Shed, Long Lane" --author "A. Author" -o shed.html
  windcase check shed.wlc --sheet shed.html
  windcase compare before.wlc after.wlc
  windcase batch cases --jobs 4

Exit codes: 0 done; 1 done, but cases differ, a case failed or a zone has no load; 2 command line, key or
value not understood; 3 file not found, not readable or not a case; 4 refused by the library or an engine.)";

class CommandLine {
 public:
  explicit CommandLine(Options& options) : m_options(options) {
    m_app.set_version_flag("--version", orve::clsCommon().AppVersion());
    m_app.require_subcommand(1);
    m_app.footer(kExamples);
    AddEditing();
    AddReading();
    AddComparing();
    AddSheet();
  }

  std::optional<int> Parse(int argc, const char* const* argv) {
    try {
      m_app.parse(argc, argv);
      return std::nullopt;
    } catch (const CLI::ParseError& error) {
      const bool fault = m_app.exit(error) != 0;
      return static_cast<int>(fault ? ExitCode::Usage : ExitCode::Done);
    }
  }

 private:
  CLI::App* Add(Command command, const char* name, const char* help) {
    CLI::App* added = m_app.add_subcommand(name, help);
    added->callback([this, command] { m_options.command = command; });
    return added;
  }
  CLI::App* AddWithFile(Command command, const char* name, const char* help) {
    CLI::App* added = Add(command, name, help);
    added->add_option("FILE", m_options.file, "Wind load case (.wlc)")->required();
    return added;
  }
  void AddJson(CLI::App* command) { command->add_flag("--json", m_options.json, "Print JSON"); }
  void AddForce(CLI::App* command) {
    command->add_flag("--force", m_options.force, "Write over an existing file");
  }
  void AddAssignments(CLI::App* command, bool required) {
    command
        ->add_option("KEY=VALUE", m_options.assignments,
                     "An input by its name: a number, True or False, a text, or an enumeration's value or "
                     "text; indices in brackets, * for all")
        ->required(required);
  }

  void AddEditing() {
    CLI::App* create = AddWithFile(Command::New, "new", "Make a case");
    AddAssignments(create, false);
    AddForce(create);
    AddAssignments(AddWithFile(Command::Set, "set", "Change inputs of a case"), true);
    AddWithFile(Command::Repair, "repair",
                "Write a damaged case file anew as its lines are meant; the old is kept");
    CLI::App* show = AddWithFile(Command::Show, "show", "Show the inputs of a case");
    show->add_flag("--changed", m_options.changed, "Only what differs from a new case");
    AddJson(show);
  }

  void AddReading() {
    CLI::App* loads = AddWithFile(Command::Loads, "loads", "Work out the loads of all zones");
    loads->add_option("--area", m_options.area, "roof, walls or parapet");
    loads->add_option("--face", m_options.face, "1 to 4");
    AddJson(loads);
    CLI::App* explain = AddWithFile(Command::Explain, "explain", "Show why a load is what it is");
    explain->add_option("AREA", m_options.area, "roof, walls or parapet")->required();
    explain->add_option("FACE", m_options.face, "1 to 4")->required();
    explain->add_option("ZONE", m_options.zone, "The zone's name, or its position from 0")->required();
    explain->add_option("--depth", m_options.depth, "Levels of the tree to show")->check(CLI::PositiveNumber);
    AddJson(explain);
    AddJson(Add(Command::Recent, "recent", "List the recent cases"));
  }

  void AddComparing() {
    CLI::App* compare = Add(Command::Compare, "compare", "Compare two cases: inputs and loads");
    compare->add_option("A", m_options.file, "Wind load case")->required();
    compare->add_option("B", m_options.other, "Wind load case")->required();
    CLI::App* check =
        AddWithFile(Command::Check, "check", "Work a case out again and compare with its stored results");
    check->add_flag("--store", m_options.store, "Store the results");
    AddForce(check);
    check->add_option("--results", m_options.results,
                      "File of the stored results; default: FILE with .results.json added");
    check->add_option("--sheet", m_options.sheet, "Compare with this calculation sheet instead");
    CLI::App* batch = Add(Command::Batch, "batch", "Work out all cases of a folder");
    batch->add_option("FOLDER", m_options.file, "Folder with cases (.wlc)")->required();
    batch->add_option("--jobs", m_options.jobs, "Worker processes; default: one per core")
        ->check(CLI::Range(1, 256));
    batch->add_option("--results", m_options.results, "Folder to store each case's results in");
    AddForce(batch);
  }

  void AddSheet() {
    CLI::App* sheet =
        AddWithFile(Command::Sheet, "sheet", "Write the calculation sheet of a case: HTML that prints on A4");
    sheet->add_option("-o,--output", m_options.output, "File to write; default: the case's name with .html");
    sheet->add_option("--project", m_options.project, "For the head of the sheet");
    sheet->add_option("--author", m_options.author);
    sheet->add_option("--checker", m_options.checker);
    sheet->add_option("--revision", m_options.revision);
    sheet->add_option("--date", m_options.date, "Default: the day of the case's last save");
    AddForce(sheet);
  }

  Options& m_options;
  CLI::App m_app{"Wind loads on buildings to BS 6399-2", "windcase"};
};

}  // namespace

std::optional<int> ParseCommandLine(int argc, const char* const* argv, Options& options) {
  return CommandLine(options).Parse(argc, argv);
}

}  // namespace windcase
