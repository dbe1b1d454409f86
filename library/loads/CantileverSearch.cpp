// The search of the cantilever zones of a wind face and of their loads.
#include <algorithm>
#include <iterator>
#include <memory>
#include <string>
#include <vector>

#include "common/LoadText.h"
#include "common/Narrow.h"
#include "common/NumberText.h"
#include "core/CaseObjects.h"
#include "core/KeepAlive.h"
#include "external/clsExternalCoefficients.h"
#include "geometry/clsBuildingDimensions.h"
#include "loads/CantileverLayout.h"
#include "loads/CantileverTexts.h"
#include "loads/clsCantileverWindLoads.h"
#include "loads/clsOverallAppliedLoads.h"

namespace orve {
namespace {

using namespace cantilever;

bool HasFace(WindFaces faces, Faces face) {
  switch (face) {
    case Faces::Face_1:
    case Faces::Face_3:
      return faces == WindFaces::Faces_1_and_3;
    case Faces::Face_2:
      return faces == WindFaces::Face_2;
    case Faces::Face_4:
      return faces == WindFaces::Face_4;
  }
  return false;
}

// The lengths of the layout for one wind face.
class LayoutLengths {
 public:
  LayoutLengths(Faces face, float width) : m_face(face), m_width(width), m_Y0(Of(Y(0))) {}

  float Of(Length length) const {
    switch (length.Rule) {
      case Length::Rules::L12:
        return m_building->CantileverFace1Or2_Length();
      case Length::Rules::L34:
        return m_building->CantileverFace3Or4_Length();
      case Length::Rules::W:
        return m_width;
      case Length::Rules::Y0:
        return m_Y0;
      case Length::Rules::W_less_Y0:
        return ToSingle(static_cast<double>(m_width) - m_Y0);
      case Length::Rules::HalfW_less_Y0:
        return ToSingle(static_cast<double>(m_width) / 2 - m_Y0);
      case Length::Rules::X:
        return m_coefficients->Hybrid_ZoneDimensionX(BuildingAreas::baRoof, m_face, length.Zone,
                                                     ResultsScreens::Overall_Applied_Loads);
      case Length::Rules::Y:
        return m_coefficients->Hybrid_ZoneDimensionY(BuildingAreas::baRoof, m_face, length.Zone,
                                                     ResultsScreens::Overall_Applied_Loads);
    }
    return 0;
  }

 private:
  std::shared_ptr<clsBuildingDimensions> m_building = CaseBuildingDimensions();
  std::shared_ptr<clsExternalCoefficients> m_coefficients = CaseExternalCoefficients();
  Faces m_face;
  float m_width;
  float m_Y0;
};

bool IsNumericPressure(const CantileverZone& zone) {
  return IsNumericText(StripUnit(zone.Zone_ExternalPressures));
}

float LengthOf(const CantileverZone& zone) {
  return TextToSingle(StripUnit(zone.Zone_Dimensions));
}

// The wall zones beside a cantilever, and the building's lengths that decide what they reach under.
struct SideWall {
  const SideWallRow& Row;
  const CantileverZone& A;
  const CantileverZone& B;
  const CantileverZone& C;

  bool IsCantilever2() const { return Row.LabelEnding == "(Cant 2)"; }

  std::string Pressure(Entry entry) const {
    switch (entry) {
      case Entry::A:
        return A.Zone_ExternalPressures;
      case Entry::B:
        return B.Zone_ExternalPressures;
      case Entry::C:
        return C.Zone_ExternalPressures;
      case Entry::C_or_zero:
        return IsNumericPressure(C) ? C.Zone_ExternalPressures : "0";
      case Entry::None:
        break;
    }
    return {};
  }

  // The lengths are read whatever the pressures are, so that a length that isn't a number is told.
  bool Reaches(Reach reach, const clsBuildingDimensions& building) const {
    if (reach == Reach::Never) return false;
    if (reach == Reach::A_past_L)
      return LengthOf(A) >
             (IsCantilever2() ? building.CantileverFace1Or2_Length() : building.CantileverFace3Or4_Length());
    const double width = building.Face2And4_Width();
    const float limit = ToSingle(reach == Reach::AB_past_half_W ? width / 2 : width / 6 * 4);
    const double lengthOfA = LengthOf(A);
    return limit < ToSingle(lengthOfA + LengthOf(B));
  }

  bool MustBeNumeric(Numeric numeric) const {
    switch (numeric) {
      case Numeric::Asked:
        return true;
      case Numeric::Cant_4:
        return !IsCantilever2();
      case Numeric::Not_Cant_2_on_Face_1:
        return !(IsCantilever2() && Row.Face == Faces::Face_1);
      case Numeric::Unasked:
        break;
    }
    return false;
  }

