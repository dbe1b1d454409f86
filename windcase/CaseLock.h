// One writer at a time.
#pragma once

#include <string>

namespace windcase {

/// Keeps other runs of this program from changing a case for as long as it lives. A file that isn't there yet
/// is locked by its folder. Waits for another's lock; it goes with the process, however that ends.
class CaseLock {
 public:
  /// `path` is the machine's own. Failure: File if another program holds the lock for 30 s.
  explicit CaseLock(const std::string& path);
  ~CaseLock();
  CaseLock(const CaseLock&) = delete;
  CaseLock& operator=(const CaseLock&) = delete;

 private:
  bool Take(const std::string& path);
  int m_fd = -1;
};

}  // namespace windcase
