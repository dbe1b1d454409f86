// Figure 4, size effect factor Ca: which line, by effective height (m), terrain and distance to the sea (km).
// Edition: BS 6399-2:1997 with Amendment 1 (March 2002).
// Status: recalled. He: above the row before, up to and including its own; km: from the first, below the
// next.
#pragma once

#include <array>

namespace orve::windspeed {

struct Figure4Key {
  enum class Line { A, B, C };
  std::array<double, 7> heUpTo;
  std::array<double, 3> countryFromKm;
  std::array<double, 2> townFromKm;
  std::array<std::array<Line, 4>, 8> country;
  std::array<std::array<Line, 3>, 8> town;
};

// clang-format off
inline constexpr Figure4Key kFigure4Key = [] {
  using Line = Figure4Key::Line;
  return Figure4Key{
    .heUpTo = {2, 5, 10, 15, 20, 30, 50},
    .countryFromKm = {2, 10, 100},  // columns: 0 to <2, 2 to <10, 10 to <100, >= 100
    .townFromKm = {10, 100},        // columns: 2 to <10, 10 to <100, >= 100
    .country = {{
      {{Line::A, Line::B, Line::B, Line::B}},  // up to 2
      {{Line::A, Line::B, Line::B, Line::B}},  // above 2 to 5
      {{Line::A, Line::A, Line::B, Line::B}},  // above 5 to 10
      {{Line::A, Line::A, Line::B, Line::B}},  // above 10 to 15
      {{Line::A, Line::A, Line::B, Line::B}},  // above 15 to 20
      {{Line::A, Line::A, Line::A, Line::B}},  // above 20 to 30
      {{Line::A, Line::A, Line::A, Line::B}},  // above 30 to 50
      {{Line::A, Line::A, Line::A, Line::B}},  // above 50
    }},
    .town = {{
      {{Line::C, Line::C, Line::C}},  // up to 2
      {{Line::C, Line::C, Line::C}},  // above 2 to 5
      {{Line::A, Line::C, Line::C}},  // above 5 to 10
      {{Line::A, Line::B, Line::C}},  // above 10 to 15
      {{Line::A, Line::B, Line::B}},  // above 15 to 20
      {{Line::A, Line::A, Line::B}},  // above 20 to 30
      {{Line::A, Line::A, Line::B}},  // above 30 to 50
      {{Line::A, Line::A, Line::B}},  // above 50
    }},
  };
}();
// clang-format on

}  // namespace orve::windspeed
