// The one case that is open in this process.
#pragma once

#include <filesystem>
#include <memory>
#include <string>

namespace orve {
class clsCurrentCase;
}

namespace windcase {

/// What becomes of a file in which the library's reading loses lines.
enum class DamagedText { Refuse, Warn };

/// A root object on the built-in engines, with its settings in a folder that must outlive it.
class OpenCase {
 public:
  explicit OpenCase(const std::filesystem::path& settingsFolder);
  ~OpenCase();
  OpenCase(const OpenCase&) = delete;
  OpenCase& operator=(const OpenCase&) = delete;

  /// Opens a case. Failure: File if it isn't there, isn't a case or, unless `damaged` says otherwise, holds
  /// lines that would be lost.
  void Open(const std::string& path, DamagedText damaged = DamagedText::Refuse);
  /// Saves the case in its file. Errors: those of writing. Failure: File if the file isn't the one that was
  /// opened any more.
  void Save();
  /// Saves the case under a path, which then is its location. Errors: those of writing.
  void SaveAs(const std::string& path);

  orve::clsCurrentCase& operator*() const { return *m_case; }
  orve::clsCurrentCase* operator->() const { return m_case.get(); }

 private:
  std::shared_ptr<orve::clsCurrentCase> m_case;
};

/// The bytes of a case file. Failure: File for what isn't a plain file of at most 16 MB or isn't a case.
std::string ReadCaseFile(const std::string& path);

}  // namespace windcase
