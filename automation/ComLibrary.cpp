#include "ComLibrary.h"

#include <algorithm>
#include <memory>

#include "Describe.h"
#include "common/Error.h"
#include "common/clsCommon.h"
#include "storage/CaseFileQueries.h"

namespace orve::automation {

namespace {

bool g_unattended = false;

[[noreturn]] void RaiseInvalid(const std::string& what) {
  throw Error(ErrorNumber::InvalidArgument, "Invalid argument: " + what);
}

const EnumerationDescription& RequireEnumeration(const std::string& name) {
  const EnumerationDescription* enumeration = FindEnumeration(name);
  if (enumeration == nullptr) RaiseInvalid("there is no enumeration " + name);
  return *enumeration;
}

std::string_view Trimmed(std::string_view text) {
  const std::size_t first = text.find_first_not_of(' ');
  if (first == std::string_view::npos) return {};
  return text.substr(first, text.find_last_not_of(' ') - first + 1);
}

/// The first member that fits. Errors: 5 with `what`.
template <class Fits>
const Enumerator& RequireEnumerator(const EnumerationDescription& enumeration, Fits fits,
                                    const std::string& what) {
  const auto found = std::find_if(enumeration.enumerators.begin(), enumeration.enumerators.end(), fits);
  if (found == enumeration.enumerators.end()) RaiseInvalid(std::string(enumeration.name) + " has no " + what);
  return *found;
}

}  // namespace

std::string clsLibrary::Version() const {
  return clsCommon().AppVersion();
}

bool clsLibrary::Unattended() const {
  return g_unattended;
}
void clsLibrary::Unattended(bool value) {
  g_unattended = value;
}

std::string clsLibrary::PublishedText(const std::string& Enumeration, std::int32_t Value) const {
  const auto fits = [Value](const Enumerator& enumerator) { return enumerator.value == Value; };
  return std::string(
      RequireEnumerator(RequireEnumeration(Enumeration), fits, "value " + std::to_string(Value)).published);
}

std::int32_t clsLibrary::ValueOfText(const std::string& Enumeration, const std::string& Text) const {
  const auto fits = [&Text](const Enumerator& enumerator) {
    return SameName(Trimmed(enumerator.published), Trimmed(Text));
  };
  return RequireEnumerator(RequireEnumeration(Enumeration), fits, "text " + Text).value;
}

std::int32_t clsLibrary::EnumeratorCount(const std::string& Enumeration) const {
  return static_cast<std::int32_t>(RequireEnumeration(Enumeration).enumerators.size());
}

std::int32_t clsLibrary::EnumeratorValue(const std::string& Enumeration, std::int32_t Position) const {
  const EnumerationDescription& enumeration = RequireEnumeration(Enumeration);
  if (Position < 0 || Position >= EnumeratorCount(Enumeration))
    RaiseInvalid(std::string(enumeration.name) + " has no position " + std::to_string(Position));
  return enumeration.enumerators[static_cast<std::size_t>(Position)].value;
}

std::string clsLibrary::ResolveFileName(const std::string& FileName) const {
  return orve::ResolveFileName(FileName);
}
bool clsLibrary::CaseFileExists(const std::string& FileName) const {
  return orve::CaseFileExists(FileName);
}
bool clsLibrary::CaseFileChanged() const {
  return orve::CaseFileChanged();
}
std::string clsLibrary::CopyPutAside(const std::string& FileName) const {
  return orve::CopyPutAside(FileName);
}

const ClassDescription& DescribeComLibrary() {
  using Class = clsLibrary;
  static const ClassDescription description = [] {
    ClassDescriber<Class> describe(
        "clsLibrary",
        "What belongs to the library as a whole: version, published texts, questions about files",
        {"b4898c83-1fc8-4ab9-95ea-e6d9532707c5", "27b3357a-1ddf-4e33-83fa-9e23bd4c70aa", ""});
    describe.CreatedBy([]() -> std::shared_ptr<void> { return std::make_shared<clsLibrary>(); });
    const ArgumentNames none;
    const ArgumentNames enumeration{{"Enumeration", {}}};
    const ArgumentNames enumerationAndValue{{"Enumeration", {}}, {"Value", {}}};
    const ArgumentNames enumerationAndText{{"Enumeration", {}}, {"Text", {}}};
    const ArgumentNames enumerationAndPosition{{"Enumeration", {}}, {"Position", {}}};
    const ArgumentNames fileName{{"FileName", {}}};
    ORVE_READ_ONLY(1, Version, none, "", "The library's version");
    ORVE_PROPERTY(2, Unattended, none, "",
                  "Nobody is there: message box and file dialogs aren't shown and answer No, OK or Cancel");
    ORVE_METHOD(3, PublishedText, enumerationAndValue, "", "The published text of an enumeration's value");
    ORVE_METHOD(4, ValueOfText, enumerationAndText, "", "The value of a published text");
    ORVE_METHOD(5, EnumeratorCount, enumeration, "", "How many members an enumeration has");
    ORVE_METHOD(6, EnumeratorValue, enumerationAndPosition, "", "The value at a position, counted from 0");
    ORVE_METHOD(7, ResolveFileName, fileName, "", "The file that opening and saving a name use");
    ORVE_METHOD(8, CaseFileExists, fileName, "", "True if opening that name would find a file");
    ORVE_METHOD(9, CaseFileChanged, none, "", "True if the open case's file has changed on the disk");
    ORVE_METHOD(10, CopyPutAside, fileName, "",
                "The copy that an interrupted save left of a file, empty if there is none");
    return describe.Finish();
  }();
  return description;
}

const std::vector<const ClassDescription*>& ComClasses() {
  static const std::vector<const ClassDescription*> classes = [] {
    std::vector<const ClassDescription*> all = Classes();
    all.push_back(&DescribeComLibrary());
    return all;
  }();
  return classes;
}

}  // namespace orve::automation
