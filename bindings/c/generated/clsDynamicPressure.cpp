// Written by orve_generate from the description of the object model; don't edit it by hand.
#include "Records.h"

using namespace orve::c;

orve_error orve_clsDynamicPressure_get_WindArea(orve_clsDynamicPressure object, orve_WindAreas* result) {
  const orve::LibraryFloatState state;
  try {
    RequireResult(result);
    const auto self = ObjectOf<orve::clsDynamicPressure>(object);
    Give(result, self->WindArea());
    return Succeeded();
  } catch (...) {
    return Failed();
  }
}

orve_error orve_clsDynamicPressure_let_WindArea(orve_clsDynamicPressure object, orve_WindAreas value) {
  const orve::LibraryFloatState state;
  try {
    const auto self = ObjectOf<orve::clsDynamicPressure>(object);
    self->WindArea(static_cast<orve::WindAreas>(value));
    return Succeeded();
  } catch (...) {
    return Failed();
  }
}

orve_error orve_clsDynamicPressure_get_WindSector(orve_clsDynamicPressure object, orve_WindSectors* result) {
  const orve::LibraryFloatState state;
  try {
    RequireResult(result);
    const auto self = ObjectOf<orve::clsDynamicPressure>(object);
    Give(result, self->WindSector());
    return Succeeded();
  } catch (...) {
    return Failed();
  }
}

orve_error orve_clsDynamicPressure_let_WindSector(orve_clsDynamicPressure object, orve_WindSectors value) {
  const orve::LibraryFloatState state;
  try {
    const auto self = ObjectOf<orve::clsDynamicPressure>(object);
    self->WindSector(static_cast<orve::WindSectors>(value));
    return Succeeded();
  } catch (...) {
    return Failed();
  }
}

orve_error orve_clsDynamicPressure_get_SiteDirty(orve_clsDynamicPressure object, bool* result) {
  const orve::LibraryFloatState state;
  try {
    RequireResult(result);
    const auto self = ObjectOf<orve::clsDynamicPressure>(object);
    Give(result, self->SiteDirty());
    return Succeeded();
  } catch (...) {
    return Failed();
  }
}

orve_error orve_clsDynamicPressure_let_SiteDirty(orve_clsDynamicPressure object, bool value) {
  const orve::LibraryFloatState state;
  try {
    const auto self = ObjectOf<orve::clsDynamicPressure>(object);
    self->SiteDirty(value);
    return Succeeded();
  } catch (...) {
    return Failed();
  }
}

orve_error orve_clsDynamicPressure_get_SiteSelected(orve_clsDynamicPressure object, bool* result) {
  const orve::LibraryFloatState state;
  try {
    RequireResult(result);
    const auto self = ObjectOf<orve::clsDynamicPressure>(object);
    Give(result, self->SiteSelected());
    return Succeeded();
  } catch (...) {
    return Failed();
  }
}

orve_error orve_clsDynamicPressure_let_SiteSelected(orve_clsDynamicPressure object, bool value) {
  const orve::LibraryFloatState state;
  try {
    const auto self = ObjectOf<orve::clsDynamicPressure>(object);
    self->SiteSelected(value);
    return Succeeded();
  } catch (...) {
    return Failed();
  }
}

orve_error orve_clsDynamicPressure_get_SiteEdited(orve_clsDynamicPressure object, bool* result) {
  const orve::LibraryFloatState state;
  try {
    RequireResult(result);
    const auto self = ObjectOf<orve::clsDynamicPressure>(object);
    Give(result, self->SiteEdited());
    return Succeeded();
  } catch (...) {
    return Failed();
  }
}

orve_error orve_clsDynamicPressure_let_SiteEdited(orve_clsDynamicPressure object, bool value) {
  const orve::LibraryFloatState state;
  try {
    const auto self = ObjectOf<orve::clsDynamicPressure>(object);
    self->SiteEdited(value);
    return Succeeded();
  } catch (...) {
    return Failed();
  }
}

