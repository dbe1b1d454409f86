// A wind-speed engine on a level country site, and its members by name for table-driven tests.
#pragma once

#include <functional>
#include <map>
#include <memory>
#include <string>

#include "sitewind/BVe2X.h"
#include "windspeed/WindSpeedEngine.h"
#include "windspeed/WindSpeedSources.h"

namespace orve::test {

/// The sector of direction factor 1.00, in which published calculations without directions are run.
inline constexpr WindSectors kWest = WindSectors::Degrees_240;

using Set = std::function<void(BVe2X&, float)>;
using Get = std::function<float(const BVe2X&)>;

/// Every input that takes a float, in the sector kWest where it has one.
inline const std::map<std::string, Set>& Inputs() {
  static const std::map<std::string, Set> inputs = {
      {"Risk", [](BVe2X& e, float v) { e.Risk(v); }},
      {"SiteAltitude", [](BVe2X& e, float v) { e.SiteAltitude(v); }},
      {"BaseV", [](BVe2X& e, float v) { e.BaseV(v); }},
      {"H", [](BVe2X& e, float v) { e.H(v); }},
      {"A", [](BVe2X& e, float v) { e.A(v); }},
      {"CrestHt", [](BVe2X& e, float v) { e.setCrestHt(kWest, v); }},
      {"CrestX", [](BVe2X& e, float v) { e.setCrestX(kWest, v); }},
      {"UpwLen", [](BVe2X& e, float v) { e.setUpwLen(kWest, v); }},
      {"DnwLen", [](BVe2X& e, float v) { e.setDnwLen(kWest, v); }},
      {"BaseAlt", [](BVe2X& e, float v) { e.setBaseAlt(kWest, v); }},
      {"ObsHt", [](BVe2X& e, float v) { e.setObsHt(kWest, v); }},
      {"ObsSep", [](BVe2X& e, float v) { e.setObsSep(kWest, v); }},
      {"ToSea", [](BVe2X& e, float v) { e.setToSea(kWest, v); }},
      {"InTown", [](BVe2X& e, float v) { e.setInTown(kWest, v); }},
  };
  return inputs;
}

/// Every result, in a sector.
inline const std::map<std::string, std::function<float(const BVe2X&, WindSectors)>>& Results() {
  static const std::map<std::string, std::function<float(const BVe2X&, WindSectors)>> results = {
      {"Sp", [](const BVe2X& e, WindSectors) { return e.Sp(); }},
      {"Ss", [](const BVe2X& e, WindSectors) { return e.Ss(); }},
      {"Sd", [](const BVe2X& e, WindSectors s) { return e.Sd(s); }},
      {"Sa", [](const BVe2X& e, WindSectors s) { return e.Sa(s); }},
      {"Zd", [](const BVe2X& e, WindSectors s) { return e.Zd(s); }},
      {"He", [](const BVe2X& e, WindSectors s) { return e.He(s); }},
      {"Sh", [](const BVe2X& e, WindSectors s) { return e.Sh(s); }},
      {"Sc", [](const BVe2X& e, WindSectors s) { return e.Sc(s); }},
      {"St", [](const BVe2X& e, WindSectors s) { return e.St(s); }},
      {"Tc", [](const BVe2X& e, WindSectors s) { return e.Tc(s); }},
      {"Tt", [](const BVe2X& e, WindSectors s) { return e.Tt(s); }},
      {"gt", [](const BVe2X& e, WindSectors s) { return e.gt(s); }},
      {"Sb", [](const BVe2X& e, WindSectors s) { return e.Sb(s); }},
      {"DirVal", [](const BVe2X& e, WindSectors s) { return e.DirVal(s); }},
      {"BSGust", [](const BVe2X& e, WindSectors s) { return e.BSGust(s); }},
      {"HybridCa", [](const BVe2X& e, WindSectors s) { return e.HybridCa(s); }},
  };
  return results;
}

/// An engine with the given inputs over a level country site: Vb 20, altitude 0, H 10, diagonal 5, sea 50 km.
inline std::shared_ptr<BVe2X> Engine(const std::map<std::string, float>& values = {}) {
  const auto engine = CreateWindSpeedEngine();
  for (int sector = 0; sector < 12; ++sector) engine->setToSea(static_cast<WindSectors>(sector), 50);
  engine->BaseV(20);
  engine->H(10);
  engine->A(5);
  for (const auto& [name, value] : values) Inputs().at(name)(*engine, value);
  if (values.count("CrestHt")) engine->TopogMode(0);
  engine->Calculate();
  return engine;
}

inline const WindSpeedSources& SourcesOf(const BVe2X& engine) {
  return dynamic_cast<const WindSpeedSources&>(engine);
}

}  // namespace orve::test
