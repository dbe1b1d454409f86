// Written by orve_generate from the description of the object model; don't edit it by hand.
#include "Records.h"

using namespace orve::c;

orve_error orve_clsOverallAppliedLoads_GetCantileverZones(orve_clsOverallAppliedLoads object, orve_CantileverZones** rows, size_t* count) {
  const orve::LibraryFloatState state;
  try {
    RequireResult(rows);
    RequireResult(count);
    const auto self = ObjectOf<orve::clsOverallAppliedLoads>(object);
    GiveRows(rows, count, self->GetCantileverZones());
    return Succeeded();
  } catch (...) {
    return Failed();
  }
}

orve_error orve_clsOverallAppliedLoads_GetCantileverResults(orve_clsOverallAppliedLoads object, orve_CantileverResults** rows, size_t* count) {
  const orve::LibraryFloatState state;
  try {
    RequireResult(rows);
    RequireResult(count);
    const auto self = ObjectOf<orve::clsOverallAppliedLoads>(object);
    GiveRows(rows, count, self->GetCantileverResults());
    return Succeeded();
  } catch (...) {
    return Failed();
  }
}

orve_error orve_clsOverallAppliedLoads_get_BuildingArea(orve_clsOverallAppliedLoads object, orve_BuildingAreas* result) {
  const orve::LibraryFloatState state;
  try {
    RequireResult(result);
    const auto self = ObjectOf<orve::clsOverallAppliedLoads>(object);
    Give(result, self->BuildingArea());
    return Succeeded();
  } catch (...) {
    return Failed();
  }
}

orve_error orve_clsOverallAppliedLoads_let_BuildingArea(orve_clsOverallAppliedLoads object, orve_BuildingAreas value) {
  const orve::LibraryFloatState state;
  try {
    const auto self = ObjectOf<orve::clsOverallAppliedLoads>(object);
    self->BuildingArea(static_cast<orve::BuildingAreas>(value));
    return Succeeded();
  } catch (...) {
    return Failed();
  }
}

orve_error orve_clsOverallAppliedLoads_get_Face(orve_clsOverallAppliedLoads object, orve_Faces* result) {
  const orve::LibraryFloatState state;
  try {
    RequireResult(result);
    const auto self = ObjectOf<orve::clsOverallAppliedLoads>(object);
    Give(result, self->Face());
    return Succeeded();
  } catch (...) {
    return Failed();
  }
}

orve_error orve_clsOverallAppliedLoads_let_Face(orve_clsOverallAppliedLoads object, orve_Faces value) {
  const orve::LibraryFloatState state;
  try {
    const auto self = ObjectOf<orve::clsOverallAppliedLoads>(object);
    self->Face(static_cast<orve::Faces>(value));
    return Succeeded();
  } catch (...) {
    return Failed();
  }
}

orve_error orve_clsOverallAppliedLoads_get_ZoneIndex(orve_clsOverallAppliedLoads object, int16_t* result) {
  const orve::LibraryFloatState state;
  try {
    RequireResult(result);
    const auto self = ObjectOf<orve::clsOverallAppliedLoads>(object);
    Give(result, self->ZoneIndex());
    return Succeeded();
  } catch (...) {
    return Failed();
  }
}

orve_error orve_clsOverallAppliedLoads_let_ZoneIndex(orve_clsOverallAppliedLoads object, int16_t value) {
  const orve::LibraryFloatState state;
  try {
    const auto self = ObjectOf<orve::clsOverallAppliedLoads>(object);
    self->ZoneIndex(value);
    return Succeeded();
  } catch (...) {
    return Failed();
  }
}

orve_error orve_clsOverallAppliedLoads_get_ZoneIndexFrom(orve_clsOverallAppliedLoads object, orve_BuildingAreas BuildingArea, orve_Faces Face, int16_t* result) {
  const orve::LibraryFloatState state;
  try {
    RequireResult(result);
    const auto self = ObjectOf<orve::clsOverallAppliedLoads>(object);
    Give(result, self->ZoneIndexFrom(static_cast<orve::BuildingAreas>(BuildingArea), static_cast<orve::Faces>(Face)));
    return Succeeded();
  } catch (...) {
    return Failed();
  }
}

