// The file dialog control that the save-file manager sets up.
#pragma once

#include <cstdint>
#include <string>

namespace orve {

/// Settings of a file dialog; the dialog itself is the host's (`Host().OpenFileDialog`,
/// `Host().SaveFileDialog`).
class clsCommonDialog {
 public:
  bool CancelError = false;  ///< Whether a Cancel raises error 32755.
  std::string DefaultExt;    ///< Default extension, without the point.
  std::string DialogTitle;   ///< Title of the dialog.
  std::string Filter;        ///< Pairs of description and pattern, separated by "|".
  std::int32_t Flags = 0;  ///< 6144: file and path must exist; 2050: ask before overwriting, path must exist.
  std::string InitDir;     ///< Initial folder.
  std::string FileName;    ///< Name shown first, and the name chosen.

  /// Show the dialog. Errors: 32755 for a Cancel, if `CancelError` is set.
  void ShowOpen();
  void ShowSave();
};

/// The hidden form that holds the dialog control; created when first touched.
clsCommonDialog& frmHolder_CommonDialog();

}  // namespace orve
