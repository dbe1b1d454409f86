#include "scene_roofs.h"

#include <algorithm>
#include <cstdint>
#include <orve3_bs6399_2.h>
#include <set>
#include <string>

#include "figure_sources.h"
#include "portal_building.h"
#include "text_table.h"

namespace examples {

using namespace orve;

namespace {

constexpr auto Roof = BuildingAreas::baRoof;

// The shape property that belongs to the roof; those of the other roofs are kept and not read.
std::string DescribeRoof(clsBuildingDimensions& building, RoofTypes type) {
  building.RoofType(type);
  switch (type) {
    case RoofTypes::Flat_roof_with_sharp_eaves:
      return "";
    case RoofTypes::Flat_roof_with_parapets:
      building.Roof_ParapetHeight(0.7f);
      return "parapet 0.7 m";
    case RoofTypes::Flat_roof_with_curved_eaves:
      building.Roof_EavesRadius(1.2f);
      return "radius 1.2 m";
    case RoofTypes::Flat_roof_with_mansard_eaves:
      building.Roof_MansardSlope(40);
      return "slope 40 degrees";
    case RoofTypes::Curved_roof:
      building.Roof_RiseHeight(1.8f);
      return "rise 1.8 m";
    default:
      building.Roof_Pitch(12);
      return "pitch 12 degrees";
  }
}

struct RoofLoads {
  float pressure = 0;
  float suction = 0;
  std::set<std::string> zones;
  std::set<std::string> standards;
  std::vector<SourceRecord> sources;
};

RoofLoads ReadRoof(const clsCurrentCase& windCase) {
  const auto loads = windCase.OverallAppliedLoads();
  RoofLoads roof;
  for (int i = 0; i < 4; ++i) {
    const auto face = Faces(i);
    for (std::int16_t zone = 0; zone <= loads->ZoneIndexTo(Roof, face); ++zone) {
      roof.zones.insert(loads->Hybrid_ZoneDescription(Roof, face, zone));
      roof.pressure = std::max(roof.pressure, loads->Hybrid_OverallAppliedLoad_Pressure(Roof, face, zone));
      roof.suction = std::min(roof.suction, loads->Hybrid_OverallAppliedLoad_Suction(Roof, face, zone));
      for (const SourceRecord& source : CoefficientSourcesOf(windCase, Roof, face, zone)) {
        roof.standards.insert(source.standard);
        roof.sources.push_back(source);
      }
    }
  }
  return roof;
}

std::string Joined(const std::set<std::string>& texts) {
  std::string joined;
  for (const std::string& text : texts) joined += (joined.empty() ? "" : ", ") + text;
  return joined;
}

}  // namespace

void PrintRoofScene(clsCurrentCase& windCase, std::ostream& out) {
  windCase.Clear();
  DescribePortalBuilding(windCase);
  DescribeSite(windCase);

  PrintHeading(out, "The same building under every roof");
  TextTable table({"Roof", "Shape", "Zones", "Pressure", "Suction", "Cpe from", "Cpe is"}, 3);
  table.Add({"", "", "", "kN/m\u00B2", "kN/m\u00B2", "", "at worst"});
  for (int type = 0; type < 8; ++type) {
    const std::string shape = DescribeRoof(*windCase.BuildingDimensions(), RoofTypes(type));
    const RoofLoads roof = ReadRoof(windCase);
    table.Add({std::string(PublishedText(RoofTypes(type))), shape, Joined(roof.zones),
               "+" + Number(roof.pressure, 3), Number(roof.suction, 3), Joined(roof.standards),
               WeakestStatus(roof.sources)});
  }
  table.Print(out);
  out << "\n  A coefficient of a substitute table isn't a figure of BS 6399-2: see docs/validation.md.\n";
}

}  // namespace examples
