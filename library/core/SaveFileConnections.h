// The handlers of the save-file manager's events.
#pragma once

#include "common/Event.h"
#include "core/clsCurrentCase.h"

namespace orve {

/// Keeps the root object's handlers connected.
struct clsCurrentCase::SaveFileConnections {
  Connection dirtyUpdated;
  Connection fileNameUpdated;
  Connection newFile;
  Connection openFile;
  Connection saveFile;
};

}  // namespace orve
