#include "OpenCase.h"

#include <BuiltInEngines.h>
#include <fstream>
#include <iterator>
#include <orve3_bs6399_2.h>

#include "Failure.h"

namespace windcase {

namespace {

constexpr const char* kFirstSection = "[WindLoadCase]";

// The library opens any text as a case, with the values of a new one for what isn't there.
void RequireCaseFile(const std::string& name, const std::string& shownName) {
  std::ifstream file(orve::NativePath(name), std::ios::binary);
  if (!file) return;
  const std::string text((std::istreambuf_iterator<char>(file)), {});
  if (text.find(kFirstSection) == std::string::npos)
    throw Failure(ExitCode::File, shownName + " isn't a wind load case: it has no section " + kFirstSection);
}

}  // namespace

OpenCase::OpenCase(const std::filesystem::path& settingsFolder) {
  orve::Host().LibraryFolder = [folder = settingsFolder.string()] { return folder; };
  orve::RegisterBuiltInEngines();
  m_case = orve::CreateCurrentCase();
  m_case->Initialize_BreApps();
}

OpenCase::~OpenCase() {
  orve::Host().LibraryFolder = nullptr;
}

void OpenCase::Open(const std::string& path) {
  const std::string name = FullPath(path);
  RequireCaseFile(name, path);
  try {
    if (!m_case->OpenExisting(name)) throw Failure(ExitCode::File, "There is no file " + path);
  } catch (const orve::Error& error) {
    throw Failure(ExitCode::File,
                  path + ": " + error.what() + " (error " + std::to_string(error.Number()) + ")");
  }
}

void OpenCase::SaveAs(const std::string& path) {
  m_case->Location(FullPath(path));
  m_case->Save();
}

std::string FullPath(const std::string& path) {
  return std::filesystem::absolute(path).lexically_normal().string();
}

}  // namespace windcase
