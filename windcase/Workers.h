// Jobs spread over worker processes: the library serves one case a process.
#pragma once

#include <cstddef>
#include <cstdint>
#include <functional>
#include <string>

namespace windcase {

/// What became of one job, in a form that fits a pipe's atomic write.
struct JobOutcome {
  std::uint32_t job = 0;
  bool failed = false;
  std::uint32_t zones = 0;
  float pressure = 0;  ///< Greatest and least overall load, kN/m².
  float suction = 0;
  std::uint32_t jobsOfWorker = 0;  ///< How many jobs the worker has done so far.
  std::int64_t peakKilobytes = 0;  ///< The worker's greatest memory so far.
  char pressureZone[96] = {};
  char suctionZone[96] = {};
  char fault[512] = {};
};

/// Puts a text into a field of an outcome, cut to fit.
template <std::size_t Size>
void Put(char (&field)[Size], const std::string& text) {
  field[text.copy(field, Size - 1)] = '\0';
}

/// Does one job.
using Work = std::function<JobOutcome(std::uint32_t job)>;

/// Does the jobs 0 to `jobs` - 1 in worker processes. `setUp` runs in each worker and gives its work;
/// `report` runs in this process, once for each job, in the order in which they end. A job that ends its
/// worker counts as failed, and the others go on. Failure: Internal if processes can't be made.
void RunJobs(std::uint32_t jobs, int workers, const std::function<Work(int worker)>& setUp,
             const std::function<void(const JobOutcome&)>& report);

}  // namespace windcase
