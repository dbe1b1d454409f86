// The command-line host run as a user runs it: as a process, with a home of its own.
#pragma once

#include <filesystem>
#include <gtest/gtest.h>
#include <string>
#include <vector>

namespace orve::test {

struct Ending {
  int code = -1;
  std::string out;
  std::string err;
};

class Program : public ::testing::Test {
 protected:
  Program();
  ~Program() override;

  /// Runs the program in the test's folder.
  Ending Run(const std::vector<std::string>& arguments) const;
  /// Runs it and expects success; gives what it printed.
  std::string Output(const std::vector<std::string>& arguments) const;

  std::string Path(const std::string& name) const { return (m_folder / name).string(); }
  std::string Content(const std::string& name) const;
  void Write(const std::string& name, const std::string& content) const;

  /// A case with loads, made by three `set` lines.
  void MakeShed(const std::string& name) const;

 private:
  std::filesystem::path m_folder;
};

}  // namespace orve::test
