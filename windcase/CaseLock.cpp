#include "CaseLock.h"

#include <cerrno>
#include <chrono>
#include <fcntl.h>
#include <filesystem>
#include <sys/file.h>
#include <sys/stat.h>
#include <thread>
#include <unistd.h>
#include <utility>

#include "Failure.h"

namespace windcase {

namespace {

using namespace std::chrono_literals;

constexpr auto kLongestWait = 30s;
constexpr auto kPause = 5ms;

// Some network file systems lock only what is open for writing.
int OpenToLock(const std::string& path) {
  for (const int way : {O_RDWR, O_RDONLY}) {
    const int fd = ::open(path.c_str(), way | O_CLOEXEC | O_NONBLOCK);
    if (fd >= 0) return fd;
  }
  if (errno != ENOENT) return -1;
  const std::string folder = std::filesystem::path(path).parent_path();
  return ::open(folder.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
}

// A save puts a new file in the place of the one that is locked.
bool StillStandsThere(int fd, const std::string& path) {
  struct stat locked {};
  struct stat present {};
  if (::fstat(fd, &locked) != 0) return false;
  if (S_ISDIR(locked.st_mode)) return ::stat(path.c_str(), &present) != 0 || S_ISDIR(present.st_mode);
  return ::stat(path.c_str(), &present) == 0 && locked.st_dev == present.st_dev &&
         locked.st_ino == present.st_ino;
}

}  // namespace

CaseLock::CaseLock(const std::string& path) {
  const auto last = std::chrono::steady_clock::now() + kLongestWait;
  while (!Take(path)) {
    if (std::chrono::steady_clock::now() > last)
      throw Failure(ExitCode::File, path + " is in use: another program has it locked");
    std::this_thread::sleep_for(kPause);
  }
}

CaseLock::~CaseLock() {
  if (m_fd >= 0) ::close(m_fd);
}

// Where nothing can be locked the save says what is wrong with the place, or goes without a lock.
bool CaseLock::Take(const std::string& path) {
  m_fd = OpenToLock(path);
  if (m_fd < 0) return true;
  const bool locked = ::flock(m_fd, LOCK_EX | LOCK_NB) == 0;
  if (!locked && errno != EWOULDBLOCK && errno != EINTR) return true;
  if (locked && StillStandsThere(m_fd, path)) return true;
  ::close(std::exchange(m_fd, -1));
  return false;
}

}  // namespace windcase