orve_error orve_clsDynamicPressure_get_Method(orve_clsDynamicPressure object, orve_Methods* result) {
  const orve::LibraryFloatState state;
  try {
    RequireResult(result);
    const auto self = ObjectOf<orve::clsDynamicPressure>(object);
    Give(result, self->Method());
    return Succeeded();
  } catch (...) {
    return Failed();
  }
}

orve_error orve_clsDynamicPressure_let_Method(orve_clsDynamicPressure object, orve_Methods value) {
  const orve::LibraryFloatState state;
  try {
    const auto self = ObjectOf<orve::clsDynamicPressure>(object);
    self->Method(static_cast<orve::Methods>(value));
    return Succeeded();
  } catch (...) {
    return Failed();
  }
}

orve_error orve_clsDynamicPressure_get_ManualResults(orve_clsDynamicPressure object, bool* result) {
  const orve::LibraryFloatState state;
  try {
    RequireResult(result);
    const auto self = ObjectOf<orve::clsDynamicPressure>(object);
    Give(result, self->ManualResults());
    return Succeeded();
  } catch (...) {
    return Failed();
  }
}

orve_error orve_clsDynamicPressure_let_ManualResults(orve_clsDynamicPressure object, bool value) {
  const orve::LibraryFloatState state;
  try {
    const auto self = ObjectOf<orve::clsDynamicPressure>(object);
    self->ManualResults(value);
    return Succeeded();
  } catch (...) {
    return Failed();
  }
}

orve_error orve_clsDynamicPressure_get_GridReference(orve_clsDynamicPressure object, char** result) {
  const orve::LibraryFloatState state;
  try {
    RequireResult(result);
    const auto self = ObjectOf<orve::clsDynamicPressure>(object);
    Give(result, self->GridReference());
    return Succeeded();
  } catch (...) {
    return Failed();
  }
}

orve_error orve_clsDynamicPressure_let_GridReference(orve_clsDynamicPressure object, const char* value) {
  const orve::LibraryFloatState state;
  try {
    const auto self = ObjectOf<orve::clsDynamicPressure>(object);
    self->GridReference(TextArgument(value, "value"));
    return Succeeded();
  } catch (...) {
    return Failed();
  }
}

orve_error orve_clsDynamicPressure_get_SaBasedOn(orve_clsDynamicPressure object, orve_SaBasedOnTypes* result) {
  const orve::LibraryFloatState state;
  try {
    RequireResult(result);
    const auto self = ObjectOf<orve::clsDynamicPressure>(object);
    Give(result, self->SaBasedOn());
    return Succeeded();
  } catch (...) {
    return Failed();
  }
}

orve_error orve_clsDynamicPressure_let_SaBasedOn(orve_clsDynamicPressure object, orve_SaBasedOnTypes value) {
  const orve::LibraryFloatState state;
  try {
    const auto self = ObjectOf<orve::clsDynamicPressure>(object);
    self->SaBasedOn(static_cast<orve::SaBasedOnTypes>(value));
    return Succeeded();
  } catch (...) {
    return Failed();
  }
}

orve_error orve_clsDynamicPressure_get_SiteAltitude(orve_clsDynamicPressure object, float* result) {
  const orve::LibraryFloatState state;
  try {
    RequireResult(result);
    const auto self = ObjectOf<orve::clsDynamicPressure>(object);
    Give(result, self->SiteAltitude());
    return Succeeded();
  } catch (...) {
    return Failed();
  }
}

orve_error orve_clsDynamicPressure_let_SiteAltitude(orve_clsDynamicPressure object, float value) {
  const orve::LibraryFloatState state;
  try {
    const auto self = ObjectOf<orve::clsDynamicPressure>(object);
    self->SiteAltitude(value);
    return Succeeded();
  } catch (...) {
    return Failed();
  }
}

