// Zones on plans and elevations: tones, names and loads.
#include <algorithm>
#include <array>
#include <cmath>

#include "Drawings.h"
#include "common/LoadText.h"
#include "common/NumberText.h"

namespace orve::sheet {

namespace {

constexpr std::array<const char*, 5> kTones = {"#fff", "#dfe9f2", "#b9cfe2", "#8fb1d0", "#6390ba"};
constexpr const char* kRefusedTone = "#eee";
constexpr double kFont = 9;
constexpr double kLetter = 5.2;  // width of a letter of that size

std::size_t ToneIndex(double load, double greatest) {
  const double share = load / greatest;
  if (!(share > 0)) return 0;
  const std::size_t darkest = kTones.size() - 1;
  return share < 1 ? static_cast<std::size_t>(std::ceil(share * static_cast<double>(darkest))) : darkest;
}

double LoadOf(const ZoneRow& row) {
  return std::max(row.pressure, -row.suction);
}

// "A (face 2)" is A on the drawing, which tells the face.
std::string ShortName(const std::string& name) {
  return name.substr(0, name.find(" ("));
}

std::string LoadsOf(const ZoneRow& row) {
  if (!row.refusal.empty()) return "refused";
  std::string text = FormatSignedLoad(row.pressure);
  const std::string suction = FormatSignedLoad(row.suction);
  if (!text.empty() && !suction.empty()) text += " ";
  return text + suction;
}

double WidthOf(const std::string& text) {
  return kLetter * static_cast<double>(text.size());
}

// The room for a label: less than the box for a zone that doesn't fill it.
struct Room {
  double width;
  double height;
};

Room RoomIn(const Polygon& outline) {
  const Box box = BoxOf(outline);
  const double share = Area(outline) / (box.Width() * box.Height());
  constexpr double full = 0.85;
  return share > full ? Room{box.Width(), box.Height()} : Room{box.Width() * share, box.Height() * share};
}

// The largest form of the label that fits; a name alone may cover the lines of a small zone.
void Label(Svg& svg, const Polygon& outline, const ZoneRow& row) {
  const Room room = RoomIn(outline);
  const Point centre = Centre(outline);
  const std::string name = ShortName(row.name);
  const std::string loads = LoadsOf(row);
  const std::string line = name + "  " + loads;
  constexpr double lineHeight = kFont + 2;
  if (room.height >= 2.4 * lineHeight && room.width >= std::max(WidthOf(name), WidthOf(loads))) {
    svg.Text({centre.x, centre.y - 2}, name, {kFont, "middle", true});
    svg.Text({centre.x, centre.y + lineHeight - 2}, loads, {kFont, "middle"});
  } else if (room.height >= lineHeight && room.width >= WidthOf(line)) {
    svg.Text({centre.x, centre.y + 3}, line, {kFont, "middle"});
  } else if (room.width >= lineHeight && room.height >= WidthOf(line)) {
    svg.Text({centre.x + 3, centre.y}, line, {kFont, "middle", false, true});
  } else {
    const bool fits = room.width >= WidthOf(name) && room.height >= lineHeight;
    svg.Text({centre.x, centre.y + 3}, name, {fits ? kFont : kFont - 1, "middle", true, false, !fits});
  }
}

}  // namespace

bool IsLength(double value) {
  return std::isfinite(value) && value > 0;
}

const char* ToneOf(double load, double greatest) {
  return kTones[ToneIndex(load, greatest)];
}

std::string DrawToneKey(double greatest) {
  constexpr double box = 16;
  constexpr double step = 118;
  const auto count = static_cast<double>(kTones.size() - 1);
  const auto limit = [&](std::size_t i) {
    return FormatFixed(static_cast<float>(greatest * static_cast<double>(i) / count), 3);
  };
  Svg svg(step * static_cast<double>(kTones.size()), box + 4, "Key to the tones",
          "The darker a zone, the greater its load; the greatest is " + limit(kTones.size() - 1) +
              " kN/m\u00B2.");
  for (std::size_t i = 0; i < kTones.size(); ++i) {
    const double x = step * static_cast<double>(i);
    svg.Shape({{x + 1, 2}, {x + 1 + box, 2}, {x + 1 + box, 2 + box}, {x + 1, 2 + box}}, kTones[i], 0.7);
    svg.Text({x + box + 6, box - 2}, i == 0 ? std::string("no load") : limit(i - 1) + " to " + limit(i),
             {kFont, "start"});
  }
  return svg.Take();
}

void DrawPieces(Svg& svg, const View& view, const Pieces& pieces, const FaceZones& zones, double greatest) {
  for (const Piece& piece : pieces) {
    const ZoneRow& row = zones.rows[piece.zone];
    svg.Shape(view.At(piece.outline), row.refusal.empty() ? ToneOf(LoadOf(row), greatest) : kRefusedTone,
              0.7);
  }
  for (const Piece& piece : pieces) Label(svg, view.At(piece.outline), zones.rows[piece.zone]);
}

std::string DescribeZones(const FaceZones& zones) {
  std::string text;
  for (const ZoneRow& row : zones.rows) {
    text += row.name;
    if (!row.dimensions.text.empty()) text += ", " + row.dimensions.text;
    text += ": " +
            (row.overall.text.empty() ? std::string("no load")
             : row.refusal.empty()    ? row.overall.text
                                      : "refused") +
            ". ";
  }
  if (!text.empty()) text.pop_back();
  return text;
}

}  // namespace orve::sheet