orve_error orve_clsOverallAppliedLoads_get_ZoneIndexTo(orve_clsOverallAppliedLoads object, orve_BuildingAreas BuildingArea, orve_Faces Face, int16_t* result) {
  const orve::LibraryFloatState state;
  try {
    RequireResult(result);
    const auto self = ObjectOf<orve::clsOverallAppliedLoads>(object);
    Give(result, self->ZoneIndexTo(static_cast<orve::BuildingAreas>(BuildingArea), static_cast<orve::Faces>(Face)));
    return Succeeded();
  } catch (...) {
    return Failed();
  }
}

orve_error orve_clsOverallAppliedLoads_get_Hybrid_ZoneDescription(orve_clsOverallAppliedLoads object, orve_BuildingAreas BuildingArea, orve_Faces Face, int16_t ZoneIndex, char** result) {
  const orve::LibraryFloatState state;
  try {
    RequireResult(result);
    const auto self = ObjectOf<orve::clsOverallAppliedLoads>(object);
    Give(result, self->Hybrid_ZoneDescription(static_cast<orve::BuildingAreas>(BuildingArea), static_cast<orve::Faces>(Face), ZoneIndex));
    return Succeeded();
  } catch (...) {
    return Failed();
  }
}

orve_error orve_clsOverallAppliedLoads_get_Hybrid_ZoneDimensions(orve_clsOverallAppliedLoads object, orve_BuildingAreas BuildingArea, orve_Faces Face, int16_t ZoneIndex, char** result) {
  const orve::LibraryFloatState state;
  try {
    RequireResult(result);
    const auto self = ObjectOf<orve::clsOverallAppliedLoads>(object);
    Give(result, self->Hybrid_ZoneDimensions(static_cast<orve::BuildingAreas>(BuildingArea), static_cast<orve::Faces>(Face), ZoneIndex));
    return Succeeded();
  } catch (...) {
    return Failed();
  }
}

orve_error orve_clsOverallAppliedLoads_get_Hybrid_ExternalAppliedLoads(orve_clsOverallAppliedLoads object, orve_BuildingAreas BuildingArea, orve_Faces Face, int16_t ZoneIndex, char** result) {
  const orve::LibraryFloatState state;
  try {
    RequireResult(result);
    const auto self = ObjectOf<orve::clsOverallAppliedLoads>(object);
    Give(result, self->Hybrid_ExternalAppliedLoads(static_cast<orve::BuildingAreas>(BuildingArea), static_cast<orve::Faces>(Face), ZoneIndex));
    return Succeeded();
  } catch (...) {
    return Failed();
  }
}

orve_error orve_clsOverallAppliedLoads_get_Hybrid_InternalAppliedLoads(orve_clsOverallAppliedLoads object, orve_BuildingAreas BuildingArea, orve_Faces Face, int16_t ZoneIndex, char** result) {
  const orve::LibraryFloatState state;
  try {
    RequireResult(result);
    const auto self = ObjectOf<orve::clsOverallAppliedLoads>(object);
    Give(result, self->Hybrid_InternalAppliedLoads(static_cast<orve::BuildingAreas>(BuildingArea), static_cast<orve::Faces>(Face), ZoneIndex));
    return Succeeded();
  } catch (...) {
    return Failed();
  }
}

orve_error orve_clsOverallAppliedLoads_get_Hybrid_OverallAppliedLoad_Pressure(orve_clsOverallAppliedLoads object, orve_BuildingAreas BuildingArea, orve_Faces Face, int16_t ZoneIndex, float* result) {
  const orve::LibraryFloatState state;
  try {
    RequireResult(result);
    const auto self = ObjectOf<orve::clsOverallAppliedLoads>(object);
    Give(result, self->Hybrid_OverallAppliedLoad_Pressure(static_cast<orve::BuildingAreas>(BuildingArea), static_cast<orve::Faces>(Face), ZoneIndex));
    return Succeeded();
  } catch (...) {
    return Failed();
  }
}

orve_error orve_clsOverallAppliedLoads_get_Hybrid_OverallAppliedLoad_Suction(orve_clsOverallAppliedLoads object, orve_BuildingAreas BuildingArea, orve_Faces Face, int16_t ZoneIndex, float* result) {
  const orve::LibraryFloatState state;
  try {
    RequireResult(result);
    const auto self = ObjectOf<orve::clsOverallAppliedLoads>(object);
    Give(result, self->Hybrid_OverallAppliedLoad_Suction(static_cast<orve::BuildingAreas>(BuildingArea), static_cast<orve::Faces>(Face), ZoneIndex));
    return Succeeded();
  } catch (...) {
    return Failed();
  }
}