orve_error orve_clsDynamicPressure_get_BasicWindSpeed(orve_clsDynamicPressure object, float* result) {
  const orve::LibraryFloatState state;
  try {
    RequireResult(result);
    const auto self = ObjectOf<orve::clsDynamicPressure>(object);
    Give(result, self->BasicWindSpeed());
    return Succeeded();
  } catch (...) {
    return Failed();
  }
}

orve_error orve_clsDynamicPressure_let_BasicWindSpeed(orve_clsDynamicPressure object, float value) {
  const orve::LibraryFloatState state;
  try {
    const auto self = ObjectOf<orve::clsDynamicPressure>(object);
    self->BasicWindSpeed(value);
    return Succeeded();
  } catch (...) {
    return Failed();
  }
}

orve_error orve_clsDynamicPressure_get_AnnualRisk(orve_clsDynamicPressure object, float* result) {
  const orve::LibraryFloatState state;
  try {
    RequireResult(result);
    const auto self = ObjectOf<orve::clsDynamicPressure>(object);
    Give(result, self->AnnualRisk());
    return Succeeded();
  } catch (...) {
    return Failed();
  }
}

orve_error orve_clsDynamicPressure_let_AnnualRisk(orve_clsDynamicPressure object, float value) {
  const orve::LibraryFloatState state;
  try {
    const auto self = ObjectOf<orve::clsDynamicPressure>(object);
    self->AnnualRisk(value);
    return Succeeded();
  } catch (...) {
    return Failed();
  }
}

orve_error orve_clsDynamicPressure_get_LifeTime(orve_clsDynamicPressure object, orve_LifeTime* result) {
  const orve::LibraryFloatState state;
  try {
    RequireResult(result);
    const auto self = ObjectOf<orve::clsDynamicPressure>(object);
    Give(result, self->LifeTime());
    return Succeeded();
  } catch (...) {
    return Failed();
  }
}

orve_error orve_clsDynamicPressure_let_LifeTime(orve_clsDynamicPressure object, orve_LifeTime value) {
  const orve::LibraryFloatState state;
  try {
    const auto self = ObjectOf<orve::clsDynamicPressure>(object);
    self->LifeTime(static_cast<orve::LifeTime>(value));
    return Succeeded();
  } catch (...) {
    return Failed();
  }
}

orve_error orve_clsDynamicPressure_get_Duration(orve_clsDynamicPressure object, orve_Durations* result) {
  const orve::LibraryFloatState state;
  try {
    RequireResult(result);
    const auto self = ObjectOf<orve::clsDynamicPressure>(object);
    Give(result, self->Duration());
    return Succeeded();
  } catch (...) {
    return Failed();
  }
}

orve_error orve_clsDynamicPressure_let_Duration(orve_clsDynamicPressure object, orve_Durations value) {
  const orve::LibraryFloatState state;
  try {
    const auto self = ObjectOf<orve::clsDynamicPressure>(object);
    self->Duration(static_cast<orve::Durations>(value));
    return Succeeded();
  } catch (...) {
    return Failed();
  }
}

orve_error orve_clsDynamicPressure_get_StartMonth(orve_clsDynamicPressure object, orve_Months* result) {
  const orve::LibraryFloatState state;
  try {
    RequireResult(result);
    const auto self = ObjectOf<orve::clsDynamicPressure>(object);
    Give(result, self->StartMonth());
    return Succeeded();
  } catch (...) {
    return Failed();
  }
}

orve_error orve_clsDynamicPressure_let_StartMonth(orve_clsDynamicPressure object, orve_Months value) {
  const orve::LibraryFloatState state;
  try {
    const auto self = ObjectOf<orve::clsDynamicPressure>(object);
    self->StartMonth(static_cast<orve::Months>(value));
    return Succeeded();
  } catch (...) {
    return Failed();
  }
}

orve_error orve_clsDynamicPressure_get_CrestHeight_Z(orve_clsDynamicPressure object, orve_WindSectors WindSector, float* result) {
  const orve::LibraryFloatState state;
  try {
    RequireResult(result);
    const auto self = ObjectOf<orve::clsDynamicPressure>(object);
    Give(result, self->CrestHeight_Z(static_cast<orve::WindSectors>(WindSector)));
    return Succeeded();
  } catch (...) {
    return Failed();
  }
}

