// Written by orve_generate from the description of the object model; don't edit it by hand.
#include "Records.h"

using namespace orve::c;

orve_error orve_clsExternalCoefficients_get_BuildingArea(orve_clsExternalCoefficients object, orve_BuildingAreas* result) {
  const orve::LibraryFloatState state;
  try {
    RequireResult(result);
    const auto self = ObjectOf<orve::clsExternalCoefficients>(object);
    Give(result, self->BuildingArea());
    return Succeeded();
  } catch (...) {
    return Failed();
  }
}

orve_error orve_clsExternalCoefficients_let_BuildingArea(orve_clsExternalCoefficients object, orve_BuildingAreas value) {
  const orve::LibraryFloatState state;
  try {
    const auto self = ObjectOf<orve::clsExternalCoefficients>(object);
    self->BuildingArea(static_cast<orve::BuildingAreas>(value));
    return Succeeded();
  } catch (...) {
    return Failed();
  }
}

orve_error orve_clsExternalCoefficients_get_Face(orve_clsExternalCoefficients object, orve_Faces* result) {
  const orve::LibraryFloatState state;
  try {
    RequireResult(result);
    const auto self = ObjectOf<orve::clsExternalCoefficients>(object);
    Give(result, self->Face());
    return Succeeded();
  } catch (...) {
    return Failed();
  }
}

orve_error orve_clsExternalCoefficients_let_Face(orve_clsExternalCoefficients object, orve_Faces value) {
  const orve::LibraryFloatState state;
  try {
    const auto self = ObjectOf<orve::clsExternalCoefficients>(object);
    self->Face(static_cast<orve::Faces>(value));
    return Succeeded();
  } catch (...) {
    return Failed();
  }
}

orve_error orve_clsExternalCoefficients_get_ZoneIndex(orve_clsExternalCoefficients object, int16_t* result) {
  const orve::LibraryFloatState state;
  try {
    RequireResult(result);
    const auto self = ObjectOf<orve::clsExternalCoefficients>(object);
    Give(result, self->ZoneIndex());
    return Succeeded();
  } catch (...) {
    return Failed();
  }
}

orve_error orve_clsExternalCoefficients_let_ZoneIndex(orve_clsExternalCoefficients object, int16_t value) {
  const orve::LibraryFloatState state;
  try {
    const auto self = ObjectOf<orve::clsExternalCoefficients>(object);
    self->ZoneIndex(value);
    return Succeeded();
  } catch (...) {
    return Failed();
  }
}

orve_error orve_clsExternalCoefficients_get_ZoneIndexFrom(orve_clsExternalCoefficients object, orve_BuildingAreas BuildingArea, orve_Faces Face, int16_t* result) {
  const orve::LibraryFloatState state;
  try {
    RequireResult(result);
    const auto self = ObjectOf<orve::clsExternalCoefficients>(object);
    Give(result, self->ZoneIndexFrom(static_cast<orve::BuildingAreas>(BuildingArea), static_cast<orve::Faces>(Face)));
    return Succeeded();
  } catch (...) {
    return Failed();
  }
}

orve_error orve_clsExternalCoefficients_get_ZoneIndexTo(orve_clsExternalCoefficients object, orve_BuildingAreas BuildingArea, orve_Faces Face, orve_ResultsScreens ResultsScreen, int16_t* result) {
  const orve::LibraryFloatState state;
  try {
    RequireResult(result);
    const auto self = ObjectOf<orve::clsExternalCoefficients>(object);
    Give(result, self->ZoneIndexTo(static_cast<orve::BuildingAreas>(BuildingArea), static_cast<orve::Faces>(Face), static_cast<orve::ResultsScreens>(ResultsScreen)));
    return Succeeded();
  } catch (...) {
    return Failed();
  }
}

orve_error orve_clsExternalCoefficients_get_ManualResults(orve_clsExternalCoefficients object, bool* result) {
  const orve::LibraryFloatState state;
  try {
    RequireResult(result);
    const auto self = ObjectOf<orve::clsExternalCoefficients>(object);
    Give(result, self->ManualResults());
    return Succeeded();
  } catch (...) {
    return Failed();
  }
}

