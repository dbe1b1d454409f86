// The library with components of an outside party: which class it takes, and how it drives it. The registry's
// entries of the outside classes are this program's.
#include <vector>

#include "BareCase.h"
#include "Checks.h"
#include "LateBound.h"
#include "OutsideComponent.h"

using namespace orve::test;
using orve::com::ComPointer;

namespace {

Checks g_checks;

std::wstring ModulePath(const std::wstring& library) {
  std::wstring path(32768, L'\0');
  path.resize(::GetModuleFileNameW(nullptr, path.data(), static_cast<DWORD>(path.size())));
  return path.substr(0, path.rfind(L'\\') + 1) + library;
}

/// A class name in the registry for as long as it lives.
class Registered {
 public:
  Registered(const wchar_t* className, OutsideClass outside) : m_name(className) {
    wchar_t identity[40];
    ::StringFromGUID2(IdentityOf(outside), identity, 40);
    m_class = std::wstring(L"CLSID\\") + identity;
    Write(m_name + L"\\CLSID", identity);
    Write(m_class + L"\\InprocServer32", ModulePath(L"orve_test_outside.dll"));
  }
  ~Registered() {
    ::RegDeleteTreeW(HKEY_CLASSES_ROOT, m_name.c_str());
    ::RegDeleteTreeW(HKEY_CLASSES_ROOT, m_class.c_str());
  }
  Registered(const Registered&) = delete;
  Registered& operator=(const Registered&) = delete;

 private:
  static void Write(const std::wstring& key, const std::wstring& value) {
    ::RegSetKeyValueW(HKEY_CLASSES_ROOT, key.c_str(), nullptr, REG_SZ, value.c_str(),
                      static_cast<DWORD>((value.size() + 1) * sizeof(wchar_t)));
  }

  std::wstring m_name;
  std::wstring m_class;
};

std::string Calls() {
  using Take = const char* (*)();
  const HMODULE library = ::GetModuleHandleW(L"orve_test_outside.dll");
  if (library == nullptr) return "no outside component";
  return reinterpret_cast<Take>(reinterpret_cast<void*>(::GetProcAddress(library, "TakeCalls")))();
}

Late CreateRoot() {
  ComPointer<IDispatch> root;
  CLSID identity{};
  ::CLSIDFromProgID(L"ORVE3_BS6399_2.clsCurrentCase", &identity);
  g_checks.Equal(::CoCreateInstance(identity, nullptr, CLSCTX_INPROC_SERVER, IID_IDispatch,
                                    reinterpret_cast<void**>(root.Receive())),
                 S_OK, "a root object");
  return Late(root.Get());
}

const wchar_t* WindSpeedNames[] = {L"BVe2XControl4.BVe2X", L"BVe2_2XControl1.BVe2_2X"};
const wchar_t* CoefficientNames[] = {L"BreCp2_2XControl3.BreCp2_2X", L"BreCpX1.BreCpX"};

/// The wind-speed component under its first name, the coefficient component under its second: both are given
/// the data folder.
void FirstAndFallback() {
  const Registered windSpeed(WindSpeedNames[0], OutsideClass::WindSpeed);
  const Registered coefficients(CoefficientNames[1], OutsideClass::Coefficients);
  const Late root = CreateRoot();
  g_checks.Equal(Calls(),
                 "datapath = Text:C:\\windows\\system32\\wzfdata\n"
                 "datapath = Text:C:\\windows\\system32\\wzfdata\n",
                 "the start of both components");
  root.Get(L"Initialize_BreApps");
  g_checks.Equal(Calls(),
                 "AutoWizard = Bool:True\nAutoSite = Bool:True\nTick = Int32:0\nSiteAltWarn = Bool:False\n"
                 "AutoBreadth = Bool:True\nReporting = Int32:0\n",
                 "their presets");
  g_checks.Equal(root.Get(L"OldBreVeVersion").value.Text(), "True", "the wind-speed component's class");
  g_checks.Equal(root.Get(L"OldBreCpVersion").value.Text(), "True", "the coefficient component's class");
  root.Put(L"breDataPath", {"D:\\sites"});
  g_checks.Equal(root.Get(L"breDataPath").value.Text(), "D:\\sites", "the data folder goes to the component");

  SetBareCase(root);
  CheckBareCase(root, g_checks);
  const std::string working = Calls();
  g_checks.True(working.find("setToSea &Int32:3 Single:23\n") != std::string::npos, "a sector's site data");
  g_checks.True(working.find("ZoneIndex = Int16:25\nValid\n") != std::string::npos, "the scan of the zones");
  const Late wind = root.Object(L"DynamicPressure");
  Calls();
  wind.Get(L"DynamicPressure_q", {1, 3});
  const std::string reading = Calls();
  g_checks.Equal(reading.substr(0, 36), "H\nH = Single:6\nA\nA = Single:8.5\nUnit",
                 "the reading of a dynamic pressure begins with the inputs");
  g_checks.True(reading.find("\nInTown &Int32:11\nA\nCalculate\nBSGust &Int32:3\n") != std::string::npos,
                "and ends with the result of a sector");
  root.Object(L"BuildingDimensions").Put(L"RoofType", {4});
  root.Object(L"BuildingDimensions").Put(L"Roof_Pitch", {80});
  const Outcome failed =
      root.Object(L"ExternalCoefficients").Get(L"Hybrid_ExternalCoefficientFactor_Cpe_Suction", {0, 1, 0});
  g_checks.Equal(failed.number, 5L, "the number of a component's error");
  g_checks.True(failed.text.find("Table") != std::string::npos, "and its text: " + failed.text);
  const std::string calls = Calls();
  g_checks.True(calls.find("Theta = Double:89.9\n") != std::string::npos ||
                    calls.find("Theta = Double:270.1\n") != std::string::npos,
                "the wind angle as a 64-bit number: " + calls);
}

/// The other way round: neither is given the data folder.
void FallbackAndFirst() {
  const Registered windSpeed(WindSpeedNames[1], OutsideClass::WindSpeed);
  const Registered coefficients(CoefficientNames[0], OutsideClass::Coefficients);
  const Late root = CreateRoot();
  const std::string calls = Calls();
  g_checks.True(calls.find("datapath") == std::string::npos, "no data folder");
  g_checks.True(calls.find("released\nreleased\n") != std::string::npos, "the former components are let go");
  g_checks.Equal(root.Get(L"OldBreVeVersion").value.Text(), "False", "the wind-speed component's class");
  g_checks.Equal(root.Get(L"OldBreCpVersion").value.Text(), "False", "the coefficient component's class");
}

/// A class that is there but makes no component isn't replaced by the built-in engine.
void Broken() {
  const Registered windSpeed(WindSpeedNames[0], OutsideClass::Broken);
  const Late root = CreateRoot();
  g_checks.Equal(root.Get(L"breDataPath").number, 91L, "no component in place of a broken one");
}

void BuiltIn() {
  const Late root = CreateRoot();
  Calls();
  SetBareCase(root);
  CheckBareCase(root, g_checks);
  g_checks.Equal(Calls(), "", "without outside classes the built-in engines serve");
}

}  // namespace

int main() {
  ::CoInitialize(nullptr);
  FirstAndFallback();
  FallbackAndFirst();
  Broken();
  BuiltIn();
  ::CoUninitialize();
  return g_checks.Close();
}
