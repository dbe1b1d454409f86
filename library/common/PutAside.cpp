#include "common/PutAside.h"

#include <cstdint>

#include "common/FileLayer.h"
#include "common/FileLayerParts.h"
#include "common/Host.h"
#include "common/HostCalls.h"

namespace orve {

namespace {

namespace fs = std::filesystem;

constexpr std::string_view Prefix = "orve-copy-";

/// The same for one path at all times and on all machines.
std::uint64_t PathNumber(const std::string& path) {
  constexpr std::uint64_t start = 14695981039346656037u;
  constexpr std::uint64_t factor = 1099511628211u;
  std::uint64_t number = start;
  for (const char character : path) number = (number ^ static_cast<unsigned char>(character)) * factor;
  return number;
}

/// A copy is known by the path of its file and by the file's identity, which other hard links share.
std::string PathMark(const fs::path& file) {
  return "-" + HexText(PathNumber(ResolvedPath(PathText(file)))) + "-";
}
std::string IdentityMark(const FileState& state) {
  return "-" + HexText(state.device) + "." + HexText(state.file) + "-";
}

bool SameContent(const fs::path& copy, const std::string& path) {
  try {
    return ReadWholeFile(PathText(copy)) == ReadWholeFile(path);
  } catch (const Error&) {
    return false;
  }
}

}  // namespace

std::vector<fs::path> PutAsideFolders() {
  std::vector<fs::path> folders;
  if (!Host().SettingsAreTemporary) folders.push_back(TextPath(NativePath(HostLibraryFolder())));
  std::error_code failure;
  const fs::path temporary = fs::temp_directory_path(failure);
  if (!failure) folders.push_back(temporary);
  return folders;
}

std::string PutAsideName(const fs::path& file, const FileState& state) {
  std::string name(Prefix);
  name.pop_back();
  name.append(PathMark(file));
  name.pop_back();
  return name.append(IdentityMark(state)).append(RandomText()).append(".wlc");
}

std::string FindPutAside(const std::string& path) {
  const std::string pathMark = PathMark(UsableNativePath(path));
  const std::string identityMark = IdentityMark(StateOfFile(path));
  std::string newest;
  fs::file_time_type newestTime;
  for (const fs::path& folder : PutAsideFolders()) {
    std::error_code failure;
    for (fs::directory_iterator at(folder, failure), end; !failure && at != end; at.increment(failure)) {
      const std::string name = PathText(at->path().filename());
      const bool ofThisFile =
          name.find(pathMark) != std::string::npos || name.find(identityMark) != std::string::npos;
      if (!name.starts_with(Prefix) || !ofThisFile || !IsLeftCopy(at->path())) continue;
      std::error_code gone;
      const fs::file_time_type time = fs::last_write_time(at->path(), gone);
      if (gone || (!newest.empty() && time <= newestTime) || SameContent(at->path(), path)) continue;
      newest = PathText(at->path());
      newestTime = time;
    }
  }
  return newest;
}

}  // namespace orve
