// Written by orve_generate from the description of the object model; don't edit it by hand.
#include "Records.h"

using namespace orve::c;

orve_error orve_clsInternalCoefficients_get_Face(orve_clsInternalCoefficients object, orve_Faces* result) {
  const orve::LibraryFloatState state;
  try {
    RequireResult(result);
    const auto self = ObjectOf<orve::clsInternalCoefficients>(object);
    Give(result, self->Face());
    return Succeeded();
  } catch (...) {
    return Failed();
  }
}

orve_error orve_clsInternalCoefficients_let_Face(orve_clsInternalCoefficients object, orve_Faces value) {
  const orve::LibraryFloatState state;
  try {
    const auto self = ObjectOf<orve::clsInternalCoefficients>(object);
    self->Face(static_cast<orve::Faces>(value));
    return Succeeded();
  } catch (...) {
    return Failed();
  }
}

orve_error orve_clsInternalCoefficients_get_StructureType(orve_clsInternalCoefficients object, orve_StructureTypes* result) {
  const orve::LibraryFloatState state;
  try {
    RequireResult(result);
    const auto self = ObjectOf<orve::clsInternalCoefficients>(object);
    Give(result, self->StructureType());
    return Succeeded();
  } catch (...) {
    return Failed();
  }
}

orve_error orve_clsInternalCoefficients_let_StructureType(orve_clsInternalCoefficients object, orve_StructureTypes value) {
  const orve::LibraryFloatState state;
  try {
    const auto self = ObjectOf<orve::clsInternalCoefficients>(object);
    self->StructureType(static_cast<orve::StructureTypes>(value));
    return Succeeded();
  } catch (...) {
    return Failed();
  }
}

orve_error orve_clsInternalCoefficients_get_DiagonalDimension_a(orve_clsInternalCoefficients object, float* result) {
  const orve::LibraryFloatState state;
  try {
    RequireResult(result);
    const auto self = ObjectOf<orve::clsInternalCoefficients>(object);
    Give(result, self->DiagonalDimension_a());
    return Succeeded();
  } catch (...) {
    return Failed();
  }
}

orve_error orve_clsInternalCoefficients_let_DiagonalDimension_a(orve_clsInternalCoefficients object, float value) {
  const orve::LibraryFloatState state;
  try {
    const auto self = ObjectOf<orve::clsInternalCoefficients>(object);
    self->DiagonalDimension_a(value);
    return Succeeded();
  } catch (...) {
    return Failed();
  }
}

orve_error orve_clsInternalCoefficients_get_InternalVolume(orve_clsInternalCoefficients object, float* result) {
  const orve::LibraryFloatState state;
  try {
    RequireResult(result);
    const auto self = ObjectOf<orve::clsInternalCoefficients>(object);
    Give(result, self->InternalVolume());
    return Succeeded();
  } catch (...) {
    return Failed();
  }
}

orve_error orve_clsInternalCoefficients_let_InternalVolume(orve_clsInternalCoefficients object, float value) {
  const orve::LibraryFloatState state;
  try {
    const auto self = ObjectOf<orve::clsInternalCoefficients>(object);
    self->InternalVolume(value);
    return Succeeded();
  } catch (...) {
    return Failed();
  }
}

orve_error orve_clsInternalCoefficients_get_WindPressureType(orve_clsInternalCoefficients object, orve_WindPressureTypes* result) {
  const orve::LibraryFloatState state;
  try {
    RequireResult(result);
    const auto self = ObjectOf<orve::clsInternalCoefficients>(object);
    Give(result, self->WindPressureType());
    return Succeeded();
  } catch (...) {
    return Failed();
  }
}

orve_error orve_clsInternalCoefficients_let_WindPressureType(orve_clsInternalCoefficients object, orve_WindPressureTypes value) {
  const orve::LibraryFloatState state;
  try {
    const auto self = ObjectOf<orve::clsInternalCoefficients>(object);
    self->WindPressureType(static_cast<orve::WindPressureTypes>(value));
    return Succeeded();
  } catch (...) {
    return Failed();
  }
}

