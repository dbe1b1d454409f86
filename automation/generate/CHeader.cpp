#include <algorithm>

#include "Generate.h"
#include "common/clsCommon.h"

namespace orve::automation {

namespace {

constexpr std::string_view Opening = R"(#ifndef ORVE3_BS6399_2_C_H
#define ORVE3_BS6399_2_C_H

#include <stdbool.h>
#include <stddef.h>
#include <stdint.h>

#if defined(_WIN32) && defined(ORVE_C_SHARED)
#ifdef ORVE_C_BUILD
#define ORVE_C_API __declspec(dllexport)
#else
#define ORVE_C_API __declspec(dllimport)
#endif
#elif defined(__GNUC__)
#define ORVE_C_API __attribute__((visibility("default")))
#else
#define ORVE_C_API
#endif

#ifdef __cplusplus
extern "C" {
#endif

/* 0, or the number of an error: 5 invalid argument (a null pointer where a text, record or result is wanted), 6
 * overflow, 7 out of memory, 9 subscript out of range, 11 division by zero, 13 type mismatch, 28 an event raised in
 * its own handlers without end, 53 to 76 file system, 91 object not set (a null handle, one that has been released,
 * or one of another class), 429 class can't be created, 440 an exception that isn't the library's. A function that
 * fails leaves its results alone. */
typedef int32_t orve_error;

/* Text of the last error on this thread, in full; empty if its last call succeeded. It stays until the thread's
 * next call. */
ORVE_C_API const char* orve_error_text(void);
/* Text of the error that a callback is about to return. */
ORVE_C_API void orve_set_error_text(const char* text);

/* Releases any handle: an object or a connection, which ends it. A null handle is left alone. Errors: 91. */
ORVE_C_API orve_error orve_release(const void* handle);
/* Frees a text that a function gave. */
ORVE_C_API void orve_free_text(char* text);

/* Makes the built-in engines the components; call it before orve_clsCurrentCase_create. */
ORVE_C_API void orve_register_built_in_engines(void);
/* The version, as in "v3.0.33". */
ORVE_C_API orve_error orve_app_version(char** result);
/* The version of the library that runs, as ORVE_C_VERSION is the one of this header: 30033 for 3.0.33. */
ORVE_C_API int32_t orve_version(void);
/* A stored path, "\" as separator, as the machine's own. */
ORVE_C_API orve_error orve_native_path(const char* path, char** result);
/* The file that opening and saving a name use, as a full path: the exact name, else the one that differs in case and
 * outer blanks alone. For a file that isn't there yet, the path that a save would make. Errors: 75 for an empty name. */
ORVE_C_API orve_error orve_resolve_file_name(const char* name, char** result);
/* True if opening that name would find a file, and saving to it would write over one. */
ORVE_C_API orve_error orve_case_file_exists(const char* name, bool* result);
/* True if the file of the open case isn't as the last opening or save of it here left it: changed, replaced or gone. Ask
 * before saving. */
ORVE_C_API orve_error orve_case_file_changed(bool* result);
/* The path of the copy that an interrupted save left of a file that it was writing in place, if the file isn't the same;
 * empty if there is none. Errors: 75 for an empty name. */
ORVE_C_API orve_error orve_copy_put_aside(const char* name, char** result);
/* Shortest decimal text of a number, point as decimal sign, whatever the locale. */
ORVE_C_API orve_error orve_single_text(float value, char** result);
ORVE_C_API orve_error orve_double_text(double value, char** result);

/* Optional arguments: this stands for one that is left out, the object's own selection. */
#define ORVE_DEFAULT (-1)

)";

/// "v3.0.33" as 30033.
std::string VersionNumber() {
  const std::string version = clsCommon().AppVersion();
  const std::size_t minor = version.find('.') + 1;
  const std::size_t revision = version.find('.', minor) + 1;
  return std::to_string(std::stoi(version.substr(1)) * 10000 + std::stoi(version.substr(minor)) * 100 +
                        std::stoi(version.substr(revision)));
}

constexpr std::string_view Services = R"(/* A callback's result as text: hand it to orve_reply_text. */
typedef struct orve_reply orve_reply;
ORVE_C_API void orve_reply_text(orve_reply* reply, const char* text);

/* Settings of a file dialog. Paths have "\" as separator. Later versions may add fields at its end; a field is there if it
 * ends within orve_file_dialog_size() of the library that runs. */
typedef struct orve_file_dialog {
  const char* DialogTitle;
  const char* Filter;
  const char* DefaultExt;
  const char* InitDir;
  const char* FileName;
  int32_t Flags;
} orve_file_dialog;
ORVE_C_API size_t orve_file_dialog_size(void);

/* Services of the host. Each callback gets the user pointer given with it; a null callback brings the headless
 * default back. A dialog gives the name chosen, or the site reference, by orve_reply_text and returns true, or
 * returns false for Cancel. MsgBox returns the button: 6 Yes, 7 No, 1 OK. */
typedef int32_t (*orve_message_box)(const char* prompt, int32_t buttons, const char* title, void* user);
typedef bool (*orve_show_file_dialog)(const orve_file_dialog* dialog, orve_reply* file_name, void* user);
typedef bool (*orve_show_site_dialog)(orve_reply* site_reference, void* user);
typedef bool (*orve_edit_site)(void* user);
typedef void (*orve_give_text)(orve_reply* text, void* user);
typedef double (*orve_clock)(void* user);
typedef void (*orve_notify)(void* user);
typedef int16_t (*orve_get_pointer)(void* user);
typedef void (*orve_set_pointer)(int16_t pointer_type, void* user);
ORVE_C_API void orve_host_MsgBox(orve_message_box callback, void* user);
ORVE_C_API void orve_host_OpenFileDialog(orve_show_file_dialog callback, void* user);
ORVE_C_API void orve_host_SaveFileDialog(orve_show_file_dialog callback, void* user);
ORVE_C_API void orve_host_MousePointer(orve_get_pointer callback, void* user);
ORVE_C_API void orve_host_SetMousePointer(orve_set_pointer callback, void* user);
ORVE_C_API void orve_host_DoEvents(orve_notify callback, void* user);
ORVE_C_API void orve_host_LibraryFolder(orve_give_text callback, void* user);
ORVE_C_API void orve_host_SystemDirectory(orve_give_text callback, void* user);
ORVE_C_API void orve_host_Now(orve_clock callback, void* user);
ORVE_C_API void orve_host_SiteBrowse(orve_show_site_dialog callback, void* user);
ORVE_C_API void orve_host_SiteSelect(orve_show_site_dialog callback, void* user);
ORVE_C_API void orve_host_SiteEdit(orve_edit_site callback, void* user);

)";

constexpr std::string_view Closing = R"(#ifdef __cplusplus
}
#endif

