// Synchronous events: callbacks that run inside the call that raises them.
#pragma once

#include <cstddef>
#include <functional>
#include <memory>
#include <utility>
#include <vector>

#include "common/Error.h"

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

/// Counts how deep an event's raisings are nested, so that one without end can't exhaust the host's stack.
class EventNesting {
 public:
  explicit EventNesting(int deepest) : m_deepest(deepest) {}

  /// One raising under way. Errors: 28 for a raising within as many others of the same event as are allowed,
  /// and from then on for every further one until the outermost has returned.
  class Raising {
   public:
    explicit Raising(EventNesting& nesting) : m_nesting(nesting) {
      if (m_nesting.m_depth >= m_nesting.m_deepest) m_nesting.m_exhausted = true;
      if (m_nesting.m_exhausted)
        throw Error(ErrorNumber::OutOfStackSpace,
                    "Out of stack space: the event is raised in its own handlers");
      ++m_nesting.m_depth;
    }
    ~Raising() {
      if (--m_nesting.m_depth == 0) m_nesting.m_exhausted = false;
    }
    Raising(const Raising&) = delete;
    Raising& operator=(const Raising&) = delete;

   private:
    EventNesting& m_nesting;
  };

  bool UnderWay() const { return m_depth > 0; }

 private:
  int m_deepest;
  int m_depth = 0;
  bool m_exhausted = false;
};

/// An event with the arguments `Arguments`; a by-reference argument is written `bool&`.
template <class... Arguments>
class Event {
 public:
  using Callback = std::function<void(Arguments...)>;

  /// How many raisings of the event may be nested.
  static constexpr int Deepest = 200;

  explicit Event(int deepest = Deepest) : m_state(std::make_shared<State>(deepest)) {}
  Event(const Event&) = delete;
  Event& operator=(const Event&) = delete;

  /// Connects a callback; it is disconnected when the returned connection goes.
  Connection Connect(Callback callback) {
    auto slot = std::make_shared<Callback>(std::move(callback));
    // The positions of the slots stand while they are walked.
    if (!m_state->nesting.UnderWay())
      std::erase_if(m_state->slots, [](const auto& weak) { return weak.expired(); });
    m_state->slots.push_back(slot);
    return Connection(std::move(slot));
  }

  /// Calls the callbacks in the order of their connection. A callback may connect, disconnect, call back into
  /// the library or let go of the event's owner; an exception passes through unchanged and the callbacks
  /// after it aren't called. Errors: 28 if the event is raised in its own callbacks without end.
  void Raise(Arguments... arguments) const {
    const std::shared_ptr<State> state = m_state;
    const EventNesting::Raising raising(state->nesting);
    const std::size_t count = state->slots.size();
    for (std::size_t index = 0; index < count; ++index)
      if (const auto slot = state->slots[index].lock()) (*slot)(arguments...);
  }

 private:
  struct State {
    explicit State(int deepest) : nesting(deepest) {}

    std::vector<std::weak_ptr<Callback>> slots;
    EventNesting nesting;
  };

  std::shared_ptr<State> m_state;
};

}  // namespace orve
