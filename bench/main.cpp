// Benchmarks of the demo building: the whole sheet against its two floors, single requests, construction.
// Prints the ratios to the floors and the allocations of a warm sheet; fails if reading numbers allocates or
// if the straight floor doesn't give the library's loads.
#include <BuiltInEngines.h>
#include <benchmark/benchmark.h>
#include <chrono>
#include <cmath>
#include <coefficients/CoefficientEngine.h>
#include <iostream>
#include <map>
#include <memory>
#include <orve3_bs6399_2.h>
#include <string>
#include <windspeed/WindSpeedEngine.h>

#include "case_file.h"
#include "component_log.h"
#include "engine_calls.h"
#include "portal_building.h"
#include "private_folder.h"
#include "sheet.h"
#include "straight.h"
#include "support/AllocationCount.h"

namespace {

using namespace orve;

std::shared_ptr<clsCurrentCase> OpenDemoCase() {
  auto windCase = CreateCurrentCase();
  windCase->Initialize_BreApps();
  examples::DescribePortalBuilding(*windCase);
  examples::DescribeSite(*windCase);
  return windCase;
}

// Runs a sheet on components that log what they are asked, and leaves the inner components as they were
// before the sheet began.
bench::Components RecordSheet(bench::CallLog& log) {
  bench::Components inner{CreateWindSpeedEngine(), CreateCoefficientEngine()};
  ComponentClasses().Register("BVe2XControl4.BVe2X", ComponentClassRegistry::WindSpeedFactory([&] {
                                return bench::RecordingWind(inner.wind, log);
                              }));
  ComponentClasses().Register("BreCp2_2XControl3.BreCp2_2X", ComponentClassRegistry::CoefficientFactory([&] {
                                return bench::RecordingCoefficients(inner.coefficients, log);
                              }));
  const auto windCase = OpenDemoCase();
  bench::ReadNumbers(*windCase);
  log.Record(true);
  bench::ReadNumbers(*windCase);
  bench::ReadTexts(*windCase);
  log.Record(false);
  return inner;
}

bench::PlainBuilding PlainDemoBuilding(const clsCurrentCase& windCase) {
  const auto& b = *windCase.BuildingDimensions();
  const auto& internal = *windCase.InternalCoefficients();
  return {b.Face1And3_Length(),
          b.Face2And4_Width(),
          b.Roof_Pitch(),
          b.Orientation(),
          {b.Roof_Height(), b.Roof_Diagonal()},
          {b.Wall_SideHeight(), b.Wall_SideDiagonal()},
          {b.Wall_GableHeight(), b.Wall_GableDiagonal()},
          {b.Parapet_HeightFromFFL_m(), b.Parapet_SideDiagonal()},
          {b.Parapet_HeightFromFFL_m(), b.Parapet_GableDiagonal()},
          {b.Roof_Height(), internal.Calculated_DiagonalDimension_a()},
          {b.Wall_GapFace1(), b.Wall_GapFace2(), b.Wall_GapFace3(), b.Wall_GapFace4()},
          b.Parapet_Height(),
          b.Parapet_SideReturnCorner(),
          b.Parapet_GableReturnCorner(),
          internal.InternalCoefficientFactor_Cpi_Pressure(Faces::Face_1),
          internal.InternalCoefficientFactor_Cpi_Suction(Faces::Face_1)};
}

bool SameLoads(const std::vector<bench::NetLoads>& library, const std::vector<bench::NetLoads>& straight) {
  if (library.size() != straight.size()) return false;
  for (std::size_t i = 0; i < library.size(); ++i)
    if (std::abs(library[i].pressure - straight[i].pressure) > 1e-5f ||
        std::abs(library[i].suction - straight[i].suction) > 1e-5f)
      return false;
  return true;
}

// Keeps the processor time of one run of each benchmark for the ratios.
class Reporter : public benchmark::ConsoleReporter {
 public:
  Reporter() : ConsoleReporter(OO_None) {}
  void ReportRuns(const std::vector<Run>& runs) override {
    for (const Run& run : runs)
      m_seconds[run.run_name.function_name] = run.cpu_accumulated_time / static_cast<double>(run.iterations);
    ConsoleReporter::ReportRuns(runs);
  }
  double Seconds(const std::string& name) const {
    const auto found = m_seconds.find(name);
    return found == m_seconds.end() ? 0 : found->second;
  }

