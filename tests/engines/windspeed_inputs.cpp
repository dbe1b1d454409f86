// Inputs take anything; only reads of results refuse, each for its own inputs. Stages, allocation and
// sectors.
#include <cfenv>
#include <gtest/gtest.h>
#include <limits>
#include <random>
#include <set>
#include <sstream>
#include <string>
#include <vector>

#include "common/Error.h"
#include "engines/windspeed_support.h"
#include "support/AllocationCount.h"

namespace orve::test {
namespace {

constexpr float kNan = std::numeric_limits<float>::quiet_NaN();
constexpr float kInfinity = std::numeric_limits<float>::infinity();

constexpr int kFatal = FE_INVALID | FE_DIVBYZERO | FE_OVERFLOW;

// A site on which every input counts.
std::shared_ptr<BVe2X> FullSite() {
  return Engine({{"CrestHt", 20},
                 {"UpwLen", 100},
                 {"DnwLen", 100},
                 {"CrestX", -30},
                 {"BaseAlt", 40},
                 {"SiteAltitude", 60},
                 {"ObsHt", 5},
                 {"ObsSep", 15},
                 {"InTown", 4},
                 {"A", 20}});
}

std::set<std::string> Words(const std::string& text) {
  std::istringstream stream(text);
  return {std::istream_iterator<std::string>(stream), {}};
}

struct Bad {
  const char* input;
  std::vector<float> values;
  const char* quantity;
  const char* refused;  // the results that hang on the input
};

const std::string kOfHeight = "He Sc St Tc Tt gt Sb DirVal BSGust HybridCa";

TEST(WindSpeedRefusals, EachResultRefusesForItsOwnInputsOnly) {
  const std::string ofHeight = kOfHeight + " Sh";
  const std::string ofObstructions = kOfHeight + " Zd";
  const std::string ofFeature = "Sh Sa gt Sb DirVal BSGust";
  const std::string ofSea = "Sc St Tc Tt gt Sb DirVal BSGust HybridCa";
  const Bad kCases[] = {
      {"Risk", {kNan, kInfinity, 0, 1, -1}, "annual risk", "Sp gt Sb DirVal BSGust"},
      {"BaseV", {kNan, kInfinity, 0, -20}, "basic wind speed", "gt Sb DirVal BSGust"},
      {"H", {kNan, kInfinity, 0, -1}, "height H", ofHeight.c_str()},
      {"A", {kNan, kInfinity}, "diagonal a", "gt Sb HybridCa"},
      {"CrestHt", {kNan, -kInfinity}, "crest height Z", ofFeature.c_str()},
      {"UpwLen", {kNan, kInfinity}, "upwind length LU", ofFeature.c_str()},
      {"DnwLen", {kNan, kInfinity}, "downwind length LD", ofFeature.c_str()},
      {"CrestX", {kNan, -kInfinity}, "distance X", ofFeature.c_str()},
      {"BaseAlt", {kNan, -kInfinity, -1000}, "base altitude", "Sa gt Sb DirVal BSGust"},
      {"SiteAltitude", {kNan, -1e9F}, "site altitude", ""},  // the base's counts on this site
      {"ObsHt", {kNan, kInfinity}, "obstruction height", ofObstructions.c_str()},
      {"ObsSep", {kNan, kInfinity, -1}, "obstruction spacing", ofObstructions.c_str()},
      {"ToSea", {kNan, kInfinity, -1}, "distance to the sea", ofSea.c_str()},
      {"InTown", {kNan, kInfinity, -1}, "distance in the town", ofObstructions.c_str()},
  };
  for (const Bad& bad : kCases)
    for (const float value : bad.values) {
      const auto engine = FullSite();
      const auto good = FullSite();
      Inputs().at(bad.input)(*engine, value);
      std::feclearexcept(kFatal);
      ASSERT_NO_THROW(engine->Calculate());
      const auto refused = Words(bad.refused);
      for (const auto& [name, read] : Results()) {
        SCOPED_TRACE(std::string(bad.input) + " = " + std::to_string(value) + ", " + name);
        if (!refused.count(name)) {
          EXPECT_EQ(read(*engine, kWest), read(*good, kWest));
          continue;
        }
        try {
          read(*engine, kWest);
          ADD_FAILURE() << "served";
        } catch (const Error& error) {
          EXPECT_EQ(error.Number(), 5);
          EXPECT_NE(std::string(error.what()).find(bad.quantity), std::string::npos) << error.what();
        }
      }
      EXPECT_FALSE(std::fetestexcept(kFatal))
          << "some hosts let floating-point exceptions trap: " << bad.input;
    }
}

// What is not used isn't asked for: a level country site, a diagonal up to 5 m, a season without months.
TEST(WindSpeedRefusals, UnusedInputsAreNotLookedAt) {
  const auto engine = Engine({{"ObsHt", kNan}, {"ObsSep", -1}, {"CrestHt", kNan}, {"BaseAlt", kNan}});
  engine->TopogMode(2);
  engine->Season(2);
  engine->StartMonth(77);
  engine->Calculate();
  EXPECT_GT(engine->BSGust(kWest), 0);
  engine->BaseV(0);
  engine->Risk(2);
  engine->Calculate();
  EXPECT_GT(engine->Sb(kWest), 1);
  EXPECT_THROW(engine->BSGust(kWest), Error);
}

TEST(WindSpeedRefusals, WholeNumbersOutsideTheirRange) {
  const auto engine = FullSite();
  const auto refuses = [&engine](const auto& read, const char* part) {
    engine->Calculate();
    try {
      read();
    } catch (const Error& error) {
      return std::string(error.what()).find(part) != std::string::npos;
    }
    return false;
  };
  engine->Season(6);
  EXPECT_TRUE(refuses([&] { engine->Ss(); }, "season is 6"));
  engine->Season(5);
  engine->StartMonth(12);
  EXPECT_TRUE(refuses([&] { engine->DirVal(kWest); }, "start month is 12"));
  engine->StartMonth(0);
  engine->TopogMode(1);
  EXPECT_TRUE(refuses([&] { engine->Sa(kWest); }, "topography mode is 1"));
  engine->TopogMode(2);
  const float pascals = (engine->Calculate(), engine->BSGust(kWest));
  engine->Units(0);
  engine->Calculate();
  EXPECT_FLOAT_EQ(engine->BSGust(kWest), pascals / 1000);
  engine->Units(2);
  EXPECT_TRUE(refuses([&] { engine->BSGust(kWest); }, "unit of pressures is 2"));
  EXPECT_EQ(engine->Units(), 2);
  engine->Units(1);
  engine->BaseV(3e38F);
  engine->Calculate();
  try {
    engine->BSGust(kWest);
    ADD_FAILURE();
  } catch (const Error& error) {
    EXPECT_EQ(error.Number(), 6);
  }
}

TEST(WindSpeedRefusals, Table4EndsAt100m) {
  const auto engine = Engine({{"H", 100.5F}});
  EXPECT_THROW(SourcesOf(*engine).StandardSb(kWest), Error);
  EXPECT_GT(engine->Sb(kWest), 2);
}

TEST(WindSpeedInputs, ReadBackEqualToTheBit) {
  const auto engine = CreateWindSpeedEngine();
  for (const float value : {kNan, kInfinity, -kInfinity, -0.0F, 0.0F, 0.1F, -3e38F}) {
    const auto same = [value](float read) { return std::isnan(value) ? std::isnan(read) : read == value; };
    for (const auto& [name, set] : Inputs()) set(*engine, value);
    EXPECT_TRUE(same(engine->SiteAltitude()) && same(engine->BaseV()) && same(engine->H()) &&
                same(engine->A()));
    EXPECT_EQ(std::signbit(engine->ToSea(kWest)), std::signbit(value));
    for (const auto read : {&BVe2X::CrestHt, &BVe2X::CrestX, &BVe2X::UpwLen, &BVe2X::DnwLen, &BVe2X::BaseAlt,
                            &BVe2X::ObsHt, &BVe2X::ObsSep, &BVe2X::ToSea, &BVe2X::InTown}) {
      EXPECT_TRUE(same(((*engine).*read)(kWest)));
      EXPECT_EQ(((*engine).*read)(WindSectors::Degrees_0), 0.0F);
    }
  }
}

TEST(WindSpeedInputs, SectorsOutsideTheTwelveRaise9) {
  const auto engine = FullSite();
  for (const int value : {-1, 12, std::numeric_limits<int>::min(), std::numeric_limits<int>::max()}) {
    const auto sector = static_cast<WindSectors>(value);
    const auto raises = [](const auto& call) {
      try {
        call();
      } catch (const Error& error) {
        return error.Number() == 9;
      }
      return false;
    };
    for (const auto& [name, read] : Results())
      EXPECT_EQ(raises([&, &get = read] { get(*engine, sector); }), name != "Sp" && name != "Ss") << name;
    for (const auto get : {&BVe2X::CrestHt, &BVe2X::CrestX, &BVe2X::UpwLen, &BVe2X::DnwLen, &BVe2X::BaseAlt,
                           &BVe2X::ObsHt, &BVe2X::ObsSep, &BVe2X::ToSea, &BVe2X::InTown})
      EXPECT_TRUE(raises([&] { ((*engine).*get)(sector); }));
    for (const auto set :
         {&BVe2X::setCrestHt, &BVe2X::setCrestX, &BVe2X::setUpwLen, &BVe2X::setDnwLen, &BVe2X::setBaseAlt,
          &BVe2X::setObsHt, &BVe2X::setObsSep, &BVe2X::setToSea, &BVe2X::setInTown})
      EXPECT_TRUE(raises([&] { ((*engine).*set)(sector, 1); }));
    EXPECT_TRUE(raises([&] { SourcesOf(*engine).Source(WindFactor::Sp, sector); }));
  }
}

TEST(WindSpeedCalculate, ResultsAreThoseOfTheLastCalculate) {
  const auto fresh = CreateWindSpeedEngine();
  for (const auto& [name, read] : Results()) EXPECT_THROW(read(*fresh, kWest), Error) << name;

  const auto engine = Engine();
  const float before = engine->BSGust(kWest);
  engine->BaseV(40);
  engine->Units(0);
  EXPECT_EQ(engine->BSGust(kWest), before);
  engine->BaseV(kNan);
  EXPECT_EQ(engine->BSGust(kWest), before);
  engine->Calculate();
  EXPECT_THROW(engine->BSGust(kWest), Error);
}

// One change at a time redoes what hangs on it: the same results, to the bit, as an engine that works out all
// afresh.
TEST(WindSpeedCalculate, ChangedInputsGiveTheResultsOfAFreshEngine) {
  std::map<std::string, float> values = {{"CrestHt", 20}, {"UpwLen", 100}};
  const auto engine = Engine(values);
  const std::map<std::string, std::vector<float>> choices = {
      {"Risk", {0.02F, 0.1F, 1}}, {"SiteAltitude", {20, 90, kNan}},
      {"BaseV", {22, 26, 0}},     {"H", {6, 24, 0}},
      {"A", {3, 30, 90}},         {"CrestHt", {0, 20, 60}},
      {"CrestX", {-20, 5, 400}},  {"UpwLen", {100, 150}},
      {"DnwLen", {0, 120}},       {"BaseAlt", {10, 40}},
      {"ObsHt", {0, 6}},          {"ObsSep", {10, 60}},
      {"ToSea", {0.5F, 30}},      {"InTown", {0, 1, 8, -1}},
  };
  std::mt19937 random(20020315);
  const auto served = [](const auto& read, const BVe2X& of, WindSectors sector) {
    try {
      return read(of, sector);
    } catch (const Error&) {
      return -1.0F;
    }
  };
  for (int step = 0; step < 600; ++step) {
    const auto choice = std::next(choices.begin(), random() % choices.size());
    const float value = choice->second[random() % choice->second.size()];
    values[choice->first] = value;
    Inputs().at(choice->first)(*engine, value);
    if (step % 3 == 0) continue;  // several changes before one Calculate
    engine->Calculate();
    const auto fresh = Engine(values);
    for (const auto& [name, read] : Results())
      for (const WindSectors sector : {kWest, WindSectors::Degrees_0})
        ASSERT_EQ(served(read, *engine, sector), served(read, *fresh, sector))
            << name << " after " << choice->first;
  }
}

TEST(WindSpeedCalculate, AllocatesNothing) {
  const auto engine = FullSite();
  const std::size_t before = AllocationCount();
  for (const float change : {1.0F, 2.0F, 3.0F}) {
    engine->H(10 + change);
    engine->A(10 * change);
    engine->setToSea(kWest, change);
    engine->Calculate();
    for (int sector = 0; sector < 12; ++sector) {
      engine->BSGust(static_cast<WindSectors>(sector));
      engine->HybridCa(static_cast<WindSectors>(sector));
    }
  }
  EXPECT_EQ(AllocationCount(), before);
}

}  // namespace
}  // namespace orve::test
