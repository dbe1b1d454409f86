#include "component_log.h"

#include <algorithm>

namespace bench {

void CallLog::Add(Replayer replayer, double value, std::int16_t sector) {
  if (!m_on) return;
  auto found = std::find(m_replayers.begin(), m_replayers.end(), replayer);
  if (found == m_replayers.end()) found = m_replayers.insert(m_replayers.end(), replayer);
  m_calls.push_back({value, static_cast<std::int16_t>(found - m_replayers.begin()), sector});
}

void CallLog::Replay(const Components& components) const {
  for (const Call& call : m_calls) m_replayers[static_cast<std::size_t>(call.member)](components, call);
}

}  // namespace bench
