// The third scene of the demo: the case is saved, opened again, and gives the same sheet.
#pragma once

#include <filesystem>
#include <ostream>

namespace orve {
class clsCurrentCase;
}

namespace examples {

/// Describes the portal building in a new case, saves it in a folder, opens it again and compares the whole
/// sheet before and after. True if not a character differs.
bool PrintStorageScene(orve::clsCurrentCase& windCase, const std::filesystem::path& folder,
                       std::ostream& out);

}  // namespace examples
