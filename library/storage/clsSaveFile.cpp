// The state of the document, its opening and its saving.
#include "storage/clsSaveFile.h"

#include <optional>
#include <utility>

#include "common/Error.h"
#include "common/FileLayer.h"
#include "common/Host.h"
#include "common/HostCalls.h"
#include "common/NumberText.h"
#include "common/ProfileFile.h"
#include "common/PutAside.h"
#include "common/clsCommon.h"
#include "common/clsWinAPI.h"
#include "core/OwedSteps.h"
#include "storage/clsCommonDialog.h"

namespace orve {

namespace {

constexpr const char* LibraryTitle = "ORVE3_BS6399_2";
constexpr const char* PathKey = "PathToSaveFiles";
constexpr std::int32_t StopButtons = 16;

/// Marks the time of a save, in which the settings go to the disk with the document.
class SavingMark {
 public:
  explicit SavingMark(bool& saving) : m_saving(saving), m_before(std::exchange(saving, true)) {}
  ~SavingMark() { m_saving = m_before; }
  SavingMark(const SavingMark&) = delete;
  SavingMark& operator=(const SavingMark&) = delete;

 private:
  bool& m_saving;
  bool m_before;
};

std::uint64_t NextDocumentNumber() {
  static std::uint64_t last = 0;
  return ++last;
}

bool IsCancel(const Error& error) {
  return error.Number() == static_cast<int>(ErrorNumber::DialogCancelled);
}

}  // namespace

clsSaveFile::clsSaveFile() : m_ApplicationName(LibraryTitle) {}

std::string clsSaveFile::PathToSaveFiles() const {
  return clsWinAPI().API_PrivateProfileString(m_PathToApplicationINI, m_ApplicationName, PathKey,
                                              HostLibraryFolder());
}

void clsSaveFile::PathToSaveFiles(const std::string& value) {
  ProfileFile profile = ProfileFile::Load(m_PathToApplicationINI);
  profile.Value(m_ApplicationName, PathKey, StoredPath(value));
  StoreSettings(profile);
}

void clsSaveFile::Blank(bool value) {
  const std::uint64_t document = m_documentNumber;
  m_Blank = value;
  OwedSteps steps;
  steps.Run([&] { BlankUpdated.Raise(value); });
  if (value && m_documentNumber == document) steps.Run([this] { Dirty(false); });
  steps.Finish();
}

void clsSaveFile::Dirty(bool value) {
  const std::uint64_t document = m_documentNumber;
  m_Dirty = value;
  OwedSteps steps;
  steps.Run([&] { DirtyUpdated.Raise(value); });
  if (value && m_documentNumber == document) steps.Run([this] { Blank(false); });
  steps.Finish();
}

void clsSaveFile::FileName(const std::string& value) {
  m_FileName = StoredPath(value);
  FileNameUpdated.Raise(std::string(m_FileName));
}

bool clsSaveFile::NewFile() {
  const std::uint64_t document = m_documentNumber = NextDocumentNumber();
  m_startingDocument = true;
  bool cancel = false;
  OwedSteps steps;
  const auto run = [&](auto step) {
    if (!cancel && m_documentNumber == document) steps.Run(step);
  };
  run([&] { NewFileEvent.Raise(cancel); });
  run([&] { Blank(true); });
  run([&] { Dirty(false); });
  run([&] { FileName(std::string()); });
  run([&] {
    m_document.Text(std::string());
    m_knownName.clear();
    m_knownState = {};
  });
  if (m_documentNumber == document) m_startingDocument = false;
  steps.Finish();
  return !cancel && m_documentNumber == document;
}

bool clsSaveFile::OpenFile(const std::string& fileNameToOpen) {
  try {
    std::string name = StoredPath(fileNameToOpen);
    if (TrimBlanks(name).empty()) {
      const auto chosen = AskUser(false);
      if (!chosen) return false;
      name = *chosen;
    }
    const clsCommon common;
    PathToSaveFiles(common.ExtractPathName(name));
    if (!common.FileExists(name)) {
      common.MsgBox("Unable to Access Save File: " + std::string(TrimBlanks(name)), StopButtons,
                    "Cannot Continue");
      return false;
    }
    NameCopyPutAside(name);
    bool cancel = false;
    OpenFileEvent.Raise(name, cancel);
    return !cancel && TakeOver(name);
  } catch (const Error& error) {
    if (IsCancel(error)) return false;
    throw;
  }
}

bool clsSaveFile::SaveFile(const std::string& fileNameToSave) {
  const std::uint64_t document = m_documentNumber;
  if (m_startingDocument)
    throw Error(ErrorNumber::InvalidArgument, "The case can't be saved while a new one is being made");
  try {
    std::string name = StoredPath(fileNameToSave);
    if (TrimBlanks(name).empty()) {
      const auto chosen = AskUser(true);
      if (!chosen) return false;
      name = *chosen;
    }
    if (m_documentNumber != document) throw DocumentReplaced();
    const SavingMark saving(m_saving);
    PathToSaveFiles(clsCommon().ExtractPathName(name));
    bool cancel = false;
    SaveFileEvent.Raise(name, cancel);
    return !cancel && TakeOver(name);
  } catch (const Error& error) {
    if (IsCancel(error)) return false;
    throw;
  }
}

void clsSaveFile::StoreSettings(const ProfileFile& profile) const {
  const bool flush = m_saving && !Host().SettingsAreTemporary;
  profile.Store(m_PathToApplicationINI, flush ? Durability::Flushed : Durability::Atomic);
}

/// A file that an interrupted save left half written opens too, so its user is told of the copy.
void clsSaveFile::NameCopyPutAside(const std::string& name) const {
  const std::string copy = FindPutAside(name);
  if (copy.empty()) return;
  const std::string file(TrimBlanks(name));
  clsCommon().MsgBox("A Save of " + file + " Was Interrupted. What It Held Before Is In: " + StoredPath(copy),
                     StopButtons, "Interrupted Save");
}

bool clsSaveFile::TakeOver(const std::string& name) {
  const std::uint64_t document = m_documentNumber;
  OwedSteps steps;
  const auto run = [&](auto step) {
    if (m_documentNumber == document) steps.Run(step);
  };
  run([&] { Blank(false); });
  run([&] { Dirty(false); });
  run([&] { FileName(name); });
  steps.Finish();
  return m_documentNumber == document;
}

std::optional<std::string> clsSaveFile::AskUser(bool save) {
  if (m_CommonDialog == nullptr) throw Error(ErrorNumber::ObjectNotSet, "The file dialog isn't there");
  constexpr std::int32_t fileAndPathMustExist = 6144;
  constexpr std::int32_t askBeforeOverwriting = 2050;
  const KeptCurrentFolder folder;
  const std::string verb = save ? "Save" : "Open";
  const std::string pattern = "(*." + m_FileExtension + ")|*." + m_FileExtension + "|All Files (*.*)|*.*";
  const bool described = !m_FileDescription.empty();
  clsCommonDialog& dialog = *m_CommonDialog;
  dialog.CancelError = true;
  dialog.DefaultExt = m_FileExtension;
  if (described)
    dialog.DialogTitle = verb + " " + m_FileDescription + (save ? " As" : "");
  else
    dialog.DialogTitle = save ? "Save As" : "Open";
  dialog.Filter = (described ? m_FileDescription : std::string("Save")) + " Files " + pattern;
  dialog.Flags = save ? askBeforeOverwriting : fileAndPathMustExist;
  dialog.InitDir = PathToSaveFiles();
  dialog.FileName = clsCommon().ExtractFileNameWithoutExtension(m_FileName);
  bool cancel = false;
  try {
    save ? dialog.ShowSave() : dialog.ShowOpen();
  } catch (const Error& error) {
    if (!IsCancel(error)) throw;
    cancel = true;
  }
  HostDoEvents();
  if (cancel) return std::nullopt;
  return StoredPath(dialog.FileName);
}

}  // namespace orve
