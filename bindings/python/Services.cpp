#include "Services.h"

#include <functional>
#include <map>

#include "common/Error.h"
#include "common/Host.h"
#include "storage/clsCommonDialog.h"

namespace orve::python {

using automation::Kind;

namespace {

bool Truth(const py::object& result, const char* service) {
  return *ResultOf(result, {{Kind::Bool, {}}}, service).As<bool>();
}

std::string Text(const py::object& result, const char* service, bool isPath = false) {
  return *ResultOf(result, {{Kind::Text, {}}, isPath}, service).As<std::string>();
}

/// A dialog works on a copy, so that Python may keep it, with paths as the machine's own.
std::function<bool(clsCommonDialog&)> FileDialog(const py::object& callable, const char* service) {
  return [callable, service](clsCommonDialog& dialog) {
    clsCommonDialog settings = dialog;
    settings.InitDir = NativePath(dialog.InitDir);
    settings.FileName = NativePath(dialog.FileName);
    const py::object copy = py::cast(settings);
    if (!Truth(callable(copy), service)) return false;
    dialog.FileName = copy.cast<const clsCommonDialog&>().FileName;
    return true;
  };
}

/// A site dialog returns the site reference, or None for Cancel.
std::function<bool(std::string&)> SiteDialog(const py::object& callable, const char* service) {
  return [callable, service](std::string& siteReference) {
    const py::object result = callable();
    if (result.is_none()) return false;
    siteReference = Text(result, service);
    return true;
  };
}

std::function<std::string()> TextService(const py::object& callable, const char* service) {
  return [callable, service] { return Text(callable(), service, true); };
}

/// Assigns a service, or its headless default for None.
template <class Service, class Callable>
void Put(Service& service, const py::object& callable, Callable call) {
  if (callable.is_none())
    service = nullptr;
  else
    service = std::move(call);
}

using Setter = void (*)(HostServices&, const py::object&);

const std::map<std::string, Setter>& Setters() {
  static const std::map<std::string, Setter> setters{
      {"MsgBox",
       [](HostServices& host, const py::object& callable) {
         Put(host.MsgBox, callable,
             [callable](const std::string& prompt, std::int32_t buttons, const std::string& title) {
               const py::object result = callable(TextToPython(prompt), buttons, TextToPython(title));
               return *ResultOf(result, {{Kind::Int32, {}}}, "MsgBox").As<std::int32_t>();
             });
       }},
      {"OpenFileDialog",
       [](HostServices& host, const py::object& callable) {
         Put(host.OpenFileDialog, callable, FileDialog(callable, "OpenFileDialog"));
       }},
      {"SaveFileDialog",
       [](HostServices& host, const py::object& callable) {
         Put(host.SaveFileDialog, callable, FileDialog(callable, "SaveFileDialog"));
       }},
      {"MousePointer",
       [](HostServices& host, const py::object& callable) {
         Put(host.MousePointer, callable, [callable] {
           const auto pointer = ResultOf(callable(), {{Kind::Int16, {}}}, "MousePointer");
           return static_cast<std::int16_t>(*pointer.As<std::int32_t>());
         });
       }},
      {"SetMousePointer",
       [](HostServices& host, const py::object& callable) {
         Put(host.SetMousePointer, callable, [callable](std::int16_t pointerType) { callable(pointerType); });
       }},
      {"DoEvents",
       [](HostServices& host, const py::object& callable) {
         Put(host.DoEvents, callable, [callable] { callable(); });
       }},
      {"LibraryFolder",
       [](HostServices& host, const py::object& callable) {
         Put(host.LibraryFolder, callable, TextService(callable, "LibraryFolder"));
       }},
      {"SystemDirectory",
       [](HostServices& host, const py::object& callable) {
         Put(host.SystemDirectory, callable, TextService(callable, "SystemDirectory"));
       }},
      {"Now",
       [](HostServices& host, const py::object& callable) {
         Put(host.Now, callable, [callable] {
           return *ResultOf(callable(), {{Kind::Date, {}}}, "Now").As<double>();
         });
       }},
      {"SiteBrowse",
       [](HostServices& host, const py::object& callable) {
         Put(host.SiteBrowse, callable, SiteDialog(callable, "SiteBrowse"));
       }},
      {"SiteSelect",
       [](HostServices& host, const py::object& callable) {
         Put(host.SiteSelect, callable, SiteDialog(callable, "SiteSelect"));
       }},
      {"SiteEdit",
       [](HostServices& host, const py::object& callable) {
         Put(host.SiteEdit, callable, [callable] { return Truth(callable(), "SiteEdit"); });
       }},
  };
  return setters;
}

}  // namespace

void SetService(const std::string& name, const py::object& callable) {
  const auto setter = Setters().find(name);
  if (setter == Setters().end()) throw Error(438, "The host has no service " + name);
  if (!callable.is_none() && !PyCallable_Check(callable.ptr()))
    throw Error(ErrorNumber::TypeMismatch, "Type mismatch: " + name + " is to be a callable or None");
  setter->second(Host(), callable);
}

void ClearServices() {
  Host() = HostServices();
}

}  // namespace orve::python
