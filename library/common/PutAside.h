// Copies of files that are being written in place: where they lie and which file they belong to.
#pragma once

#include <filesystem>
#include <string>
#include <vector>

#include "common/FileState.h"

namespace orve {

/// Folders that take a copy, the best first: that of the settings, unless it is a temporary one, and the
/// system's for temporary files.
std::vector<std::filesystem::path> PutAsideFolders();
/// A new name for the copy of a file.
std::string PutAsideName(const std::filesystem::path& file, const FileState& state);
/// The newest copy of a file that an interrupted write left, if its content isn't that of the file; else
/// empty. Errors: 75 for a name that no file can have.
std::string FindPutAside(const std::string& path);

/// True for a copy of the user's own that no running write holds.
bool IsLeftCopy(const std::filesystem::path& copy);

}  // namespace orve
