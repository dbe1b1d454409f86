// The site by sector, the roses, and the loads of members and cantilevers.
#include <algorithm>
#include <orve3_bs6399_2.h>

#include "Derivation.h"
#include "Drawings.h"
#include "Html.h"
#include "Parts.h"
#include "common/LoadText.h"
#include "common/NumberText.h"

namespace orve::sheet {

namespace {

constexpr int kSectorAngle = 30;

std::string SectorMarkup(const Content& content, const SectorTable& table) {
  std::string head = HeadCell("Sector");
  for (const SectorColumn& column : table.columns)
    head += HeadCell("<abbr title=\"" + Escaped(column.name) + "\">" + SymbolMarkup(column.symbol) +
                     "</abbr>" + (column.unit.empty() ? std::string() : "<br>" + Escaped(column.unit)));
  std::string body;
  Marks marks;
  for (std::size_t sector = 0; sector < 12; ++sector) {
    body += RowHead(std::to_string(kSectorAngle * static_cast<int>(sector)) + "\u00B0");
    for (const SectorColumn& column : table.columns) {
      const Marked& value = column.values[sector];
      marks.insert(marks.end(), value.marks.begin(), value.marks.end());
      body += Cell(MarkedMarkup(value));
    }
    body += "</tr>\n";
  }
  return TableMarkup(table.title, head, body, table.columns.size() > 2 ? "num" : "num slim") +
         NotesMarkup(content, marks);
}

std::string SymbolKey(const Content& content) {
  std::string markup = "<p class=\"key\">";
  std::vector<std::string> seen;
  for (const SectorTable* table : {&content.siteData, &content.factors.front()})
    for (const SectorColumn& column : table->columns) {
      if (std::find(seen.begin(), seen.end(), column.symbol) != seen.end()) continue;
      markup += (seen.empty() ? "" : "; ") + SymbolMarkup(column.symbol) + " " + Escaped(column.name);
      seen.push_back(column.symbol);
    }
  return markup + ".</p>\n";
}

std::string Term(float load, float distance) {
  return FormatFixed(load, 3) + " \u00D7 " + ShortestText(distance);
}

// The average with its numbers put in.
std::string StepsMarkup(const MemberRow& row) {
  if (row.span == 0) return Cell("the span is 0");
  return Cell(FormulaMarkup("(" + Term(row.loads[0], row.distances[0]) + " + " +
                            Term(row.loads[1], row.distances[1]) + " + " +
                            Term(row.loads[2], row.distances[2]) + ") / " + ShortestText(row.span)) +
              " = " + Escaped(FormatSignedLoad(row.average)));
}

}  // namespace

std::string SitePart(const Content& content) {
  double greatest = 0;
  for (const SectorTable& table : content.factors)
    for (const double q : table.q) greatest = std::max(greatest, q);
  std::string markup = "<div class=\"figs\">";
  for (const SectorTable& table : content.factors) {
    const Drawing rose = DrawRose(table, greatest);
    if (table.hasRose && !rose.svg.empty()) markup += FigureMarkup(rose.svg, rose.caption);
  }
  markup += "</div>\n" + SymbolKey(content);
  if (!content.siteData.columns.empty()) markup += SectorMarkup(content, content.siteData);
  for (const SectorTable& table : content.factors) {
    const bool brief = table.columns.size() <= 2;
    markup += SectorMarkup(
        content, {(brief ? "" : "Factors and dynamic pressure: ") + table.title, table.columns, {}, false});
  }
  return markup;
}

std::string CantileverPart(const Content& content) {
  std::string markup;
  for (const CantileverFace& face : content.cantilevers) {
    std::string body;
    for (const CantileverZones& zone : face.zones)
      body += RowHead(Escaped(zone.Cantilever_ZoneDescription)) +
              Cell(Escaped(zone.Cantilever_ZoneDimensions)) +
              Cell(Escaped(zone.Cantilever_ExternalAppliedLoads)) +
              Cell(Escaped(zone.Cantilever_InternalAppliedLoads)) +
              Cell("<b>" + Escaped(zone.Cantilever_OverallAppliedLoads) + "</b>") + "</tr>\n";
    if (!body.empty())
      markup += TableMarkup("Cantilevers, wind on " + std::string(PublishedText(face.face)),
                            HeadCell("Zone") + HeadCell("Size") + HeadCell("Roof load") +
                                HeadCell("Walls below") + HeadCell("Net load"),
                            body);
    markup += NotesMarkup(content, face.refusal);
  }
  if (markup.empty()) return {};
  return "<p>The roof load acts on the upper surface, the pressure of the wall below on the underside. Net "
         "load = "
         "roof load \u2212 wall pressure, at its greatest and its least over all pairs.</p>\n" +
         markup;
}

std::string MembersPart(const Content& content) {
  std::string chosen;
  std::string steps;
  std::string bays;
  Marks marks;
  for (const MemberRow& row : content.members) {
    const std::string head = RowHead(Escaped(row.area + ", " + row.face));
    marks.insert(marks.end(), row.load.marks.begin(), row.load.marks.end());
    chosen += head + Cell(Escaped(row.choice)) + Cell(MarkedMarkup(row.load)) + "</tr>\n";
    if (row.stepped) steps += head + StepsMarkup(row) + "</tr>\n";
    if (row.continuous) bays += head + Cell(Escaped(row.endBay)) + Cell(Escaped(row.internalBay)) + "</tr>\n";
  }
  if (chosen.empty()) return {};
  std::string markup = TableMarkup(
      "Loads chosen", HeadCell("Surface") + HeadCell("Zone or stepped load") + HeadCell("Load"), chosen);
  if (!steps.empty())
    markup += TableMarkup("Stepped loads: (W1 Z1 + W2 Z2 + W3 Z3) / span, kN/m\u00B2 and m",
                          HeadCell("Surface") + HeadCell("Average over the span"), steps);
  if (!bays.empty())
    markup += TableMarkup("Continuous members",
                          HeadCell("Surface") + HeadCell("End bay") + HeadCell("Internal bay"), bays);
  return markup + NotesMarkup(content, marks);
}

}  // namespace orve::sheet