orve_error orve_clsOverallAppliedLoads_get_Hybrid_OverallAppliedLoads(orve_clsOverallAppliedLoads object, orve_BuildingAreas BuildingArea, orve_Faces Face, int16_t ZoneIndex, char** result) {
  const orve::LibraryFloatState state;
  try {
    RequireResult(result);
    const auto self = ObjectOf<orve::clsOverallAppliedLoads>(object);
    Give(result, self->Hybrid_OverallAppliedLoads(static_cast<orve::BuildingAreas>(BuildingArea), static_cast<orve::Faces>(Face), ZoneIndex));
    return Succeeded();
  } catch (...) {
    return Failed();
  }
}

orve_error orve_clsOverallAppliedLoads_get_SelectedFace(orve_clsOverallAppliedLoads object, orve_Faces* result) {
  const orve::LibraryFloatState state;
  try {
    RequireResult(result);
    const auto self = ObjectOf<orve::clsOverallAppliedLoads>(object);
    Give(result, self->SelectedFace());
    return Succeeded();
  } catch (...) {
    return Failed();
  }
}

orve_error orve_clsOverallAppliedLoads_let_SelectedFace(orve_clsOverallAppliedLoads object, orve_Faces value) {
  const orve::LibraryFloatState state;
  try {
    const auto self = ObjectOf<orve::clsOverallAppliedLoads>(object);
    self->SelectedFace(static_cast<orve::Faces>(value));
    return Succeeded();
  } catch (...) {
    return Failed();
  }
}

orve_error orve_clsOverallAppliedLoads_get_SelectedLoadType(orve_clsOverallAppliedLoads object, orve_BuildingAreas BuildingArea, orve_Faces Face, orve_SelectedLoadTypes* result) {
  const orve::LibraryFloatState state;
  try {
    RequireResult(result);
    const auto self = ObjectOf<orve::clsOverallAppliedLoads>(object);
    Give(result, self->SelectedLoadType(static_cast<orve::BuildingAreas>(BuildingArea), static_cast<orve::Faces>(Face)));
    return Succeeded();
  } catch (...) {
    return Failed();
  }
}

orve_error orve_clsOverallAppliedLoads_let_SelectedLoadType(orve_clsOverallAppliedLoads object, orve_BuildingAreas BuildingArea, orve_Faces Face, orve_SelectedLoadTypes value) {
  const orve::LibraryFloatState state;
  try {
    const auto self = ObjectOf<orve::clsOverallAppliedLoads>(object);
    self->SelectedLoadType(static_cast<orve::BuildingAreas>(BuildingArea), static_cast<orve::Faces>(Face), static_cast<orve::SelectedLoadTypes>(value));
    return Succeeded();
  } catch (...) {
    return Failed();
  }
}

orve_error orve_clsOverallAppliedLoads_get_SelectedLoadValues(orve_clsOverallAppliedLoads object, orve_BuildingAreas BuildingArea, orve_Faces Face, char** result) {
  const orve::LibraryFloatState state;
  try {
    RequireResult(result);
    const auto self = ObjectOf<orve::clsOverallAppliedLoads>(object);
    Give(result, self->SelectedLoadValues(static_cast<orve::BuildingAreas>(BuildingArea), static_cast<orve::Faces>(Face)));
    return Succeeded();
  } catch (...) {
    return Failed();
  }
}

orve_error orve_clsOverallAppliedLoads_get_SelectedLoadValues_External(orve_clsOverallAppliedLoads object, orve_BuildingAreas BuildingArea, orve_Faces Face, char** result) {
  const orve::LibraryFloatState state;
  try {
    RequireResult(result);
    const auto self = ObjectOf<orve::clsOverallAppliedLoads>(object);
    Give(result, self->SelectedLoadValues_External(static_cast<orve::BuildingAreas>(BuildingArea), static_cast<orve::Faces>(Face)));
    return Succeeded();
  } catch (...) {
    return Failed();
  }
}

orve_error orve_clsOverallAppliedLoads_get_SelectedLoadValues_Internal(orve_clsOverallAppliedLoads object, orve_BuildingAreas BuildingArea, orve_Faces Face, char** result) {
  const orve::LibraryFloatState state;
  try {
    RequireResult(result);
    const auto self = ObjectOf<orve::clsOverallAppliedLoads>(object);
    Give(result, self->SelectedLoadValues_Internal(static_cast<orve::BuildingAreas>(BuildingArea), static_cast<orve::Faces>(Face)));
    return Succeeded();
  } catch (...) {
    return Failed();
  }
}