orve_error orve_clsDynamicPressure_let_CrestHeight_Z(orve_clsDynamicPressure object, orve_WindSectors WindSector, float value) {
  const orve::LibraryFloatState state;
  try {
    const auto self = ObjectOf<orve::clsDynamicPressure>(object);
    self->CrestHeight_Z(static_cast<orve::WindSectors>(WindSector), value);
    return Succeeded();
  } catch (...) {
    return Failed();
  }
}

orve_error orve_clsDynamicPressure_get_SiteLocation_X(orve_clsDynamicPressure object, orve_WindSectors WindSector, float* result) {
  const orve::LibraryFloatState state;
  try {
    RequireResult(result);
    const auto self = ObjectOf<orve::clsDynamicPressure>(object);
    Give(result, self->SiteLocation_X(static_cast<orve::WindSectors>(WindSector)));
    return Succeeded();
  } catch (...) {
    return Failed();
  }
}

orve_error orve_clsDynamicPressure_let_SiteLocation_X(orve_clsDynamicPressure object, orve_WindSectors WindSector, float value) {
  const orve::LibraryFloatState state;
  try {
    const auto self = ObjectOf<orve::clsDynamicPressure>(object);
    self->SiteLocation_X(static_cast<orve::WindSectors>(WindSector), value);
    return Succeeded();
  } catch (...) {
    return Failed();
  }
}

orve_error orve_clsDynamicPressure_get_UpwindLength_LU(orve_clsDynamicPressure object, orve_WindSectors WindSector, float* result) {
  const orve::LibraryFloatState state;
  try {
    RequireResult(result);
    const auto self = ObjectOf<orve::clsDynamicPressure>(object);
    Give(result, self->UpwindLength_LU(static_cast<orve::WindSectors>(WindSector)));
    return Succeeded();
  } catch (...) {
    return Failed();
  }
}

orve_error orve_clsDynamicPressure_let_UpwindLength_LU(orve_clsDynamicPressure object, orve_WindSectors WindSector, float value) {
  const orve::LibraryFloatState state;
  try {
    const auto self = ObjectOf<orve::clsDynamicPressure>(object);
    self->UpwindLength_LU(static_cast<orve::WindSectors>(WindSector), value);
    return Succeeded();
  } catch (...) {
    return Failed();
  }
}

orve_error orve_clsDynamicPressure_get_DownwindLength_LD(orve_clsDynamicPressure object, orve_WindSectors WindSector, float* result) {
  const orve::LibraryFloatState state;
  try {
    RequireResult(result);
    const auto self = ObjectOf<orve::clsDynamicPressure>(object);
    Give(result, self->DownwindLength_LD(static_cast<orve::WindSectors>(WindSector)));
    return Succeeded();
  } catch (...) {
    return Failed();
  }
}

orve_error orve_clsDynamicPressure_let_DownwindLength_LD(orve_clsDynamicPressure object, orve_WindSectors WindSector, float value) {
  const orve::LibraryFloatState state;
  try {
    const auto self = ObjectOf<orve::clsDynamicPressure>(object);
    self->DownwindLength_LD(static_cast<orve::WindSectors>(WindSector), value);
    return Succeeded();
  } catch (...) {
    return Failed();
  }
}

orve_error orve_clsDynamicPressure_get_BaseAltitude(orve_clsDynamicPressure object, orve_WindSectors WindSector, float* result) {
  const orve::LibraryFloatState state;
  try {
    RequireResult(result);
    const auto self = ObjectOf<orve::clsDynamicPressure>(object);
    Give(result, self->BaseAltitude(static_cast<orve::WindSectors>(WindSector)));
    return Succeeded();
  } catch (...) {
    return Failed();
  }
}

