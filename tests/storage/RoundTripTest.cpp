// Random cases, saved and reopened, compared property by property. What is persisted is told by leaving out
// what isn't: a new property of the object model is expected in the file.
#include <cmath>
#include <gtest/gtest.h>
#include <map>
#include <random>
#include <set>
#include <string>
#include <vector>

#include "Dispatch.h"
#include "StorageTest.h"
#include "common/NumberText.h"

namespace orve::test {
namespace {

using automation::Kind;
using automation::MemberDescription;
using automation::ObjectReference;
using automation::Value;

const std::set<std::string_view> NotPersisted = {"WindArea",
                                                 "WindSector",
                                                 "SiteDirty",
                                                 "SiteSelected",
                                                 "BuildingArea",
                                                 "Face",
                                                 "ZoneIndex",
                                                 "SelectedFace",
                                                 "DominantOpening_ZoneIndex",
                                                 "DominantOpening_Ratio2",
                                                 "DominantOpening_Ratio3",
                                                 "CantileverZoneIndexFrom",
                                                 "CantileverZoneIndexTo"};

class RoundTrip : public CaseTest {
 protected:
  template <class Number>
  Number Pick(Number from, Number to) {
    return std::uniform_int_distribution<Number>(from, to)(random);
  }
  bool Chance(int percent) { return Pick(1, 100) <= percent; }

  std::string RandomText() {
    static const char* pieces[] = {"m\u00B2", "\u00A3", "[",  "]",  "%%",   "%",  "\r\n",   "\r",
                                   "\n",      " ",      "=",  "\"", "A",    "\t", "%20",    "\u65E5",
                                   "%5B",     "[Up",    "  ", ";",  "Ca=1", "'",  "\u00E9", "0"};
    std::string text;
    for (int count = Pick(0, 9); count > 0; --count)
      text += pieces[Pick<std::size_t>(0, std::size(pieces) - 1)];
    return text;
  }

  float RandomSingle() {
    switch (Pick(0, 5)) {
      case 0:
        return 0;
      case 1:
        return static_cast<float>(Pick(0, 99)) / 10;
      case 2:
        return std::ldexp(static_cast<float>(Pick(1, 1 << 24)), Pick(-149, 103));
      case 3:
        return -static_cast<float>(Pick(1, 99999)) / 1000;
      default:
        return static_cast<float>(Pick(1, 1 << 24)) / 1048576;
    }
  }

  Value RandomValue(const automation::Type& type) {
    switch (type.kind) {
      case Kind::Bool:
        return Chance(50);
      case Kind::Int16:
        return Pick<std::int32_t>(-32768, 32767);
      case Kind::Text:
        return RandomText();
      case Kind::Single:
        return RandomSingle();
      default: {
        const auto& members = automation::FindEnumeration(type.name)->enumerators;
        return members[Pick<std::size_t>(0, members.size() - 1)].value;
      }
    }
  }

  std::vector<std::pair<std::string, ObjectReference>> Objects() {
    std::vector<std::pair<std::string, ObjectReference>> objects;
    const ObjectReference case_{root, automation::FindClass("clsCurrentCase")};
    for (const char* name : {"BuildingDimensions", "DynamicPressure", "ExternalCoefficients",
                             "InternalCoefficients", "OverallAppliedLoads"})
      objects.emplace_back(name, *automation::Invoke(case_, name, {}).As<ObjectReference>());
    return objects;
  }

  using Indices = std::vector<std::int32_t>;

  static std::vector<Value> Arguments(const Indices& indices) { return {indices.begin(), indices.end()}; }

  /// Every combination of index arguments that the member has in this case.
  std::vector<Indices> Combinations(const MemberDescription& member) {
    std::vector<Indices> combinations = {{}};
    for (const auto& argument : member.arguments) {
      std::vector<Indices> longer;
      for (const Indices& start : combinations)
        for (const std::int32_t index : IndicesOf(argument, start)) {
          longer.push_back(start);
          longer.back().push_back(index);
        }
      combinations.swap(longer);
    }
    return combinations;
  }