orve_error orve_clsInternalCoefficients_get_EnclosedBuilding_GeneralCase(orve_clsInternalCoefficients object, bool* result) {
  const orve::LibraryFloatState state;
  try {
    RequireResult(result);
    const auto self = ObjectOf<orve::clsInternalCoefficients>(object);
    Give(result, self->EnclosedBuilding_GeneralCase());
    return Succeeded();
  } catch (...) {
    return Failed();
  }
}

orve_error orve_clsInternalCoefficients_let_EnclosedBuilding_GeneralCase(orve_clsInternalCoefficients object, bool value) {
  const orve::LibraryFloatState state;
  try {
    const auto self = ObjectOf<orve::clsInternalCoefficients>(object);
    self->EnclosedBuilding_GeneralCase(value);
    return Succeeded();
  } catch (...) {
    return Failed();
  }
}

orve_error orve_clsInternalCoefficients_get_EnclosedBuilding_NoPositiveInternalPressure(orve_clsInternalCoefficients object, bool* result) {
  const orve::LibraryFloatState state;
  try {
    RequireResult(result);
    const auto self = ObjectOf<orve::clsInternalCoefficients>(object);
    Give(result, self->EnclosedBuilding_NoPositiveInternalPressure());
    return Succeeded();
  } catch (...) {
    return Failed();
  }
}

orve_error orve_clsInternalCoefficients_let_EnclosedBuilding_NoPositiveInternalPressure(orve_clsInternalCoefficients object, bool value) {
  const orve::LibraryFloatState state;
  try {
    const auto self = ObjectOf<orve::clsInternalCoefficients>(object);
    self->EnclosedBuilding_NoPositiveInternalPressure(value);
    return Succeeded();
  } catch (...) {
    return Failed();
  }
}

orve_error orve_clsInternalCoefficients_get_EnclosedBuilding_WindNormalToPermeableFace(orve_clsInternalCoefficients object, bool* result) {
  const orve::LibraryFloatState state;
  try {
    RequireResult(result);
    const auto self = ObjectOf<orve::clsInternalCoefficients>(object);
    Give(result, self->EnclosedBuilding_WindNormalToPermeableFace());
    return Succeeded();
  } catch (...) {
    return Failed();
  }
}

orve_error orve_clsInternalCoefficients_let_EnclosedBuilding_WindNormalToPermeableFace(orve_clsInternalCoefficients object, bool value) {
  const orve::LibraryFloatState state;
  try {
    const auto self = ObjectOf<orve::clsInternalCoefficients>(object);
    self->EnclosedBuilding_WindNormalToPermeableFace(value);
    return Succeeded();
  } catch (...) {
    return Failed();
  }
}

orve_error orve_clsInternalCoefficients_get_EnclosedBuilding_WindNormalToImpermeableFace(orve_clsInternalCoefficients object, bool* result) {
  const orve::LibraryFloatState state;
  try {
    RequireResult(result);
    const auto self = ObjectOf<orve::clsInternalCoefficients>(object);
    Give(result, self->EnclosedBuilding_WindNormalToImpermeableFace());
    return Succeeded();
  } catch (...) {
    return Failed();
  }
}

orve_error orve_clsInternalCoefficients_let_EnclosedBuilding_WindNormalToImpermeableFace(orve_clsInternalCoefficients object, bool value) {
  const orve::LibraryFloatState state;
  try {
    const auto self = ObjectOf<orve::clsInternalCoefficients>(object);
    self->EnclosedBuilding_WindNormalToImpermeableFace(value);
    return Succeeded();
  } catch (...) {
    return Failed();
  }
}

orve_error orve_clsInternalCoefficients_get_EnclosedBuilding_FourWallsEquallyPermeable(orve_clsInternalCoefficients object, bool* result) {
  const orve::LibraryFloatState state;
  try {
    RequireResult(result);
    const auto self = ObjectOf<orve::clsInternalCoefficients>(object);
    Give(result, self->EnclosedBuilding_FourWallsEquallyPermeable());
    return Succeeded();
  } catch (...) {
    return Failed();
  }
}

