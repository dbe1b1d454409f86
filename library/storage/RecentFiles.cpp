// The list of recently used files, in the settings file.
#include <utility>
#include <vector>

#include "common/Error.h"
#include "common/FileLayer.h"
#include "common/LetterCase.h"
#include "common/Narrow.h"
#include "common/NumberText.h"
#include "common/ProfileFile.h"
#include "common/clsWinAPI.h"
#include "storage/clsSaveFile.h"

namespace orve {

namespace {

constexpr const char* LimitKey = "RecentFileLimit";
constexpr std::int32_t DefaultLimit = 8;

std::string EntryKey(std::int32_t index) {
  return "RecentFile" + std::to_string(index);
}

/// The entries up to the first one that is empty, as they stand in the settings file.
std::vector<std::string> Entries(const ProfileFile& profile, const std::string& section) {
  const auto values = profile.Values(section);
  std::vector<std::string> entries;
  while (true) {
    const auto found = values.find(UpperCase(EntryKey(static_cast<std::int32_t>(entries.size()) + 1)));
    if (found == values.end() || TrimBlanks(found->second).empty()) return entries;
    entries.push_back(found->second);
  }
}

std::int16_t CountOf(const std::vector<std::string>& entries) {
  return ToInt16(static_cast<std::int32_t>(entries.size()));
}

}  // namespace

std::string clsSaveFile::RecentFile(std::int16_t index) const {
  return clsWinAPI().API_PrivateProfileString(m_PathToApplicationINI, m_ApplicationName, EntryKey(index),
                                              std::string());
}

void clsSaveFile::RecentFile(std::int16_t index, const std::string& value) {
  clsWinAPI().API_PrivateProfileString(m_PathToApplicationINI, m_ApplicationName, EntryKey(index),
                                       std::string(), StoredPath(value));
}

// The whole change is one reading and one writing of the settings file, so that a crash can't leave the list
// half moved.
void clsSaveFile::RecentFileAdd(const std::string& fileName) {
  ProfileFile profile = ProfileFile::Load(m_PathToApplicationINI);
  const std::vector<std::string> entries = Entries(profile, m_ApplicationName);
  const std::int32_t count = CountOf(entries);
  const std::int32_t limit = RecentFileLimit();
  const std::string name = UpperCase(TrimBlanks(StoredPath(fileName)));
  std::int32_t last = count >= limit ? limit - 1 : count;
  for (std::int32_t index = 1; index <= count; ++index) {
    if (UpperCase(TrimBlanks(entries[static_cast<std::size_t>(index - 1)])) != name) continue;
    last = index - 1;
    break;
  }
  std::vector<std::pair<std::string, std::string>> moved{{EntryKey(1), name}};
  for (std::int32_t index = 1; index <= last; ++index)
    moved.emplace_back(EntryKey(index + 1), entries[static_cast<std::size_t>(index - 1)]);
  profile.Values(m_ApplicationName, moved);
  StoreSettings(profile);
}

std::int16_t clsSaveFile::RecentFileCount() const {
  return CountOf(Entries(ProfileFile::Load(m_PathToApplicationINI), m_ApplicationName));
}

std::int16_t clsSaveFile::RecentFileLimit() const {
  return ToInt16(
      clsWinAPI().API_PrivateProfileInt(m_PathToApplicationINI, m_ApplicationName, LimitKey, DefaultLimit));
}

void clsSaveFile::RecentFileLimit(std::int16_t value) {
  clsWinAPI().API_PrivateProfileInt(m_PathToApplicationINI, m_ApplicationName, LimitKey, DefaultLimit, value);
}

}  // namespace orve
