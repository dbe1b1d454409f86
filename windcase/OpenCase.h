// The one case that is open in this process.
#pragma once

#include <filesystem>
#include <memory>
#include <string>

namespace orve {
class clsCurrentCase;
}

namespace windcase {

/// A root object on the built-in engines, with its settings in a folder that must outlive it.
class OpenCase {
 public:
  explicit OpenCase(const std::filesystem::path& settingsFolder);
  ~OpenCase();
  OpenCase(const OpenCase&) = delete;
  OpenCase& operator=(const OpenCase&) = delete;

  /// Opens a case. Failure: File if it isn't there or isn't a case.
  void Open(const std::string& path);
  /// Saves the case under a path, which then is its location. Errors: those of writing.
  void SaveAs(const std::string& path);

  orve::clsCurrentCase& operator*() const { return *m_case; }
  orve::clsCurrentCase* operator->() const { return m_case.get(); }

 private:
  std::shared_ptr<orve::clsCurrentCase> m_case;
};

/// The path in full, as the library keeps it.
std::string FullPath(const std::string& path);

}  // namespace windcase
