#include "Module.h"

#include <atomic>
#include <cstring>
#include <filesystem>
#include <utility>
#include <vector>

#include "Errors.h"
#include "Text.h"

namespace orve::com {

namespace {

HINSTANCE g_instance = nullptr;
bool g_stands = true;
std::atomic<long> g_count{0};

// Plain pointers: at the end of the process the system's own library may be gone before this one.
std::vector<std::pair<GUID, ITypeInfo*>>& KeptTypes() {
  static std::vector<std::pair<GUID, ITypeInfo*>> kept;
  return kept;
}

}  // namespace

std::wstring ModulePath() {
  std::wstring path(32768, L'\0');
  path.resize(::GetModuleFileNameW(g_instance, path.data(), static_cast<DWORD>(path.size())));
  return path;
}

std::string ModuleFolder() {
  return FromWide(std::filesystem::path(ModulePath()).parent_path().wstring());
}

void CountModule(int change) {
  g_count += change;
}

long ModuleCount() {
  return g_count;
}

bool ModuleStands() {
  return g_stands;
}

ComPointer<ITypeLib> TypeLibrary() {
  ComPointer<ITypeLib> library;
  RaiseIfFailed(::LoadTypeLibEx(ModulePath().c_str(), REGKIND_NONE, library.Receive()));
  return library;
}

ITypeInfo* TypeInformation(const GUID& identity) {
  for (const auto& [guid, information] : KeptTypes())
    if (guid == identity) return information;
  ComPointer<ITypeInfo> information;
  RaiseIfFailed(TypeLibrary()->GetTypeInfoOfGuid(identity, information.Receive()));
  KeptTypes().emplace_back(identity, information.Get());
  return information.Detach();
}

void ForgetTypeInformation() {
  for (const auto& [guid, information] : KeptTypes()) information->Release();
  KeptTypes().clear();
}

}  // namespace orve::com

extern "C" BOOL WINAPI DllMain(HINSTANCE instance, DWORD reason, void*) {
  if (reason == DLL_PROCESS_ATTACH) {
    orve::com::g_instance = instance;
  } else if (reason == DLL_PROCESS_DETACH) {
    orve::com::g_stands = false;
  }
  return TRUE;
}
