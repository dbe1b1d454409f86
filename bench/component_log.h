// The sequence of calls that the library makes on its two components, recorded so that it can be made again
// without the library.
#pragma once

#include <cstddef>
#include <cstdint>
#include <external/BreCpX.h>
#include <memory>
#include <sitewind/BVe2X.h>
#include <vector>

namespace bench {

/// The components on which a log is replayed.
struct Components {
  std::shared_ptr<orve::BVe2X> wind;
  std::shared_ptr<orve::BreCpX> coefficients;
};

/// One call: which member, and its argument.
struct Call {
  double value;
  std::int16_t member;
  std::int16_t sector;
};

class CallLog {
 public:
  using Replayer = void (*)(const Components&, const Call&);

  /// Calls are kept only while the log is on.
  void Record(bool on) { m_on = on; }
  void Add(Replayer replayer, double value, std::int16_t sector);
  void Replay(const Components& components) const;
  std::size_t Size() const { return m_calls.size(); }

 private:
  bool m_on = false;
  std::vector<Replayer> m_replayers;
  std::vector<Call> m_calls;
};

/// Components that pass every call on to an inner one and log it.
std::shared_ptr<orve::BVe2X> RecordingWind(std::shared_ptr<orve::BVe2X> inner, CallLog& log);
std::shared_ptr<orve::BreCpX> RecordingCoefficients(std::shared_ptr<orve::BreCpX> inner, CallLog& log);

}  // namespace bench
