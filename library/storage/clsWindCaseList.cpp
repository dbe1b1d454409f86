#include "storage/clsWindCaseList.h"

#include "common/Narrow.h"
#include "common/clsCommon.h"
#include "core/basBS6399_2.h"
#include "core/clsCurrentCase.h"
#include "storage/CaseText.h"
#include "storage/clsSaveFile.h"

namespace orve {

namespace {

constexpr std::int32_t LongestList = 99;

}  // namespace

clsWindCaseList::clsWindCaseList() {
  MaxCount(LongestList);
}

clsSaveFile& clsWindCaseList::Manager() {
  return *RequireCurrentCase().m_iclsSaveFile;
}

std::int32_t clsWindCaseList::Count() const {
  return Manager().RecentFileCount();
}

std::int32_t clsWindCaseList::MaxCount() const {
  return Manager().RecentFileLimit();
}

void clsWindCaseList::MaxCount(std::int32_t value) {
  Manager().RecentFileLimit(ToInt16(value));
}

std::string clsWindCaseList::Location(std::int32_t index) const {
  return Manager().RecentFile(ToInt16(index == -1 ? m_Index : index));
}

bool clsWindCaseList::LocationCorrect(std::int32_t index) const {
  return clsCommon().FileExists(Location(index));
}

std::string clsWindCaseList::Description(std::int32_t index) const {
  return DecodeCaseText(clsCommon().MakeString(Attribute(index, "Description"), std::string()));
}

double clsWindCaseList::Created(std::int32_t index) const {
  return clsCommon().MakeDate(Attribute(index, "Created"), 0);
}

double clsWindCaseList::Modified(std::int32_t index) const {
  return clsCommon().MakeDate(Attribute(index, "Modified"), 0);
}

// A manager of its own reads the file, so that the text of the open case stands.
std::string clsWindCaseList::Attribute(std::int32_t index, const std::string& key) const {
  const std::string location = Location(index);
  if (!clsCommon().FileExists(location)) return {};
  clsSaveFile reader;
  reader.ReadData(location);
  return reader.Data("WindLoadCase", key, std::string());
}

}  // namespace orve
