// Written by orve_generate from the description of the object model; don't edit it by hand.
#include "Records.h"

using namespace orve::c;

orve_error orve_clsWindCaseList_get_Index(orve_clsWindCaseList object, int32_t* result) {
  const orve::LibraryFloatState state;
  try {
    RequireResult(result);
    const auto self = ObjectOf<orve::clsWindCaseList>(object);
    Give(result, self->Index());
    return Succeeded();
  } catch (...) {
    return Failed();
  }
}

orve_error orve_clsWindCaseList_let_Index(orve_clsWindCaseList object, int32_t value) {
  const orve::LibraryFloatState state;
  try {
    const auto self = ObjectOf<orve::clsWindCaseList>(object);
    self->Index(value);
    return Succeeded();
  } catch (...) {
    return Failed();
  }
}

orve_error orve_clsWindCaseList_get_Count(orve_clsWindCaseList object, int32_t* result) {
  const orve::LibraryFloatState state;
  try {
    RequireResult(result);
    const auto self = ObjectOf<orve::clsWindCaseList>(object);
    Give(result, self->Count());
    return Succeeded();
  } catch (...) {
    return Failed();
  }
}

orve_error orve_clsWindCaseList_get_MaxCount(orve_clsWindCaseList object, int32_t* result) {
  const orve::LibraryFloatState state;
  try {
    RequireResult(result);
    const auto self = ObjectOf<orve::clsWindCaseList>(object);
    Give(result, self->MaxCount());
    return Succeeded();
  } catch (...) {
    return Failed();
  }
}

orve_error orve_clsWindCaseList_let_MaxCount(orve_clsWindCaseList object, int32_t value) {
  const orve::LibraryFloatState state;
  try {
    const auto self = ObjectOf<orve::clsWindCaseList>(object);
    self->MaxCount(value);
    return Succeeded();
  } catch (...) {
    return Failed();
  }
}

orve_error orve_clsWindCaseList_get_Location(orve_clsWindCaseList object, int32_t Index, char** result) {
  const orve::LibraryFloatState state;
  try {
    RequireResult(result);
    const auto self = ObjectOf<orve::clsWindCaseList>(object);
    Give(result, self->Location(Index));
    return Succeeded();
  } catch (...) {
    return Failed();
  }
}

orve_error orve_clsWindCaseList_get_LocationCorrect(orve_clsWindCaseList object, int32_t Index, bool* result) {
  const orve::LibraryFloatState state;
  try {
    RequireResult(result);
    const auto self = ObjectOf<orve::clsWindCaseList>(object);
    Give(result, self->LocationCorrect(Index));
    return Succeeded();
  } catch (...) {
    return Failed();
  }
}

orve_error orve_clsWindCaseList_get_Description(orve_clsWindCaseList object, int32_t Index, char** result) {
  const orve::LibraryFloatState state;
  try {
    RequireResult(result);
    const auto self = ObjectOf<orve::clsWindCaseList>(object);
    Give(result, self->Description(Index));
    return Succeeded();
  } catch (...) {
    return Failed();
  }
}

orve_error orve_clsWindCaseList_get_Created(orve_clsWindCaseList object, int32_t Index, double* result) {
  const orve::LibraryFloatState state;
  try {
    RequireResult(result);
    const auto self = ObjectOf<orve::clsWindCaseList>(object);
    Give(result, self->Created(Index));
    return Succeeded();
  } catch (...) {
    return Failed();
  }
}

orve_error orve_clsWindCaseList_get_Modified(orve_clsWindCaseList object, int32_t Index, double* result) {
  const orve::LibraryFloatState state;
  try {
    RequireResult(result);
    const auto self = ObjectOf<orve::clsWindCaseList>(object);
    Give(result, self->Modified(Index));
    return Succeeded();
  } catch (...) {
    return Failed();
  }
}
