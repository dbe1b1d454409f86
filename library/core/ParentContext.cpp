// The first guess of the building from what the host says of the member that it designs.
#include <algorithm>
#include <iterator>

#include "common/Narrow.h"
#include "core/OwedSteps.h"
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
  using B = clsBuildingDimensions;
  OwedLets<B> let(building);
  let(&B::ConsiderRoof, row.Roof);
  let(&B::ConsiderWalls, row.Walls);
  let(&B::ConsiderCantilever, row.Cantilever);
  let(&B::ConsiderParapet, row.Parapet);
  switch (row.Set) {
    case Values::Roof:
      let(&B::Roof_Diagonal, diagonal);
      let(&B::Roof_Pitch, parent.Parent_RoofPitch());
      break;
    case Values::Walls:
      let(&B::Wall_GableDiagonal, diagonal);
      let(&B::Wall_SideDiagonal, building.Wall_GableDiagonal());
      break;
    case Values::EavesBeam:
      let(&B::Roof_Diagonal, 0);
      let(&B::Roof_Pitch, parent.Parent_RoofPitch());
      let(&B::Wall_GableDiagonal, 0);
      let(&B::Wall_SideDiagonal, 0);
      break;
    case Values::Parapet:
      let(&B::Parapet_Height, parent.Parent_HeightOfPost_m());
      let(&B::Parapet_HeightFromFFL_m, parent.Parent_HeightToTopOfPostFromFFL_m());
      let(&B::Parapet_SideDiagonal, diagonal);
      let(&B::Parapet_GableDiagonal, diagonal);
      break;
  }
  let.Finish();
}

void SetSpans(clsOverallAppliedLoads& loads, float roofSpan, float span) {
  OwedLets<clsOverallAppliedLoads> let(loads);
  for (const auto area : {BuildingAreas::baRoof, BuildingAreas::baWalls, BuildingAreas::baParapet})
    for (const auto face : {Faces::Face_1, Faces::Face_2, Faces::Face_3, Faces::Face_4})
      let(&clsOverallAppliedLoads::SteppedWind_Span, area, face,
          area == BuildingAreas::baRoof ? roofSpan : span);
  let.Finish();
}

}  // namespace

void clsCurrentCase::ApplyParentContext() {
  const auto self = weak_from_this().lock();  // A handler may put another root in this one's place.
  if (!m_iclsSaveFile->Blank() || IsDirty()) return;
  const ParentTypes type = Parent_Type();
  CaseSteps steps;
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
    if (row != std::end(Prefill)) {
      const float diagonal = DiagonalOf(row->DiagonalOf, *this);
      steps.Run([&] { SetBuilding(*building, *row, diagonal, *this); });
    }
    steps.Run([&] { SetSpans(*loads, roofSpan, span); });
  }
  steps.Run([&] { IsDirty(false); });
  steps.Finish();
}

}  // namespace orve
