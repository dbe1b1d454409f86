// A test with a folder of its own, a clock that stands still and a host that records what it is asked.
#pragma once

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <functional>
#include <gtest/gtest.h>
#include <iterator>
#include <orve3_bs6399_2.h>
#include <stdlib.h>
#include <string>
#include <vector>

#include "BuiltInEngines.h"
#include "core/ComponentClasses.h"

namespace orve::test {

inline std::string ReadBytes(const std::filesystem::path& path) {
  std::ifstream file(path, std::ios::binary);
  return {std::istreambuf_iterator<char>(file), {}};
}

inline void WriteBytes(const std::filesystem::path& path, const std::string& bytes) {
  std::ofstream(path, std::ios::binary) << bytes;
}

/// The long form of a test is run where this is set.
inline bool LongTests() {
  return std::getenv("ORVE_LONG_TESTS") != nullptr;
}

/// Number and text of the error that a call raises; number 0 if it raises none.
struct Raised {
  int number = 0;
  std::string text;
};
inline Raised RaisedBy(const std::function<void()>& call) {
  try {
    call();
  } catch (const Error& error) {
    return {error.Number(), error.what()};
  }
  return {};
}

class StorageTest : public testing::Test {
 protected:
  void SetUp() override {
    std::string name = (Base() / "orve-storage-XXXXXX").string();
    ASSERT_NE(::mkdtemp(name.data()), nullptr);
    folder = name;
    std::filesystem::permissions(folder, std::filesystem::perms::all);
    Host() = HostServices();
    Host().LibraryFolder = [this] { return folder.string(); };
    Host().SystemDirectory = [] { return std::string(ORVE_TEST_SYSTEM); };
    Host().Now = [this] { return now; };
    Host().MsgBox = [this](const std::string& prompt, std::int32_t buttons, const std::string& title) {
      messages.push_back(title + "|" + std::to_string(buttons) + "|" + prompt);
      return answer;
    };
    const auto choose = [this](clsCommonDialog& dialog) {
      shown = dialog;
      dialog.FileName = chosen;
      return !chosen.empty();
    };
    Host().OpenFileDialog = choose;
    Host().SaveFileDialog = choose;
  }

  void TearDown() override {
    Host() = HostServices();
    basBS6399_2::CurrentCase.reset();
    std::filesystem::remove_all(folder);
  }

  /// Where the test's folder lies: in memory where the machine has room for files there.
  virtual std::filesystem::path Base() const {
    const std::filesystem::path memory = "/dev/shm";
    return std::filesystem::exists(memory) ? memory : std::filesystem::temp_directory_path();
  }

  /// A file of the folder, as a host names it.
  std::string In(const std::string& name) const { return (folder / name).string(); }
  /// The same as settings and texts keep it.
  std::string Stored(const std::string& name) const {
    std::string path = In(name);
    for (char& character : path)
      if (character == '/') character = '\\';
    return path;
  }

  std::filesystem::path folder;
  double now = 46350.43125;  ///< 24 November 2026, 10:21.
  std::int32_t answer = 6;   ///< Yes.
  std::vector<std::string> messages;
  std::string chosen;  ///< What the user picks in a file dialog; empty: Cancel.
  clsCommonDialog shown;
};

/// The same with a root object on the built-in engines.
class CaseTest : public StorageTest {
 protected:
  void SetUp() override {
    StorageTest::SetUp();
    ComponentClasses().Clear();
    RegisterBuiltInEngines();
    root = CreateCurrentCase();
    root->Initialize_BreApps();
  }
  void TearDown() override {
    root.reset();
    StorageTest::TearDown();
  }

  void SaveAs(const std::string& name) {
    chosen = In(name);
    root->SaveAs();
  }
  bool Open(const std::string& name) { return root->OpenExisting(In(name)); }

  std::shared_ptr<clsCurrentCase> root;
};

}  // namespace orve::test
