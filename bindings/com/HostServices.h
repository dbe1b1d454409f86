// The services of the host as Windows gives them.
#pragma once

namespace orve::com {

/// Message box, file dialogs, cursor, pending messages, the folder of the library's own file and the system's
/// directory.
void SupplyHostServices();

}  // namespace orve::com
