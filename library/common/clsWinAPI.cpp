#include "common/clsWinAPI.h"

#include <algorithm>
#include <limits>

#include "common/FileLayer.h"
#include "common/HostCalls.h"
#include "common/ProfileFile.h"

namespace orve {

namespace {

/// The whole number that a value begins with, 0 if there is none; a number that doesn't fit takes the limit.
std::int32_t LeadingInteger(const std::string& value) {
  const bool negative = value.starts_with('-');
  const std::int64_t limit = std::int64_t{std::numeric_limits<std::int32_t>::max()} + (negative ? 1 : 0);
  std::int64_t number = 0;
  for (std::size_t at = negative || value.starts_with('+') ? 1 : 0; at < value.size(); ++at) {
    if (value[at] < '0' || value[at] > '9') break;
    number = std::min(number * 10 + (value[at] - '0'), limit);
  }
  return static_cast<std::int32_t>(negative ? -number : number);
}

}  // namespace

std::string clsWinAPI::API_PrivateProfileString(const std::string& file, const std::string& section,
                                                const std::string& key,
                                                const std::string& defaultText) const {
  return ProfileFile::Load(file).Value(section, key).value_or(defaultText);
}

void clsWinAPI::API_PrivateProfileString(const std::string& file, const std::string& section,
                                         const std::string& key, const std::string& /*defaultText*/,
                                         const std::string& value) const {
  ProfileFile profile = ProfileFile::Load(file);
  profile.Value(section, key, value);
  profile.Store(file);
}

std::int32_t clsWinAPI::API_PrivateProfileInt(const std::string& file, const std::string& section,
                                              const std::string& key, std::int32_t defaultValue) const {
  const auto value = ProfileFile::Load(file).Value(section, key);
  return value ? LeadingInteger(*value) : defaultValue;
}

void clsWinAPI::API_PrivateProfileInt(const std::string& file, const std::string& section,
                                      const std::string& key, std::int32_t /*defaultValue*/,
                                      std::int32_t value) const {
  API_PrivateProfileString(file, section, key, std::string(), std::to_string(value));
}

std::string clsWinAPI::API_GetSystemDirectory() const {
  return HostSystemDirectory();
}

std::int32_t clsWinAPI::API_TruncateFile(const std::string& file, std::int32_t length) const {
  return length >= 0 && TruncateFile(file, static_cast<std::size_t>(length)) ? 1 : 0;
}

}  // namespace orve
