#include <map>
#include <orve3_bs6399_2.h>
#include <set>
#include <string>
#include <tuple>

#include "figure_sources.h"
#include "sheets.h"
#include "text_table.h"

namespace examples {

using namespace orve;

namespace {

// Table, standard and status of a source, with the number of figures on the sheet that rest on it.
struct SourceCount {
  std::map<std::tuple<std::string, std::string, std::string>, int> figures;
  std::set<std::string> editions;
};

void Count(SourceCount& counts, const std::vector<SourceRecord>& sources) {
  for (const SourceRecord& source : sources) {
    ++counts.figures[{source.table, source.standard, std::string(SourceStatusText(source.status))}];
    if (!source.edition.empty()) counts.editions.insert(source.standard + ": " + source.edition);
  }
}

void CountCoefficients(SourceCount& counts, const clsCurrentCase& windCase, BuildingAreas area) {
  const auto loads = windCase.OverallAppliedLoads();
  for (int i = 0; i < 4; ++i) {
    const auto face = Faces(i);
    const std::int16_t last = loads->ZoneIndexTo(area, face);
    for (std::int16_t zone = 0; zone <= last; ++zone)
      Count(counts, CoefficientSourcesOf(windCase, area, face, zone));
  }
}

}  // namespace

void PrintSources(std::ostream& out, const clsCurrentCase& windCase) {
  SourceCount counts;
  for (const WindAreas area : {WindAreas::waRoof, WindAreas::waSidewall, WindAreas::waGable,
                               WindAreas::waSidewallParapet, WindAreas::waGableParapet})
    for (int sector = 0; sector < 12; ++sector)
      Count(counts, WindSourcesOf(windCase, area, WindSectors(sector)));
  for (const BuildingAreas area : {BuildingAreas::baRoof, BuildingAreas::baWalls, BuildingAreas::baParapet})
    CountCoefficients(counts, windCase, area);

  PrintHeading(out, "Where the figures come from");
  TextTable table({"Table", "Standard", "Status", "Figures"}, 3);
  for (const auto& [source, count] : counts.figures)
    table.Add({std::get<0>(source), std::get<1>(source), std::get<2>(source), std::to_string(count)});
  table.Print(out);
  out << "\n  Only a confirmed figure has been read in print; the others are to be checked against the "
         "print\n"
         "  before a load is relied on. A substitute table belongs to another standard.\n"
         "  Every load is multiplied by Ca.\n";

  PrintHeading(out, "One load traced: roof, face 1, zone A");
  const auto external = windCase.ExternalCoefficients();
  const WorstCase worst = external->Hybrid_WorstCaseSearch(BuildingAreas::baRoof, Faces::Face_1, 0);
  if (worst.Winner >= 0) {
    const WindCandidate& wind = worst.Candidates[worst.Winner];
    out << "  Worst wind at " << Number(wind.Angle, 0) << " degrees: q " << Number(wind.q, 3)
        << " kN/m\u00B2, Ca " << Number(wind.Ca, 3) << ". Factors of sector " << 30 * wind.Sector1
        << " degrees:\n";
    for (const SourceRecord& source : WindSourcesOf(windCase, worst.WindArea, WindSectors(wind.Sector1)))
      out << "  " << source.Text() << "\n";
  }
  for (const SourceRecord& source : CoefficientSourcesOf(windCase, BuildingAreas::baRoof, Faces::Face_1, 0))
    out << "  " << source.Text() << "\n";
}

void PrintWholeSheet(std::ostream& out, const clsCurrentCase& windCase) {
  PrintBuilding(out, windCase);
  PrintSectors(out, windCase);
  PrintZones(out, windCase);
  PrintGoverningLoads(out, windCase);
  PrintSources(out, windCase);
}

}  // namespace examples
