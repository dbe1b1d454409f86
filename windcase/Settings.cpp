#include "Settings.h"

#include <common/Host.h>
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

// What the list of recent cases says is the user's own business. A relative $XDG_CONFIG_HOME counts as none.
fs::path UserSettingsFolder() {
  fs::path base = FromEnvironment("XDG_CONFIG_HOME");
  if (!base.is_absolute()) base = FromEnvironment("HOME") / ".config";
  if (!base.is_absolute())
    throw Failure(ExitCode::File, "No folder for the settings: set HOME or XDG_CONFIG_HOME");
  const fs::path folder = base / "windcase";
  std::error_code error;
  const bool made = fs::create_directories(folder, error);
  if (made) fs::permissions(folder, fs::perms::owner_all, error);
  if (error) throw Failure(ExitCode::File, "Can't make the settings folder " + folder.string());
  return folder;
}

PrivateFolder::PrivateFolder() {
  std::error_code error;
  const fs::path base = fs::temp_directory_path(error);
  if (error)
    throw Failure(ExitCode::File, "The folder for temporary files isn't there: set TMPDIR to one that is");
  std::string pattern = (base / "windcase-XXXXXX").string();
  if (mkdtemp(pattern.data()) == nullptr)
    throw Failure(ExitCode::File, "Can't make a temporary folder in " + base.string());
  m_path = pattern;
  orve::Host().SettingsAreTemporary = true;
}

PrivateFolder::~PrivateFolder() {
  orve::Host().SettingsAreTemporary = false;
  std::error_code ignored;
  fs::remove_all(m_path, ignored);
}

}  // namespace windcase
