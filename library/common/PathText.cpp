// Path texts, the existence of files, the version and the message box.
#include "common/FileLayer.h"
#include "common/HostCalls.h"
#include "common/clsCommon.h"

namespace orve {

std::string clsCommon::ExtractFileName(const std::string& path) const {
  const std::size_t separator = path.rfind('\\');
  return separator == std::string::npos ? path : path.substr(separator + 1);
}

std::string clsCommon::ExtractPathName(const std::string& path) const {
  const std::size_t separator = path.rfind('\\');
  return separator == std::string::npos ? path : path.substr(0, separator + 1);
}

std::string clsCommon::ExtractFileExtension(const std::string& name) const {
  const std::size_t point = name.rfind('.');
  return point == std::string::npos ? std::string() : name.substr(point + 1);
}

std::string clsCommon::ExtractFileNameWithoutExtension(const std::string& path) const {
  const std::string name = ExtractFileName(path);
  return name.substr(0, name.rfind('.'));
}

std::string clsCommon::EndWithSlash(const std::string& path) const {
  return path.ends_with('\\') ? path : path + "\\";
}

std::string clsCommon::AppPathWithSlash() const {
  return EndWithSlash(HostLibraryFolder());
}

bool clsCommon::FileExists(const std::string& path) const {
  return IsPlainFile(path);
}

std::string clsCommon::AppVersion() const {
  std::string version = "v";
  version.append(std::to_string(ORVE_VERSION_MAJOR)).append(".");
  version.append(std::to_string(ORVE_VERSION_MINOR)).append(".");
  return version.append(std::to_string(ORVE_VERSION_REVISION));
}

std::int32_t clsCommon::MsgBox(const std::string& prompt, std::int32_t buttons,
                               const std::string& title) const {
  return HostMsgBox(prompt, buttons, title);
}

}  // namespace orve
