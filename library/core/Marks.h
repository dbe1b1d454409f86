// How a let stores a changed value and marks the case dirty.
#pragma once

#include <utility>

#include "common/Differs.h"
#include "core/OwedSteps.h"
#include "core/basBS6399_2.h"
#include "core/clsCurrentCase.h"

namespace orve {

/// Sets `IsDirty` of the root object, which ends the blank state and raises `DirtyUpdated`.
inline void MarkDirty() {
  RequireCurrentCase().IsDirty(true);
}

/// Stores a value that differs, marks the case dirty and takes the steps that the let owes besides. A handler
/// of `DirtyUpdated` may let go of the object that holds the field.
template <class Field, class Value, class... Steps>
void StoreAndMarkDirty(Field& field, const Value& value, Steps&&... owed) {
  if (!Differs(field, value)) return;
  field = value;
  RunAll(MarkDirty, std::forward<Steps>(owed)...);
}

}  // namespace orve
