#include "BareCase.h"

namespace orve::test {

void SetBareCase(const Late& root) {
  root.Get(L"Initialize_BreApps");
  const Late building = root.Object(L"BuildingDimensions");
  const auto let = [](const Late& object, const wchar_t* name, double value) { object.Put(name, {value}); };
  building.Put(L"OrientationUnknown", {false});
  building.Put(L"ConsiderCantilever", {true});
  let(building, L"Orientation", 90);
  let(building, L"Face1And3_Length", 30);
  let(building, L"Face2And4_Width", 18);
  let(building, L"Roof_Height", 7);
  let(building, L"Roof_Diagonal", 9);
  let(building, L"Wall_SideHeight", 6);
  let(building, L"Wall_SideDiagonal", 8.5);
  let(building, L"Wall_GableHeight", 7);
  let(building, L"Wall_GableDiagonal", 7.5);
  let(building, L"CantileverFace1Or2_Length", 1.5);
  let(building, L"CantileverFace3Or4_Length", 1.2);
  const Late wind = root.Object(L"DynamicPressure");
  let(wind, L"SiteAltitude", 85);
  let(wind, L"BasicWindSpeed", 22.5);
  for (int sector = 0; sector < 12; ++sector) wind.Put(L"FetchesToSea", {sector, 20 + sector});
  wind.Put(L"FetchesInTown", {3, 2});
}

void CheckBareCase(const Late& root, Checks& checks) {
  const Late zones = root.Object(L"ExternalCoefficients");
  checks.Equal(zones.Get(L"Hybrid_ExternalAppliedLoads", {0, 0, 0}).value.Text(), "-1.357 kN/m\u00B2",
               "the load of the first roof zone");
}

}  // namespace orve::test
