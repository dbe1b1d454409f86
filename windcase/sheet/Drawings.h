// The drawings of a sheet.
#pragma once

#include <string>
#include <string_view>

#include "Content.h"
#include "Svg.h"

namespace orve::sheet {

/// A drawing and what stands below it.
struct Drawing {
  std::string svg;
  std::string caption;
};

/// True for a length that can be drawn: finite and above 0.
bool IsLength(double value);

/// Fill of a load on drawings: five tones from white to dark by its share of the greatest one.
const char* ToneOf(double load, double greatest);
/// What the tones mean.
std::string DrawToneKey(double greatest);

/// Draws pieces with the names and loads of their zones.
void DrawPieces(Svg& svg, const View& view, const Pieces& pieces, const FaceZones& zones, double greatest);
/// The names and loads of a face's zones in words.
std::string DescribeZones(const FaceZones& zones);

/// Plan with the roof zones for the wind on a face. Empty without a plan.
Drawing DrawRoof(const BuildingForm& building, const FaceZones& zones, double greatest);
/// Elevation of a wall from outside with its zones for the wind on each face. Empty without a wall.
Drawing DrawWall(const BuildingForm& building, const FaceZones& zones, double greatest);
/// Elevation of a parapet from its free end or corner. Empty without a parapet.
Drawing DrawParapet(const BuildingForm& building, const FaceZones& zones, double greatest);
/// The outline of a wall seen from outside, its left end at x 0: gables follow a pitched roof.
Polygon WallOutline(const BuildingForm& building, Faces face, double length);

/// q by wind sector. `greatest` is that of all roses.
Drawing DrawRose(const SectorTable& table, double greatest);

}  // namespace orve::sheet