orve_error orve_clsOverallAppliedLoads_get_SteppedWind_Load_1(orve_clsOverallAppliedLoads object, orve_BuildingAreas BuildingArea, orve_Faces Face, float* result) {
  const orve::LibraryFloatState state;
  try {
    RequireResult(result);
    const auto self = ObjectOf<orve::clsOverallAppliedLoads>(object);
    Give(result, self->SteppedWind_Load_1(static_cast<orve::BuildingAreas>(BuildingArea), static_cast<orve::Faces>(Face)));
    return Succeeded();
  } catch (...) {
    return Failed();
  }
}

orve_error orve_clsOverallAppliedLoads_let_SteppedWind_Load_1(orve_clsOverallAppliedLoads object, orve_BuildingAreas BuildingArea, orve_Faces Face, float value) {
  const orve::LibraryFloatState state;
  try {
    const auto self = ObjectOf<orve::clsOverallAppliedLoads>(object);
    self->SteppedWind_Load_1(static_cast<orve::BuildingAreas>(BuildingArea), static_cast<orve::Faces>(Face), value);
    return Succeeded();
  } catch (...) {
    return Failed();
  }
}

orve_error orve_clsOverallAppliedLoads_get_SteppedWind_Load_2(orve_clsOverallAppliedLoads object, orve_BuildingAreas BuildingArea, orve_Faces Face, float* result) {
  const orve::LibraryFloatState state;
  try {
    RequireResult(result);
    const auto self = ObjectOf<orve::clsOverallAppliedLoads>(object);
    Give(result, self->SteppedWind_Load_2(static_cast<orve::BuildingAreas>(BuildingArea), static_cast<orve::Faces>(Face)));
    return Succeeded();
  } catch (...) {
    return Failed();
  }
}

orve_error orve_clsOverallAppliedLoads_let_SteppedWind_Load_2(orve_clsOverallAppliedLoads object, orve_BuildingAreas BuildingArea, orve_Faces Face, float value) {
  const orve::LibraryFloatState state;
  try {
    const auto self = ObjectOf<orve::clsOverallAppliedLoads>(object);
    self->SteppedWind_Load_2(static_cast<orve::BuildingAreas>(BuildingArea), static_cast<orve::Faces>(Face), value);
    return Succeeded();
  } catch (...) {
    return Failed();
  }
}

orve_error orve_clsOverallAppliedLoads_get_SteppedWind_Load_3(orve_clsOverallAppliedLoads object, orve_BuildingAreas BuildingArea, orve_Faces Face, float* result) {
  const orve::LibraryFloatState state;
  try {
    RequireResult(result);
    const auto self = ObjectOf<orve::clsOverallAppliedLoads>(object);
    Give(result, self->SteppedWind_Load_3(static_cast<orve::BuildingAreas>(BuildingArea), static_cast<orve::Faces>(Face)));
    return Succeeded();
  } catch (...) {
    return Failed();
  }
}

orve_error orve_clsOverallAppliedLoads_let_SteppedWind_Load_3(orve_clsOverallAppliedLoads object, orve_BuildingAreas BuildingArea, orve_Faces Face, float value) {
  const orve::LibraryFloatState state;
  try {
    const auto self = ObjectOf<orve::clsOverallAppliedLoads>(object);
    self->SteppedWind_Load_3(static_cast<orve::BuildingAreas>(BuildingArea), static_cast<orve::Faces>(Face), value);
    return Succeeded();
  } catch (...) {
    return Failed();
  }
}

orve_error orve_clsOverallAppliedLoads_get_SteppedWind_Distance_1(orve_clsOverallAppliedLoads object, orve_BuildingAreas BuildingArea, orve_Faces Face, float* result) {
  const orve::LibraryFloatState state;
  try {
    RequireResult(result);
    const auto self = ObjectOf<orve::clsOverallAppliedLoads>(object);
    Give(result, self->SteppedWind_Distance_1(static_cast<orve::BuildingAreas>(BuildingArea), static_cast<orve::Faces>(Face)));
    return Succeeded();
  } catch (...) {
    return Failed();
  }
}

