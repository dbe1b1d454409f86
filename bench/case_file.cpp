// Opening and saving a case, on a file system in memory where there is one, and how a search grows with the
// file.
#include "case_file.h"

#include <benchmark/benchmark.h>
#include <filesystem>
#include <fstream>
#include <orve3_bs6399_2.h>
#include <string>

#include "portal_building.h"

namespace bench {

namespace {

using namespace orve;
namespace fs = std::filesystem;

/// A saved case in a folder of its own. With hand-entered results the file has about 20 kB, without 5 kB.
class SavedCase {
 public:
  explicit SavedCase(bool manualResults) {
    const fs::path memory = "/dev/shm";
    m_folder = (fs::exists(memory) ? memory : fs::temp_directory_path()) / "orve-bench-cases";
    fs::create_directory(m_folder);
    m_before = Host().LibraryFolder;
    Host().LibraryFolder = [this] { return m_folder.string(); };
    m_case = CreateCurrentCase();
    m_case->Initialize_BreApps();
    examples::DescribePortalBuilding(*m_case);
    m_case->DynamicPressure()->ManualResults(manualResults);
    m_case->ExternalCoefficients()->ManualResults(manualResults);
    m_case->Location((m_folder / "case.wlc").string());
    m_case->Save();
  }
  ~SavedCase() {
    m_case.reset();
    Host().LibraryFolder = m_before;
    fs::remove_all(m_folder);
  }
  SavedCase(const SavedCase&) = delete;
  SavedCase& operator=(const SavedCase&) = delete;

  clsCurrentCase& Case() { return *m_case; }
  double Bytes() const { return static_cast<double>(fs::file_size(m_folder / "case.wlc")); }

 private:
  fs::path m_folder;
  std::function<std::string()> m_before;
  std::shared_ptr<clsCurrentCase> m_case;
};

void Open(benchmark::State& state, bool manualResults) {
  SavedCase saved(manualResults);
  const std::string name = saved.Case().Location();
  for (auto _ : state) benchmark::DoNotOptimize(saved.Case().OpenExisting(name));
  state.counters["bytes"] = saved.Bytes();
}

void Save(benchmark::State& state, bool manualResults) {
  SavedCase saved(manualResults);
  for (auto _ : state) saved.Case().Save();
  state.counters["bytes"] = saved.Bytes();
}

/// A file of unknown keys, `state.range(0)` bytes long, and the search of the last one: what one key costs.
void FindLastKey(benchmark::State& state) {
  clsSaveFile file;
  const fs::path path = fs::temp_directory_path() / "orve-bench-keys.wlc";
  {
    std::ofstream text(path, std::ios::binary);
    text << "[Section]\r\n";
    for (std::int64_t bytes = 11; bytes < state.range(0); bytes += 28)
      text << "DynamicPressure_q(Roof, 0)=0\r\n";
    text << "last=1\r\n";
  }
  file.ReadData(path.string());
  fs::remove(path);
  for (auto _ : state) benchmark::DoNotOptimize(file.Data("Section", "last", ""));
  state.SetComplexityN(state.range(0));
}

}  // namespace

void RegisterCaseFileBenchmarks() {
  for (const bool manual : {false, true}) {
    const std::string size = manual ? "20_kB" : "5_kB";
    benchmark::RegisterBenchmark(("open_case_" + size).c_str(), Open, manual)->Unit(benchmark::kMicrosecond);
    benchmark::RegisterBenchmark(("save_case_" + size).c_str(), Save, manual)->Unit(benchmark::kMicrosecond);
  }
  benchmark::RegisterBenchmark("find_last_key", FindLastKey)->Range(1 << 10, 1 << 22)->Complexity();
}

}  // namespace bench
