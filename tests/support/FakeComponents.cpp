#include "support/FakeComponents.h"

#include <unistd.h>

namespace orve::test {

PrivateFolder::PrivateFolder() {
  std::string pattern = (std::filesystem::temp_directory_path() / "orve-XXXXXX").string();
  m_folder = mkdtemp(pattern.data());
  Host().LibraryFolder = [folder = m_folder.string()] { return folder; };
  Host().SystemDirectory = Host().LibraryFolder;
}

PrivateFolder::~PrivateFolder() {
  Host() = HostServices();
  std::error_code ignored;
  std::filesystem::remove_all(m_folder, ignored);
}

FakeCase::FakeCase() {
  ComponentClasses().Register("BVe2XControl4.BVe2X", [this]() -> std::shared_ptr<BVe2X> { return wind; });
  ComponentClasses().Register("BreCp2_2XControl3.BreCp2_2X",
                              [this]() -> std::shared_ptr<BreCpX> { return coefficients; });
  root = CreateCurrentCase();
}

FakeCase::~FakeCase() {
  root.reset();
  ReleaseProcess();
}

void ReleaseProcess() {
  basBS6399_2::CurrentCase.reset();
  basBS6399_2::BreVe.reset();
  basBS6399_2::BreCp.reset();
  basBS6399_2::Common.reset();
  basBS6399_2::WinAPI.reset();
  ComponentClasses().Clear();
}

int ErrorOf(const std::function<void()>& action) {
  try {
    action();
  } catch (const Error& error) {
    return error.Number();
  }
  return 0;
}

}  // namespace orve::test
