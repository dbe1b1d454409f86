#include "storage/DocumentText.h"

#include <algorithm>
#include <functional>

namespace orve {

namespace {

constexpr std::string_view LineEnd = "\r\n";
constexpr std::string_view LineEndsAndBlanks = "\r\n ";
constexpr auto None = std::string::npos;

/// Where the text ends that stands before `end`, once line ends and blanks are stepped over: the position
/// behind its last character.
std::size_t StepBack(const std::string& text, std::size_t end) {
  return end == 0 ? 0 : text.find_last_not_of(LineEndsAndBlanks, end - 1) + 1;
}

bool Contains(std::string_view text, std::string_view characters) {
  return text.find_first_of(characters) != std::string_view::npos;
}

std::size_t HashOf(std::string_view key) {
  return std::hash<std::string_view>()(key);
}

// The line feed of the line before belongs to the search, so that a key is found at a line's begin only.
std::string KeyHead(const std::string& key) {
  return "\n" + key + "=";
}

}  // namespace

const std::string& DocumentText::Text() const {
  MakeEdits();
  return m_text;
}

void DocumentText::Text(std::string text) {
  Forget();
  m_text = std::move(text);
}

std::optional<std::string> DocumentText::Value(const std::string& section, const std::string& key) const {
  MakeEdits();
  if (!Locate(section)) return std::nullopt;
  const std::size_t keyAt = KeyAt(key, m_end);
  if (keyAt == None) return std::nullopt;
  const std::size_t valueAt = keyAt + KeyHead(key).size();
  return m_text.substr(valueAt, m_text.find('\r', valueAt) - valueAt);
}

void DocumentText::Value(const std::string& section, const std::string& key, const std::string& value) {
  if (m_section != section || m_changed.contains(key) || Contains(key, "=\n")) MakeEdits();
  const std::string line = key + "=" + value;
  if (!Locate(section)) {
    if (!m_text.empty()) m_text += LineEnd;
    m_text.append("[").append(section).append("]").append(LineEnd).append(line).append(LineEnd);
    Forget();
    return;
  }
  bool plain = !Contains(key, "=\r\n[") && !Contains(value, "\r\n[") && !value.ends_with(' ');
  m_changed.insert(key);
  const std::size_t keyAt = KeyAt(key, m_lastCharacter);
  if (keyAt == None) {
    AddKey(line);
  } else {
    const std::size_t valueAt = keyAt + KeyHead(key).size();
    const std::size_t lineEnd = std::min(m_text.find('\r', valueAt), m_text.size());
    const std::size_t length = StepBack(m_text, lineEnd) - valueAt;
    plain = plain && !Contains(std::string_view(m_text).substr(valueAt, lineEnd - valueAt), "\n[");
    // A value that goes beyond its line may hold lines that are to be changed, which is done first.
    if (!plain && (!m_edits.empty() || !m_added.empty())) {
      MakeEdits();
      Value(section, key, value);
      return;
    }
    m_edits.push_back({valueAt, length, value});
  }
  if (!plain) MakeEdits();
}

void DocumentText::AddKey(const std::string& line) {
  m_added.append(LineEnd).append(line);
}

/// One pass for all changes to a section.
void DocumentText::MakeEdits() const {
  if (m_edits.empty() && m_added.empty()) return;
  if (!m_added.empty()) {
    const bool lineEnds = m_text.compare(m_lastCharacter, LineEnd.size(), LineEnd) == 0;
    if (!lineEnds) m_added += LineEnd;
    m_edits.push_back({m_lastCharacter, 0, std::move(m_added)});
  }
  std::stable_sort(m_edits.begin(), m_edits.end(), [](const Edit& a, const Edit& b) { return a.at < b.at; });
  std::string text;
  text.reserve(m_text.size() + m_text.size() / 64);
  std::size_t at = 0;
  for (const Edit& edit : m_edits) {
    text.append(m_text, at, edit.at - at).append(edit.text);
    at = edit.at + edit.length;
  }
  text.append(m_text, at);
  m_text = std::move(text);
  Forget();
}

void DocumentText::Forget() const {
  m_section.reset();
  m_keys.clear();
  m_edits.clear();
  m_added.clear();
  m_changed.clear();
}

bool DocumentText::Locate(const std::string& section) const {
  if (m_section == section) return true;
  const std::string head = "[" + section + "]";
  const std::size_t headAt = m_text.find(head);
  if (headAt == None) return false;
  Forget();
  m_section = section;
  m_begin = headAt + head.size();
  m_end = std::min(m_text.find('[', m_begin), m_text.size());
  m_lastCharacter = StepBack(m_text, m_end);
  for (std::size_t at = m_text.find('\n', m_begin); at < m_end;) {
    const std::size_t stop = std::min(m_text.find_first_of("=\n", at + 1), m_text.size());
    if (stop < m_text.size() && m_text[stop] == '=')
      m_keys.push_back({HashOf(std::string_view(m_text).substr(at + 1, stop - at - 1)), at});
    at = stop < m_text.size() && m_text[stop] == '\n' ? stop : m_text.find('\n', stop);
  }
  std::stable_sort(m_keys.begin(), m_keys.end(),
                   [](const KeyPlace& a, const KeyPlace& b) { return a.hash < b.hash; });
  return true;
}

/// The line feed before the first such key that stands before `end`; `None` if there is none.
std::size_t DocumentText::KeyAt(const std::string& key, std::size_t end) const {
  const std::string head = KeyHead(key);
  std::size_t found = None;
  if (Contains(key, "=\n")) {
    found = m_text.find(head, m_begin);
  } else {
    const std::size_t hash = HashOf(key);
    auto place = std::lower_bound(m_keys.begin(), m_keys.end(), hash,
                                  [](const KeyPlace& a, std::size_t wanted) { return a.hash < wanted; });
    while (place != m_keys.end() && place->hash == hash &&
           m_text.compare(place->lineFeed, head.size(), head) != 0)
      ++place;
    if (place != m_keys.end() && place->hash == hash) found = place->lineFeed;
  }
  return found < end ? found : None;
}

}  // namespace orve
