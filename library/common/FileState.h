// What a file was at a moment.
#pragma once

#include <cstdint>

namespace orve {

/// What tells a file from an earlier or another one of its name. All zero: there is none.
struct FileState {
  std::uint64_t device = 0;
  std::uint64_t file = 0;
  std::int64_t size = 0;
  std::int64_t changed = 0;  ///< Time of the last change, in the file system's own unit.

  bool operator==(const FileState&) const = default;
};

}  // namespace orve
