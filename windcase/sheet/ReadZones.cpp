// The zones of an area: sizes, coefficients, loads, and what a reader has to know of each number.
#include <Explain.h>
#include <algorithm>
#include <orve3_bs6399_2.h>
#include <set>

#include "Content.h"
#include "common/NumberText.h"

namespace orve::sheet {

namespace {

using explain::Quantity;
using explain::QuantityPtr;

constexpr int kPlaces = 3;

QuantityPtr Child(const Quantity& quantity, const std::string& symbol) {
  for (const QuantityPtr& child : quantity.children)
    if (child->symbol == symbol) return child;
  return nullptr;
}

void MarkOwn(Marks& marks, const Quantity& quantity, Warnings& warnings) {
  for (const explain::Warning& warning : quantity.warnings) warnings.Mark(marks, warning.text);
}

void MarkAll(Marks& marks, const QuantityPtr& quantity, Warnings& warnings) {
  if (!quantity) return;
  for (const explain::Warning& warning : explain::WarningsOf({&quantity, 1}))
    warnings.Mark(marks, warning.text);
}

// Each warning goes to the number that it touches: those of the coefficient, of q and of Ca to these, that of
// the search to q and Ca, the rest to the load.
void MarkExternal(ZoneRow& row, const Quantity& load, Warnings& warnings) {
  MarkOwn(row.external.marks, load, warnings);
  MarkAll(row.cpePressure.marks, Child(load, "Cpe_p"), warnings);
  MarkAll(row.cpeSuction.marks, Child(load, "Cpe_s"), warnings);
  MarkAll(row.q.marks, Child(load, "q"), warnings);
  MarkAll(row.Ca.marks, Child(load, "Ca"), warnings);
  for (Marks* marks : {&row.q.marks, &row.Ca.marks}) MarkOwn(*marks, *Child(load, "wind"), warnings);
}

void MarkRow(ZoneRow& row, Warnings& warnings) {
  for (const char* side : {"p_max", "p_min"}) {
    const QuantityPtr load = Child(*row.tree, side);
    if (!load) continue;
    MarkOwn(row.overall.marks, *load, warnings);
    for (const QuantityPtr& term : load->children)
      if (term->symbol.compare(0, 2, "pe") == 0)
        MarkExternal(row, *term, warnings);
      else
        MarkAll(row.internal.marks, term, warnings);
  }
}

void ReadLoads(ZoneRow& row, BuildingAreas area, Faces face, Warnings& warnings) {
  const auto& root = RequireCurrentCase();
  const auto external = root.ExternalCoefficients();
  const auto loads = root.OverallAppliedLoads();
  const std::int16_t zone = row.zone;
  row.q.text = FormatFixed(external->Hybrid_WorstCase_DynamicPressure_q(area, face, zone), kPlaces);
  row.Ca.text = FormatFixed(external->Hybrid_WorstCase_SizeEffectFactor_Ca(area, face, zone), kPlaces);
  row.cpePressure.text =
      FormatFixed(external->Hybrid_ExternalCoefficientFactor_Cpe_Pressure(area, face, zone), kPlaces);
  row.cpeSuction.text =
      FormatFixed(external->Hybrid_ExternalCoefficientFactor_Cpe_Suction(area, face, zone), kPlaces);
  row.external.text = loads->Hybrid_ExternalAppliedLoads(area, face, zone);
  row.internal.text = loads->Hybrid_InternalAppliedLoads(area, face, zone);
  row.overall.text = loads->Hybrid_OverallAppliedLoads(area, face, zone);
  row.pressure = loads->Hybrid_OverallAppliedLoad_Pressure(area, face, zone);
  row.suction = loads->Hybrid_OverallAppliedLoad_Suction(area, face, zone);
  row.tree = explain::ExplainZone(area, face, zone);
  MarkRow(row, warnings);
}

// The sizes that the loads have: cantilevers along the wind take their length out of the zones at the edge.
void ReadSize(ZoneRow& row, BuildingAreas area, Faces face, Warnings& warnings) {
  row.dimensions.text =
      RequireCurrentCase().OverallAppliedLoads()->Hybrid_ZoneDimensions(area, face, row.zone);
  const auto warning = explain::WarnOfZoneSize(area, face, row.zone);
  row.absent = warning.has_value();
  if (warning) warnings.Mark(row.dimensions.marks, warning->text);
}

ZoneRow ReadZone(BuildingAreas area, Faces face, std::int16_t zone, Warnings& warnings) {
  const auto external = RequireCurrentCase().ExternalCoefficients();
  ZoneRow row;
  row.zone = zone;
  row.name = external->Hybrid_ZoneDescription(area, face, zone);
  row.windFrom = std::to_string(1 + external->Hybrid_WindFromFace(area, face, zone));
  const ZoneDimensionsXY size = external->Hybrid_ZoneDimensionsXY(area, face, zone);
  row.size = {row.name, !external->Hybrid_ZoneDimensions(area, face, zone).empty(), size.DimensionX,
              size.DimensionY};
  try {
    ReadSize(row, area, face, warnings);
    ReadLoads(row, area, face, warnings);
  } catch (const Error& error) {
    for (Marked* number :
         {&row.q, &row.Ca, &row.cpePressure, &row.cpeSuction, &row.external, &row.internal, &row.overall})
      *number = {kRefused, {}};
    row.pressure = row.suction = 0;
    warnings.Mark(row.refusal, error.what());
  }
  return row;
}

void KeepGoverning(AreaZones& zones) {
  for (std::size_t face = 0; face < zones.faces.size(); ++face)
    for (std::size_t i = 0; i < zones.faces[face].rows.size(); ++i) {
      const ZoneRow& row = zones.faces[face].rows[i];
      if (row.pressure > zones.pressure.load) zones.pressure = {static_cast<int>(face), i, row.pressure};
      if (row.suction < zones.suction.load) zones.suction = {static_cast<int>(face), i, row.suction};
    }
}

void CollectSources(const Quantity& quantity, std::set<const Quantity*>& seen,
                    std::vector<std::string>& sources) {
  if (!seen.insert(&quantity).second) return;
  if (quantity.source) {
    const SourceRecord& source = *quantity.source;
    std::string text = source.table + ": " + source.standard;
    if (!source.edition.empty()) text += ", " + source.edition;
    text += " (" + source.StatusText() + ")";
    if (std::find(sources.begin(), sources.end(), text) == sources.end()) sources.push_back(text);
  }
  for (const QuantityPtr& child : quantity.children) CollectSources(*child, seen, sources);
}

}  // namespace

const Governing& AreaZones::Worst() const {
  return -suction.load >= pressure.load && suction.face >= 0 ? suction : pressure;
}

float AreaZones::GreatestLoad() const {
  return std::max(pressure.load, -suction.load);
}

// A cantilever's underside takes the pressures of the walls, so that these belong to its sheet.
std::vector<BuildingAreas> ConsideredAreas() {
  const auto building = RequireCurrentCase().BuildingDimensions();
  const bool any = building->ConsiderRoof() || building->ConsiderWalls() || building->ConsiderParapet();
  std::vector<BuildingAreas> areas;
  if (!any || building->ConsiderRoof()) areas.push_back(BuildingAreas::baRoof);
  if (!any || building->ConsiderWalls() || building->ConsiderCantilever())
    areas.push_back(BuildingAreas::baWalls);
  if (building->ConsiderParapet() || (!any && building->Parapet_Height() != 0))
    areas.push_back(BuildingAreas::baParapet);
  return areas;
}

AreaZones ReadZones(BuildingAreas area, Warnings& warnings) {
  const auto external = RequireCurrentCase().ExternalCoefficients();
  AreaZones zones;
  zones.area = area;
  zones.title = explain::AreaName(area);
  for (const Faces face : kFaces) {
    FaceZones list{face, {}};
    try {
      const std::int16_t last = external->ZoneIndexTo(area, face);
      for (std::int16_t zone = external->ZoneIndexFrom(area, face); zone <= last; ++zone)
        list.rows.push_back(ReadZone(area, face, zone, warnings));
    } catch (const Error& error) {  // sizes that don't fit
      list.rows.clear();
      warnings.Mark(list.refusal,
                    zones.title + ", " + std::string(PublishedText(face)) + ": " + error.what());
    }
    zones.faces.push_back(std::move(list));
  }
  KeepGoverning(zones);
  return zones;
}

std::vector<std::string> SourcesOf(const std::vector<AreaZones>& areas) {
  std::vector<std::string> sources;
  std::set<const Quantity*> seen;
  for (const AreaZones& area : areas)
    for (const FaceZones& face : area.faces)
      for (const ZoneRow& row : face.rows)
        if (row.tree) CollectSources(*row.tree, seen, sources);
  std::sort(sources.begin(), sources.end());
  return sources;
}

}  // namespace orve::sheet
