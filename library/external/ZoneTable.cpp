// From the building, an area and a face to the settings of the coefficient component, and from the zones that
// it offers to the zone table.
#include <array>
#include <utility>

#include "common/Narrow.h"
#include "core/CaseObjects.h"
#include "core/Marks.h"
#include "core/Ranges.h"
#include "external/BreCpX.h"
#include "external/clsExternalCoefficients.h"
#include "geometry/clsBuildingDimensions.h"
#include "loads/clsOverallAppliedLoads.h"
#include "sitewind/clsDynamicPressure.h"

namespace orve {

namespace {

constexpr std::int32_t WallsType = 0;
constexpr std::int32_t FlatRoofType = 2;
constexpr std::int32_t MonoPitchedType = 3;
constexpr std::int32_t DuoPitchedType = 4;
constexpr std::int32_t HippedType = 5;
constexpr std::int32_t ParapetType = 8;
constexpr std::int32_t CurvedType = 11;
constexpr std::int16_t LastComponentZone = 25;

// The shape members of the component in the order in which they are sent.
struct Shape {
  std::int32_t TypeIndex = WallsType;
  float Barrel_r = 0;
  float Eaves_Pitch = 0;
  float Eaves_Radius = 0;
  float Parapet_H = 0;
  float Roof_Pitch = 0;
};

void SendShape(BreCpX& component, const Shape& shape) {
  component.TypeIndex(shape.TypeIndex);
  component.Barrel_r(shape.Barrel_r);
  component.Eaves_Pitch(shape.Eaves_Pitch);
  component.Eaves_Radius(shape.Eaves_Radius);
  component.Parapet_H(shape.Parapet_H);
  component.Roof_Pitch(shape.Roof_Pitch);
}

Shape RoofShape(const clsBuildingDimensions& building) {
  switch (building.RoofType()) {
    case RoofTypes::Flat_roof_with_sharp_eaves:
      return {.TypeIndex = FlatRoofType};
    case RoofTypes::Flat_roof_with_parapets:
      return {.TypeIndex = FlatRoofType, .Parapet_H = building.Roof_ParapetHeight()};
    case RoofTypes::Flat_roof_with_curved_eaves:
      return {.TypeIndex = FlatRoofType, .Eaves_Radius = building.Roof_EavesRadius()};
    case RoofTypes::Flat_roof_with_mansard_eaves:
      return {.TypeIndex = FlatRoofType, .Eaves_Pitch = building.Roof_MansardSlope()};
    case RoofTypes::Mono_pitched_roof:
      return {.TypeIndex = MonoPitchedType, .Roof_Pitch = building.Roof_Pitch()};
    case RoofTypes::Duo_pitched_roof:
      return {.TypeIndex = DuoPitchedType, .Roof_Pitch = building.Roof_Pitch()};
    case RoofTypes::Hipped_roof:
      return {.TypeIndex = HippedType, .Roof_Pitch = building.Roof_Pitch()};
    case RoofTypes::Curved_roof:
      return {.TypeIndex = CurvedType, .Barrel_r = building.Roof_RiseHeight()};
    default:
      return {};
  }
}

float RoofDimH(const clsBuildingDimensions& building, const Shape& shape) {
  if (shape.TypeIndex == WallsType) return 0;
  if (shape.TypeIndex == CurvedType)
    return ToSingle(double(building.Roof_Height()) - building.Roof_RiseHeight());
  return building.Roof_Height();
}

int FaceNumber(Faces face) {
  return static_cast<std::int32_t>(face);
}
bool IsFace1Or3(Faces face) {
  return face == Faces::Face_1 || face == Faces::Face_3;
}

struct PlanLengths {
  float Dim_L;
  float Dim_W;
};

// Plan lengths of the walls without the cantilevers; they swap on Faces 2 and 4.
PlanLengths WallPlanLengths(const clsBuildingDimensions& building, Faces face) {
  float lengthReduction = 0;
  float widthReduction = 0;
  if (building.ConsiderCantilever()) {
    const float cantilevers =
        ToSingle(double(building.CantileverFace3Or4_Length()) + building.CantileverFace1Or2_Length());
    (building.Wall_GableFaces() == GableFaces::Faces_1_and_3 ? widthReduction : lengthReduction) =
        cantilevers;
  }
  const float length = ToSingle(double(building.Face1And3_Length()) - lengthReduction);
  const float width = ToSingle(double(building.Face2And4_Width()) - widthReduction);
  return IsFace1Or3(face) ? PlanLengths{length, width} : PlanLengths{width, length};
}

void SendPlanLengths(BreCpX& component, const PlanLengths& plan) {
  component.Dim_L(plan.Dim_L);
  component.Dim_W(plan.Dim_W);
}

float WallGap(const clsBuildingDimensions& building, Faces face) {
  switch (face) {
    case Faces::Face_1:
      return building.Wall_GapFace1();
    case Faces::Face_2:
      return building.Wall_GapFace2();
    case Faces::Face_3:
      return building.Wall_GapFace3();
    default:
      return building.Wall_GapFace4();
  }
}

}  // namespace

void clsExternalCoefficients::BuildZoneTable(BuildingAreas buildingArea, Faces face,
                                             ResultsScreens resultsScreen) {
  BuildZoneTable(*RequireBreCp(), buildingArea, face, resultsScreen);
}

void clsExternalCoefficients::BuildZoneTable(BreCpX& component, BuildingAreas buildingArea, Faces face,
                                             ResultsScreens resultsScreen) {
  const BuildingAreas area = Resolve(buildingArea);
  const Faces onFace = Resolve(face);
  const bool warning = CaseOverallAppliedLoads()->CantileverZoneWidthWarning(area, onFace);
  const ResultsScreens screen =
      resultsScreen == ResultsScreens(-1) ? ResultsScreens::External_Coefficient : resultsScreen;
  SendMethod(component);
  switch (area) {
    case BuildingAreas::baRoof:
      SetUpRoof(component);
      break;
    case BuildingAreas::baWalls:
      SetUpWalls(component);
      break;
    case BuildingAreas::baParapet:
      SetUpParapet(component, onFace);
      break;
    default:
      break;
  }
  m_ZoneTable.clear();
  switch (component.TypeIndex()) {
    case WallsType:
      ScanWalls(component, onFace, warning);
      break;
    case MonoPitchedType:
      ScanMonoPitchedRoof(component, onFace, screen, warning);
      break;
    case ParapetType:
      ScanParapet(component, warning);
      break;
    default:
      ScanOtherRoof(component, onFace, screen, warning);
      break;
  }
}

// The component counts the methods the other way round.
void clsExternalCoefficients::SendMethod(BreCpX& component) {
  clsCurrentCase& present = RequireCurrentCase();
  const auto isOpenCases = [&] { return present.m_ExternalCoefficients.get() == this; };
  if (isOpenCases() && !present.BreCp_Dirty()) return;
  const auto root = present.shared_from_this();
  const Methods method = CaseDynamicPressure()->Method();
  root->BreCp_Dirty(true);
  if (method == Methods::Directional) component.Method(1);
  if (method == Methods::Hybrid) component.Method(0);
  // After another object has worked on the component, the open case's own sends the method anew.
  root->BreCp_Dirty(!isOpenCases());
}

void clsExternalCoefficients::SetUpRoof(BreCpX& component) {
  const auto building = CaseBuildingDimensions();
  const Shape shape = RoofShape(*building);
  SendShape(component, shape);
  component.Dim_H(RoofDimH(*building, shape));
  component.Dim_gap(0);
  SendPlanLengths(component, {building->Face1And3_Length(), building->Face2And4_Width()});
  component.Solidity(0);
}

void clsExternalCoefficients::SetUpWalls(BreCpX& component) {
  SendShape(component, {.TypeIndex = WallsType});
  component.Solidity(0);
}

void clsExternalCoefficients::SetUpParapet(BreCpX& component, Faces face) {
  const auto building = CaseBuildingDimensions();
  SendShape(component, {.TypeIndex = ParapetType});
  component.Dim_H(building->Parapet_Height());
  component.Dim_gap(0);
  const bool returnCorner =
      GableFace(face) ? building->Parapet_GableReturnCorner() : building->Parapet_SideReturnCorner();
  if (IsFace(face)) {
    const float length = building->Face1And3_Length();
    const float width = building->Face2And4_Width();
    component.Dim_L(IsFace1Or3(face) ? length : width);
    component.Dim_W(!returnCorner ? 0 : IsFace1Or3(face) ? width : length);
  }
  component.Solidity(1);
}

void clsExternalCoefficients::ScanWalls(BreCpX& component, Faces face, bool warning) {
  const auto building = CaseBuildingDimensions();
  const PlanLengths plan = WallPlanLengths(*building, face);
  if (IsFace(face)) SendPlanLengths(component, plan);
  component.Dim_H(GableFace(face) ? building->Wall_GableHeight() : building->Wall_SideHeight());
  component.Dim_gap(0);
  AppendFixedWallZone(component, 0, "Windward");
  AppendFixedWallZone(component, 180, "Leeward");
  if (!IsFace(face)) return;
  SendPlanLengths(component, plan);
  component.Dim_gap(WallGap(*building, face));
  component.Theta(90);
  AddComponentZones(component, IsFace1Or3(face) ? " (face 2)" : " (face 1)", ResultsScreens(-1), warning);
  component.Theta(270);
  AddComponentZones(component, IsFace1Or3(face) ? " (face 4)" : " (face 3)", ResultsScreens(-1), warning);
}

void clsExternalCoefficients::AppendFixedWallZone(BreCpX& component, double theta, const char* description) {
  component.Theta(theta);
  component.ZoneIndex(0);
  if (!component.Valid()) return;
  ZoneRecord zone = ReadZone(component, 0);
  zone.Description = description;
  ReadBackDimensions(component, zone);
  const float breadth = component.Breadth();
  zone.Extent = {false, breadth, breadth};
  m_ZoneTable.push_back(std::move(zone));
}

void clsExternalCoefficients::ScanMonoPitchedRoof(BreCpX& component, Faces face, ResultsScreens resultsScreen,
                                                  bool warning) {
  if (face == Faces::Face_2 || face == Faces::Face_4) {
    component.Theta(face == Faces::Face_2 ? 90 : 270);
    component.ZoneIndex(0);
    if (component.Valid()) AddComponentZone(component, 0, "", resultsScreen, warning);
  }
  constexpr std::array<double, FaceCount> angles = {0, 89.9, 180, 270.1};
  if (IsFace(face)) component.Theta(angles[FaceNumber(face)]);
  AddComponentZones(component, "", resultsScreen, warning);
}

void clsExternalCoefficients::ScanParapet(BreCpX& component, bool warning) {
  component.Theta(0);
  AddComponentZones(component, " (windward)", ResultsScreens(-1), warning);
  component.Theta(180);
  AddComponentZones(component, " (leeward)", ResultsScreens(-1), warning);
}

void clsExternalCoefficients::ScanOtherRoof(BreCpX& component, Faces face, ResultsScreens resultsScreen,
                                            bool warning) {
  constexpr std::array<double, FaceCount> angles = {0, 90, 180, 270};
  if (IsFace(face)) component.Theta(angles[FaceNumber(face)]);
  AddComponentZones(component, "", resultsScreen, warning);
}

void clsExternalCoefficients::AddComponentZones(BreCpX& component, const char* suffix,
                                                ResultsScreens resultsScreen, bool warning) {
  for (std::int16_t zone = 0; zone <= LastComponentZone; ++zone) {
    component.ZoneIndex(zone);
    if (component.Valid()) AddComponentZone(component, zone, suffix, resultsScreen, warning);
  }
}

// The extent starts cleared for each zone, so that a zone behind one without lengths shows its own.
void clsExternalCoefficients::AddComponentZone(BreCpX& component, std::int16_t componentZoneIndex,
                                               const char* suffix, ResultsScreens resultsScreen,
                                               bool warning) {
  ZoneExtent extent;
  if (!CalculateZoneExtent(component, extent, resultsScreen, warning)) return;
  ZoneRecord zone = ReadZone(component, componentZoneIndex);
  zone.Description = component.ZoneString();
  zone.Description += suffix;
  ReadBackDimensions(component, zone);
  zone.Extent = extent;
  m_ZoneTable.push_back(std::move(zone));
}

// A zone enters the table once it is whole: a host that reads the table in the middle of a call on the
// component builds it anew.
ZoneRecord clsExternalCoefficients::ReadZone(const BreCpX& component, std::int16_t componentZoneIndex) {
  ZoneRecord zone;
  zone.ComponentZoneIndex = componentZoneIndex;
  zone.Theta = ToSingle(component.Theta());
  return zone;
}

void clsExternalCoefficients::ReadBackDimensions(const BreCpX& component, ZoneRecord& zone) {
  zone.Dim_L = component.Dim_L();
  zone.Dim_W = component.Dim_W();
  zone.Dim_H = component.Dim_H();
  zone.Dim_gap = component.Dim_gap();
}

}  // namespace orve
