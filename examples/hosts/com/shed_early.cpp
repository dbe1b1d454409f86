// A shed driven by early binding, with the header made of the interface description.
#include <cstdio>
#include <cstdlib>
#include <windows.h>

#include "ORVE3_BS6399_2.h"

namespace {

/// Stops the host where a call fails, with the text that the library left.
void Check(HRESULT result) {
  if (SUCCEEDED(result)) return;
  IErrorInfo* information = nullptr;
  BSTR text = nullptr;
  if (GetErrorInfo(0, &information) == S_OK) information->GetDescription(&text);
  std::fprintf(stderr, "Error %ld: %ls\n", result & 0xFFFF, text == nullptr ? L"" : text);
  std::exit(1);
}

void Describe(IclsCurrentCase* windCase) {
  IclsBuildingDimensions* building = nullptr;
  IclsDynamicPressure* site = nullptr;
  IclsInternalCoefficients* internal = nullptr;
  Check(windCase->get_BuildingDimensions(&building));
  Check(windCase->get_DynamicPressure(&site));
  Check(windCase->get_InternalCoefficients(&internal));
  Check(building->put_OrientationUnknown(VARIANT_FALSE));
  Check(building->put_Orientation(90));
  Check(building->put_Face1And3_Length(24));
  Check(building->put_Face2And4_Width(12));
  Check(building->put_Roof_Height(5.5f));
  Check(building->put_Roof_Diagonal(8));
  Check(building->put_Wall_SideHeight(5));
  Check(building->put_Wall_SideDiagonal(7));
  Check(building->put_Wall_GableHeight(5.5f));
  Check(building->put_Wall_GableDiagonal(7.5f));
  Check(site->put_SiteAltitude(40));
  Check(site->put_BasicWindSpeed(22));
  for (int sector = WindSectors_Degrees_0; sector <= WindSectors_Degrees_330; ++sector)
    Check(site->put_FetchesToSea(static_cast<WindSectors>(sector), 30));
  Check(internal->put_InternalVolume(24 * 12 * 5));
  Check(internal->put_EnclosedBuilding_GeneralCase(VARIANT_TRUE));
  internal->Release();
  site->Release();
  building->Release();
}

void PrintFace(IclsOverallAppliedLoads* loads, Faces face) {
  SHORT last = -1;
  Check(loads->get_ZoneIndexTo(baRoof, face, &last));
  for (SHORT zone = 0; zone <= last; ++zone) {
    BSTR name = nullptr;
    BSTR load = nullptr;
    Check(loads->get_Hybrid_ZoneDescription(baRoof, face, zone, &name));
    Check(loads->get_Hybrid_OverallAppliedLoads(baRoof, face, zone, &load));
    *wcsstr(load, L" kN") = L'\0';
    std::printf("Face %d, %ls: %ls\n", face + 1, name, load);
    SysFreeString(load);
    SysFreeString(name);
  }
}

}  // namespace

int main() {
  CoInitialize(nullptr);
  IclsCurrentCase* windCase = nullptr;
  IclsOverallAppliedLoads* loads = nullptr;
  Check(CoCreateInstance(__uuidof(clsCurrentCase), nullptr, CLSCTX_INPROC_SERVER, __uuidof(IclsCurrentCase),
                         reinterpret_cast<void**>(&windCase)));
  Check(windCase->Initialize_BreApps());
  Describe(windCase);
  Check(windCase->get_OverallAppliedLoads(&loads));
  for (int face = Faces_Face_1; face <= Faces_Face_4; ++face) PrintFace(loads, static_cast<Faces>(face));
  loads->Release();
  windCase->Release();
  CoUninitialize();
}
