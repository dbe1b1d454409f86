// The first guess of the building from what the host says of the member that it designs.
#include <algorithm>
#include <iterator>

#include "common/Narrow.h"
#include "core/Required.h"
#include "core/clsCurrentCase.h"
#include "geometry/MemberDiagonal.h"
#include "geometry/clsBuildingDimensions.h"
#include "loads/clsOverallAppliedLoads.h"
#include "storage/clsSaveFile.h"

namespace orve {
namespace {

// The two sides of the rectangle that the member loads.
enum class Sides { None, CentresAndSpan, TwoSpansAndCentres, ThreeSpansAndCentres, BaySizeAndPost };

// What is set besides the four switches.
enum class Values { Roof, Walls, EavesBeam, Parapet };

struct PrefillRow {
  ParentTypes Type;
  bool Roof;
  bool Walls;
  bool Cantilever;
  bool Parapet;
  Sides DiagonalOf;
  Values Set;
};

// clang-format off
constexpr PrefillRow Prefill[] = {
    // parent type                           roof   walls  cantil. parapet diagonal of                  values
    {ParentTypes::Purlin_Single,             true,  false, false,  false,  Sides::CentresAndSpan,       Values::Roof},
    {ParentTypes::Purlin_Double,             true,  false, false,  false,  Sides::TwoSpansAndCentres,   Values::Roof},
    {ParentTypes::Siderail_Single,           false, true,  false,  false,  Sides::CentresAndSpan,       Values::Walls},
    {ParentTypes::Siderail_Double,           false, true,  false,  false,  Sides::TwoSpansAndCentres,   Values::Walls},
    {ParentTypes::Purlin_Continuous_Single,  true,  false, false,  false,  Sides::ThreeSpansAndCentres, Values::Roof},
    {ParentTypes::Purlin_Continuous_Double,  true,  false, false,  false,  Sides::ThreeSpansAndCentres, Values::Roof},
    {ParentTypes::Eavesbeam_Design,          true,  true,  false,  false,  Sides::None,                 Values::EavesBeam},
    {ParentTypes::Cantilever_Design_Single,  true,  true,  true,   false,  Sides::CentresAndSpan,       Values::Roof},
    {ParentTypes::ptParapetDesign,           false, false, false,  true,   Sides::BaySizeAndPost,       Values::Parapet},
    {ParentTypes::Cantilever_Design_Double,  true,  true,  true,   false,  Sides::TwoSpansAndCentres,   Values::Roof},
};
// clang-format on

float DiagonalOf(Sides sides, const clsCurrentCase& parent) {
  const double span = parent.Parent_Span();
  switch (sides) {
    case Sides::CentresAndSpan:
      return MemberDiagonal(parent.Parent_Centres(), span);
    case Sides::TwoSpansAndCentres:
      return MemberDiagonal(2 * span, parent.Parent_Centres());
    case Sides::ThreeSpansAndCentres:
      return MemberDiagonal(3 * span, parent.Parent_Centres());
    case Sides::BaySizeAndPost:
      return MemberDiagonal(parent.Parent_BaySize_m(), parent.Parent_HeightOfPost_m());
    case Sides::None:
      break;
  }
  return 0;
}

void SetBuilding(clsBuildingDimensions& building, const PrefillRow& row, float diagonal,
                 const clsCurrentCase& parent) {
  building.ConsiderRoof(row.Roof);
  building.ConsiderWalls(row.Walls);
  building.ConsiderCantilever(row.Cantilever);
  building.ConsiderParapet(row.Parapet);
  switch (row.Set) {
    case Values::Roof:
      building.Roof_Diagonal(diagonal);
      building.Roof_Pitch(parent.Parent_RoofPitch());
      break;
    case Values::Walls:
      building.Wall_GableDiagonal(diagonal);
      building.Wall_SideDiagonal(building.Wall_GableDiagonal());
      break;
    case Values::EavesBeam:
      building.Roof_Diagonal(0);
      building.Roof_Pitch(parent.Parent_RoofPitch());
      building.Wall_GableDiagonal(0);
      building.Wall_SideDiagonal(0);
      break;
    case Values::Parapet:
      building.Parapet_Height(parent.Parent_HeightOfPost_m());
      building.Parapet_HeightFromFFL_m(parent.Parent_HeightToTopOfPostFromFFL_m());
      building.Parapet_SideDiagonal(diagonal);
      building.Parapet_GableDiagonal(diagonal);
      break;
  }
}

void SetSpans(clsOverallAppliedLoads& loads, float roofSpan, float span) {
  for (const auto area : {BuildingAreas::baRoof, BuildingAreas::baWalls, BuildingAreas::baParapet})
    for (const auto face : {Faces::Face_1, Faces::Face_2, Faces::Face_3, Faces::Face_4})
      loads.SteppedWind_Span(area, face, area == BuildingAreas::baRoof ? roofSpan : span);
}

}  // namespace

void clsCurrentCase::ApplyParentContext() {
  const auto self = weak_from_this().lock();  // A handler may put another root in this one's place.
  if (!m_iclsSaveFile->Blank() || IsDirty()) return;
  const ParentTypes type = Parent_Type();
  if (type != ParentTypes::None) {
    const auto building = Required(BuildingDimensions(), "BuildingDimensions");
    const auto loads = Required(OverallAppliedLoads(), "OverallAppliedLoads");
    const auto row = std::find_if(std::begin(Prefill), std::end(Prefill),
                                  [type](const PrefillRow& each) { return each.Type == type; });
    // All that can fail comes before the first value is set.
    const bool continuous =
        type == ParentTypes::Purlin_Continuous_Single || type == ParentTypes::Purlin_Continuous_Double;
    const float span = Parent_Span();
    const float roofSpan = continuous ? ToSingle(2 * static_cast<double>(span)) : span;
    if (row != std::end(Prefill)) SetBuilding(*building, *row, DiagonalOf(row->DiagonalOf, *this), *this);
    SetSpans(*loads, roofSpan, span);
  }
  IsDirty(false);
}

}  // namespace orve
