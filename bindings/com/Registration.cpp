#include "Registration.h"

#include <string>
#include <vector>

#include "ComLibrary.h"
#include "Errors.h"
#include "Module.h"
#include "Registry.h"
#include "System.h"
#include "Text.h"

namespace orve::com {

namespace {

using automation::ClassDescription;

constexpr const wchar_t* Version = L"3.0";
constexpr const wchar_t* OwnPlatform = sizeof(void*) == 8 ? L"win64" : L"win32";
constexpr const wchar_t* OtherPlatform = sizeof(void*) == 8 ? L"win32" : L"win64";
/// The system's own marshalers: for the interfaces, which works from the type library, and for the events.
constexpr const wchar_t* TypeLibraryMarshaler = L"{00020424-0000-0000-C000-000000000046}";
constexpr const wchar_t* DispatchMarshaler = L"{00020420-0000-0000-C000-000000000046}";

std::wstring Braced(std::string_view guid) {
  return L"{" + ToWide(guid) + L"}";
}

std::wstring ClassKey(const ClassDescription& description) {
  return L"CLSID\\" + Braced(description.identity.classGuid);
}

std::wstring ProgramIdentity(const ClassDescription& description) {
  return ToWide(SourceName) + L"." + ToWide(description.name);
}

std::wstring InterfaceKey(std::string_view guid) {
  return L"Interface\\" + Braced(guid);
}

/// Of both bitnesses.
std::wstring TypeLibraryKey() {
  return L"TypeLib\\" + Braced(automation::TypeLibraryGuid);
}

std::wstring PlatformKey(const wchar_t* platform) {
  return TypeLibraryKey() + L"\\" + Version + L"\\0\\" + platform;
}

void RegisterInterface(RegistryChange& change, std::string_view guid, const std::wstring& name,
                       const wchar_t* marshaler) {
  const std::wstring key = InterfaceKey(guid);
  change.Write(key, nullptr, name);
  change.Write(key + L"\\ProxyStubClsid32", nullptr, marshaler);
  change.Write(key + L"\\TypeLib", nullptr, Braced(automation::TypeLibraryGuid));
  change.Write(key + L"\\TypeLib", L"Version", Version);
}

/// The type library, and the interfaces that calls between apartments are made through by its help.
void RegisterTypeLibrary(RegistryChange& change) {
  const std::wstring key = TypeLibraryKey() + L"\\" + Version;
  change.Write(key, nullptr, L"ORVE BS6399-2 Library 3.0");
  change.Write(key + L"\\FLAGS", nullptr, L"0");
  change.Write(PlatformKey(OwnPlatform), nullptr, ModulePath());
  for (const ClassDescription* description : automation::ComClasses()) {
    const std::wstring name = L"I" + ToWide(description->name);
    RegisterInterface(change, description->identity.interfaceGuid, name, TypeLibraryMarshaler);
    if (!description->events.empty())
      RegisterInterface(change, description->identity.eventsGuid, name + L"Events", DispatchMarshaler);
  }
}

/// Without a threading model all objects live on the host's main thread, as the library serves one thread.
void RegisterClass(RegistryChange& change, const ClassDescription& description) {
  const std::wstring key = ClassKey(description);
  const std::wstring program = ProgramIdentity(description);
  change.Write(key, nullptr, ToWide(description.help));
  change.Write(key + L"\\InprocServer32", nullptr, ModulePath());
  change.Erase(key + L"\\InprocServer32", L"ThreadingModel");
  change.Write(key + L"\\ProgID", nullptr, program);
  change.Write(key + L"\\Programmable", nullptr, L"");
  change.Write(key + L"\\TypeLib", nullptr, Braced(automation::TypeLibraryGuid));
  change.Write(key + L"\\Version", nullptr, Version);
  change.Write(program, nullptr, ToWide(description.help));
  change.Write(program + L"\\CLSID", nullptr, Braced(description.identity.classGuid));
}

template <class Visit>
void ForCreatableClasses(Visit visit) {
  for (const ClassDescription* description : automation::ComClasses())
    if (description->create != nullptr) visit(*description);
}

}  // namespace

void RegisterLibrary() {
  RegistryChange change;
  ForCreatableClasses([&change](const auto& description) { RegisterClass(change, description); });
  RegisterTypeLibrary(change);
  change.Keep();
}

void UnregisterLibrary() {
  ForCreatableClasses([](const auto& description) { RemoveKey(ClassKey(description)); });
  for (const ClassDescription* description : automation::ComClasses()) {
    RemoveKey(InterfaceKey(description->identity.interfaceGuid));
    if (!description->events.empty()) RemoveKey(InterfaceKey(description->identity.eventsGuid));
  }
  RemoveKey(PlatformKey(OwnPlatform));
  // Type library and program names are those of the other bitness too.
  if (!KeyExists(PlatformKey(OtherPlatform))) {
    RemoveKey(TypeLibraryKey());
    ForCreatableClasses([](const auto& description) { RemoveKey(ProgramIdentity(description)); });
  }
  for (const wchar_t* shared : {L"CLSID", L"Interface", L"TypeLib"}) RemoveEmptyKey(shared);
}

}  // namespace orve::com