  bool HasSecond(const OverlayRow& row, const clsBuildingDimensions& building) const {
    if (!Reaches(row.If, building)) return false;
    return !MustBeNumeric(row.And) || IsNumericPressure(row.Second == Entry::B ? B : C);
  }
};

std::vector<std::string> WallsBeside(const SideWallRow& wall, std::string_view label,
                                     const ExternalPressure& pressures) {
  const auto building = CaseBuildingDimensions();
  const RoofTypes roofType = building->RoofType();
  const auto row = std::find_if(std::begin(Overlay), std::end(Overlay), [&](const OverlayRow& each) {
    return each.Roof == roofType && each.Letters.find(label.front()) != std::string_view::npos;
  });
  if (row == std::end(Overlay)) return {{}};
  const SideWall zones{wall, pressures.*wall.A, pressures.*wall.B, pressures.*wall.C};
  std::vector<std::string> list = {zones.Pressure(row->First)};
  if (zones.HasSecond(*row, *building)) list.push_back(zones.Pressure(row->Second));
  return list;
}

// The pressures of the wall zones under a cantilever zone; one empty text if none is known.
std::vector<std::string> WallList(Faces face, std::string_view label) {
  const ExternalPressure pressures = CaseCantileverWindloads()->ExternalPressures();
  for (const SideWallRow& wall : SideWalls)
    if (wall.Face == face && label.ends_with(wall.LabelEnding)) return WallsBeside(wall, label, pressures);
  for (const FacingWallRow& wall : FacingWalls)
    if (wall.Face == face && std::find(wall.Labels.begin(), wall.Labels.end(), label) != wall.Labels.end())
      return {(pressures.*wall.Wall).Zone_ExternalPressures};
  return {{}};
}

}  // namespace

bool clsOverallAppliedLoads::CantileverValues(BuildingAreas buildingArea, Faces face, bool results) {
  const KeepAlive keep(*this);
  const BuildingAreas area = Resolve(buildingArea);
  const Faces resolvedFace = Resolve(face);
  m_CantileverZones.assign(1, {});
  const float width = CaseBuildingDimensions()->Face2And4_Width();
  if (area != BuildingAreas::baRoof) return false;
  ListCantileverZones(resolvedFace, width, results);
  LastCantileverRow();  // A host that searched meanwhile may have emptied the table.
  m_CantileverZones.pop_back();
  if (m_CantileverZones.empty()) return false;
  m_CantileverZoneIndexFrom = 0;
  m_CantileverZoneIndexTo = ToInt16(std::ssize(m_CantileverZones) - 1);
  return true;
}

void clsOverallAppliedLoads::ListCantileverZones(Faces face, float width, bool results) {
  const auto layout = Layout(CaseBuildingDimensions()->RoofType());
  if (layout.empty()) return;
  const LayoutLengths lengths(face, width);
  for (const LayoutRow& row : layout) {
    if (!HasFace(row.Faces, face) || !(lengths.Of(row.If) > 0)) continue;
    const std::string label(row.Label);
    LastCantileverRow().Cantilever_ZoneDescription = label;
    const float first = lengths.Of(row.First);
    const float second = lengths.Of(row.Second);
    LastCantileverRow().Cantilever_ZoneDimensions = FormatZoneDimensions(first, second);
    const std::string external =
        CaseExternalCoefficients()->Hybrid_ExternalAppliedLoads(BuildingAreas::baRoof, face, row.Zone);
    LastCantileverRow().Cantilever_ExternalAppliedLoads = external;
    const CantileverLoads loads = CombineCantileverLoads(external, WallList(face, label));
    LastCantileverRow().Cantilever_InternalAppliedLoads = loads.Internal;
    LastCantileverRow().Cantilever_OverallAppliedLoads = loads.Overall;
    if (results) AppendCantileverResult(face, label, loads.Overall);
    m_CantileverZones.emplace_back();
  }
}

std::string clsOverallAppliedLoads::SelectedCantileverLoadValues(BuildingAreas buildingArea, Faces face) {
  const KeepAlive keep(*this);
  const BuildingAreas area = Resolve(buildingArea);
  const Faces resolvedFace = Resolve(face);
  const SelectedLoadTypes type = SelectedLoadType(area, resolvedFace);
  if (type == SelectedLoadTypes::Stepped_Wind_Load) return SteppedLoadText(area, resolvedFace);
  const ZoneSearch search = FindZoneOf(ZoneDescriptionFromSelectedLoadType(type), area, resolvedFace);
  const std::int16_t zone = search.Found ? ToInt16(search.Index) : std::int16_t{0};
  const std::string external =
      CaseExternalCoefficients()->Hybrid_ExternalAppliedLoads(area, resolvedFace, zone);
  const std::string noWall[] = {{}};
  return CombineCantileverLoads(external, noWall).Overall;
}

}  // namespace orve
