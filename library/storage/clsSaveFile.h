// The save-file manager: the state of one document, its text and the recent-file list.
#pragma once

#include <cstdint>
#include <optional>
#include <string>

#include "common/Event.h"
#include "common/FileState.h"
#include "storage/DocumentText.h"

namespace orve {

class ProfileFile;
class clsCommonDialog;

/// A generic document manager: it holds the state of one document (new, changed, its file name), shows the
/// file dialogs, keeps the document's whole file as text and edits it key by key, writes an update log into
/// it, and keeps the list of recently used files in the settings file. Its owner does the document's work,
/// asked through events.
class clsSaveFile {
 public:
  clsSaveFile();
  clsSaveFile(const clsSaveFile&) = delete;
  clsSaveFile& operator=(const clsSaveFile&) = delete;

  /// Section name in the settings file. Starts as the library's title.
  const std::string& ApplicationName() const { return m_ApplicationName; }
  void ApplicationName(const std::string& value) { m_ApplicationName = value; }
  /// The dialog control.
  clsCommonDialog* CommonDialog() const { return m_CommonDialog; }
  void CommonDialog(clsCommonDialog* value) { m_CommonDialog = value; }
  /// Document kind for dialogs; may be empty.
  const std::string& FileDescription() const { return m_FileDescription; }
  void FileDescription(const std::string& value) { m_FileDescription = value; }
  /// Document extension without the point.
  const std::string& FileExtension() const { return m_FileExtension; }
  void FileExtension(const std::string& value) { m_FileExtension = value; }
  /// Full path of the settings file.
  const std::string& PathToApplicationINI() const { return m_PathToApplicationINI; }
  void PathToApplicationINI(const std::string& value) { m_PathToApplicationINI = value; }
  /// Folder where files were last opened or saved, read from and written to the settings file at each call.
  /// Default: the folder of the library.
  std::string PathToSaveFiles() const;
  void PathToSaveFiles(const std::string& value);

  /// The document is new and untouched. Every let raises `BlankUpdated`; True makes `Dirty` False.
  bool Blank() const { return m_Blank; }
  void Blank(bool value);
  /// The document has unsaved changes. Every let raises `DirtyUpdated`; True makes `Blank` False.
  bool Dirty() const { return m_Dirty; }
  void Dirty(bool value);
  /// Full path of the document, empty for a new one. Every let raises `FileNameUpdated`.
  const std::string& FileName() const { return m_FileName; }
  void FileName(const std::string& value);
  /// Starts a new document and finishes it even if a handler raises; the first exception passes on
  /// afterwards. False if the owner cancelled, or if a handler has started another document meanwhile, which
  /// then stands.
  bool NewFile();
  /// Number of the present document; no two documents of the process have the same. 0 before the first.
  std::uint64_t DocumentNumber() const { return m_documentNumber; }

  /// Opens a document; an empty name asks the user. False after a Cancel, if the file isn't there, or if a
  /// handler has put another document in its place. Errors: those of reading, with the state unchanged.
  bool OpenFile(const std::string& fileNameToOpen);
  /// Saves the document; an empty name asks the user. False after a Cancel, or if a handler has put another
  /// document in its place once the file was written. Errors: those of writing; 5 if that happened before, or
  /// while a new document is being made.
  bool SaveFile(const std::string& fileNameToSave);

  /// Value of a key in the document's text, or `defaultText` if section or key is absent.
  std::string Data(const std::string& section, const std::string& key, const std::string& defaultText) const;
  /// Stores a key in the document's text. `defaultText` is ignored.
  void Data(const std::string& section, const std::string& key, const std::string& defaultText,
            const std::string& value);

  /// Fills the document's text from a file. Errors: those of the file system; 5 for a file over 16 MB.
  void ReadData(const std::string& fileName);
  /// Adds the log line and writes the document's text to a file. Errors: those of the file system.
  void WriteData(const std::string& fileName);

  /// True if the file named `FileName` isn't as the last `ReadData` or `WriteData` here left it, or is one
  /// that they never touched. False without a name.
  bool FileChanged() const;

  /// Entry of the recent-file list, counted from 1, upper case; empty if there is none.
  std::string RecentFile(std::int16_t index) const;
  void RecentFile(std::int16_t index, const std::string& value);
  /// Puts a file at the top of the list.
  void RecentFileAdd(const std::string& fileName);
  /// Length of the list.
  std::int16_t RecentFileCount() const;
  /// Maximum length of the list, in the settings file. Default 8.
  std::int16_t RecentFileLimit() const;
  void RecentFileLimit(std::int16_t value);

  Event<bool> BlankUpdated;
  Event<bool> DirtyUpdated;
  Event<const std::string&> FileNameUpdated;
  // The owner does the document's work; `cancel` True ends the operation. These may be nested deeper than the
  // events that this work raises, so that the work itself isn't what fails when a handler starts it without
  // end.
  Event<bool& /*cancel*/> NewFileEvent{2 * Event<>::Deepest};
  Event<const std::string& /*fileName*/, bool& /*cancel*/> OpenFileEvent{2 * Event<>::Deepest};
  Event<const std::string& /*fileName*/, bool& /*cancel*/> SaveFileEvent{2 * Event<>::Deepest};

  /// Text of the whole document file, UTF-8.
  const std::string& DataBuffer() const { return m_document.Text(); }

 private:
  std::optional<std::string> AskUser(bool save);
  bool TakeOver(const std::string& name);
  void StoreSettings(const ProfileFile& profile) const;
  void NameCopyPutAside(const std::string& name) const;

  std::string m_ApplicationName;
  clsCommonDialog* m_CommonDialog = nullptr;
  std::string m_FileDescription;
  std::string m_FileExtension;
  std::string m_PathToApplicationINI;
  bool m_Blank = false;
  bool m_Dirty = false;
  bool m_saving = false;
  std::uint64_t m_documentNumber = 0;
  bool m_startingDocument = false;
  std::string m_FileName;
  DocumentText m_document;
  std::string m_knownName;  ///< The file that was last read or written, and its state then.
  FileState m_knownState;
};

}  // namespace orve
