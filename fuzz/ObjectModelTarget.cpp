// The object model driven by name: calls with any arguments, and handlers and services of the host that call
// back in, raise, start a new case, open and save files, and let go of the objects.
#include <cstdint>
#include <cstring>
#include <limits>
#include <new>
#include <orve3_bs6399_2.h>
#include <string>
#include <vector>

#include "BuiltInEngines.h"
#include "Dispatch.h"
#include "FuzzTargets.h"
#include "MemoryFolder.h"

namespace orve::fuzz {

namespace {

using automation::MemberDescription;
using automation::ObjectReference;
using automation::RecordValue;
using automation::Value;

constexpr int MostSteps = 120;
constexpr int MostHandled = 200;
constexpr int DeepestHandler = 3;
constexpr std::size_t MostKept = 24;

/// The input read from front to end; 0 after its end.
class Bytes {
 public:
  explicit Bytes(std::string_view input) : m_input(input) {}

  bool More() const { return !m_input.empty(); }
  std::uint8_t Next() {
    if (m_input.empty()) return 0;
    const auto byte = static_cast<std::uint8_t>(m_input.front());
    m_input.remove_prefix(1);
    return byte;
  }
  std::size_t Below(std::size_t count) { return Next() % count; }
  template <class Number>
  Number Raw() {
    char bytes[sizeof(Number)];
    for (char& byte : bytes) byte = static_cast<char>(Next());
    Number number;
    std::memcpy(&number, bytes, sizeof number);
    return number;
  }
  std::string Text() {
    const std::size_t length = Next();
    constexpr std::size_t longText = 100000;
    if (length > 250) return std::string(longText, static_cast<char>('a' + length % 7));
    std::string text(m_input.substr(0, length));
    m_input.remove_prefix(text.size());
    return text;
  }

 private:
  std::string_view m_input;
};

/// Drives one root object through one input.
class Driver {
 public:
  Driver(const MemoryFolder& folder, std::string_view input) : m_file(folder.File("a.wlc")), m_bytes(input) {}

  void Run();
  /// What a handler or a service of the host does.
  void Handle();
  const std::string& File() const { return m_file; }

 private:
  static ObjectReference Root();
  void ConnectEvents();
  void KeepObjects();
  void Keep(const Value& value);
  void Step();
  void Call(const ObjectReference& object, const MemberDescription& member, std::uint8_t choice);
  void Act(clsCurrentCase& windCase);
  Value AnyValue(int level = 0);
  Value AnyNumber();