orve_error orve_clsInternalCoefficients_let_EnclosedBuilding_FourWallsEquallyPermeable(orve_clsInternalCoefficients object, bool value) {
  const orve::LibraryFloatState state;
  try {
    const auto self = ObjectOf<orve::clsInternalCoefficients>(object);
    self->EnclosedBuilding_FourWallsEquallyPermeable(value);
    return Succeeded();
  } catch (...) {
    return Failed();
  }
}

orve_error orve_clsInternalCoefficients_get_DominantOpening_ZoneIndex(orve_clsInternalCoefficients object, int16_t* result) {
  const orve::LibraryFloatState state;
  try {
    RequireResult(result);
    const auto self = ObjectOf<orve::clsInternalCoefficients>(object);
    Give(result, self->DominantOpening_ZoneIndex());
    return Succeeded();
  } catch (...) {
    return Failed();
  }
}

orve_error orve_clsInternalCoefficients_let_DominantOpening_ZoneIndex(orve_clsInternalCoefficients object, int16_t value) {
  const orve::LibraryFloatState state;
  try {
    const auto self = ObjectOf<orve::clsInternalCoefficients>(object);
    self->DominantOpening_ZoneIndex(value);
    return Succeeded();
  } catch (...) {
    return Failed();
  }
}

orve_error orve_clsInternalCoefficients_get_DominantOpening_ZoneIndexFrom(orve_clsInternalCoefficients object, orve_Faces Face, int16_t* result) {
  const orve::LibraryFloatState state;
  try {
    RequireResult(result);
    const auto self = ObjectOf<orve::clsInternalCoefficients>(object);
    Give(result, self->DominantOpening_ZoneIndexFrom(static_cast<orve::Faces>(Face)));
    return Succeeded();
  } catch (...) {
    return Failed();
  }
}

orve_error orve_clsInternalCoefficients_get_DominantOpening_ZoneIndexTo(orve_clsInternalCoefficients object, orve_Faces Face, int16_t* result) {
  const orve::LibraryFloatState state;
  try {
    RequireResult(result);
    const auto self = ObjectOf<orve::clsInternalCoefficients>(object);
    Give(result, self->DominantOpening_ZoneIndexTo(static_cast<orve::Faces>(Face)));
    return Succeeded();
  } catch (...) {
    return Failed();
  }
}

orve_error orve_clsInternalCoefficients_get_DominantOpening_ZoneDescription(orve_clsInternalCoefficients object, orve_Faces Face, int16_t ZoneIndex, char** result) {
  const orve::LibraryFloatState state;
  try {
    RequireResult(result);
    const auto self = ObjectOf<orve::clsInternalCoefficients>(object);
    Give(result, self->DominantOpening_ZoneDescription(static_cast<orve::Faces>(Face), ZoneIndex));
    return Succeeded();
  } catch (...) {
    return Failed();
  }
}

orve_error orve_clsInternalCoefficients_get_DominantOpening_SelectedZoneIndex(orve_clsInternalCoefficients object, orve_Faces Face, orve_WallZones* result) {
  const orve::LibraryFloatState state;
  try {
    RequireResult(result);
    const auto self = ObjectOf<orve::clsInternalCoefficients>(object);
    Give(result, self->DominantOpening_SelectedZoneIndex(static_cast<orve::Faces>(Face)));
    return Succeeded();
  } catch (...) {
    return Failed();
  }
}

orve_error orve_clsInternalCoefficients_let_DominantOpening_SelectedZoneIndex(orve_clsInternalCoefficients object, orve_Faces Face, orve_WallZones value) {
  const orve::LibraryFloatState state;
  try {
    const auto self = ObjectOf<orve::clsInternalCoefficients>(object);
    self->DominantOpening_SelectedZoneIndex(static_cast<orve::Faces>(Face), static_cast<orve::WallZones>(value));
    return Succeeded();
  } catch (...) {
    return Failed();
  }
}

