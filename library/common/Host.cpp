#include "common/Host.h"

#include <utility>

#include "common/FileLayer.h"
#include "common/HostCalls.h"

namespace orve {

namespace {

constexpr std::int32_t ButtonOk = 1;
constexpr std::int32_t ButtonNo = 7;
/// The bits of a message box's buttons that tell which buttons it has, and those of "Yes and No".
constexpr std::int32_t ButtonSetMask = 0x0F;
constexpr std::int32_t YesNoButtons = 4;

std::int16_t& DefaultPointer() {
  static std::int16_t pointer = 0;
  return pointer;
}

std::string WithoutClosingSeparator(std::string path) {
  while (path.size() > 1 && path.back() == '\\') path.pop_back();
  return path;
}

// The service is copied, so that it may replace itself while it runs.
template <class Service, class Default, class... Arguments>
auto CallOr(const Service& service, Default fallback, Arguments&&... arguments) {
  if (const Service copy = service) return copy(std::forward<Arguments>(arguments)...);
  return fallback();
}

}  // namespace

HostServices& Host() {
  static HostServices services;
  return services;
}

std::int32_t HostMsgBox(const std::string& prompt, std::int32_t buttons, const std::string& title) {
  const auto cautious = [buttons] { return (buttons & ButtonSetMask) == YesNoButtons ? ButtonNo : ButtonOk; };
  return CallOr(Host().MsgBox, cautious, prompt, buttons, title);
}

bool HostOpenFileDialog(clsCommonDialog& dialog) {
  return CallOr(
      Host().OpenFileDialog, [] { return false; }, dialog);
}

bool HostSaveFileDialog(clsCommonDialog& dialog) {
  return CallOr(
      Host().SaveFileDialog, [] { return false; }, dialog);
}

std::int16_t HostMousePointer() {
  return CallOr(Host().MousePointer, [] { return DefaultPointer(); });
}

void HostSetMousePointer(std::int16_t pointerType) {
  CallOr(
      Host().SetMousePointer, [pointerType] { DefaultPointer() = pointerType; }, pointerType);
}

void HostDoEvents() {
  CallOr(Host().DoEvents, [] {});
}

std::string HostLibraryFolder() {
  return WithoutClosingSeparator(StoredPath(CallOr(Host().LibraryFolder, [] { return ProgramFolder(); })));
}

std::string HostSystemDirectory() {
  const auto installed = [] { return ParentFolder(StoredPath(ProgramFolder())) + "\\share\\orve"; };
  return WithoutClosingSeparator(StoredPath(CallOr(Host().SystemDirectory, installed)));
}

double HostNow() {
  return CallOr(Host().Now, [] { return LocalTime(); });
}

bool HostSiteBrowse(std::string& siteReference) {
  return CallOr(
      Host().SiteBrowse, [] { return false; }, siteReference);
}

bool HostSiteSelect(std::string& siteReference) {
  return CallOr(
      Host().SiteSelect, [] { return false; }, siteReference);
}

bool HostSiteEdit() {
  return CallOr(Host().SiteEdit, [] { return false; });
}

}  // namespace orve
