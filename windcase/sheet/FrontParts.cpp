// Cover, warnings, inputs and sources.
#include <orve3_bs6399_2.h>

#include "Html.h"
#include "Parts.h"
#include "common/LoadText.h"

namespace orve::sheet {

namespace {

std::string Or(const std::string& text, const std::string& otherwise) {
  return text.empty() ? otherwise : text;
}

// Groups of digits that an eye can compare.
std::string Grouped(const std::string& digest) {
  constexpr std::size_t group = 8;
  std::string text;
  for (std::size_t at = 0; at < digest.size(); at += group)
    text += (at ? " " : "") + digest.substr(at, group);
  return text;
}

std::string Field(const char* name, const std::string& value, const char* style = "") {
  return "<div" + (*style ? " class=\"" + std::string(style) + "\"" : std::string()) + "><dt>" + name +
         "</dt><dd>" + Or(Escaped(value), "&nbsp;") + "</dd></div>";
}

// A line to sign on.
std::string Signature(const char* role, const std::string& name) {
  return RowHead(role) + Cell(Or(Escaped(name), "&nbsp;")) + "<td>&nbsp;</td><td>&nbsp;</td></tr>\n";
}

std::string GoverningRow(const AreaZones& area, const Governing& governing, const char* side) {
  const std::string head = RowHead(Escaped(area.title) + ", " + side);
  if (governing.face < 0) return head + Cell("none") + "<td></td><td></td><td></td></tr>\n";
  const ZoneRow& row = area.Row(governing);
  const auto face = static_cast<std::size_t>(governing.face);
  return head +
         Cell("<b>" + Escaped(FormatSignedLoad(governing.load)) + "</b>" + MarkMarkup(row.overall.marks)) +
         Cell(Escaped(std::string(PublishedText(area.faces[face].face)))) + Cell(Escaped(row.name)) +
         Cell(row.dimensions.text.empty() ? "the rest of the surface"
                                          : MarkedMarkup(row.dimensions) + (row.absent ? "<br>absent" : "")) +
         "</tr>\n";
}

std::string Summary(const Content& content) {
  std::string body;
  for (const AreaZones& area : content.areas)
    body += GoverningRow(area, area.pressure, "pressure") + GoverningRow(area, area.suction, "suction");
  return TableMarkup("Governing overall loads (pressure onto the surface +, suction away from it -)",
                     HeadCell("Surface") + HeadCell("Load, kN/m\u00B2") + HeadCell("Face") +
                         HeadCell("Zone") + HeadCell("Size of the zone"),
                     body);
}

std::string Plural(std::size_t count, const char* noun) {
  return std::to_string(count) + " " + noun + (count == 1 ? "" : "s");
}

}  // namespace

std::string CoverPart(const Content& content, const SheetOptions& options) {
  std::string markup =
      "<p class=\"k\">Calculation sheet</p><h1>Wind loads to BS 6399-2</h1>\n<dl class=\"f\">";
  markup += Field("Project", options.project, "wide") + Field("Case", content.description, "wide") +
            Field("Date", options.date) + Field("Revision", options.revision) +
            Field("Program", "ORVE BS6399-2 " + content.version) +
            Field("Digest of inputs and results (SHA-256)", Grouped(content.digest), "wide mono") + "</dl>\n";
  markup +=
      TableMarkup("Signatures", HeadCell("") + HeadCell("Name") + HeadCell("Signature") + HeadCell("Date"),
                  Signature("Author", options.author) + Signature("Checker", options.checker), "s");
  markup += Summary(content);
  const std::size_t warnings = content.warnings.Texts().size();
  if (warnings > 0)
    markup += "<p class=\"note\"><b>" + Plural(warnings, "warning") +
              "</b>, listed in section 1 and marked W beside "
              "each number that they touch. Read them before relying on a number.</p>\n";
  if (content.refusals > 0)
    markup += "<p class=\"note\"><b>Not complete:</b> " +
              Plural(static_cast<std::size_t>(content.refusals), "result") +
              " of zones or cantilevers can't be given; the reasons stand at their places.</p>\n";
  return markup;
}

std::string WarningsPart(const Content& content) {
  const std::size_t count = content.warnings.Texts().size();
  if (count == 0) return {};
  std::string markup = "<ol class=\"wl\">";
  for (std::size_t number = 1; number <= count; ++number)
    markup += "<li id=\"w" + std::to_string(number) + "\">" + WarningMarkup(content, number) + "</li>\n";
  return markup + "</ol>\n";
}

std::string InputsPart(const Content& content) {
  std::string markup = "<div class=\"cols\">";
  Marks marks;
  for (std::size_t i = 0; i < content.inputs.size();) {
    const std::string& group = content.inputs[i].group;
    std::string body;
    for (; i < content.inputs.size() && content.inputs[i].group == group; ++i) {
      const InputRow& row = content.inputs[i];
      marks.insert(marks.end(), row.value.marks.begin(), row.value.marks.end());
      if (row.shown)
        body +=
            RowHead(Escaped(row.name)) + Cell(MarkedMarkup(row.value)) + Cell(Escaped(row.unit)) + "</tr>\n";
    }
    if (!body.empty())
      markup += TableMarkup(group, HeadCell("Input") + HeadCell("Value") + HeadCell("Unit"), body, "in");
  }
  return markup + "</div>\n" + NotesMarkup(content, marks);
}

std::string SourcesPart(const Content& content) {
  if (content.sources.empty()) return {};
  std::string markup =
      "<p>Tables, figures and clauses behind the numbers of this sheet, with the edition and how well each "
      "figure "
      "is known.</p><ul>";
  for (const std::string& source : content.sources) markup += "<li>" + Escaped(source) + "</li>\n";
  return markup + "</ul>\n";
}

}  // namespace orve::sheet
