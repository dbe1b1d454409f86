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

/// The argument of a call: a value or a sector.
struct Argument {
  double value;
  orve::WindSectors sector;
};

class CallLog {
 public:
  using Replayer = void (*)(const Components&, const Argument&);

  /// Calls are kept only while the log is on.
  void Record(bool on) { m_on = on; }
  void Add(Replayer replayer, const Argument& argument);
  void Replay(const Components& components) const;
  std::size_t Size() const { return m_calls.size(); }

 private:
  // A call is a position among the members called and one among the arguments given, so that a log of a
  // million calls stays small enough not to be what the replay spends its time on.
  struct Call {
    std::uint16_t member;
    std::uint16_t argument;
  };

  bool m_on = false;
  std::vector<Replayer> m_replayers;
  std::vector<Argument> m_arguments;
  std::vector<Call> m_calls;
};

/// Components that pass every call on to an inner one and log it.
std::shared_ptr<orve::BVe2X> RecordingWind(std::shared_ptr<orve::BVe2X> inner, CallLog& log);
std::shared_ptr<orve::BreCpX> RecordingCoefficients(std::shared_ptr<orve::BreCpX> inner, CallLog& log);

}  // namespace bench
