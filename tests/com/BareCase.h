// One case that the COM test programs share: a hall with cantilevers at a bare site.
#pragma once

#include "Checks.h"
#include "LateBound.h"

namespace orve::test {

void SetBareCase(const Late& root);
/// Its loads by the built-in engines' figures, wherever they are served from.
void CheckBareCase(const Late& root, Checks& checks);

}  // namespace orve::test
