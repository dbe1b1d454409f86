// Writing whole files on POSIX systems.
#include <fcntl.h>
#include <utility>

#include "common/Error.h"
#include "common/FileLayer.h"
#include "common/FileLayerParts.h"
#include "common/PosixFile.h"

namespace orve {

namespace {

namespace fs = std::filesystem;

constexpr mode_t OwnerOnly = 0600;
constexpr mode_t AllReadAndWrite = 0666;

/// The new file beside the target, which goes unless it is renamed.
class TemporaryFile {
 public:
  TemporaryFile(const fs::path& target, mode_t mode)
      : m_file(CreateTemporary(target.parent_path(), mode)), m_target(target) {}
  ~TemporaryFile() {
    if (!m_file.path.empty()) ::unlink(m_file.path.c_str());
  }
  TemporaryFile(const TemporaryFile&) = delete;
  TemporaryFile& operator=(const TemporaryFile&) = delete;

  int Cause() const { return m_file.cause; }
  int Get() const { return m_file.fd.Get(); }
  const FileState& State() const { return m_state; }

  int Write(std::string_view content, bool flush) {
    int cause = WriteAll(Get(), content);
    if (cause == 0 && flush) cause = Flush(Get());
    m_state = StateOf(Get());
    if (!m_file.fd.Close() && cause == 0) cause = errno;
    return cause;
  }

  int Rename() {
    if (::rename(m_file.path.c_str(), m_target.c_str()) != 0) return errno;
    m_file.path.clear();
    return 0;
  }

 private:
  NewFile m_file;
  fs::path m_target;
  FileState m_state;
};

bool FolderForbids(int cause) {
  return cause == EACCES || cause == EPERM || cause == EROFS || cause == EBUSY || cause == EXDEV;
}

void RequirePlainFile(const fs::path& target, const std::string& path) {
  struct stat status {};
  if (::stat(target.c_str(), &status) != 0 || S_ISREG(status.st_mode)) return;
  if (S_ISDIR(status.st_mode)) RaiseSystemError(EISDIR, path, target);
  RaiseNoPlainFile(path);
}

}  // namespace

int WriteAll(int fd, std::string_view content) {
  while (!content.empty()) {
    const ssize_t written = Retried([&] { return ::write(fd, content.data(), content.size()); });
    if (written < 0) return errno;
    content.remove_prefix(static_cast<std::size_t>(written));
  }
  return 0;
}

int Flush(int fd) {
  return Retried([fd] { return ::fsync(fd); }) == 0 || errno == EINVAL || errno == ENOTSUP ? 0 : errno;
}

int FlushFolder(const fs::path& folder) {
  const Descriptor fd(::open(folder.empty() ? "." : folder.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC));
  if (!fd) return errno == EACCES ? 0 : errno;
  return Flush(fd.Get());
}

NewFile CreateTemporary(const fs::path& folder, mode_t mode) {
  NewFile made{Descriptor(-1), TemporaryPath(folder)};
  made.fd = Descriptor(::open(made.path.c_str(), O_RDWR | O_CREAT | O_EXCL | O_CLOEXEC, mode));
  if (!made.fd) {
    made.cause = errno;
    made.path.clear();
  }
  return made;
}

bool IsOwnPlainFile(const fs::path& file) {
  struct stat status {};
  return ::lstat(file.c_str(), &status) == 0 && S_ISREG(status.st_mode) && status.st_uid == ::geteuid();
}

FileState WriteWholeFile(const std::string& path, std::string_view content, Durability durability) {
  const bool flush = durability == Durability::Flushed;
  const fs::path target = FollowLinks(UsableNativePath(path));
  RequirePlainFile(target, path);
  // The target itself is opened first, uncut, so that a protected file is refused whatever its folder allows.
  Descriptor present(::open(target.c_str(), O_WRONLY | O_CLOEXEC | O_NONBLOCK));
  struct stat status {};
  if (!present && errno != ENOENT) RaiseSystemError(errno, path, target);
  if (present && ::fstat(present.Get(), &status) != 0) RaiseSystemError(errno, path, target);
  const auto raiseUnlessDone = [&](int cause) {
    if (cause != 0) RaiseSystemError(cause, path, target);
  };
  const auto writeInPlace = [&] {
    raiseUnlessDone(WriteInPlace(target, present, content, flush));
    const FileState state = StateOf(present.Get());
    raiseUnlessDone(present.Close() ? 0 : errno);
    return state;
  };
  // The other names of the file stay names of it.
  if (present && status.st_nlink > 1) return writeInPlace();

  SweepTemporaries(target.parent_path());
  TemporaryFile temporary(target, present ? OwnerOnly : AllReadAndWrite);
  if (const int cause = temporary.Cause()) {
    if (present && (FolderForbids(cause) || cause == ENAMETOOLONG)) return writeInPlace();
    RaiseSystemError(cause, path, target);
  }
  const int rights = present ? TakeRights(present.Get(), status, temporary.Get()) : 0;
  if (RightsCannotBeKept(rights)) return writeInPlace();
  raiseUnlessDone(rights);
  raiseUnlessDone(temporary.Write(content, flush));
  const int renamed = temporary.Rename();
  if (present && FolderForbids(renamed)) return writeInPlace();
  raiseUnlessDone(renamed);
  if (flush) raiseUnlessDone(FlushFolder(target.parent_path()));
  return temporary.State();
}

}  // namespace orve
