// Where the program keeps its settings: the list of recent cases.
#pragma once

#include <filesystem>
#include <string>

namespace windcase {

/// The user's folder: "windcase" in $XDG_CONFIG_HOME, else in ~/.config. Made if it isn't there. Failure:
/// File if it can't be made.
std::filesystem::path UserSettingsFolder();

/// A folder of this process alone, below the temporary folder; gone with the object.
class PrivateFolder {
 public:
  PrivateFolder();
  ~PrivateFolder();
  PrivateFolder(const PrivateFolder&) = delete;
  PrivateFolder& operator=(const PrivateFolder&) = delete;

  const std::filesystem::path& Path() const { return m_path; }

 private:
  std::filesystem::path m_path;
};

}  // namespace windcase
