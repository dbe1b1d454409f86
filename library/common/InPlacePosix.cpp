// Writing a file in place on POSIX systems, with the way back.
#include <array>
#include <fcntl.h>

#include "common/FileLayerParts.h"
#include "common/PosixFile.h"
#include "common/PutAside.h"

namespace orve {

namespace {

namespace fs = std::filesystem;

constexpr mode_t CopyMode = 0600;

/// 0, or the error. Both files are taken from their first byte on.
int CopyContent(int from, int to) {
  if (::lseek(from, 0, SEEK_SET) != 0 || ::lseek(to, 0, SEEK_SET) != 0) return errno;
  std::array<char, 65536> part;
  for (;;) {
    const ssize_t got = Retried([&] { return ::read(from, part.data(), part.size()); });
    if (got < 0) return errno;
    if (got == 0) return 0;
    if (const int cause = WriteAll(to, {part.data(), static_cast<std::size_t>(got)})) return cause;
  }
}

/// A lock that shows others that the copy is in use. It goes with the process, however that ends.
struct flock WholeFileLock(short type) {
  struct flock lock {};
  lock.l_type = type;
  lock.l_whence = SEEK_SET;
  return lock;
}

/// Gives a file its old length, and its old time, so that nobody takes it for another one. 0, or the error.
int EndAsBefore(int file, const struct stat& before) {
  if (::ftruncate(file, before.st_size) != 0) return errno;
  const timespec times[2] = {{0, UTIME_OMIT}, before.st_mtim};
  ::futimens(file, times);
  return 0;
}

/// The old content of the file, kept until the new one is whole.
class Copy {
 public:
  /// 0, or the error for the last folder tried.
  int Make(const fs::path& file, const FileState& state, bool flush) {
    const Descriptor content(::open(file.c_str(), O_RDONLY | O_CLOEXEC | O_NONBLOCK));
    if (!content) return errno;
    int cause = ENOENT;
    for (const fs::path& folder : PutAsideFolders()) {
      cause = MakeIn(folder, PutAsideName(file, state), content.Get(), flush);
      if (cause == 0) break;
    }
    return cause;
  }

  int BringBack(int file, const struct stat& before, bool flush) const {
    if (const int cause = CopyContent(m_fd.Get(), file)) return cause;
    if (const int cause = EndAsBefore(file, before)) return cause;
    return flush ? Flush(file) : 0;
  }

  void Remove() const { ::unlink(m_path.c_str()); }

 private:
  int MakeIn(const fs::path& folder, const std::string& name, int content, bool flush) {
    NewFile made = CreateTemporary(folder, CopyMode);
    if (!made.fd) return made.cause;
    struct flock lock = WholeFileLock(F_WRLCK);
    ::fcntl(made.fd.Get(), F_SETLK, &lock);
    int cause = CopyContent(content, made.fd.Get());
    if (cause == 0 && flush) cause = Flush(made.fd.Get());
    // Only a whole copy gets the name by which it is found.
    m_path = folder / name;
    if (cause == 0 && ::rename(made.path.c_str(), m_path.c_str()) != 0) cause = errno;
    if (cause != 0) {
      ::unlink(made.path.c_str());
      return cause;
    }
    m_fd = std::move(made.fd);
    cause = flush ? FlushFolder(folder) : 0;
    if (cause != 0) Remove();
    return cause;
  }

  Descriptor m_fd{-1};
  fs::path m_path;
};

/// Makes sure of the room for a file that grows, where the file system can.
int MakeRoom(int file, off_t present, off_t wanted) {
  if (wanted <= present) return 0;
  const int cause = ::posix_fallocate(file, 0, wanted);
  return cause == EOPNOTSUPP || cause == EINVAL || cause == ENOSYS ? 0 : cause;
}

}  // namespace

int WriteInPlace(const fs::path& target, const Descriptor& present, std::string_view content, bool flush) {
  struct stat before {};
  if (::fstat(present.Get(), &before) != 0) return errno;
  Copy copy;
  if (const int cause = copy.Make(target, StateOf(before), flush)) return cause;
  const auto length = static_cast<off_t>(content.size());
  int cause = MakeRoom(present.Get(), before.st_size, length);
  const bool untouched = cause != 0;
  if (cause == 0) cause = WriteAll(present.Get(), content);
  if (cause == 0 && ::ftruncate(present.Get(), length) != 0) cause = errno;
  if (cause == 0 && flush) cause = Flush(present.Get());
  const bool restored = cause != 0 && (untouched ? EndAsBefore(present.Get(), before)
                                                 : copy.BringBack(present.Get(), before, flush)) == 0;
  if (cause == 0 || restored) copy.Remove();
  return cause;
}

bool IsLeftCopy(const fs::path& copy) {
  if (!IsOwnPlainFile(copy)) return false;
  const Descriptor fd(::open(copy.c_str(), O_RDONLY | O_CLOEXEC));
  struct flock lock = WholeFileLock(F_RDLCK);
  const bool inUse = ::fcntl(fd.Get(), F_GETLK, &lock) == 0 && lock.l_type != F_UNLCK;
  return fd && !inUse;
}

}  // namespace orve
