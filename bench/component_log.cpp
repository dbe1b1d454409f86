#include "component_log.h"

#include <algorithm>
#include <functional>

namespace bench {

namespace {

// Position of a value in a list, which takes it in if it isn't there.
template <class Value, class Equal>
std::uint16_t Position(std::vector<Value>& list, const Value& value, Equal equal) {
  const auto found =
      std::find_if(list.begin(), list.end(), [&](const Value& other) { return equal(value, other); });
  const auto position = static_cast<std::uint16_t>(found - list.begin());
  if (found == list.end()) list.push_back(value);
  return position;
}

}  // namespace

void CallLog::Add(Replayer replayer, const Argument& argument) {
  if (!m_on) return;
  const auto sameArgument = [](const Argument& a, const Argument& b) {
    return a.value == b.value && a.sector == b.sector;
  };
  m_calls.push_back(
      {Position(m_replayers, replayer, std::equal_to<>()), Position(m_arguments, argument, sameArgument)});
}

void CallLog::Replay(const Components& components) const {
  for (const Call& call : m_calls) m_replayers[call.member](components, m_arguments[call.argument]);
}

}  // namespace bench
