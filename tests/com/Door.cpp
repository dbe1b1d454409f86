// The case scripts of tests/doors through COM: calls by name, values as a host would write them. The program
// carries the library's objects itself, because the scripts set what the host answers.
#include <algorithm>
#include <filesystem>

#include "Checks.h"
#include "LateBound.h"
#include "ORVE3_BS6399_2.h"
#include "Script.h"
#include "Sink.h"
#include "common/Host.h"
#include "common/NumberText.h"
#include "storage/clsCommonDialog.h"

STDAPI DllGetClassObject(REFCLSID classIdentity, REFIID identity, void** result);

namespace orve::test {
namespace {

using com::ComPointer;

Late Create(const CLSID& identity) {
  ComPointer<IClassFactory> factory;
  ComPointer<IDispatch> object;
  ::DllGetClassObject(identity, IID_IClassFactory, reinterpret_cast<void**>(factory.Receive()));
  factory->CreateInstance(nullptr, IID_IDispatch, reinterpret_cast<void**>(object.Receive()));
  return Late(object.Get());
}

/// A text of the script as a host would write the value.
Argument Literal(const std::string& text) {
  if (text == "-") return Argument();
  if (text == "True" || text == "False") return Argument(text == "True");
  if (!IsNumericText(text)) return Argument(text);
  const double number = TextToDouble(text);
  const bool whole =
      text.find_first_of(".eE") == std::string::npos && number >= -2147483648.0 && number <= 2147483647.0;
  return whole ? Argument(static_cast<long>(number)) : Argument(number);
}

/// The texts of a record that holds texts, or records of texts, alone.
std::string RecordText(IRecordInfo* information, const void* record) {
  const auto* texts = static_cast<const BSTR*>(record);
  ULONG size = 0;
  information->GetSize(&size);
  BSTR name = nullptr;
  information->GetName(&name);
  const bool nested = TakeText(name) == "ExternalPressure";
  std::string text = "{";
  for (std::size_t i = 0; i < size / sizeof(BSTR); ++i) {
    const bool opens = nested && i >= 5 && i % 2 == 1;
    const bool closes = nested && i >= 5 && i % 2 == 0;
    text += std::string(i == 0 ? "" : "; ") + (opens ? "{" : "") + Narrow(texts[i]) + (closes ? "}" : "");
  }
  return text + "}";
}

std::string ArrayText(SAFEARRAY* array) {
  ComPointer<IRecordInfo> information;
  ::SafeArrayGetRecordInfo(array, information.Receive());
  ULONG size = 0;
  information->GetSize(&size);
  const char* rows = nullptr;
  LONG high = -1;
  ::SafeArrayGetUBound(array, 1, &high);
  ::SafeArrayAccessData(array, const_cast<void**>(reinterpret_cast<const void**>(&rows)));
  std::string text = "[";
  for (LONG i = 0; i <= high; ++i)
    text += (i == 0 ? "" : ", ") + RecordText(information.Get(), rows + static_cast<ULONG>(i) * size);
  ::SafeArrayUnaccessData(array);
  return text + "]";
}

/// A result as the scripts write it.
std::string ResultText(const Argument& result) {
  const VARIANT& held = result.Held();
  switch (result.Type()) {
    case VT_EMPTY:
      return {};
    case VT_BOOL:
      return V_BOOL(&held) ? "True" : "False";
    case VT_R4:
      return ShortestText(V_R4(&held));
    case VT_DATE:
      return ShortestText(V_DATE(&held));
    case VT_RECORD: {
      if (V_RECORDINFO(&held) == nullptr) return "?";
      ULONG size = 0;
      V_RECORDINFO(&held)->GetSize(&size);
      const auto* lengths = static_cast<const float*>(V_RECORD(&held));
      if (size != sizeof(ZoneDimensionsXY)) return RecordText(V_RECORDINFO(&held), V_RECORD(&held));
      return "{" + ShortestText(lengths[0]) + "; " + ShortestText(lengths[1]) + "}";
    }
    case VT_ARRAY | VT_RECORD:
      return ArrayText(V_ARRAY(&held));
    case VT_DISPATCH: {
      ComPointer<ITypeInfo> information;
      BSTR name = nullptr;
      V_DISPATCH(&held)->GetTypeInfo(0, 0, information.Receive());
      information->GetDocumentation(MEMBERID_NIL, &name, nullptr, nullptr, nullptr);
      return TakeText(name).substr(1);
    }
    default:
      return result.Text();
  }
}

class ScriptRun {
 public:
  explicit ScriptRun(const std::string& folder) : m_folder(folder) {
    Create(__uuidof(clsCantileverWindLoads));  // The library takes its own services up before the tests'.
    Host().LibraryFolder = [this] { return m_folder; };
    Host().SystemDirectory = Host().LibraryFolder;
    for (const char* service :
         {"MsgBox", "Now", "OpenFileDialog", "SaveFileDialog", "SiteBrowse", "SiteSelect"})
      SetService(service, "");
    m_root = Create(__uuidof(clsCurrentCase));
    ComPointer<IConnectionPointContainer> container;
    m_root.Dispatch()->QueryInterface(IID_IConnectionPointContainer,
                                      reinterpret_cast<void**>(container.Receive()));
    container->FindConnectionPoint(__uuidof(IclsCurrentCaseEvents), m_point.Receive());
    m_point->Advise(&m_sink, &m_cookie);
  }
  ~ScriptRun() { m_point->Unadvise(m_cookie); }
  ScriptRun(const ScriptRun&) = delete;
  ScriptRun& operator=(const ScriptRun&) = delete;

