// The document's text: its keys, and its way from and to the file.
#include <algorithm>
#include <iterator>

#include "common/DateText.h"
#include "common/Error.h"
#include "common/FileLayer.h"
#include "common/Host.h"
#include "common/HostCalls.h"
#include "common/TextEncoding.h"
#include "common/clsCommon.h"
#include "core/Document.h"
#include "storage/clsSaveFile.h"

namespace orve {

namespace {

constexpr std::string_view LineEnd = "\r\n";
constexpr std::string_view LineEndsAndBlanks = "\r\n ";
constexpr auto None = std::string::npos;

std::string SectionHead(const std::string& section) {
  return "[" + section + "]";
}

// The line feed of the line before belongs to the search, so that a key is found at a line's begin only.
std::string KeyHead(const std::string& key) {
  return "\n" + key + "=";
}

/// The first place of a key's head whose line feed stands before `end`; `None` if there is none. The keys of
/// a section begin alike, so they are compared from their ends.
std::size_t FindKeyHead(const std::string& text, const std::string& keyHead, std::size_t begin,
                        std::size_t end) {
  const std::size_t last = text.size() < keyHead.size() ? 0 : text.size() - keyHead.size() + 1;
  const std::size_t stop = std::min(end, last);
  for (std::size_t at = text.find('\n', begin); at < stop; at = text.find('\n', at + 1)) {
    const auto lineEnd = text.begin() + static_cast<std::ptrdiff_t>(at + keyHead.size());
    if (std::equal(keyHead.rbegin(), keyHead.rend(), std::make_reverse_iterator(lineEnd))) return at;
  }
  return None;
}

/// Where the text ends that stands before `end`, once line ends and blanks are stepped over: the position
/// behind its last character.
std::size_t StepBack(const std::string& text, std::size_t end) {
  return end == 0 ? 0 : text.find_last_not_of(LineEndsAndBlanks, end - 1) + 1;
}

/// A file from a machine with other line ends.
std::string WithCarriageReturns(const std::string& text) {
  std::string lines;
  lines.reserve(text.size() + text.size() / 16);
  for (const char character : text) {
    if (character == '\n') lines += '\r';
    lines += character;
  }
  return lines;
}

}  // namespace

std::string clsSaveFile::Data(const std::string& section, const std::string& key,
                              const std::string& defaultText) const {
  const std::string head = SectionHead(section);
  const std::size_t headAt = m_DataBuffer.find(head);
  if (headAt == None) return defaultText;
  const std::size_t begin = headAt + head.size();
  const std::size_t end = std::min(m_DataBuffer.find('[', begin), m_DataBuffer.size());
  const std::string keyHead = KeyHead(key);
  const std::size_t keyAt = FindKeyHead(m_DataBuffer, keyHead, begin, end);
  if (keyAt == None) return defaultText;
  const std::size_t valueAt = keyAt + keyHead.size();
  return m_DataBuffer.substr(valueAt, m_DataBuffer.find('\r', valueAt) - valueAt);
}

void clsSaveFile::Data(const std::string& section, const std::string& key, const std::string& /*defaultText*/,
                       const std::string& value) {
  const std::string head = SectionHead(section);
  const std::string line = key + "=" + value;
  const std::size_t headAt = m_DataBuffer.find(head);
  if (headAt == None) {
    if (!m_DataBuffer.empty()) m_DataBuffer += LineEnd;
    m_DataBuffer.append(head).append(LineEnd).append(line).append(LineEnd);
    return;
  }
  const std::size_t begin = headAt + head.size();
  const std::size_t sectionEnd =
      StepBack(m_DataBuffer, std::min(m_DataBuffer.find('[', begin), m_DataBuffer.size()));
  const std::string keyHead = KeyHead(key);
  const std::size_t keyAt = FindKeyHead(m_DataBuffer, keyHead, begin, sectionEnd);
  if (keyAt != None) {
    const std::size_t valueAt = keyAt + keyHead.size();
    const std::size_t lineEnd = std::min(m_DataBuffer.find('\r', valueAt), m_DataBuffer.size());
    m_DataBuffer.replace(valueAt, StepBack(m_DataBuffer, lineEnd) - valueAt, value);
    return;
  }
  const bool lineEnds = m_DataBuffer.compare(sectionEnd, LineEnd.size(), LineEnd) == 0;
  m_DataBuffer.insert(sectionEnd, std::string(LineEnd) + line + std::string(lineEnds ? "" : LineEnd));
}

void clsSaveFile::ReadData(const std::string& fileName) {
  FileState state;
  const std::string text = FileText(ReadWholeFile(fileName, &state));
  m_knownName = StoredPath(fileName);
  m_knownState = state;
  m_DataBuffer = text.find('\r') == None ? WithCarriageReturns(text) : text;
}

void clsSaveFile::WriteData(const std::string& fileName) {
  const std::uint64_t document = m_documentNumber;
  const double now = HostNow();
  if (m_documentNumber != document) throw DocumentReplaced();
  Data("UpdateLog", clsCommon().AppVersion(), std::string(), LongDateText(now) + ", " + LongTimeText(now));
  if (m_DataBuffer.size() > LargestFile)
    throw Error(ErrorNumber::InvalidArgument, "The case is larger than 16 MB: " + NativePath(fileName));
  m_knownState = WriteWholeFile(fileName, m_DataBuffer, Durability::Flushed);
  m_knownName = StoredPath(fileName);
}

bool clsSaveFile::FileChanged() const {
  if (m_FileName.empty()) return false;
  const FileState present = StateOfFile(m_FileName);
  const FileState expected = m_FileName == m_knownName ? m_knownState : FileState();
  return present != expected && present != m_knownState;
}

}  // namespace orve
