// Saving and opening where the machine fails: a killed process, a full disk, folders and files that forbid
// it.
#include <chrono>
#include <fcntl.h>
#include <gtest/gtest.h>
#include <optional>
#include <random>
#include <signal.h>
#include <string>
#include <sys/resource.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <sys/xattr.h>
#include <unistd.h>

#include "StorageTest.h"
#include "common/FileLayer.h"

namespace orve::test {
namespace {

namespace fs = std::filesystem;

/// Gives up the privileges that pass over permissions, for as long as it lives.
class OrdinaryUser {
 public:
  OrdinaryUser() {
    if (::geteuid() == 0) m_changed = ::seteuid(nobody) == 0;
  }
  ~OrdinaryUser() {
    if (m_changed && ::seteuid(0) != 0) std::abort();
  }

 private:
  static constexpr uid_t nobody = 65534;
  bool m_changed = false;
};

/// A disk on which no file can grow beyond a size.
class FullDisk {
 public:
  explicit FullDisk(rlim_t size) {
    m_signal = ::signal(SIGXFSZ, SIG_IGN);
    ::getrlimit(RLIMIT_FSIZE, &m_before);
    const rlimit limit{size, m_before.rlim_max};
    ::setrlimit(RLIMIT_FSIZE, &limit);
  }
  ~FullDisk() {
    ::setrlimit(RLIMIT_FSIZE, &m_before);
    ::signal(SIGXFSZ, m_signal);
  }

 private:
  rlimit m_before{};
  sighandler_t m_signal;
};

class Faults : public CaseTest {
 protected:
  std::filesystem::path Base() const override { return fs::temp_directory_path(); }
  void SetUp() override {
    CaseTest::SetUp();
    fs::create_directory(folder / "cases");
    SaveAs("cases/old.wlc");
    old = ReadBytes(folder / "cases/old.wlc");
    root->Description("changed");
  }

  /// A save fails with the error, and nothing is lost by it.
  void ExpectRefused(const std::function<void()>& save, int number, const std::string& text) {
    const Raised raised = RaisedBy(save);
    EXPECT_EQ(raised.number, number);
    EXPECT_EQ(raised.text, text);
    EXPECT_EQ(ReadBytes(folder / "cases/old.wlc"), old);
    EXPECT_TRUE(root->IsDirty());
    EXPECT_EQ(root->Location(), Stored("cases/old.wlc"));
    EXPECT_EQ(root->Description(), "changed");
  }
  std::ptrdiff_t FilesInCases() const {
    return std::distance(fs::directory_iterator(folder / "cases"), fs::directory_iterator());
  }

