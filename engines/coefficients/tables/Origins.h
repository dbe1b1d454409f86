// The standards and editions that the tables of this folder are taken from.
#pragma once

#include "coefficients/TableForm.h"

namespace orve::coefficients {

inline constexpr std::string_view kEdition =
    "1997 with Amendment 1 (March 2002) and Corrigendum 1 (July 2002)";

inline constexpr Origin kBs6399{"BS 6399-2", kEdition, "", "", false};

// Not read in any print, so never shown as figures of BS 6399-2 itself.
inline constexpr Origin kRecalledParapets{
    "recalled figures", "confidence medium", "flat roofs with parapets",
    "whether the ratio is h/H or h/b isn't certain: the lesser of the two is taken, the safe side", true};

// The one published calculation to BS 6399-2 that shows a duo-pitched roof has stronger figures in A, E and
// G.
inline constexpr std::string_view kMayBeWeaker =
    "may be weaker than the print: by 11 to 40 % where it could be compared";

inline constexpr std::string_view kEnEdition = "2005, recommended values";

inline constexpr Origin kEnMonoPitched{"EN 1991-1-4", kEnEdition,  "Tables 7.3a and 7.3b, cpe,10", "",
                                       true,          kMayBeWeaker};
inline constexpr Origin kEnDuoPitched{"EN 1991-1-4", kEnEdition,  "Tables 7.4a and 7.4b, cpe,10", "",
                                      true,          kMayBeWeaker};
inline constexpr Origin kEnHipped{"EN 1991-1-4", kEnEdition, "Table 7.5, cpe,10", "", true, kMayBeWeaker};

inline constexpr Origin kArchedRoofs{"ASCE 7", "as recalled", "arched roofs, main systems", "", true};

}  // namespace orve::coefficients
