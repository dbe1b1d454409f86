// The services of the host as C callbacks.
#include "Guard.h"

using namespace orve::c;

struct orve_reply {
  std::string text;
};

void orve_reply_text(orve_reply* reply, const char* text) {
  try {
    if (reply != nullptr) reply->text = TextOrEmpty(text);
  } catch (...) {
    reply->text.clear();
  }
}

namespace {

orve::HostServices& Services() {
  return orve::Host();
}

/// A dialog callback as the library's own; nothing for none.
std::function<bool(orve::clsCommonDialog&)> FileDialog(orve_show_file_dialog callback, void* user) {
  if (callback == nullptr) return {};
  return [callback, user](orve::clsCommonDialog& dialog) {
    const orve_file_dialog settings{dialog.DialogTitle.c_str(), dialog.Filter.c_str(),
                                    dialog.DefaultExt.c_str(),  dialog.InitDir.c_str(),
                                    dialog.FileName.c_str(),    dialog.Flags};
    orve_reply reply;
    if (!CallHost(callback, &settings, &reply, user)) return false;
    dialog.FileName = reply.text;
    return true;
  };
}

std::function<bool(std::string&)> SiteDialog(orve_show_site_dialog callback, void* user) {
  if (callback == nullptr) return {};
  return [callback, user](std::string& siteReference) {
    orve_reply reply{siteReference};
    if (!CallHost(callback, &reply, user)) return false;
    siteReference = reply.text;
    return true;
  };
}

std::function<std::string()> TextService(orve_give_text callback, void* user) {
  if (callback == nullptr) return {};
  return [callback, user] {
    orve_reply reply;
    CallHost(callback, &reply, user);
    return reply.text;
  };
}

}  // namespace

size_t orve_file_dialog_size(void) {
  return sizeof(orve_file_dialog);
}

void orve_host_MsgBox(orve_message_box callback, void* user) {
  Services().MsgBox = nullptr;
  if (callback == nullptr) return;
  Services().MsgBox = [callback, user](const std::string& prompt, std::int32_t buttons,
                                       const std::string& title) {
    return CallHost(callback, prompt.c_str(), buttons, title.c_str(), user);
  };
}

void orve_host_OpenFileDialog(orve_show_file_dialog callback, void* user) {
  Services().OpenFileDialog = FileDialog(callback, user);
}

void orve_host_SaveFileDialog(orve_show_file_dialog callback, void* user) {
  Services().SaveFileDialog = FileDialog(callback, user);
}

void orve_host_MousePointer(orve_get_pointer callback, void* user) {
  Services().MousePointer = nullptr;
  if (callback != nullptr) Services().MousePointer = [callback, user] { return CallHost(callback, user); };
}

void orve_host_SetMousePointer(orve_set_pointer callback, void* user) {
  Services().SetMousePointer = nullptr;
  if (callback != nullptr)
    Services().SetMousePointer = [callback, user](std::int16_t pointerType) {
      CallHost(callback, pointerType, user);
    };
}

void orve_host_DoEvents(orve_notify callback, void* user) {
  Services().DoEvents = nullptr;
  if (callback != nullptr) Services().DoEvents = [callback, user] { CallHost(callback, user); };
}

void orve_host_LibraryFolder(orve_give_text callback, void* user) {
  Services().LibraryFolder = TextService(callback, user);
}

void orve_host_SystemDirectory(orve_give_text callback, void* user) {
  Services().SystemDirectory = TextService(callback, user);
}

void orve_host_Now(orve_clock callback, void* user) {
  Services().Now = nullptr;
  if (callback != nullptr) Services().Now = [callback, user] { return CallHost(callback, user); };
}

void orve_host_SiteBrowse(orve_show_site_dialog callback, void* user) {
  Services().SiteBrowse = SiteDialog(callback, user);
}

void orve_host_SiteSelect(orve_show_site_dialog callback, void* user) {
  Services().SiteSelect = SiteDialog(callback, user);
}

void orve_host_SiteEdit(orve_edit_site callback, void* user) {
  Services().SiteEdit = nullptr;
  if (callback != nullptr) Services().SiteEdit = [callback, user] { return CallHost(callback, user); };
}
