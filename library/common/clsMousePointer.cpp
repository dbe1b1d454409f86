#include "common/clsMousePointer.h"

#include "common/HostCalls.h"

namespace orve {

clsMousePointer::clsMousePointer() : m_remembered(HostMousePointer()) {}

clsMousePointer::clsMousePointer(std::int16_t pointerType) : clsMousePointer() {
  PointerType(pointerType);
}

clsMousePointer::~clsMousePointer() {
  // A destructor has no caller to tell: a host whose cursor can't be set keeps the one that it shows.
  try {
    HostSetMousePointer(m_remembered);
  } catch (...) {
  }
}

void clsMousePointer::PointerType(std::int16_t value) {
  HostSetMousePointer(value);
  m_PointerType = value;
}

}  // namespace orve
