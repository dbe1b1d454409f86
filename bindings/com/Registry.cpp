#include "Registry.h"

#include "Errors.h"
#include "System.h"

namespace orve::com {

namespace {

std::wstring FullKey(const std::wstring& key) {
  return L"Software\\Classes\\" + key;
}

LSTATUS Set(const std::wstring& key, const wchar_t* name, const std::wstring& value) {
  const DWORD size = static_cast<DWORD>((value.size() + 1) * sizeof(wchar_t));
  return ::RegSetKeyValueW(HKEY_CURRENT_USER, FullKey(key).c_str(), name, REG_SZ, value.c_str(), size);
}

std::optional<std::wstring> Read(const std::wstring& key, const wchar_t* name) {
  std::wstring value(32768, L'\0');
  DWORD size = static_cast<DWORD>(value.size() * sizeof(wchar_t));
  if (::RegGetValueW(HKEY_CURRENT_USER, FullKey(key).c_str(), name, RRF_RT_REG_SZ, nullptr, value.data(),
                     &size) != ERROR_SUCCESS)
    return std::nullopt;
  value.resize(size / sizeof(wchar_t) - 1);
  return value;
}

/// The topmost part of a key's path that isn't there; empty if the key is.
std::wstring FirstMissing(const std::wstring& key) {
  for (std::size_t end = key.find(L'\\');; end = key.find(L'\\', end + 1)) {
    const std::wstring part = key.substr(0, end);
    if (!KeyExists(part)) return part;
    if (end == std::wstring::npos) return {};
  }
}

}  // namespace

bool KeyExists(const std::wstring& key) {
  HKEY opened = nullptr;
  if (::RegOpenKeyExW(HKEY_CURRENT_USER, FullKey(key).c_str(), 0, KEY_READ, &opened) != ERROR_SUCCESS)
    return false;
  ::RegCloseKey(opened);
  return true;
}

void RemoveKey(const std::wstring& key) {
  ::RegDeleteTreeW(HKEY_CURRENT_USER, FullKey(key).c_str());
}

void RemoveEmptyKey(const std::wstring& key) {
  HKEY opened = nullptr;
  if (::RegOpenKeyExW(HKEY_CURRENT_USER, FullKey(key).c_str(), 0, KEY_READ, &opened) != ERROR_SUCCESS) return;
  DWORD keys = 0;
  DWORD values = 0;
  const LSTATUS status = ::RegQueryInfoKeyW(opened, nullptr, nullptr, nullptr, &keys, nullptr, nullptr,
                                            &values, nullptr, nullptr, nullptr, nullptr);
  ::RegCloseKey(opened);
  if (status == ERROR_SUCCESS && keys == 0 && values == 0) RemoveKey(key);
}

RegistryChange::~RegistryChange() {
  for (auto step = m_steps.rbegin(); step != m_steps.rend(); ++step) {
    if (!step->made.empty())
      RemoveKey(step->made);
    else if (step->former)
      Set(step->key, step->name, *step->former);
    else
      ::RegDeleteKeyValueW(HKEY_CURRENT_USER, FullKey(step->key).c_str(), step->name);
  }
}

void RegistryChange::Remember(const std::wstring& key, const wchar_t* name) {
  m_steps.push_back({key, name, Read(key, name), FirstMissing(key)});
}

void RegistryChange::Write(const std::wstring& key, const wchar_t* name, const std::wstring& value) {
  Remember(key, name);
  RaiseIfFailed(HRESULT_FROM_WIN32(static_cast<DWORD>(Set(key, name, value))));
}

void RegistryChange::Erase(const std::wstring& key, const wchar_t* name) {
  if (!Read(key, name)) return;
  Remember(key, name);
  ::RegDeleteKeyValueW(HKEY_CURRENT_USER, FullKey(key).c_str(), name);
}

}  // namespace orve::com