  std::string Run(const ScriptLine& line) {
    if (line.Field(0) == "events") return Portable(m_sink.Take());
    if (line.Field(0) == "host") {
      SetService(line.Field(1), Replaced(line.Field(2), "$FOLDER", m_folder));
      return {};
    }
    const Outcome outcome = Call(line);
    if (outcome.result == DISP_E_EXCEPTION)
      return Portable("! " + std::to_string(outcome.number) + " " + outcome.text);
    if (FAILED(outcome.result)) return "! result " + std::to_string(outcome.result);
    return line.Field(0) == "let" ? std::string() : Portable(ResultText(outcome.value));
  }

 private:
  std::string Portable(const std::string& text) const {
    std::string upper = m_folder;
    std::transform(upper.begin(), upper.end(), upper.begin(), [](char letter) {
      return letter >= 'a' && letter <= 'z' ? static_cast<char>(letter - 32) : letter;
    });
    return Replaced(Replaced(text, m_folder, "$FOLDER"), upper, "$UPPER");
  }

  Late Object(const std::string& className) const {
    if (className == "clsCurrentCase") return m_root;
    return m_root.Object(Wide(className.substr(3)).c_str());
  }

  Argument ArgumentOf(const std::string& member, const std::string& text) const {
    if (text.rfind("cls", 0) == 0) return Argument(Object(text).Dispatch());
    if (member == "Description" || member == "GridReference") return Argument(text);
    return Literal(Replaced(text, "$FOLDER", m_folder));
  }

  /// Fills the record of wall pressures in out of its two texts.
  static void FillPressures(const Outcome& present, const std::vector<std::string>& texts) {
    auto* fields = static_cast<BSTR*>(V_RECORD(&present.value.Held()));
    for (std::size_t i = 0; i < sizeof(ExternalPressure) / sizeof(BSTR); ++i)
      ::SysReAllocString(&fields[i], Wide(texts.at(i >= 5 && i % 2 == 1 ? 1 : 0)).c_str());
  }

  Outcome Call(const ScriptLine& line) const {
    const Late object = Object(line.Field(1));
    const std::string member = line.Field(2);
    const bool isLet = line.Field(0) == "let";
    std::vector<Argument> arguments;
    if (isLet && member == "ExternalPressures") {
      const Outcome present = object.Get(L"ExternalPressures");
      FillPressures(present, line.Arguments());
      return object.Put(L"ExternalPressures", {Argument::RecordOf(present.value)});
    }
    for (const std::string& text : line.Arguments()) arguments.push_back(ArgumentOf(member, text));
    const WORD let = !arguments.empty() && arguments.back().Type() == VT_DISPATCH ? DISPATCH_PROPERTYPUTREF
                                                                                  : DISPATCH_PROPERTYPUT;
    return object.Call(Wide(member).c_str(), isLet ? let : DISPATCH_METHOD | DISPATCH_PROPERTYGET, arguments,
                       {});
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
        return answer.empty() ? 7 : TextToInt32(answer);
      };
    if (service == "Now") Host().Now = [answer] { return answer.empty() ? 46000.5 : TextToDouble(answer); };
    if (service == "OpenFileDialog") Host().OpenFileDialog = choose;
    if (service == "SaveFileDialog") Host().SaveFileDialog = choose;
    if (service == "SiteBrowse") Host().SiteBrowse = site;
    if (service == "SiteSelect") Host().SiteSelect = site;
    if (service == "SiteEdit") Host().SiteEdit = [answer] { return !answer.empty(); };
  }

  std::string m_folder;
  Late m_root{nullptr};
  ComPointer<IConnectionPoint> m_point;
  DWORD m_cookie = 0;
  Sink m_sink;
};

void RunScript(const std::filesystem::path& script, const std::filesystem::path& folder, Checks& checks) {
  std::filesystem::remove_all(folder);
  std::filesystem::create_directories(folder);
  ScriptRun run(folder.string());
  for (const ScriptLine& line : ReadScript(script)) {
    const std::string expected = line.Field(line.Field(0) == "events" ? 1 : 4);
    checks.Equal(run.Run(line), expected, script.filename().string() + ":" + std::to_string(line.number));
  }
}

}  // namespace
}  // namespace orve::test

int main(int count, char** arguments) {
  using namespace orve::test;
  Checks checks;
  ::CoInitialize(nullptr);
  if (count == 3)
    for (const auto& entry : std::filesystem::directory_iterator(arguments[1]))
      RunScript(entry.path(), std::filesystem::path(arguments[2]) / entry.path().stem(), checks);
  ::CoUninitialize();
  return checks.Close();
}
