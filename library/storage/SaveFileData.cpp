// The document's text: its keys, and its way from and to the file.
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

/// Text that couldn't be saved or opened again isn't taken.
void RefuseLargeText(const std::string& text, const std::string& fileName) {
  if (text.size() > LargestFile)
    throw Error(ErrorNumber::InvalidArgument, "The case is larger than 16 MB: " + NativePath(fileName));
}

}  // namespace

std::string clsSaveFile::Data(const std::string& section, const std::string& key,
                              const std::string& defaultText) const {
  return m_document.Value(section, key).value_or(defaultText);
}

void clsSaveFile::Data(const std::string& section, const std::string& key, const std::string& /*defaultText*/,
                       const std::string& value) {
  m_document.Value(section, key, value);
}

void clsSaveFile::ReadData(const std::string& fileName) {
  FileState state;
  std::string text = FileText(ReadWholeFile(fileName, &state));
  if (text.find('\r') == std::string::npos) text = WithCarriageReturns(text);
  RefuseLargeText(text, fileName);
  m_knownName = StoredPath(fileName);
  m_knownState = state;
  m_document.Text(std::move(text));
}

void clsSaveFile::WriteData(const std::string& fileName) {
  const std::uint64_t document = m_documentNumber;
  const double now = HostNow();
  if (m_documentNumber != document) throw DocumentReplaced();
  Data("UpdateLog", clsCommon().AppVersion(), std::string(), LongDateText(now) + ", " + LongTimeText(now));
  const std::string& text = DataBuffer();
  RefuseLargeText(text, fileName);
  m_knownState = WriteWholeFile(fileName, text, Durability::Flushed);
  m_knownName = StoredPath(fileName);
}

bool clsSaveFile::FileChanged() const {
  if (m_FileName.empty()) return false;
  const FileState present = StateOfFile(m_FileName);
  const FileState expected = m_FileName == m_knownName ? m_knownState : FileState();
  return present != expected && present != m_knownState;
}

}  // namespace orve
