// A counted pointer to a COM interface.
#pragma once

#include <utility>

#include "System.h"

namespace orve::com {

template <class Interface>
class ComPointer {
 public:
  ComPointer() = default;
  /// Adds a reference of its own.
  explicit ComPointer(Interface* pointer) : m_pointer(pointer) {
    if (m_pointer != nullptr) m_pointer->AddRef();
  }
  ComPointer(const ComPointer& other) : ComPointer(other.m_pointer) {}
  ComPointer(ComPointer&& other) noexcept : m_pointer(std::exchange(other.m_pointer, nullptr)) {}
  ComPointer& operator=(ComPointer other) noexcept {
    std::swap(m_pointer, other.m_pointer);
    return *this;
  }
  ~ComPointer() {
    if (m_pointer != nullptr) m_pointer->Release();
  }

  Interface* Get() const { return m_pointer; }
  Interface* operator->() const { return m_pointer; }
  explicit operator bool() const { return m_pointer != nullptr; }
  /// Where a call puts a pointer that comes with a reference.
  Interface** Receive() {
    *this = ComPointer();
    return &m_pointer;
  }
  Interface* Detach() { return std::exchange(m_pointer, nullptr); }

 private:
  Interface* m_pointer = nullptr;
};

}  // namespace orve::com
