// What the parts of the file layer on POSIX systems share.
#pragma once

#include <cerrno>
#include <filesystem>
#include <string>
#include <string_view>
#include <sys/stat.h>
#include <unistd.h>
#include <utility>

#include "common/FileState.h"

namespace orve {

class Descriptor {
 public:
  explicit Descriptor(int fd) : m_fd(fd) {}
  Descriptor(Descriptor&& other) noexcept : m_fd(std::exchange(other.m_fd, -1)) {}
  Descriptor& operator=(Descriptor&& other) noexcept {
    std::swap(m_fd, other.m_fd);
    return *this;
  }
  ~Descriptor() { Close(); }

  explicit operator bool() const { return m_fd >= 0; }
  int Get() const { return m_fd; }
  bool Close() { return m_fd < 0 || ::close(std::exchange(m_fd, -1)) == 0; }

 private:
  int m_fd;
};

/// A call that a signal interrupted is made again.
template <class Call>
auto Retried(Call call) {
  auto result = call();
  while (result < 0 && errno == EINTR) result = call();
  return result;
}

/// Raises the error of the file system that stands for a system's error.
[[noreturn]] void RaiseSystemError(int cause, const std::string& path, const std::filesystem::path& native);

FileState StateOf(const struct stat& status);
FileState StateOf(int fd);

// Each gives 0, or the system's error.
int WriteAll(int fd, std::string_view content);
/// What can't be flushed by its nature (a device) isn't an error.
int Flush(int fd);
/// A folder that its user may not read can't be flushed, which isn't an error either.
int FlushFolder(const std::filesystem::path& folder);

/// A new file that only its owner can read or write, named so that nobody can foresee it.
struct NewFile {
  Descriptor fd;
  std::filesystem::path path;
  int cause = 0;  ///< The system's error if `fd` is none.
};
/// `mode`: the rights that the process's mask is taken from.
NewFile CreateTemporary(const std::filesystem::path& folder, mode_t mode);

/// Gives a new file the owner, the group, the rights, the access list and the users' attributes of the
/// present one. 0, or the system's error; one of `RightsCannotBeKept` where another reader than before would
/// come in or something would be lost.
int TakeRights(int presentFile, const struct stat& present, int newFile);
bool RightsCannotBeKept(int cause);

/// Writes an existing file from its first byte on and cuts what stood behind. What stood there is put aside
/// as a file of its own until the new content is whole, and comes back if the writing fails. 0, or the
/// system's error with the old content in place.
int WriteInPlace(const std::filesystem::path& target, const Descriptor& present, std::string_view content,
                 bool flush);

}  // namespace orve