orve_error orve_clsOverallAppliedLoads_let_SteppedWind_Distance_1(orve_clsOverallAppliedLoads object, orve_BuildingAreas BuildingArea, orve_Faces Face, float value) {
  const orve::LibraryFloatState state;
  try {
    const auto self = ObjectOf<orve::clsOverallAppliedLoads>(object);
    self->SteppedWind_Distance_1(static_cast<orve::BuildingAreas>(BuildingArea), static_cast<orve::Faces>(Face), value);
    return Succeeded();
  } catch (...) {
    return Failed();
  }
}

orve_error orve_clsOverallAppliedLoads_get_SteppedWind_Distance_2(orve_clsOverallAppliedLoads object, orve_BuildingAreas BuildingArea, orve_Faces Face, float* result) {
  const orve::LibraryFloatState state;
  try {
    RequireResult(result);
    const auto self = ObjectOf<orve::clsOverallAppliedLoads>(object);
    Give(result, self->SteppedWind_Distance_2(static_cast<orve::BuildingAreas>(BuildingArea), static_cast<orve::Faces>(Face)));
    return Succeeded();
  } catch (...) {
    return Failed();
  }
}

orve_error orve_clsOverallAppliedLoads_let_SteppedWind_Distance_2(orve_clsOverallAppliedLoads object, orve_BuildingAreas BuildingArea, orve_Faces Face, float value) {
  const orve::LibraryFloatState state;
  try {
    const auto self = ObjectOf<orve::clsOverallAppliedLoads>(object);
    self->SteppedWind_Distance_2(static_cast<orve::BuildingAreas>(BuildingArea), static_cast<orve::Faces>(Face), value);
    return Succeeded();
  } catch (...) {
    return Failed();
  }
}

orve_error orve_clsOverallAppliedLoads_get_SteppedWind_Distance_3(orve_clsOverallAppliedLoads object, orve_BuildingAreas BuildingArea, orve_Faces Face, float* result) {
  const orve::LibraryFloatState state;
  try {
    RequireResult(result);
    const auto self = ObjectOf<orve::clsOverallAppliedLoads>(object);
    Give(result, self->SteppedWind_Distance_3(static_cast<orve::BuildingAreas>(BuildingArea), static_cast<orve::Faces>(Face)));
    return Succeeded();
  } catch (...) {
    return Failed();
  }
}

orve_error orve_clsOverallAppliedLoads_let_SteppedWind_Distance_3(orve_clsOverallAppliedLoads object, orve_BuildingAreas BuildingArea, orve_Faces Face, float value) {
  const orve::LibraryFloatState state;
  try {
    const auto self = ObjectOf<orve::clsOverallAppliedLoads>(object);
    self->SteppedWind_Distance_3(static_cast<orve::BuildingAreas>(BuildingArea), static_cast<orve::Faces>(Face), value);
    return Succeeded();
  } catch (...) {
    return Failed();
  }
}

orve_error orve_clsOverallAppliedLoads_get_SteppedWind_Span(orve_clsOverallAppliedLoads object, orve_BuildingAreas BuildingArea, orve_Faces Face, float* result) {
  const orve::LibraryFloatState state;
  try {
    RequireResult(result);
    const auto self = ObjectOf<orve::clsOverallAppliedLoads>(object);
    Give(result, self->SteppedWind_Span(static_cast<orve::BuildingAreas>(BuildingArea), static_cast<orve::Faces>(Face)));
    return Succeeded();
  } catch (...) {
    return Failed();
  }
}

orve_error orve_clsOverallAppliedLoads_let_SteppedWind_Span(orve_clsOverallAppliedLoads object, orve_BuildingAreas BuildingArea, orve_Faces Face, float value) {
  const orve::LibraryFloatState state;
  try {
    const auto self = ObjectOf<orve::clsOverallAppliedLoads>(object);
    self->SteppedWind_Span(static_cast<orve::BuildingAreas>(BuildingArea), static_cast<orve::Faces>(Face), value);
    return Succeeded();
  } catch (...) {
    return Failed();
  }
}

orve_error orve_clsOverallAppliedLoads_get_SteppedWind_Load(orve_clsOverallAppliedLoads object, orve_BuildingAreas BuildingArea, orve_Faces Face, float* result) {
  const orve::LibraryFloatState state;
  try {
    RequireResult(result);
    const auto self = ObjectOf<orve::clsOverallAppliedLoads>(object);
    Give(result, self->SteppedWind_Load(static_cast<orve::BuildingAreas>(BuildingArea), static_cast<orve::Faces>(Face)));
    return Succeeded();
  } catch (...) {
    return Failed();
  }
}

