// The search for the wind that is worst for a zone or a face, written once for external and internal
// coefficients.
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>

#include "core/Enumerations.h"

namespace orve {

class clsDynamicPressure;

/// One candidate of the search: a whole sector, or an interpolated end of the window.
struct WindCandidate {
  float Angle = 0;           ///< Wind angle, degrees.
  std::int16_t Sector1 = 0;  ///< The whole sector, or the lower sector of an interpolated end.
  std::int16_t Sector2 =
      0;              ///< The upper sector of an interpolated end; equal to `Sector1` for a whole sector.
  float q = 0;        ///< Dynamic pressure, kN/m².
  float Ca = 0;       ///< Size effect factor.
  float Product = 0;  ///< q Ca, narrowed to 32 bits.

  bool Interpolated() const { return Sector1 != Sector2; }
};

/// Record of one search: every candidate in the order in which it was looked at, and the winner.
struct WorstCase {
  static constexpr int MaxCandidates = 12;

  WindAreas WindArea = WindAreas::waRoof;  ///< The wind area whose q and Ca were read.
  float AngleNormalToFace = -1;  ///< Normal of the wind face, degrees; -1 if the orientation is unknown.
  std::array<WindCandidate, MaxCandidates> Candidates{};
  int Count = 0;    ///< How many candidates there are; interpolated ends stand last.
  int Winner = -1;  ///< Position of the winner; -1 if no product is above 0.

  float q() const { return Winner < 0 ? 0.0f : Candidates[static_cast<std::size_t>(Winner)].q; }
  float Ca() const { return Winner < 0 ? 0.0f : Candidates[static_cast<std::size_t>(Winner)].Ca; }
};

/// Walks the sectors within 45 degrees of a face's normal, or all twelve if the orientation is unknown,
/// reading q and then Ca of each; of equal products the first stays. The two ends of a window that lies
/// between sectors are interpolated and measured against the best whole sector; if both beat it, the high end
/// stands, even where the low one is the greater.
WorstCase SearchWorstCase(clsDynamicPressure& dynamicPressure, WindAreas windArea, bool orientationUnknown,
                          float angleNormalToFace);

}  // namespace orve
