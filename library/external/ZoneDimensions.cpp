// The lengths of a zone by the zone rules of BS 6399-2 (Figures 12 to 23), worked out in 64 bits and narrowed
// once.
#include <algorithm>
#include <optional>

#include "common/Narrow.h"
#include "core/CaseObjects.h"
#include "core/basBS6399_2.h"
#include "core/clsCurrentCase.h"
#include "external/BreCpX.h"
#include "external/clsExternalCoefficients.h"
#include "geometry/clsBuildingDimensions.h"

namespace orve {

namespace {

struct Lengths {
  double X = 0;
  double Y = 0;
  bool None = false;
};
using Row = std::optional<Lengths>;

constexpr Lengths RestOfRoof{1, 1, true};

// The zone selected in the component, with the cantilever lengths that come off it.
struct Zone {
  std::string_view name;
  double theta;
  double c12;
  double c34;

  bool Is(std::string_view letters) const { return name == letters; }
  bool IsOneOf(std::string_view letters) const {
    return name.size() == 1 && letters.find(name[0]) != std::string_view::npos;
  }
  // The angle reads back from the component exactly, at 64 bits.
  bool At(double angle) const { return theta == angle; }
  bool AcrossRidge() const { return At(0) || At(180); }
  bool FromFace2() const { return At(90); }
  bool FromFace4() const { return At(270); }
};

Row Same(double length) {
  return Lengths{length, length};
}

Row WallZone(const Zone& zone, const BreCpX& component) {
  const double b = component.Scale_b();
  const double D = component.Depth();
  if (zone.Is("A")) return Same(0.2 * b);
  if (zone.Is("B")) return Same(D > b ? b - 0.2 * b : D - 0.2 * b);
  if (zone.Is("C")) return Same(D > b ? D - b : 0);
  return {};
}

// Cantilevers upwind and downwind of a wind that blows along the ridge.
struct AlongRidge {
  double upwind;
  double downwind;
};

AlongRidge Cantilevers(const Zone& zone, bool fromFace2) {
  return fromFace2 ? AlongRidge{zone.c12, zone.c34} : AlongRidge{zone.c34, zone.c12};
}

Row FlatRoofZone(const Zone& zone, const BreCpX& component) {
  const double b = component.Scale_b();
  const double B = component.Breadth();
  const double D = component.Depth();
  if (zone.AcrossRidge()) {
    if (zone.Is("A")) return Lengths{b / 4 - zone.c12, b / 10};
    if (zone.Is("B")) return Lengths{B - 2 * (b / 4), b / 10};
    if (zone.Is("C")) return Lengths{B - (zone.c12 + zone.c34), b / 2 - b / 10};
    if (zone.Is("D")) return Lengths{B - (zone.c12 + zone.c34), D - b / 2};
  } else if (zone.FromFace2() || zone.FromFace4()) {
    const AlongRidge cantilever = Cantilevers(zone, zone.FromFace2());
    if (zone.Is("A")) return Lengths{b / 4, b / 10 - cantilever.upwind};
    if (zone.Is("B")) return Lengths{B - 2 * (b / 4), b / 10 - cantilever.upwind};
    if (zone.Is("C")) return Lengths{B, b / 2 - b / 10};
    if (zone.Is("D")) return Lengths{B, D - b / 2 - cantilever.downwind};
  }
  return {};
}

Row MonoPitchedRoofZone(const Zone& zone, const BreCpX& component) {
  const double b = component.Scale_b();
  const double B = component.Breadth();
  const bool fromFace2 = zone.At(89.9) || zone.At(90);
  if (zone.AcrossRidge()) {
    if (zone.Is("A")) return Lengths{b / 2 - zone.c12, b / 10};
    if (zone.Is("B")) return Lengths{B - 2 * (b / 2), b / 10};
    if (zone.Is("C")) return RestOfRoof;
  } else if (fromFace2 || zone.At(270) || zone.At(270.1)) {
    const AlongRidge cantilever = Cantilevers(zone, fromFace2);
    if (zone.Is("AU") || zone.Is("AL")) return Lengths{b / 4, b / 10 - cantilever.upwind};
    if (zone.Is("B")) return Lengths{B - 2 * (b / 4), b / 10 - cantilever.upwind};
    if (zone.Is("C")) return Lengths{B, b / 2 - b / 10};
    if (zone.Is("D")) return RestOfRoof;
  }
  return {};
}

Row DuoPitchedRoofZone(const Zone& zone, const BreCpX& component) {
  const double b = component.Scale_b();
  const double B = component.Breadth();
  if (zone.AcrossRidge()) {
    if (zone.Is("A") || zone.Is("E")) return Lengths{b / 2 - zone.c12, b / 10};
    if (zone.Is("B") || zone.Is("F")) return Lengths{B - 2 * (b / 2), b / 10};
    if (zone.Is("C") || zone.Is("G")) return RestOfRoof;
  } else if (zone.FromFace2() || zone.FromFace4()) {
    const AlongRidge cantilever = Cantilevers(zone, zone.FromFace2());
    if (zone.Is("A") || zone.Is("B")) return Lengths{B / 4, b / 10 - cantilever.upwind};
    if (zone.Is("C")) return Lengths{B / 2, b / 2 - b / 10};
    if (zone.Is("D")) return RestOfRoof;
  }
  return {};
}

Row HippedRoofZone(const Zone&, const BreCpX& component) {
  const double b = component.Scale_b();
  return Lengths{b / 10, b / 2};
}

Row ParapetZone(const Zone& zone, const BreCpX& component) {
  const double H = component.Dim_H();
  const double L = component.Dim_L();
  if (zone.Is("A")) return Same(std::min(0.3 * H, L));
  if (zone.Is("B")) return Same(std::min(2 * H, L) - 0.3 * H);
  if (zone.Is("C")) return Same(std::min(4 * H, L) - 2 * H);
  if (zone.Is("D")) return Same(L - 4 * H);
  return {};
}

Row CurvedRoofZone(const Zone& zone, const BreCpX& component, float roofHeight) {
  const double B = component.Breadth();
  const double D = component.Depth();
  if (zone.AcrossRidge()) {
    if (zone.IsOneOf("ABCDEF")) return Lengths{B - (zone.c12 + zone.c34), D / 6};
  } else if (zone.FromFace2() || zone.FromFace4()) {
    const double twiceHeight = ToSingle(2.0 * roofHeight);
    const double w = B < twiceHeight ? B : twiceHeight;
    const AlongRidge cantilever = Cantilevers(zone, zone.FromFace2());
    if (zone.IsOneOf("AB")) return Lengths{B / 3, w / 10 - cantilever.upwind};
    if (zone.Is("C")) return Lengths{B, B / 3 - w / 10};
    if (zone.IsOneOf("DE")) return Lengths{B, B / 3};
    if (zone.Is("F")) return Lengths{B, D - B - cantilever.downwind};
  }
  return {};
}

Row ZoneRow(std::int32_t typeIndex, const Zone& zone, const BreCpX& component,
            const clsBuildingDimensions& building) {
  switch (typeIndex) {
    case 0:
      return WallZone(zone, component);
    case 2:
      return FlatRoofZone(zone, component);
    case 3:
      return MonoPitchedRoofZone(zone, component);
    case 4:
      return DuoPitchedRoofZone(zone, component);
    case 5:
      return HippedRoofZone(zone, component);
    case 8:
      return ParapetZone(zone, component);
    case 11:
      return CurvedRoofZone(zone, component, building.Roof_Height());
    default:
      return {};
  }
}

}  // namespace

bool clsExternalCoefficients::CalculateZoneExtent(const BreCpX& component, ZoneExtent& extent,
                                                  ResultsScreens resultsScreen, bool warning) {
  const auto building = CaseBuildingDimensions();
  const bool takeOff =
      building->ConsiderCantilever() && resultsScreen == ResultsScreens::Overall_Applied_Loads && !warning;
  const double c12 = takeOff ? building->CantileverFace1Or2_Length() : 0.0;
  const double c34 = takeOff ? building->CantileverFace3Or4_Length() : 0.0;
  const std::int32_t typeIndex = component.TypeIndex();
  const std::string name = component.ZoneString();
  const Zone zone{name, component.Theta(), c12, c34};
  if (const Row row = ZoneRow(typeIndex, zone, component, *building))
    extent = {row->None, ToSingle(row->X), ToSingle(row->Y)};
  return !(extent.DimensionX <= 0 && extent.DimensionY <= 0);
}

}  // namespace orve
