// The built-in engines against the cases of recalculate.py: equal within 1e-6 relative plus 1e-7.
#include <array>
#include <charconv>
#include <cmath>
#include <fstream>
#include <gtest/gtest.h>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "coefficients/CoefficientEngine.h"
#include "common/Error.h"
#include "common/Host.h"
#include "external/BreCpX.h"
#include "sitewind/BVe2X.h"
#include "windspeed/WindSpeedEngine.h"

namespace orve {
namespace {

using Fields = std::vector<std::string>;

std::vector<std::string> ReadLines(const std::string& name) {
  std::ifstream file(std::string(ORVE_RECALCULATION_FOLDER "/") + name, std::ios::binary);
  std::vector<std::string> lines;
  for (std::string line; std::getline(file, line);)
    if (line.front() != '#') lines.push_back(line);
  return lines;
}

Fields Split(std::string_view text, char separator) {
  Fields fields;
  for (std::size_t end; (end = text.find(separator)) != text.npos; text.remove_prefix(end + 1))
    fields.emplace_back(text.substr(0, end));
  fields.emplace_back(text);
  return fields;
}

template <class Number>
Number To(const std::string& text) {
  Number value{};
  const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), value);
  EXPECT_TRUE(error == std::errc() && end == text.data() + text.size()) << "not a number: " << text;
  return value;
}

/// Compares one read with its expected text: a figure, "!" for a refusal, or nothing to compare.
template <class Read>
void Expect(const std::string& expected, const char* what, Read read) {
  if (expected.empty()) return;
  if (expected == "!") {
    EXPECT_THROW(read(), Error) << what;
    return;
  }
  const double value = To<double>(expected);
  try {
    EXPECT_NEAR(static_cast<double>(read()), value, 1e-6 * std::abs(value) + 1e-7) << what;
  } catch (const Error& error) {
    ADD_FAILURE() << what << " refused, expected " << expected << ": " << error.what();
  }
}

void SetSite(BVe2X& engine, const Fields& f) {
  engine.H(To<float>(f[2]));
  engine.A(To<float>(f[3]));
  engine.BaseV(To<float>(f[4]));
  engine.SiteAltitude(To<float>(f[5]));
  engine.Risk(To<float>(f[6]));
  engine.Season(To<std::int32_t>(f[7]));
  engine.StartMonth(To<std::int32_t>(f[8]));
  engine.TopogMode(To<std::int32_t>(f[9]));
}

void SetSector(BVe2X& engine, WindSectors sector, const Fields& f) {
  using Setter = void (BVe2X::*)(WindSectors, float);
  constexpr std::array<Setter, 9> kSetters = {&BVe2X::setCrestHt, &BVe2X::setCrestX,  &BVe2X::setUpwLen,
                                              &BVe2X::setDnwLen,  &BVe2X::setBaseAlt, &BVe2X::setObsHt,
                                              &BVe2X::setObsSep,  &BVe2X::setToSea,   &BVe2X::setInTown};
  for (std::size_t i = 0; i < kSetters.size(); ++i) (engine.*kSetters[i])(sector, To<float>(f[i + 1]));
}

/// The results stand in the columns from `kFirst`; one pressure is expected of both methods.
void CompareSector(const BVe2X& engine, WindSectors sector, const Fields& f) {
  using Result = float (BVe2X::*)(WindSectors) const;
  constexpr std::size_t kFirst = 10, kPressure = 21;
  constexpr std::array<const char*, 13> kNames = {"Sd", "Sa", "Zd", "He", "Sh",     "Sc",      "St",
                                                  "Tc", "Tt", "gt", "Sb", "BSGust", "HybridCa"};
  constexpr std::array<Result, 13> kResults = {
      &BVe2X::Sd, &BVe2X::Sa, &BVe2X::Zd, &BVe2X::He, &BVe2X::Sh,     &BVe2X::Sc,      &BVe2X::St,
      &BVe2X::Tc, &BVe2X::Tt, &BVe2X::gt, &BVe2X::Sb, &BVe2X::BSGust, &BVe2X::HybridCa};
  for (std::size_t i = 0; i < kResults.size(); ++i)
    Expect(f[kFirst + i], kNames[i], [&] { return (engine.*kResults[i])(sector); });
  Expect(f[kPressure], "DirVal", [&] { return engine.DirVal(sector); });
}

