#include "Workers.h"

#include <atomic>
#include <cerrno>
#include <climits>
#include <new>
#include <sys/mman.h>
#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>
#include <vector>

#include "Failure.h"

namespace windcase {

namespace {

constexpr int kMostWorkers = 256;
constexpr std::uint32_t kIdle = UINT32_MAX;

static_assert(sizeof(JobOutcome) <= PIPE_BUF);

[[noreturn]] void RaiseInternal(const char* what) {
  throw Failure(ExitCode::Internal, what);
}

// What the processes share: the next job, and the one that each worker is at.
struct Board {
  std::atomic<std::uint32_t> next{0};
  std::atomic<std::uint32_t> current[kMostWorkers];
};

class SharedBoard {
 public:
  SharedBoard() {
    void* memory = mmap(nullptr, sizeof(Board), PROT_READ | PROT_WRITE, MAP_SHARED | MAP_ANONYMOUS, -1, 0);
    if (memory == MAP_FAILED) RaiseInternal("Can't share memory with the worker processes");
    m_board = new (memory) Board;
    for (auto& current : m_board->current) current = kIdle;
  }
  ~SharedBoard() { munmap(m_board, sizeof(Board)); }
  SharedBoard(const SharedBoard&) = delete;
  SharedBoard& operator=(const SharedBoard&) = delete;
  Board* operator->() const { return m_board; }

 private:
  Board* m_board = nullptr;
};

std::int64_t PeakKilobytes() {
  rusage usage{};
  getrusage(RUSAGE_SELF, &usage);
  return usage.ru_maxrss;
}

bool WriteOutcome(int pipe, const JobOutcome& outcome) {
  ssize_t written = 0;
  do written = write(pipe, &outcome, sizeof outcome);
  while (written < 0 && errno == EINTR);
  return written == static_cast<ssize_t>(sizeof outcome);
}

bool ReadOutcome(int pipe, JobOutcome& outcome) {
  std::size_t done = 0;
  while (done < sizeof outcome) {
    const ssize_t got = read(pipe, reinterpret_cast<char*>(&outcome) + done, sizeof outcome - done);
    if (got < 0 && errno == EINTR) continue;
    if (got <= 0) return false;
    done += static_cast<std::size_t>(got);
  }
  return true;
}

class Pool {
 public:
  Pool(std::uint32_t jobs, int workers, const std::function<Work(int)>& setUp,
       const std::function<void(const JobOutcome&)>& report)
      : m_jobs(jobs), m_workers(workers), m_setUp(setUp), m_report(report) {}

  // A round ends when all its workers have; those that remain after a crash do the rest of the jobs.
  void Run() {
    while (m_board->next < m_jobs) {
      StartRound();
      JobOutcome outcome;
      while (ReadOutcome(m_pipe, outcome)) m_report(outcome);
      close(m_pipe);
      EndRound();
    }
  }

 private:
  void StartRound() {
    int ends[2];
    if (pipe(ends) != 0) RaiseInternal("Can't make a pipe to the worker processes");
    m_pids.clear();
    for (int worker = 0; worker < m_workers; ++worker) {
      const pid_t pid = fork();
      if (pid == 0) {
        close(ends[0]);
        _exit(RunWorker(worker, ends[1]));
      }
      if (pid > 0) m_pids.push_back(pid);
    }
    close(ends[1]);
    m_pipe = ends[0];
    if (m_pids.empty()) RaiseInternal("Can't make worker processes");
  }

  int RunWorker(int worker, int pipe) const {
    try {
      const Work work = m_setUp(worker);
      std::uint32_t done = 0;
      for (std::uint32_t job = m_board->next++; job < m_jobs; job = m_board->next++) {
        m_board->current[worker] = job;
        JobOutcome outcome = work(job);
        outcome.job = job;
        outcome.jobsOfWorker = ++done;
        outcome.peakKilobytes = PeakKilobytes();
        if (!WriteOutcome(pipe, outcome)) return 1;
        m_board->current[worker] = kIdle;
      }
      return 0;
    } catch (...) {
      return 1;
    }
  }

  void EndRound() {
    bool working = false;
    for (std::size_t worker = 0; worker < m_pids.size(); ++worker) {
      int status = 0;
      while (waitpid(m_pids[worker], &status, 0) < 0 && errno == EINTR) {
      }
      const std::uint32_t job = m_board->current[worker].exchange(kIdle);
      working = working || job != kIdle || (WIFEXITED(status) && WEXITSTATUS(status) == 0);
      if (job == kIdle) continue;
      JobOutcome outcome;
      outcome.job = job;
      outcome.failed = true;
      Put(outcome.fault, WIFSIGNALED(status)
                             ? "its process was ended by signal " + std::to_string(WTERMSIG(status))
                             : "its process ended early");
      m_report(outcome);
    }
    if (!working) RaiseInternal("The worker processes can't start");
  }

  std::uint32_t m_jobs;
  int m_workers;
  const std::function<Work(int)>& m_setUp;
  const std::function<void(const JobOutcome&)>& m_report;
  SharedBoard m_board;
  int m_pipe = -1;
  std::vector<pid_t> m_pids;
};

}  // namespace

void RunJobs(std::uint32_t jobs, int workers, const std::function<Work(int worker)>& setUp,
             const std::function<void(const JobOutcome&)>& report) {
  Pool(jobs, std::min(workers, kMostWorkers), setUp, report).Run();
}

}  // namespace windcase
