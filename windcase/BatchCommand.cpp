// All cases of a folder over the cores.
#include <algorithm>
#include <chrono>
#include <iostream>
#include <memory>
#include <orve3_bs6399_2.h>
#include <thread>
#include <unistd.h>

#include "Commands.h"
#include "Files.h"
#include "PrintableText.h"
#include "Records.h"
#include "Settings.h"
#include "Workers.h"
#include "common/NumberText.h"

namespace windcase {

namespace fs = std::filesystem;

namespace {

constexpr std::uint32_t kWarmJobs = 10;

bool IsCase(const fs::path& path) {
  std::string extension = path.extension().string();
  std::transform(extension.begin(), extension.end(), extension.begin(),
                 [](char c) { return c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c; });
  return extension == ".wlc" && fs::is_regular_file(path);
}

std::vector<fs::path> CasesOf(const std::string& folder) {
  std::error_code error;
  std::vector<fs::path> cases;
  for (fs::directory_iterator entry(folder, error), end; !error && entry != end; entry.increment(error))
    if (IsCase(entry->path())) cases.push_back(entry->path());
  if (error) throw Failure(ExitCode::File, "Can't read the folder " + folder);
  if (cases.empty()) throw Failure(ExitCode::File, "There are no cases (.wlc) in " + folder);
  std::sort(cases.begin(), cases.end());
  return cases;
}

/// What one worker process does.
class CaseWork {
 public:
  CaseWork(const std::vector<fs::path>& cases, const fs::path& settings, const Options& options)
      : m_cases(cases), m_settings(settings), m_options(options) {
    fs::create_directories(settings);
    m_case = std::make_unique<OpenCase>(settings);
  }

  JobOutcome Do(std::uint32_t job) {
    JobOutcome outcome;
    try {
      m_case->Open(m_cases[job].string());
      const std::vector<ZoneLoads> loads = ReadLoads(**m_case, {});
      TakeLoads(outcome, loads);
      if (!m_options.results.empty()) Store(m_cases[job]);
    } catch (const std::exception& error) {
      outcome.failed = true;
      Put(outcome.fault, error.what());
    }
    return outcome;
  }

 private:
  static void TakeLoads(JobOutcome& outcome, const std::vector<ZoneLoads>& loads) {
    outcome.zones = static_cast<std::uint32_t>(loads.size());
    outcome.failed = loads.empty();
    if (loads.empty()) Put(outcome.fault, "it has no zones");
    for (const ZoneLoads& zone : loads) {
      const std::string name =
          zone.area + ", " + zone.face + ", " + zone.zone + (zone.absent ? " (absent)" : "");
      if (!zone.fault.empty() && !outcome.failed) {
        outcome.failed = true;
        Put(outcome.fault, name + " has no load: " + zone.fault);
      }
      if (zone.pressure > outcome.pressure) {
        outcome.pressure = zone.pressure;
        Put(outcome.pressureZone, name);
      }
      if (zone.suction < outcome.suction) {
        outcome.suction = zone.suction;
        Put(outcome.suctionZone, name);
      }
    }
  }

  void Store(const fs::path& file) {
    const std::vector<InputKey> keys = StoredKeys(*m_case, m_settings);
    const std::string name = file.filename().string() + ".results.json";
    WriteOutput({(fs::path(m_options.results) / name).string(), file.string(), m_options.force},
                RecordJson(RecordOf(*m_case, keys)));
  }

  const std::vector<fs::path>& m_cases;
  fs::path m_settings;
  const Options& m_options;
  std::unique_ptr<OpenCase> m_case;
};

/// Gathers the outcomes in the process that the user started.
class Summary {
 public:
  explicit Summary(const std::vector<fs::path>& cases) : m_cases(cases) {}

