// The one form of a load as text.
#pragma once

#include <string>
#include <string_view>

namespace orve {

/// The unit of a load text, leading blank included: " kN/m²".
inline constexpr std::string_view LoadUnit = " kN/m\u00B2";
/// The unit alone, as it is searched in texts.
inline constexpr std::string_view BareLoadUnit = "kN/m\u00B2";

/// The format "+0.000;-0.000;#": an exact zero is the empty text.
std::string FormatSignedLoad(float value);
std::string FormatSignedLoad(double value);

/// A value is present when the text of `FormatSignedLoad` isn't empty: any value but an exact zero.
bool IsPresent(float value);

/// Pressure, ", " if both are there, suction, then " kN/m²" if anything is there.
std::string JoinLoads(const std::string& pressure, const std::string& suction);

}  // namespace orve
