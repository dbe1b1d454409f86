// Along every axis the results run on without a jump, except where a rule of the standard or of the engine
// has one.
#include <algorithm>
#include <cmath>
#include <gtest/gtest.h>
#include <string>
#include <vector>

#include "engines/windspeed_support.h"

namespace orve::test {
namespace {

struct Sweep {
  const char* input;
  float from;
  float to;
  const char* result;
  std::map<std::string, float> site;
  std::vector<double> jumps;  // where the rules have one
};

void PrintTo(const Sweep& sweep, std::ostream* out) {
  *out << sweep.result << " along " << sweep.input;
}

class Continuity : public testing::TestWithParam<Sweep> {};

TEST_P(Continuity, JumpsOnlyWhereTheRulesDo) {
  const Sweep& sweep = GetParam();
  const auto engine = Engine(sweep.site);
  constexpr int kSteps = 20000;
  const double step = (static_cast<double>(sweep.to) - static_cast<double>(sweep.from)) / kSteps;
  const auto read = Results().at(sweep.result);
  std::vector<double> found;
  double last = 0;
  double scale = 0;
  for (int i = 0; i <= kSteps; ++i) {
    const double at = static_cast<double>(sweep.from) + i * step;
    Inputs().at(sweep.input)(*engine, static_cast<float>(at));
    engine->Calculate();
    const double value = static_cast<double>(read(*engine, kWest));
    scale = std::max(scale, std::abs(value));
    if (i > 0 && std::abs(value - last) > 0.004 * scale) found.push_back(at);
    last = value;
  }
  ASSERT_EQ(found.size(), sweep.jumps.size()) << testing::PrintToString(found);
  for (std::size_t i = 0; i < found.size(); ++i) EXPECT_NEAR(found[i], sweep.jumps[i], 1.01 * step);
}

const std::map<std::string, float> kTown = {{"InTown", 6}, {"ObsHt", 9}, {"ObsSep", 30}, {"A", 40}};
const std::map<std::string, float> kHill = {{"CrestHt", 20}, {"UpwLen", 100},      {"DnwLen", 100},
                                            {"BaseAlt", 50}, {"SiteAltitude", 65}, {"H", 12},
                                            {"CrestX", 30}};
const std::map<std::string, float> kSteepHill = {
    {"CrestHt", 40}, {"UpwLen", 100}, {"DnwLen", 100}, {"H", 12}};
const std::map<std::string, float> kCliff = {{"CrestHt", 20}, {"UpwLen", 100}, {"DnwLen", 4000}, {"H", 12}};
const std::map<std::string, float> kSteepCliff = {{"CrestHt", 40}, {"UpwLen", 100}, {"DnwLen", 0}, {"H", 12}};

INSTANTIATE_TEST_SUITE_P(
    WindSpeed, Continuity,
    testing::Values(
        Sweep{"H", 0.1F, 320, "BSGust", {}, {}}, Sweep{"H", 0.1F, 320, "BSGust", kTown, {}},
        Sweep{"H", 0.1F, 320, "Sb", kTown, {}},
        // Figure 4 changes line between heights and between distances.
        Sweep{"H", 0.1F, 120, "HybridCa", {{"A", 40}}, {20}},
        Sweep{"H", 3, 120, "HybridCa", {{"A", 40}, {"InTown", 6}}, {10, 20}},
        Sweep{"ToSea", 0, 150, "BSGust", {}, {}},
        // Where the sea is nearer than the town's edge its distance counts for both; below 0.1 km is country.
        Sweep{"ToSea", 0, 150, "BSGust", kTown, {0.1}}, Sweep{"ToSea", 0, 100, "Tc", kTown, {0.1}},
        Sweep{"ToSea", 0, 150, "HybridCa", {{"A", 40}, {"H", 4}}, {2}},
        Sweep{"ToSea", 0, 150, "HybridCa", {{"A", 40}, {"H", 15}}, {10}},
        // Town from 0.1 km on: Table 23 begins, and obstructions count.
        Sweep{"InTown", 0, 40, "BSGust", {}, {0.1}}, Sweep{"InTown", 0, 40, "He", kTown, {0.1}},
        Sweep{"InTown", 0.001F, 40, "HybridCa", {{"A", 40}, {"H", 4}}, {2}},
        Sweep{"ObsHt", -5, 30, "BSGust", kTown, {}}, Sweep{"ObsSep", 0, 100, "BSGust", kTown, {}},
        Sweep{"A", 0, 1200, "gt", {}, {}}, Sweep{"A", 0, 1200, "Sb", kTown, {}},
        Sweep{"A", 0, 1200, "HybridCa", kTown, {}}, Sweep{"BaseV", 10, 40, "gt", {{"A", 60}}, {}},
        // Topography counts within the feature's reach; with it the altitude factor changes its rule.
        Sweep{"CrestX", -80, 80, "Sh", kHill, {-50, 50}}, Sweep{"CrestX", -80, 80, "Sa", kHill, {-50, 50}},
        Sweep{"CrestX", -80, 80, "Sh", kSteepHill, {-64, 64}},
        Sweep{"CrestX", -80, 180, "Sh", kCliff, {-50, 150}},
        Sweep{"CrestX", -80, 240, "Sh", kSteepCliff, {-64, 200}},
        // A slope above 0.05 counts, by LD the feature turns into an escarpment, and the fits end at H/Le
        // of 2.
        Sweep{"CrestHt", 0, 60, "Sh", kHill, {5}}, Sweep{"DnwLen", 61, 600, "Sh", kHill, {}},
        // The reach follows other lengths above a slope of 0.3 and on an escarpment.
        Sweep{"CrestHt",
              20,
              60,
              "Sh",
              {{"CrestHt", 20}, {"UpwLen", 100}, {"DnwLen", 100}, {"CrestX", -49}},
              {30, 30.626}},
        Sweep{"DnwLen", 61, 600, "Sh", {{"CrestHt", 20}, {"UpwLen", 100}, {"CrestX", 160}}, {320, 400}},
        Sweep{"H", 1, 320, "Sh", {{"CrestHt", 20}, {"UpwLen", 100}, {"DnwLen", 100}}, {200}},
        Sweep{"Risk", 0.001F, 0.999F, "Sp", {}, {}}));

// Along X a feature jumps at the ends of its reach and, where that is longer on a steep one, of the fits.
TEST(WindSpeedContinuity, FeaturesJumpAtTheirReachAndAtTheEndsOfTheFits) {
  constexpr double z = 50;
  constexpr double step = 0.1;
  int jumps = 0;
  for (const double slope : {0.1, 0.29, 0.4, 1.0, 2.0, 5.0})
    for (const double downwind : {0.0, 0.3, 1.0, 1.9, 2.5})
      for (const float height : {3.0F, 20.0F}) {
        const double lu = z / slope;
        const double ld = downwind * lu;
        const bool steep = slope > 0.3;
        const bool hill = ld > 0 && z / ld > 0.05;
        const double upwindEnd = steep ? std::min(1.6 * z, 1.5 * lu) : 0.5 * lu;
        const double hillEnd = steep ? std::min(1.6 * z, 2 * ld) : 0.5 * ld;
        const double downwindEnd = hill ? hillEnd : steep ? 5 * z : 1.5 * lu;
        const auto engine = Engine({{"CrestHt", static_cast<float>(z)},
                                    {"UpwLen", static_cast<float>(lu)},
                                    {"DnwLen", static_cast<float>(ld)},
                                    {"H", height}});
        SCOPED_TRACE("LU " + std::to_string(lu) + " LD " + std::to_string(ld));
        double last = 0;
        for (double x = -2 * lu - 2 * z; x < 2 * lu + 2 * ld + 6 * z; x += step) {
          engine->setCrestX(kWest, static_cast<float>(x));
          engine->Calculate();
          const auto value = static_cast<double>(engine->Sh(kWest));
          if (std::abs(value - last) > 0.05) {
            ++jumps;
            EXPECT_LE(std::min(std::abs(x + upwindEnd), std::abs(x - downwindEnd)), 1.01 * step)
                << "Sh " << last << " to " << value << " at X " << x;
          }
          last = value;
        }
      }
  EXPECT_GT(jumps, 40);
}

}  // namespace
}  // namespace orve::test