orve_error orve_clsExternalCoefficients_let_ManualResults(orve_clsExternalCoefficients object, bool value) {
  const orve::LibraryFloatState state;
  try {
    const auto self = ObjectOf<orve::clsExternalCoefficients>(object);
    self->ManualResults(value);
    return Succeeded();
  } catch (...) {
    return Failed();
  }
}

orve_error orve_clsExternalCoefficients_get_Bay(orve_clsExternalCoefficients object, orve_Bays* result) {
  const orve::LibraryFloatState state;
  try {
    RequireResult(result);
    const auto self = ObjectOf<orve::clsExternalCoefficients>(object);
    Give(result, self->Bay());
    return Succeeded();
  } catch (...) {
    return Failed();
  }
}

orve_error orve_clsExternalCoefficients_let_Bay(orve_clsExternalCoefficients object, orve_Bays value) {
  const orve::LibraryFloatState state;
  try {
    const auto self = ObjectOf<orve::clsExternalCoefficients>(object);
    self->Bay(static_cast<orve::Bays>(value));
    return Succeeded();
  } catch (...) {
    return Failed();
  }
}

orve_error orve_clsExternalCoefficients_get_GableFace(orve_clsExternalCoefficients object, orve_Faces Face, bool* result) {
  const orve::LibraryFloatState state;
  try {
    RequireResult(result);
    const auto self = ObjectOf<orve::clsExternalCoefficients>(object);
    Give(result, self->GableFace(static_cast<orve::Faces>(Face)));
    return Succeeded();
  } catch (...) {
    return Failed();
  }
}

orve_error orve_clsExternalCoefficients_get_Hybrid_WindFromFace(orve_clsExternalCoefficients object, orve_BuildingAreas BuildingArea, orve_Faces Face, int16_t ZoneIndex, int16_t* result) {
  const orve::LibraryFloatState state;
  try {
    RequireResult(result);
    const auto self = ObjectOf<orve::clsExternalCoefficients>(object);
    Give(result, self->Hybrid_WindFromFace(static_cast<orve::BuildingAreas>(BuildingArea), static_cast<orve::Faces>(Face), ZoneIndex));
    return Succeeded();
  } catch (...) {
    return Failed();
  }
}

orve_error orve_clsExternalCoefficients_get_Hybrid_AngleNormalToFace(orve_clsExternalCoefficients object, orve_Faces Face, float* result) {
  const orve::LibraryFloatState state;
  try {
    RequireResult(result);
    const auto self = ObjectOf<orve::clsExternalCoefficients>(object);
    Give(result, self->Hybrid_AngleNormalToFace(static_cast<orve::Faces>(Face)));
    return Succeeded();
  } catch (...) {
    return Failed();
  }
}

orve_error orve_clsExternalCoefficients_get_Hybrid_WorstCase_DynamicPressure_q(orve_clsExternalCoefficients object, orve_BuildingAreas BuildingArea, orve_Faces Face, int16_t ZoneIndex, float* result) {
  const orve::LibraryFloatState state;
  try {
    RequireResult(result);
    const auto self = ObjectOf<orve::clsExternalCoefficients>(object);
    Give(result, self->Hybrid_WorstCase_DynamicPressure_q(static_cast<orve::BuildingAreas>(BuildingArea), static_cast<orve::Faces>(Face), ZoneIndex));
    return Succeeded();
  } catch (...) {
    return Failed();
  }
}

orve_error orve_clsExternalCoefficients_get_Hybrid_WorstCase_SizeEffectFactor_Ca(orve_clsExternalCoefficients object, orve_BuildingAreas BuildingArea, orve_Faces Face, int16_t ZoneIndex, float* result) {
  const orve::LibraryFloatState state;
  try {
    RequireResult(result);
    const auto self = ObjectOf<orve::clsExternalCoefficients>(object);
    Give(result, self->Hybrid_WorstCase_SizeEffectFactor_Ca(static_cast<orve::BuildingAreas>(BuildingArea), static_cast<orve::Faces>(Face), ZoneIndex));
    return Succeeded();
  } catch (...) {
    return Failed();
  }
}