// One engine takes all sites in turn, so that nothing of a site may linger in the next.
TEST(Recalculation, SiteWindFactorsAgreeInEverySector) {
  const auto engine = CreateWindSpeedEngine();
  engine->Units(1);
  const auto lines = ReadLines("wind.csv");
  ASSERT_GT(lines.size(), 2000u);
  for (std::size_t first = 0, next; first < lines.size(); first = next) {
    SCOPED_TRACE(lines[first]);
    const Fields site = Split(lines[first], ',');
    SetSite(*engine, site);
    std::vector<Fields> sectors;
    for (next = first + 1; next < lines.size() && lines[next].front() != 's'; ++next) {
      sectors.push_back(Split(lines[next], ','));
      SetSector(*engine, WindSectors(To<std::int32_t>(sectors.back()[0])), sectors.back());
    }
    engine->Calculate();
    Expect(site[10], "Sp", [&] { return engine->Sp(); });
    Expect(site[11], "Ss", [&] { return engine->Ss(); });
    for (std::size_t i = 0; i < sectors.size(); ++i) {
      SCOPED_TRACE(lines[first + 1 + i]);
      CompareSector(*engine, WindSectors(To<std::int32_t>(sectors[i][0])), sectors[i]);
    }
  }
}

void SetBuilding(BreCpX& engine, const Fields& f) {
  engine.TypeIndex(To<std::int32_t>(f[1]));
  engine.Barrel_r(To<float>(f[7]));
  engine.Eaves_Pitch(To<float>(f[8]));
  engine.Eaves_Radius(To<float>(f[9]));
  engine.Parapet_H(To<float>(f[10]));
  engine.Roof_Pitch(To<float>(f[11]));
  engine.Dim_H(To<float>(f[5]));
  engine.Dim_gap(To<float>(f[6]));
  engine.Dim_L(To<float>(f[3]));
  engine.Dim_W(To<float>(f[4]));
  engine.Solidity(To<std::int32_t>(f[12]));
  engine.Theta(To<double>(f[2]));
}

/// `zone` reads letters:suction/pressure, or letters:figure for both; the letters "*" aren't compared.
void CompareZone(BreCpX& engine, const std::string& zone) {
  SCOPED_TRACE(zone);
  const Fields named = Split(zone, ':');
  const Fields figures = Split(named[1], '/');
  EXPECT_TRUE(engine.Valid());
  if (named[0] != "*") {
    EXPECT_EQ(engine.ZoneString(), named[0]);
  }
  engine.Suction(true);
  Expect(figures.front(), "suction", [&] { return engine.Cpe(); });
  engine.Suction(false);
  Expect(figures.back(), "pressure", [&] { return engine.Cpe(); });
}

TEST(Recalculation, ZonesAndCoefficientsAgreeForEveryShape) {
  // No office's own tables may play a part.
  Host().SystemDirectory = [] { return std::string(ORVE_RECALCULATION_FOLDER); };
  const auto engine = CreateCoefficientEngine();
  const auto lines = ReadLines("coefficients.csv");
  ASSERT_GT(lines.size(), 1500u);
  for (std::size_t row = 0; row < lines.size(); ++row) {
    SCOPED_TRACE(lines[row]);
    const Fields f = Split(lines[row], ',');
    engine->Method(row % 2 == 0 ? 0 : 1);
    SetBuilding(*engine, f);
    Expect(f[13], "Breadth", [&] { return engine->Breadth(); });
    Expect(f[14], "Depth", [&] { return engine->Depth(); });
    Expect(f[15], "Scale_b", [&] { return engine->Scale_b(); });
    const Fields zones = f[16].empty() ? Fields{} : Split(f[16], ' ');
    for (std::int16_t i = 0; i <= 25; ++i) {
      engine->ZoneIndex(i);
      if (static_cast<std::size_t>(i) < zones.size()) {
        CompareZone(*engine, zones[static_cast<std::size_t>(i)]);
      } else {
        EXPECT_FALSE(engine->Valid()) << "zone " << i;
      }
    }
  }
}

}  // namespace
}  // namespace orve
