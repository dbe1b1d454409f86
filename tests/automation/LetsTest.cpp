// Every let of the data objects: what it marks, and that it owes all of it even if a handler raises.
#include <gtest/gtest.h>
#include <set>
#include <sstream>
#include <string>
#include <vector>

#include "Dispatch.h"
#include "published/BuiltInCase.h"

namespace orve::automation {
namespace {

/// Lets that only store: selections, flags and index properties.
const std::set<std::string_view> PlainLets = {"BuildingArea",
                                              "Face",
                                              "ZoneIndex",
                                              "WindArea",
                                              "WindSector",
                                              "SiteDirty",
                                              "SiteSelected",
                                              "DominantOpening_ZoneIndex",
                                              "CantileverZoneIndexFrom",
                                              "CantileverZoneIndexTo"};

/// Lets that count while the hand-entered results are in force.
const std::set<std::string_view> ManualLets = {"DynamicPressure_q", "SizeEffectFactor_Ca",
                                               "Hybrid_ExternalCoefficientFactor_Cpe_Pressure",
                                               "Hybrid_ExternalCoefficientFactor_Cpe_Suction"};

/// The rules that stay chosen, and mark the case again, when they are let to False.
const std::set<std::string_view> ExclusiveRules = {"EnclosedBuilding_NoPositiveInternalPressure",
                                                   "EnclosedBuilding_WindNormalToImpermeableFace",
                                                   "EnclosedBuilding_FourWallsEquallyPermeable"};

class LetsTest : public test::BuiltInCase {
 protected:
  struct Let {
    const char* object;
    const MemberDescription* member;
  };

  static std::vector<Let> AllLets() {
    std::vector<Let> lets = {{nullptr, FindClass("clsCurrentCase")->Find("Description")}};
    for (const char* name : {"BuildingDimensions", "DynamicPressure", "ExternalCoefficients",
                             "InternalCoefficients", "OverallAppliedLoads"})
      for (const MemberDescription& member : FindClass(std::string("cls") + name)->members)
        if (member.let) lets.push_back({name, &member});
    return lets;
  }

  ObjectReference ObjectOf(const Let& let) {
    const ObjectReference root{windCase, FindClass("clsCurrentCase")};
    return let.object == nullptr ? root : *Invoke(root, let.object, {}).As<ObjectReference>();
  }
  static std::vector<Value> FirstOfEach(const Let& let) {
    return std::vector<Value>(let.member->arguments.size(), Value(0));
  }
  Value Get(const Let& let) { return Invoke(ObjectOf(let), *let.member, FirstOfEach(let)); }
  void Assign(const Let& let, const Value& value) {
    automation::Assign(ObjectOf(let), *let.member, FirstOfEach(let), value);
  }

  static Value Other(const Value& present) {
    if (const bool* value = present.As<bool>()) return !*value;
    if (const auto* value = present.As<std::int32_t>()) return *value == 1 ? 0 : 1;
    if (const float* value = present.As<float>()) return *value + 1;
    return "other";
  }

  /// A new case, or one of a whole building, without marks.
  void Prepare(bool blank, const Let& let) {
    windCase->Clear();
    if (!blank) Describe();
    const bool manual = ManualLets.count(let.member->name) > 0;
    windCase->DynamicPressure()->ManualResults(manual);
    windCase->ExternalCoefficients()->ManualResults(manual);
    windCase->IsDirty(false), windCase->BreVe_Dirty(false), windCase->BreCp_Dirty(false);
  }

  void Describe() {
    const auto building = windCase->BuildingDimensions();
    building->Face1And3_Length(24), building->Face2And4_Width(12), building->Roof_Height(5.5F);
    building->Roof_Diagonal(8), building->Wall_SideHeight(5), building->Wall_SideDiagonal(7);
    building->Wall_GableHeight(5.5F), building->Wall_GableDiagonal(7.5F);
    const auto site = windCase->DynamicPressure();
    site->SiteAltitude(40), site->BasicWindSpeed(22);
    for (int sector = 0; sector < 12; ++sector) site->FetchesToSea(WindSectors(sector), 30);
    site->SiteEdited(false);
    windCase->InternalCoefficients()->InternalVolume(1500);
    Results();
  }

