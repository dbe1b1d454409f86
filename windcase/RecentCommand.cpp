// The recent cases.
#include <iostream>
#include <orve3_bs6399_2.h>

#include "Commands.h"
#include "JsonText.h"
#include "OpenCase.h"
#include "Settings.h"
#include "TextTable.h"
#include "common/DateText.h"

namespace windcase {

namespace {

// A case that can't be read stays in the list without its description.
RecentCase ReadCase(const orve::clsWindCaseList& list, std::int32_t index) {
  RecentCase recent;
  recent.location = orve::NativePath(list.Location(index));
  recent.isThere = list.LocationCorrect(index);
  try {
    recent.description = list.Description(index);
    const double modified = list.Modified(index);
    if (modified != 0) recent.modified = orve::DateText(modified);
  } catch (const orve::Error& error) {
    recent.description = error.what();
  }
  return recent;
}

}  // namespace

ExitCode RunRecent(const Options& options) {
  const OpenCase windCase(UserSettingsFolder());
  const auto list = windCase->WindCaseList();
  std::vector<RecentCase> cases;
  for (std::int32_t i = 1; i <= list->Count(); ++i) cases.push_back(ReadCase(*list, i));
  if (options.json) {
    std::cout << RecentJson(cases);
    return ExitCode::Done;
  }
  TextTable table({"Modified", "Description", "Case"});
  for (const RecentCase& recent : cases)
    table.Add(
        {recent.modified, recent.description, recent.location + (recent.isThere ? "" : "  (not there)")});
  if (cases.empty())
    std::cout << "There are no recent cases.\n";
  else
    table.Print(std::cout);
  return ExitCode::Done;
}

}  // namespace windcase
