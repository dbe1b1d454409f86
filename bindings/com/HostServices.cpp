#include "HostServices.h"

#include <algorithm>
#include <string>

#include "Module.h"
#include "System.h"
#include "Text.h"
#include "common/Host.h"
#include "storage/clsCommonDialog.h"

namespace orve::com {

namespace {

constexpr std::int16_t WaitPointer = 11;

/// The headless answer, where no box can be shown.
std::int32_t CautiousAnswer(std::int32_t buttons) {
  return (buttons & MB_TYPEMASK) == MB_YESNO ? IDNO : IDOK;
}

std::int32_t ShowMessage(const std::string& prompt, std::int32_t buttons, const std::string& title) {
  const HWND focus = ::GetFocus();
  const int button = ::MessageBoxW(::GetActiveWindow(), ToWide(prompt).c_str(), ToWide(title).c_str(),
                                   static_cast<UINT>(buttons));
  if (focus != nullptr) ::SetFocus(focus);
  return button != 0 ? button : CautiousAnswer(buttons);
}

using DialogCall = BOOL(WINAPI*)(OPENFILENAMEW*);

bool ShowDialog(clsCommonDialog& dialog, DialogCall show) {
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
  if (!show(&settings)) return false;
  dialog.FileName = FromWide(file.c_str());
  return true;
}

std::int16_t& PointerType() {
  static std::int16_t type = 0;
  return type;
}

void ShowPointer(std::int16_t type) {
  PointerType() = type;
  ::SetCursor(::LoadCursorA(nullptr, type == WaitPointer ? IDC_WAIT : IDC_ARROW));
}

void RunPendingMessages() {
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
  host.MousePointer = [] { return PointerType(); };
  host.SetMousePointer = ShowPointer;
  host.DoEvents = RunPendingMessages;
  host.LibraryFolder = ModuleFolder;
  host.SystemDirectory = SystemFolder;
}

}  // namespace orve::com