orve_error orve_clsOverallAppliedLoads_get_SteppedWind_Load_External(orve_clsOverallAppliedLoads object, orve_BuildingAreas BuildingArea, orve_Faces Face, float* result) {
  const orve::LibraryFloatState state;
  try {
    RequireResult(result);
    const auto self = ObjectOf<orve::clsOverallAppliedLoads>(object);
    Give(result, self->SteppedWind_Load_External(static_cast<orve::BuildingAreas>(BuildingArea), static_cast<orve::Faces>(Face)));
    return Succeeded();
  } catch (...) {
    return Failed();
  }
}

orve_error orve_clsOverallAppliedLoads_get_SteppedWind_Load_Internal(orve_clsOverallAppliedLoads object, orve_BuildingAreas BuildingArea, orve_Faces Face, float* result) {
  const orve::LibraryFloatState state;
  try {
    RequireResult(result);
    const auto self = ObjectOf<orve::clsOverallAppliedLoads>(object);
    Give(result, self->SteppedWind_Load_Internal(static_cast<orve::BuildingAreas>(BuildingArea), static_cast<orve::Faces>(Face)));
    return Succeeded();
  } catch (...) {
    return Failed();
  }
}

orve_error orve_clsOverallAppliedLoads_get_CantileverZoneIndexFrom(orve_clsOverallAppliedLoads object, int16_t* result) {
  const orve::LibraryFloatState state;
  try {
    RequireResult(result);
    const auto self = ObjectOf<orve::clsOverallAppliedLoads>(object);
    Give(result, self->CantileverZoneIndexFrom());
    return Succeeded();
  } catch (...) {
    return Failed();
  }
}

orve_error orve_clsOverallAppliedLoads_let_CantileverZoneIndexFrom(orve_clsOverallAppliedLoads object, int16_t value) {
  const orve::LibraryFloatState state;
  try {
    const auto self = ObjectOf<orve::clsOverallAppliedLoads>(object);
    self->CantileverZoneIndexFrom(value);
    return Succeeded();
  } catch (...) {
    return Failed();
  }
}

orve_error orve_clsOverallAppliedLoads_get_CantileverZoneIndexTo(orve_clsOverallAppliedLoads object, int16_t* result) {
  const orve::LibraryFloatState state;
  try {
    RequireResult(result);
    const auto self = ObjectOf<orve::clsOverallAppliedLoads>(object);
    Give(result, self->CantileverZoneIndexTo());
    return Succeeded();
  } catch (...) {
    return Failed();
  }
}

orve_error orve_clsOverallAppliedLoads_let_CantileverZoneIndexTo(orve_clsOverallAppliedLoads object, int16_t value) {
  const orve::LibraryFloatState state;
  try {
    const auto self = ObjectOf<orve::clsOverallAppliedLoads>(object);
    self->CantileverZoneIndexTo(value);
    return Succeeded();
  } catch (...) {
    return Failed();
  }
}

orve_error orve_clsOverallAppliedLoads_get_CantileverZoneDescription(orve_clsOverallAppliedLoads object, int16_t CantileverZoneIndex, char** result) {
  const orve::LibraryFloatState state;
  try {
    RequireResult(result);
    const auto self = ObjectOf<orve::clsOverallAppliedLoads>(object);
    Give(result, self->CantileverZoneDescription(CantileverZoneIndex));
    return Succeeded();
  } catch (...) {
    return Failed();
  }
}

orve_error orve_clsOverallAppliedLoads_get_CantileverZoneDimensions(orve_clsOverallAppliedLoads object, int16_t CantileverZoneIndex, char** result) {
  const orve::LibraryFloatState state;
  try {
    RequireResult(result);
    const auto self = ObjectOf<orve::clsOverallAppliedLoads>(object);
    Give(result, self->CantileverZoneDimensions(CantileverZoneIndex));
    return Succeeded();
  } catch (...) {
    return Failed();
  }
}

orve_error orve_clsOverallAppliedLoads_get_Cantilever_ExternalAppliedLoads(orve_clsOverallAppliedLoads object, int16_t CantileverZoneIndex, char** result) {
  const orve::LibraryFloatState state;
  try {
    RequireResult(result);
    const auto self = ObjectOf<orve::clsOverallAppliedLoads>(object);
    Give(result, self->Cantilever_ExternalAppliedLoads(CantileverZoneIndex));
    return Succeeded();
  } catch (...) {
    return Failed();
  }
}

