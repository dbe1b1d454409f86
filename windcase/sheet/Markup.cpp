// Small pieces of markup that all parts use.
#include <algorithm>

#include "Html.h"
#include "Parts.h"

namespace orve::sheet {

std::string Ranges(const std::vector<int>& numbers) {
  std::string text;
  for (std::size_t i = 0; i < numbers.size(); ++i) {
    std::size_t last = i;
    while (last + 1 < numbers.size() && numbers[last + 1] == numbers[last] + 1) ++last;
    text += (text.empty() ? "" : ", ") + std::to_string(numbers[i]);
    if (last > i) text += (last > i + 1 ? "\u2013" : ", ") + std::to_string(numbers[last]);
    i = last;
  }
  return text;
}

std::string MarkMarkup(const Marks& marks) {
  if (marks.empty()) return {};
  Marks sorted = marks;
  std::sort(sorted.begin(), sorted.end());
  return "<sup><a href=\"#w" + std::to_string(sorted.front()) + "\">W" + Ranges(sorted) + "</a></sup>";
}

std::string MarkedMarkup(const Marked& marked) {
  return Escaped(marked.text) + MarkMarkup(marked.marks);
}

std::string WarningMarkup(const Content& content, std::size_t number) {
  std::string text = content.warnings.Texts().at(number - 1);
  if (text[0] >= 'a' && text[0] <= 'z') text[0] = static_cast<char>(text[0] - 'a' + 'A');
  return "<b>W" + std::to_string(number) + "</b> " + Escaped(text);
}

std::string NotesMarkup(const Content& content, Marks marks) {
  std::sort(marks.begin(), marks.end());
  marks.erase(std::unique(marks.begin(), marks.end()), marks.end());
  if (marks.empty()) return {};
  std::string markup = "<ul class=\"w\">";
  for (const int mark : marks)
    markup += "<li>" + WarningMarkup(content, static_cast<std::size_t>(mark)) + "</li>";
  return markup + "</ul>\n";
}

std::string TableMarkup(const std::string& caption, const std::string& head, const std::string& body,
                        const char* style) {
  const std::string name = Escaped(caption);
  return std::string("<div class=\"t") + (*style ? " " : "") + style +
         "\" role=\"region\" tabindex=\"0\" aria-label=\"" + name + "\"><table><caption>" + name +
         "</caption><thead><tr>" + head + "</tr></thead><tbody>\n" + body + "</tbody></table></div>\n";
}

std::string HeadCell(const std::string& markup) {
  return "<th scope=\"col\">" + markup + "</th>";
}

std::string RowHead(const std::string& markup) {
  return "<tr><th scope=\"row\">" + markup + "</th>";
}

std::string Cell(const std::string& markup) {
  return "<td>" + markup + "</td>";
}

std::string FigureMarkup(const std::string& svg, const std::string& caption) {
  return "<figure>" + svg + "<figcaption>" + Escaped(caption) + "</figcaption></figure>\n";
}

}  // namespace orve::sheet
