// Platform operations: profile files, truncation, the system directory.
#pragma once

#include <cstdint>
#include <string>

namespace orve {

/// The one instance is `basBS6399_2::WinAPI`. Paths have "\" as their separator.
class clsWinAPI {
 public:
  /// The value of a key of a profile file, at most 1024 characters; `defaultText` if file, section or key is
  /// absent.
  std::string API_PrivateProfileString(const std::string& file, const std::string& section,
                                       const std::string& key, const std::string& defaultText) const;
  /// Stores a value, creating file, section and key if absent; on an unwritable file nothing is stored and
  /// nothing reported. `defaultText` is ignored.
  void API_PrivateProfileString(const std::string& file, const std::string& section, const std::string& key,
                                const std::string& defaultText, const std::string& value) const;
  /// The value of a key as an integer, or the default if absent.
  std::int32_t API_PrivateProfileInt(const std::string& file, const std::string& section,
                                     const std::string& key, std::int32_t defaultValue) const;
  /// Stores an integer as decimal text.
  void API_PrivateProfileInt(const std::string& file, const std::string& section, const std::string& key,
                             std::int32_t defaultValue, std::int32_t value) const;
  /// The system's directory (`Host().SystemDirectory`).
  std::string API_GetSystemDirectory() const;
  /// Ends an existing file at a byte; non-zero means success.
  std::int32_t API_TruncateFile(const std::string& file, std::int32_t length) const;
};

}  // namespace orve
