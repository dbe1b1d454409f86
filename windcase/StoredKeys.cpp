#include "StoredKeys.h"

#include <fstream>

namespace windcase {

namespace {

constexpr const char* kCaseSection = "WindLoadCase";
constexpr const char* kLogSection = "UpdateLog";

}  // namespace

// SiteEdited follows from the values by sector, and says no more than they do.
std::vector<InputKey> StoredKeys(OpenCase& windCase, const std::filesystem::path& folder) {
  const std::filesystem::path path = folder / "keys.wlc";
  std::filesystem::remove(path);
  windCase.SaveAs(path.string());
  const Inputs inputs(*windCase);
  std::vector<InputKey> keys;
  std::string section;
  std::ifstream file(path);
  for (std::string line; std::getline(file, line);) {
    if (line.starts_with('[')) section = line.substr(1, line.find(']') - 1);
    const std::size_t equals = line.find('=');
    if (equals == std::string::npos || section == kLogSection) continue;
    std::optional<InputKey> key =
        inputs.StoredKey(section == kCaseSection ? "" : section, line.substr(0, equals));
    if (!key) continue;
    const bool date = key->name == "Created" || key->name == "Modified";
    if (!date && key->name != "SiteEdited") keys.push_back(std::move(*key));
  }
  return keys;
}

}  // namespace windcase
