// The file layer on POSIX systems.
#include <algorithm>
#include <atomic>
#include <cerrno>
#include <ctime>
#include <fcntl.h>
#include <filesystem>
#include <sys/stat.h>
#include <system_error>
#include <unistd.h>
#include <utility>

#include "common/Error.h"
#include "common/FileLayer.h"
#include "common/FileLayerParts.h"
#include "common/Host.h"

namespace orve {

namespace {

namespace fs = std::filesystem;

class Descriptor {
 public:
  explicit Descriptor(int fd) : m_fd(fd) {}
  Descriptor(const Descriptor&) = delete;
  Descriptor& operator=(const Descriptor&) = delete;
  ~Descriptor() { Close(); }

  explicit operator bool() const { return m_fd >= 0; }
  int Get() const { return m_fd; }
  bool Close() { return m_fd < 0 || ::close(std::exchange(m_fd, -1)) == 0; }

 private:
  int m_fd;
};

bool FolderExists(const fs::path& file) {
  std::error_code failure;
  const fs::path folder = file.parent_path();
  return folder.empty() || fs::is_directory(folder, failure);
}

ErrorNumber NumberOf(int cause, const fs::path& native) {
  switch (cause) {
    case ENOENT:
      return FolderExists(native) ? ErrorNumber::FileNotFound : ErrorNumber::PathNotFound;
    case ENOTDIR:
      return ErrorNumber::PathNotFound;
    case EACCES:
    case EPERM:
    case EROFS:
    case ETXTBSY:
      return ErrorNumber::PermissionDenied;
    case ENOSPC:
    case EDQUOT:
    case EFBIG:
      return ErrorNumber::DiskFull;
    case EIO:
    case ENXIO:
      return ErrorNumber::DeviceIO;
    default:
      return ErrorNumber::PathFileAccess;
  }
}

[[noreturn]] void Raise(int cause, const std::string& path, const fs::path& native) {
  RaiseFileError(NumberOf(cause, native), path);
}

template <class Call>
auto Retried(Call call) {
  auto result = call();
  while (result < 0 && errno == EINTR) result = call();
  return result;
}

/// 0, or the error that stopped the writing.
int WriteAll(int fd, std::string_view content) {
  while (!content.empty()) {
    const ssize_t written = Retried([&] { return ::write(fd, content.data(), content.size()); });
    if (written < 0) return errno;
    content.remove_prefix(static_cast<std::size_t>(written));
  }
  return 0;
}

/// 0, or the error of the flush. What can't be flushed by its nature (a device) isn't an error.
int Flush(int fd) {
  return Retried([fd] { return ::fsync(fd); }) == 0 || errno == EINVAL || errno == ENOTSUP ? 0 : errno;
}

void FlushFolder(const fs::path& folder) {
  const Descriptor fd(::open(folder.empty() ? "." : folder.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC));
  if (fd) Flush(fd.Get());
}

FileState StateOf(const struct stat& status) {
  constexpr std::int64_t nanosecondsPerSecond = 1000000000;
  return {status.st_dev, status.st_ino, status.st_size,
          status.st_mtim.tv_sec * nanosecondsPerSecond + status.st_mtim.tv_nsec};
}

FileState StateOf(int fd) {
  struct stat status {};
  return ::fstat(fd, &status) == 0 ? StateOf(status) : FileState();
}

/// Writes from the first byte on and cuts what stood behind. 0, or the error.
int WriteInPlace(int fd, const struct stat& present, std::string_view content, Durability durability) {
  if (const int cause = WriteAll(fd, content)) return cause;
  if (S_ISREG(present.st_mode) && ::ftruncate(fd, static_cast<off_t>(content.size())) != 0) return errno;
  return durability == Durability::Flushed ? Flush(fd) : 0;
}

/// A temporary file beside the target, which goes unless it is renamed.
class TemporaryFile {
 public:
  explicit TemporaryFile(const fs::path& target) : m_target(target) {}
  ~TemporaryFile() {
    if (m_fd >= 0) ::close(m_fd);
    if (!m_path.empty()) ::unlink(m_path.c_str());
  }
  TemporaryFile(const TemporaryFile&) = delete;
  TemporaryFile& operator=(const TemporaryFile&) = delete;

  /// 0, or the error.
  int Create() {
    static std::atomic<unsigned> counter{0};
    for (int attempt = 0; attempt < 100; ++attempt) {
      const fs::path path = m_target.parent_path() / (".orve-" + std::to_string(::getpid()) + "-" +
                                                      std::to_string(counter++) + ".tmp");
      m_fd = ::open(path.c_str(), O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC, 0666);
      if (m_fd >= 0) {
        m_path = path;
        return 0;
      }
      if (errno != EEXIST) return errno;
    }
    return EEXIST;
  }

  /// The owner stays where the system allows it; the mode always.
  int TakeModeOf(const struct stat& present) {
    const bool sameOwner = ::fchown(m_fd, present.st_uid, present.st_gid) == 0;
    const mode_t kept = present.st_mode & (sameOwner ? 07777u : 0777u);
    return ::fchmod(m_fd, kept) == 0 ? 0 : errno;
  }

