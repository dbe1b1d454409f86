// The pressures of the walls under the cantilevers.
#pragma once

#include <cstdint>

#include "core/Records.h"

namespace orve::sheet {

/// For as long as it lives, the case's record of wall pressures holds the library's own wall results, unless
/// a host has filled it. Then the record and the range of the cantilever zones are as they were.
class CantileverWalls {
 public:
  CantileverWalls();
  ~CantileverWalls();
  CantileverWalls(const CantileverWalls&) = delete;
  CantileverWalls& operator=(const CantileverWalls&) = delete;

 private:
  ExternalPressure m_record;
  std::int16_t m_from;
  std::int16_t m_to;
};

}  // namespace orve::sheet