  void Take(const JobOutcome& outcome) {
    ++m_done;
    m_zones += outcome.zones;
    m_peak = std::max(m_peak, outcome.peakKilobytes);
    if (outcome.jobsOfWorker <= kWarmJobs) m_warm = std::max(m_warm, outcome.peakKilobytes);
    if (outcome.failed) m_failures.emplace_back(outcome.job, outcome.fault);
    if (outcome.pressure > m_pressure.pressure) m_pressure = outcome;
    if (outcome.suction < m_suction.suction) m_suction = outcome;
    ShowProgress();
  }

  ExitCode Print(int workers) {
    if (m_terminal) std::clog << "\r" << std::string(60, ' ') << "\r" << std::flush;
    const double seconds = std::max(1e-3, Elapsed().count());
    std::sort(m_failures.begin(), m_failures.end());
    for (const auto& [job, fault] : m_failures)
      std::cout << Printable("failed: " + Name(job) + ": " + fault, false) << "\n";
    std::cout << m_done << " cases, " << m_failures.size() << " failed, " << m_zones << " zones\n";
    if (m_pressure.pressure > 0)
      std::cout << "greatest pressure " << orve::FormatSigned(m_pressure.pressure)
                << " kN/m\u00B2: " << Name(m_pressure.job) << ", " << m_pressure.pressureZone << "\n";
    if (m_suction.suction < 0)
      std::cout << "greatest suction " << orve::FormatSigned(m_suction.suction)
                << " kN/m\u00B2: " << Name(m_suction.job) << ", " << m_suction.suctionZone << "\n";
    std::cout << orve::FormatFixed(seconds, 2) << " s in " << workers << " processes, "
              << orve::FormatFixed(m_done / seconds, 0) << " cases a second; memory of a process "
              << Megabytes(m_warm) << " MB after " << kWarmJobs << " cases, " << Megabytes(m_peak)
              << " MB at the end\n";
    return m_failures.empty() ? ExitCode::Done : ExitCode::Attention;
  }

 private:
  std::chrono::duration<double> Elapsed() const { return std::chrono::steady_clock::now() - m_start; }
  std::string Name(std::uint32_t job) const { return m_cases[job].filename().string(); }
  static std::string Megabytes(std::int64_t kilobytes) {
    return orve::FormatFixed(static_cast<double>(kilobytes) / 1024, 1);
  }

  void ShowProgress() const {
    constexpr std::size_t width = 30;
    if (!m_terminal) return;
    const std::size_t filled = width * m_done / m_cases.size();
    std::clog << "\r[" << std::string(filled, '#') << std::string(width - filled, '.') << "] " << m_done
              << " of " << m_cases.size() << std::flush;
  }

  const std::vector<fs::path>& m_cases;
  std::chrono::steady_clock::time_point m_start = std::chrono::steady_clock::now();
  bool m_terminal = isatty(STDERR_FILENO) != 0;
  std::uint32_t m_done = 0;
  std::uint64_t m_zones = 0;
  std::int64_t m_warm = 0;
  std::int64_t m_peak = 0;
  JobOutcome m_pressure;
  JobOutcome m_suction;
  std::vector<std::pair<std::uint32_t, std::string>> m_failures;
};

}  // namespace

// Workers keep their settings in a folder of the batch, so that the user's list of recent cases stays.
ExitCode RunBatch(const Options& options) {
  const std::vector<fs::path> cases = CasesOf(options.file);
  if (!options.results.empty()) fs::create_directories(options.results);
  const int cores = std::max(1, static_cast<int>(std::thread::hardware_concurrency()));
  const int wanted = options.jobs > 0 ? options.jobs : cores;
  const int workers = std::min(wanted, static_cast<int>(cases.size()));
  const PrivateFolder folder;
  Summary summary(cases);
  const auto setUp = [&](int worker) -> Work {
    const auto work = std::make_shared<CaseWork>(cases, folder.Path() / std::to_string(worker), options);
    return [work](std::uint32_t job) { return work->Do(job); };
  };
  RunJobs(static_cast<std::uint32_t>(cases.size()), workers, setUp,
          [&](const JobOutcome& outcome) { summary.Take(outcome); });
  return summary.Print(workers);
}

}  // namespace windcase
