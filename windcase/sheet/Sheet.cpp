#include "Sheet.h"

#include <vector>

#include "Content.h"
#include "Html.h"
#include "Parts.h"

namespace orve::sheet {

namespace {

struct Part {
  std::string title;
  std::string body;
  bool ownPage = true;
};

std::vector<Part> PartsOf(const Content& content) {
  std::vector<Part> parts = {{"Warnings", WarningsPart(content), false},
                             {"Inputs", InputsPart(content)},
                             {"Site and dynamic pressure", SitePart(content)}};
  for (const AreaZones& area : content.areas)
    parts.push_back({area.title + ": zones and loads", AreaPart(content, area)});
  for (const AreaZones& area : content.areas)
    parts.push_back({area.title + ": derivation of the governing load", DerivationPart(content, area)});
  parts.push_back({"Cantilevers", CantileverPart(content)});
  parts.push_back({"Loads of members", MembersPart(content), false});
  parts.push_back({"Sources of the figures", SourcesPart(content), false});
  std::erase_if(parts, [](const Part& part) { return part.body.empty(); });
  return parts;
}

std::string Contents(const std::vector<Part>& parts) {
  std::string markup = "<nav aria-label=\"Contents\"><h2>Contents</h2><ol>";
  for (std::size_t i = 0; i < parts.size(); ++i)
    markup += "<li><a href=\"#s" + std::to_string(i + 1) + "\">" + Escaped(parts[i].title) + "</a></li>";
  return markup + "</ol></nav>\n";
}

// On a screen each part tells its number; on paper each page tells its own.
std::string Section(const Part& part, std::size_t number, std::size_t count) {
  const std::string id = "s" + std::to_string(number);
  return "<section" + std::string(part.ownPage ? " class=\"page\"" : "") + " id=\"" + id +
         "\" aria-labelledby=\"" + id + "h\"><p class=\"n\">Section " + std::to_string(number) + " of " +
         std::to_string(count) + "</p><h2 id=\"" + id + "h\">" + std::to_string(number) + " " +
         Escaped(part.title) + "</h2>\n" + part.body + "</section>\n";
}

std::string MetaTags(const Content& content, const SheetOptions& options) {
  return MetaTag("version", content.version) + MetaTag("digest", content.digest) +
         MetaTag("project", options.project) + MetaTag("author", options.author) +
         MetaTag("checker", options.checker) + MetaTag("revision", options.revision) +
         MetaTag("date", options.date);
}

// What a browser may do with a sheet: show it, with its own style sheet.
constexpr const char* kPolicy =
    "<meta http-equiv=\"Content-Security-Policy\" content=\"default-src 'none'; style-src 'unsafe-inline'; "
    "base-uri 'none'; form-action 'none'\">\n";

}  // namespace

std::string Render(const Content& content, const SheetOptions& options) {
  const std::vector<Part> parts = PartsOf(content);
  const std::string title =
      content.description.empty() ? std::string("Wind loads") : "Wind loads: " + content.description;
  std::string html = "<!DOCTYPE html>\n<html lang=\"en-GB\">\n<head>\n<meta charset=\"utf-8\">\n" +
                     std::string(kPolicy) +
                     "<meta name=\"viewport\" content=\"width=device-width, initial-scale=1\">\n<title>" +
                     Escaped(title) + "</title>\n" + MetaTags(content, options) + "<style>\n" +
                     StyleOf(content, options) + "</style>\n</head>\n<body>\n<header>\n" +
                     CoverPart(content, options) + "</header>\n<main>\n" + Contents(parts);
  for (std::size_t i = 0; i < parts.size(); ++i) html += Section(parts[i], i + 1, parts.size());
  return html + "</main>\n</body>\n</html>\n";
}

SheetOptions HeadTexts(const SheetOptions& options) {
  return {PlainText(options.project), PlainText(options.author), PlainText(options.checker),
          PlainText(options.revision), PlainText(options.date)};
}

SheetOptions HeadsOf(std::string_view html) {
  return HeadTexts({MetaContent(html, "project"), MetaContent(html, "author"), MetaContent(html, "checker"),
                    MetaContent(html, "revision"), MetaContent(html, "date")});
}

// The sheet bears its date, so that it stands when the case is saved again on another day.
std::string MakeSheet(const SheetOptions& options) {
  const Content content = GatherContent();
  SheetOptions heads = HeadTexts(options);
  if (heads.date.empty()) heads.date = content.modified;
  return Render(content, heads);
}

SheetVerdict CheckSheet(std::string_view html) {
  const Content content = GatherContent();
  SheetVerdict verdict;
  verdict.printedDigest = MetaContent(html, "digest");
  verdict.digest = content.digest;
  verdict.isSheet = !verdict.printedDigest.empty();
  verdict.sameVersion = MetaContent(html, "version") == content.version;
  verdict.sameDigest = verdict.printedDigest == verdict.digest;
  verdict.sameBytes = verdict.isSheet && Render(content, HeadsOf(html)) == html;
  return verdict;
}

}  // namespace orve::sheet
