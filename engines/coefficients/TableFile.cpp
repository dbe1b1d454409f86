#include "coefficients/TableFile.h"

#include <algorithm>
#include <cmath>
#include <utility>
#include <vector>

#include "coefficients/TableCell.h"
#include "coefficients/TableSet.h"
#include "common/Error.h"
#include "common/FileLayer.h"
#include "common/TextEncoding.h"

namespace orve::coefficients {

namespace {

using Words = std::vector<std::string_view>;

Words SplitWords(std::string_view line) {
  Words words;
  constexpr std::string_view blanks = " \t";
  for (std::size_t begin = line.find_first_not_of(blanks); begin != std::string_view::npos;) {
    const std::size_t end = std::min(line.find_first_of(blanks, begin), line.size());
    words.push_back(line.substr(begin, end - begin));
    begin = line.find_first_not_of(blanks, end);
  }
  return words;
}

std::string_view Trim(std::string_view text) {
  constexpr std::string_view blanks = " \t\r";
  const std::size_t begin = text.find_first_not_of(blanks);
  if (begin == std::string_view::npos) return {};
  return text.substr(begin, text.find_last_not_of(blanks) - begin + 1);
}

/// A day as "2026-11-24".
bool IsDay(std::string_view text) {
  if (text.size() != 10 || text[4] != '-' || text[7] != '-') return false;
  for (const std::size_t i : {0u, 1u, 2u, 3u, 5u, 6u, 8u, 9u})
    if (text[i] < '0' || text[i] > '9') return false;
  const double month = WordToNumber(text.substr(5, 2));
  const double day = WordToNumber(text.substr(8, 2));
  return month >= 1 && month <= 12 && day >= 1 && day <= 31;
}

/// Names that the row parameter of a block may have; the first is that of the built-in table.
Words ParameterNames(const Block& layout) {
  // The print settles what the rows of parapets are headed by.
  if (layout.parameter == "ratio") return {"ratio", "h/b", "h/H"};
  return {layout.parameter};
}

class Reader {
 public:
  TableFileResult Read(std::string_view text) {
    try {
      while (!text.empty()) {
        ++m_line;
        const std::size_t end = std::min(text.find('\n'), text.size());
        ReadLine(Trim(text.substr(0, end)));
        text.remove_prefix(std::min(end + 1, text.size()));
      }
      Finish();
    } catch (TableFault& fault) {
      return std::move(fault);
    }
    return std::unique_ptr<const OfficeTable>(std::move(m_office));
  }

 private:
  enum Key { TableKey, Standard, Edition, CheckedBy, CheckedOn, KeyCount };
  static constexpr std::string_view kKeys[KeyCount] = {"Table", "Standard", "Edition", "Checked by",
                                                       "Checked on"};

  [[noreturn]] void Fail(std::string reason) const { throw TableFault{m_line, std::move(reason)}; }

  void ReadLine(std::string_view line) {
    if (line.empty() || line.front() == '#') return;
    if (line.front() == '[')
      BeginSection(line);
    else if (!m_layout)
      ReadHead(line);
    else if (m_columns.empty())
      ReadLetters(SplitWords(line));
    else
      ReadRow(SplitWords(line));
  }

  void ReadHead(std::string_view line) {
    const std::size_t colon = line.find(':');
    const std::string_view key = Trim(line.substr(0, std::min(colon, line.size())));
    const auto* found = std::find(std::begin(kKeys), std::end(kKeys), key);
    if (colon == std::string_view::npos || found == std::end(kKeys))
      Fail(Quoted(key) + " is no line of the head: Table, Standard, Edition, Checked by and Checked on are");
    std::string& value = m_head[static_cast<std::size_t>(found - std::begin(kKeys))];
    if (!value.empty()) Fail(Quoted(key) + " stands twice in the head");
    value = Trim(line.substr(colon + 1));
    if (value.empty()) Fail(Quoted(key) + " is empty");
    if (key == kKeys[CheckedOn] && !IsDay(value)) Fail(Quoted(value) + " is no day of the form 2026-11-24");
    if (key == kKeys[TableKey]) {
      m_builtIn = FindBuiltInTable(value);
      if (!m_builtIn) Fail(Quoted(value) + " is no table that can be replaced: 5, 8, 9, 10, 11 and 21 are");
    }
  }

  void CheckHead() const {
    for (std::size_t i = 0; i < KeyCount; ++i)
      if (m_head[i].empty()) Fail("the head lacks " + Quoted(kKeys[i]));
  }

  void BeginSection(std::string_view line) {
    CheckHead();
    FinishSection();
    if (line.back() != ']') Fail("a section is headed as [heading]");
    const std::string_view heading = Trim(line.substr(1, line.size() - 2));
    std::string known;
    for (std::size_t i = 0; i < m_builtIn->blockCount; ++i) {
      const Block& layout = m_builtIn->blocks[i];
      known.append(known.empty() ? "" : ", ").append(layout.heading);
      if (layout.heading != heading) continue;
      m_layout = &layout;
      m_block = &m_office->table.blocks[i];
    }
    if (!m_layout)
      Fail(Quoted(heading) + " is no section of " + std::string(m_builtIn->name) + ": " + known + " are");
    if (m_block->columns != 0) Fail("section " + Quoted(heading) + " stands twice");
    *m_block = *m_layout;
    m_block->rows = {};
    m_block->rowCount = 0;
  }

