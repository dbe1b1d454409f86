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
  std::vector<InputKey> keys;
  std::string section;
  std::ifstream file(path);
  for (std::string line; std::getline(file, line);) {
    if (line.front() == '[') section = line.substr(1, line.find(']') - 1);
    const std::size_t equals = line.find('=');
    if (equals == std::string::npos || section == kLogSection) continue;
    InputKey key = ParseKey(line.substr(0, equals));
    if (section != kCaseSection) key.object = section;
    const bool date = key.name == "Created" || key.name == "Modified";
    if (!date && key.name != "SiteEdited") keys.push_back(std::move(key));
  }
  return keys;
}

}  // namespace windcase
