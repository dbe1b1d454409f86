// Figure 4, size effect factor Ca: the turbulence S of each line A, B, C, from which the line is worked out.
// No unit. Edition: BS 6399-2:1997 with Amendment 1 (March 2002). Status: recalled, confidence low: the
// readings of the print aren't at hand and replace these figures.
#pragma once

#include <array>

namespace orve::windspeed {

inline constexpr std::array<double, 3> kFigure4LineTurbulence = {
    0.100,  // A
    0.132,  // B
    0.190,  // C
};

}  // namespace orve::windspeed
