#include "Content.h"

#include <cmath>
#include <orve3_bs6399_2.h>

#include "Sha256.h"
#include "common/DateText.h"
#include "common/NumberText.h"

namespace orve::sheet {

namespace {

// One fact a line; what would end the line or its key is escaped, so that two contents never share a text.
class FactList {
 public:
  void Add(const std::string& key, const std::string& value) {
    for (const std::string* part : {&key, &value}) {
      for (const char c : *part) {
        if (c == '\n' || c == '\t' || c == '\\') m_text += '\\';
        m_text += c == '\n' ? 'n' : c == '\t' ? 't' : c;
      }
      m_text += part == &key ? '\t' : '\n';
    }
  }
  const std::string& Text() const { return m_text; }

 private:
  std::string m_text;
};

void AddTable(FactList& facts, const SectorTable& table) {
  for (const SectorColumn& column : table.columns)
    for (std::size_t sector = 0; sector < column.values.size(); ++sector)
      facts.Add(table.title + "/" + column.symbol + "/" + std::to_string(sector), column.values[sector].text);
}

void AddZones(FactList& facts, const AreaZones& area) {
  for (const FaceZones& face : area.faces)
    for (const ZoneRow& row : face.rows) {
      const std::string key = area.title + "/" + std::string(PublishedText(face.face)) + "/" + row.name + "/";
      facts.Add(key + "size", row.dimensions.text);
      for (const Marked* number :
           {&row.cpePressure, &row.cpeSuction, &row.q, &row.Ca, &row.external, &row.internal, &row.overall})
        facts.Add(key, number->text);
    }
}

void AddMembers(FactList& facts, const Content& content) {
  for (const CantileverFace& face : content.cantilevers)
    for (const CantileverZones& zone : face.zones)
      for (const std::string* text :
           {&zone.Cantilever_ZoneDimensions, &zone.Cantilever_ExternalAppliedLoads,
            &zone.Cantilever_InternalAppliedLoads, &zone.Cantilever_OverallAppliedLoads})
        facts.Add(std::string(PublishedText(face.face)) + "/" + zone.Cantilever_ZoneDescription, *text);
  for (const MemberRow& row : content.members) {
    const std::string key = row.area + "/" + row.face + "/" + row.choice;
    facts.Add(key, row.load.text);
    for (std::size_t i = 0; i < row.loads.size(); ++i)
      facts.Add(key, ShortestText(row.loads[i]) + " over " + ShortestText(row.distances[i]));
    facts.Add(key, ShortestText(row.span));
    facts.Add(key, row.endBay + "; " + row.internalBay);
  }
}

std::string DayText(double date) {
  if (date == 0) return {};
  try {
    return DateText(std::floor(date));
  } catch (const Error&) {  // a day that the calendar doesn't have
    return {};
  }
}

}  // namespace

std::string DigestText(const Content& content) {
  FactList facts;
  facts.Add("Program", content.version);
  facts.Add("Description", content.description);
  for (const InputRow& row : content.inputs) facts.Add(row.group + "/" + row.name, row.value.text);
  AddTable(facts, content.siteData);
  for (const SectorTable& table : content.factors) AddTable(facts, table);
  for (const AreaZones& area : content.areas) AddZones(facts, area);
  AddMembers(facts, content);
  for (const std::string& warning : content.warnings.Texts()) facts.Add("Warning", warning);
  return facts.Text();
}

Content GatherContent() {
  const auto& root = RequireCurrentCase();
  Content content;
  content.description = root.Description();
  content.version = basBS6399_2::Common->AppVersion();
  content.modified = DayText(root.Modified());
  content.building = ReadBuilding();
  content.inputs = ReadInputs(content.warnings);
  const std::vector<BuildingAreas> areas = ConsideredAreas();
  content.siteData = ReadSiteData(content.warnings);
  content.factors = ReadFactors(areas, content.warnings);
  for (const BuildingAreas area : areas) content.areas.push_back(ReadZones(area, content.warnings));
  content.cantilevers = ReadCantilevers(content.warnings);
  content.members = ReadMembers(content.warnings);
  content.sources = SourcesOf(content.areas);
  for (const AreaZones& area : content.areas)
    for (const FaceZones& face : area.faces) {
      content.refusals += !face.refusal.empty();
      for (const ZoneRow& row : face.rows) content.refusals += !row.refusal.empty();
    }
  for (const CantileverFace& face : content.cantilevers) content.refusals += !face.refusal.empty();
  content.digest = Sha256(DigestText(content));
  return content;
}

}  // namespace orve::sheet
