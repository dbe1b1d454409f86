/* The door scripts through the C binding: every line calls the typed function of its member. */
#include <ctype.h>
#include <stdio.h>
#include <stdlib.h>
#include <string.h>

#include "orve3_bs6399_2_c.h"

enum { MAX_TEXT = 65536, MAX_FIELDS = 8 };

/* One call: the object, its arguments as texts, and room for the result's text. */
typedef struct door_call {
  const void* handle;
  char* arguments[MAX_FIELDS];
  int count;
  char out[MAX_TEXT];
  const void* objects[MAX_FIELDS]; /* handles fetched for arguments, released afterwards */
} door_call;

typedef struct door_entry {
  const char* class_name;
  const char* member;
  orve_error (*get)(door_call* call);
  orve_error (*let)(door_call* call);
} door_entry;

static orve_clsCurrentCase root;
static const char* folder;
static char events[MAX_TEXT];

/* What the generated calls use: arguments out of texts, and texts out of results. */
static const char* argument(const door_call* call, int index) {
  if (index >= call->count || strcmp(call->arguments[index], "-") == 0) return NULL;
  return call->arguments[index];
}
static const char* text_argument(const door_call* call, int index) {
  const char* text = argument(call, index);
  return text == NULL ? "" : text;
}
static int32_t whole_argument(const door_call* call, int index) {
  const char* text = argument(call, index);
  return text == NULL ? ORVE_DEFAULT : (int32_t)strtol(text, NULL, 10);
}
static float single_argument(const door_call* call, int index) {
  return strtof(text_argument(call, index), NULL);
}
static bool bool_argument(const door_call* call, int index, bool missing) {
  const char* text = argument(call, index);
  return text == NULL ? missing : strcmp(text, "True") == 0;
}
static orve_error fetch_object(orve_clsCurrentCase from, const char* name, const void** object);
static const void* object_argument(door_call* call, int index) {
  const void* object = NULL;
  fetch_object(root, text_argument(call, index), &object);
  call->objects[index] = object;
  return object;
}
static void out_raw(door_call* call, const char* text) {
  strncat(call->out, text, MAX_TEXT - 1 - strlen(call->out));
}
static void out_bool(door_call* call, bool value) {
  out_raw(call, value ? "True" : "False");
}
static void out_whole(door_call* call, int32_t value) {
  char text[16];
  snprintf(text, sizeof text, "%ld", (long)value);
  out_raw(call, text);
}
static void out_single(door_call* call, float value) {
  char* text = NULL;
  if (orve_single_text(value, &text) == 0) out_raw(call, text);
  orve_free_text(text);
}
static void out_double(door_call* call, double value) {
  char* text = NULL;
  if (orve_double_text(value, &text) == 0) out_raw(call, text);
  orve_free_text(text);
}
static void out_object(door_call* call, const void* object, const char* class_name) {
  out_raw(call, class_name);
  orve_release(object);
}

#include "c_calls.inc"

/* Texts of the script. */
static char* trimmed(char* text) {
  while (*text == ' ') ++text;
  size_t length = strlen(text);
  while (length > 0 && (text[length - 1] == ' ' || text[length - 1] == '\n')) text[--length] = '\0';
  return text;
}
static int split(char* text, char separator, char** parts) {
  int count = 0;
  for (char* at = text; at != NULL && count < MAX_FIELDS; ++count) {
    char* end = strchr(at, separator);
    if (end != NULL) *end = '\0';
    parts[count] = trimmed(at);
    at = end == NULL ? NULL : end + 1;
  }
  return count;
}
/* Replaces in place; the buffers are far larger than any text of a script. */
static void replace(char* text, const char* part, const char* by) {
  char rest[MAX_TEXT];
  for (char* at = strstr(text, part); at != NULL; at = strstr(at + strlen(by), part)) {
    strcpy(rest, at + strlen(part));
    strcpy(at, by);
    strcat(at, rest);
  }
}
static void make_portable(char* text) {
  char stored[1024], upper[1024];
  size_t i = 0;
  for (; folder[i] != '\0' && i + 1 < sizeof stored; ++i) {
    stored[i] = folder[i] == '/' ? '\\' : folder[i];
    upper[i] = (char)toupper((unsigned char)stored[i]);
  }
  stored[i] = upper[i] = '\0';
  replace(text, stored, "$FOLDER");
  replace(text, upper, "$UPPER");
}

/* Answers of the host. */
typedef struct host_answers {
  char MsgBox[1024], Now[1024], OpenFileDialog[1024], SaveFileDialog[1024], SiteBrowse[1024],
      SiteSelect[1024], SiteEdit[1024];
} host_answers;
static host_answers answers;

static int32_t message_box(const char* prompt, int32_t buttons, const char* title, void* user) {
  (void)prompt, (void)buttons, (void)title;
  const char* answer = user;
  return *answer == '\0' ? 7 : (int32_t)atoi(answer);
}
static double now(void* user) {
  const char* answer = user;
  return *answer == '\0' ? 46000.5 : strtod(answer, NULL);
}
static bool file_dialog(const orve_file_dialog* dialog, orve_reply* name, void* user) {
  (void)dialog;
  orve_reply_text(name, user);
  return *(const char*)user != '\0';
}
static bool site_dialog(orve_reply* reference, void* user) {
  return file_dialog(NULL, reference, user);
}
static bool site_edit(void* user) {
  return *(const char*)user != '\0';
}
static void give_folder(orve_reply* reply, void* user) {
  orve_reply_text(reply, user);
}
static void set_answer(const char* service, const char* answer) {
  const struct {
    const char* name;
    char* text;
  } rows[] = {{"MsgBox", answers.MsgBox},
              {"Now", answers.Now},
              {"OpenFileDialog", answers.OpenFileDialog},
              {"SaveFileDialog", answers.SaveFileDialog},
              {"SiteBrowse", answers.SiteBrowse},
              {"SiteSelect", answers.SiteSelect},
              {"SiteEdit", answers.SiteEdit}};
  for (size_t i = 0; i < sizeof rows / sizeof rows[0]; ++i)
    if (strcmp(rows[i].name, service) == 0) strcpy(rows[i].text, answer);
}