 private:
  std::map<std::string, double> m_seconds;
};

void PrintRatio(const Reporter& reporter, const std::string& what, const std::string& floor) {
  const double sheet = reporter.Seconds("whole_sheet");
  const double bottom = reporter.Seconds(floor);
  if (sheet <= 0 || bottom <= 0) return;
  std::cout << "whole sheet to " << what << ": " << std::round(100 * sheet / bottom) / 100 << "\n";
}

}  // namespace

int main(int argc, char** argv) try {
  const examples::PrivateFolder folder;
  bench::CallLog log;
  const bench::Components replayed = RecordSheet(log);

  RegisterBuiltInEngines();
  const auto windCase = OpenDemoCase();
  const bench::Components live{basBS6399_2::BreVe, basBS6399_2::BreCp};
  const bench::PlainBuilding building = PlainDemoBuilding(*windCase);
  auto& wind = *windCase->DynamicPressure();
  auto& loads = *windCase->OverallAppliedLoads();

  const auto libraryLoads = bench::ReadNetLoads(*windCase);
  const bool sameLoads = SameLoads(libraryLoads, bench::StraightNetLoads(building, live));
  bench::ReadNumbers(*windCase);
  const std::size_t before = orve::test::AllocationCount();
  bench::ReadNumbers(*windCase);
  const std::size_t ofNumbers = orve::test::AllocationCount() - before;
  const bench::Texts texts = bench::ReadTexts(*windCase);
  const std::size_t ofTexts = orve::test::AllocationCount() - before - ofNumbers;

  benchmark::RegisterBenchmark("whole_sheet", [&](benchmark::State& state) {
    for (auto _ : state) {
      benchmark::DoNotOptimize(bench::ReadNumbers(*windCase));
      benchmark::DoNotOptimize(bench::ReadTexts(*windCase));
    }
  })->Unit(benchmark::kMillisecond);
  benchmark::RegisterBenchmark("floor_replayed_calls", [&](benchmark::State& state) {
    for (auto _ : state) log.Replay(replayed);
  })->Unit(benchmark::kMillisecond);
  benchmark::RegisterBenchmark("floor_straight_code", [&](benchmark::State& state) {
    for (auto _ : state) benchmark::DoNotOptimize(bench::StraightNetLoads(building, live));
  })->Unit(benchmark::kMicrosecond);
  benchmark::RegisterBenchmark("overall_load_of_one_zone", [&](benchmark::State& state) {
    for (auto _ : state)
      benchmark::DoNotOptimize(
          loads.Hybrid_OverallAppliedLoad_Suction(BuildingAreas::baRoof, Faces::Face_1, 0));
  })->Unit(benchmark::kMicrosecond);
  benchmark::RegisterBenchmark("q_of_one_sector_warm", [&](benchmark::State& state) {
    for (auto _ : state)
      benchmark::DoNotOptimize(wind.DynamicPressure_q(WindAreas::waRoof, WindSectors::Degrees_240));
  });
  benchmark::RegisterBenchmark("q_of_one_sector_cold", [&](benchmark::State& state) {
    for (auto _ : state) {
      windCase->BreVe_Dirty(true);
      benchmark::DoNotOptimize(wind.DynamicPressure_q(WindAreas::waRoof, WindSectors::Degrees_240));
    }
  });
  benchmark::RegisterBenchmark("construction_of_the_root", [&](benchmark::State& state) {
    for (auto _ : state) benchmark::DoNotOptimize(CreateCurrentCase());
  })->Unit(benchmark::kMicrosecond);
  bench::RegisterEngineBenchmarks();
  bench::RegisterCaseFileBenchmarks();

  benchmark::Initialize(&argc, argv);
  if (benchmark::ReportUnrecognizedArguments(argc, argv)) return 1;
  Reporter reporter;
  benchmark::RunSpecifiedBenchmarks(&reporter);

  std::cout << "\nzones of the sheet: " << libraryLoads.size()
            << ", component calls of a sheet: " << log.Size() << "\n";
  PrintRatio(reporter, "the replayed component calls", "floor_replayed_calls");
  PrintRatio(reporter, "the straight code", "floor_straight_code");
  std::cout << "allocations of a warm sheet: " << ofNumbers << " for the numbers, " << ofTexts << " for "
            << texts.count << " texts, " << texts.allocated << " of which are too long to be held in place\n"
            << "loads of the straight code equal to the library's: " << (sameLoads ? "yes" : "no") << "\n";
  return ofNumbers == 0 && sameLoads ? 0 : 1;
} catch (const Error& error) {
  std::cerr << "Error " << error.Number() << ": " << error.what() << "\n";
  return 1;
}
