// The processor's floating-point state at the border between a host and the library. A host may let invalid
// operations and divisions by zero trap, or round another way; the library computes with NaN and infinity and
// rounds to nearest. Every function that a host can call begins with a `LibraryFloatState`; every call out to
// the host is made under a `HostFloatState`.
#pragma once

#if defined(__SSE2__) || defined(_M_X64)
#define ORVE_FLOAT_STATE_SSE
#include <xmmintrin.h>
#else
#include <cfenv>
#endif

namespace orve {

#if defined(ORVE_FLOAT_STATE_SSE) && !defined(__i386__)

/// The control and status word of the SSE unit. Loading it takes longer than looking at it, so it is loaded
/// only where it has to change.
class FloatState {
 public:
  static FloatState Current() { return FloatState(_mm_getcsr()); }
  /// Loads the library's state in place of this one, which is the present one.
  void LeaveForLibrary() const {
    if ((m_word & ~Flags) != Masked) _mm_setcsr(Masked);
  }
  void Restore() const {
    if (_mm_getcsr() != m_word) _mm_setcsr(m_word);
  }

 private:
  static constexpr unsigned Flags = 0x3F;
  static constexpr unsigned Masked = 0x1F80;

  explicit FloatState(unsigned word) : m_word(word) {}
  unsigned m_word;
};

#elif defined(ORVE_FLOAT_STATE_SSE)

/// The word of the SSE unit, and the environment of the x87 unit, which returns values and serves the
/// functions of <cmath>.
class FloatState {
 public:
  static FloatState Current() {
    FloatState state;
    state.m_word = _mm_getcsr();
    // Reading masks every exception of the x87 unit, so it is put back.
    asm volatile("fnstenv %0\n\tfldenv %0" : "=m"(state.m_x87) : : "memory");
    return state;
  }
  /// Loads the library's state.
  void LeaveForLibrary() const {
    constexpr unsigned short control = 0x037F;
    _mm_setcsr(0x1F80);
    asm volatile("fnclex\n\tfldcw %0" : : "m"(control) : "memory");
  }
  void Restore() const {
    _mm_setcsr(m_word);
    asm volatile("fldenv %0" : : "m"(m_x87) : "memory");
  }

 private:
  struct Environment {
    unsigned words[7];
  };
  unsigned m_word;
  Environment m_x87;
};

#else

class FloatState {
 public:
  static FloatState Current() {
    FloatState state;
    std::fegetenv(&state.m_environment);
    return state;
  }
  /// Loads the library's state.
  void LeaveForLibrary() const { std::fesetenv(FE_DFL_ENV); }
  void Restore() const { std::fesetenv(&m_environment); }

 private:
  std::fenv_t m_environment;
};

#endif

/// From entry to return of a call: all exceptions masked, rounding to nearest. The host's state comes back at
/// the end; flags that the library raised aren't in it.
class LibraryFloatState {
 public:
  LibraryFloatState() : m_host(FloatState::Current()), m_outer(s_innermost) {
    s_innermost = this;
    m_host.LeaveForLibrary();
  }
  ~LibraryFloatState() {
    m_host.Restore();
    s_innermost = m_outer;
  }
  LibraryFloatState(const LibraryFloatState&) = delete;
  LibraryFloatState& operator=(const LibraryFloatState&) = delete;

 private:
  friend class HostFloatState;
  inline static thread_local LibraryFloatState* s_innermost = nullptr;

  FloatState m_host;
  LibraryFloatState* m_outer;
};

/// While a handler or service of the host runs: the state that the host called with. What the host changes in
/// it stays the host's. Outside any call of a host it changes nothing.
class HostFloatState {
 public:
  HostFloatState() : m_call(LibraryFloatState::s_innermost), m_library(FloatState::Current()) {
    if (m_call != nullptr) m_call->m_host.Restore();
  }
  ~HostFloatState() {
    if (m_call == nullptr) return;
    m_call->m_host = FloatState::Current();
    m_library.Restore();
  }
  HostFloatState(const HostFloatState&) = delete;
  HostFloatState& operator=(const HostFloatState&) = delete;

 private:
  LibraryFloatState* m_call;
  FloatState m_library;
};

}  // namespace orve
