// A case worked out, and what differs between two of them.
#pragma once

#include <iosfwd>

#include "JsonText.h"
#include "StoredKeys.h"

namespace windcase {

/// The values of some inputs of the open case; empty where the case doesn't have one.
std::vector<InputText> ReadInputs(OpenCase& windCase, const std::vector<InputKey>& keys);

/// The inputs and loads of the open case.
CaseRecord RecordOf(OpenCase& windCase, const std::vector<InputKey>& keys);

/// Prints which inputs differ and which loads moved, by how much; true if anything differs.
bool PrintDifferences(std::ostream& out, const CaseRecord& a, const CaseRecord& b);

}  // namespace windcase
