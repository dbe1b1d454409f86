#include "CaseTextCheck.h"

#include <algorithm>
#include <array>
#include <map>
#include <optional>
#include <set>
#include <utility>

#include "common/NumberText.h"
#include "common/TextEncoding.h"
#include "storage/CaseText.h"

namespace windcase {

namespace {

using std::string_view;

// Other sections and the log belong to other programs or to nobody.
constexpr std::array<string_view, 6> kReadSections = {"WindLoadCase",         "BuildingDimensions",
                                                      "DynamicPressure",      "ExternalCoefficients",
                                                      "InternalCoefficients", "OverallAppliedLoads"};
constexpr string_view kWrittenBracket = "%5B";

bool IsRead(string_view section) {
  return std::find(kReadSections.begin(), kReadSections.end(), section) != kReadSections.end();
}

struct Line {
  std::size_t number = 0;
  string_view text;
  bool otherEnd = false;  ///< It doesn't end as the lines of the file should.
};

// Lines end in CR LF, or all of them in LF. Further carriage returns before a CR LF take nothing away.
std::vector<Line> LinesOf(string_view text) {
  const bool withReturns = text.find('\r') != string_view::npos;
  std::vector<Line> lines;
  for (std::size_t at = 0; at < text.size();) {
    const std::size_t end = std::min(text.find_first_of("\r\n", at), text.size());
    const std::size_t afterReturns = std::min(text.find_first_not_of('\r', end), text.size());
    const bool returned = afterReturns > end;
    const bool fed = afterReturns < text.size() && text[afterReturns] == '\n';
    const bool otherEnd = fed ? withReturns && !returned : returned;
    lines.push_back({lines.size() + 1, text.substr(at, end - at), otherEnd});
    at = fed ? afterReturns + 1 : afterReturns;
  }
  return lines;
}

/// What stands between "[" at a line's begin and "]", and what follows; nothing for other lines.
struct Head {
  string_view name;
  string_view rest;
};
std::optional<Head> HeadOf(string_view line) {
  const string_view text = orve::TrimBlanks(line);
  const std::size_t end = text.find(']');
  if (text.empty() || text.front() != '[' || end == string_view::npos) return std::nullopt;
  return Head{text.substr(1, end - 1), orve::TrimBlanks(text.substr(end + 1))};
}

std::string WithoutBrackets(string_view text) {
  std::string written;
  for (const char c : text) written += c == '[' ? std::string(kWrittenBracket) : std::string(1, c);
  return written;
}

std::string WrittenValue(string_view value) {
  if (value.find('[') == string_view::npos) return std::string(value);
  return orve::EncodeCaseText(orve::DecodeCaseText(value));
}

// Walks over the lines once: finds the faults, and gathers what the lines stand for.
class Reader {
 public:
  explicit Reader(string_view bytes) : m_text(orve::FileText(bytes)) {
    for (const Line& line : LinesOf(m_text)) Take(line);
  }

  const std::vector<CaseTextFault>& Faults() const { return m_faults; }

  std::string MeantText() const {
    std::string text;
    for (const Section& section : m_sections) {
      if (!text.empty()) text += "\r\n";
      if (!section.name.empty()) text += "[" + section.name + "]\r\n";
      for (const std::string& line : section.lines) text += line + "\r\n";
    }
    return text;
  }

 private:
  struct Section {
    std::string name;  // empty for the lines before the first head
    std::vector<std::string> lines;
  };

  void Take(const Line& line) {
    if (line.otherEnd) Add(line, "doesn't end as the lines of the file do");
    if (const std::optional<Head> head = HeadOf(line.text))
      TakeHead(line, *head);
    else
      TakeContent(line, line.text);
  }

  void TakeHead(const Line& line, const Head& head) {
    const std::string name = WithoutBrackets(orve::TrimBlanks(head.name));
    if (name != head.name) Add(line, "has blanks or a \"[\" inside the head of a section");
    const auto [place, isNew] = m_places.emplace(name, m_sections.size());
    m_present = place->second;
    if (isNew) m_sections.push_back({name, {}});
    if (!isNew && IsRead(name)) Add(line, "is a second head of the section [" + name + "]");
    if (head.rest.empty()) return;
    Add(line, "goes on behind the head of a section");
    TakeContent(line, head.rest);
  }

  void TakeContent(const Line& line, string_view text) {
    if (text.find('[') != string_view::npos) Add(line, "has a \"[\" inside, which ends its section");
    const std::size_t equals = text.find('=');
    Section& section = m_sections[m_present];
    if (equals == string_view::npos) {
      if (!orve::TrimBlanks(text).empty()) section.lines.push_back(WithoutBrackets(text));
      return;
    }
    string_view key = text.substr(0, equals);
    if (IsRead(section.name)) {
      if (orve::TrimBlanks(key) != key) Add(line, "has blanks around its key");
      key = orve::TrimBlanks(key);
      if (!m_keys.emplace(m_present, key).second)
        return Add(line, "gives " + std::string(key) + " a second time; the first counts");
    }
    section.lines.push_back(WithoutBrackets(key) + "=" + WrittenValue(text.substr(equals + 1)));
  }

  void Add(const Line& line, std::string fault) { m_faults.push_back({line.number, std::move(fault)}); }

  std::string m_text;
  std::vector<CaseTextFault> m_faults;
  std::vector<Section> m_sections{{}};
  std::map<std::string, std::size_t> m_places;
  std::set<std::pair<std::size_t, string_view>> m_keys;
  std::size_t m_present = 0;
};

}  // namespace

std::vector<CaseTextFault> CheckCaseText(string_view bytes) {
  return Reader(bytes).Faults();
}

std::string MeantCaseText(string_view bytes) {
  return Reader(bytes).MeantText();
}

bool IsCaseText(string_view bytes) {
  const std::string head = "[" + std::string(kReadSections.front()) + "]";
  for (std::size_t at = bytes.find(head); at != string_view::npos; at = bytes.find(head, at + 1))
    if (at == 0 || bytes[at - 1] == '\n' || bytes[at - 1] == '\r' || bytes.substr(0, at) == "\xEF\xBB\xBF")
      return true;
  return false;
}

}  // namespace windcase