  std::string old;
};

TEST_F(Faults, AFullDiskLeavesTheOldFile) {
  const FullDisk disk(1000);
  ExpectRefused([&] { root->Save(); }, 61, "Disk full: " + NativePath(Stored("cases/old.wlc")));
  ExpectRefused([&] { root->Save(); }, 61, "Disk full: " + NativePath(Stored("cases/old.wlc")));
  EXPECT_EQ(FilesInCases(), 1) << "no temporary file is left";
}

TEST_F(Faults, AProtectedFileOrFolderRefusesTheSave) {
  fs::create_directory(folder / "closed");
  fs::permissions(folder / "closed", fs::perms(0555));
  fs::permissions(folder / "cases", fs::perms(0777));
  fs::permissions(folder / "cases/old.wlc", fs::perms(0444));
  const OrdinaryUser user;
  ExpectRefused([&] { root->Save(); }, 70, "Permission denied: " + NativePath(Stored("cases/old.wlc")));
  ExpectRefused([&] { SaveAs("closed/new.wlc"); }, 70,
                "Permission denied: " + NativePath(Stored("closed/new.wlc")));
}

TEST_F(Faults, AWritableFileInAClosedFolderIsWrittenInPlace) {
  WriteBytes(folder / "cases/old.wlc", old + std::string(5000, ' '));
  fs::permissions(folder / "cases/old.wlc", fs::perms(0666));
  fs::permissions(folder / "cases", fs::perms(0555));
  {
    const OrdinaryUser user;
    root->Save();
  }
  EXPECT_EQ(root->Description(), "changed");
  EXPECT_FALSE(root->IsDirty());
  const std::string text = ReadBytes(folder / "cases/old.wlc");
  EXPECT_TRUE(text.ends_with("10:21:00\r\n")) << "what stood behind the new end is cut off";
  EXPECT_NE(text.find("Description=changed\r\n"), std::string::npos);
}

TEST_F(Faults, AFullDiskLeavesTheOldFileInPlaceToo) {
  fs::create_hard_link(folder / "cases/old.wlc", folder / "cases/link.wlc");
  root->Description(std::string(200000, 'x'));
  {
    const FullDisk disk(100000);
    EXPECT_EQ(RaisedBy([&] { root->Save(); }).text, "Disk full: " + NativePath(Stored("cases/old.wlc")));
  }
  EXPECT_EQ(ReadBytes(folder / "cases/link.wlc"), old);
  EXPECT_EQ(CopyPutAside(In("cases/old.wlc")), "");
  EXPECT_FALSE(CaseFileChanged());
  root->Save();
  EXPECT_EQ(ReadBytes(folder / "cases/link.wlc"), ReadBytes(folder / "cases/old.wlc"));
  EXPECT_FALSE(CaseFileChanged());
}

TEST_F(Faults, AnInterruptedSaveInPlaceLeavesACopyThatTheNextOpeningNames) {
  const fs::path file = folder / "cases/old.wlc";
  fs::create_hard_link(file, folder / "cases/link.wlc");
  const pid_t child = ::fork();
  if (child == 0) {
    const rlimit limit{100000, 100000};
    ::setrlimit(RLIMIT_FSIZE, &limit);
    root->Description(std::string(200000, 'x'));
    root->Save();
    ::_exit(0);
  }
  int status = 0;
  ::waitpid(child, &status, 0);
  ASSERT_TRUE(WIFSIGNALED(status));
  EXPECT_EQ(CopyPutAside(file.string()), "") << "the file is as it was";
  fs::resize_file(file, 1000);
  for (const char* name : {"cases/OLD.wlc", "cases/link.wlc"}) {
    const fs::path copy = CopyPutAside(In(name));
    EXPECT_EQ(copy.parent_path(), folder);
    EXPECT_EQ(ReadBytes(copy), old);
    EXPECT_EQ(fs::status(copy).permissions(), fs::perms(0600));
    root->IsDirty(false);
    messages.clear();
    EXPECT_TRUE(Open(name));
    ASSERT_EQ(messages.size(), 1u);
    EXPECT_NE(messages[0].find(copy.filename().string()), std::string::npos) << messages[0];
  }
  Host().SettingsAreTemporary = true;
  EXPECT_EQ(CopyPutAside(file.string()), "");
}

TEST_F(Faults, ASaveSweepsOldTemporaryFilesOfItsUser) {
  for (const char* name : {".orve-1-1.tmp", ".orve-new.tmp", "orve.tmp"})
    WriteBytes(folder / "cases" / name, "");
  for (const char* name : {".orve-1-1.tmp", "orve.tmp"})
    fs::last_write_time(folder / "cases" / name, fs::file_time_type::clock::now() - std::chrono::hours(25));
  root->Save();
  EXPECT_FALSE(fs::exists(folder / "cases/.orve-1-1.tmp"));
  EXPECT_EQ(FilesInCases(), 3);
}

/// Who can read a file, and what its users noted at it.
struct Rights {
  uid_t owner;
  gid_t group;
  mode_t mode;
  std::string list;
  std::string note;

  explicit Rights(const fs::path& file) {
    struct stat status {};
    ::stat(file.c_str(), &status);
    owner = status.st_uid;
    group = status.st_gid;
    mode = status.st_mode;
    list = Attribute(file, "system.posix_acl_access");
    note = Attribute(file, "user.note");
  }
  bool operator==(const Rights&) const = default;

