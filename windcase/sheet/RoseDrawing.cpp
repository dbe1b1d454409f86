// The rose of q: a wedge for each wind sector.
#include <cmath>

#include "Drawings.h"
#include "common/NumberText.h"

namespace orve::sheet {

namespace {

constexpr double kWidth = 222;
constexpr double kHeight = 190;
constexpr double kRadius = 66;
constexpr int kSector = 30;

// A label outside the rose begins or ends at it.
void Label(Svg& svg, Point centre, int bearing, const std::string& text) {
  const double angle = bearing * 3.14159265358979323846 / 180;
  const double x = std::sin(angle);
  const char* anchor = std::fabs(x) < 0.1 ? "middle" : x > 0 ? "start" : "end";
  svg.Text({centre.x + (kRadius + 5) * x, centre.y - (kRadius + 9) * std::cos(angle) + 3}, text, {8, anchor});
}

}  // namespace

Drawing DrawRose(const SectorTable& table, double greatest) {
  if (!(greatest > 0) || !std::isfinite(greatest)) return {};
  std::string words;
  for (std::size_t i = 0; i < table.q.size(); ++i)
    words += std::to_string(kSector * static_cast<int>(i)) +
             " degrees: " + FormatFixed(static_cast<float>(table.q[i]), 3) + ". ";
  words.pop_back();
  Svg svg(kWidth, kHeight, table.title + ": q by wind sector, kN/m\u00B2", words);
  const Point centre{kWidth / 2, kHeight / 2};
  for (const double share : {0.25, 0.5, 0.75, 1.0}) svg.Circle(centre, kRadius * share);
  for (std::size_t i = 0; i < table.q.size(); ++i) {
    const int bearing = kSector * static_cast<int>(i);
    if (table.q[i] > 0)
      svg.Wedge(centre, kRadius * table.q[i] / greatest, bearing - kSector / 2.0, bearing + kSector / 2.0,
                ToneOf(table.q[i], greatest));
    Label(svg, centre, bearing,
          std::to_string(bearing) + "\u00B0 " + FormatFixed(static_cast<float>(table.q[i]), 3));
  }
  svg.Text({centre.x, 9}, "N", {9, "middle", true});
  return {svg.Take(),
          table.title + ": q, kN/m\u00B2; the circle is " + FormatFixed(static_cast<float>(greatest), 3)};
}

}  // namespace orve::sheet
