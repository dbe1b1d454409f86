// orve_generate: writes the generated files of the project, or tells which of them aren't up to date.
#include <cstdio>
#include <filesystem>
#include <fstream>
#include <iterator>

#include "Generate.h"

namespace {

using orve::automation::GeneratedFile;

std::string ReadFile(const std::filesystem::path& path) {
  std::ifstream file(path, std::ios::binary);
  return {std::istreambuf_iterator<char>(file), {}};
}

bool WriteFile(const std::filesystem::path& path, const std::string& text) {
  std::filesystem::create_directories(path.parent_path());
  std::ofstream file(path, std::ios::binary);
  file << text;
  return static_cast<bool>(file.flush());
}

int Check(const std::filesystem::path& root) {
  int stale = 0;
  for (const GeneratedFile& file : orve::automation::GeneratedFiles()) {
    if (ReadFile(root / file.path) == file.text) continue;
    std::fprintf(stderr, "%s isn't what the description gives\n", file.path.c_str());
    ++stale;
  }
  return stale == 0 ? 0 : 1;
}

int Write(const std::filesystem::path& root) {
  for (const GeneratedFile& file : orve::automation::GeneratedFiles()) {
    const std::filesystem::path path = root / file.path;
    if (ReadFile(path) == file.text) continue;
    if (!WriteFile(path, file.text)) {
      std::fprintf(stderr, "%s can't be written\n", file.path.c_str());
      return 1;
    }
    std::printf("%s\n", file.path.c_str());
  }
  return 0;
}

}  // namespace

int main(int count, char** arguments) {
  const std::string_view command = count == 3 ? arguments[1] : "";
  if (command == "--check") return Check(arguments[2]);
  if (command == "--write") return Write(arguments[2]);
  if (command == "--c-call-table") return WriteFile(arguments[2], orve::automation::CCallTable()) ? 0 : 1;
  std::fprintf(
      stderr,
      "usage: orve_generate --write ROOT         write the generated files under the project's root\n"
      "       orve_generate --check ROOT         compare them\n"
      "       orve_generate --c-call-table FILE  write the table of calls for the C door's tests\n");
  return 2;
}
