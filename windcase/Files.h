// The files that the program reads and writes beside its cases.
#pragma once

#include <string>
#include <string_view>

namespace windcase {

/// The machine's path of the file that the library opens and saves under a name. Failure: File for a name
/// that no file can have.
std::string ResolvedName(const std::string& name);

/// The content of a file. Failure: File for one that isn't there, isn't a plain file or is larger than 16 MB;
/// size and kind are asked for before it is read.
std::string ReadPlainFile(const std::string& path);

/// A file that the program makes from a case.
struct Output {
  std::string path;
  std::string casePath;
  bool force = false;  ///< Write over an existing file.
};

/// Writes a file whole or not at all. It can be read by nobody who can't read the case. Failure: File for an
/// existing file without `force`, and for one that is a case, always.
void WriteOutput(const Output& output, std::string_view text);

}  // namespace windcase
