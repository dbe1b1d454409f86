#include "HostServices.h"

#include <algorithm>
#include <string>
#include <vector>

#include "../FloatState.h"
#include "ComLibrary.h"
#include "Errors.h"
#include "Module.h"
#include "System.h"
#include "Text.h"
#include "common/Host.h"
#include "storage/clsCommonDialog.h"

namespace orve::com {

namespace {

constexpr std::int16_t WaitPointer = 11;

bool Unattended() {
  return automation::clsLibrary().Unattended();
}

/// The headless answer, where no box can be shown.
std::int32_t CautiousAnswer(std::int32_t buttons) {
  return (buttons & MB_TYPEMASK) == MB_YESNO ? IDNO : IDOK;
}

std::int32_t ShowMessage(const std::string& prompt, std::int32_t buttons, const std::string& title) {
  if (Unattended()) return CautiousAnswer(buttons);
  const HostFloatState state;
  const HWND focus = ::GetFocus();
  const int button = ::MessageBoxW(::GetActiveWindow(), ToWide(prompt).c_str(), ToWide(title).c_str(),
                                   static_cast<UINT>(buttons));
  if (focus != nullptr) ::SetFocus(focus);
  return button != 0 ? button : CautiousAnswer(buttons);
}

/// A dialog that couldn't be shown isn't a Cancel.
void RaiseIfDialogFailed(const std::string& fileName) {
  const DWORD failure = ::CommDlgExtendedError();
  if (failure == 0) return;
  if (failure == FNERR_INVALIDFILENAME)
    throw Error(ErrorNumber::InvalidArgument, "Invalid file name: " + fileName);
  throw Error(ErrorNumber::InvalidArgument,
              "The file dialog can't be shown: the system's error " + std::to_string(failure));
}

using DialogCall = BOOL(WINAPI*)(OPENFILENAMEW*);

bool ShowDialog(clsCommonDialog& dialog, DialogCall show) {
  if (Unattended()) return false;
  std::wstring filter = ToWide(dialog.Filter) + L"||";
  std::replace(filter.begin(), filter.end(), L'|', L'\0');
  const std::wstring title = ToWide(dialog.DialogTitle);
  const std::wstring folder = ToWide(dialog.InitDir);
  const std::wstring extension = ToWide(dialog.DefaultExt);
  std::wstring file = ToWide(dialog.FileName);
  file.resize(32768, L'\0');
  OPENFILENAMEW settings{};
  settings.lStructSize = sizeof settings;
  settings.hwndOwner = ::GetActiveWindow();
  settings.lpstrFilter = filter.c_str();
  settings.lpstrFile = file.data();
  settings.nMaxFile = static_cast<DWORD>(file.size());
  settings.lpstrInitialDir = folder.empty() ? nullptr : folder.c_str();
  settings.lpstrTitle = title.empty() ? nullptr : title.c_str();
  settings.lpstrDefExt = extension.empty() ? nullptr : extension.c_str();
  // The dialog leaves the process's current folder alone.
  settings.Flags = static_cast<DWORD>(dialog.Flags) | OFN_EXPLORER | OFN_NOCHANGEDIR;
  const HostFloatState state;
  if (!show(&settings)) {
    RaiseIfDialogFailed(dialog.FileName);
    return false;
  }
  dialog.FileName = FromWide(file.c_str());
  return true;
}

/// The cursors that the screen showed while the library asked for them; a pointer type that isn't one of the
/// library's is a place in here, counted downwards from -1.
std::vector<HCURSOR>& RememberedCursors() {
  static std::vector<HCURSOR> cursors;
  return cursors;
}

std::int16_t PresentPointer() {
  std::vector<HCURSOR>& cursors = RememberedCursors();
  const HCURSOR present = ::GetCursor();
  auto found = std::find(cursors.begin(), cursors.end(), present);
  if (found == cursors.end()) found = cursors.insert(found, present);
  return static_cast<std::int16_t>(-1 - (found - cursors.begin()));
}

void ShowPointer(std::int16_t type) {
  if (type < 0)
    ::SetCursor(RememberedCursors()[static_cast<std::size_t>(-1 - type)]);
  else
    ::SetCursor(::LoadCursorA(nullptr, type == WaitPointer ? IDC_WAIT : IDC_ARROW));
}

void RunPendingMessages() {
  const HostFloatState state;
  MSG message;
  while (::PeekMessageW(&message, nullptr, 0, 0, PM_REMOVE)) {
    if (message.message == WM_QUIT) {
      // The host's own loop is to see it.
      ::PostQuitMessage(static_cast<int>(message.wParam));
      return;
    }
    ::TranslateMessage(&message);
    ::DispatchMessageW(&message);
  }
}

std::string SystemFolder() {
  wchar_t folder[MAX_PATH + 1];
  return FromWide(std::wstring_view(folder, ::GetSystemDirectoryW(folder, MAX_PATH + 1)));
}

}  // namespace

void SupplyHostServices() {
  HostServices& host = Host();
  host.MsgBox = ShowMessage;
  host.OpenFileDialog = [](clsCommonDialog& dialog) { return ShowDialog(dialog, ::GetOpenFileNameW); };
  host.SaveFileDialog = [](clsCommonDialog& dialog) { return ShowDialog(dialog, ::GetSaveFileNameW); };
  host.MousePointer = PresentPointer;
  host.SetMousePointer = ShowPointer;
  host.DoEvents = RunPendingMessages;
  host.LibraryFolder = ModuleFolder;
  host.SystemDirectory = SystemFolder;
}

}  // namespace orve::com
