#include "common/FileLayer.h"

#include <algorithm>
#include <filesystem>
#include <system_error>

#include "common/Host.h"
#include "common/LetterCase.h"
#include "common/NumberText.h"

namespace orve {

namespace {

namespace fs = std::filesystem;

// Paths are UTF-8 inside, whatever the machine's own encoding is.
fs::path FromText(const std::string& text) {
  return fs::path(std::u8string(text.begin(), text.end()));
}

std::string ToText(const fs::path& path) {
  const std::u8string text = path.u8string();
  return std::string(text.begin(), text.end());
}

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
    if (UpperCase(TrimBlanks(ToText(name))) != upper) continue;
    if (!found.empty()) return {};
    found = name;
  }
  return failure ? fs::path() : found;
}

/// Whether the path names something: an error in the lookup counts as no.
template <class Test>
bool Holds(const std::string& path, Test test) {
  std::error_code failure;
  const fs::file_status status = fs::status(FromText(NativePath(path)), failure);
  return !failure && test(status);
}

}  // namespace

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
  const fs::path whole = FromText(text);
  if (NameExists(whole)) return ToText(fs::path(whole).make_preferred());

  fs::path resolved = whole.root_path();
  bool found = true;
  for (const fs::path& part : whole.relative_path()) {
    if (found && !NameExists(resolved / part)) {
      const fs::path name = NameInAnotherCase(resolved, ToText(part));
      found = !name.empty();
      resolved /= found ? name : part;
    } else {
      resolved /= part;
    }
  }
  return ToText(resolved.make_preferred());
}

bool IsPlainFile(const std::string& path) {
  return !path.empty() &&
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