#endif
)";

std::string EnumerationText(const EnumerationDescription& enumeration) {
  const std::string type = "orve_" + std::string(enumeration.name);
  std::string text = "/* " + std::string(enumeration.help) + ". */\ntypedef int32_t " + type + ";\nenum {\n";
  for (const Enumerator& enumerator : enumeration.enumerators)
    text += "  " + type + "_" + std::string(enumerator.name) + " = " + std::to_string(enumerator.value) +
            (&enumerator == &enumeration.enumerators.back() ? " /* \"" : ", /* \"") +
            std::string(enumerator.published) + "\" */\n";
  return text +
         "};\n/* The published text of a value; null outside the enumeration. */\nORVE_C_API const char* " +
         type + "_text(" + type + " value);\n\n";
}

std::string RecordText(const RecordDescription& record) {
  const std::string type = "orve_" + std::string(record.name);
  bool hasTexts = false;
  std::string text = "/* " + std::string(record.help) + ". */\ntypedef struct " + type + " {\n";
  for (const FieldDescription& field : record.fields) {
    const bool isText = field.type.kind == Kind::Text;
    hasTexts = hasTexts || isText;
    text += "  " + (isText ? std::string("const char*") : CTypeName(field.type)) + " " +
            std::string(field.name) + ";\n";
  }
  text += "} " + type + ";\n";
  if (hasTexts)
    text +=
        "/* Frees the texts of records that a function gave, and of an array the rows themselves. */\n"
        "ORVE_C_API void " +
        type + "_free(" + type + "* record);\nORVE_C_API void " + type + "_free_rows(" + type +
        "* rows, size_t count);\n";
  return text + "\n";
}

