// The one place where a stored path meets the real file system.
#pragma once

#include <cstddef>
#include <filesystem>
#include <string>
#include <string_view>

#include "common/FileState.h"

namespace orve {

/// A larger case file is refused.
inline constexpr std::size_t LargestFile = 16u * 1024 * 1024;

/// A path with "\" as its separator, as settings, case files and texts keep it.
std::string StoredPath(std::string path);
/// The folder that a stored path lies in, without a closing separator.
std::string ParentFolder(const std::string& storedPath);

/// True if a plain file of that name exists.
bool IsPlainFile(const std::string& path);
/// The machine's full path of the file that reading and writing use, its links followed, whether it exists or
/// not. Errors: 75 for an empty name or one with a zero byte.
std::string ResolvedPath(const std::string& path);

/// The state of the file of that name; that of no file also where it can't be asked for.
FileState StateOfFile(const std::string& path);

/// The whole content of a file, byte for byte. Errors: 5 for a file that is larger than `LargestFile`, 53,
/// 57, 70, 75, 76. `state`: what the file was when its reading began.
std::string ReadWholeFile(const std::string& path, FileState* state = nullptr);

enum class Durability {
  Flushed,  ///< On the disk before the call returns.
  Atomic,   ///< Whole for every reader, also after a crash of the program.
};
/// Writes a file so that a crash leaves either the old or the new content: the text goes to a temporary file
/// beside the target and is renamed over it. Where the folder doesn't allow that, the file is written in
/// place, and so is one that has more names than one, or whose owner, group, access list or users' attributes
/// the new file couldn't get. A failed write leaves the old content. Gives the state of the new file. Errors:
/// 57, 61, 70, 75, 76.
FileState WriteWholeFile(const std::string& path, std::string_view content, Durability durability);
/// Ends an existing file at a byte. False if that fails.
bool TruncateFile(const std::string& path, std::size_t length);

/// Puts the process's current folder back when it goes, should a host's dialog have changed it.
class KeptCurrentFolder {
 public:
  KeptCurrentFolder();
  ~KeptCurrentFolder();
  KeptCurrentFolder(const KeptCurrentFolder&) = delete;
  KeptCurrentFolder& operator=(const KeptCurrentFolder&) = delete;

 private:
  std::filesystem::path m_folder;
};

/// The running program's folder, as the machine writes it.
std::string ProgramFolder();
/// The machine's local time as an OLE date, whole seconds.
double LocalTime();

}  // namespace orve
