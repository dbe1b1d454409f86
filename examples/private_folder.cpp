#include "private_folder.h"

#include <common/Host.h>
#include <random>
#include <string>
#include <system_error>

namespace examples {

PrivateFolder::PrivateFolder() {
  std::random_device random;
  do m_path = std::filesystem::temp_directory_path() / ("orve-" + std::to_string(random()));
  while (!std::filesystem::create_directories(m_path));
  orve::Host().LibraryFolder = [path = m_path.string()] { return path; };
  orve::Host().SettingsAreTemporary = true;
}

PrivateFolder::~PrivateFolder() {
  orve::Host().SettingsAreTemporary = false;
  orve::Host().LibraryFolder = nullptr;
  std::error_code ignored;
  std::filesystem::remove_all(m_path, ignored);
}

}  // namespace examples
