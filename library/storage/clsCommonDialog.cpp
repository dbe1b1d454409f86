#include "storage/clsCommonDialog.h"

#include "common/Error.h"
#include "common/HostCalls.h"

namespace orve {

namespace {

void RaiseCancel() {
  throw Error(ErrorNumber::DialogCancelled, "Cancel was selected");
}

}  // namespace

void clsCommonDialog::ShowOpen() {
  if (!HostOpenFileDialog(*this) && CancelError) RaiseCancel();
}

void clsCommonDialog::ShowSave() {
  if (!HostSaveFileDialog(*this) && CancelError) RaiseCancel();
}

clsCommonDialog& frmHolder_CommonDialog() {
  static clsCommonDialog dialog;
  return dialog;
}

}  // namespace orve
