// How the library calls its host: each call runs what the host assigned, or the headless default.
#pragma once

#include <cstdint>
#include <string>

namespace orve {

class clsCommonDialog;

std::int32_t HostMsgBox(const std::string& prompt, std::int32_t buttons, const std::string& title);
bool HostOpenFileDialog(clsCommonDialog& dialog);
bool HostSaveFileDialog(clsCommonDialog& dialog);
std::int16_t HostMousePointer();
void HostSetMousePointer(std::int16_t pointerType);
void HostDoEvents();
/// Folders, with "\" as separator and without a closing one.
std::string HostLibraryFolder();
std::string HostSystemDirectory();
/// Present date and time as an OLE date, whole seconds.
double HostNow();
bool HostSiteBrowse(std::string& siteReference);
bool HostSiteSelect(std::string& siteReference);
bool HostSiteEdit();

}  // namespace orve
