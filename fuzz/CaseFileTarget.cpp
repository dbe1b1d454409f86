#include <fstream>
#include <memory>
#include <orve3_bs6399_2.h>
#include <string>

#include "BuiltInEngines.h"
#include "FuzzTargets.h"
#include "MemoryFolder.h"

namespace orve::fuzz {

namespace {

/// A root object with a folder of its own, made once: a new one for each input would be slow.
class Session {
 public:
  Session() {
    Host().LibraryFolder = [this] { return m_folder.Path(); };
    Host().SystemDirectory = Host().LibraryFolder;
    Host().SaveFileDialog = [this](clsCommonDialog& dialog) {
      dialog.FileName = Saved();
      return true;
    };
    RegisterBuiltInEngines();
    m_case = CreateCurrentCase();
    m_case->Initialize_BreApps();
  }
  ~Session() {
    m_case.reset();
    basBS6399_2::CurrentCase.reset();
  }

  clsCurrentCase& Case() { return *m_case; }
  std::string Given() const { return m_folder.File("given.wlc"); }
  std::string Saved() const { return m_folder.File("saved.wlc"); }

 private:
  MemoryFolder m_folder;
  std::shared_ptr<clsCurrentCase> m_case;
};

bool HasMixedLineEnds(std::string_view text) {
  if (text.find('\r') == std::string_view::npos) return false;
  for (std::size_t at = text.find('\n'); at != std::string_view::npos; at = text.find('\n', at + 1))
    if (at == 0 || text[at - 1] != '\r') return true;
  return false;
}

}  // namespace

void CaseFile(std::string_view input) {
  static Session session;
  std::ofstream(session.Given(), std::ios::binary) << input;
  clsCurrentCase& windCase = session.Case();
  windCase.IsDirty(false);
  try {
    if (!windCase.OpenExisting(session.Given())) return;
    windCase.SaveAs();
  } catch (const Error& error) {
    Require(error.Number() != 0 && *error.what() != '\0', "an error has a number and a text");
    return;
  }
  // A value that runs over a lone line feed takes the lines behind it along.
  if (HasMixedLineEnds(input)) return;
  const std::string description = windCase.Description();
  Require(windCase.OpenExisting(session.Saved()), "a saved case opens");
  Require(windCase.Description() == description, "a description comes back");
}

}  // namespace orve::fuzz