  const std::string m_file;
  Bytes m_bytes;
  std::vector<ObjectReference> m_kept;
  std::vector<Connection> m_connections;
  int m_depth = 0;
  int m_handled = 0;
  int m_acts = 0;
};

// Called by the host's services, which live longer than a driver.
Driver* running = nullptr;

ObjectReference Driver::Root() {
  ObjectReference root;
  root.object = basBS6399_2::CurrentCase;
  root.type = automation::FindClass("clsCurrentCase");
  return root;
}

void Driver::ConnectEvents() {
  const std::uint8_t wanted = m_bytes.Next();
  int index = 0;
  const ObjectReference root = Root();
  for (const auto& event : root.type->events)
    if ((wanted >> index++ & 1) != 0)
      m_connections.push_back(
          automation::ConnectEvent(root, event.name, [this](std::span<const Value>) { Handle(); }));
}

void Driver::KeepObjects() {
  const ObjectReference root = Root();
  m_kept.push_back(root);
  for (const char* name :
       {"BuildingDimensions", "DynamicPressure", "ExternalCoefficients", "InternalCoefficients",
        "OverallAppliedLoads", "CantileverWindloads", "WindCaseList"})
    Keep(automation::Invoke(root, name, {}));
}

void Driver::Run() {
  CreateCurrentCase()->Initialize_BreApps();
  ConnectEvents();
  KeepObjects();
  running = this;
  for (int step = 0; m_bytes.More() && step < MostSteps; ++step) {
    try {
      Step();
    } catch (int) {
    } catch (const std::bad_alloc&) {
    }
  }
  running = nullptr;
}

void Driver::Keep(const Value& value) {
  const auto* object = value.As<ObjectReference>();
  if (object == nullptr || !object->object) return;
  if (m_kept.size() > MostKept) m_kept.erase(m_kept.begin() + 1);
  m_kept.push_back(*object);
}

Value Driver::AnyNumber() {
  constexpr float infinity = std::numeric_limits<float>::infinity();
  constexpr float nan = std::numeric_limits<float>::quiet_NaN();
  constexpr float singles[] = {0,      -0.0f,    1,         10,  45,    90,    1e38f, -1e38f,
                               1e-38f, infinity, -infinity, nan, 32767, 32768, 0.5f,  5};
  constexpr double doubles[] = {1e308, -1e308, 1e-308, infinity, nan, 2958466, -657435, 2147483648.0};
  switch (m_bytes.Below(7)) {
    case 0:
      return Value(static_cast<std::int32_t>(static_cast<std::int8_t>(m_bytes.Next())));
    case 1:
      return Value(m_bytes.Raw<std::int32_t>());
    case 2:
      return Value(m_bytes.Raw<float>());
    case 3:
      return Value(m_bytes.Raw<double>());
    case 4:
      return Value(singles[m_bytes.Below(std::size(singles))]);
    case 5:
      return Value(doubles[m_bytes.Below(std::size(doubles))]);
    default:
      return Value(static_cast<float>(m_bytes.Next()) / 4);
  }
}

Value Driver::AnyValue(int level) {
  constexpr int deepest = 3;
  switch (m_bytes.Below(level > deepest ? 5 : 8)) {
    case 0:
      return Value();
    case 1:
      return Value(m_bytes.Below(2) == 1);
    case 2:
      return Value(m_bytes.Text());
    case 3: {
      ObjectReference null;
      null.type = automation::Classes()[m_bytes.Below(automation::Classes().size())];
      return m_bytes.Below(2) == 1 && !m_kept.empty() ? Value(m_kept[m_bytes.Below(m_kept.size())])
                                                      : Value(null);
    }
    case 5: {
      std::vector<Value> values(m_bytes.Below(6));
      for (Value& value : values) value = AnyValue(level + 1);
      return Value(std::move(values));
    }
    case 6: {
      RecordValue record;
      record.type = &automation::Records()[m_bytes.Below(automation::Records().size())];
      for (std::size_t count = m_bytes.Below(20); count > 0; --count)
        record.fields.push_back(AnyValue(level + 1));
      return Value(std::move(record));
    }
    default:
      return AnyNumber();
  }
}

void Driver::Step() {
  const std::uint8_t choice = m_bytes.Next();
  if (m_kept.empty()) m_kept.push_back(Root());
  const ObjectReference object = choice < 24 ? Root() : m_kept[m_bytes.Below(m_kept.size())];
  Call(object, object.type->members[m_bytes.Below(object.type->members.size())], choice);
}

void Driver::Call(const ObjectReference& object, const MemberDescription& member, std::uint8_t choice) {
  std::vector<Value> arguments(choice % 8 < 6 ? member.arguments.size() : m_bytes.Below(10));
  for (Value& argument : arguments)
    argument = choice % 3 != 0 ? Value(static_cast<std::int32_t>(m_bytes.Below(13))) : AnyValue();
  try {
    if (choice % 2 == 1 && member.let)
      automation::Assign(object, member, arguments, AnyValue());
    else
      Keep(automation::Invoke(object, member, arguments));
  } catch (const Error& error) {
    Require(error.Number() != 0, "an error has a number");
    Require(error.Number() != static_cast<int>(automation::DispatchError::AutomationFailed),
            "the library raises its own errors only");
  }
}

void Driver::Handle() {
  if (m_depth > DeepestHandler || ++m_handled > MostHandled) return;
  struct Level {
    int& depth;
    ~Level() { --depth; }
  } const level{++m_depth};
  switch (m_bytes.Below(12)) {
    case 0:
      Step();
      break;
    case 1:
      throw 42;
    case 2:
      throw Error(ErrorNumber::Overflow, "raised by a handler");
    case 3:
      throw std::bad_alloc();
    case 4:
      m_kept.clear();
      break;
    default:
      if (const auto windCase = basBS6399_2::CurrentCase) Act(*windCase);
      break;
  }
}

void Driver::Act(clsCurrentCase& windCase) {
  switch (m_bytes.Below(6)) {
    case 0:
      windCase.Clear();
      break;
    case 1:
      windCase.OpenExisting(m_file);
      break;
    case 2:
      windCase.Location(m_file);
      windCase.Save();
      break;
    case 3:
      windCase.BuildingDimensions(nullptr);
      break;
    case 4:
      windCase.DynamicPressure(nullptr);
      break;
    default:
      // A second root object, now and then: it reads and writes the settings.
      if (++m_acts % 8 != 0) break;
      m_kept.clear();
      CreateCurrentCase();
      break;
  }
}

void SetServices(const MemoryFolder& folder) {
  Host().LibraryFolder = [&folder] { return folder.Path(); };
  Host().SystemDirectory = Host().LibraryFolder;
  const auto handle = [] {
    if (running != nullptr) running->Handle();
  };
  Host().MsgBox = [handle](const std::string&, std::int32_t, const std::string&) {
    constexpr std::int32_t yes = 6;
    handle();
    return yes;
  };
  Host().SaveFileDialog = [handle, &folder](clsCommonDialog& dialog) {
    handle();
    dialog.FileName = folder.File("a.wlc");
    return true;
  };
  Host().OpenFileDialog = Host().SaveFileDialog;
  Host().SiteBrowse = [handle](std::string& site) {
    handle();
    site = "RIDGE";
    return true;
  };
  Host().SiteSelect = Host().SiteBrowse;
  Host().SiteEdit = [handle] {
    handle();
    return true;
  };
  Host().DoEvents = handle;
}

}  // namespace

void ObjectModel(std::string_view input) {
  static const MemoryFolder folder;
  static const bool once = (RegisterBuiltInEngines(), true);
  static_cast<void>(once);
  const HostServices before = Host();
  SetServices(folder);
  Driver(folder, input).Run();
  basBS6399_2::CurrentCase.reset();
  Host() = before;
}

}  // namespace orve::fuzz
