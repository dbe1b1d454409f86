// The list of recently used files, in the settings file.
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

/// An entry as it is compared.
std::string Entry(const ProfileFile& profile, const std::string& section, std::int32_t index) {
  const std::string value = profile.Value(section, EntryKey(index)).value_or(std::string());
  return UpperCase(TrimBlanks(value));
}

std::int16_t CountEntries(const ProfileFile& profile, const std::string& section) {
  std::int32_t index = 1;
  while (!Entry(profile, section, index).empty()) ++index;
  return ToInt16(index - 1);
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
  const std::int32_t count = CountEntries(profile, m_ApplicationName);
  const std::int32_t limit = RecentFileLimit();
  const std::string name = UpperCase(TrimBlanks(StoredPath(fileName)));
  std::int32_t last = count >= limit ? limit - 1 : count;
  for (std::int32_t index = 1; index <= count; ++index) {
    if (Entry(profile, m_ApplicationName, index) != name) continue;
    last = index - 1;
    break;
  }
  for (std::int32_t index = last; index >= 1; --index) {
    const auto value = profile.Value(m_ApplicationName, EntryKey(index));
    profile.Value(m_ApplicationName, EntryKey(index + 1), value.value_or(std::string()));
  }
  profile.Value(m_ApplicationName, EntryKey(1), name);
  StoreSettings(profile);
}

std::int16_t clsSaveFile::RecentFileCount() const {
  return CountEntries(ProfileFile::Load(m_PathToApplicationINI), m_ApplicationName);
}

std::int16_t clsSaveFile::RecentFileLimit() const {
  return ToInt16(
      clsWinAPI().API_PrivateProfileInt(m_PathToApplicationINI, m_ApplicationName, LimitKey, DefaultLimit));
}

void clsSaveFile::RecentFileLimit(std::int16_t value) {
  clsWinAPI().API_PrivateProfileInt(m_PathToApplicationINI, m_ApplicationName, LimitKey, DefaultLimit, value);
}

}  // namespace orve