orve_error orve_clsDynamicPressure_let_BaseAltitude(orve_clsDynamicPressure object, orve_WindSectors WindSector, float value) {
  const orve::LibraryFloatState state;
  try {
    const auto self = ObjectOf<orve::clsDynamicPressure>(object);
    self->BaseAltitude(static_cast<orve::WindSectors>(WindSector), value);
    return Succeeded();
  } catch (...) {
    return Failed();
  }
}

orve_error orve_clsDynamicPressure_get_ObstructionHeight_Ho(orve_clsDynamicPressure object, orve_WindSectors WindSector, float* result) {
  const orve::LibraryFloatState state;
  try {
    RequireResult(result);
    const auto self = ObjectOf<orve::clsDynamicPressure>(object);
    Give(result, self->ObstructionHeight_Ho(static_cast<orve::WindSectors>(WindSector)));
    return Succeeded();
  } catch (...) {
    return Failed();
  }
}

orve_error orve_clsDynamicPressure_let_ObstructionHeight_Ho(orve_clsDynamicPressure object, orve_WindSectors WindSector, float value) {
  const orve::LibraryFloatState state;
  try {
    const auto self = ObjectOf<orve::clsDynamicPressure>(object);
    self->ObstructionHeight_Ho(static_cast<orve::WindSectors>(WindSector), value);
    return Succeeded();
  } catch (...) {
    return Failed();
  }
}

orve_error orve_clsDynamicPressure_get_ObstructionSpacing_Xo(orve_clsDynamicPressure object, orve_WindSectors WindSector, float* result) {
  const orve::LibraryFloatState state;
  try {
    RequireResult(result);
    const auto self = ObjectOf<orve::clsDynamicPressure>(object);
    Give(result, self->ObstructionSpacing_Xo(static_cast<orve::WindSectors>(WindSector)));
    return Succeeded();
  } catch (...) {
    return Failed();
  }
}

orve_error orve_clsDynamicPressure_let_ObstructionSpacing_Xo(orve_clsDynamicPressure object, orve_WindSectors WindSector, float value) {
  const orve::LibraryFloatState state;
  try {
    const auto self = ObjectOf<orve::clsDynamicPressure>(object);
    self->ObstructionSpacing_Xo(static_cast<orve::WindSectors>(WindSector), value);
    return Succeeded();
  } catch (...) {
    return Failed();
  }
}

orve_error orve_clsDynamicPressure_get_FetchesToSea(orve_clsDynamicPressure object, orve_WindSectors WindSector, float* result) {
  const orve::LibraryFloatState state;
  try {
    RequireResult(result);
    const auto self = ObjectOf<orve::clsDynamicPressure>(object);
    Give(result, self->FetchesToSea(static_cast<orve::WindSectors>(WindSector)));
    return Succeeded();
  } catch (...) {
    return Failed();
  }
}

orve_error orve_clsDynamicPressure_let_FetchesToSea(orve_clsDynamicPressure object, orve_WindSectors WindSector, float value) {
  const orve::LibraryFloatState state;
  try {
    const auto self = ObjectOf<orve::clsDynamicPressure>(object);
    self->FetchesToSea(static_cast<orve::WindSectors>(WindSector), value);
    return Succeeded();
  } catch (...) {
    return Failed();
  }
}

orve_error orve_clsDynamicPressure_get_FetchesInTown(orve_clsDynamicPressure object, orve_WindSectors WindSector, float* result) {
  const orve::LibraryFloatState state;
  try {
    RequireResult(result);
    const auto self = ObjectOf<orve::clsDynamicPressure>(object);
    Give(result, self->FetchesInTown(static_cast<orve::WindSectors>(WindSector)));
    return Succeeded();
  } catch (...) {
    return Failed();
  }
}

orve_error orve_clsDynamicPressure_let_FetchesInTown(orve_clsDynamicPressure object, orve_WindSectors WindSector, float value) {
  const orve::LibraryFloatState state;
  try {
    const auto self = ObjectOf<orve::clsDynamicPressure>(object);
    self->FetchesInTown(static_cast<orve::WindSectors>(WindSector), value);
    return Succeeded();
  } catch (...) {
    return Failed();
  }
}

