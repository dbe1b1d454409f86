// What the file layers of all systems share.
#pragma once

#include <cstddef>
#include <filesystem>
#include <string>

#include "common/Error.h"

namespace orve {

/// Raises an error of the file system with its text and the stored path.
[[noreturn]] void RaiseFileError(ErrorNumber number, const std::string& path);
/// Raises 5 for a size above `LargestFile`.
void RefuseLargeFile(std::size_t size, const std::string& path);
/// The machine's own path of a name that the system can take whole. Errors: 75 for an empty name or one with
/// a zero byte, which would reach the system cut short.
std::filesystem::path UsableNativePath(const std::string& path);
/// The file that a name stands for once its links are followed, also if that file doesn't exist yet.
std::filesystem::path FollowLinks(std::filesystem::path file);
/// A path as UTF-8 text and back.
std::string PathText(const std::filesystem::path& path);
std::filesystem::path TextPath(const std::string& text);

}  // namespace orve