orve_error orve_clsInternalCoefficients_get_DominantOpening_SelectedZoneCpe_Pressure(orve_clsInternalCoefficients object, orve_Faces Face, float* result) {
  const orve::LibraryFloatState state;
  try {
    RequireResult(result);
    const auto self = ObjectOf<orve::clsInternalCoefficients>(object);
    Give(result, self->DominantOpening_SelectedZoneCpe_Pressure(static_cast<orve::Faces>(Face)));
    return Succeeded();
  } catch (...) {
    return Failed();
  }
}

orve_error orve_clsInternalCoefficients_get_DominantOpening_SelectedZoneCpe_Suction(orve_clsInternalCoefficients object, orve_Faces Face, float* result) {
  const orve::LibraryFloatState state;
  try {
    RequireResult(result);
    const auto self = ObjectOf<orve::clsInternalCoefficients>(object);
    Give(result, self->DominantOpening_SelectedZoneCpe_Suction(static_cast<orve::Faces>(Face)));
    return Succeeded();
  } catch (...) {
    return Failed();
  }
}

orve_error orve_clsInternalCoefficients_get_DominantOpening_Ratio2(orve_clsInternalCoefficients object, orve_Faces Face, bool* result) {
  const orve::LibraryFloatState state;
  try {
    RequireResult(result);
    const auto self = ObjectOf<orve::clsInternalCoefficients>(object);
    Give(result, self->DominantOpening_Ratio2(static_cast<orve::Faces>(Face)));
    return Succeeded();
  } catch (...) {
    return Failed();
  }
}

orve_error orve_clsInternalCoefficients_let_DominantOpening_Ratio2(orve_clsInternalCoefficients object, orve_Faces Face, bool value) {
  const orve::LibraryFloatState state;
  try {
    const auto self = ObjectOf<orve::clsInternalCoefficients>(object);
    self->DominantOpening_Ratio2(static_cast<orve::Faces>(Face), value);
    return Succeeded();
  } catch (...) {
    return Failed();
  }
}

orve_error orve_clsInternalCoefficients_get_DominantOpening_Ratio3(orve_clsInternalCoefficients object, orve_Faces Face, bool* result) {
  const orve::LibraryFloatState state;
  try {
    RequireResult(result);
    const auto self = ObjectOf<orve::clsInternalCoefficients>(object);
    Give(result, self->DominantOpening_Ratio3(static_cast<orve::Faces>(Face)));
    return Succeeded();
  } catch (...) {
    return Failed();
  }
}

orve_error orve_clsInternalCoefficients_let_DominantOpening_Ratio3(orve_clsInternalCoefficients object, orve_Faces Face, bool value) {
  const orve::LibraryFloatState state;
  try {
    const auto self = ObjectOf<orve::clsInternalCoefficients>(object);
    self->DominantOpening_Ratio3(static_cast<orve::Faces>(Face), value);
    return Succeeded();
  } catch (...) {
    return Failed();
  }
}

orve_error orve_clsInternalCoefficients_get_InternalCoefficientFactor_Cpi_Pressure(orve_clsInternalCoefficients object, orve_Faces Face, float* result) {
  const orve::LibraryFloatState state;
  try {
    RequireResult(result);
    const auto self = ObjectOf<orve::clsInternalCoefficients>(object);
    Give(result, self->InternalCoefficientFactor_Cpi_Pressure(static_cast<orve::Faces>(Face)));
    return Succeeded();
  } catch (...) {
    return Failed();
  }
}

orve_error orve_clsInternalCoefficients_let_InternalCoefficientFactor_Cpi_Pressure(orve_clsInternalCoefficients object, orve_Faces Face, float value) {
  const orve::LibraryFloatState state;
  try {
    const auto self = ObjectOf<orve::clsInternalCoefficients>(object);
    self->InternalCoefficientFactor_Cpi_Pressure(static_cast<orve::Faces>(Face), value);
    return Succeeded();
  } catch (...) {
    return Failed();
  }
}

