#include <cstdint>
#include <orve3_bs6399_2.h>
#include <string>

#include "figure_sources.h"
#include "sheets.h"
#include "text_table.h"

namespace examples {

using namespace orve;

namespace {

constexpr BuildingAreas areas[] = {BuildingAreas::baRoof, BuildingAreas::baWalls, BuildingAreas::baParapet};

std::string AreaName(BuildingAreas area) {
  return area == BuildingAreas::baRoof ? "Roof" : area == BuildingAreas::baWalls ? "Walls" : "Parapet";
}

// The unit stands at the head of the column.
std::string WithoutUnit(std::string loads) {
  const auto unit = loads.find(" kN");
  if (unit != std::string::npos) loads.erase(unit);
  return loads;
}

void PrintFace(std::ostream& out, const clsCurrentCase& windCase, BuildingAreas area, Faces face) {
  const auto external = windCase.ExternalCoefficients();
  const auto loads = windCase.OverallAppliedLoads();

  TextTable table(
      {"Zone", "Size", "Wind on", "Cpe +", "Cpe -", "q", "Ca", "External", "Internal", "Overall", "Cpe is"},
      3);
  table.Add({"", "", "face", "", "", "kN/m\u00B2", "", "kN/m\u00B2", "kN/m\u00B2", "kN/m\u00B2", ""});
  const std::int16_t last = loads->ZoneIndexTo(area, face);
  for (std::int16_t zone = loads->ZoneIndexFrom(area, face); zone <= last; ++zone)
    table.Add({loads->Hybrid_ZoneDescription(area, face, zone),
               loads->Hybrid_ZoneDimensions(area, face, zone),
               std::to_string(external->Hybrid_WindFromFace(area, face, zone) + 1),
               Number(external->Hybrid_ExternalCoefficientFactor_Cpe_Pressure(area, face, zone), 3),
               Number(external->Hybrid_ExternalCoefficientFactor_Cpe_Suction(area, face, zone), 3),
               Number(external->Hybrid_WorstCase_DynamicPressure_q(area, face, zone), 3),
               Number(external->Hybrid_WorstCase_SizeEffectFactor_Ca(area, face, zone), 3),
               WithoutUnit(loads->Hybrid_ExternalAppliedLoads(area, face, zone)),
               WithoutUnit(loads->Hybrid_InternalAppliedLoads(area, face, zone)),
               WithoutUnit(loads->Hybrid_OverallAppliedLoads(area, face, zone)),
               WeakestStatus(CoefficientSourcesOf(windCase, area, face, zone))});
  PrintHeading(out, AreaName(area) + ", face " + std::to_string(static_cast<int>(face) + 1));
  table.Print(out);
}

struct Governing {
  float load = 0;
  std::string where = "none";
};

void Keep(Governing& best, float load, bool greater, const std::string& where) {
  if (greater ? load > best.load : load < best.load) best = {load, where};
}

}  // namespace

void PrintZones(std::ostream& out, const clsCurrentCase& windCase) {
  for (const BuildingAreas area : areas)
    for (int face = 0; face < 4; ++face) PrintFace(out, windCase, area, Faces(face));
}

void PrintGoverningLoads(std::ostream& out, const clsCurrentCase& windCase) {
  const auto loads = windCase.OverallAppliedLoads();
  PrintHeading(out, "Governing overall loads");
  TextTable table({"Area", "", "kN/m\u00B2", "Zone"}, 4);
  for (const BuildingAreas area : areas) {
    Governing pressure;
    Governing suction;
    for (int i = 0; i < 4; ++i) {
      const auto face = Faces(i);
      const std::int16_t last = loads->ZoneIndexTo(area, face);
      for (std::int16_t zone = loads->ZoneIndexFrom(area, face); zone <= last; ++zone) {
        // A length below 0: the surface is too small for the zone.
        const bool absent = loads->Hybrid_ZoneDimensions(area, face, zone).find('-') != std::string::npos;
        const std::string where = "face " + std::to_string(i + 1) + ", " +
                                  loads->Hybrid_ZoneDescription(area, face, zone) +
                                  (absent ? " (absent)" : "");
        Keep(pressure, loads->Hybrid_OverallAppliedLoad_Pressure(area, face, zone), true, where);
        Keep(suction, loads->Hybrid_OverallAppliedLoad_Suction(area, face, zone), false, where);
      }
    }
    table.Add({AreaName(area), "pressure", "+" + Number(pressure.load, 3), pressure.where});
    table.Add({"", "suction", Number(suction.load, 3), suction.where});
  }
  table.Print(out);
}

}  // namespace examples
