// Making, changing and showing a case.
#include <Explain.h>
#include <algorithm>
#include <filesystem>
#include <functional>
#include <iostream>
#include <orve3_bs6399_2.h>

#include "CaseLock.h"
#include "Commands.h"
#include "Files.h"
#include "Inputs.h"
#include "PrintableText.h"
#include "Records.h"
#include "Settings.h"
#include "TextTable.h"

namespace windcase {

namespace {

// Makes the assignments and tells what they changed. Nothing is saved unless every one holds.
std::string AssignAll(OpenCase& windCase, const std::vector<std::string>& assignments, bool newCase) {
  const Inputs inputs(*windCase);
  std::string told;
  for (const std::string& text : assignments) {
    const Assignment assignment = ParseAssignment(text);
    const std::vector<Input> found = inputs.Find(assignment.key);
    const std::string before = inputs.Read(found.front());
    for (const Input& input : found) inputs.Assign(input, assignment.value, newCase);
    const std::string after = inputs.Read(found.front());
    const std::string change =
        found.size() == 1 ? before + " -> " + after : std::to_string(found.size()) + " values, now " + after;
    told += Printable(assignment.key.Text(true) + ": " + change, false) + "\n";
  }
  return told;
}

// The host's design fills a case that is still blank, and its type does so when it is set.
std::vector<std::string> DesignFirst(std::vector<std::string> assignments) {
  const auto begins = [](const char* text) {
    return [text](const std::string& assignment) { return assignment.rfind(text, 0) == 0; };
  };
  const auto rest = std::stable_partition(assignments.begin(), assignments.end(), begins("Parent_"));
  std::stable_partition(assignments.begin(), rest, std::not_fn(begins("Parent_Type")));
  return assignments;
}

void WarnOfCase() {
  for (const orve::explain::Warning& warning : orve::explain::CaseWarnings())
    std::cout << "warning: " << warning.text << "\n";
}

}  // namespace

ExitCode RunNew(const Options& options) {
  std::filesystem::path path = options.file;
  if (path.extension().empty()) path += ".wlc";
  const std::string file = ResolvedName(path.string());
  if (std::filesystem::path(file).filename() != path.filename()) path = file;
  const CaseLock lock(file);
  if (!options.force && std::filesystem::exists(file))
    throw Failure(ExitCode::File, path.string() + " is there already; --force writes over it");
  OpenCase windCase(UserSettingsFolder());
  const std::string told = AssignAll(windCase, DesignFirst(options.assignments), true);
  windCase.SaveAs(file);
  std::cout << told << path.string() << " is made\n";
  WarnOfCase();
  return ExitCode::Done;
}

// The lock stands from the opening to the end of the save, so that of two changes at once neither is lost.
ExitCode RunSet(const Options& options) {
  const CaseLock lock(ResolvedName(options.file));
  OpenCase windCase(UserSettingsFolder());
  windCase.Open(options.file);
  const std::string told = AssignAll(windCase, options.assignments, false);
  windCase.Save();
  std::cout << told;
  WarnOfCase();
  return ExitCode::Done;
}

ExitCode RunShow(const Options& options) {
  const PrivateFolder folder;
  OpenCase windCase(folder.Path());
  windCase.Open(options.file, DamagedText::Warn);
  const std::vector<InputKey> keys = StoredKeys(windCase, folder.Path());
  std::vector<InputText> values = ReadInputs(windCase, keys);
  const Inputs inputs(*windCase);
  if (options.changed) {
    windCase->Clear();
    const std::vector<InputText> ofNewCase = ReadInputs(windCase, keys);
    for (std::size_t i = values.size(); i-- > 0;)
      if (values[i] == ofNewCase[i]) values.erase(values.begin() + static_cast<std::ptrdiff_t>(i));
  }
  if (options.json) {
    std::cout << InputsJson(values);
    return ExitCode::Done;
  }
  TextTable table({"Input", "Value", "Unit", "Meaning"});
  for (const auto& [key, value] : values) {
    const auto& member = *inputs.Find(ParseKey(key)).front().member;
    table.Add({key, value, std::string(member.unit), member.Summary()});
  }
  table.Print(std::cout);
  return ExitCode::Done;
}

}  // namespace windcase
