// Elevations of walls and parapets with their zones.
#include <cmath>
#include <orve3_bs6399_2.h>

#include "Drawings.h"
#include "common/LoadText.h"
#include "common/NumberText.h"

namespace orve::sheet {

namespace {

constexpr double kElevationCanvas = 672;
constexpr double kPanel = 326;
constexpr double kWidest = 300;
constexpr double kElevationTallest = 78;
constexpr double kTitle = 16;
constexpr double kElevationFoot = 18;

bool RunsAlongFace2(Faces face) {
  return face == Faces::Face_2 || face == Faces::Face_4;
}

double PlanLength(const BuildingForm& building, Faces face) {
  return RunsAlongFace2(face) ? building.width : building.length;
}

// The walls under cantilevers are shorter than the roof: the windward zone has the length of the wall.
double WallLength(const BuildingForm& building, const FaceZones& zones) {
  for (const ZoneRow& row : zones.rows)
    if (row.name == "Windward" && row.size.hasSize) return row.size.x;
  return PlanLength(building, zones.face);
}

ZoneSizes SizesOf(const FaceZones& zones) {
  ZoneSizes sizes;
  for (const ZoneRow& row : zones.rows) sizes.push_back(row.size);
  return sizes;
}

std::string NameOf(Faces face) {
  return std::string(PublishedText(face));
}

struct Panel {
  WallWind wind;
  Faces from;
};

std::string LengthText(double length) {
  return FormatFixed(static_cast<float>(length), 3) + " m";
}

}  // namespace

Polygon WallOutline(const BuildingForm& building, Faces face, double length) {
  const double height = building.wallHeight[static_cast<std::size_t>(face)];
  const double low = building.wallHeight[static_cast<std::size_t>(Faces::Face_1)];
  const double high = building.wallHeight[static_cast<std::size_t>(Faces::Face_3)];
  const bool gable = RunsAlongFace2(face) && building.gable[static_cast<std::size_t>(face)] && low > 0;
  if (gable && building.roofType == RoofTypes::Duo_pitched_roof && low < height)
    return {{0, 0}, {length, 0}, {length, low}, {length / 2, height}, {0, low}};
  if (gable && building.roofType == RoofTypes::Mono_pitched_roof && low < high) {
    const bool lowAtLeft = LeftOf(face) == Faces::Face_1;
    return {{0, 0}, {length, 0}, {length, lowAtLeft ? high : low}, {0, lowAtLeft ? low : high}};
  }
  return Rectangle(length, height);
}

Drawing DrawWall(const BuildingForm& building, const FaceZones& zones, double greatest) {
  const double length = WallLength(building, zones);
  if (!IsLength(length) || zones.rows.empty()) return {};
  const Polygon wall = WallOutline(building, zones.face, length);
  const double tall = BoxOf(wall).top;
  if (!IsLength(tall)) return {};
  const double scale = std::min(kWidest / length, kElevationTallest / tall);
  const double row = tall * scale + kTitle + 6;
  const std::string title = "Wall of " + NameOf(zones.face) + " from outside";
  Svg svg(kElevationCanvas, 2 * row + kElevationFoot, title, DescribeZones(zones));
  const Faces left = LeftOf(zones.face);
  const Faces right = RightOf(zones.face);
  const Panel panels[] = {{WallWind::Onto, zones.face},
                          {WallWind::Away, LeftOf(left)},
                          {WallWind::FromLeft, left},
                          {WallWind::FromRight, right}};
  const ZoneSizes sizes = SizesOf(zones);
  for (std::size_t i = 0; i < 4; ++i) {
    const double x = i % 2 == 0 ? 0 : kElevationCanvas - kPanel;
    const double y = i < 2 ? 0 : row;
    const View view{scale, {x + (kPanel - length * scale) / 2, y + kTitle + tall * scale}};
    svg.Text({x + kPanel / 2, y + 10}, "Wind on " + NameOf(panels[i].from), {9, "middle", true});
    DrawPieces(svg, view, LayOutWall(wall, zones.face, panels[i].wind, sizes), zones, greatest);
    svg.Shape(view.At(wall), "none", 1.4);
    const double arrowY = view.origin.y - 6;
    if (panels[i].wind == WallWind::FromLeft) svg.Arrow({x - 0, arrowY}, {x + 9, arrowY});
    if (panels[i].wind == WallWind::FromRight) svg.Arrow({x + kPanel, arrowY}, {x + kPanel - 9, arrowY});
  }
  DrawScaleBar(svg, {10, 2 * row + kElevationFoot - 8}, scale);
  return {svg.Take(), title + ", " + LengthText(length) + " long: " + NameOf(left) +
                          " lies at the left end, " + NameOf(right) + " at the right"};
}

Drawing DrawParapet(const BuildingForm& building, const FaceZones& zones, double greatest) {
  const double length = PlanLength(building, zones.face);
  const double height = building.parapetHeight;
  if (!IsLength(length) || !IsLength(height) || zones.rows.empty()) return {};
  const double scale = std::min((kElevationCanvas - 20) / length, kElevationTallest / height);
  const double row = height * scale + kTitle + 26;
  const std::string title = "Parapet of " + NameOf(zones.face);
  Svg svg(kElevationCanvas, 2 * row + kElevationFoot, title, DescribeZones(zones));
  const ZoneSizes sizes = SizesOf(zones);
  for (const bool windward : {true, false}) {
    const double y = windward ? 0 : row;
    const View view{scale, {10, y + kTitle + height * scale}};
    svg.Text({10, y + 11}, windward ? "Windward" : "Leeward", {9, "start", true});
    for (const Piece& piece : LayOutParapet(length, height, windward, sizes)) {
      const ZoneRow& zone = zones.rows[piece.zone];
      const Polygon outline = view.At(piece.outline);
      const Box box = BoxOf(outline);
      svg.Shape(outline, ToneOf(std::max(zone.pressure, -zone.suction), greatest), 0.7);
      const double middle = (box.left + box.right) / 2;
      svg.Text({middle, box.top + 10}, zone.name.substr(0, 1), {9, "middle", true});
      const std::string load = FormatSignedLoad(windward ? zone.pressure : zone.suction);
      if (box.Width() > 30) svg.Text({middle, box.top + 20}, load, {8});
    }
  }
  DrawScaleBar(svg, {10, 2 * row + kElevationFoot - 8}, scale);
  return {svg.Take(), title + ", " + LengthText(length) +
                          " long, zones from a free end or corner: the wind can come "
                          "from either end"};
}

}  // namespace orve::sheet
