// What the file layers of all systems share.
#pragma once

#include <cstddef>
#include <cstdint>
#include <filesystem>
#include <string>

#include "common/Error.h"

namespace orve {

/// Raises an error of the file system with its text and the stored path.
[[noreturn]] void RaiseFileError(ErrorNumber number, const std::string& path);
/// Raises 75 for a name that a device or the like has.
[[noreturn]] void RaiseNoPlainFile(const std::string& path);
/// Raises 5 for a size above `LargestFile`.
void RefuseLargeFile(std::size_t size, const std::string& path);
/// The machine's own path of a name that the system can take whole. Errors: 75 for an empty name or one with
/// a zero byte, which would reach the system cut short.
std::filesystem::path UsableNativePath(const std::string& path);
/// The file that a name stands for once its links are followed, also if that file doesn't exist yet.
std::filesystem::path FollowLinks(std::filesystem::path file);
/// A number in hexadecimal digits.
std::string HexText(std::uint64_t number);
/// Sixteen hexadecimal digits that nobody can foresee.
std::string RandomText();
/// A new name for a file that is to be renamed.
std::filesystem::path TemporaryPath(const std::filesystem::path& folder);
/// Removes the files of such names that killed saves of the same user left more than a day ago.
void SweepTemporaries(const std::filesystem::path& folder);
/// True for a file, not a link to one, that belongs to the user.
bool IsOwnPlainFile(const std::filesystem::path& file);
/// A path as UTF-8 text and back.
std::string PathText(const std::filesystem::path& path);
std::filesystem::path TextPath(const std::string& text);

}  // namespace orve
