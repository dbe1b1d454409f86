#include "windcase/Program.h"

#include <fcntl.h>
#include <fstream>
#include <iterator>
#include <string>
#include <sys/wait.h>
#include <unistd.h>
#include <vector>

namespace orve::test {

namespace {

std::string ReadAll(const std::filesystem::path& path) {
  std::ifstream file(path, std::ios::binary);
  return {std::istreambuf_iterator<char>(file), {}};
}

[[noreturn]] void Execute(const std::vector<std::string>& arguments, const std::filesystem::path& folder) {
  std::vector<char*> row;
  std::string program = ORVE_WINDCASE_PROGRAM;
  row.push_back(program.data());
  for (const std::string& argument : arguments) row.push_back(const_cast<char*>(argument.c_str()));
  row.push_back(nullptr);
  const int out = open((folder / "out").c_str(), O_WRONLY | O_CREAT | O_TRUNC, 0600);
  const int err = open((folder / "err").c_str(), O_WRONLY | O_CREAT | O_TRUNC, 0600);
  dup2(out, STDOUT_FILENO);
  dup2(err, STDERR_FILENO);
  setenv("XDG_CONFIG_HOME", (folder / "config").c_str(), 1);
  if (chdir(folder.c_str()) == 0) execv(program.c_str(), row.data());
  _exit(127);
}

}  // namespace

Program::Program() {
  std::string pattern = (std::filesystem::temp_directory_path() / "windcase-test-XXXXXX").string();
  m_folder = mkdtemp(pattern.data());
}

Program::~Program() {
  std::error_code ignored;
  std::filesystem::remove_all(m_folder, ignored);
}

Ending Program::Run(const std::vector<std::string>& arguments) const {
  const pid_t pid = fork();
  if (pid == 0) Execute(arguments, m_folder);
  int status = 0;
  waitpid(pid, &status, 0);
  return {WIFEXITED(status) ? WEXITSTATUS(status) : -1, ReadAll(m_folder / "out"), ReadAll(m_folder / "err")};
}

std::string Program::Output(const std::vector<std::string>& arguments) const {
  const Ending ending = Run(arguments);
  EXPECT_EQ(ending.code, 0) << arguments.front() << ": " << ending.out << ending.err;
  return ending.out;
}

std::string Program::Content(const std::string& name) const {
  return ReadAll(Path(name));
}

void Program::Write(const std::string& name, const std::string& content) const {
  std::ofstream(Path(name), std::ios::binary) << content;
}

void Program::MakeShed(const std::string& name) const {
  Output({"new", name});
  Output({"set", name, "RoofType=Duo-pitched roof", "Face1And3_Length=30", "Face2And4_Width=15",
          "Roof_Pitch=15", "Roof_Height=7", "Roof_Diagonal=16", "Wall_SideHeight=5", "Wall_SideDiagonal=8",
          "Wall_GableHeight=7", "Wall_GableDiagonal=16"});
  Output({"set", name, "BasicWindSpeed=22.5", "SiteAltitude=65", "FetchesToSea(*)=50"});
  Output({"set", name, "InternalVolume=2600", "EnclosedBuilding_GeneralCase=True"});
}

}  // namespace orve::test
