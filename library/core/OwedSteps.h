// What a member owes even if a host's handler raises in the middle of it.
#pragma once

#include <exception>
#include <type_traits>
#include <utility>

#include "core/Document.h"

namespace orve {

/// Steps that are taken whatever the ones before them raised. The first exception is kept and raised at the
/// end, the others are dropped.
class OwedSteps {
 public:
  template <class Step>
  void Run(Step&& step) {
    try {
      std::forward<Step>(step)();
    } catch (...) {
      if (!m_first) m_first = std::current_exception();
    }
  }

  /// Raises the first exception, if there was one.
  void Finish() const {
    if (m_first) std::rethrow_exception(m_first);
  }

 private:
  std::exception_ptr m_first;
};

/// The same for steps on a case: they end once a handler has put another document in the case's place.
class CaseSteps {
 public:
  template <class Step>
  void Run(Step&& step) {
    if (m_document.IsOpen()) m_steps.Run(std::forward<Step>(step));
  }
  void Finish() const { m_steps.Finish(); }

 private:
  Document m_document;
  OwedSteps m_steps;
};

/// Takes the steps on a case one after the other.
template <class... Steps>
void RunAll(Steps&&... steps) {
  CaseSteps owed;
  (owed.Run(std::forward<Steps>(steps)), ...);
  owed.Finish();
}

/// A row of lets of one object, all of which are owed.
template <class Owner>
class OwedLets {
 public:
  explicit OwedLets(Owner& owner) : m_owner(owner) {}

  template <class... Arguments>
  void operator()(void (Owner::*let)(Arguments...), std::type_identity_t<Arguments>... arguments) {
    m_steps.Run([&] { (m_owner.*let)(arguments...); });
  }
  void Finish() const { m_steps.Finish(); }

 private:
  Owner& m_owner;
  CaseSteps m_steps;
};

}  // namespace orve