orve_error orve_clsOverallAppliedLoads_get_Cantilever_InternalAppliedLoads(orve_clsOverallAppliedLoads object, int16_t CantileverZoneIndex, char** result) {
  const orve::LibraryFloatState state;
  try {
    RequireResult(result);
    const auto self = ObjectOf<orve::clsOverallAppliedLoads>(object);
    Give(result, self->Cantilever_InternalAppliedLoads(CantileverZoneIndex));
    return Succeeded();
  } catch (...) {
    return Failed();
  }
}

orve_error orve_clsOverallAppliedLoads_get_Cantilever_OverallAppliedLoads(orve_clsOverallAppliedLoads object, int16_t CantileverZoneIndex, char** result) {
  const orve::LibraryFloatState state;
  try {
    RequireResult(result);
    const auto self = ObjectOf<orve::clsOverallAppliedLoads>(object);
    Give(result, self->Cantilever_OverallAppliedLoads(CantileverZoneIndex));
    return Succeeded();
  } catch (...) {
    return Failed();
  }
}

orve_error orve_clsOverallAppliedLoads_ExternalBayLoad(orve_clsOverallAppliedLoads object, float Span_L1, float Span_L2, float Span_L3, float WindLoad_W1, float WindLoad_W2, float WindLoad_W3, float Step_Z1, float Step_Z2, float* result) {
  const orve::LibraryFloatState state;
  try {
    RequireResult(result);
    const auto self = ObjectOf<orve::clsOverallAppliedLoads>(object);
    Give(result, self->ExternalBayLoad(Span_L1, Span_L2, Span_L3, WindLoad_W1, WindLoad_W2, WindLoad_W3, Step_Z1, Step_Z2));
    return Succeeded();
  } catch (...) {
    return Failed();
  }
}

orve_error orve_clsOverallAppliedLoads_InternalBayLoad(orve_clsOverallAppliedLoads object, float Span_L1, float Span_L2, float Span_L3, float WindLoad_W1, float WindLoad_W2, float WindLoad_W3, float Step_Z1, float Step_Z2, float* result) {
  const orve::LibraryFloatState state;
  try {
    RequireResult(result);
    const auto self = ObjectOf<orve::clsOverallAppliedLoads>(object);
    Give(result, self->InternalBayLoad(Span_L1, Span_L2, Span_L3, WindLoad_W1, WindLoad_W2, WindLoad_W3, Step_Z1, Step_Z2));
    return Succeeded();
  } catch (...) {
    return Failed();
  }
}

orve_error orve_clsOverallAppliedLoads_CantileverValues(orve_clsOverallAppliedLoads object, orve_BuildingAreas BuildingArea, orve_Faces Face, bool Results, bool* result) {
  const orve::LibraryFloatState state;
  try {
    RequireResult(result);
    const auto self = ObjectOf<orve::clsOverallAppliedLoads>(object);
    Give(result, self->CantileverValues(static_cast<orve::BuildingAreas>(BuildingArea), static_cast<orve::Faces>(Face), Results));
    return Succeeded();
  } catch (...) {
    return Failed();
  }
}

orve_error orve_clsOverallAppliedLoads_SelectedCantileverLoadValues(orve_clsOverallAppliedLoads object, orve_BuildingAreas BuildingArea, orve_Faces Face, char** result) {
  const orve::LibraryFloatState state;
  try {
    RequireResult(result);
    const auto self = ObjectOf<orve::clsOverallAppliedLoads>(object);
    Give(result, self->SelectedCantileverLoadValues(static_cast<orve::BuildingAreas>(BuildingArea), static_cast<orve::Faces>(Face)));
    return Succeeded();
  } catch (...) {
    return Failed();
  }
}

orve_error orve_clsOverallAppliedLoads_ResetCantileverResults(orve_clsOverallAppliedLoads object) {
  const orve::LibraryFloatState state;
  try {
    const auto self = ObjectOf<orve::clsOverallAppliedLoads>(object);
    self->ResetCantileverResults();
    return Succeeded();
  } catch (...) {
    return Failed();
  }
}

orve_error orve_clsOverallAppliedLoads_TrimCantileverResults(orve_clsOverallAppliedLoads object) {
  const orve::LibraryFloatState state;
  try {
    const auto self = ObjectOf<orve::clsOverallAppliedLoads>(object);
    self->TrimCantileverResults();
    return Succeeded();
  } catch (...) {
    return Failed();
  }
}