orve_error orve_clsInternalCoefficients_get_InternalCoefficientFactor_Cpi_Suction(orve_clsInternalCoefficients object, orve_Faces Face, float* result) {
  const orve::LibraryFloatState state;
  try {
    RequireResult(result);
    const auto self = ObjectOf<orve::clsInternalCoefficients>(object);
    Give(result, self->InternalCoefficientFactor_Cpi_Suction(static_cast<orve::Faces>(Face)));
    return Succeeded();
  } catch (...) {
    return Failed();
  }
}

orve_error orve_clsInternalCoefficients_let_InternalCoefficientFactor_Cpi_Suction(orve_clsInternalCoefficients object, orve_Faces Face, float value) {
  const orve::LibraryFloatState state;
  try {
    const auto self = ObjectOf<orve::clsInternalCoefficients>(object);
    self->InternalCoefficientFactor_Cpi_Suction(static_cast<orve::Faces>(Face), value);
    return Succeeded();
  } catch (...) {
    return Failed();
  }
}

orve_error orve_clsInternalCoefficients_get_Hybrid_WorstCase_DynamicPressure_q(orve_clsInternalCoefficients object, orve_Faces Face, float* result) {
  const orve::LibraryFloatState state;
  try {
    RequireResult(result);
    const auto self = ObjectOf<orve::clsInternalCoefficients>(object);
    Give(result, self->Hybrid_WorstCase_DynamicPressure_q(static_cast<orve::Faces>(Face)));
    return Succeeded();
  } catch (...) {
    return Failed();
  }
}

orve_error orve_clsInternalCoefficients_get_Calculated_DiagonalDimension_a(orve_clsInternalCoefficients object, float* result) {
  const orve::LibraryFloatState state;
  try {
    RequireResult(result);
    const auto self = ObjectOf<orve::clsInternalCoefficients>(object);
    Give(result, self->Calculated_DiagonalDimension_a());
    return Succeeded();
  } catch (...) {
    return Failed();
  }
}

orve_error orve_clsInternalCoefficients_get_Hybrid_WorstCase_SizeEffectFactor_Ca(orve_clsInternalCoefficients object, orve_Faces Face, float* result) {
  const orve::LibraryFloatState state;
  try {
    RequireResult(result);
    const auto self = ObjectOf<orve::clsInternalCoefficients>(object);
    Give(result, self->Hybrid_WorstCase_SizeEffectFactor_Ca(static_cast<orve::Faces>(Face)));
    return Succeeded();
  } catch (...) {
    return Failed();
  }
}

orve_error orve_clsInternalCoefficients_get_Hybrid_InternalAppliedLoad_Pressure(orve_clsInternalCoefficients object, orve_Faces Face, float* result) {
  const orve::LibraryFloatState state;
  try {
    RequireResult(result);
    const auto self = ObjectOf<orve::clsInternalCoefficients>(object);
    Give(result, self->Hybrid_InternalAppliedLoad_Pressure(static_cast<orve::Faces>(Face)));
    return Succeeded();
  } catch (...) {
    return Failed();
  }
}

orve_error orve_clsInternalCoefficients_get_Hybrid_InternalAppliedLoad_Suction(orve_clsInternalCoefficients object, orve_Faces Face, float* result) {
  const orve::LibraryFloatState state;
  try {
    RequireResult(result);
    const auto self = ObjectOf<orve::clsInternalCoefficients>(object);
    Give(result, self->Hybrid_InternalAppliedLoad_Suction(static_cast<orve::Faces>(Face)));
    return Succeeded();
  } catch (...) {
    return Failed();
  }
}

orve_error orve_clsInternalCoefficients_get_Hybrid_InternalAppliedLoads(orve_clsInternalCoefficients object, orve_Faces Face, char** result) {
  const orve::LibraryFloatState state;
  try {
    RequireResult(result);
    const auto self = ObjectOf<orve::clsInternalCoefficients>(object);
    Give(result, self->Hybrid_InternalAppliedLoads(static_cast<orve::Faces>(Face)));
    return Succeeded();
  } catch (...) {
    return Failed();
  }
}
