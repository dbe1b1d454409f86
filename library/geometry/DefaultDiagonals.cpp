// The default diagonals, from the design in the host (size effect factor, 2.1.3.4).
#include <cmath>

#include "common/Narrow.h"
#include "common/NumberText.h"
#include "core/basBS6399_2.h"
#include "core/clsCurrentCase.h"
#include "geometry/MemberDiagonal.h"
#include "geometry/clsBuildingDimensions.h"

namespace orve {

namespace {

// The rectangle that a single member loads has the sides span and centres, that of a double member twice the
// span.
float MemberRectangle(bool doubleSpan) {
  const clsCurrentCase& parent = RequireCurrentCase();
  const double span = parent.Parent_Span();
  return MemberDiagonal(doubleSpan ? 2 * span : span, parent.Parent_Centres());
}

float WallDiagonalDefault() {
  switch (RequireCurrentCase().Parent_Type()) {
    case ParentTypes::Siderail_Single:
      return MemberRectangle(false);
    case ParentTypes::Siderail_Double:
      return MemberRectangle(true);
    default:
      return 0;
  }
}

float ParapetDiagonalDefault() {
  const clsCurrentCase& parent = RequireCurrentCase();
  if (parent.Parent_Type() != ParentTypes::ptParapetDesign) return 0;
  return MemberDiagonal(parent.Parent_BaySize_m(), parent.Parent_HeightOfPost_m());
}

}  // namespace

float MemberDiagonal(double side1, double side2) {
  const double diagonal = std::sqrt(side1 * side1 + side2 * side2);
  if (!std::isfinite(diagonal)) RaiseOverflow();
  constexpr int places = 3;
  return TextToSingle(FormatFixed(diagonal, places));
}

float clsBuildingDimensions::Roof_Diagonal_Default() const {
  switch (RequireCurrentCase().Parent_Type()) {
    case ParentTypes::Purlin_Single:
    case ParentTypes::Purlin_Continuous_Single:
      return MemberRectangle(false);
    case ParentTypes::Purlin_Double:
    case ParentTypes::Purlin_Continuous_Double:
      return MemberRectangle(true);
    default:
      return 0;
  }
}

float clsBuildingDimensions::Wall_SideDiagonal_Default() const {
  return WallDiagonalDefault();
}
float clsBuildingDimensions::Wall_GableDiagonal_Default() const {
  return WallDiagonalDefault();
}
float clsBuildingDimensions::Parapet_SideDiagonal_Default() const {
  return ParapetDiagonalDefault();
}
float clsBuildingDimensions::Parapet_GableDiagonal_Default() const {
  return ParapetDiagonalDefault();
}

}  // namespace orve
