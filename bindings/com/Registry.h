// The part of the registry that holds the current user's classes. Keys are named without that part.
#pragma once

#include <optional>
#include <string>
#include <vector>

namespace orve::com {

bool KeyExists(const std::wstring& key);
/// Removes a key with all below it. What isn't there is no error.
void RemoveKey(const std::wstring& key);
/// Removes a key that has neither values nor keys below it.
void RemoveEmptyKey(const std::wstring& key);

/// A row of changes that holds as a whole or not at all: unless `Keep` was called, its end puts back what was
/// there.
class RegistryChange {
 public:
  RegistryChange() = default;
  ~RegistryChange();
  RegistryChange(const RegistryChange&) = delete;
  RegistryChange& operator=(const RegistryChange&) = delete;

  /// Sets a value, the key's own for a null name. Errors: as `RaiseIfFailed` gives them.
  void Write(const std::wstring& key, const wchar_t* name, const std::wstring& value);
  /// Removes a value; what isn't there is no error.
  void Erase(const std::wstring& key, const wchar_t* name);
  void Keep() { m_steps.clear(); }

 private:
  struct Step {
    std::wstring key;
    const wchar_t* name;
    std::optional<std::wstring> former;  ///< The value that was there.
    std::wstring made;                   ///< The topmost key that had to be made; empty for none.
  };

  void Remember(const std::wstring& key, const wchar_t* name);

  std::vector<Step> m_steps;
};

}  // namespace orve::com
