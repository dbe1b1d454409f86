// The texts of cantilever zones: what is read out of them and how they are combined.
#pragma once

#include <span>
#include <string>
#include <string_view>

namespace orve {

/// The number part of a text: what stands before "kN/m²", else before the first "m", without outer blanks;
/// empty for a text with no unit.
std::string StripUnit(std::string_view text);

/// One or two number texts; a missing second one is empty.
struct LoadValues {
  std::string First;
  std::string Second;
  int Count = 1;
};

/// Takes a load text such as "+0.500, -1.000 kN/m²" apart. Errors: 5 without a unit at its end.
LoadValues SplitLoadValues(std::string_view externalLoads);

/// The loads under a zone and its extreme net loads, as texts. Both always bear the unit.
struct CantileverLoads {
  std::string Internal;
  std::string Overall;
};

/// Takes each wall pressure from each roof load; the greatest positive and the most negative net load form
/// the overall text. Errors: 5 for an external text without unit or a wall pressure without unit behind one
/// that shows, 13 for a number part that isn't one number, 6 for a net load that doesn't fit.
CantileverLoads CombineCantileverLoads(std::string_view externalLoads,
                                       std::span<const std::string> wallPressures);

/// Pressure and suction of an overall text as number texts, "0" for the side that isn't there.
struct WindAndUplift {
  std::string Wind;
  std::string Uplift;
};
WindAndUplift SplitWindAndUplift(std::string_view overallLoads);

/// Two lengths in metres as text; the first alone if the second is 0.
std::string FormatZoneDimensions(float first, float second);

}  // namespace orve
