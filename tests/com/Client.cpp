// A C++ host of the registered library, by late and by early binding.
#include <cmath>
#include <cstring>
#include <xmmintrin.h>

#include "BareCase.h"
#include "Checks.h"
#include "LateBound.h"
#include "ORVE3_BS6399_2.h"
#include "Sink.h"

using namespace orve::test;
using orve::com::ComPointer;

namespace {

Checks g_checks;

template <class Interface>
ComPointer<Interface> As(IUnknown* object) {
  ComPointer<Interface> result;
  if (object != nullptr)
    object->QueryInterface(__uuidof(Interface), reinterpret_cast<void**>(result.Receive()));
  return result;
}

void LateBinding(const Late& root) {
  const Late wind = root.Object(L"DynamicPressure");
  const Late zones = root.Object(L"ExternalCoefficients");
  const Late loads = root.Object(L"OverallAppliedLoads");

  g_checks.True(
      root.Object(L"BuildingDimensions").Dispatch() == root.Object(L"BuildingDimensions").Dispatch(),
      "an object is the same one at every read");
  g_checks.Equal(zones.Get(L"HYBRID_ZONEDESCRIPTION", {0, 0, 0}).value.Text(), "A", "a name in another case");
  g_checks.Equal(
      zones.Get(L"Hybrid_ZoneDescription", {}, {{L"zoneindex", 2}, {L"BuildingArea", 0}, {L"Face", 0}})
          .value.Text(),
      zones.Get(L"Hybrid_ZoneDescription", {0, 0, 2}).value.Text(), "named arguments in any order");
  zones.Put(L"BuildingArea", {1});
  g_checks.Equal(zones.Get(L"ZoneIndexTo", {Argument(), 0}).value.Text(),
                 zones.Get(L"ZoneIndexTo", {1, 0}).value.Text(), "an argument left out in the middle");
  g_checks.True(zones.Get(L"Hybrid_ZoneDimensionX", {0, 0, 0}).value.Type() == VT_R4, "a result's type");

  wind.Put(L"CrestHeight_Z", {3, 12.5});
  g_checks.Equal(wind.Get(L"CrestHeight_Z", {3}).value.Text(), "12.5", "indexed put and get");
  g_checks.Equal(wind.Put(L"CrestHeight_Z", {3, "x"}).number, 13L, "a text that is no number");
  VARIANT sector;
  long three = 3;
  V_VT(&sector) = VT_BYREF | VT_I4;
  V_I4REF(&sector) = &three;
  Argument byReference;
  *byReference.Get() = sector;
  g_checks.Equal(wind.Get(L"CrestHeight_Z", {byReference}).value.Text(), "12.5", "an index by reference");

  const Outcome nine = loads.Get(L"CantileverZoneDescription", {99});
  g_checks.Equal(nine.result, static_cast<HRESULT>(DISP_E_EXCEPTION), "an error is an exception");
  g_checks.Equal(nine.number, 9L, "its number");
  g_checks.Equal(nine.text, "Subscript out of range: cantilever zone 99, there is none", "its text");
  g_checks.Equal(nine.source, "ORVE3_BS6399_2", "its source");
  g_checks.Equal(loads.Get(L"CantileverZoneDescription").number, 449L, "an argument that must be given");
  g_checks.Equal(loads.Get(L"CantileverZoneDescription", {1, 2}).number, 450L, "one argument too many");
  g_checks.Equal(root.Put(L"LocationCorrect", {true}).number, 438L, "a let of a read-only property");
  g_checks.Equal(root.Get(L"NoSuchMember").result, static_cast<HRESULT>(DISP_E_UNKNOWNNAME),
                 "an unknown name");
  g_checks.Equal(zones.Get(L"ZoneIndexTo", {}, {{L"Sector", 1}}).result,
                 static_cast<HRESULT>(DISP_E_UNKNOWNNAME), "an unknown argument's name");
  Argument date;
  V_VT(date.Get()) = VT_DATE;
  V_DATE(date.Get()) = 46350.43125;
  root.Put(L"Description", {date});
  g_checks.Equal(root.Get(L"Description").value.Text(), "2026-11-24 10:21:00", "a date given to a text");
  g_checks.Equal(root.Get(L"Created").value.Type(), static_cast<VARTYPE>(VT_DATE), "a date's type");

  const Late dimensions = root.Object(L"BuildingDimensions");
  g_checks.Equal(root.PutRef(L"BuildingDimensions", dimensions.Dispatch()).result, S_OK, "an object is set");
  g_checks.Equal(root.Put(L"BuildingDimensions", {zones.Dispatch()}).number, 13L,
                 "an object of another class");
  g_checks.Equal(root.PutRef(L"BuildingDimensions", nullptr).result, S_OK, "no object is set");
  g_checks.True(root.Object(L"BuildingDimensions").Dispatch() == nullptr, "and none is read");
  root.PutRef(L"BuildingDimensions", dimensions.Dispatch());
}

/// The -1 that stands for an argument left out; no member of an enumeration.
template <class Enumeration>
Enumeration LeftOut() {
  const long value = -1;
  Enumeration leftOut;
  static_assert(sizeof leftOut == sizeof value);
  std::memcpy(&leftOut, &value, sizeof value);
  return leftOut;
}

std::string Row(const CantileverZones& row) {
  return Narrow(row.Cantilever_ZoneDescription) + "; " + Narrow(row.Cantilever_ZoneDimensions) + "; " +
         Narrow(row.Cantilever_OverallAppliedLoads);
}

void EarlyBinding(IclsCurrentCase& root) {
  ComPointer<IclsExternalCoefficients> zones;
  ComPointer<IclsOverallAppliedLoads> loads;
  ComPointer<IclsDynamicPressure> wind;
  ComPointer<IclsBuildingDimensions> building;
  root.get_ExternalCoefficients(zones.Receive());
  root.get_OverallAppliedLoads(loads.Receive());
  root.get_DynamicPressure(wind.Receive());
  root.get_BuildingDimensions(building.Receive());

  RoofTypes roof{};
  building->put_RoofType(RoofTypes_Mono_pitched_roof);
  building->get_RoofType(&roof);
  g_checks.True(roof == RoofTypes_Mono_pitched_roof, "an enumeration");
  building->put_RoofType(RoofTypes_Flat_roof_with_sharp_eaves);

  ZoneDimensionsXY size{};
  const auto present = LeftOut<ResultsScreens>();
  g_checks.Equal(zones->get_Hybrid_ZoneDimensionsXY(baRoof, Faces_Face_1, 0, present, &size), S_OK,
                 "a record");
  float length = 0;
  zones->get_Hybrid_ZoneDimensionX(baRoof, Faces_Face_1, 0, present, &length);
  g_checks.True(size.DimensionX == length && length > 0, "a record's fields");

  float steps[] = {5, 5, 5, 1, 2, 3, 2, 4};
  float load = 0;
  loads->ExternalBayLoad(&steps[0], &steps[1], &steps[2], &steps[3], &steps[4], &steps[5], &steps[6],
                         &steps[7], &load);
  g_checks.True(load == 1.6f && steps[0] == 5, "bay loads by reference");
  g_checks.Equal(loads->ExternalBayLoad(nullptr, &steps[1], &steps[2], &steps[3], &steps[4], &steps[5],
                                        &steps[6], &steps[7], &load),
                 static_cast<HRESULT>(0x800A0005), "no address for an argument");
  steps[0] = 0;
  g_checks.Equal(loads->ExternalBayLoad(&steps[0], &steps[1], &steps[2], &steps[3], &steps[4], &steps[5],
                                        &steps[6], &steps[7], &load),
                 static_cast<HRESULT>(steps[6] > 0 ? S_OK : 0x800A000B),
                 "a bay of length 0 ends in the first step");

  BSTR text = nullptr;
  const HRESULT failed = loads->get_CantileverZoneDescription(99, &text);
  g_checks.Equal(failed, static_cast<HRESULT>(0x800A0009), "an error's result code");
  ComPointer<IErrorInfo> information;
  BSTR message = nullptr;
  GUID identity{};
  g_checks.True(::GetErrorInfo(0, information.Receive()) == S_OK, "an error's information");
  if (information) {
    information->GetDescription(&message);
    information->GetGUID(&identity);
  }
  g_checks.Equal(TakeText(message), "Subscript out of range: cantilever zone 99, there is none", "its text");
  g_checks.True(identity == __uuidof(IclsOverallAppliedLoads) && text == nullptr, "its interface");
  g_checks.Equal(loads->get_CantileverZoneDescription(0, nullptr), static_cast<HRESULT>(E_POINTER),
                 "no address for a result");

  float crest = 0;
  wind->put_CrestHeight_Z(WindSectors_Degrees_60, 7.25f);
  wind->get_CrestHeight_Z(WindSectors_Degrees_60, &crest);
  g_checks.True(crest == 7.25f, "indexed put and get");
}

/// The record of wall pressures, and the tables that come from it.
void Records(IclsCurrentCase& root) {
  ComPointer<IclsOverallAppliedLoads> loads;
  root.get_OverallAppliedLoads(loads.Receive());
  SAFEARRAY* none = nullptr;
  loads->GetCantileverZones(&none);
  LONG high = 0;
  ::SafeArrayGetUBound(none, 1, &high);
  g_checks.Equal(high, -1L, "an empty array");
  ::SafeArrayDestroy(none);

  ComPointer<IclsCantileverWindLoads> own;
  g_checks.Equal(
      ::CoCreateInstance(__uuidof(clsCantileverWindLoads), nullptr, CLSCTX_INPROC_SERVER,
                         __uuidof(IclsCantileverWindLoads), reinterpret_cast<void**>(own.Receive())),
      S_OK, "the second class that a host can create");
  ExternalPressure pressures{};
  own->get_ExternalPressures(&pressures);
  g_checks.Equal(Narrow(pressures.Wall4_C_Face_3.Zone_Dimensions), "0", "the record's defaults");
  for (CantileverZone* zone = &pressures.Wall2_Windward; zone <= &pressures.Wall4_C_Face_3; ++zone) {
    ::SysReAllocString(&zone->Zone_Dimensions, L"3.6 m");
    ::SysReAllocString(&zone->Zone_ExternalPressures, L"+0.512 kN/m\u00B2");
  }
  g_checks.Equal(own->put_ExternalPressures(&pressures), S_OK, "a record is let");
  g_checks.Equal(root.putref_CantileverWindloads(own.Get()), S_OK, "the object is set");

  VARIANT_BOOL found = VARIANT_FALSE;
  loads->CantileverValues(baRoof, Faces_Face_1, VARIANT_FALSE, &found);
  g_checks.True(found == VARIANT_TRUE, "cantilever zones are found");
  SAFEARRAY* zones = nullptr;
  loads->GetCantileverZones(&zones);
  CantileverZones* rows = nullptr;
  if (zones != nullptr) ::SafeArrayAccessData(zones, reinterpret_cast<void**>(&rows));
  g_checks.Equal(rows == nullptr ? "" : Row(rows[0]), "A (Cant 2); 1.500 m, 1.400 m; -1.869 kN/m\u00B2",
                 "the first row of an array of records");
  if (zones != nullptr) ::SafeArrayUnaccessData(zones);
  ::SafeArrayDestroy(zones);

  // The record once more by late binding, there as an array of its fields too.
  const Late late(own.Get());
  const Outcome record = late.Get(L"ExternalPressures");
  g_checks.True(record.value.Type() == VT_RECORD && V_RECORDINFO(&record.value.Held()) != nullptr,
                "a record's type");
  const auto* copy = static_cast<const ExternalPressure*>(V_RECORD(&record.value.Held()));
  g_checks.True(copy != nullptr && Narrow(copy->Wall2_Leeward.Zone_Dimensions) == "3.6 m", "a record's copy");
  g_checks.Equal(late.Put(L"ExternalPressures", {Argument::RecordOf(record.value)}).result, S_OK,
                 "a record is let by late binding");
}

/// An enumerator keeps the library loaded by itself.
void Enumerators(IConnectionPointContainer& container, IConnectionPoint& point) {
  ComPointer<IEnumConnectionPoints> points;
  ComPointer<IEnumConnections> sinks;
  ULONG count = 0;
  IConnectionPoint* first = nullptr;
  container.EnumConnectionPoints(points.Receive());
  point.EnumConnections(sinks.Receive());
  g_checks.True(points->Next(1, &first, &count) == S_OK && first == &point, "the connection points");
  first->Release();
  CONNECTDATA data{};
  g_checks.Equal(sinks->Next(1, &data, &count), S_OK, "the sinks");
  data.pUnk->Release();
}

void Events(const Late& root, Sink& sink) {
  ComPointer<IConnectionPointContainer> container = As<IConnectionPointContainer>(root.Dispatch());
  ComPointer<IConnectionPoint> point;
  g_checks.Equal(container->FindConnectionPoint(IID_IDispatch, point.Receive()), CONNECT_E_NOCONNECTION,
                 "a connection point that isn't there");
  container->FindConnectionPoint(__uuidof(IclsCurrentCaseEvents), point.Receive());
  root.Put(L"IsDirty", {true});  // Without a sink.
  DWORD cookie = 0;
  g_checks.Equal(point->Advise(&sink, &cookie), S_OK, "a sink is connected");
  root.Put(L"Description", {"A hall"});
  root.Put(L"Location", {"C:\\x.wlc"});
  root.Put(L"IsDirty", {false});
  g_checks.Equal(sink.Take(), "DirtyUpdated(True) LocationUpdated(C:\\x.wlc) DirtyUpdated(False)",
                 "events in their order");
  sink.FailWith(DISP_E_EXCEPTION);
  const Outcome failed = root.Put(L"IsDirty", {true});
  g_checks.Equal(failed.number, 1234L, "an error of the host's handler comes to the caller");
  g_checks.Equal(failed.text + ", " + failed.source + ", " + failed.help,
                 "The handler fails, The host, host.chm:7", "its text, source and help");
  for (const HRESULT result : {E_FAIL, E_ACCESSDENIED}) {
    sink.FailWith(result);
    g_checks.Equal(root.Put(L"IsDirty", {true}).scode, result, "and any other result");
  }
  for (const HRESULT result : {DISP_E_MEMBERNOTFOUND, E_NOTIMPL}) {
    sink.FailWith(result);
    g_checks.Equal(root.Put(L"IsDirty", {true}).result, S_OK, "a sink without use for an event");
  }
  sink.FailWith(S_OK);
  sink.Take();
  Enumerators(*container.Get(), *point.Get());
  g_checks.Equal(point->Unadvise(cookie), S_OK, "the sink is disconnected");
  g_checks.Equal(sink.Count(), 1ul, "nothing holds the sink");
  root.Put(L"IsDirty", {false});
  g_checks.Equal(sink.Take(), "", "no event behind it");
  point->Advise(&sink, &cookie);
  sink.FailWith(RPC_E_DISCONNECTED);
  root.Put(L"IsDirty", {false});
  g_checks.Equal(sink.Count(), 1ul, "a sink that is gone is let go");
  g_checks.Equal(point->Unadvise(cookie), CONNECT_E_NOCONNECTION, "and isn't connected any more");
  sink.FailWith(S_OK);
}

/// A host that lets floating-point exceptions trap and rounds upwards, with the SSE unit's word.
void StrictHost(const Late& root, Sink& sink) {
  constexpr unsigned strict = (0x1F80 & ~0x0680u) | 0x4000;
  constexpr unsigned inexact = 0x20;  // The client's own.
  const ComPointer<IConnectionPointContainer> container = As<IConnectionPointContainer>(root.Dispatch());
  ComPointer<IConnectionPoint> point;
  container->FindConnectionPoint(__uuidof(IclsCurrentCaseEvents), point.Receive());
  DWORD cookie = 0;
  point->Advise(&sink, &cookie);
  const unsigned before = _mm_getcsr();
  _mm_setcsr(strict);
  const HRESULT empty = root.Object(L"DynamicPressure").Get(L"FetchesToSea", {3}).result;
  SetBareCase(root);
  const Outcome load = root.Object(L"OverallAppliedLoads").Get(L"Hybrid_OverallAppliedLoads", {0, 0, 0});
  const unsigned after = _mm_getcsr();
  _mm_setcsr(before);
  g_checks.Equal(empty, S_OK, "a reading without a height");
  g_checks.Equal(load.result, S_OK, "a load " + load.text);
  g_checks.Equal(after & ~inexact, strict, "the host's floating-point state after the calls");
  g_checks.Equal(sink.FloatState() & ~inexact, strict, "and in its handler");
  point->Unadvise(cookie);
  sink.Take();
}

void Files(const Late& root, const std::string& folder) {
  const std::string file = folder + "\\S\u00FCd\u03A9 hall.wlc";
  const Late building = root.Object(L"BuildingDimensions");
  root.Put(L"Description", {"m\u00B2 \u03A9"});
  building.Put(L"Roof_Height", {7.5});
  root.Put(L"Location", {file});
  g_checks.Equal(root.Get(L"Save").text, "", "a case is saved");
  g_checks.Equal(root.Get(L"Save").text, "", "and saved again over the first file");
  root.Get(L"Clear");
  const Outcome opened = root.Get(L"OpenExisting", {file});
  g_checks.Equal(opened.value.Text() + opened.text, "True", "and opened");
  g_checks.Equal(root.Get(L"Location").value.Text(), file, "under its own name");
  g_checks.Equal(root.Get(L"Description").value.Text(), "m\u00B2 \u03A9", "with its description");
  g_checks.Equal(root.Object(L"BuildingDimensions").Get(L"Roof_Height").value.Text(), "7.5",
                 "and its dimensions");
  g_checks.True(std::abs(V_DATE(&root.Get(L"Modified").value.Held()) -
                         V_DATE(&root.Get(L"Created").value.Held())) < 0.01,
                "dates come back");
  g_checks.Equal(root.Object(L"WindCaseList").Get(L"Count").value.Text(), "1", "the recent list");

  ::SetFileAttributesW(Wide(file).c_str(), FILE_ATTRIBUTE_READONLY);
  root.Put(L"Description", {"another"});
  g_checks.Equal(root.Get(L"Save").number, 70L, "a protected file");
  g_checks.Equal(root.Get(L"IsDirty").value.Text(), "True", "leaves the case unsaved");
  ::SetFileAttributesW(Wide(file).c_str(), FILE_ATTRIBUTE_NORMAL);
  // Another program that reads the file bars its replacing, not its saving.
  const HANDLE reader = ::CreateFileW(Wide(file).c_str(), GENERIC_READ, FILE_SHARE_READ | FILE_SHARE_WRITE,
                                      nullptr, OPEN_EXISTING, 0, nullptr);
  g_checks.Equal(root.Get(L"Save").text, "", "a file that is being read");
  ::CloseHandle(reader);
  root.Put(L"Location", {folder + "\\nowhere\\x.wlc"});
  g_checks.Equal(root.Get(L"Save").number, 76L, "a folder that isn't there");
  WIN32_FIND_DATAW left;
  g_checks.True(::FindFirstFileW(Wide(folder + "\\.orve*").c_str(), &left) == INVALID_HANDLE_VALUE,
                "no temporary file is left");
}

/// A user who answers the next dialog: a button, or a file's name and the button.
class User {
 public:
  User(int button, const std::string& file)
      : m_button(button), m_file(Wide(file)), m_thread(::CreateThread(nullptr, 0, &Run, this, 0, nullptr)) {}
  ~User() {
    ::WaitForSingleObject(m_thread, INFINITE);
    ::CloseHandle(m_thread);
  }
  User(const User&) = delete;
  User& operator=(const User&) = delete;

