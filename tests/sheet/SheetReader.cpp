#include "sheet/SheetReader.h"

#include <BuiltInEngines.h>
#include <set>

namespace orve::test {

namespace {

void Replace(std::string& text, const std::string& from, const std::string& to) {
  for (std::size_t at = text.find(from); at != std::string::npos; at = text.find(from, at + to.size()))
    text.replace(at, from.size(), to);
}

void Remove(std::string& text, const std::string& from, const std::string& to) {
  for (std::size_t at = text.find(from); at != std::string::npos; at = text.find(from))
    text.erase(at, text.find(to, at) + to.size() - at);
}

std::vector<std::string> CellsOf(const std::string& row) {
  std::vector<std::string> cells;
  for (const char* tag : {"<th scope=\"row\">", "<td"})
    for (const std::string& cell : Between(row, tag, tag[2] == 'h' ? "</th>" : "</td>"))
      cells.push_back(PlainText(tag[2] == 'h' ? cell : cell.substr(cell.find('>') + 1)));
  return cells;
}

bool IsVoid(const std::string& name) {
  return name == "meta" || name == "br";
}

// The tags must close in the order in which they were opened.
std::string CheckNesting(const std::string& html) {
  std::vector<std::string> open;
  for (const std::string& tag : Between(html.substr(html.find('\n')), "<", ">")) {
    const bool closing = tag.front() == '/';
    const std::string name = tag.substr(closing, tag.find_first_of(" /", closing) - closing);
    if (closing) {
      if (open.empty() || open.back() != name)
        return "</" + name + "> closes " + (open.empty() ? "nothing" : open.back());
      open.pop_back();
    } else if (tag.back() != '/' && !IsVoid(name)) {
      open.push_back(name);
    }
  }
  return open.empty() ? "" : "<" + open.back() + "> isn't closed";
}

std::string CheckLinks(const std::string& html) {
  std::set<std::string> ids;
  for (const std::string& id : Between(html, " id=\"", "\""))
    if (!ids.insert(id).second) return "id met twice: " + id;
  for (const std::string& link : Between(html, " href=\"", "\""))
    if (link.front() != '#' || ids.count(link.substr(1)) == 0) return "link to nowhere: " + link;
  return {};
}

}  // namespace

bool Has(const std::string& text, const std::string& part) {
  return text.find(part) != std::string::npos;
}

std::vector<std::string> Between(const std::string& text, const std::string& from, const std::string& to) {
  std::vector<std::string> parts;
  for (std::size_t at = text.find(from); at != std::string::npos; at = text.find(from, at)) {
    at += from.size();
    const std::size_t end = text.find(to, at);
    parts.push_back(text.substr(at, end - at));
  }
  return parts;
}

std::string PlainText(const std::string& markup) {
  std::string text = markup;
  Remove(text, "<sup><a", "</sup>");
  Remove(text, "<small>", "</small>");
  Replace(text, "<sup>", "^");
  Replace(text, "\u2212", "-");
  Remove(text, "<", ">");
  for (const auto& [entity, character] :
       {std::pair("&lt;", "<"), std::pair("&gt;", ">"), std::pair("&quot;", "\""), std::pair("&#39;", "'"),
        std::pair("&nbsp;", " "), std::pair("&amp;", "&")})
    Replace(text, entity, character);
  return text;
}

std::vector<SheetTable> TablesOf(const std::string& html) {
  std::vector<SheetTable> tables;
  for (const std::string& table : Between(html, "<table>", "</table>")) {
    SheetTable read{PlainText(Between(table, "<caption>", "</caption>").at(0)), {}};
    for (const std::string& row : Between(Between(table, "<tbody>", "</tbody>").at(0), "<tr>", "</tr>"))
      read.rows.push_back(CellsOf(row));
    tables.push_back(std::move(read));
  }
  return tables;
}

std::vector<std::vector<std::string>> RowsOf(const std::string& html, const std::string& caption) {
  for (const SheetTable& table : TablesOf(html))
    if (table.caption == caption) return table.rows;
  return {};
}

std::string FaultsOf(const std::string& html) {
  if (const std::string fault = CheckNesting(html); !fault.empty()) return fault;
  if (const std::string fault = CheckLinks(html); !fault.empty()) return fault;
  for (const char* forbidden : {"<script", " src=", "url(", "@import", "<link", " style=", ">nan", "= nan",
                                "\"nan", "+nan", ">inf", "= inf"})
    if (Has(html, forbidden)) return forbidden;
  for (const std::string& head : Between(html, "<th", ">"))
    if (head != "ead" && !Has(head, "scope=")) return "a head without scope: " + head;
  for (const std::string& drawing : Between(html, "<svg", "</svg>"))
    if (!Has(drawing, "role=\"img\"") || !Has(drawing, "<title>") || !Has(drawing, "<desc>"))
      return "a drawing without words";
  return {};
}

SheetCase::SheetCase() {
  Host().SystemDirectory = [] { return std::string(ORVE_DATA_FOLDER); };
  RegisterBuiltInEngines();
  root = CreateCurrentCase();
  root->Initialize_BreApps();
}

SheetCase::~SheetCase() {
  root.reset();
  ReleaseProcess();
  Host().SystemDirectory = nullptr;
}

}  // namespace orve::test
