// The site by sector, and the factors, q and Ca of each wind area.
#include <orve3_bs6399_2.h>

#include "Content.h"
#include "common/NumberText.h"

namespace orve::sheet {

namespace {

constexpr int kSectors = 12;

using ReadSite = float (clsDynamicPressure::*)(WindSectors);
struct SiteColumn {
  const char* symbol;
  const char* name;
  const char* unit;
  ReadSite read;
};
constexpr SiteColumn kSiteColumns[] = {
    {"D_sea", "distance to the sea", "km", &clsDynamicPressure::FetchesToSea},
    {"D_town", "distance in the town", "km", &clsDynamicPressure::FetchesInTown},
    {"Ho", "height of the obstructions", "m", &clsDynamicPressure::ObstructionHeight_Ho},
    {"Xo", "spacing of the obstructions", "m", &clsDynamicPressure::ObstructionSpacing_Xo},
    {"Z", "crest height", "m", &clsDynamicPressure::CrestHeight_Z},
    {"X", "distance from the crest", "m", &clsDynamicPressure::SiteLocation_X},
    {"LU", "upwind slope length", "m", &clsDynamicPressure::UpwindLength_LU},
    {"LD", "downwind slope length", "m", &clsDynamicPressure::DownwindLength_LD},
    {"\u0394T", "altitude of the base of the feature", "m", &clsDynamicPressure::BaseAltitude}};

using ReadFactor = float (clsDynamicPressure::*)(WindAreas, WindSectors);
struct FactorColumn {
  const char* symbol;
  const char* name;
  const char* unit;
  ReadFactor read;
  bool always;  // read with results entered by hand, and for the internal area, too
};
constexpr FactorColumn kFactorColumns[] = {
    {"He", "effective height", "m", &clsDynamicPressure::EffectiveHeight_He, false},
    {"Sa", "altitude factor", "", &clsDynamicPressure::AltitudeFactor_Sa, false},
    {"Sd", "direction factor", "", &clsDynamicPressure::DirectionFactor_Sd, false},
    {"Sc", "fetch factor", "", &clsDynamicPressure::FetchFactor_Sc, false},
    {"Tc", "fetch adjustment factor", "", &clsDynamicPressure::FetchAdjustmentFactor_Tc, false},
    {"St", "turbulence factor", "", &clsDynamicPressure::TurbulenceFactor_St, false},
    {"Tt", "turbulence adjustment factor", "", &clsDynamicPressure::TurbulenceAdjustmentFactor_Tt, false},
    {"Sh", "topographic increment", "", &clsDynamicPressure::TopographicIncrement_Sh, false},
    {"gt", "gust peak factor", "", &clsDynamicPressure::GustPeakFactor_gt, false},
    {"Vs", "site wind speed", "m/s", &clsDynamicPressure::SiteWindSpeed_Vs, false},
    {"Sb", "terrain and building factor", "", &clsDynamicPressure::TerrainAndBuildingFactor_Sb, false},
    {"Ve", "effective wind speed", "m/s", &clsDynamicPressure::EffectiveWindSpeed_Ve, false},
    {"q", "dynamic pressure", "kN/m\u00B2", &clsDynamicPressure::DynamicPressure_q, true},
    {"Ca", "size effect factor", "", &clsDynamicPressure::SizeEffectFactor_Ca, true}};

// Reads a column; a value that is refused leaves a dash and a warning.
template <class Read>
SectorColumn Column(const char* symbol, const char* name, const char* unit, Warnings& warnings, Read read) {
  SectorColumn column{symbol, name, unit, {}};
  for (int sector = 0; sector < kSectors; ++sector) {
    Marked& value = column.values[static_cast<std::size_t>(sector)];
    try {
      value.text = read(static_cast<WindSectors>(sector));
    } catch (const Error& error) {
      value.text = kRefused;
      warnings.Mark(value.marks, error.what());
    }
  }
  return column;
}

struct AreaTitle {
  WindAreas area;
  const char* title;
};

SectorTable ReadArea(const AreaTitle& area, Warnings& warnings) {
  const auto site = RequireCurrentCase().DynamicPressure();
  constexpr int places = 3;
  const bool all = !site->ManualResults() && area.area != WindAreas::waInternal;
  SectorTable table{area.title, {}, {}, area.area != WindAreas::waInternal};
  for (const FactorColumn& row : kFactorColumns) {
    if (!all && !row.always) continue;
    const bool isQ = row.read == static_cast<ReadFactor>(&clsDynamicPressure::DynamicPressure_q);
    table.columns.push_back(Column(row.symbol, row.name, row.unit, warnings, [&](WindSectors sector) {
      const float value = ((*site).*row.read)(area.area, sector);
      if (isQ) table.q[static_cast<std::size_t>(sector)] = value;
      return FormatFixed(value, places);
    }));
  }
  return table;
}

}  // namespace

SectorTable ReadSiteData(Warnings& warnings) {
  const auto site = RequireCurrentCase().DynamicPressure();
  SectorTable table{"Site by sector", {}, {}, false};
  if (site->ManualResults()) return table;  // the site plays no part
  for (const SiteColumn& row : kSiteColumns)
    table.columns.push_back(Column(row.symbol, row.name, row.unit, warnings, [&](WindSectors sector) {
      return ShortestText(((*site).*row.read)(sector));
    }));
  return table;
}

std::vector<SectorTable> ReadFactors(const std::vector<BuildingAreas>& areas, Warnings& warnings) {
  std::vector<AreaTitle> titles;
  for (const BuildingAreas area : areas) {
    if (area == BuildingAreas::baRoof) titles.push_back({WindAreas::waRoof, "Roof"});
    if (area == BuildingAreas::baWalls) {
      titles.push_back({WindAreas::waSidewall, "Side walls"});
      titles.push_back({WindAreas::waGable, "Gable walls"});
    }
    if (area == BuildingAreas::baParapet) {
      titles.push_back({WindAreas::waSidewallParapet, "Side parapets"});
      titles.push_back({WindAreas::waGableParapet, "Gable parapets"});
    }
  }
  titles.push_back({WindAreas::waInternal, "Internal pressure"});
  std::vector<SectorTable> tables;
  for (const AreaTitle& title : titles) tables.push_back(ReadArea(title, warnings));
  return tables;
}

}  // namespace orve::sheet