orve_error orve_clsOverallAppliedLoads_get_CantileverZoneWidthWarning(orve_clsOverallAppliedLoads object, orve_BuildingAreas BuildingArea, orve_Faces Face, bool* result) {
  const orve::LibraryFloatState state;
  try {
    RequireResult(result);
    const auto self = ObjectOf<orve::clsOverallAppliedLoads>(object);
    Give(result, self->CantileverZoneWidthWarning(static_cast<orve::BuildingAreas>(BuildingArea), static_cast<orve::Faces>(Face)));
    return Succeeded();
  } catch (...) {
    return Failed();
  }
}

orve_error orve_clsOverallAppliedLoads_get_ContinuousSteppedWind(orve_clsOverallAppliedLoads object, orve_BuildingAreas BuildingArea, orve_Faces Face, bool* result) {
  const orve::LibraryFloatState state;
  try {
    RequireResult(result);
    const auto self = ObjectOf<orve::clsOverallAppliedLoads>(object);
    Give(result, self->ContinuousSteppedWind(static_cast<orve::BuildingAreas>(BuildingArea), static_cast<orve::Faces>(Face)));
    return Succeeded();
  } catch (...) {
    return Failed();
  }
}

orve_error orve_clsOverallAppliedLoads_ZoneIndexFromSelectedLoadType(orve_clsOverallAppliedLoads object, orve_SelectedLoadTypes SelectedLoadType, orve_BuildingAreas BuildingArea, orve_Faces Face, int16_t* result) {
  const orve::LibraryFloatState state;
  try {
    RequireResult(result);
    const auto self = ObjectOf<orve::clsOverallAppliedLoads>(object);
    Give(result, self->ZoneIndexFromSelectedLoadType(static_cast<orve::SelectedLoadTypes>(SelectedLoadType), static_cast<orve::BuildingAreas>(BuildingArea), static_cast<orve::Faces>(Face)));
    return Succeeded();
  } catch (...) {
    return Failed();
  }
}

orve_error orve_clsOverallAppliedLoads_SelectedLoadTypeFromZoneIndex(orve_clsOverallAppliedLoads object, int16_t ZoneIndex, orve_BuildingAreas BuildingArea, orve_Faces Face, int16_t* result) {
  const orve::LibraryFloatState state;
  try {
    RequireResult(result);
    const auto self = ObjectOf<orve::clsOverallAppliedLoads>(object);
    Give(result, self->SelectedLoadTypeFromZoneIndex(ZoneIndex, static_cast<orve::BuildingAreas>(BuildingArea), static_cast<orve::Faces>(Face)));
    return Succeeded();
  } catch (...) {
    return Failed();
  }
}

orve_error orve_clsOverallAppliedLoads_SelectedLoadTypeFromZoneDescription(orve_clsOverallAppliedLoads object, const char* ZoneDescription, int16_t* result) {
  const orve::LibraryFloatState state;
  try {
    RequireResult(result);
    const auto self = ObjectOf<orve::clsOverallAppliedLoads>(object);
    Give(result, self->SelectedLoadTypeFromZoneDescription(TextArgument(ZoneDescription, "ZoneDescription")));
    return Succeeded();
  } catch (...) {
    return Failed();
  }
}

orve_error orve_clsOverallAppliedLoads_ZoneDescriptionFromSelectedLoadType(orve_clsOverallAppliedLoads object, orve_SelectedLoadTypes SelectedLoadType, char** result) {
  const orve::LibraryFloatState state;
  try {
    RequireResult(result);
    const auto self = ObjectOf<orve::clsOverallAppliedLoads>(object);
    Give(result, self->ZoneDescriptionFromSelectedLoadType(static_cast<orve::SelectedLoadTypes>(SelectedLoadType)));
    return Succeeded();
  } catch (...) {
    return Failed();
  }
}

orve_error orve_clsOverallAppliedLoads_ZoneIndexFromZoneDescription(orve_clsOverallAppliedLoads object, const char* ZoneDescription, orve_BuildingAreas BuildingArea, orve_Faces Face, int16_t* result) {
  const orve::LibraryFloatState state;
  try {
    RequireResult(result);
    const auto self = ObjectOf<orve::clsOverallAppliedLoads>(object);
    Give(result, self->ZoneIndexFromZoneDescription(TextArgument(ZoneDescription, "ZoneDescription"), static_cast<orve::BuildingAreas>(BuildingArea), static_cast<orve::Faces>(Face)));
    return Succeeded();
  } catch (...) {
    return Failed();
  }
}
