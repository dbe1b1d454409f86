// Calls by name with loosely typed arguments.
#include <gtest/gtest.h>
#include <limits>
#include <string>
#include <vector>

#include "Dispatch.h"
#include "orve3_bs6399_2.h"
#include "published/BuiltInCase.h"

namespace orve::automation {
namespace {

class DispatchTest : public test::BuiltInCase {
 protected:
  ObjectReference Object(const char* name) { return *Invoke(Root(), name, {}).As<ObjectReference>(); }
  ObjectReference Root() { return {windCase, FindClass("clsCurrentCase")}; }

  static std::string Get(const ObjectReference& object, const char* member, std::vector<Value> arguments = {},
                         std::vector<NamedArgument> named = {}) {
    return TextOf(Invoke(object, member, arguments, named));
  }
  static void Let(const ObjectReference& object, const char* member, std::vector<Value> arguments,
                  const Value& value) {
    Assign(object, member, arguments, value);
  }
  template <class Call>
  static int NumberOf(Call call) {
    try {
      call();
    } catch (...) {
      return CurrentError().number;
    }
    return 0;
  }
};

TEST_F(DispatchTest, NamesIgnoreCaseAndNumbersServeAsWell) {
  const ObjectReference building = Object("buildingDIMENSIONS");
  Let(building, "roof_pitch", {}, 22.5);
  EXPECT_EQ(Get(building, "ROOF_PITCH"), "22.5");
  EXPECT_EQ(TextOf(Invoke(building, RequireMember(building, 16), {})), "22.5");
}

TEST_F(DispatchTest, ArgumentsLeftOutTakeTheirDefaults) {
  const ObjectReference wind = Object("DynamicPressure");
  Let(wind, "ManualResults", {}, true);
  Let(wind, "WindSector", {}, 3);
  Let(wind, "DynamicPressure_q", {0, 3}, 0.613F);
  EXPECT_EQ(Get(wind, "DynamicPressure_q"), "0.613");
  EXPECT_EQ(Get(wind, "DynamicPressure_q", {Value(), 3}), "0.613");
  EXPECT_EQ(Get(wind, "DynamicPressure_q", {}, {{"windsector", 4}}), "0");
  Let(wind, "DynamicPressure_q", {}, "0.7");
  EXPECT_EQ(Get(wind, "DynamicPressure_q", {0}, {{"WindSector", "3"}}), "0.7");
}

TEST_F(DispatchTest, ValuesConvertAsHostsExpect) {
  const ObjectReference building = Object("BuildingDimensions");
  const struct {
    const char* member;
    Value given;
    const char* held;
  } rows[] = {
      {"Orientation", 2.5, "2"},      {"Orientation", 3.5F, "4"},  {"Orientation", " 45 ", "45"},
      {"Orientation", "true", "-1"},  {"Roof_Pitch", 5, "5"},      {"Roof_Pitch", "1e1", "10"},
      {"Roof_Pitch", true, "-1"},     {"ConsiderRoof", 2, "True"}, {"ConsiderRoof", "false", "False"},
      {"ConsiderRoof", 0.0, "False"}, {"RoofType", "6", "6"},      {"RoofType", 7.0, "7"},
  };
  for (const auto& row : rows) {
    Let(building, row.member, {}, row.given);
    EXPECT_EQ(Get(building, row.member), row.held) << row.member << " = " << TextOf(row.given);
  }
  Let(Root(), "Description", {}, 1.25F);
  EXPECT_EQ(Get(Root(), "Description"), "1.25");
}

TEST_F(DispatchTest, WhatDoesNotConvertIsRefusedAndTheOldValueStays) {
  const ObjectReference building = Object("BuildingDimensions");
  const struct {
    const char* member;
    Value given;
    int number;
  } rows[] = {
      {"Orientation", "", 13},
      {"Orientation", "north", 13},
      {"Orientation", 40000, 6},
      {"Orientation", "40000", 6},
      {"Orientation", std::numeric_limits<double>::quiet_NaN(), 6},
      {"RoofType", 3e9, 6},
      {"Roof_Pitch", 1e39, 6},
      {"Roof_Pitch", "1,5", 13},
      {"Roof_Pitch", Value(), 13},
      {"Roof_Pitch", Object("DynamicPressure"), 13},
      {"ConsiderRoof", "maybe", 13},
      {"ConsiderRoof", std::vector<Value>{}, 13},
  };
  for (const auto& row : rows)
    EXPECT_EQ(NumberOf([&] { Let(building, row.member, {}, row.given); }), row.number)
        << row.member << " = " << TextOf(row.given);
  EXPECT_EQ(Get(building, "Roof_Pitch"), "0");
}

TEST_F(DispatchTest, CallsThatDoNotFitTheMemberAreRefused) {
  const ObjectReference root = Root();
  const ObjectReference wind = Object("DynamicPressure");
  const ObjectReference loads = Object("OverallAppliedLoads");
  const ObjectReference null{nullptr, FindClass("clsCurrentCase")};
  EXPECT_EQ(NumberOf([&] { Get(root, "Roof_Pitch"); }), 438);
  EXPECT_EQ(NumberOf([&] { RequireMember(root, 99); }), 438);
  EXPECT_EQ(NumberOf([&] { Let(root, "LocationCorrect", {}, true); }), 438);
  EXPECT_EQ(NumberOf([&] { Let(root, "Clear", {}, true); }), 438);
  EXPECT_EQ(NumberOf([&] { (void)ConnectEvent(root, "Nothing", {}); }), 438);
  EXPECT_EQ(NumberOf([&] { Get(wind, "DirectionFactor_Sd", {}, {{"Face", 0}}); }), 448);
  EXPECT_EQ(NumberOf([&] { Get(loads, "CantileverZoneDescription"); }), 449);
  EXPECT_EQ(NumberOf([&] { Get(wind, "DirectionFactor_Sd", {0, 0, 0}); }), 450);
  EXPECT_EQ(NumberOf([&] { Get(wind, "DirectionFactor_Sd", {0}, {{"WindArea", 0}}); }), 450);
  EXPECT_EQ(NumberOf([&] { Get(null, "Description"); }), 91);
  EXPECT_EQ(NumberOf([&] { Let(root, "DynamicPressure", {}, {}); }), 13);
  EXPECT_EQ(NumberOf([&] { Let(root, "DynamicPressure", {}, loads); }), 13);
  EXPECT_EQ(NumberOf([&] { CreateObject("clsDynamicPressure"); }), 429);
}

TEST_F(DispatchTest, AnObjectPropertyTakesNothing) {
  const ObjectReference root = Root();
  Let(root, "DynamicPressure", {}, ObjectReference{});
  EXPECT_EQ(TextOf(Get(root, "DynamicPressure")), "Nothing");
}

TEST_F(DispatchTest, AnErrorNamesMemberAndArgument) {
  try {
    Get(Object("DynamicPressure"), "DirectionFactor_Sd", {"x"});
    FAIL();
  } catch (const Error& error) {
    EXPECT_EQ(std::string(error.what()).rfind("clsDynamicPressure.DirectionFactor_Sd, WindArea: ", 0), 0U)
        << error.what();
  }
}

TEST_F(DispatchTest, EventsAndForeignExceptionsComeThrough) {
  std::string told;
  Connection connection = ConnectEvent(
      Root(), "dirtyupdated", [&](std::span<const Value> arguments) { told += TextOf(arguments[0]) + " "; });
  Let(Root(), "Description", {}, "Shed");
  connection.Disconnect();
  Let(Root(), "Description", {}, "Hall");
  EXPECT_EQ(told, "True ");

  connection =
      ConnectEvent(Root(), "DirtyUpdated", [](std::span<const Value>) { throw std::runtime_error("mine"); });
  EXPECT_EQ(NumberOf([&] { Let(Root(), "Description", {}, "Mill"); }), 440);
}

TEST_F(DispatchTest, RecordsCopyWholeAndOfTheirOwnKindOnly) {
  const ObjectReference cantilevers = CreateObject("clscantileverwindloads");
  RecordValue record = *Invoke(cantilevers, "ExternalPressures", {}).As<RecordValue>();
  ASSERT_EQ(record.fields.size(), 21U);
  record.fields[0] = 2.5F;
  Let(cantilevers, "ExternalPressures", {}, record);
  EXPECT_EQ(Get(cantilevers, "ExternalPressures").rfind("{2.5; 0; 0; 0; 0; {0; 0}; ", 0), 0U);
  record.fields.pop_back();
  EXPECT_EQ(NumberOf([&] { Let(cantilevers, "ExternalPressures", {}, record); }), 13);
  EXPECT_EQ(NumberOf([&] { Let(cantilevers, "ExternalPressures", {}, "x"); }), 13);
}

}  // namespace
}  // namespace orve::automation