orve_error orve_clsDynamicPressure_get_ProbabilityFactor_Sp(orve_clsDynamicPressure object, float* result) {
  const orve::LibraryFloatState state;
  try {
    RequireResult(result);
    const auto self = ObjectOf<orve::clsDynamicPressure>(object);
    Give(result, self->ProbabilityFactor_Sp());
    return Succeeded();
  } catch (...) {
    return Failed();
  }
}

orve_error orve_clsDynamicPressure_get_SeasonalFactor_Ss(orve_clsDynamicPressure object, float* result) {
  const orve::LibraryFloatState state;
  try {
    RequireResult(result);
    const auto self = ObjectOf<orve::clsDynamicPressure>(object);
    Give(result, self->SeasonalFactor_Ss());
    return Succeeded();
  } catch (...) {
    return Failed();
  }
}

orve_error orve_clsDynamicPressure_get_DirectionFactor_Sd(orve_clsDynamicPressure object, orve_WindAreas WindArea, orve_WindSectors WindSector, float* result) {
  const orve::LibraryFloatState state;
  try {
    RequireResult(result);
    const auto self = ObjectOf<orve::clsDynamicPressure>(object);
    Give(result, self->DirectionFactor_Sd(static_cast<orve::WindAreas>(WindArea), static_cast<orve::WindSectors>(WindSector)));
    return Succeeded();
  } catch (...) {
    return Failed();
  }
}

orve_error orve_clsDynamicPressure_get_AltitudeFactor_Sa(orve_clsDynamicPressure object, orve_WindAreas WindArea, orve_WindSectors WindSector, float* result) {
  const orve::LibraryFloatState state;
  try {
    RequireResult(result);
    const auto self = ObjectOf<orve::clsDynamicPressure>(object);
    Give(result, self->AltitudeFactor_Sa(static_cast<orve::WindAreas>(WindArea), static_cast<orve::WindSectors>(WindSector)));
    return Succeeded();
  } catch (...) {
    return Failed();
  }
}

orve_error orve_clsDynamicPressure_get_DisplacementHeight_Hd(orve_clsDynamicPressure object, orve_WindAreas WindArea, orve_WindSectors WindSector, float* result) {
  const orve::LibraryFloatState state;
  try {
    RequireResult(result);
    const auto self = ObjectOf<orve::clsDynamicPressure>(object);
    Give(result, self->DisplacementHeight_Hd(static_cast<orve::WindAreas>(WindArea), static_cast<orve::WindSectors>(WindSector)));
    return Succeeded();
  } catch (...) {
    return Failed();
  }
}

orve_error orve_clsDynamicPressure_get_EffectiveHeight_He(orve_clsDynamicPressure object, orve_WindAreas WindArea, orve_WindSectors WindSector, float* result) {
  const orve::LibraryFloatState state;
  try {
    RequireResult(result);
    const auto self = ObjectOf<orve::clsDynamicPressure>(object);
    Give(result, self->EffectiveHeight_He(static_cast<orve::WindAreas>(WindArea), static_cast<orve::WindSectors>(WindSector)));
    return Succeeded();
  } catch (...) {
    return Failed();
  }
}

orve_error orve_clsDynamicPressure_get_TopographicIncrement_Sh(orve_clsDynamicPressure object, orve_WindAreas WindArea, orve_WindSectors WindSector, float* result) {
  const orve::LibraryFloatState state;
  try {
    RequireResult(result);
    const auto self = ObjectOf<orve::clsDynamicPressure>(object);
    Give(result, self->TopographicIncrement_Sh(static_cast<orve::WindAreas>(WindArea), static_cast<orve::WindSectors>(WindSector)));
    return Succeeded();
  } catch (...) {
    return Failed();
  }
}

