// How a let stores a changed value and marks the case dirty.
#pragma once

#include "common/Differs.h"
#include "core/basBS6399_2.h"
#include "core/clsCurrentCase.h"

namespace orve {

/// Sets `IsDirty` of the root object, which ends the blank state and raises `DirtyUpdated`.
inline void MarkDirty() {
  RequireCurrentCase().IsDirty(true);
}

/// Stores a value that differs and marks the case dirty; false if the value was there already. A handler of
/// `DirtyUpdated` may let go of the object that holds the field.
template <class Field, class Value>
bool StoreAndMarkDirty(Field& field, const Value& value) {
  if (!Differs(field, value)) return false;
  field = value;
  MarkDirty();
  return true;
}

}  // namespace orve
