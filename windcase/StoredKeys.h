// The keys that a case file holds, as the library itself writes them.
#pragma once

#include <string>
#include <vector>

#include "Inputs.h"
#include "OpenCase.h"

namespace windcase {

/// The keys of the inputs of the open case, section by section: those of the file that a save would write,
/// without dates, log and what a newer program added. The case is saved in the folder for that, which becomes
/// its location.
std::vector<InputKey> StoredKeys(OpenCase& windCase, const std::filesystem::path& folder);

}  // namespace windcase