orve_error orve_clsDynamicPressure_get_FetchFactor_Sc(orve_clsDynamicPressure object, orve_WindAreas WindArea, orve_WindSectors WindSector, float* result) {
  const orve::LibraryFloatState state;
  try {
    RequireResult(result);
    const auto self = ObjectOf<orve::clsDynamicPressure>(object);
    Give(result, self->FetchFactor_Sc(static_cast<orve::WindAreas>(WindArea), static_cast<orve::WindSectors>(WindSector)));
    return Succeeded();
  } catch (...) {
    return Failed();
  }
}

orve_error orve_clsDynamicPressure_get_TurbulenceFactor_St(orve_clsDynamicPressure object, orve_WindAreas WindArea, orve_WindSectors WindSector, float* result) {
  const orve::LibraryFloatState state;
  try {
    RequireResult(result);
    const auto self = ObjectOf<orve::clsDynamicPressure>(object);
    Give(result, self->TurbulenceFactor_St(static_cast<orve::WindAreas>(WindArea), static_cast<orve::WindSectors>(WindSector)));
    return Succeeded();
  } catch (...) {
    return Failed();
  }
}

orve_error orve_clsDynamicPressure_get_FetchAdjustmentFactor_Tc(orve_clsDynamicPressure object, orve_WindAreas WindArea, orve_WindSectors WindSector, float* result) {
  const orve::LibraryFloatState state;
  try {
    RequireResult(result);
    const auto self = ObjectOf<orve::clsDynamicPressure>(object);
    Give(result, self->FetchAdjustmentFactor_Tc(static_cast<orve::WindAreas>(WindArea), static_cast<orve::WindSectors>(WindSector)));
    return Succeeded();
  } catch (...) {
    return Failed();
  }
}

orve_error orve_clsDynamicPressure_get_TurbulenceAdjustmentFactor_Tt(orve_clsDynamicPressure object, orve_WindAreas WindArea, orve_WindSectors WindSector, float* result) {
  const orve::LibraryFloatState state;
  try {
    RequireResult(result);
    const auto self = ObjectOf<orve::clsDynamicPressure>(object);
    Give(result, self->TurbulenceAdjustmentFactor_Tt(static_cast<orve::WindAreas>(WindArea), static_cast<orve::WindSectors>(WindSector)));
    return Succeeded();
  } catch (...) {
    return Failed();
  }
}

orve_error orve_clsDynamicPressure_get_GustPeakFactor_gt(orve_clsDynamicPressure object, orve_WindAreas WindArea, orve_WindSectors WindSector, float* result) {
  const orve::LibraryFloatState state;
  try {
    RequireResult(result);
    const auto self = ObjectOf<orve::clsDynamicPressure>(object);
    Give(result, self->GustPeakFactor_gt(static_cast<orve::WindAreas>(WindArea), static_cast<orve::WindSectors>(WindSector)));
    return Succeeded();
  } catch (...) {
    return Failed();
  }
}

orve_error orve_clsDynamicPressure_get_TerrainAndBuildingFactor_Sb(orve_clsDynamicPressure object, orve_WindAreas WindArea, orve_WindSectors WindSector, float* result) {
  const orve::LibraryFloatState state;
  try {
    RequireResult(result);
    const auto self = ObjectOf<orve::clsDynamicPressure>(object);
    Give(result, self->TerrainAndBuildingFactor_Sb(static_cast<orve::WindAreas>(WindArea), static_cast<orve::WindSectors>(WindSector)));
    return Succeeded();
  } catch (...) {
    return Failed();
  }
}

orve_error orve_clsDynamicPressure_get_EffectiveWindSpeed_Ve(orve_clsDynamicPressure object, orve_WindAreas WindArea, orve_WindSectors WindSector, float* result) {
  const orve::LibraryFloatState state;
  try {
    RequireResult(result);
    const auto self = ObjectOf<orve::clsDynamicPressure>(object);
    Give(result, self->EffectiveWindSpeed_Ve(static_cast<orve::WindAreas>(WindArea), static_cast<orve::WindSectors>(WindSector)));
    return Succeeded();
  } catch (...) {
    return Failed();
  }
}

