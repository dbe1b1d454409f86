// A folder of its own for a target's files, in memory where the machine has such a place.
#pragma once

#include <filesystem>
#include <stdlib.h>
#include <string>

#include "FuzzTargets.h"

namespace orve::fuzz {

/// Made at construction and removed with all that it holds at destruction.
class MemoryFolder {
 public:
  MemoryFolder() {
    const std::filesystem::path memory = "/dev/shm";
    std::string name = ((std::filesystem::exists(memory) ? memory : std::filesystem::temp_directory_path()) /
                        "orve-fuzz-XXXXXX")
                           .string();
    Require(::mkdtemp(name.data()) != nullptr, "a folder for the files");
    m_path = name;
  }
  MemoryFolder(const MemoryFolder&) = delete;
  MemoryFolder& operator=(const MemoryFolder&) = delete;
  ~MemoryFolder() {
    std::error_code failure;
    std::filesystem::remove_all(m_path, failure);
  }

  std::string Path() const { return m_path.string(); }
  std::string File(const char* name) const { return (m_path / name).string(); }

 private:
  std::filesystem::path m_path;
};

}  // namespace orve::fuzz
