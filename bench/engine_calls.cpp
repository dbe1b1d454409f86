#include "engine_calls.h"

#include <benchmark/benchmark.h>
#include <coefficients/CoefficientEngine.h>
#include <external/BreCpX.h>
#include <memory>
#include <sitewind/BVe2X.h>
#include <string>
#include <windspeed/WindSpeedEngine.h>

namespace bench {

namespace {

using namespace orve;

// Town, obstructions and a hill or an escarpment in every sector: the dearest site.
std::shared_ptr<BVe2X> DearSite() {
  auto wind = CreateWindSpeedEngine();
  wind->TopogMode(0);
  wind->BaseV(26);
  wind->H(12);
  wind->A(20);
  for (int index = 0; index < 12; ++index) {
    const auto sector = static_cast<WindSectors>(index);
    wind->setCrestHt(sector, 20);
    wind->setUpwLen(sector, 100);
    wind->setDnwLen(sector, index % 2 == 0 ? 150.0f : 4000.0f);
    wind->setCrestX(sector, 30);
    wind->setObsHt(sector, 5);
    wind->setObsSep(sector, 15);
    wind->setToSea(sector, 40);
    wind->setInTown(sector, 4);
  }
  wind->Calculate();
  return wind;
}

void AddRecalculation(const char* name, void (BVe2X::*input)(float)) {
  benchmark::RegisterBenchmark(name, [input](benchmark::State& state) {
    const auto wind = DearSite();
    float value = 20;
    for (auto _ : state) {
      value = 41 - value;
      ((*wind).*input)(value);
      wind->Calculate();
      benchmark::DoNotOptimize(wind->BSGust(WindSectors::Degrees_240));
    }
  });
}

std::shared_ptr<BreCpX> DuoPitchedRoof() {
  auto coefficients = CreateCoefficientEngine();
  coefficients->TypeIndex(4);
  coefficients->Roof_Pitch(6);
  coefficients->Dim_L(30);
  coefficients->Dim_W(15);
  coefficients->Dim_H(7);
  coefficients->Theta(0);
  coefficients->Suction(true);
  std::int16_t zone = 0;
  do coefficients->ZoneIndex(zone++);
  while (!coefficients->Valid() && zone < 26);
  return coefficients;
}

}  // namespace

void RegisterEngineBenchmarks() {
  AddRecalculation("calculate_twelve_sectors", static_cast<void (BVe2X::*)(float)>(&BVe2X::H));
  AddRecalculation("calculate_new_diagonal", static_cast<void (BVe2X::*)(float)>(&BVe2X::A));
  benchmark::RegisterBenchmark("read_of_q", [](benchmark::State& state) {
    const auto wind = DearSite();
    for (auto _ : state) benchmark::DoNotOptimize(wind->BSGust(WindSectors::Degrees_240));
  });
  benchmark::RegisterBenchmark("read_of_Cpe", [](benchmark::State& state) {
    const auto coefficients = DuoPitchedRoof();
    for (auto _ : state) benchmark::DoNotOptimize(coefficients->Cpe());
  });
}

}  // namespace bench