  int Write(std::string_view content, Durability durability) {
    int cause = WriteAll(m_fd, content);
    if (cause == 0 && durability == Durability::Flushed) cause = Flush(m_fd);
    m_state = StateOf(m_fd);
    if (::close(std::exchange(m_fd, -1)) != 0 && cause == 0) cause = errno;
    return cause;
  }

  int Rename() {
    if (::rename(m_path.c_str(), m_target.c_str()) != 0) return errno;
    m_path.clear();
    return 0;
  }

  const FileState& State() const { return m_state; }

 private:
  int m_fd = -1;
  FileState m_state;
  fs::path m_path;
  fs::path m_target;
};

bool FolderForbids(int cause) {
  return cause == EACCES || cause == EPERM || cause == EROFS || cause == EBUSY || cause == EXDEV;
}

}  // namespace

FileState StateOfFile(const std::string& path) {
  struct stat status {};
  if (path.empty() || path.find('\0') != std::string::npos) return {};
  return ::stat(NativePath(path).c_str(), &status) == 0 ? StateOf(status) : FileState();
}

std::string ReadWholeFile(const std::string& path, FileState* state) {
  const fs::path native = UsableNativePath(path);
  const Descriptor fd(::open(native.c_str(), O_RDONLY | O_CLOEXEC | O_NONBLOCK));
  struct stat status {};
  if (!fd || ::fstat(fd.Get(), &status) != 0) Raise(errno, path, native);
  if (S_ISDIR(status.st_mode)) Raise(EISDIR, path, native);
  RefuseLargeFile(static_cast<std::size_t>(std::max<off_t>(status.st_size, 0)), path);
  if (state != nullptr) *state = StateOf(status);

  // One byte more than the file seems to hold, so that its end is seen in the same pass.
  std::string content(static_cast<std::size_t>(status.st_size) + 1, '\0');
  std::size_t length = 0;
  for (;;) {
    const ssize_t got =
        Retried([&] { return ::read(fd.Get(), content.data() + length, content.size() - length); });
    if (got < 0) Raise(errno, path, native);
    if (got == 0) break;
    length += static_cast<std::size_t>(got);
    RefuseLargeFile(length, path);
    if (length == content.size()) content.resize(content.size() * 2);
  }
  content.resize(length);
  return content;
}

FileState WriteWholeFile(const std::string& path, std::string_view content, Durability durability) {
  const fs::path target = FollowLinks(UsableNativePath(path));
  // The target itself is opened first, uncut, so that a protected file is refused whatever its folder allows.
  Descriptor present(::open(target.c_str(), O_WRONLY | O_CLOEXEC | O_NONBLOCK));
  struct stat status {};
  if (!present && errno != ENOENT) Raise(errno, path, target);
  if (present && ::fstat(present.Get(), &status) != 0) Raise(errno, path, target);
  const auto raiseUnlessDone = [&](int cause) {
    if (cause != 0) Raise(cause, path, target);
  };
  const auto writeInPlace = [&] {
    raiseUnlessDone(WriteInPlace(present.Get(), status, content, durability));
    const FileState state = StateOf(present.Get());
    raiseUnlessDone(present.Close() ? 0 : errno);
    return state;
  };
  if (present && !S_ISREG(status.st_mode)) return writeInPlace();

  TemporaryFile temporary(target);
  if (const int cause = temporary.Create()) {
    if (present && (FolderForbids(cause) || cause == ENAMETOOLONG)) return writeInPlace();
    Raise(cause, path, target);
  }
  int cause = present ? temporary.TakeModeOf(status) : 0;
  if (cause == 0) cause = temporary.Write(content, durability);
  raiseUnlessDone(cause);
  cause = temporary.Rename();
  if (present && FolderForbids(cause)) return writeInPlace();
  raiseUnlessDone(cause);
  if (durability == Durability::Flushed) FlushFolder(target.parent_path());
  return temporary.State();
}

bool TruncateFile(const std::string& path, std::size_t length) {
  if (path.empty() || path.find('\0') != std::string::npos) return false;
  const std::string native = NativePath(path);
  const Descriptor fd(::open(native.c_str(), O_WRONLY | O_CLOEXEC | O_NONBLOCK));
  return fd && ::ftruncate(fd.Get(), static_cast<off_t>(length)) == 0;
}

std::string ProgramFolder() {
  std::error_code failure;
  return fs::read_symlink("/proc/self/exe", failure).parent_path().string();
}

double LocalTime() {
  constexpr double oleDateOfEpoch = 25569;
  constexpr std::time_t secondsPerDay = 86400;
  const std::time_t now = std::time(nullptr);
  std::tm local{};
  ::localtime_r(&now, &local);
  const std::time_t seconds = now + local.tm_gmtoff;
  return oleDateOfEpoch + static_cast<double>(seconds / secondsPerDay) +
         static_cast<double>(seconds % secondsPerDay) / static_cast<double>(secondsPerDay);
}

}  // namespace orve
