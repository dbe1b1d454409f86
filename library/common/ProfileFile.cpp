#include "common/ProfileFile.h"

#include <algorithm>

#include "common/Error.h"
#include "common/FileLayer.h"
#include "common/LetterCase.h"
#include "common/NumberText.h"
#include "common/TextEncoding.h"

namespace orve {

namespace {

constexpr std::string_view LineEnd = "\r\n";
constexpr std::size_t LongestValue = 1024;

std::string_view WithoutQuotes(std::string_view value) {
  const bool quoted =
      value.size() >= 2 && value.front() == value.back() && (value.front() == '"' || value.front() == '\'');
  return quoted ? value.substr(1, value.size() - 2) : value;
}

/// The upper-case name of a section line; empty for any other line.
std::string SectionName(std::string_view line) {
  const std::size_t close = line.find(']');
  if (line.empty() || line.front() != '[' || close == std::string_view::npos) return {};
  return UpperCase(TrimBlanks(line.substr(1, close - 1)));
}

}  // namespace

struct ProfileFile::Line {
  std::size_t begin;
  std::size_t end;   ///< Behind the last character.
  std::size_t next;  ///< Begin of the next line.
};

/// Where a key stands, or where it would be inserted.
struct ProfileFile::Place {
  bool sectionFound = false;
  bool keyFound = false;
  std::size_t valueBegin = 0;
  std::size_t valueEnd = 0;
  std::size_t insertAt = 0;
};

ProfileFile ProfileFile::Load(const std::string& path) {
  try {
    return ProfileFile(FileText(ReadWholeFile(path)));
  } catch (const Error& error) {
    ProfileFile empty{std::string()};
    const int number = error.Number();
    empty.m_unreadable = number != static_cast<int>(ErrorNumber::FileNotFound) &&
                         number != static_cast<int>(ErrorNumber::PathNotFound);
    return empty;
  }
}

ProfileFile::Line ProfileFile::LineAt(std::size_t begin) const {
  const std::size_t end = std::min(m_text.find_first_of(LineEnd, begin), m_text.size());
  const bool carriageReturn = m_text.compare(end, 2, LineEnd) == 0;
  return {begin, end, std::min(end + (carriageReturn ? 2 : 1), m_text.size())};
}

template <class Visit>
ProfileFile::Place ProfileFile::Walk(std::string_view section, Visit visit) const {
  const std::string wantedSection = UpperCase(TrimBlanks(section));
  Place place;
  for (std::size_t at = 0; at < m_text.size();) {
    const Line line = LineAt(at);
    at = line.next;
    const std::string_view whole = std::string_view(m_text).substr(line.begin, line.end - line.begin);
    const std::string_view text = TrimBlanks(whole);
    if (text.empty() || text.front() == ';') continue;
    if (text.front() == '[') {
      if (place.sectionFound) break;
      place.sectionFound = SectionName(text) == wantedSection;
      place.insertAt = line.next;
      continue;
    }
    if (!place.sectionFound) continue;
    place.insertAt = line.next;
    const std::size_t sign = whole.find('=');
    if (sign == std::string_view::npos) continue;
    place.valueBegin = line.begin + sign + 1;
    place.valueEnd = line.end;
    place.keyFound = visit(UpperCase(TrimBlanks(whole.substr(0, sign))), place);
    if (place.keyFound) break;
  }
  return place;
}

ProfileFile::Place ProfileFile::Find(std::string_view section, std::string_view key) const {
  const std::string wanted = UpperCase(TrimBlanks(key));
  return Walk(section, [&wanted](const std::string& found, const Place&) { return found == wanted; });
}

std::string ProfileFile::ValueAt(const Place& place) const {
  const auto value = std::string_view(m_text).substr(place.valueBegin, place.valueEnd - place.valueBegin);
  return FirstCharacters(WithoutQuotes(TrimBlanks(value)), LongestValue);
}

std::optional<std::string> ProfileFile::Value(std::string_view section, std::string_view key) const {
  const Place place = Find(section, key);
  if (!place.keyFound) return std::nullopt;
  return ValueAt(place);
}

std::unordered_map<std::string, std::string> ProfileFile::Values(std::string_view section) const {
  std::unordered_map<std::string, std::string> values;
  Walk(section, [&](const std::string& key, const Place& place) {
    values.try_emplace(key, ValueAt(place));
    return false;
  });
  return values;
}

void ProfileFile::Value(std::string_view section, std::string_view key, std::string_view value) {
  const std::string_view stored = value.substr(0, value.find_first_of(LineEnd));
  const Place place = Find(section, key);
  if (place.keyFound) {
    if (m_text.compare(place.valueBegin, place.valueEnd - place.valueBegin, stored) == 0) return;
    m_changed = true;
    m_text.replace(place.valueBegin, place.valueEnd - place.valueBegin, stored);
    return;
  }
  m_changed = true;
  std::string added;
  std::size_t at = place.insertAt;
  if (!place.sectionFound) {
    at = m_text.size();
    added.append("[").append(section).append("]").append(LineEnd);
  }
  added.append(key).append("=").append(stored).append(LineEnd);
  const bool lineIsOpen = at > 0 && m_text[at - 1] != '\n' && m_text[at - 1] != '\r';
  if (lineIsOpen) added.insert(0, LineEnd);
  m_text.insert(at, added);
}

// The values that are there are replaced while the text is copied once; the others are added to it.
void ProfileFile::Values(std::string_view section,
                         const std::vector<std::pair<std::string, std::string>>& values) {
  std::unordered_map<std::string, const std::string*> wanted;
  for (const auto& [key, value] : values) wanted.emplace(UpperCase(TrimBlanks(key)), &value);
  std::string text;
  std::size_t copied = 0;
  Walk(section, [&](const std::string& key, const Place& place) {
    const auto found = wanted.find(key);
    if (found == wanted.end()) return false;
    const std::string_view stored =
        std::string_view(*found->second).substr(0, found->second->find_first_of(LineEnd));
    wanted.erase(found);
    if (m_text.compare(place.valueBegin, place.valueEnd - place.valueBegin, stored) == 0) return false;
    text.append(m_text, copied, place.valueBegin - copied).append(stored);
    copied = place.valueEnd;
    return false;
  });
  if (copied > 0) {
    m_changed = true;
    m_text = text.append(m_text, copied);
  }
  for (const auto& [key, value] : values)
    if (wanted.contains(UpperCase(TrimBlanks(key)))) Value(section, key, value);
}

void ProfileFile::Store(const std::string& path, Durability durability) const {
  if (m_unreadable || !m_changed) return;
  try {
    WriteWholeFile(path, m_text, durability);
  } catch (const Error&) {
    // An unwritable settings file leaves the setting unsaved; it never stops the operation that sets it.
  }
}

}  // namespace orve
