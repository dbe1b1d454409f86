#include <orve3_bs6399_2.h>
#include <string>

#include "sheets.h"
#include "text_table.h"

namespace examples {

using namespace orve;

namespace {

struct AreaOfWind {
  WindAreas area;
  const char* name;
};

constexpr AreaOfWind areas[] = {{WindAreas::waRoof, "Roof"},
                                {WindAreas::waSidewall, "Side walls"},
                                {WindAreas::waGable, "Gables"},
                                {WindAreas::waSidewallParapet, "Parapet of the side walls"},
                                {WindAreas::waGableParapet, "Parapet of the gables"}};

void PrintArea(std::ostream& out, clsDynamicPressure& wind, const AreaOfWind& area) {
  PrintHeading(out, std::string("Wind by sector: ") + area.name);
  TextTable table({"Sector", "Sd", "Sa", "He", "Sc", "St", "Tc", "Tt", "Sb", "Vs", "Ve", "q", "Ca"});
  table.Add({"degrees", "", "", "m", "", "", "", "", "", "m/s", "m/s", "kN/m\u00B2", ""});
  for (int i = 0; i < 12; ++i) {
    const auto sector = WindSectors(i);
    table.Add({std::to_string(30 * i), Number(wind.DirectionFactor_Sd(area.area, sector), 2),
               Number(wind.AltitudeFactor_Sa(area.area, sector), 3),
               Number(wind.EffectiveHeight_He(area.area, sector), 2),
               Number(wind.FetchFactor_Sc(area.area, sector), 3),
               Number(wind.TurbulenceFactor_St(area.area, sector), 3),
               Number(wind.FetchAdjustmentFactor_Tc(area.area, sector), 3),
               Number(wind.TurbulenceAdjustmentFactor_Tt(area.area, sector), 3),
               Number(wind.TerrainAndBuildingFactor_Sb(area.area, sector), 3),
               Number(wind.SiteWindSpeed_Vs(area.area, sector), 2),
               Number(wind.EffectiveWindSpeed_Ve(area.area, sector), 2),
               Number(wind.DynamicPressure_q(area.area, sector), 3),
               Number(wind.SizeEffectFactor_Ca(area.area, sector), 3)});
  }
  table.Print(out);
}

}  // namespace

void PrintSectors(std::ostream& out, const clsCurrentCase& windCase) {
  for (const AreaOfWind& area : areas) PrintArea(out, *windCase.DynamicPressure(), area);
}

}  // namespace examples
