// Where the zones of a surface lie. Sizes are the library's; positions are those of the standard's figures.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "Polygon.h"
#include "core/Enumerations.h"

namespace orve::sheet {

/// Name and size of a zone, metres; no size for the rest of its surface.
struct ZoneSize {
  std::string name;
  bool hasSize = false;
  double x = 0;
  double y = 0;
};
using ZoneSizes = std::vector<ZoneSize>;

/// A part of a surface that a zone covers.
struct Piece {
  std::size_t zone = 0;  ///< Position in the zone list.
  Polygon outline;
};
using Pieces = std::vector<Piece>;

/// Cuts a surface into zones. A piece too small to see is left out; a zone that isn't in the list leaves its
/// part to the first one that is.
class Cutter {
 public:
  explicit Cutter(const ZoneSizes& zones) : m_zones(zones) {}

  double X(std::string_view name) const;
  double Y(std::string_view name) const;
  void Add(std::string_view name, const Polygon& outline);
  /// A strip across the wind up to `depth`: `outer` at both ends, each `width` wide, `inner` between.
  void Strip(Polygon& rest, double depth, const char* outer, double width, const char* inner);
  Pieces Take() { return std::move(m_pieces); }

 private:
  const ZoneSize* Find(std::string_view name) const;

  const ZoneSizes& m_zones;
  Pieces m_pieces;
};

/// The pieces of a roof for the wind on a face, on the plan: x along Face 1 from Face 2 to Face 4, y from
/// Face 1 to Face 3.
Pieces LayOutRoof(RoofTypes roofType, Faces face, const ZoneSizes& zones, double length, double width);
/// The same in the wind's own directions: x across the wind, y with the wind from the windward edge.
Pieces LayOutHippedRoof(const ZoneSizes& zones, double breadth, double depth);

/// A wall seen from outside: which wind it is drawn for.
enum class WallWind { Onto, Away, FromLeft, FromRight };
/// The face at the left end of a wall seen from outside, and that at its right end.
Faces LeftOf(Faces face);
Faces RightOf(Faces face);
/// The zones' names end in the face that the wind comes from. Empty if the wall has none for this wind.
Pieces LayOutWall(const Polygon& wall, Faces face, WallWind wind, const ZoneSizes& zones);
/// A parapet from its free end or corner, at the left.
Pieces LayOutParapet(double length, double height, bool windward, const ZoneSizes& zones);

}  // namespace orve::sheet
