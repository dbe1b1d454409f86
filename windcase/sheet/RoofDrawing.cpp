// The plan of the building with the zones of its roof.
#include <cmath>
#include <orve3_bs6399_2.h>

#include "Drawings.h"
#include "common/NumberText.h"

namespace orve::sheet {

namespace {

constexpr double kPlanCanvas = 332;
constexpr double kPlanMargin = 31;
constexpr double kPlanFoot = 16;
constexpr double kPlanTallest = 200;

// Middle of an edge of the plan, and the way out of it.
struct Edge {
  Point middle;
  Point outwards;
};

Edge EdgeOf(Faces face, double length, double width) {
  switch (face) {
    case Faces::Face_2:
      return {{0, width / 2}, {-1, 0}};
    case Faces::Face_3:
      return {{length / 2, width}, {0, 1}};
    case Faces::Face_4:
      return {{length, width / 2}, {1, 0}};
    default:
      return {{length / 2, 0}, {0, -1}};
  }
}

std::string Plan(const BuildingForm& building) {
  return ShortestText(static_cast<float>(building.length)) + " m \u00D7 " +
         ShortestText(static_cast<float>(building.width)) + " m";
}

class RoofPlan {
 public:
  RoofPlan(const BuildingForm& building, const FaceZones& zones)
      : m_building(building),
        m_zones(zones),
        m_scale(std::min((kPlanCanvas - 2 * kPlanMargin) / building.length, kPlanTallest / building.width)),
        m_height(building.width * m_scale + 2 * kPlanMargin + kPlanFoot),
        m_view{m_scale, {(kPlanCanvas - building.length * m_scale) / 2, m_height - kPlanMargin - kPlanFoot}},
        m_svg(kPlanCanvas, m_height, "Roof, wind on " + std::string(PublishedText(zones.face)),
              DescribeZones(zones)) {}

  std::string Draw(double greatest) {
    ZoneSizes sizes;
    for (const ZoneRow& row : m_zones.rows) sizes.push_back(row.size);
    DrawPieces(m_svg, m_view,
               LayOutRoof(m_building.roofType, m_zones.face, sizes, m_building.length, m_building.width),
               m_zones, greatest);
    m_svg.Shape(m_view.At(Rectangle(m_building.length, m_building.width)), "none", 1.4);
    DrawRidge();
    DrawCantilevers();
    for (const Faces face : kFaces) DrawFace(face);
    DrawNorth();
    DrawScaleBar(m_svg, {kPlanMargin / 2, m_height - 8}, m_scale);
    return m_svg.Take();
  }

 private:
  void DrawRidge() {
    if (m_building.roofType != RoofTypes::Duo_pitched_roof) return;
    const double middle = m_building.width / 2;
    m_svg.Line(m_view.At(Point{0, middle}), m_view.At(Point{m_building.length, middle}), 1.4);
  }

  void DrawCantilevers() {
    for (const double x : {m_building.cantilever12, m_building.length - m_building.cantilever34})
      if (x > 0 && x < m_building.length)
        m_svg.Line(m_view.At(Point{x, 0}), m_view.At(Point{x, m_building.width}), 1, true);
  }

  // The number of a face stands outside it, the wind's arrow beside that of the windward one.
  void DrawFace(Faces face) {
    const Edge edge = EdgeOf(face, m_building.length, m_building.width);
    const Point middle = m_view.At(edge.middle);
    const auto out = [&](double distance, double aside) {
      return Point{middle.x + edge.outwards.x * distance + edge.outwards.y * aside,
                   middle.y - edge.outwards.y * distance + edge.outwards.x * aside};
    };
    const Point label = out(12, 32);
    const bool sideways = edge.outwards.x != 0;
    m_svg.Text({label.x, label.y + 3}, std::string(PublishedText(face)), {9, "middle", true, sideways});
    if (face == m_zones.face) m_svg.Arrow(out(28, 0), out(4, 0));
  }

  // Face 2 lies at the left: its normal has the bearing of the orientation.
  void DrawNorth() {
    if (!m_building.orientationKnown) return;
    const double turn = (m_building.orientation + 180) * 3.14159265358979323846 / 180;
    const Point north{std::cos(turn), std::sin(turn)};
    const Point centre{kPlanCanvas - 24, m_height - 22};
    constexpr double half = 11;
    m_svg.Arrow({centre.x - north.x * half, centre.y + north.y * half},
                {centre.x + north.x * half, centre.y - north.y * half});
    m_svg.Text({centre.x + north.x * 18, centre.y - north.y * 18 + 3}, "N", {8, "middle", true});
  }

  const BuildingForm& m_building;
  const FaceZones& m_zones;
  double m_scale;
  double m_height;
  View m_view;
  Svg m_svg;
};

}  // namespace

Drawing DrawRoof(const BuildingForm& building, const FaceZones& zones, double greatest) {
  if (!IsLength(building.length) || !IsLength(building.width) || zones.rows.empty()) return {};
  return {RoofPlan(building, zones).Draw(greatest),
          "Roof " + Plan(building) + ", wind on " + std::string(PublishedText(zones.face))};
}

}  // namespace orve::sheet
