// Written by orve_generate from the description of the object model; don't edit it by hand.
#include "Records.h"

using namespace orve::c;

orve_error orve_clsCantileverWindLoads_create(orve_clsCantileverWindLoads* result) {
  const orve::LibraryFloatState state;
  try {
    RequireResult(result);
    GiveObject(result, Create<orve::clsCantileverWindLoads>());
    return Succeeded();
  } catch (...) {
    return Failed();
  }
}

orve_error orve_clsCantileverWindLoads_get_ExternalPressures(orve_clsCantileverWindLoads object, orve_ExternalPressure* result) {
  const orve::LibraryFloatState state;
  try {
    RequireResult(result);
    const auto self = ObjectOf<orve::clsCantileverWindLoads>(object);
    Give(result, self->ExternalPressures());
    return Succeeded();
  } catch (...) {
    return Failed();
  }
}

orve_error orve_clsCantileverWindLoads_let_ExternalPressures(orve_clsCantileverWindLoads object, const orve_ExternalPressure* value) {
  const orve::LibraryFloatState state;
  try {
    const auto self = ObjectOf<orve::clsCantileverWindLoads>(object);
    self->ExternalPressures(FromC(RecordArgument(value, "value")));
    return Succeeded();
  } catch (...) {
    return Failed();
  }
}
