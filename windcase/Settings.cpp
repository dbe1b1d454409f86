#include "Settings.h"

#include <cstdlib>
#include <stdlib.h>

#include "Failure.h"

namespace windcase {

namespace fs = std::filesystem;

namespace {

fs::path FromEnvironment(const char* name) {
  const char* value = std::getenv(name);
  return value == nullptr ? fs::path() : fs::path(value);
}

}  // namespace

// A relative $XDG_CONFIG_HOME counts as none.
fs::path UserSettingsFolder() {
  fs::path base = FromEnvironment("XDG_CONFIG_HOME");
  if (!base.is_absolute()) base = FromEnvironment("HOME") / ".config";
  if (!base.is_absolute())
    throw Failure(ExitCode::File, "No folder for the settings: set HOME or XDG_CONFIG_HOME");
  const fs::path folder = base / "windcase";
  std::error_code error;
  fs::create_directories(folder, error);
  if (error) throw Failure(ExitCode::File, "Can't make the settings folder " + folder.string());
  return folder;
}

PrivateFolder::PrivateFolder() {
  std::string pattern = (fs::temp_directory_path() / "windcase-XXXXXX").string();
  if (mkdtemp(pattern.data()) == nullptr)
    throw Failure(ExitCode::File, "Can't make a temporary folder in " + fs::temp_directory_path().string());
  m_path = pattern;
}

PrivateFolder::~PrivateFolder() {
  std::error_code ignored;
  fs::remove_all(m_path, ignored);
}

}  // namespace windcase