orve_error orve_clsDynamicPressure_get_DynamicPressure_q(orve_clsDynamicPressure object, orve_WindAreas WindArea, orve_WindSectors WindSector, float* result) {
  const orve::LibraryFloatState state;
  try {
    RequireResult(result);
    const auto self = ObjectOf<orve::clsDynamicPressure>(object);
    Give(result, self->DynamicPressure_q(static_cast<orve::WindAreas>(WindArea), static_cast<orve::WindSectors>(WindSector)));
    return Succeeded();
  } catch (...) {
    return Failed();
  }
}

orve_error orve_clsDynamicPressure_let_DynamicPressure_q(orve_clsDynamicPressure object, orve_WindAreas WindArea, orve_WindSectors WindSector, float value) {
  const orve::LibraryFloatState state;
  try {
    const auto self = ObjectOf<orve::clsDynamicPressure>(object);
    self->DynamicPressure_q(static_cast<orve::WindAreas>(WindArea), static_cast<orve::WindSectors>(WindSector), value);
    return Succeeded();
  } catch (...) {
    return Failed();
  }
}

orve_error orve_clsDynamicPressure_get_SizeEffectFactor_Ca(orve_clsDynamicPressure object, orve_WindAreas WindArea, orve_WindSectors WindSector, float* result) {
  const orve::LibraryFloatState state;
  try {
    RequireResult(result);
    const auto self = ObjectOf<orve::clsDynamicPressure>(object);
    Give(result, self->SizeEffectFactor_Ca(static_cast<orve::WindAreas>(WindArea), static_cast<orve::WindSectors>(WindSector)));
    return Succeeded();
  } catch (...) {
    return Failed();
  }
}

orve_error orve_clsDynamicPressure_let_SizeEffectFactor_Ca(orve_clsDynamicPressure object, orve_WindAreas WindArea, orve_WindSectors WindSector, float value) {
  const orve::LibraryFloatState state;
  try {
    const auto self = ObjectOf<orve::clsDynamicPressure>(object);
    self->SizeEffectFactor_Ca(static_cast<orve::WindAreas>(WindArea), static_cast<orve::WindSectors>(WindSector), value);
    return Succeeded();
  } catch (...) {
    return Failed();
  }
}

orve_error orve_clsDynamicPressure_get_SiteWindSpeed_Vs(orve_clsDynamicPressure object, orve_WindAreas WindArea, orve_WindSectors WindSector, float* result) {
  const orve::LibraryFloatState state;
  try {
    RequireResult(result);
    const auto self = ObjectOf<orve::clsDynamicPressure>(object);
    Give(result, self->SiteWindSpeed_Vs(static_cast<orve::WindAreas>(WindArea), static_cast<orve::WindSectors>(WindSector)));
    return Succeeded();
  } catch (...) {
    return Failed();
  }
}

orve_error orve_clsDynamicPressure_SelectSite(orve_clsDynamicPressure object, bool* result) {
  const orve::LibraryFloatState state;
  try {
    RequireResult(result);
    const auto self = ObjectOf<orve::clsDynamicPressure>(object);
    Give(result, self->SelectSite());
    return Succeeded();
  } catch (...) {
    return Failed();
  }
}

orve_error orve_clsDynamicPressure_EnterSite(orve_clsDynamicPressure object, bool* result) {
  const orve::LibraryFloatState state;
  try {
    RequireResult(result);
    const auto self = ObjectOf<orve::clsDynamicPressure>(object);
    Give(result, self->EnterSite());
    return Succeeded();
  } catch (...) {
    return Failed();
  }
}

orve_error orve_clsDynamicPressure_EditSite(orve_clsDynamicPressure object, bool* result) {
  const orve::LibraryFloatState state;
  try {
    RequireResult(result);
    const auto self = ObjectOf<orve::clsDynamicPressure>(object);
    Give(result, self->EditSite());
    return Succeeded();
  } catch (...) {
    return Failed();
  }
}
