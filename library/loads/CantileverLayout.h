// The zones that lie on the cantilevers of a roof, and the wall zones that lie under them, as tables.
#pragma once

#include <array>
#include <cstdint>
#include <span>
#include <string_view>

#include "core/Enumerations.h"
#include "core/Records.h"

namespace orve::cantilever {

/// Wind faces that share rows of the layout. On Faces 1 and 3 the wind blows along the cantilevers, on Faces
/// 2 and 4 at them.
enum class WindFaces { Faces_1_and_3, Face_2, Face_4 };

/// How one length of a zone is found.
struct Length {
  enum class Rules {
    L12,            ///< The cantilever on Face 1 or Face 2.
    L34,            ///< The cantilever on Face 3 or Face 4.
    W,              ///< Plan length along Faces 2 and 4.
    Y0,             ///< Second length of the roof's zone 0, read once for the face.
    W_less_Y0,      ///< The rest of the width behind it.
    HalfW_less_Y0,  ///< The rest of half the width behind it.
    X,              ///< First length of a roof zone.
    Y,              ///< Second length of a roof zone.
  };
  Rules Rule;
  std::int16_t Zone = 0;
};

/// A zone on a cantilever: the wind faces that have it, the cantilever that must have a length for it, its
/// label, its two lengths, and the roof zone (number z) whose external loads it takes.
struct LayoutRow {
  WindFaces Faces;
  Length If;
  std::string_view Label;
  Length First;
  Length Second;
  std::int16_t Zone;
};

inline constexpr WindFaces F13 = WindFaces::Faces_1_and_3;
inline constexpr WindFaces F2 = WindFaces::Face_2;
inline constexpr WindFaces F4 = WindFaces::Face_4;
inline constexpr Length L12{Length::Rules::L12};
inline constexpr Length L34{Length::Rules::L34};
inline constexpr Length W{Length::Rules::W};
inline constexpr Length Y0{Length::Rules::Y0};
inline constexpr Length W_Y0{Length::Rules::W_less_Y0};
inline constexpr Length W2_Y0{Length::Rules::HalfW_less_Y0};
constexpr Length X(std::int16_t zone) {
  return {Length::Rules::X, zone};
}
constexpr Length Y(std::int16_t zone) {
  return {Length::Rules::Y, zone};
}

// clang-format off

inline constexpr LayoutRow FlatRoof[] = {
    // face  if   label         first  second  z
    {F13, L12, "A (Cant 2)",    L12,   Y(0),   0},
    {F13, L12, "C (Cant 2)",    L12,   Y(2),   2},
    {F13, L12, "D (Cant 2)",    L12,   Y(3),   3},
    {F13, L34, "A (Cant 4)",    L34,   Y(0),   0},
    {F13, L34, "C (Cant 4)",    L34,   Y(2),   2},
    {F13, L34, "D (Cant 4)",    L34,   Y(3),   3},
    {F2,  L12, "A (Cant)",      X(0),  L12,    0},
    {F2,  L12, "B (Cant)",      X(1),  L12,    1},
    {F2,  L34, "D (Cant)",      W,     L34,    3},
    {F4,  L34, "A (Cant)",      X(0),  L34,    0},
    {F4,  L34, "B (Cant)",      X(1),  L34,    1},
    {F4,  L12, "D (Cant)",      W,     L12,    3},
};

inline constexpr LayoutRow MonoPitchedRoof[] = {
    // face  if   label         first  second  z
    {F13, L12, "A (Cant 2)",    L12,   Y0,     0},
    {F13, L12, "C (Cant 2)",    L12,   W_Y0,   2},
    {F13, L34, "A (Cant 4)",    L34,   Y0,     0},
    {F13, L34, "C (Cant 4)",    L34,   W_Y0,   2},
    {F2,  L12, "AU (Cant)",     X(0),  L12,    0},
    {F2,  L12, "AL (Cant)",     X(0),  L12,    1},
    {F2,  L12, "B (Cant)",      X(2),  L12,    2},
    {F2,  L34, "D (Cant)",      W,     L34,    4},
    {F4,  L34, "AU (Cant)",     X(0),  L34,    0},
    {F4,  L34, "AL (Cant)",     X(0),  L34,    1},
    {F4,  L34, "B (Cant)",      X(2),  L34,    2},
    {F4,  L12, "D (Cant)",      W,     L12,    4},
};

inline constexpr LayoutRow DuoPitchedRoof[] = {
    // face  if   label         first  second  z
    {F13, L12, "A (Cant 2)",    L12,   Y0,     0},
    {F13, L12, "C (Cant 2)",    L12,   W2_Y0,  2},
    {F13, L12, "E (Cant 2)",    L12,   Y0,     3},
    {F13, L12, "G (Cant 2)",    L12,   W2_Y0,  5},
    {F13, L34, "A (Cant 4)",    L34,   Y0,     0},
    {F13, L34, "C (Cant 4)",    L34,   W2_Y0,  2},
    {F13, L34, "E (Cant 4)",    L34,   Y0,     3},
    {F13, L34, "G (Cant 4)",    L34,   W2_Y0,  5},
    {F2,  L12, "A (Cant)",      X(0),  L12,    0},
    {F2,  L12, "B (Cant)",      X(0),  L12,    1},
    {F2,  L34, "D (Cant)",      W,     L34,    3},
    {F4,  L34, "A (Cant)",      X(0),  L34,    0},
    {F4,  L34, "B (Cant)",      X(0),  L34,    1},
    {F4,  L12, "D (Cant)",      W,     L12,    3},
};

inline constexpr LayoutRow CurvedRoof[] = {
    // face  if   label         first  second  z
    {F13, L12, "A (Cant 2)",    L12,   Y0,     0},
    {F13, L12, "B (Cant 2)",    L12,   Y0,     1},
    {F13, L12, "C (Cant 2)",    L12,   Y0,     2},
    {F13, L12, "D (Cant 2)",    L12,   Y0,     3},
    {F13, L12, "E (Cant 2)",    L12,   Y0,     4},
    {F13, L12, "F (Cant 2)",    L12,   Y0,     5},
    {F13, L34, "A (Cant 4)",    L34,   Y0,     0},
    {F13, L34, "B (Cant 4)",    L34,   Y0,     1},
    {F13, L34, "C (Cant 4)",    L34,   Y0,     2},
    {F13, L34, "D (Cant 4)",    L34,   Y0,     3},
    {F13, L34, "E (Cant 4)",    L34,   Y0,     4},
    {F13, L34, "F (Cant 4)",    L34,   Y0,     5},
    {F2,  L12, "A (Cant)",      X(0),  L12,    0},
    {F2,  L12, "B (Cant)",      X(0),  L12,    1},
    {F2,  L34, "F (Cant)",      W,     L34,    5},
    {F4,  L34, "A (Cant)",      X(0),  L34,    0},
    {F4,  L34, "B (Cant)",      X(0),  L34,    1},
    {F4,  L12, "F (Cant)",      W,     L12,    5},
};

// clang-format on

/// The layout of a roof type; empty for a roof that has no cantilever zones.
constexpr std::span<const LayoutRow> Layout(RoofTypes roofType) {
  switch (roofType) {
    case RoofTypes::Flat_roof_with_sharp_eaves:
      return FlatRoof;
    case RoofTypes::Mono_pitched_roof:
      return MonoPitchedRoof;
    case RoofTypes::Duo_pitched_roof:
      return DuoPitchedRoof;
    case RoofTypes::Curved_roof:
      return CurvedRoof;
    default:
      return {};
  }
}

/// Whose pressure stands as an entry of the list of wall pressures under a zone.
enum class Entry {
  None,
  A,
  B,
  C,
  C_or_zero,  ///< Zone C if its pressure is a number, else "0".
};

/// When a second wall zone reaches under the cantilever zone. L is the cantilever's length; sums and
/// quotients are 32-bit floats.
enum class Reach {
  Never,
  A_past_L,            ///< Length of A > L.
  AB_past_half_W,      ///< W / 2 < length of A + length of B.
  AB_past_two_thirds,  ///< W / 6 x 4 < length of A + length of B.
};

/// When the second entry's pressure must be a number as well.
enum class Numeric {
  Unasked,
  Asked,
  Cant_4,                ///< Asked for "(Cant 4)" only.
  Not_Cant_2_on_Face_1,  ///< Asked except for "(Cant 2)" on Face 1.
};

/// What lies under a zone when the wind blows along the cantilevers; a row serves each of its letters.
struct OverlayRow {
  RoofTypes Roof;
  std::string_view Letters;
  Entry First;
  Entry Second;
  Reach If;
  Numeric And;
};

inline constexpr RoofTypes Flat = RoofTypes::Flat_roof_with_sharp_eaves;
inline constexpr RoofTypes Mono = RoofTypes::Mono_pitched_roof;
inline constexpr RoofTypes Duo = RoofTypes::Duo_pitched_roof;
inline constexpr RoofTypes Curved = RoofTypes::Curved_roof;

// clang-format off

inline constexpr OverlayRow Overlay[] = {
    // roof  letters  first             second        second entry if             and second numeric
    {Flat,   "A",     Entry::A,         Entry::None,  Reach::Never,               Numeric::Unasked},
    {Flat,   "C",     Entry::A,         Entry::B,     Reach::A_past_L,            Numeric::Cant_4},
    {Flat,   "D",     Entry::B,         Entry::C,     Reach::AB_past_half_W,      Numeric::Asked},
    {Mono,   "A",     Entry::A,         Entry::None,  Reach::Never,               Numeric::Unasked},
    {Mono,   "C",     Entry::A,         Entry::B,     Reach::A_past_L,            Numeric::Unasked},
    {Duo,    "A",     Entry::A,         Entry::None,  Reach::Never,               Numeric::Unasked},
    {Duo,    "C",     Entry::A,         Entry::B,     Reach::A_past_L,            Numeric::Unasked},
    {Duo,    "EG",    Entry::B,         Entry::None,  Reach::Never,               Numeric::Unasked},
    {Curved, "A",     Entry::A,         Entry::B,     Reach::A_past_L,            Numeric::Not_Cant_2_on_Face_1},
    {Curved, "BCD",   Entry::B,         Entry::None,  Reach::Never,               Numeric::Unasked},
    {Curved, "E",     Entry::B,         Entry::C,     Reach::AB_past_two_thirds,  Numeric::Asked},
    {Curved, "F",     Entry::C_or_zero, Entry::None,  Reach::Never,               Numeric::Unasked},
};

/// The wall zones A, B and C beside a cantilever, by the ending of its labels and the wind face.
struct SideWallRow {
  std::string_view LabelEnding;
  Faces Face;
  CantileverZone ExternalPressure::*A;
  CantileverZone ExternalPressure::*B;
  CantileverZone ExternalPressure::*C;
};

inline constexpr SideWallRow SideWalls[] = {
    {"(Cant 2)", Faces::Face_1, &ExternalPressure::Wall2_A_Face_1, &ExternalPressure::Wall2_B_Face_1, &ExternalPressure::Wall2_C_Face_1},
    {"(Cant 2)", Faces::Face_3, &ExternalPressure::Wall2_A_Face_3, &ExternalPressure::Wall2_B_Face_3, &ExternalPressure::Wall2_C_Face_3},
    {"(Cant 4)", Faces::Face_1, &ExternalPressure::Wall4_A_Face_1, &ExternalPressure::Wall4_B_Face_1, &ExternalPressure::Wall4_C_Face_1},
    {"(Cant 4)", Faces::Face_3, &ExternalPressure::Wall4_A_Face_3, &ExternalPressure::Wall4_B_Face_3, &ExternalPressure::Wall4_C_Face_3},
};

/// The one wall zone under a cantilever that the wind blows at or from.
struct FacingWallRow {
  Faces Face;
  std::array<std::string_view, 4> Labels;
  CantileverZone ExternalPressure::*Wall;
};

inline constexpr FacingWallRow FacingWalls[] = {
    {Faces::Face_2, {"A (Cant)", "AU (Cant)", "AL (Cant)", "B (Cant)"}, &ExternalPressure::Wall2_Windward},
    {Faces::Face_2, {"D (Cant)", "F (Cant)"},                           &ExternalPressure::Wall4_Leeward},
    {Faces::Face_4, {"A (Cant)", "AU (Cant)", "AL (Cant)", "B (Cant)"}, &ExternalPressure::Wall4_Windward},
    {Faces::Face_4, {"D (Cant)", "F (Cant)"},                           &ExternalPressure::Wall2_Leeward},
};

// clang-format on

}  // namespace orve::cantilever
