// The services that a host supplies. Each has a headless default, so that the library runs without a screen.
#pragma once

#include <cstdint>
#include <functional>
#include <string>

namespace orve {

class clsCommonDialog;

/// Calls that a host may replace; assign an empty function to get the default back. A path that the library
/// hands to a service has "\" as its separator; `NativePath` gives it back as the machine's own.
struct HostServices {
  /// Message box: prompt, buttons (36: question, Yes and No; 16: stop sign, OK), title; returns the button (6
  /// is Yes, 7 No, 1 OK). Default: the cautious answer, No or OK.
  std::function<std::int32_t(const std::string& prompt, std::int32_t buttons, const std::string& title)>
      MsgBox;

  /// File dialogs: read the settings from the dialog, set its `FileName` and return true, or return false for
  /// Cancel. Default: Cancel.
  std::function<bool(clsCommonDialog& dialog)> OpenFileDialog;
  std::function<bool(clsCommonDialog& dialog)> SaveFileDialog;

  /// The screen's cursor, as a pointer type (0 default, 11 wait). Default: a number kept by the library.
  std::function<std::int16_t()> MousePointer;
  std::function<void(std::int16_t pointerType)> SetMousePointer;

  /// Lets pending events of the host run. Default: nothing.
  std::function<void()> DoEvents;

  /// Folder of the library, where the settings file lies. Default: the running program's folder.
  std::function<std::string()> LibraryFolder;

  /// The settings' folder doesn't outlast the program: nothing in it is flushed to the disk or has to be
  /// found again.
  bool SettingsAreTemporary = false;

  /// The system directory, under which the components' data folder "wzfdata" lies. Default: the installed
  /// `share/orve` that stands beside the running program's folder.
  std::function<std::string()> SystemDirectory;

  /// Present date and time as an OLE date, whole seconds. Default: the machine's local time.
  std::function<double()> Now;

  /// Site dialogs of the built-in wind-speed engine: set the engine's values and return true, or return false
  /// for Cancel. `SiteBrowse` and `SiteSelect` set the site reference that they are given; `SiteEdit` changes
  /// the engine through `orve::basBS6399_2::BreVe`. Default: Cancel.
  std::function<bool(std::string& siteReference)> SiteBrowse;
  std::function<bool(std::string& siteReference)> SiteSelect;
  std::function<bool()> SiteEdit;
};

/// The process-wide services.
HostServices& Host();

/// A stored path ("\" as separator) as the machine's own.
std::string NativePath(const std::string& path);

}  // namespace orve