/* Events as they come. */
static void note_event(const char* name, const char* text) {
  const size_t length = strlen(events);
  snprintf(events + length, MAX_TEXT - length, "%s%s(%s)", length == 0 ? "" : " ", name, text);
}
static orve_error dirty_updated(bool value, void* user) {
  note_event(user, value ? "True" : "False");
  return 0;
}
static orve_error text_event(const char* text, void* user) {
  note_event(user, text);
  return 0;
}
static orve_error list_updated(void* user) {
  note_event(user, "");
  return 0;
}

static orve_connection connections[5];

static void start(void) {
  memset(&answers, 0, sizeof answers);
  orve_host_LibraryFolder(give_folder, (void*)folder);
  orve_host_SystemDirectory(give_folder, (void*)folder);
  orve_host_MsgBox(message_box, answers.MsgBox);
  orve_host_Now(now, answers.Now);
  orve_host_OpenFileDialog(file_dialog, answers.OpenFileDialog);
  orve_host_SaveFileDialog(file_dialog, answers.SaveFileDialog);
  orve_host_SiteBrowse(site_dialog, answers.SiteBrowse);
  orve_host_SiteSelect(site_dialog, answers.SiteSelect);
  orve_host_SiteEdit(site_edit, answers.SiteEdit);
  orve_register_built_in_engines();
  if (orve_clsCurrentCase_create(&root) != 0) fprintf(stderr, "%s\n", orve_error_text());
  orve_clsCurrentCase_connect_DirtyUpdated(root, dirty_updated, "DirtyUpdated", &connections[0]);
  orve_clsCurrentCase_connect_LocationUpdated(root, text_event, "LocationUpdated", &connections[1]);
  orve_clsCurrentCase_connect_WindCaseListUpdated(root, list_updated, "WindCaseListUpdated", &connections[2]);
  orve_clsCurrentCase_connect_WindCaseOpened(root, text_event, "WindCaseOpened", &connections[3]);
  orve_clsCurrentCase_connect_WindCaseSaved(root, text_event, "WindCaseSaved", &connections[4]);
}
static void finish(void) {
  for (int i = 0; i < 5; ++i) orve_release(connections[i]);
  orve_release(root);
  events[0] = '\0';
}

static const door_entry* entry_of(const char* class_name, const char* member) {
  for (size_t i = 0; i < sizeof door_entries / sizeof door_entries[0]; ++i)
    if (strcmp(door_entries[i].class_name, class_name) == 0 && strcmp(door_entries[i].member, member) == 0)
      return door_entries + i;
  return NULL;
}

static void call_member(char** fields, door_call* call) {
  const door_entry* entry = entry_of(fields[1], fields[2]);
  if (entry == NULL) {
    out_raw(call, "no such member");
    return;
  }
  const bool is_root = strcmp(fields[1], "clsCurrentCase") == 0;
  call->handle = root;
  if (!is_root) fetch_object(root, fields[1], &call->handle);
  if (*fields[3] != '\0') call->count = split(fields[3], ';', call->arguments);
  const orve_error error = (strcmp(fields[0], "let") == 0 ? entry->let : entry->get)(call);
  if (error != 0) snprintf(call->out, MAX_TEXT, "! %ld %s", (long)error, orve_error_text());
  for (int i = 0; i < MAX_FIELDS; ++i)
    if (call->objects[i] != NULL) orve_release(call->objects[i]);
  if (!is_root) orve_release(call->handle);
}

static int run_line(const char* script, int number, char* line) {
  static door_call call;
  char* fields[MAX_FIELDS] = {"", "", "", "", "", "", "", ""};
  memset(&call, 0, sizeof call);
  replace(line, "\r", "");
  char* separator =
      strchr(line, '|'); /* results may show the folder's name, so only the rest is made native */
  if (separator == NULL) return 0;
  split(line, '|', fields);
  const char* expected = fields[4];
  char native[MAX_TEXT];
  if (strcmp(fields[0], "host") == 0) {
    strcpy(native, fields[2]);
    replace(native, "$FOLDER", folder);
    set_answer(fields[1], native);
  } else if (strcmp(fields[0], "events") == 0) {
    expected = fields[1];
    strcpy(call.out, events);
    events[0] = '\0';
  } else {
    strcpy(native, fields[3]);
    replace(native, "$FOLDER", folder);
    fields[3] = native;
    call_member(fields, &call);
  }
  make_portable(call.out);
  if (strcmp(call.out, expected) == 0) return 0;
  printf("%s:%d: \"%s\" instead of \"%s\"\n", script, number, call.out, expected);
  return 1;
}

/* c_door FOLDER SCRIPT: runs one script; its files go into the folder. */
int main(int count, char** arguments) {
  static char line[MAX_TEXT];
  if (count != 3) return 2;
  folder = arguments[1];
  FILE* file = fopen(arguments[2], "r");
  if (file == NULL) return 2;
  int failed = 0;
  start();
  for (int number = 1; fgets(line, MAX_TEXT, file) != NULL; ++number)
    if (*line != '#' && *line != '\n') failed += run_line(arguments[2], number, line);
  finish();
  fclose(file);
  return failed == 0 ? 0 : 1;
}
