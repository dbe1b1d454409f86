// The door scripts through dispatch by name, every argument given as text.
#include <algorithm>
#include <gtest/gtest.h>
#include <set>
#include <string>
#include <vector>

#include "BuiltInEngines.h"
#include "Dispatch.h"
#include "Script.h"
#include "orve3_bs6399_2.h"
#include "private_folder.h"

namespace orve::test {
namespace {

using namespace automation;

/// Names of what the scripts used: "class.member", "class.member=" and "event".
std::set<std::string>& Used() {
  static std::set<std::string> used;
  return used;
}

class ScriptRun {
 public:
  ScriptRun() {
    Host() = HostServices();
    Host().LibraryFolder = [this] { return m_folder.Path().string(); };
    Host().SystemDirectory = Host().LibraryFolder;
    for (const char* service :
         {"MsgBox", "Now", "OpenFileDialog", "SaveFileDialog", "SiteBrowse", "SiteSelect"})
      SetService(service, "");
    RegisterBuiltInEngines();
    m_root = CreateObject("clsCurrentCase");
    for (const EventDescription& event : m_root.type->events) Connect(event);
  }
  ~ScriptRun() {
    m_connections.clear();
    Host() = HostServices();
  }

  /// What a line gives, as the script writes it.
  std::string Run(const ScriptLine& line) {
    if (line.Field(0) == "events") return Portable(std::exchange(m_events, {}));
    if (line.Field(0) == "host") {
      SetService(line.Field(1), Native(line.Field(2)));
      return {};
    }
    try {
      return Portable(Call(line));
    } catch (const Error& error) {
      return Portable("! " + std::to_string(error.Number()) + " " + error.what());
    }
  }

 private:
  std::string Native(const std::string& text) const {
    return Replaced(text, "$FOLDER", m_folder.Path().string());
  }
  std::string Portable(const std::string& text) const {
    const std::string stored = Replaced(m_folder.Path().string(), "/", "\\");
    std::string upper = stored;
    std::transform(upper.begin(), upper.end(), upper.begin(), [](char letter) {
      return letter >= 'a' && letter <= 'z' ? static_cast<char>(letter - 32) : letter;
    });
    return Replaced(Replaced(text, stored, "$FOLDER"), upper, "$UPPER");
  }

  void Connect(const EventDescription& event) {
    m_connections.push_back(
        ConnectEvent(m_root, event.name, [this, &event](std::span<const Value> arguments) {
          if (!m_events.empty()) m_events += ' ';
          m_events += std::string(event.name) + '(' + (arguments.empty() ? "" : TextOf(arguments[0])) + ')';
          Used().insert(std::string(event.name));
        }));
  }

  ObjectReference Object(const std::string& className) {
    if (className == "clsCurrentCase") return m_root;
    for (const MemberDescription& member : m_root.type->members)
      if (member.type.kind == Kind::Object && member.type.name == className)
        return *Invoke(m_root, member, {}).As<ObjectReference>();
    return {nullptr, FindClass(className)};
  }

  Value Argument(const Type& type, const std::string& text) {
    if (type.kind == Kind::Object) return Object(text);
    return text == "-" ? Value() : Value(Native(text));
  }

  /// The record of wall pressures out of its two texts.
  static Value PressureRecord(const RecordDescription& description, const std::vector<std::string>& texts) {
    RecordValue record{&description, {}};
    for (const FieldDescription& field : description.fields)
      record.fields.push_back(field.type.kind == Kind::Record
                                  ? PressureRecord(*FindRecord(field.type.name), texts)
                                  : Value(texts.at(field.name == "Zone_Dimensions" ? 1 : 0)));
    return record;
  }

  std::string Call(const ScriptLine& line) {
    const ObjectReference object = Object(line.Field(1));
    const MemberDescription& member = RequireMember(object, line.Field(2));
    const bool isLet = line.Field(0) == "let";
    Used().insert(line.Field(1) + "." + std::string(member.name) + (isLet ? "=" : ""));
    const std::vector<std::string> texts = line.Arguments();
    std::vector<Value> arguments;
    for (std::size_t i = 0; i < texts.size(); ++i)
      arguments.push_back(
          Argument(i < member.arguments.size() ? member.arguments[i].type : member.type, texts[i]));
    if (!isLet) return TextOf(Invoke(object, member, arguments));
    Value value = member.type.kind == Kind::Record ? PressureRecord(*FindRecord(member.type.name), texts)
                                                   : arguments.back();
    if (member.type.kind == Kind::Record) arguments.clear();
    if (!arguments.empty()) arguments.pop_back();
    Assign(object, member, arguments, value);
    return {};
  }

  static void SetService(const std::string& service, const std::string& answer) {
    const auto choose = [answer](clsCommonDialog& dialog) {
      dialog.FileName = answer;
      return !answer.empty();
    };
    const auto site = [answer](std::string& reference) {
      reference = answer;
      return !answer.empty();
    };
    if (service == "MsgBox")
      Host().MsgBox = [answer](const std::string&, std::int32_t, const std::string&) {
        return answer.empty() ? 7 : std::stoi(answer);
      };
    if (service == "Now") Host().Now = [answer] { return answer.empty() ? 46000.5 : std::stod(answer); };
    if (service == "OpenFileDialog") Host().OpenFileDialog = choose;
    if (service == "SaveFileDialog") Host().SaveFileDialog = choose;
    if (service == "SiteBrowse") Host().SiteBrowse = site;
    if (service == "SiteSelect") Host().SiteSelect = site;
    if (service == "SiteEdit") Host().SiteEdit = [answer] { return !answer.empty(); };
  }

  examples::PrivateFolder m_folder;
  ObjectReference m_root;
  std::vector<Connection> m_connections;
  std::string m_events;
};

TEST(DoorScripts, RunByName) {
  int scripts = 0;
  for (const auto& entry : std::filesystem::directory_iterator(ORVE_SCRIPT_FOLDER)) {
    ++scripts;
    ScriptRun run;
    for (const ScriptLine& line : ReadScript(entry.path())) {
      const std::string expected = line.Field(line.Field(0) == "events" ? 1 : 4);
      EXPECT_EQ(run.Run(line), expected) << entry.path().filename().string() << ":" << line.number;
    }
  }
  EXPECT_GT(scripts, 0);

  std::set<std::string> all;
  for (const ClassDescription* description : Classes()) {
    for (const MemberDescription& member : description->members) {
      const std::string name = std::string(description->name) + "." + std::string(member.name);
      all.insert(name);
      if (member.let) all.insert(name + "=");
    }
    for (const EventDescription& event : description->events) all.insert(std::string(event.name));
  }
  std::vector<std::string> missing;
  std::set_difference(all.begin(), all.end(), Used().begin(), Used().end(), std::back_inserter(missing));
  EXPECT_EQ(missing, std::vector<std::string>()) << "no script uses these";
}

}  // namespace
}  // namespace orve::test