  void ReadLetters(const Words& words) {
    for (const std::string_view name : ParameterNames(*m_layout))
      if (words.front() == name) m_block->parameter = name;
    if (words.front() != m_block->parameter)
      Fail("the section's first line begins with " + Quoted(words.front()) + " instead of " +
           Quoted(m_layout->parameter));
    for (std::size_t i = 1; i < words.size(); ++i) {
      const auto last = m_layout->letters.begin() + static_cast<std::ptrdiff_t>(m_layout->columns);
      const auto found = std::find(m_layout->letters.begin(), last, words[i]);
      if (found == last) Fail(Quoted(words[i]) + " is no zone of this section");
      const auto column = static_cast<std::size_t>(found - m_layout->letters.begin());
      if (std::find(m_columns.begin(), m_columns.end(), column) != m_columns.end())
        Fail("zone " + Quoted(words[i]) + " stands twice");
      m_columns.push_back(column);
    }
    if (m_columns.size() == m_layout->columns) return;
    for (std::size_t i = 0; i < m_layout->columns; ++i)
      if (std::find(m_columns.begin(), m_columns.end(), i) == m_columns.end())
        Fail("zone " + Quoted(m_layout->letters[i]) + " is missing");
  }

  void ReadRow(const Words& words) {
    if (words.size() != m_columns.size() + 1)
      Fail("the row has " + std::to_string(words.size() - 1) + " cells instead of " +
           std::to_string(m_columns.size()));
    if (m_block->rowCount == kMaxRows) Fail("more than " + std::to_string(kMaxRows) + " rows");
    Row& row = m_block->rows[m_block->rowCount];
    ReadParameter(words.front(), row);
    for (std::size_t i = 0; i < m_columns.size(); ++i) {
      const std::string reason = ReadCell(words[i + 1], m_builtIn->net, row.cells[m_columns[i]]);
      if (!reason.empty()) Fail("zone " + std::string(m_layout->letters[m_columns[i]]) + ": " + reason);
    }
    ++m_block->rowCount;
  }

  void ReadParameter(std::string_view word, Row& row) {
    const Row& expected = m_layout->rows[m_block->rowCount];
    if (!m_layout->rows[0].name.empty()) {
      if (m_block->rowCount >= m_layout->rowCount || word != expected.name)
        Fail(Quoted(word) + " is not the next row of this section");
      row.parameter = expected.parameter;
      row.name = expected.name;
      return;
    }
    row.parameter = WordToNumber(word);
    if (IsBlank(row.parameter)) Fail(Quoted(m_block->parameter) + " " + Quoted(word) + " is not a number");
    CheckRange(word, row.parameter);
    if (m_block->rowCount == 0) return;
    const double before = m_block->rows[m_block->rowCount - 1].parameter;
    if (!(row.parameter > before)) Fail(Quoted(m_block->parameter) + " " + Quoted(word) + " doesn't rise");
    // A pitch of either sign is never interpolated across the flat roof.
    if (before < 0 && row.parameter > 0 && (before != -5 || row.parameter != 5))
      Fail("the rows on either side of 0 degrees are -5 and 5");
  }

  void CheckRange(std::string_view word, double parameter) const {
    const bool pitch = m_block->parameter == "pitch";
    const double limit = 90;
    if (pitch ? std::fabs(parameter) >= limit : parameter <= 0)
      Fail(Quoted(m_block->parameter) + " " + Quoted(word) + " is outside " +
           (pitch ? "-90 to 90" : "what is above 0"));
  }

  void FinishSection() {
    if (m_layout) {
      const std::string section = "section " + Quoted(m_layout->heading);
      if (m_block->rowCount == 0) Fail(section + " has no rows");
      if (!m_layout->rows[0].name.empty() && m_block->rowCount != m_layout->rowCount)
        Fail(section + " lacks the row " + Quoted(m_layout->rows[m_block->rowCount].name));
    }
    m_layout = nullptr;
    m_columns.clear();
  }

  void Finish() {
    CheckHead();
    FinishSection();
    Table& table = m_office->table;
    static_cast<TableTitle&>(table) = *m_builtIn;
    table.blockCount = m_builtIn->blockCount;
    table.net = m_builtIn->net;
    m_office->standard = m_head[Standard];
    m_office->edition =
        m_head[Edition] + "; checked by " + m_head[CheckedBy] + " on " + m_head[CheckedOn] + ", table file";
    const bool substitute = !m_office->standard.starts_with("BS 6399-2");
    m_office->origin = {m_office->standard, m_office->edition, "", "", substitute};
    for (std::size_t i = 0; i < table.blockCount; ++i) {
      Block& block = table.blocks[i];
      if (block.columns == 0) Fail("section " + Quoted(m_builtIn->blocks[i].heading) + " is missing");
      block.origin = &m_office->origin;
    }
  }

  std::size_t m_line = 0;
  std::string m_head[KeyCount];
  const Table* m_builtIn = nullptr;
  std::unique_ptr<OfficeTable> m_office = std::make_unique<OfficeTable>();
  const Block* m_layout = nullptr;     ///< Built-in block of the section being read.
  Block* m_block = nullptr;            ///< What is read of it.
  std::vector<std::size_t> m_columns;  ///< Column of each cell of a row.
};

}  // namespace

TableFileResult ReadTableText(std::string_view text) {
  return Reader().Read(text);
}

TableFileResult ReadTableFile(const std::string& path) {
  try {
    return ReadTableText(ToUtf8(ReadWholeFile(path)));
  } catch (const Error& error) {
    return TableFault{0, "the file can't be read (error " + std::to_string(error.Number()) + ")"};
  }
}

std::string TableFileName(std::string_view tableName) {
  std::string name(tableName);
  std::erase(name, ' ');
  return name + ".txt";
}

std::string FaultText(const std::string& path, const TableFault& fault) {
  if (fault.line == 0) return path + ": " + fault.reason;
  return path + ", line " + std::to_string(fault.line) + ": " + fault.reason;
}

}  // namespace orve::coefficients
