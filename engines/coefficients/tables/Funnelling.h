// Clause 2.4.1.4, BS 6399-2:1997 with Amendment 1 and Corrigendum 1: how much of the funnelling figures of
// Table 5 holds, by the gap to the next building over b. No unit. Status: consistent.
#pragma once

namespace orve::coefficients {

struct FunnellingPoint {
  double gapOverB;
  double factor;
};

// clang-format off
inline constexpr FunnellingPoint kFunnelling[] = {
  {0.25, 0},
  {0.5,  1},
  {1.0,  0},
};
// clang-format on

}  // namespace orve::coefficients
