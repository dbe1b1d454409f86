// A shed driven by late binding: members by name, no header of the library.
#include <cstdio>
#include <cstdlib>
#include <utility>
#include <vector>
#include <windows.h>

namespace {

VARIANT Number(double value) {
  VARIANT variant;
  VariantInit(&variant);
  V_VT(&variant) = VT_R8;
  V_R8(&variant) = value;
  return variant;
}

VARIANT Run(IDispatch* object, const wchar_t* name, WORD flags, std::vector<VARIANT> arguments) {
  // The arguments go from the last to the first.
  for (std::size_t i = 0; i < arguments.size() / 2; ++i)
    std::swap(arguments[i], arguments[arguments.size() - 1 - i]);
  DISPID number = 0;
  DISPID newValue = DISPID_PROPERTYPUT;
  const bool isPut = flags == DISPATCH_PROPERTYPUT;
  DISPPARAMS parameters{arguments.data(), isPut ? &newValue : nullptr, static_cast<UINT>(arguments.size()),
                        isPut ? 1u : 0u};
  auto* names = const_cast<wchar_t*>(name);
  VARIANT result;
  VariantInit(&result);
  EXCEPINFO exception{};
  if (FAILED(object->GetIDsOfNames(IID_NULL, &names, 1, LOCALE_NEUTRAL, &number)) ||
      FAILED(object->Invoke(number, IID_NULL, LOCALE_NEUTRAL, flags, &parameters, &result, &exception,
                            nullptr))) {
    std::fprintf(stderr, "%ls: error %ld: %ls\n", name, exception.scode & 0xFFFF,
                 exception.bstrDescription == nullptr ? L"" : exception.bstrDescription);
    std::exit(1);
  }
  return result;
}

/// A property's value, or what a method gives.
VARIANT Get(IDispatch* object, const wchar_t* name, std::vector<VARIANT> arguments = {}) {
  return Run(object, name, DISPATCH_METHOD | DISPATCH_PROPERTYGET, std::move(arguments));
}

/// The value comes behind the index arguments.
void Put(IDispatch* object, const wchar_t* name, std::vector<VARIANT> arguments) {
  Run(object, name, DISPATCH_PROPERTYPUT, std::move(arguments));
}

IDispatch* Object(IDispatch* object, const wchar_t* name) {
  const VARIANT found = Get(object, name);
  return V_DISPATCH(&found);
}

void Describe(IDispatch* windCase) {
  IDispatch* building = Object(windCase, L"BuildingDimensions");
  IDispatch* site = Object(windCase, L"DynamicPressure");
  IDispatch* internal = Object(windCase, L"InternalCoefficients");
  Put(building, L"OrientationUnknown", {Number(0)});
  Put(building, L"Orientation", {Number(90)});
  Put(building, L"Face1And3_Length", {Number(24)});
  Put(building, L"Face2And4_Width", {Number(12)});
  Put(building, L"Roof_Height", {Number(5.5)});
  Put(building, L"Roof_Diagonal", {Number(8)});
  Put(building, L"Wall_SideHeight", {Number(5)});
  Put(building, L"Wall_SideDiagonal", {Number(7)});
  Put(building, L"Wall_GableHeight", {Number(5.5)});
  Put(building, L"Wall_GableDiagonal", {Number(7.5)});
  Put(site, L"SiteAltitude", {Number(40)});
  Put(site, L"BasicWindSpeed", {Number(22)});
  for (int sector = 0; sector < 12; ++sector) Put(site, L"FetchesToSea", {Number(sector), Number(30)});
  Put(internal, L"InternalVolume", {Number(24 * 12 * 5)});
  Put(internal, L"EnclosedBuilding_GeneralCase", {Number(1)});
  internal->Release();
  site->Release();
  building->Release();
}

void PrintFace(IDispatch* loads, int face) {
  const VARIANT last = Get(loads, L"ZoneIndexTo", {Number(0), Number(face)});
  for (int zone = 0; zone <= V_I2(&last); ++zone) {
    VARIANT name = Get(loads, L"Hybrid_ZoneDescription", {Number(0), Number(face), Number(zone)});
    VARIANT load = Get(loads, L"Hybrid_OverallAppliedLoads", {Number(0), Number(face), Number(zone)});
    *wcsstr(V_BSTR(&load), L" kN") = L'\0';
    std::printf("Face %d, %ls: %ls\n", face + 1, V_BSTR(&name), V_BSTR(&load));
    VariantClear(&load);
    VariantClear(&name);
  }
}

}  // namespace

int main() {
  CoInitialize(nullptr);
  CLSID identity{};
  IDispatch* windCase = nullptr;
  if (FAILED(CLSIDFromProgID(L"ORVE3_BS6399_2.clsCurrentCase", &identity)) ||
      FAILED(CoCreateInstance(identity, nullptr, CLSCTX_INPROC_SERVER, IID_IDispatch,
                              reinterpret_cast<void**>(&windCase)))) {
    std::fprintf(stderr, "The library isn't registered\n");
    return 1;
  }
  Get(windCase, L"Initialize_BreApps");
  Describe(windCase);
  IDispatch* loads = Object(windCase, L"OverallAppliedLoads");
  for (int face = 0; face < 4; ++face) PrintFace(loads, face);
  loads->Release();
  windCase->Release();
  CoUninitialize();
}
