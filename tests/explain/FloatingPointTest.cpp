// No read gives rise to a floating-point exception that would end a host in which they trap.
#include <BuiltInEngines.h>
#include <Dispatch.h>
#include <Explain.h>
#include <cfenv>
#include <fstream>
#include <gtest/gtest.h>
#include <string>
#include <vector>

#include "support/FakeComponents.h"

namespace orve::test {

namespace {

using automation::MemberDescription;
using automation::ObjectReference;

constexpr int kFatal = FE_INVALID | FE_DIVBYZERO | FE_OVERFLOW;

class FloatingPoint : public testing::Test {
 protected:
  FloatingPoint() {
    RegisterBuiltInEngines();
    root = CreateCurrentCase();
    root->Initialize_BreApps();
  }
  ~FloatingPoint() override { ReleaseProcess(); }

  // A value or an error are both an answer.
  template <class Action>
  void Quietly(const std::string& what, Action action) {
    std::feclearexcept(kFatal);
    try {
      action();
    } catch (const Error&) {
    }
    EXPECT_FALSE(std::fetestexcept(kFatal)) << what << " of " << caseName;
    ++reads;
  }

  void ReadMember(const ObjectReference& object, const MemberDescription& member) {
    const int count = static_cast<int>(member.arguments.size());
    constexpr int choices = 5;  // -1, which stands for the object's own property, to 3
    int combinations = 1;
    for (int i = 0; i < count; ++i) combinations *= choices;
    for (int combination = 0; combination < combinations; ++combination) {
      std::vector<automation::Value> arguments;
      for (int i = 0, rest = combination; i < count; ++i, rest /= choices)
        arguments.emplace_back(std::int32_t{rest % choices - 1});
      Quietly(std::string(member.name), [&] { automation::Invoke(object, member, arguments); });
    }
  }

  void ReadAll() {
    const ObjectReference rootObject{root, automation::FindClass("clsCurrentCase")};
    for (const MemberDescription& member : rootObject.type->members) {
      if (member.isMethod) continue;
      ReadMember(rootObject, member);
      const automation::Value value = automation::Invoke(rootObject, member, {});
      const auto* object = value.As<ObjectReference>();
      if (!object) continue;
      for (const MemberDescription& part : object->type->members)
        if (part.name.find("Site") == part.name.npos || !part.isMethod) ReadMember(*object, part);
    }
    for (const auto area : {BuildingAreas::baRoof, BuildingAreas::baWalls, BuildingAreas::baParapet})
      for (int face = 0; face < 4; ++face)
        for (std::int16_t zone = 0; zone < 12; ++zone)
          Quietly("explain", [&] { explain::ExplainZone(area, Faces(face), zone); });
  }

  PrivateFolder folder;
  std::shared_ptr<clsCurrentCase> root;
  std::string caseName;
  int reads = 0;
};

TEST_F(FloatingPoint, ReadsOfAnyCaseRaiseNoException) {
  for (const int roof : {0, 3, 4, 8}) {
    root->Clear();
    caseName = "a new case with roof type " + std::to_string(roof);
    root->BuildingDimensions()->RoofType(RoofTypes(roof));
    ReadAll();
  }
  for (const char* sample : {"shed", "office_manual_results", "canopy_with_cantilevers", "site_by_sector"}) {
    caseName = sample;
    root->IsDirty(false);
    ASSERT_TRUE(root->OpenExisting(std::string(ORVE_EXAMPLE_CASES) + "/" + sample + ".wlc"));
    ReadAll();
  }
  EXPECT_GT(reads, 10000);
}

// Number texts rest on no rounding mode: what is opened and saved again in any of them is the same.
TEST_F(FloatingPoint, CaseFilesRestOnNoRoundingMode) {
  Host().Now = [] { return 46350.5; };
  const auto saved = [&](const char* sample, int mode) {
    root->IsDirty(false);
    std::fesetround(mode);
    root->OpenExisting(std::string(ORVE_EXAMPLE_CASES) + "/" + sample + ".wlc");
    root->Location(folder.Path("saved.wlc"));
    root->Save();
    std::fesetround(FE_TONEAREST);
    std::ifstream stream(folder.Path("saved.wlc"), std::ios::binary);
    return std::string{std::istreambuf_iterator<char>(stream), {}};
  };
  for (const char* sample : {"shed", "office_manual_results", "canopy_with_cantilevers", "site_by_sector"}) {
    const std::string nearest = saved(sample, FE_TONEAREST);
    EXPECT_GT(nearest.size(), 1000u);
    for (const int mode : {FE_UPWARD, FE_DOWNWARD, FE_TOWARDZERO})
      EXPECT_EQ(saved(sample, mode), nearest) << sample << " in mode " << mode;
  }
}

}  // namespace

}  // namespace orve::test