  /// The dialog's title.
  std::string Seen() {
    ::WaitForSingleObject(m_thread, INFINITE);
    return m_seen;
  }

 private:
  static DWORD WINAPI Run(void* user) {
    static_cast<User*>(user)->Answer();
    return 0;
  }
  void Answer() {
    HWND dialog = nullptr;
    for (int attempt = 0; attempt < 100 && dialog == nullptr; ++attempt) {
      ::Sleep(50);
      dialog = ::FindWindowW(L"#32770", nullptr);
    }
    wchar_t title[200] = L"";
    ::GetWindowTextW(dialog, title, 200);
    m_seen = Narrow(title);
    // The dialogs' field for a name.
    constexpr int fileName = 0x47C;
    if (!m_file.empty())
      ::SendDlgItemMessageW(dialog, fileName, WM_SETTEXT, 0, reinterpret_cast<LPARAM>(m_file.c_str()));
    ::PostMessageW(dialog, WM_COMMAND, static_cast<WPARAM>(m_button), 0);
  }

  int m_button;
  std::wstring m_file;
  std::string m_seen;
  HANDLE m_thread;
};

void Dialogs(const Late& root, const std::string& folder) {
  const std::string file = folder + "\\dialog.wlc";
  root.Get(L"Clear");
  {
    User user(IDOK, file);
    root.Get(L"SaveAs");
    g_checks.Equal(user.Seen(), "Save Wind Load Case As", "the dialog of a new case's name");
  }
  g_checks.Equal(root.Get(L"Location").value.Text(), file, "takes the name");
  root.Put(L"Description", {"unsaved"});
  for (const auto& [button, opened] : {std::pair{IDNO, "False"}, std::pair{IDYES, "True"}}) {
    User user(button, "");
    g_checks.Equal(root.Get(L"OpenExisting", {file}).value.Text(), opened, "the answer to the question");
    g_checks.Equal(user.Seen(), "Open Wind Load Case", "whether unsaved changes may go");
  }
  {
    User user(IDCANCEL, "");
    g_checks.Equal(root.Get(L"Browse").value.Text(), "False", "a Cancel of the dialog");
  }
  wchar_t present[MAX_PATH];
  ::GetCurrentDirectoryW(MAX_PATH, present);
  {
    User user(IDOK, file);
    g_checks.Equal(root.Get(L"Browse").value.Text(), "True", "a file chosen in the dialog");
    user.Seen();
  }
  wchar_t after[MAX_PATH];
  ::GetCurrentDirectoryW(MAX_PATH, after);
  g_checks.Equal(Narrow(after), Narrow(present), "the current folder stays");
}

/// The sinks of a root object that is gone by then.
ComPointer<IEnumConnections> LastEnumerator() {
  ComPointer<IDispatch> root;
  ComPointer<IConnectionPoint> point;
  ComPointer<IEnumConnections> sinks;
  ::CoCreateInstance(__uuidof(clsCurrentCase), nullptr, CLSCTX_INPROC_SERVER, IID_IDispatch,
                     reinterpret_cast<void**>(root.Receive()));
  As<IConnectionPointContainer>(root.Get())
      ->FindConnectionPoint(__uuidof(IclsCurrentCaseEvents), point.Receive());
  point->EnumConnections(sinks.Receive());
  return sinks;
}

ComPointer<IDispatch> CreateRoot() {
  ComPointer<IDispatch> root;
  CLSID identity{};
  g_checks.Equal(::CLSIDFromProgID(L"ORVE3_BS6399_2.clsCurrentCase", &identity), S_OK, "the class's name");
  g_checks.True(identity == __uuidof(clsCurrentCase), "the class's identity");
  g_checks.Equal(::CoCreateInstance(identity, nullptr, CLSCTX_INPROC_SERVER, IID_IDispatch,
                                    reinterpret_cast<void**>(root.Receive())),
                 S_OK, "a root object");
  return root;
}

void TypeInformation(IDispatch* root) {
  ComPointer<ITypeInfo> information;
  BSTR name = nullptr;
  g_checks.Equal(root->GetTypeInfo(0, 0, information.Receive()), S_OK, "type information");
  if (information) information->GetDocumentation(MEMBERID_NIL, &name, nullptr, nullptr, nullptr);
  g_checks.Equal(TakeText(name), "IclsCurrentCase", "the interface's name");
  const ComPointer<IProvideClassInfo2> provider = As<IProvideClassInfo2>(root);
  GUID events{};
  g_checks.True(provider && SUCCEEDED(provider->GetGUID(GUIDKIND_DEFAULT_SOURCE_DISP_IID, &events)) &&
                    events == __uuidof(IclsCurrentCaseEvents),
                "the events' identity");
}

/// Calls from another apartment.
DWORD WINAPI FromAnotherApartment(void*) {
  ::CoInitializeEx(nullptr, COINIT_MULTITHREADED);
  {
    ComPointer<IDispatch> root;
    g_checks.Equal(::CoCreateInstance(__uuidof(clsCurrentCase), nullptr, CLSCTX_INPROC_SERVER, IID_IDispatch,
                                      reinterpret_cast<void**>(root.Receive())),
                   S_OK, "a root object for another apartment");
    if (root) {
      const Late building = Late(root.Get()).Object(L"BuildingDimensions");
      building.Put(L"Roof_Height", {4.5});
      g_checks.Equal(building.Get(L"Roof_Height").value.Text(), "4.5", "calls from another apartment");
      g_checks.Equal(building.Put(L"Roof_Height", {"x"}).number, 13L, "and errors");
    }
  }
  ::CoUninitialize();
  return 0;
}

/// The objects live on this thread, which has to take the other one's calls meanwhile.
void ServeAnotherApartment() {
  const HANDLE thread = ::CreateThread(nullptr, 0, &FromAnotherApartment, nullptr, 0, nullptr);
  while (::MsgWaitForMultipleObjects(1, &thread, FALSE, INFINITE, QS_ALLINPUT) == WAIT_OBJECT_0 + 1) {
    MSG message;
    while (::PeekMessageW(&message, nullptr, 0, 0, PM_REMOVE)) ::DispatchMessageW(&message);
  }
  ::CloseHandle(thread);
}

}  // namespace

