// An area's drawings and zone tables, and the derivation of its governing load.
#include <algorithm>
#include <orve3_bs6399_2.h>

#include "Derivation.h"
#include "Drawings.h"
#include "Html.h"
#include "Parts.h"
#include "common/LoadText.h"

namespace orve::sheet {

namespace {

// The unit stands at the head of the column.
std::string WithoutUnit(const Marked& load) {
  const std::string text = load.text.substr(0, load.text.find(LoadUnit));
  return Escaped(text) + MarkMarkup(load.marks);
}

void Gather(Marks& all, const ZoneRow& row) {
  for (const Marks* marks :
       {&row.dimensions.marks, &row.cpePressure.marks, &row.cpeSuction.marks, &row.q.marks, &row.Ca.marks,
        &row.external.marks, &row.internal.marks, &row.overall.marks, &row.refusal})
    all.insert(all.end(), marks->begin(), marks->end());
}

std::string ZoneTable(const AreaZones& area, const FaceZones& face, Marks& marks) {
  const bool parapet = area.area == BuildingAreas::baParapet;
  std::string head;
  for (const char* cell :
       {"Zone", "Size", "Wind on", "<i>C</i><sub>pe</sub> +", "<i>C</i><sub>pe</sub> \u2212", "<i>q</i>",
        "<i>C</i><sub>a</sub>", "External", "Internal", "Overall"})
    if (!parapet || std::string_view(cell) != "Internal") head += HeadCell(cell);
  std::string body;
  for (const ZoneRow& row : face.rows) {
    Gather(marks, row);
    body += RowHead(Escaped(row.name) + MarkMarkup(row.refusal)) +
            Cell(row.dimensions.text.empty() ? "the rest" : MarkedMarkup(row.dimensions)) +
            Cell(row.windFrom) + Cell(MarkedMarkup(row.cpePressure)) + Cell(MarkedMarkup(row.cpeSuction)) +
            Cell(MarkedMarkup(row.q)) + Cell(MarkedMarkup(row.Ca)) + Cell(WithoutUnit(row.external));
    if (!parapet) body += Cell(WithoutUnit(row.internal));
    body += "<td class=\"o\">" + WithoutUnit(row.overall) + "</td></tr>\n";
  }
  marks.insert(marks.end(), face.refusal.begin(), face.refusal.end());
  if (body.empty()) return {};
  const std::string caption =
      area.title + ", " + std::string(PublishedText(face.face)) + ": coefficients, and loads in kN/m\u00B2";
  return TableMarkup(caption, head, body, "num");
}

Drawing Draw(const Content& content, const AreaZones& area, const FaceZones& face) {
  const double greatest = area.GreatestLoad();
  switch (area.area) {
    case BuildingAreas::baRoof:
      return DrawRoof(content.building, face, greatest);
    case BuildingAreas::baWalls:
      return DrawWall(content.building, face, greatest);
    default:
      return DrawParapet(content.building, face, greatest);
  }
}

std::string DrawingNote(const Content& content, const AreaZones& area) {
  std::string note =
      "Loads on the drawings are the overall ones, kN/m\u00B2; a darker zone has the greater load.";
  if (area.area != BuildingAreas::baRoof) return note;
  if (content.building.roofType == RoofTypes::Hipped_roof)
    note +=
        " One size holds for all zones of a hipped roof: strips of the first length, the second beside a "
        "corner.";
  if (content.building.cantilever12 > 0 || content.building.cantilever34 > 0)
    note +=
        " Dashed: the walls under the cantilevers; the zones are drawn over the whole roof, the sizes of the "
        "table leave the cantilevers out.";
  return note;
}

std::string DerivationRow(const DerivationLine& line, Marks& marks, Warnings& warnings) {
  const explain::Quantity& quantity = *line.quantity;
  Marks own;
  for (const explain::Warning& warning : quantity.warnings) warnings.Mark(own, warning.text);
  marks.insert(marks.end(), own.begin(), own.end());
  const bool input = quantity.layer == explain::Layer::Input && quantity.clause.empty();
  std::string notes;
  if (!quantity.note.empty()) notes += "<br><small>" + NoteMarkup(quantity.note) + "</small>";
  if (quantity.source) notes += "<br><small>" + Escaped(quantity.source->Text()) + "</small>";
  return RowHead(std::to_string(line.number)) + Cell(Escaped(quantity.name) + MarkMarkup(own)) + "<td>" +
         LineMarkup(quantity) + notes + "</td>" + Cell(Ranges(line.from)) +
         Cell(input ? "input" : Escaped(quantity.clause)) + "</tr>\n";
}

}  // namespace

std::string AreaPart(const Content& content, const AreaZones& area) {
  if (std::all_of(area.faces.begin(), area.faces.end(),
                  [](const FaceZones& face) { return face.rows.empty() && face.refusal.empty(); }))
    return {};
  std::string figures;
  std::string tables;
  Marks marks;
  for (const FaceZones& face : area.faces) {
    const Drawing drawing = Draw(content, area, face);
    const std::string figure =
        drawing.svg.empty() ? std::string() : FigureMarkup(drawing.svg, drawing.caption);
    // The plans of the four winds stand together, an elevation stands with its table.
    const bool together = area.area != BuildingAreas::baRoof;
    if (!together) figures += figure;
    tables += "<div class=\"face\">" + (together ? figure : std::string()) + ZoneTable(area, face, marks) +
              "</div>\n";
  }
  std::string markup;
  if (area.GreatestLoad() > 0)
    markup += "<div class=\"tone\">" + DrawToneKey(area.GreatestLoad()) + "</div>\n";
  markup += "<p class=\"key\">" + DrawingNote(content, area) +
            " \u201CWind on\u201D names the face that the wind blows on.</p>\n" + NotesMarkup(content, marks);
  if (!figures.empty()) markup += "<div class=\"figs\">" + figures + "</div>\n";
  return markup + tables;
}

std::string DerivationPart(const Content& content, const AreaZones& area) {
  const Governing& governing = area.Worst();
  if (governing.face < 0) return {};
  const ZoneRow& row = area.Row(governing);
  const bool pressure = &governing == &area.pressure;
  std::string body;
  Marks marks;
  Warnings warnings = content.warnings;
  for (const DerivationLine& line : Derive(*row.tree, pressure)) body += DerivationRow(line, marks, warnings);
  const std::string caption = row.tree->name + ": overall " + (pressure ? "pressure " : "suction ") +
                              FormatSignedLoad(governing.load) + std::string(LoadUnit);
  return TableMarkup(caption,
                     HeadCell("Line") + HeadCell("Quantity") + HeadCell("Formula, numbers, result") +
                         HeadCell("From line") + HeadCell("Clause"),
                     body, "d") +
         NotesMarkup(content, marks);
}

}  // namespace orve::sheet