orve_error orve_clsExternalCoefficients_get_Hybrid_ZoneDescription(orve_clsExternalCoefficients object, orve_BuildingAreas BuildingArea, orve_Faces Face, int16_t ZoneIndex, char** result) {
  const orve::LibraryFloatState state;
  try {
    RequireResult(result);
    const auto self = ObjectOf<orve::clsExternalCoefficients>(object);
    Give(result, self->Hybrid_ZoneDescription(static_cast<orve::BuildingAreas>(BuildingArea), static_cast<orve::Faces>(Face), ZoneIndex));
    return Succeeded();
  } catch (...) {
    return Failed();
  }
}

orve_error orve_clsExternalCoefficients_get_Hybrid_ZoneDimensionsXY(orve_clsExternalCoefficients object, orve_BuildingAreas BuildingArea, orve_Faces Face, int16_t ZoneIndex, orve_ResultsScreens ResultsScreen, orve_ZoneDimensionsXY* result) {
  const orve::LibraryFloatState state;
  try {
    RequireResult(result);
    const auto self = ObjectOf<orve::clsExternalCoefficients>(object);
    Give(result, self->Hybrid_ZoneDimensionsXY(static_cast<orve::BuildingAreas>(BuildingArea), static_cast<orve::Faces>(Face), ZoneIndex, static_cast<orve::ResultsScreens>(ResultsScreen)));
    return Succeeded();
  } catch (...) {
    return Failed();
  }
}

orve_error orve_clsExternalCoefficients_get_Hybrid_ZoneDimensionX(orve_clsExternalCoefficients object, orve_BuildingAreas BuildingArea, orve_Faces Face, int16_t ZoneIndex, orve_ResultsScreens ResultsScreen, float* result) {
  const orve::LibraryFloatState state;
  try {
    RequireResult(result);
    const auto self = ObjectOf<orve::clsExternalCoefficients>(object);
    Give(result, self->Hybrid_ZoneDimensionX(static_cast<orve::BuildingAreas>(BuildingArea), static_cast<orve::Faces>(Face), ZoneIndex, static_cast<orve::ResultsScreens>(ResultsScreen)));
    return Succeeded();
  } catch (...) {
    return Failed();
  }
}

orve_error orve_clsExternalCoefficients_get_Hybrid_ZoneDimensionY(orve_clsExternalCoefficients object, orve_BuildingAreas BuildingArea, orve_Faces Face, int16_t ZoneIndex, orve_ResultsScreens ResultsScreen, float* result) {
  const orve::LibraryFloatState state;
  try {
    RequireResult(result);
    const auto self = ObjectOf<orve::clsExternalCoefficients>(object);
    Give(result, self->Hybrid_ZoneDimensionY(static_cast<orve::BuildingAreas>(BuildingArea), static_cast<orve::Faces>(Face), ZoneIndex, static_cast<orve::ResultsScreens>(ResultsScreen)));
    return Succeeded();
  } catch (...) {
    return Failed();
  }
}

orve_error orve_clsExternalCoefficients_get_Hybrid_ZoneDimensions(orve_clsExternalCoefficients object, orve_BuildingAreas BuildingArea, orve_Faces Face, int16_t ZoneIndex, orve_ResultsScreens ResultsScreen, char** result) {
  const orve::LibraryFloatState state;
  try {
    RequireResult(result);
    const auto self = ObjectOf<orve::clsExternalCoefficients>(object);
    Give(result, self->Hybrid_ZoneDimensions(static_cast<orve::BuildingAreas>(BuildingArea), static_cast<orve::Faces>(Face), ZoneIndex, static_cast<orve::ResultsScreens>(ResultsScreen)));
    return Succeeded();
  } catch (...) {
    return Failed();
  }
}

orve_error orve_clsExternalCoefficients_get_Hybrid_ExternalCoefficientFactor_Cpe_Pressure(orve_clsExternalCoefficients object, orve_BuildingAreas BuildingArea, orve_Faces Face, int16_t ZoneIndex, float* result) {
  const orve::LibraryFloatState state;
  try {
    RequireResult(result);
    const auto self = ObjectOf<orve::clsExternalCoefficients>(object);
    Give(result, self->Hybrid_ExternalCoefficientFactor_Cpe_Pressure(static_cast<orve::BuildingAreas>(BuildingArea), static_cast<orve::Faces>(Face), ZoneIndex));
    return Succeeded();
  } catch (...) {
    return Failed();
  }
}

