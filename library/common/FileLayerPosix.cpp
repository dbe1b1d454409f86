// The file layer on POSIX systems.
#include <algorithm>
#include <cerrno>
#include <ctime>
#include <fcntl.h>
#include <filesystem>
#include <sys/stat.h>
#include <system_error>
#include <unistd.h>

#include "common/Error.h"
#include "common/FileLayer.h"
#include "common/FileLayerParts.h"
#include "common/Host.h"
#include "common/PosixFile.h"

namespace orve {

namespace {

namespace fs = std::filesystem;

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

}  // namespace

[[noreturn]] void RaiseSystemError(int cause, const std::string& path, const fs::path& native) {
  RaiseFileError(NumberOf(cause, native), path);
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

FileState StateOfFile(const std::string& path) {
  struct stat status {};
  if (path.empty() || path.find('\0') != std::string::npos) return {};
  return ::stat(NativePath(path).c_str(), &status) == 0 ? StateOf(status) : FileState();
}

std::string ReadWholeFile(const std::string& path, FileState* state) {
  const fs::path native = UsableNativePath(path);
  const Descriptor fd(::open(native.c_str(), O_RDONLY | O_CLOEXEC | O_NONBLOCK));
  struct stat status {};
  if (!fd || ::fstat(fd.Get(), &status) != 0) RaiseSystemError(errno, path, native);
  if (S_ISDIR(status.st_mode)) RaiseSystemError(EISDIR, path, native);
  RefuseLargeFile(static_cast<std::size_t>(std::max<off_t>(status.st_size, 0)), path);
  if (state != nullptr) *state = StateOf(status);

  // One byte more than the file seems to hold, so that its end is seen in the same pass.
  std::string content(static_cast<std::size_t>(status.st_size) + 1, '\0');
  std::size_t length = 0;
  for (;;) {
    const ssize_t got =
        Retried([&] { return ::read(fd.Get(), content.data() + length, content.size() - length); });
    if (got < 0) RaiseSystemError(errno, path, native);
    if (got == 0) break;
    length += static_cast<std::size_t>(got);
    RefuseLargeFile(length, path);
    if (length == content.size()) content.resize(content.size() * 2);
  }
  content.resize(length);
  return content;
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
