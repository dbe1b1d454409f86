#include "scene_storage.h"

#include <orve3_bs6399_2.h>
#include <sstream>
#include <string>

#include "portal_building.h"
#include "sheets.h"
#include "text_table.h"

namespace examples {

using namespace orve;

namespace {

std::string WholeSheet(const clsCurrentCase& windCase) {
  std::ostringstream text;
  PrintWholeSheet(text, windCase);
  return text.str();
}

}  // namespace

bool PrintStorageScene(clsCurrentCase& windCase, const std::filesystem::path& folder, std::ostream& out) {
  PrintHeading(out, "Saved and opened again");
  const auto opened = windCase.WindCaseOpened.Connect([&](const std::string&) { out << "  Opened\n"; });
  const auto saved = windCase.WindCaseSaved.Connect([&](const std::string&) { out << "  Saved\n"; });
  const auto listed = windCase.WindCaseListUpdated.Connect([&] {
    out << "  Recent cases: " << windCase.WindCaseList()->Count() << ", the last one \""
        << windCase.WindCaseList()->Description(1) << "\"\n";
  });

  windCase.Clear();
  DescribePortalBuilding(windCase);
  DescribeSite(windCase);
  const std::string before = WholeSheet(windCase);
  const std::string file = (folder / "Portal building.WLC").string();
  windCase.Location(file);
  windCase.Save();

  windCase.Clear();
  if (!windCase.OpenExisting(file)) return false;
  const bool same = WholeSheet(windCase) == before;
  out << "  " << std::filesystem::file_size(file) << " bytes; the sheet of the opened case is "
      << (same ? "the same to the last character\n" : "another one\n");
  return same;
}

}  // namespace examples