orve_error orve_clsExternalCoefficients_let_Hybrid_ExternalCoefficientFactor_Cpe_Pressure(orve_clsExternalCoefficients object, orve_BuildingAreas BuildingArea, orve_Faces Face, int16_t ZoneIndex, float value) {
  const orve::LibraryFloatState state;
  try {
    const auto self = ObjectOf<orve::clsExternalCoefficients>(object);
    self->Hybrid_ExternalCoefficientFactor_Cpe_Pressure(static_cast<orve::BuildingAreas>(BuildingArea), static_cast<orve::Faces>(Face), ZoneIndex, value);
    return Succeeded();
  } catch (...) {
    return Failed();
  }
}

orve_error orve_clsExternalCoefficients_get_Hybrid_ExternalCoefficientFactor_Cpe_Suction(orve_clsExternalCoefficients object, orve_BuildingAreas BuildingArea, orve_Faces Face, int16_t ZoneIndex, float* result) {
  const orve::LibraryFloatState state;
  try {
    RequireResult(result);
    const auto self = ObjectOf<orve::clsExternalCoefficients>(object);
    Give(result, self->Hybrid_ExternalCoefficientFactor_Cpe_Suction(static_cast<orve::BuildingAreas>(BuildingArea), static_cast<orve::Faces>(Face), ZoneIndex));
    return Succeeded();
  } catch (...) {
    return Failed();
  }
}

orve_error orve_clsExternalCoefficients_let_Hybrid_ExternalCoefficientFactor_Cpe_Suction(orve_clsExternalCoefficients object, orve_BuildingAreas BuildingArea, orve_Faces Face, int16_t ZoneIndex, float value) {
  const orve::LibraryFloatState state;
  try {
    const auto self = ObjectOf<orve::clsExternalCoefficients>(object);
    self->Hybrid_ExternalCoefficientFactor_Cpe_Suction(static_cast<orve::BuildingAreas>(BuildingArea), static_cast<orve::Faces>(Face), ZoneIndex, value);
    return Succeeded();
  } catch (...) {
    return Failed();
  }
}

orve_error orve_clsExternalCoefficients_get_Hybrid_ExternalAppliedLoad_Pressure(orve_clsExternalCoefficients object, orve_BuildingAreas BuildingArea, orve_Faces Face, int16_t ZoneIndex, float* result) {
  const orve::LibraryFloatState state;
  try {
    RequireResult(result);
    const auto self = ObjectOf<orve::clsExternalCoefficients>(object);
    Give(result, self->Hybrid_ExternalAppliedLoad_Pressure(static_cast<orve::BuildingAreas>(BuildingArea), static_cast<orve::Faces>(Face), ZoneIndex));
    return Succeeded();
  } catch (...) {
    return Failed();
  }
}

orve_error orve_clsExternalCoefficients_get_Hybrid_ExternalAppliedLoad_Suction(orve_clsExternalCoefficients object, orve_BuildingAreas BuildingArea, orve_Faces Face, int16_t ZoneIndex, float* result) {
  const orve::LibraryFloatState state;
  try {
    RequireResult(result);
    const auto self = ObjectOf<orve::clsExternalCoefficients>(object);
    Give(result, self->Hybrid_ExternalAppliedLoad_Suction(static_cast<orve::BuildingAreas>(BuildingArea), static_cast<orve::Faces>(Face), ZoneIndex));
    return Succeeded();
  } catch (...) {
    return Failed();
  }
}

orve_error orve_clsExternalCoefficients_get_Hybrid_ExternalAppliedLoads(orve_clsExternalCoefficients object, orve_BuildingAreas BuildingArea, orve_Faces Face, int16_t ZoneIndex, char** result) {
  const orve::LibraryFloatState state;
  try {
    RequireResult(result);
    const auto self = ObjectOf<orve::clsExternalCoefficients>(object);
    Give(result, self->Hybrid_ExternalAppliedLoads(static_cast<orve::BuildingAreas>(BuildingArea), static_cast<orve::Faces>(Face), ZoneIndex));
    return Succeeded();
  } catch (...) {
    return Failed();
  }
}
