// The description against the headers and against the committed numbers.
#include <filesystem>
#include <fstream>
#include <gtest/gtest.h>
#include <set>
#include <sstream>
#include <string>

#include "ComLibrary.h"
#include "Description.h"

namespace orve::automation {
namespace {

struct HeaderOf {
  const char* className;
  const char* path;
};

constexpr HeaderOf Headers[] = {
    {"clsCurrentCase", "core/clsCurrentCase.h"},
    {"clsBuildingDimensions", "geometry/clsBuildingDimensions.h"},
    {"clsDynamicPressure", "sitewind/clsDynamicPressure.h"},
    {"clsExternalCoefficients", "external/clsExternalCoefficients.h"},
    {"clsInternalCoefficients", "internal/clsInternalCoefficients.h"},
    {"clsOverallAppliedLoads", "loads/clsOverallAppliedLoads.h"},
    {"clsCantileverWindLoads", "loads/clsCantileverWindLoads.h"},
    {"clsWindCaseList", "storage/clsWindCaseList.h"},
};

/// The records of the worst-case search serve C++ readers alone.
bool OnlyForCpp(const std::string& name) {
  return name.rfind("Hybrid_WorstCaseSearch", 0) == 0;
}

/// The text between the class's "public:" and its "private:", comments left out.
std::string PublicPart(const HeaderOf& header) {
  std::ifstream file(std::filesystem::path(ORVE_LIBRARY_FOLDER) / header.path);
  const std::string opening = std::string("class ").append(header.className);
  std::string text, line;
  bool inClass = false, isPublic = false;
  while (std::getline(file, line)) {
    if (line.rfind(opening, 0) == 0 && line.back() != ';') inClass = true;
    if (inClass && line == " public:") isPublic = true;
    if (inClass && line == " private:") break;
    if (isPublic) text.append(line, 0, line.find("//")).append(1, '\n');
  }
  return text;
}

std::string LetOf(std::string name) {
  name += '=';
  return name;
}

/// "Name" for a get or method, "Name=" for a let or set: a void function whose name a get bears too.
std::set<std::string> PublicMembers(const HeaderOf& header) {
  const std::string text = PublicPart(header);
  std::multiset<std::string> results, voids;
  std::set<std::string> events;
  std::string declaration;
  int depth = 0;
  for (const char letter : text) {
    depth += letter == '{' ? 1 : letter == '}' ? -1 : 0;
    if (depth == 0 && letter != ';' && letter != '}' && letter != '\n') declaration += letter;
    if (depth != 0 || (letter != ';' && letter != '}')) continue;
    std::size_t open = declaration.find('(');
    if (declaration.find("Event<") != std::string::npos) open = std::string::npos;
    if (open != std::string::npos) {
      const std::size_t start = declaration.find_last_of(" *&", open) + 1;
      const std::string name = declaration.substr(start, open - start);
      const bool isVoid = declaration.find("void ") < start;
      if (name != header.className && name.front() != '~' && !OnlyForCpp(name) &&
          name.rfind("operator", 0) != 0)
        (isVoid ? voids : results).insert(name);
    }
    declaration.clear();
  }
  std::set<std::string> members(results.begin(), results.end());
  for (const std::string& name : voids) members.insert(results.count(name) > 0 ? LetOf(name) : name);
  return members;
}

std::set<std::string> DescribedMembers(const ClassDescription& description) {
  std::set<std::string> members;
  for (const MemberDescription& member : description.members) {
    members.insert(std::string(member.name));
    if (member.let) members.insert(LetOf(std::string(member.name)));
  }
  return members;
}

TEST(Members, EveryPublicMemberOfTheHeadersIsDescribed) {
  for (const HeaderOf& header : Headers) {
    const auto declared = PublicMembers(header);
    EXPECT_FALSE(declared.empty()) << header.path;
    EXPECT_EQ(DescribedMembers(*FindClass(header.className)), declared) << header.className;
  }
}

std::string NumbersText() {
  std::ostringstream text;
  text << "type library " << TypeLibraryGuid << '\n';
  for (const ClassDescription* description : ComClasses()) {
    for (const MemberDescription& member : description->members)
      text << description->name << ' ' << member.number << ' ' << member.name << '\n';
    for (const EventDescription& event : description->events)
      text << description->name << " event " << event.number << ' ' << event.name << '\n';
    text << description->name << ' ' << description->identity.classGuid << ' '
         << description->identity.interfaceGuid << ' ' << description->identity.eventsGuid << '\n';
  }
  for (const EnumerationDescription& enumeration : Enumerations())
    for (const Enumerator& enumerator : enumeration.enumerators)
      text << enumeration.name << ' ' << enumerator.value << " \"" << enumerator.published << "\"\n";
  for (const RecordDescription& record : Records()) text << record.name << ' ' << record.guid << '\n';
  return text.str();
}

// A line that changes breaks every host that was built against it. Lines are only ever added, by hand.
TEST(Members, NumbersAndIdentitiesNeverChange) {
  std::ifstream file(ORVE_TEST_FOLDER "/numbers.txt");
  std::ostringstream committed;
  committed << file.rdbuf();
  EXPECT_EQ(NumbersText(), committed.str());
}

TEST(Members, NamesAreUniqueWithoutCaseAndFoundByNameAndNumber) {
  for (const ClassDescription* description : Classes())
    for (const MemberDescription& member : description->members) {
      EXPECT_EQ(description->Find(member.name), &member);
      EXPECT_EQ(description->Find(member.number), &member);
      EXPECT_FALSE(member.help.empty()) << member.name;
    }
}

}  // namespace
}  // namespace orve::automation