std::string HandlerTypes(const ClassDescription& description) {
  std::string text;
  for (const EventDescription& event : description.events) {
    text += "/* " + std::string(event.help) + ". */\ntypedef orve_error (*orve_" +
            std::string(description.name) + "_" + std::string(event.name) + ")(";
    for (const ArgumentDescription& argument : event.arguments)
      text += (argument.type.kind == Kind::Text ? "const char*" : CTypeName(argument.type)) + " " +
              std::string(argument.name) + ", ";
    text += "void* user);\n";
  }
  return text;
}

std::string MemberComment(const MemberDescription& member) {
  return "/* " + Join(DocumentationOf(member), "\n * ") + " */\n";
}

std::string ClassText(const ClassDescription& description) {
  std::string text = "/* " + std::string(description.name) + ": " + std::string(description.help) + ". */\n";
  text += HandlerTypes(description);
  if (description.create != nullptr) text += "ORVE_C_API " + CDeclarations(description).front() + ";\n";
  for (const MemberDescription& member : description.members) {
    text += MemberComment(member);
    text += "ORVE_C_API " + CGetDeclaration(description, member) + ";\n";
    if (member.let) text += "ORVE_C_API " + CLetDeclaration(description, member) + ";\n";
  }
  for (const EventDescription& event : description.events)
    text += "ORVE_C_API " + CConnectDeclaration(description, event) + ";\n";
  return text + "\n";
}

}  // namespace

std::string CHeader() {
  std::string text =
      "/* ORVE BS6399-2 Library 3.0 for C99 and C++: wind loads on buildings to BS 6399-2. Every function "
      "may be\n"
      " * called on one thread only, with any\n * floating-point state: calls mask exceptions and round to "
      "nearest, and the state comes back. " +
      std::string(GeneratedNote) + " */\n";
  text += Opening;
  text += "/* The version of this header: 10000 major + 100 minor + revision. */\n#define ORVE_C_VERSION " +
          VersionNumber() + "\n\n";
  for (const EnumerationDescription& enumeration : Enumerations()) text += EnumerationText(enumeration);
  text +=
      "/* Records; their fields never change. A null text in a record that is given to a function stands for "
      "an empty "
      "one. */\n\n";
  for (const RecordDescription& record : Records()) text += RecordText(record);
  text += "/* Handles: counted references, each to be released. */\n";
  for (const ClassDescription* description : Classes())
    text += "typedef struct orve_" + std::string(description->name) + "_handle* orve_" +
            std::string(description->name) + ";\n";
  text += "typedef struct orve_connection_handle* orve_connection;\n\n";
  text += Services;
  text +=
      "/* Events call a handler inside the call that raises them, until its connection is released. A "
      "handler\n"
      " * returns 0, or the number of an error that then comes out of that call. */\n\n";
  for (const ClassDescription* description : Classes()) text += ClassText(*description);
  text += Closing;
  return text;
}

std::string CExports() {
  constexpr std::string_view Mark = "\nORVE_C_API ";
  const std::string header = CHeader();
  std::vector<std::string> names;
  for (std::size_t at = header.find(Mark); at != std::string::npos; at = header.find(Mark, at + 1)) {
    const std::size_t open = header.find('(', at);
    const std::size_t start = header.find_last_of(" *", open) + 1;
    names.push_back(header.substr(start, open - start));
  }
  std::sort(names.begin(), names.end());
  return Join(names, "\n") + "\n";
}

}  // namespace orve::automation
