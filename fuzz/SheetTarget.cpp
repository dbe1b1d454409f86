#include <array>
#include <memory>
#include <orve3_bs6399_2.h>
#include <sheet/Parts.h>
#include <string>
#include <vector>

#include "BuiltInEngines.h"
#include "FuzzTargets.h"

namespace orve::fuzz {

namespace {

using sheet::Content;

// The loads of a small building, worked out once: only the texts of an input change.
Content PreparedContent() {
  Host().LibraryFolder = [] { return std::string("/nowhere"); };
  Host().SystemDirectory = Host().LibraryFolder;
  RegisterBuiltInEngines();
  const auto windCase = CreateCurrentCase();
  windCase->Initialize_BreApps();
  const auto building = windCase->BuildingDimensions();
  building->ConsiderWalls(true);
  building->Face1And3_Length(20);
  building->Face2And4_Width(10);
  building->Wall_SideHeight(4);
  building->Wall_SideDiagonal(5);
  building->Wall_GableHeight(4);
  building->Wall_GableDiagonal(5);
  windCase->DynamicPressure()->BasicWindSpeed(22);
  Content content = sheet::GatherContent();
  basBS6399_2::CurrentCase.reset();
  return content;
}

std::vector<std::string> Split(std::string_view input) {
  constexpr char separator = '\xFF';
  std::vector<std::string> texts(1);
  for (const char c : input) {
    if (c == separator)
      texts.emplace_back();
    else
      texts.back() += c;
  }
  return texts;
}

/// The tree of a zone's loads with other texts.
explain::QuantityPtr Told(const explain::QuantityPtr& tree, const std::string& text) {
  if (!tree) return tree;
  auto told = std::make_shared<explain::Quantity>(*tree);
  for (std::string* place : {&told->name, &told->unit, &told->text, &told->note, &told->clause})
    *place = text;
  told->warnings = {{explain::WarningCode::FigureRecalled, text}};
  for (explain::QuantityPtr& child : told->children) {
    auto changed = std::make_shared<explain::Quantity>(*child);
    changed->name = changed->note = changed->formula = changed->numbers = text;
    child = std::move(changed);
  }
  return told;
}

// Whatever a stranger's case, site file, table file or component can name.
void PutIn(Content& content, const std::string& description, const std::string& name,
           const std::string& text) {
  content.description = description;
  for (sheet::InputRow& row : content.inputs)
    if (row.name == "Site reference") row.value.text = name;
  content.sources.push_back(text);
  content.warnings.Mark(content.inputs.front().value.marks, text + name);
  for (sheet::AreaZones& area : content.areas)
    for (sheet::FaceZones& face : area.faces)
      for (sheet::ZoneRow& row : face.rows) {
        row.name = row.size.name = name;
        row.dimensions.text = row.overall.text = text;
        row.tree = Told(row.tree, text);
      }
}

// Reads markup as a browser does, as far as a sheet needs it: tags, quoted attributes, text.
class Markup {
 public:
  explicit Markup(std::string_view html) : m_rest(html) {}

  void Check() {
    while (!m_rest.empty()) {
      const std::size_t tag = m_rest.find('<');
      if (tag == std::string_view::npos) break;
      m_rest.remove_prefix(tag + 1);
      const std::size_t end = m_rest.find('>');
      Require(end != std::string_view::npos, "a tag ends");
      const std::string_view inside = m_rest.substr(0, end);
      m_rest.remove_prefix(end + 1);
      TakeTag(inside);
    }
    Require(m_open.empty(), "every element is closed");
  }

 private:
  void TakeTag(std::string_view tag) {
    if (tag == "!DOCTYPE html") return;
    const bool closes = tag.front() == '/';
    const std::string_view name = tag.substr(closes, tag.find_first_of(" /", closes) - closes);
    Require(IsKnown(name), "an element that sheets have");
    if (closes) {
      Require(!m_open.empty() && m_open.back() == name, "elements close in their order");
      return m_open.pop_back();
    }
    CheckAttributes(tag.substr(name.size()));
    if (name == "style") TakeStyle();
    if (tag.back() != '/' && name != "meta" && name != "br") m_open.push_back(name);
  }

  static bool IsKnown(std::string_view name) {
    constexpr std::array known = {"html",   "head",  "meta",    "title", "style", "body",   "header",
                                  "main",   "nav",   "section", "h1",    "h2",    "p",      "dl",
                                  "dt",     "dd",    "div",     "ul",    "ol",    "li",     "a",
                                  "b",      "i",     "sub",     "sup",   "small", "abbr",   "br",
                                  "table",  "thead", "tbody",   "tr",    "th",    "td",     "caption",
                                  "figure", "svg",   "desc",    "path",  "text",  "circle", "figcaption"};
    for (const std::string_view element : known)
      if (element == name) return true;
    return false;
  }

  static void CheckAttributes(std::string_view text) {
    while (text.find('=') != std::string_view::npos) {
      const std::size_t equals = text.find('=');
      const std::string_view name = text.substr(text.find_first_not_of(' '), equals);
      Require(text.substr(equals + 1, 1) == "\"", "an attribute is quoted");
      const std::size_t end = text.find('"', equals + 2);
      Require(end != std::string_view::npos, "an attribute's text ends");
      const std::string_view value = text.substr(equals + 2, end - equals - 2);
      Require(!name.starts_with("on") && name.find("src") != 0 && name != "style",
              "no script, nothing fetched");
      Require(name.find("href") == std::string_view::npos || value.starts_with("#"), "no outside link");
      text.remove_prefix(end + 1);
    }
    Require(text.find_first_of("\"'") == std::string_view::npos, "a tag holds attributes alone");
  }

  void TakeStyle() {
    const std::string_view style = m_rest.substr(0, m_rest.find('<'));
    Require(m_rest.substr(style.size()).starts_with("</style>"), "the style sheet ends once");
    for (const char* fetched : {"url(", "@import", "expression("})
      Require(style.find(fetched) == std::string_view::npos, "a style sheet fetches nothing");
  }

  std::string_view m_rest;
  std::vector<std::string_view> m_open;
};

}  // namespace

void Sheet(std::string_view input) {
  static const Content prepared = PreparedContent();
  std::vector<std::string> texts = Split(input);
  texts.resize(8);
  Content content = prepared;
  PutIn(content, texts[5], texts[6], texts[7]);
  const sheet::SheetOptions heads = sheet::HeadTexts({texts[0], texts[1], texts[2], texts[3], texts[4]});
  const std::string html = sheet::Render(content, heads);
  Require(html.find('\0') == std::string::npos, "no zero byte");
  Markup(html).Check();
  const sheet::SheetOptions again = sheet::HeadsOf(html);
  Require(again.project == heads.project && again.author == heads.author && again.checker == heads.checker &&
              again.revision == heads.revision && again.date == heads.date,
          "the texts of the head come back");
  sheet::HeadsOf(input);
}

}  // namespace orve::fuzz
