#include "Registration.h"

#include <string>

#include "Description.h"
#include "Errors.h"
#include "Module.h"
#include "System.h"
#include "Text.h"

namespace orve::com {

namespace {

const std::wstring ClassesKey = L"Software\\Classes\\";
constexpr const wchar_t* Version = L"3.0";
/// The system's own marshaler, which works from a type library.
constexpr const wchar_t* TypeLibraryMarshaler = L"{00020424-0000-0000-C000-000000000046}";

void Write(const std::wstring& key, const wchar_t* name, const std::wstring& value) {
  const DWORD size = static_cast<DWORD>((value.size() + 1) * sizeof(wchar_t));
  const LSTATUS status =
      ::RegSetKeyValueW(HKEY_CURRENT_USER, (ClassesKey + key).c_str(), name, REG_SZ, value.c_str(), size);
  RaiseIfFailed(HRESULT_FROM_WIN32(static_cast<DWORD>(status)));
}

std::wstring ClassKey(const automation::ClassDescription& description) {
  return L"CLSID\\{" + ToWide(description.identity.classGuid) + L"}";
}

std::wstring ProgramIdentity(const automation::ClassDescription& description) {
  return ToWide(SourceName) + L"." + ToWide(description.name);
}

std::wstring IdentityText(const GUID& identity) {
  wchar_t text[40];
  return std::wstring(text, static_cast<std::size_t>(::StringFromGUID2(identity, text, 40) - 1));
}

GUID TypeLibraryIdentity() {
  const ComPointer<ITypeLib> library = TypeLibrary();
  TLIBATTR* attributes = nullptr;
  RaiseIfFailed(library->GetLibAttr(&attributes));
  const GUID identity = attributes->guid;
  library->ReleaseTLibAttr(attributes);
  return identity;
}

std::wstring InterfaceKey(const automation::ClassDescription& description) {
  return L"Interface\\{" + ToWide(description.identity.interfaceGuid) + L"}";
}

/// The type library, and the interfaces that calls between apartments are made through by its help.
void RegisterTypeLibrary(const std::wstring& typeLibrary) {
  const std::wstring key = L"TypeLib\\" + typeLibrary + L"\\" + Version;
  Write(key, nullptr, L"ORVE BS6399-2 Library 3.0");
  Write(key + L"\\FLAGS", nullptr, L"0");
  Write(key + (sizeof(void*) == 8 ? L"\\0\\win64" : L"\\0\\win32"), nullptr, ModulePath());
  for (const automation::ClassDescription* description : automation::Classes()) {
    const std::wstring interfaceKey = InterfaceKey(*description);
    Write(interfaceKey, nullptr, L"I" + ToWide(description->name));
    Write(interfaceKey + L"\\ProxyStubClsid32", nullptr, TypeLibraryMarshaler);
    Write(interfaceKey + L"\\TypeLib", nullptr, typeLibrary);
    Write(interfaceKey + L"\\TypeLib", L"Version", Version);
  }
}

void RegisterClass(const automation::ClassDescription& description, const std::wstring& typeLibrary) {
  const std::wstring key = ClassKey(description);
  const std::wstring program = ProgramIdentity(description);
  Write(key, nullptr, ToWide(description.help));
  Write(key + L"\\InprocServer32", nullptr, ModulePath());
  Write(key + L"\\InprocServer32", L"ThreadingModel", L"Apartment");
  Write(key + L"\\ProgID", nullptr, program);
  Write(key + L"\\Programmable", nullptr, L"");
  Write(key + L"\\TypeLib", nullptr, typeLibrary);
  Write(key + L"\\Version", nullptr, Version);
  Write(program, nullptr, ToWide(description.help));
  Write(program + L"\\CLSID", nullptr, L"{" + ToWide(description.identity.classGuid) + L"}");
}

template <class Visit>
void ForCreatableClasses(Visit visit) {
  for (const automation::ClassDescription* description : automation::Classes())
    if (description->create != nullptr) visit(*description);
}

}  // namespace

void RegisterLibrary() {
  try {
    const std::wstring typeLibrary = IdentityText(TypeLibraryIdentity());
    ForCreatableClasses([&](const auto& description) { RegisterClass(description, typeLibrary); });
    RegisterTypeLibrary(typeLibrary);
  } catch (...) {
    UnregisterLibrary();
    throw;
  }
}

void UnregisterLibrary() {
  const auto remove = [](const std::wstring& key) {
    ::RegDeleteTreeW(HKEY_CURRENT_USER, (ClassesKey + key).c_str());
  };
  ForCreatableClasses([&remove](const auto& description) {
    remove(ClassKey(description));
    remove(ProgramIdentity(description));
  });
  for (const automation::ClassDescription* description : automation::Classes())
    remove(InterfaceKey(*description));
  remove(L"TypeLib\\" + IdentityText(TypeLibraryIdentity()));
}

}  // namespace orve::com
