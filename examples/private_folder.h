// A private folder for the library's settings file, gone when the program ends.
#pragma once

#include <filesystem>

namespace examples {

/// Makes a folder of its own below the temporary folder and names it to the library.
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

}  // namespace examples