int main(int count, char** arguments) {
  const std::string folder = count > 1 ? arguments[1] : ".";
  ::CoInitialize(nullptr);
  {
    Sink sink;
    ComPointer<IDispatch> root = CreateRoot();
    if (!root) return g_checks.Close();
    const Late late(root.Get());
    root = ComPointer<IDispatch>();
    TypeInformation(late.Dispatch());
    StrictHost(late, sink);
    Events(late, sink);
    SetBareCase(late);
    CheckBareCase(late, g_checks);
    LateBinding(late);
    const ComPointer<IclsCurrentCase> early = As<IclsCurrentCase>(late.Dispatch());
    EarlyBinding(*early.Get());
    Records(*early.Get());
    Files(late, folder);
    Dialogs(late, folder);
  }
  // What the library holds by itself doesn't keep it loaded.
  const HMODULE library = ::GetModuleHandleW(L"ORVE3_BS6399_2.dll");
  using CanUnload = HRESULT(STDAPICALLTYPE*)();
  const auto canUnload =
      reinterpret_cast<CanUnload>(reinterpret_cast<void*>(::GetProcAddress(library, "DllCanUnloadNow")));
  {
    const ComPointer<IEnumConnections> sinks = LastEnumerator();
    g_checks.True(canUnload != nullptr && canUnload() == S_FALSE, "an enumerator keeps the library loaded");
  }
  g_checks.True(canUnload != nullptr && canUnload() == S_OK,
                "with its objects gone the library can be unloaded");
  ServeAnotherApartment();
  ::CoUninitialize();
  return g_checks.Close();
}
