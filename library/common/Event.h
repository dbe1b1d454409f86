// Synchronous events: callbacks that run inside the call that raises them.
#pragma once

#include <functional>
#include <memory>
#include <utility>
#include <vector>

namespace orve {

/// Keeps a callback connected for as long as it lives. Movable, not copyable.
class [[nodiscard]] Connection {
 public:
  Connection() = default;
  explicit Connection(std::shared_ptr<void> slot) : m_slot(std::move(slot)) {}
  Connection(Connection&&) = default;
  Connection& operator=(Connection&&) = default;
  Connection(const Connection&) = delete;
  Connection& operator=(const Connection&) = delete;

  /// Ends the connection; the callback isn't called any more, not even by a raise that is under way.
  void Disconnect() { m_slot.reset(); }

 private:
  std::shared_ptr<void> m_slot;
};

/// An event with the arguments `Arguments`; a by-reference argument is written `bool&`.
template <class... Arguments>
class Event {
 public:
  using Callback = std::function<void(Arguments...)>;

  Event() = default;
  Event(const Event&) = delete;
  Event& operator=(const Event&) = delete;

  /// Connects a callback; it is disconnected when the returned connection goes.
  Connection Connect(Callback callback) {
    auto slot = std::make_shared<Callback>(std::move(callback));
    std::erase_if(m_slots, [](const auto& weak) { return weak.expired(); });
    m_slots.push_back(slot);
    return Connection(std::move(slot));
  }

  /// Calls the callbacks in the order of their connection. A callback may connect, disconnect, call back into
  /// the library or let go of the event's owner; an exception passes through unchanged and the callbacks
  /// behind it aren't called.
  void Raise(Arguments... arguments) const {
    const std::vector<std::weak_ptr<Callback>> slots = m_slots;
    for (const auto& weak : slots)
      if (const auto slot = weak.lock()) (*slot)(arguments...);
  }

 private:
  std::vector<std::weak_ptr<Callback>> m_slots;
};

}  // namespace orve