  static std::string Attribute(const fs::path& file, const char* name) {
    char value[256];
    const ssize_t length = ::getxattr(file.c_str(), name, value, sizeof value);
    return std::string(value, length < 0 ? 0 : static_cast<std::size_t>(length));
  }
};

TEST_F(Faults, ASaveKeepsWhoCanRead) {
  // User 65534 may read and write, the owning group may not.
  const std::string list(
      "\2\0\0\0\1\0\6\0\xFF\xFF\xFF\xFF\2\0\6\0\xFE\xFF\0\0\4\0\0\0\xFF\xFF\xFF\xFF\x10\0\6\0\xFF\xFF\xFF\xFF"
      "\x20\0\0\0\xFF\xFF\xFF\xFF",
      44);
  const bool privileged = ::geteuid() == 0;
  constexpr uid_t nobody = 65534;
  constexpr gid_t team = 3000;
  struct Case {
    const char* what;
    bool listed;
    uid_t owner;
    gid_t group;
    mode_t mode;
    bool asNobody;
    bool inPlace;
  };
  const Case cases[] = {{"an access list", true, ::geteuid(), ::getegid(), 0640, false, false},
                        {"plain rights in a folder with a list of its own", false, ::geteuid(), ::getegid(),
                         0640, false, false},
                        {"another owner and group", true, nobody, team, 0660, false, false},
                        {"a group that the saver isn't in", false, nobody, team, 0660, true, true},
                        {"an owner who would lose the file", true, 2001, 0, 0640, true, true}};
  fs::permissions(folder / "cases", fs::perms(0777));
  for (const Case& c : cases) {
    if (!privileged && c.owner != ::geteuid()) continue;
    const fs::path file = folder / "cases/rights.wlc";
    fs::remove(file);
    WriteBytes(file, old);
    ASSERT_EQ(::setxattr(file.c_str(), "user.note", "keep", 4, 0), 0);
    ASSERT_EQ(::chown(file.c_str(), c.owner, c.group), 0);
    ASSERT_EQ(::chmod(file.c_str(), c.mode), 0);
    if (c.listed) {
      ASSERT_EQ(::setxattr(file.c_str(), "system.posix_acl_access", list.data(), list.size(), 0), 0);
    } else {
      ASSERT_EQ(
          ::setxattr((folder / "cases").c_str(), "system.posix_acl_default", list.data(), list.size(), 0), 0);
    }
    const Rights before(file);
    const FileState place = StateOfFile(file.string());
    {
      std::optional<OrdinaryUser> user;
      if (c.asNobody) user.emplace();
      SaveAs("cases/rights.wlc");
    }
    EXPECT_EQ(Rights(file), before) << c.what;
    EXPECT_EQ(before.note, "keep") << c.what;
    EXPECT_NE(ReadBytes(file), old) << c.what;
    EXPECT_EQ(StateOfFile(file.string()).file == place.file, c.inPlace) << c.what;
    ::removexattr((folder / "cases").c_str(), "system.posix_acl_default");
  }
}

TEST_F(Faults, PlacesThatAreNoFileRefuseTheSave) {
  fs::create_directory(folder / "folder.wlc");
  fs::create_directory(folder / "vanished");
  SaveAs("vanished/x.wlc");
  SaveAs("cases/old.wlc");
  old = ReadBytes(folder / "cases/old.wlc");
  fs::remove_all(folder / "vanished");
  root->Description("");
  root->Description("changed");
  ExpectRefused([&] { SaveAs("folder.wlc"); }, 75,
                "Path/File access error: " + NativePath(Stored("folder.wlc")));
  ExpectRefused([&] { SaveAs("vanished/x.wlc"); }, 76,
                "Path not found: " + NativePath(Stored("vanished/x.wlc")));
  ExpectRefused([&] { SaveAs("cases/old.wlc/x"); }, 76,
                "Path not found: " + NativePath(Stored("cases/old.wlc/x")));
  fs::create_symlink("/dev/null", folder / "nothing.wlc");
  ExpectRefused([&] { SaveAs("nothing.wlc"); }, 75,
                "Path/File access error: " + NativePath(Stored("nothing.wlc")) + " isn't a plain file");
}

TEST_F(Faults, ASaveKeepsLinkAndMode) {
  fs::permissions(folder / "cases/old.wlc", fs::perms(0640));
  fs::create_symlink("cases/old.wlc", folder / "link.wlc");
  SaveAs("link.wlc");
  EXPECT_TRUE(fs::is_symlink(folder / "link.wlc"));
  EXPECT_EQ(fs::status(folder / "cases/old.wlc").permissions(), fs::perms(0640));
  EXPECT_NE(ReadBytes(folder / "cases/old.wlc").find("Description=changed"), std::string::npos);
  fs::create_symlink("gone.wlc", folder / "dangling.wlc");
  SaveAs("dangling.wlc");
  EXPECT_TRUE(fs::is_regular_file(folder / "gone.wlc"));
}

TEST_F(Faults, AFileThatCannotBeReadRaises) {
  EXPECT_EQ(RaisedBy([&] { root->OpenExisting("/proc/self/mem"); }).text, "Device I/O error: /proc/self/mem");
  fs::permissions(folder / "cases/old.wlc", fs::perms(0));
  {
    const OrdinaryUser user;
    EXPECT_EQ(RaisedBy([&] { Open("cases/old.wlc"); }).number, 70);
  }
  std::ofstream(folder / "large.wlc");
  fs::resize_file(folder / "large.wlc", (16u << 20) + 1);
  EXPECT_EQ(RaisedBy([&] { Open("large.wlc"); }).number, 5);
  EXPECT_EQ(root->Location(), "");
}

TEST_F(Faults, ACaseThatWouldNotOpenAgainIsNotSaved) {
  root->Description(std::string(17u << 20, 'x'));
  EXPECT_EQ(RaisedBy([&] { root->Save(); }).number, 5);
  EXPECT_EQ(ReadBytes(folder / "cases/old.wlc"), old);
}

/// A child that saves two versions in turn, as fast as it can, until it is killed.
pid_t StartSaving(const std::string& path, const std::string (&versions)[2]) {
  const pid_t child = ::fork();
  if (child != 0) return child;
  for (int round = 0;; ++round) {
    clsSaveFile file;
    file.Data("Case", "Filler", "", versions[round % 2]);
    file.WriteData(path);
  }
}

class KilledSaves : public Faults, public testing::WithParamInterface<bool> {};
INSTANTIATE_TEST_SUITE_P(InPlace, KilledSaves, testing::Bool());

// In place (a file of two names is written so) the whole version may be the copy put aside.
TEST_P(KilledSaves, LeaveOneOfTheTwoWholeVersions) {
  const std::string versions[2] = {std::string(700, 'a'), std::string(60000, 'b')};
  if (GetParam()) fs::create_hard_link(folder / "cases/old.wlc", folder / "cases/link.wlc");
  std::string whole[2];
  const auto start = std::chrono::steady_clock::now();
  for (int version = 0; version < 2; ++version) {
    clsSaveFile file;
    file.Data("Case", "Filler", "", versions[version]);
    file.WriteData(In("cases/old.wlc"));
    whole[version] = ReadBytes(folder / "cases/old.wlc");
  }
  // The kills fall among some saves, however fast the disk is.
  const auto twoSaves = std::chrono::steady_clock::now() - start;
  const auto longest = std::chrono::duration_cast<std::chrono::microseconds>(3 * twoSaves).count() + 1000;
  std::mt19937 random(5);
  const int kills = LongTests() ? 1000 : 40;
  int seen[2] = {0, 0};
  for (int kill = 0; kill < kills; ++kill) {
    const pid_t child = StartSaving(In("cases/old.wlc"), versions);
    ASSERT_GT(child, 0);
    ::usleep(std::uniform_int_distribution<useconds_t>(0, static_cast<useconds_t>(longest))(random));
    ::kill(child, SIGKILL);
    ::waitpid(child, nullptr, 0);
    std::string found = ReadBytes(folder / "cases/old.wlc");
    if (GetParam() && found != whole[0] && found != whole[1]) {
      found = ReadBytes(CopyPutAside(In("cases/old.wlc")));
      WriteBytes(folder / "cases/old.wlc", found);
    }
    ASSERT_TRUE(found == whole[0] || found == whole[1])
        << "kill " << kill << ", " << found.size() << " bytes";
    ++seen[found == whole[1] ? 1 : 0];
  }
  EXPECT_GT(seen[0], 0);
  EXPECT_GT(seen[1], 0);
}

class Corrupt : public CaseTest {
 protected:
  /// Opens or raises an error with number and text; anything else is a fault.
  void Try(const std::string& bytes) {
    WriteBytes(folder / "corrupt.wlc", bytes);
    root->IsDirty(false);
    try {
      EXPECT_TRUE(Open("corrupt.wlc"));
    } catch (const Error& error) {
      EXPECT_NE(error.Number(), 0);
      EXPECT_STRNE(error.what(), "");
    }
  }
};

TEST_F(Corrupt, EveryFlipAndTruncationOpensOrRaises) {
  struct Sample {
    const char* name;
    std::size_t step;
  };
  const std::size_t longer = LongTests() ? 1 : 97;
  for (const auto& [name, step] :
       {Sample{"site_by_sector.wlc", longer}, Sample{"office_manual_results.wlc", 7 * longer}}) {
    const std::string sample = ReadBytes(fs::path(ORVE_SAMPLE_CASES) / name);
    ASSERT_FALSE(sample.empty());
    std::mt19937 random(7);
    for (std::size_t at = 0; at < sample.size(); at += step) {
      std::string flipped = sample;
      flipped[at] = static_cast<char>(flipped[at] ^ (1 << random() % 8));
      Try(flipped);
      Try(sample.substr(0, at));
    }
  }
}

TEST_F(Corrupt, RubbishOpensOrRaises) {
  std::mt19937 random(11);
  for (const std::size_t size : {0, 1, 100, 5000}) {
    std::string bytes(size, '\0');
    for (char& byte : bytes) byte = static_cast<char>(random());
    Try(bytes);
  }
  Try(std::string("\xEF\xBB\xBF[WindLoadCase]\r\nDescription=") + std::string(3, 0) + "\r\n");
  Try("[WindLoadCase][WindLoadCase]\n\n\n=\r");
  Try("[BuildingDimensions]\r\nRoof_Height=" + std::string(100000, '9') + "\r\n");
  Try("[ExternalCoefficients]\r\nManualResults=True\r\n[BuildingDimensions]\r\nRoofType=-7\r\n");
}

}  // namespace
}  // namespace orve::test
