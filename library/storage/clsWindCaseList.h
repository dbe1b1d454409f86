// The list of recent wind load cases.
#pragma once

#include <cstdint>
#include <string>

namespace orve {

class clsSaveFile;

/// The recent-file list with descriptions and dates. It stores nothing but a selection; every attribute is
/// fetched from its file when asked for. Entries count from 1.
class clsWindCaseList {
 public:
  /// Sets `MaxCount` to 99.
  clsWindCaseList();

  /// The selected entry. Plain storage, no range test.
  std::int32_t Index() const { return m_Index; }
  void Index(std::int32_t value) { m_Index = value; }
  /// Length of the list.
  std::int32_t Count() const;
  /// Maximum length of the list, in the settings file. Errors: 6 outside 16 bits.
  std::int32_t MaxCount() const;
  void MaxCount(std::int32_t value);

  // An index of -1 means the selected entry. Errors: 6 for an index outside 16 bits; those of the file system
  // for a file that can't be read.
  /// Full path in upper case, empty if there is no such entry.
  std::string Location(std::int32_t index = -1) const;
  /// True if the file is there.
  bool LocationCorrect(std::int32_t index = -1) const;
  /// Description of the case, empty if the file isn't there.
  std::string Description(std::int32_t index = -1) const;
  /// Date of the case's first save, 0 if the file isn't there.
  double Created(std::int32_t index = -1) const;
  /// Date of the case's last save, 0 if the file isn't there.
  double Modified(std::int32_t index = -1) const;

 private:
  static clsSaveFile& Manager();
  std::string Attribute(std::int32_t index, const std::string& key) const;

  std::int32_t m_Index = 0;
};

}  // namespace orve
