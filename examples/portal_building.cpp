#include "portal_building.h"

#include <array>
#include <orve3_bs6399_2.h>

namespace examples {

using namespace orve;

void DescribePortalBuilding(clsCurrentCase& windCase) {
  windCase.Description("Portal building, 30 m by 15 m");

  const auto building = windCase.BuildingDimensions();
  building->OrientationUnknown(false);
  building->Orientation(20);
  building->RoofType(RoofTypes::Duo_pitched_roof);
  building->Face1And3_Length(30);
  building->Face2And4_Width(15);
  building->ConsiderRoof(true);
  building->ConsiderWalls(true);
  building->ConsiderParapet(true);
  building->Roof_Pitch(6);
  building->Roof_Height(6.8f);
  building->Roof_Diagonal(16.2f);
  building->Wall_SideHeight(6);
  building->Wall_SideDiagonal(8.5f);
  building->Wall_GableHeight(6.8f);
  building->Wall_GableDiagonal(16.5f);
  building->Wall_GapFace1(9);
  building->Parapet_Height(1);
  building->Parapet_HeightFromFFL_m(7);
  building->Parapet_SideDiagonal(30);
  building->Parapet_GableDiagonal(15);
  building->Parapet_SideReturnCorner(true);

  const auto internal = windCase.InternalCoefficients();
  internal->InternalVolume(2880);
  internal->WindPressureType(WindPressureTypes::wptRoof);
  internal->EnclosedBuilding_GeneralCase(true);
}

void DescribeSite(clsCurrentCase& windCase) {
  struct Sector {
    float toSea;                // km
    float inTown;               // km
    float obstructionsHeight;   // m
    float obstructionsSpacing;  // m
  };
  static constexpr std::array<Sector, 12> sectors = {{{120, 2.5f, 4, 12},
                                                      {100, 3, 4, 12},
                                                      {80, 3, 4, 12},
                                                      {40, 1.5f, 4, 18},
                                                      {12, 0, 0, 0},
                                                      {6, 0, 0, 0},
                                                      {4, 0, 0, 0},
                                                      {3.5f, 0, 0, 0},
                                                      {5, 0, 0, 0},
                                                      {15, 0, 0, 0},
                                                      {60, 0, 0, 0},
                                                      {110, 1, 4, 18}}};

  const auto site = windCase.DynamicPressure();
  site->Method(Methods::Hybrid);
  site->SaBasedOn(SaBasedOnTypes::Altitude);
  site->SiteAltitude(65);
  site->BasicWindSpeed(22.5f);
  for (int i = 0; i < 12; ++i) {
    const auto sector = WindSectors(i);
    site->FetchesToSea(sector, sectors[i].toSea);
    site->FetchesInTown(sector, sectors[i].inTown);
    site->ObstructionHeight_Ho(sector, sectors[i].obstructionsHeight);
    site->ObstructionSpacing_Xo(sector, sectors[i].obstructionsSpacing);
  }
}

}  // namespace examples
