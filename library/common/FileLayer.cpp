#include "common/FileLayer.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <chrono>
#include <filesystem>
#include <random>
#include <system_error>
#include <type_traits>

#include "common/FileLayerParts.h"
#include "common/Host.h"
#include "common/LetterCase.h"
#include "common/NumberText.h"
#include "common/TextEncoding.h"

namespace orve {

namespace {

namespace fs = std::filesystem;

constexpr std::string_view TemporaryPrefix = ".orve-";
constexpr std::string_view TemporarySuffix = ".tmp";

bool NameExists(const fs::path& path) {
  std::error_code failure;
  return fs::exists(fs::symlink_status(path, failure));
}

/// The one name in a folder that is the wanted one but for case and outer blanks; empty for none or several.
fs::path NameInAnotherCase(const fs::path& folder, const std::string& wanted) {
  const std::string upper = UpperCase(TrimBlanks(wanted));
  fs::path found;
  std::error_code failure;
  for (fs::directory_iterator at(folder.empty() ? fs::path(".") : folder, failure), end;
       !failure && at != end; at.increment(failure)) {
    const fs::path name = at->path().filename();
    if (UpperCase(TrimBlanks(PathText(name))) != upper) continue;
    if (!found.empty()) return {};
    found = name;
  }
  return failure ? fs::path() : found;
}

/// Whether the path names something: an error in the lookup counts as no.
template <class Test>
bool Holds(const std::string& path, Test test) {
  std::error_code failure;
  const fs::file_status status = fs::status(TextPath(NativePath(path)), failure);
  return !failure && test(status);
}

}  // namespace

std::string HexText(std::uint64_t number) {
  std::array<char, 16> digits{};
  const auto end = std::to_chars(digits.data(), digits.data() + digits.size(), number, 16).ptr;
  return std::string(digits.data(), end);
}

std::string RandomText() {
  static_assert(std::random_device::max() >= 0xFFFFFFFFu);
  std::random_device random;
  const std::uint64_t high = random();
  return HexText(high << 32 | random());
}

fs::path TemporaryPath(const fs::path& folder) {
  return folder / std::string(TemporaryPrefix).append(RandomText()).append(TemporarySuffix);
}

void SweepTemporaries(const fs::path& folder) {
  const auto limit = fs::file_time_type::clock::now() - std::chrono::hours(24);
  std::error_code failure;
  for (fs::directory_iterator at(folder.empty() ? fs::path(".") : folder, failure), end;
       !failure && at != end; at.increment(failure)) {
    const std::string name = PathText(at->path().filename());
    if (!name.starts_with(TemporaryPrefix) || !name.ends_with(TemporarySuffix)) continue;
    std::error_code gone;
    if (fs::last_write_time(at->path(), gone) < limit && !gone && IsOwnPlainFile(at->path()))
      fs::remove(at->path(), gone);
  }
}

// Paths are UTF-8 inside, whatever the machine's own encoding is. Where it isn't bytes, they must convert.
fs::path TextPath(const std::string& text) {
  constexpr bool bytes = std::is_same_v<fs::path::value_type, char>;
  const std::string path = bytes ? text : ToUtf8(text);
  return fs::path(std::u8string(path.begin(), path.end()));
}

std::string PathText(const fs::path& path) {
  const std::u8string text = path.u8string();
  return std::string(text.begin(), text.end());
}

void RaiseFileError(ErrorNumber number, const std::string& path) {
  const char* text = "Path/File access error";
  if (number == ErrorNumber::FileNotFound) text = "File not found";
  if (number == ErrorNumber::DeviceIO) text = "Device I/O error";
  if (number == ErrorNumber::DiskFull) text = "Disk full";
  if (number == ErrorNumber::PermissionDenied) text = "Permission denied";
  if (number == ErrorNumber::PathNotFound) text = "Path not found";
  throw Error(number, std::string(text).append(": ").append(NativePath(path)));
}

void RaiseNoPlainFile(const std::string& path) {
  throw Error(ErrorNumber::PathFileAccess,
              "Path/File access error: " + NativePath(path) + " isn't a plain file");
}

void RefuseLargeFile(std::size_t size, const std::string& path) {
  if (size > LargestFile)
    throw Error(ErrorNumber::InvalidArgument, "The file is larger than 16 MB: " + NativePath(path));
}

fs::path UsableNativePath(const std::string& path) {
  if (path.empty() || path.find('\0') != std::string::npos) RaiseFileError(ErrorNumber::PathFileAccess, path);
  return TextPath(NativePath(path));
}

fs::path FollowLinks(fs::path file) {
  constexpr int mostLinks = 40;
  std::error_code failure;
  for (int followed = 0; followed < mostLinks; ++followed) {
    const fs::path target = fs::read_symlink(file, failure);
    if (failure) return file;
    file = target.is_absolute() ? target : file.parent_path() / target;
  }
  return file;
}

std::string ResolvedPath(const std::string& path) {
  std::error_code failure;
  const fs::path file = FollowLinks(UsableNativePath(path));
  fs::path resolved = fs::canonical(file, failure);
  if (!failure) return PathText(resolved.make_preferred());
  const fs::path folder = file.parent_path();
  resolved = fs::canonical(folder.empty() ? fs::path(".") : folder, failure);
  if (failure) return PathText(fs::absolute(file, failure).make_preferred());
  return PathText((resolved / file.filename()).make_preferred());
}

std::string StoredPath(std::string path) {
  std::replace(path.begin(), path.end(), '/', '\\');
  return path;
}

std::string ParentFolder(const std::string& storedPath) {
  const std::size_t separator = storedPath.rfind('\\');
  return separator == std::string::npos ? std::string() : storedPath.substr(0, separator);
}

std::string NativePath(const std::string& path) {
  std::string text = path;
  std::replace(text.begin(), text.end(), '\\', '/');
  const fs::path whole = TextPath(text);
  if (NameExists(whole)) return PathText(fs::path(whole).make_preferred());

  fs::path resolved = whole.root_path();
  bool found = true;
  for (const fs::path& part : whole.relative_path()) {
    if (found && !NameExists(resolved / part)) {
      const fs::path name = NameInAnotherCase(resolved, PathText(part));
      found = !name.empty();
      resolved /= found ? name : part;
    } else {
      resolved /= part;
    }
  }
  return PathText(resolved.make_preferred());
}

bool IsPlainFile(const std::string& path) {
  return !path.empty() && path.find('\0') == std::string::npos &&
         Holds(path, [](const fs::file_status& status) { return fs::is_regular_file(status); });
}

KeptCurrentFolder::KeptCurrentFolder() {
  std::error_code failure;
  m_folder = fs::current_path(failure);
}

KeptCurrentFolder::~KeptCurrentFolder() {
  std::error_code failure;
  const fs::path present = fs::current_path(failure);
  if (!m_folder.empty() && present != m_folder) fs::current_path(m_folder, failure);
}

}  // namespace orve