  Indices IndicesOf(const automation::ArgumentDescription& argument, const Indices& before) {
    Indices indices;
    if (argument.type.kind == Kind::Enumeration) {
      // The internal wind area has no results of its own.
      for (const auto& enumerator : automation::FindEnumeration(argument.type.name)->enumerators)
        if (enumerator.name != "waInternal") indices.push_back(enumerator.value);
      return indices;
    }
    const std::int32_t last =
        root->ExternalCoefficients()->ZoneIndexTo(BuildingAreas(before.at(0)), Faces(before.at(1)));
    for (std::int32_t zone = 0; zone <= last; ++zone) indices.push_back(zone);
    return indices;
  }

  /// Whether this case stores the property: hand-entered results and the bay depend on the two switches.
  bool Stored(const std::string& object, const MemberDescription& member) {
    if (!member.let || NotPersisted.contains(member.name)) return false;
    const bool manual = object == "DynamicPressure" ? root->DynamicPressure()->ManualResults()
                                                    : root->ExternalCoefficients()->ManualResults();
    if (member.name == "Bay") return !manual;
    const bool result = member.name == "DynamicPressure_q" || member.name == "SizeEffectFactor_Ca" ||
                        member.name.starts_with("Hybrid_ExternalCoefficientFactor");
    return !result || manual;
  }

  void FillAtRandom() {
    root->Clear();
    root->Description(RandomText());
    const int density = Pick(5, 100);
    // The switches come first, and the site's reference before what overlays it.
    root->DynamicPressure()->ManualResults(Chance(50));
    root->ExternalCoefficients()->ManualResults(Chance(50));
    root->DynamicPressure()->GridReference(Chance(50) ? "COASTAL TOWN" : RandomText());
    root->DynamicPressure()->FetchesToSea(WindSectors(0));
    for (const auto& [name, object] : Objects())
      for (const MemberDescription& member : object.type->members) {
        if (!Stored(name, member) || member.name == "ManualResults" || member.name == "GridReference")
          continue;
        for (const Indices& indices : Combinations(member))
          if (Chance(density))
            automation::Assign(object, member, Arguments(indices), RandomValue(member.type));
      }
  }

  /// The stored properties as texts. Seven significant digits are all that a float may lose.
  std::map<std::string, std::string> Snapshot() {
    std::map<std::string, std::string> values;
    for (const auto& [name, object] : Objects())
      for (const MemberDescription& member : object.type->members) {
        if (!Stored(name, member)) continue;
        for (const Indices& indices : Combinations(member)) {
          std::string key = name;
          key.append(".").append(member.name);
          for (const std::int32_t index : indices) key.append(" ").append(std::to_string(index));
          values[key] = Text(automation::Invoke(object, member, Arguments(indices)));
        }
      }
    return values;
  }

  static std::string Text(const Value& value) {
    const float* number = value.As<float>();
    return number ? SevenDigitText(*number) : automation::TextOf(value);
  }

  std::mt19937 random{20261124};
};

TEST_F(RoundTrip, RandomCasesComeBackWhole) {
  const int cases = LongTests() ? 3000 : 60;
  for (int number = 0; number < cases; ++number) {
    FillAtRandom();
    const std::string description = root->Description();
    const auto before = Snapshot();
    SaveAs("first.wlc");
    root->Clear();
    ASSERT_TRUE(Open("first.wlc"));
    EXPECT_EQ(root->Description(), description);
    EXPECT_EQ(root->Created(), now);
    ASSERT_EQ(Snapshot(), before) << "case " << number;
    SaveAs("second.wlc");
    ASSERT_EQ(ReadBytes(folder / "second.wlc"), ReadBytes(folder / "first.wlc")) << "case " << number;
  }
}

TEST_F(RoundTrip, AMeasureWithoutAFiniteNumberComesBack) {
  const float infinity = std::numeric_limits<float>::infinity();
  root->BuildingDimensions()->Roof_Height(-infinity);
  SaveAs("first.wlc");
  ASSERT_TRUE(Open("first.wlc"));
  EXPECT_EQ(root->BuildingDimensions()->Roof_Height(), -infinity);
}

}  // namespace
}  // namespace orve::test
