// The diagonal of the rectangle that a member loads.
#pragma once

namespace orve {

/// Diagonal of a rectangle in metres, worked out in 64 bits and rounded to three decimal places, halves away
/// from zero, then narrowed to 32 bits. Errors: 6 if it doesn't fit.
float MemberDiagonal(double side1, double side2);

}  // namespace orve
