#include "Files.h"

#include <fstream>
#include <orve3_bs6399_2.h>
#include <sys/stat.h>
#include <sys/xattr.h>
#include <unistd.h>

#include "CaseTextCheck.h"
#include "Failure.h"
#include "common/FileLayer.h"

namespace windcase {

namespace {

constexpr mode_t kReadAndWrite = 0666;

struct stat StatusOf(const std::string& path) {
  struct stat status {};
  if (::stat(path.c_str(), &status) != 0) status.st_nlink = 0;
  return status;
}

bool Exists(const struct stat& status) {
  return status.st_nlink > 0;
}

bool HasAccessList(const std::string& path) {
  return ::getxattr(path.c_str(), "system.posix_acl_access", nullptr, 0) > 0;
}

// What the case allows to owner, group and others. Another group, and one beside an access list, gets what
// others get.
mode_t AllowedRights(const std::string& casePath, gid_t group) {
  const struct stat status = StatusOf(casePath);
  mode_t allowed = status.st_mode & kReadAndWrite;
  if (group != status.st_gid || HasAccessList(casePath)) allowed &= ~mode_t{0070} | (allowed & 07) << 3;
  return allowed;
}

mode_t PresentUmask() {
  const mode_t present = ::umask(0);
  ::umask(present);
  return present;
}

class OwnerOnly {
 public:
  OwnerOnly() : m_umask(::umask(0177)) {}
  ~OwnerOnly() { ::umask(m_umask); }
  OwnerOnly(const OwnerOnly&) = delete;
  OwnerOnly& operator=(const OwnerOnly&) = delete;

 private:
  mode_t m_umask;
};

// An existing file gives up the rights that the case doesn't give.
void NarrowRights(const std::string& path, const struct stat& status, const std::string& casePath) {
  const mode_t present = status.st_mode & 07777;
  const mode_t narrowed = present & (AllowedRights(casePath, status.st_gid) | ~mode_t{0777});
  if (narrowed != present && ::chmod(path.c_str(), narrowed) != 0)
    throw Failure(ExitCode::File,
                  path + " can be read by more people than the case, and that can't be changed");
}

// A file that was made for the owner alone gets the rights of the case, as far as new files have them here.
void WidenRights(const std::string& path, const std::string& casePath) {
  const gid_t group = StatusOf(casePath).st_gid;
  const bool ofGroup = ::chown(path.c_str(), static_cast<uid_t>(-1), group) == 0;
  const mode_t rights = AllowedRights(casePath, ofGroup ? group : StatusOf(path).st_gid) & ~PresentUmask();
  if (::chmod(path.c_str(), rights) != 0) return;  // the file stays the owner's
}

void RefuseUnlessFree(const Output& output, const std::string& target, const struct stat& status) {
  const struct stat ofCase = StatusOf(output.casePath);
  const bool same = Exists(ofCase) && status.st_dev == ofCase.st_dev && status.st_ino == ofCase.st_ino;
  const bool canBeCase = S_ISREG(status.st_mode) && status.st_size <= static_cast<off_t>(orve::LargestFile);
  if (same || (canBeCase && IsCaseText(ReadPlainFile(target))))
    throw Failure(ExitCode::File, target + " is a wind load case: nothing else is written over it");
  if (!output.force) throw Failure(ExitCode::File, target + " is there already; --force writes over it");
}

// A pipe or a device has no path that could be resolved.
void WriteToDevice(const std::string& path, std::string_view text) {
  std::ofstream device(path, std::ios::binary);
  if (!(device << text).flush()) throw Failure(ExitCode::File, "Can't write " + path);
}

}  // namespace

std::string ResolvedName(const std::string& name) {
  try {
    return orve::ResolveFileName(name);
  } catch (const orve::Error& error) {
    throw Failure(ExitCode::File, "\"" + name + "\": " + error.what());
  }
}

std::string ReadPlainFile(const std::string& path) {
  const std::string resolved = ResolvedName(path);
  const struct stat status = StatusOf(resolved);
  if (!Exists(status)) throw Failure(ExitCode::File, "There is no file " + path);
  if (!S_ISREG(status.st_mode)) throw Failure(ExitCode::File, path + " isn't a plain file");
  if (status.st_size > static_cast<off_t>(orve::LargestFile))
    throw Failure(ExitCode::File, path + " is larger than 16 MB");
  return orve::ReadWholeFile(resolved);
}

void WriteOutput(const Output& output, std::string_view text) {
  const struct stat given = StatusOf(output.path);
  if (Exists(given) && !S_ISREG(given.st_mode) && output.force) return WriteToDevice(output.path, text);
  const std::string target = ResolvedName(output.path);
  const struct stat status = StatusOf(target);
  if (Exists(status)) {
    RefuseUnlessFree(output, target, status);
    NarrowRights(target, status, output.casePath);
    orve::WriteWholeFile(target, text, orve::Durability::Flushed);
    return;
  }
  {
    const OwnerOnly rights;
    orve::WriteWholeFile(target, text, orve::Durability::Flushed);
  }
  WidenRights(target, output.casePath);
}

}  // namespace windcase
