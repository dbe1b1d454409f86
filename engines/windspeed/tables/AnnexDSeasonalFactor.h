// Annex D, seasonal factor Ss for a period of one, two or four months, by its first month. No unit. A period
// runs on past December. Edition: BS 6399-2:1997 with Amendment 1 (March 2002). Status: consistent (sister
// table of UK practice for February and summer; the longer periods follow from the one-month figures within
// 0.01).
#pragma once

#include <array>

namespace orve::windspeed {

struct SeasonalFactorTable {
  double winter;  // October to March
  double summer;  // April to September
  double allYear;
  std::array<std::array<double, 3>, 12> months;
};

// clang-format off
inline constexpr SeasonalFactorTable kAnnexDSeasonalFactor = {
  .winter = 1.00,
  .summer = 0.84,
  .allYear = 1.00,
  .months = {{
    // 1, 2, 4 months
    {{0.98, 0.98, 0.98}},  // January
    {{0.83, 0.86, 0.87}},  // February
    {{0.82, 0.83, 0.83}},  // March
    {{0.75, 0.75, 0.76}},  // April
    {{0.69, 0.71, 0.73}},  // May
    {{0.66, 0.67, 0.83}},  // June
    {{0.62, 0.71, 0.86}},  // July
    {{0.71, 0.82, 0.90}},  // August
    {{0.82, 0.85, 0.96}},  // September
    {{0.82, 0.89, 1.00}},  // October
    {{0.88, 0.95, 1.00}},  // November
    {{0.94, 1.00, 1.00}},  // December
  }},
};
// clang-format on

}  // namespace orve::windspeed
