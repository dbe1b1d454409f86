// Feeds stored inputs to their targets, with any compiler: replay FOLDER, where each target has a folder of
// seeds and one of findings.
#include <filesystem>
#include <fstream>
#include <iterator>
#include <string>
#include <vector>

#include "FuzzTargets.h"

namespace {

namespace fs = std::filesystem;

struct Target {
  const char* name;
  void (*run)(std::string_view);
};
constexpr Target Targets[] = {{"case_file", orve::fuzz::CaseFile},
                              {"object_model", orve::fuzz::ObjectModel},
                              {"profile_file", orve::fuzz::ProfileFile},
                              {"sheet", orve::fuzz::Sheet},
                              {"texts", orve::fuzz::Texts}};

int ReplayFolder(const fs::path& folder, const Target& target) {
  int count = 0;
  if (!fs::exists(folder)) return count;
  for (const fs::directory_entry& entry : fs::directory_iterator(folder)) {
    std::ifstream file(entry.path(), std::ios::binary);
    const std::string input{std::istreambuf_iterator<char>(file), {}};
    std::printf("%s\n", entry.path().c_str());
    std::fflush(stdout);
    target.run(input);
    ++count;
  }
  return count;
}

}  // namespace

int main(int argc, char** argv) {
  if (argc != 2) return 2;
  int least = 1;
  for (const Target& target : Targets) {
    const fs::path folder = fs::path(argv[1]) / target.name;
    const int count = ReplayFolder(folder / "seeds", target) + ReplayFolder(folder / "findings", target);
    least = count < least ? count : least;
  }
  return least > 0 ? 0 : 1;
}