  /// The loads of a zone of each area; an error as its number.
  std::string Results() {
    std::string texts;
    for (const auto area : {BuildingAreas::baRoof, BuildingAreas::baWalls, BuildingAreas::baParapet}) {
      try {
        texts += windCase->OverallAppliedLoads()->Hybrid_OverallAppliedLoads(area, Faces::Face_1, 0);
      } catch (const Error& error) {
        texts += std::to_string(error.Number());
      }
      texts += "; ";
    }
    return texts;
  }

  std::string ValueOf(const Let& let) {
    try {
      return TextOf(Get(let));
    } catch (const Error& error) {
      return std::to_string(error.Number());
    }
  }

  /// All marks, then the next results and the value, then whether the case is blank: a blank one takes a
  /// prefill.
  std::string MarksAndResults(const Let& let) {
    const auto site = windCase->DynamicPressure();
    std::ostringstream text;
    text << windCase->IsDirty() << windCase->BreVe_Dirty() << windCase->BreCp_Dirty() << site->SiteEdited()
         << site->SiteDirty() << site->SiteSelected() << ' ';
    text << Results() << ValueOf(let) << ' ';
    windCase->IsDirty(false);
    bool prefilled = false;
    const auto connection = windCase->DirtyUpdated.Connect([&](bool) { prefilled = true; });
    windCase->Parent_Type(ParentTypes::None);
    text << prefilled;
    return text.str();
  }

  /// The events of a let; the one at `raising` raises. A let may also fail by itself in a case without a
  /// building.
  int EventsOf(const Let& let, const Value& value, int raising = 0) {
    int events = 0;
    const auto connection = windCase->DirtyUpdated.Connect([&](bool dirty) {
      EXPECT_TRUE(dirty);
      if (++events == raising) throw raising;
    });
    try {
      Assign(let, value);
      EXPECT_EQ(raising, 0) << "the handler's exception passes on";
    } catch (int raised) {
      EXPECT_EQ(raised, raising);
    } catch (const Error&) {
      EXPECT_EQ(events, 0);
    }
    return events;
  }
};

TEST_F(LetsTest, AnotherValueMarksTheCaseAndTheSameDoesNot) {
  for (const Let& let : AllLets()) {
    SCOPED_TRACE(let.member->name);
    Prepare(false, let);
    const bool plain = PlainLets.count(let.member->name) > 0;
    const Value present = Get(let);
    for (const Value& value : {Other(present), present}) {
      const bool staysChosen = ExclusiveRules.count(let.member->name) > 0 && TextOf(value) == "False";
      // A sector value marks the site as edited too, once.
      if (let.member->name != "SiteEdited") windCase->DynamicPressure()->SiteEdited(true);
      windCase->IsDirty(false);
      const int events = EventsOf(let, value);
      EXPECT_EQ(windCase->IsDirty(), !plain);
      // A rule writes coefficients, and each that changes marks the case as well.
      const bool writes = TextOf(value) == "True" && std::string_view(let.object) == "InternalCoefficients";
      if (writes) {
        EXPECT_GE(events, 1);
      } else {
        EXPECT_EQ(events, plain ? 0 : 1);
      }
      windCase->IsDirty(false);
      const int again = EventsOf(let, value);
      EXPECT_EQ(again, staysChosen ? again : 0);
    }
  }
}

TEST_F(LetsTest, AHandlerThatRaisesTakesNothingFromALet) {
  int raised = 0;
  for (const Let& let : AllLets())
    for (const bool blank : {true, false}) {
      if (PlainLets.count(let.member->name) > 0) continue;
      SCOPED_TRACE(std::string(let.member->name) + (blank ? ", new case" : ""));
      Prepare(false, let);
      const Value value = Other(Get(let));
      Prepare(blank, let);
      const int events = EventsOf(let, value);
      const std::string undisturbed = MarksAndResults(let);
      for (int event = 1; event <= events; ++event, ++raised) {
        Prepare(blank, let);
        EXPECT_EQ(EventsOf(let, value, event), events) << "the other events come as ever";
        EXPECT_EQ(MarksAndResults(let), undisturbed) << "raised at event " << event;
      }
    }
  EXPECT_GT(raised, 200);
}

}  // namespace
}  // namespace orve::automation
