// Written by orve_generate from the description of the object model; don't edit it by hand.
#include "Records.h"

using namespace orve::c;

orve_error orve_clsCurrentCase_create(orve_clsCurrentCase* result) {
  const orve::LibraryFloatState state;
  try {
    RequireResult(result);
    GiveObject(result, Create<orve::clsCurrentCase>());
    return Succeeded();
  } catch (...) {
    return Failed();
  }
}

orve_error orve_clsCurrentCase_get_BreCp_Dirty(orve_clsCurrentCase object, bool* result) {
  const orve::LibraryFloatState state;
  try {
    RequireResult(result);
    const auto self = ObjectOf<orve::clsCurrentCase>(object);
    Give(result, self->BreCp_Dirty());
    return Succeeded();
  } catch (...) {
    return Failed();
  }
}

orve_error orve_clsCurrentCase_let_BreCp_Dirty(orve_clsCurrentCase object, bool value) {
  const orve::LibraryFloatState state;
  try {
    const auto self = ObjectOf<orve::clsCurrentCase>(object);
    self->BreCp_Dirty(value);
    return Succeeded();
  } catch (...) {
    return Failed();
  }
}

orve_error orve_clsCurrentCase_get_BreOSDatabase(orve_clsCurrentCase object, bool* result) {
  const orve::LibraryFloatState state;
  try {
    RequireResult(result);
    const auto self = ObjectOf<orve::clsCurrentCase>(object);
    Give(result, self->BreOSDatabase());
    return Succeeded();
  } catch (...) {
    return Failed();
  }
}

orve_error orve_clsCurrentCase_let_BreOSDatabase(orve_clsCurrentCase object, bool value) {
  const orve::LibraryFloatState state;
  try {
    const auto self = ObjectOf<orve::clsCurrentCase>(object);
    self->BreOSDatabase(value);
    return Succeeded();
  } catch (...) {
    return Failed();
  }
}

orve_error orve_clsCurrentCase_get_BreVe_Dirty(orve_clsCurrentCase object, bool* result) {
  const orve::LibraryFloatState state;
  try {
    RequireResult(result);
    const auto self = ObjectOf<orve::clsCurrentCase>(object);
    Give(result, self->BreVe_Dirty());
    return Succeeded();
  } catch (...) {
    return Failed();
  }
}

orve_error orve_clsCurrentCase_let_BreVe_Dirty(orve_clsCurrentCase object, bool value) {
  const orve::LibraryFloatState state;
  try {
    const auto self = ObjectOf<orve::clsCurrentCase>(object);
    self->BreVe_Dirty(value);
    return Succeeded();
  } catch (...) {
    return Failed();
  }
}

orve_error orve_clsCurrentCase_get_Parent_Type(orve_clsCurrentCase object, orve_ParentTypes* result) {
  const orve::LibraryFloatState state;
  try {
    RequireResult(result);
    const auto self = ObjectOf<orve::clsCurrentCase>(object);
    Give(result, self->Parent_Type());
    return Succeeded();
  } catch (...) {
    return Failed();
  }
}

orve_error orve_clsCurrentCase_let_Parent_Type(orve_clsCurrentCase object, orve_ParentTypes value) {
  const orve::LibraryFloatState state;
  try {
    const auto self = ObjectOf<orve::clsCurrentCase>(object);
    self->Parent_Type(static_cast<orve::ParentTypes>(value));
    return Succeeded();
  } catch (...) {
    return Failed();
  }
}

orve_error orve_clsCurrentCase_get_Parent_Span(orve_clsCurrentCase object, float* result) {
  const orve::LibraryFloatState state;
  try {
    RequireResult(result);
    const auto self = ObjectOf<orve::clsCurrentCase>(object);
    Give(result, self->Parent_Span());
    return Succeeded();
  } catch (...) {
    return Failed();
  }
}

orve_error orve_clsCurrentCase_let_Parent_Span(orve_clsCurrentCase object, float value) {
  const orve::LibraryFloatState state;
  try {
    const auto self = ObjectOf<orve::clsCurrentCase>(object);
    self->Parent_Span(value);
    return Succeeded();
  } catch (...) {
    return Failed();
  }
}

orve_error orve_clsCurrentCase_get_Parent_Centres(orve_clsCurrentCase object, float* result) {
  const orve::LibraryFloatState state;
  try {
    RequireResult(result);
    const auto self = ObjectOf<orve::clsCurrentCase>(object);
    Give(result, self->Parent_Centres());
    return Succeeded();
  } catch (...) {
    return Failed();
  }
}

orve_error orve_clsCurrentCase_let_Parent_Centres(orve_clsCurrentCase object, float value) {
  const orve::LibraryFloatState state;
  try {
    const auto self = ObjectOf<orve::clsCurrentCase>(object);
    self->Parent_Centres(value);
    return Succeeded();
  } catch (...) {
    return Failed();
  }
}

orve_error orve_clsCurrentCase_get_Parent_RoofPitch(orve_clsCurrentCase object, int16_t* result) {
  const orve::LibraryFloatState state;
  try {
    RequireResult(result);
    const auto self = ObjectOf<orve::clsCurrentCase>(object);
    Give(result, self->Parent_RoofPitch());
    return Succeeded();
  } catch (...) {
    return Failed();
  }
}

orve_error orve_clsCurrentCase_let_Parent_RoofPitch(orve_clsCurrentCase object, int16_t value) {
  const orve::LibraryFloatState state;
  try {
    const auto self = ObjectOf<orve::clsCurrentCase>(object);
    self->Parent_RoofPitch(value);
    return Succeeded();
  } catch (...) {
    return Failed();
  }
}

orve_error orve_clsCurrentCase_get_Parent_HeightOfPost_m(orve_clsCurrentCase object, float* result) {
  const orve::LibraryFloatState state;
  try {
    RequireResult(result);
    const auto self = ObjectOf<orve::clsCurrentCase>(object);
    Give(result, self->Parent_HeightOfPost_m());
    return Succeeded();
  } catch (...) {
    return Failed();
  }
}

orve_error orve_clsCurrentCase_let_Parent_HeightOfPost_m(orve_clsCurrentCase object, float value) {
  const orve::LibraryFloatState state;
  try {
    const auto self = ObjectOf<orve::clsCurrentCase>(object);
    self->Parent_HeightOfPost_m(value);
    return Succeeded();
  } catch (...) {
    return Failed();
  }
}

orve_error orve_clsCurrentCase_get_Parent_HeightToTopOfPostFromFFL_m(orve_clsCurrentCase object, float* result) {
  const orve::LibraryFloatState state;
  try {
    RequireResult(result);
    const auto self = ObjectOf<orve::clsCurrentCase>(object);
    Give(result, self->Parent_HeightToTopOfPostFromFFL_m());
    return Succeeded();
  } catch (...) {
    return Failed();
  }
}

orve_error orve_clsCurrentCase_let_Parent_HeightToTopOfPostFromFFL_m(orve_clsCurrentCase object, float value) {
  const orve::LibraryFloatState state;
  try {
    const auto self = ObjectOf<orve::clsCurrentCase>(object);
    self->Parent_HeightToTopOfPostFromFFL_m(value);
    return Succeeded();
  } catch (...) {
    return Failed();
  }
}

orve_error orve_clsCurrentCase_get_Parent_BaySize_m(orve_clsCurrentCase object, float* result) {
  const orve::LibraryFloatState state;
  try {
    RequireResult(result);
    const auto self = ObjectOf<orve::clsCurrentCase>(object);
    Give(result, self->Parent_BaySize_m());
    return Succeeded();
  } catch (...) {
    return Failed();
  }
}

orve_error orve_clsCurrentCase_let_Parent_BaySize_m(orve_clsCurrentCase object, float value) {
  const orve::LibraryFloatState state;
  try {
    const auto self = ObjectOf<orve::clsCurrentCase>(object);
    self->Parent_BaySize_m(value);
    return Succeeded();
  } catch (...) {
    return Failed();
  }
}

orve_error orve_clsCurrentCase_get_PathToHelp(orve_clsCurrentCase object, char** result) {
  const orve::LibraryFloatState state;
  try {
    RequireResult(result);
    const auto self = ObjectOf<orve::clsCurrentCase>(object);
    Give(result, self->PathToHelp());
    return Succeeded();
  } catch (...) {
    return Failed();
  }
}

orve_error orve_clsCurrentCase_let_PathToHelp(orve_clsCurrentCase object, const char* value) {
  const orve::LibraryFloatState state;
  try {
    const auto self = ObjectOf<orve::clsCurrentCase>(object);
    self->PathToHelp(TextArgument(value, "value"));
    return Succeeded();
  } catch (...) {
    return Failed();
  }
}

orve_error orve_clsCurrentCase_get_PathToWindLoadCases(orve_clsCurrentCase object, char** result) {
  const orve::LibraryFloatState state;
  try {
    RequireResult(result);
    const auto self = ObjectOf<orve::clsCurrentCase>(object);
    Give(result, self->PathToWindLoadCases());
    return Succeeded();
  } catch (...) {
    return Failed();
  }
}

orve_error orve_clsCurrentCase_let_PathToWindLoadCases(orve_clsCurrentCase object, const char* value) {
  const orve::LibraryFloatState state;
  try {
    const auto self = ObjectOf<orve::clsCurrentCase>(object);
    self->PathToWindLoadCases(TextArgument(value, "value"));
    return Succeeded();
  } catch (...) {
    return Failed();
  }
}

orve_error orve_clsCurrentCase_get_IsDirty(orve_clsCurrentCase object, bool* result) {
  const orve::LibraryFloatState state;
  try {
    RequireResult(result);
    const auto self = ObjectOf<orve::clsCurrentCase>(object);
    Give(result, self->IsDirty());
    return Succeeded();
  } catch (...) {
    return Failed();
  }
}

orve_error orve_clsCurrentCase_let_IsDirty(orve_clsCurrentCase object, bool value) {
  const orve::LibraryFloatState state;
  try {
    const auto self = ObjectOf<orve::clsCurrentCase>(object);
    self->IsDirty(value);
    return Succeeded();
  } catch (...) {
    return Failed();
  }
}

orve_error orve_clsCurrentCase_get_Location(orve_clsCurrentCase object, char** result) {
  const orve::LibraryFloatState state;
  try {
    RequireResult(result);
    const auto self = ObjectOf<orve::clsCurrentCase>(object);
    Give(result, self->Location());
    return Succeeded();
  } catch (...) {
    return Failed();
  }
}

orve_error orve_clsCurrentCase_let_Location(orve_clsCurrentCase object, const char* value) {
  const orve::LibraryFloatState state;
  try {
    const auto self = ObjectOf<orve::clsCurrentCase>(object);
    self->Location(TextArgument(value, "value"));
    return Succeeded();
  } catch (...) {
    return Failed();
  }
}

orve_error orve_clsCurrentCase_get_LocationCorrect(orve_clsCurrentCase object, bool* result) {
  const orve::LibraryFloatState state;
  try {
    RequireResult(result);
    const auto self = ObjectOf<orve::clsCurrentCase>(object);
    Give(result, self->LocationCorrect());
    return Succeeded();
  } catch (...) {
    return Failed();
  }
}

orve_error orve_clsCurrentCase_get_Description(orve_clsCurrentCase object, char** result) {
  const orve::LibraryFloatState state;
  try {
    RequireResult(result);
    const auto self = ObjectOf<orve::clsCurrentCase>(object);
    Give(result, self->Description());
    return Succeeded();
  } catch (...) {
    return Failed();
  }
}

orve_error orve_clsCurrentCase_let_Description(orve_clsCurrentCase object, const char* value) {
  const orve::LibraryFloatState state;
  try {
    const auto self = ObjectOf<orve::clsCurrentCase>(object);
    self->Description(TextArgument(value, "value"));
    return Succeeded();
  } catch (...) {
    return Failed();
  }
}

orve_error orve_clsCurrentCase_get_Created(orve_clsCurrentCase object, double* result) {
  const orve::LibraryFloatState state;
  try {
    RequireResult(result);
    const auto self = ObjectOf<orve::clsCurrentCase>(object);
    Give(result, self->Created());
    return Succeeded();
  } catch (...) {
    return Failed();
  }
}

orve_error orve_clsCurrentCase_get_Modified(orve_clsCurrentCase object, double* result) {
  const orve::LibraryFloatState state;
  try {
    RequireResult(result);
    const auto self = ObjectOf<orve::clsCurrentCase>(object);
    Give(result, self->Modified());
    return Succeeded();
  } catch (...) {
    return Failed();
  }
}

orve_error orve_clsCurrentCase_get_breDataPath(orve_clsCurrentCase object, char** result) {
  const orve::LibraryFloatState state;
  try {
    RequireResult(result);
    const auto self = ObjectOf<orve::clsCurrentCase>(object);
    Give(result, self->breDataPath());
    return Succeeded();
  } catch (...) {
    return Failed();
  }
}

orve_error orve_clsCurrentCase_let_breDataPath(orve_clsCurrentCase object, const char* value) {
  const orve::LibraryFloatState state;
  try {
    const auto self = ObjectOf<orve::clsCurrentCase>(object);
    self->breDataPath(TextArgument(value, "value"));
    return Succeeded();
  } catch (...) {
    return Failed();
  }
}

orve_error orve_clsCurrentCase_get_BuildingDimensions(orve_clsCurrentCase object, orve_clsBuildingDimensions* result) {
  const orve::LibraryFloatState state;
  try {
    RequireResult(result);
    const auto self = ObjectOf<orve::clsCurrentCase>(object);
    GiveObject(result, self->BuildingDimensions());
    return Succeeded();
  } catch (...) {
    return Failed();
  }
}

orve_error orve_clsCurrentCase_set_BuildingDimensions(orve_clsCurrentCase object, orve_clsBuildingDimensions value) {
  const orve::LibraryFloatState state;
  try {
    const auto self = ObjectOf<orve::clsCurrentCase>(object);
    self->BuildingDimensions(ObjectOrNothing<orve::clsBuildingDimensions>(value));
    return Succeeded();
  } catch (...) {
    return Failed();
  }
}

orve_error orve_clsCurrentCase_get_DynamicPressure(orve_clsCurrentCase object, orve_clsDynamicPressure* result) {
  const orve::LibraryFloatState state;
  try {
    RequireResult(result);
    const auto self = ObjectOf<orve::clsCurrentCase>(object);
    GiveObject(result, self->DynamicPressure());
    return Succeeded();
  } catch (...) {
    return Failed();
  }
}

orve_error orve_clsCurrentCase_set_DynamicPressure(orve_clsCurrentCase object, orve_clsDynamicPressure value) {
  const orve::LibraryFloatState state;
  try {
    const auto self = ObjectOf<orve::clsCurrentCase>(object);
    self->DynamicPressure(ObjectOrNothing<orve::clsDynamicPressure>(value));
    return Succeeded();
  } catch (...) {
    return Failed();
  }
}

orve_error orve_clsCurrentCase_get_ExternalCoefficients(orve_clsCurrentCase object, orve_clsExternalCoefficients* result) {
  const orve::LibraryFloatState state;
  try {
    RequireResult(result);
    const auto self = ObjectOf<orve::clsCurrentCase>(object);
    GiveObject(result, self->ExternalCoefficients());
    return Succeeded();
  } catch (...) {
    return Failed();
  }
}

orve_error orve_clsCurrentCase_set_ExternalCoefficients(orve_clsCurrentCase object, orve_clsExternalCoefficients value) {
  const orve::LibraryFloatState state;
  try {
    const auto self = ObjectOf<orve::clsCurrentCase>(object);
    self->ExternalCoefficients(ObjectOrNothing<orve::clsExternalCoefficients>(value));
    return Succeeded();
  } catch (...) {
    return Failed();
  }
}

orve_error orve_clsCurrentCase_get_InternalCoefficients(orve_clsCurrentCase object, orve_clsInternalCoefficients* result) {
  const orve::LibraryFloatState state;
  try {
    RequireResult(result);
    const auto self = ObjectOf<orve::clsCurrentCase>(object);
    GiveObject(result, self->InternalCoefficients());
    return Succeeded();
  } catch (...) {
    return Failed();
  }
}

orve_error orve_clsCurrentCase_set_InternalCoefficients(orve_clsCurrentCase object, orve_clsInternalCoefficients value) {
  const orve::LibraryFloatState state;
  try {
    const auto self = ObjectOf<orve::clsCurrentCase>(object);
    self->InternalCoefficients(ObjectOrNothing<orve::clsInternalCoefficients>(value));
    return Succeeded();
  } catch (...) {
    return Failed();
  }
}

orve_error orve_clsCurrentCase_get_OverallAppliedLoads(orve_clsCurrentCase object, orve_clsOverallAppliedLoads* result) {
  const orve::LibraryFloatState state;
  try {
    RequireResult(result);
    const auto self = ObjectOf<orve::clsCurrentCase>(object);
    GiveObject(result, self->OverallAppliedLoads());
    return Succeeded();
  } catch (...) {
    return Failed();
  }
}

orve_error orve_clsCurrentCase_set_OverallAppliedLoads(orve_clsCurrentCase object, orve_clsOverallAppliedLoads value) {
  const orve::LibraryFloatState state;
  try {
    const auto self = ObjectOf<orve::clsCurrentCase>(object);
    self->OverallAppliedLoads(ObjectOrNothing<orve::clsOverallAppliedLoads>(value));
    return Succeeded();
  } catch (...) {
    return Failed();
  }
}

orve_error orve_clsCurrentCase_get_WindCaseList(orve_clsCurrentCase object, orve_clsWindCaseList* result) {
  const orve::LibraryFloatState state;
  try {
    RequireResult(result);
    const auto self = ObjectOf<orve::clsCurrentCase>(object);
    GiveObject(result, self->WindCaseList());
    return Succeeded();
  } catch (...) {
    return Failed();
  }
}

orve_error orve_clsCurrentCase_set_WindCaseList(orve_clsCurrentCase object, orve_clsWindCaseList value) {
  const orve::LibraryFloatState state;
  try {
    const auto self = ObjectOf<orve::clsCurrentCase>(object);
    self->WindCaseList(ObjectOrNothing<orve::clsWindCaseList>(value));
    return Succeeded();
  } catch (...) {
    return Failed();
  }
}

orve_error orve_clsCurrentCase_get_CantileverWindloads(orve_clsCurrentCase object, orve_clsCantileverWindLoads* result) {
  const orve::LibraryFloatState state;
  try {
    RequireResult(result);
    const auto self = ObjectOf<orve::clsCurrentCase>(object);
    GiveObject(result, self->CantileverWindloads());
    return Succeeded();
  } catch (...) {
    return Failed();
  }
}

orve_error orve_clsCurrentCase_set_CantileverWindloads(orve_clsCurrentCase object, orve_clsCantileverWindLoads value) {
  const orve::LibraryFloatState state;
  try {
    const auto self = ObjectOf<orve::clsCurrentCase>(object);
    self->CantileverWindloads(ObjectOrNothing<orve::clsCantileverWindLoads>(value));
    return Succeeded();
  } catch (...) {
    return Failed();
  }
}

orve_error orve_clsCurrentCase_Initialize_BreApps(orve_clsCurrentCase object) {
  const orve::LibraryFloatState state;
  try {
    const auto self = ObjectOf<orve::clsCurrentCase>(object);
    self->Initialize_BreApps();
    return Succeeded();
  } catch (...) {
    return Failed();
  }
}

orve_error orve_clsCurrentCase_Clear(orve_clsCurrentCase object) {
  const orve::LibraryFloatState state;
  try {
    const auto self = ObjectOf<orve::clsCurrentCase>(object);
    self->Clear();
    return Succeeded();
  } catch (...) {
    return Failed();
  }
}

orve_error orve_clsCurrentCase_Browse(orve_clsCurrentCase object, bool* result) {
  const orve::LibraryFloatState state;
  try {
    RequireResult(result);
    const auto self = ObjectOf<orve::clsCurrentCase>(object);
    Give(result, self->Browse());
    return Succeeded();
  } catch (...) {
    return Failed();
  }
}

orve_error orve_clsCurrentCase_OpenExisting(orve_clsCurrentCase object, const char* FileNameToOpen, bool* result) {
  const orve::LibraryFloatState state;
  try {
    RequireResult(result);
    const auto self = ObjectOf<orve::clsCurrentCase>(object);
    Give(result, self->OpenExisting(TextArgument(FileNameToOpen, "FileNameToOpen")));
    return Succeeded();
  } catch (...) {
    return Failed();
  }
}

orve_error orve_clsCurrentCase_Save(orve_clsCurrentCase object) {
  const orve::LibraryFloatState state;
  try {
    const auto self = ObjectOf<orve::clsCurrentCase>(object);
    self->Save();
    return Succeeded();
  } catch (...) {
    return Failed();
  }
}

orve_error orve_clsCurrentCase_SaveAs(orve_clsCurrentCase object) {
  const orve::LibraryFloatState state;
  try {
    const auto self = ObjectOf<orve::clsCurrentCase>(object);
    self->SaveAs();
    return Succeeded();
  } catch (...) {
    return Failed();
  }
}

orve_error orve_clsCurrentCase_get_OldBreVeVersion(orve_clsCurrentCase object, bool* result) {
  const orve::LibraryFloatState state;
  try {
    RequireResult(result);
    const auto self = ObjectOf<orve::clsCurrentCase>(object);
    Give(result, self->OldBreVeVersion());
    return Succeeded();
  } catch (...) {
    return Failed();
  }
}

orve_error orve_clsCurrentCase_get_OldBreCpVersion(orve_clsCurrentCase object, bool* result) {
  const orve::LibraryFloatState state;
  try {
    RequireResult(result);
    const auto self = ObjectOf<orve::clsCurrentCase>(object);
    Give(result, self->OldBreCpVersion());
    return Succeeded();
  } catch (...) {
    return Failed();
  }
}

orve_error orve_clsCurrentCase_connect_DirtyUpdated(orve_clsCurrentCase object, orve_clsCurrentCase_DirtyUpdated handler, void* user, orve_connection* result) {
  const orve::LibraryFloatState state;
  try {
    RequireResult(result);
    RequireCallback(handler != nullptr);
    const auto self = ObjectOf<orve::clsCurrentCase>(object);
    GiveConnection(result, self->DirtyUpdated.Connect([handler, user](bool NewValue) { RaiseFromCallback(CallHost(handler, NewValue, user)); }));
    return Succeeded();
  } catch (...) {
    return Failed();
  }
}

orve_error orve_clsCurrentCase_connect_LocationUpdated(orve_clsCurrentCase object, orve_clsCurrentCase_LocationUpdated handler, void* user, orve_connection* result) {
  const orve::LibraryFloatState state;
  try {
    RequireResult(result);
    RequireCallback(handler != nullptr);
    const auto self = ObjectOf<orve::clsCurrentCase>(object);
    GiveConnection(result, self->LocationUpdated.Connect([handler, user](const std::string& NewValue) { RaiseFromCallback(CallHost(handler, NewValue.c_str(), user)); }));
    return Succeeded();
  } catch (...) {
    return Failed();
  }
}

orve_error orve_clsCurrentCase_connect_WindCaseListUpdated(orve_clsCurrentCase object, orve_clsCurrentCase_WindCaseListUpdated handler, void* user, orve_connection* result) {
  const orve::LibraryFloatState state;
  try {
    RequireResult(result);
    RequireCallback(handler != nullptr);
    const auto self = ObjectOf<orve::clsCurrentCase>(object);
    GiveConnection(result, self->WindCaseListUpdated.Connect([handler, user]() { RaiseFromCallback(CallHost(handler, user)); }));
    return Succeeded();
  } catch (...) {
    return Failed();
  }
}

orve_error orve_clsCurrentCase_connect_WindCaseOpened(orve_clsCurrentCase object, orve_clsCurrentCase_WindCaseOpened handler, void* user, orve_connection* result) {
  const orve::LibraryFloatState state;
  try {
    RequireResult(result);
    RequireCallback(handler != nullptr);
    const auto self = ObjectOf<orve::clsCurrentCase>(object);
    GiveConnection(result, self->WindCaseOpened.Connect([handler, user](const std::string& FileName) { RaiseFromCallback(CallHost(handler, FileName.c_str(), user)); }));
    return Succeeded();
  } catch (...) {
    return Failed();
  }
}

orve_error orve_clsCurrentCase_connect_WindCaseSaved(orve_clsCurrentCase object, orve_clsCurrentCase_WindCaseSaved handler, void* user, orve_connection* result) {
  const orve::LibraryFloatState state;
  try {
    RequireResult(result);
    RequireCallback(handler != nullptr);
    const auto self = ObjectOf<orve::clsCurrentCase>(object);
    GiveConnection(result, self->WindCaseSaved.Connect([handler, user](const std::string& FileName) { RaiseFromCallback(CallHost(handler, FileName.c_str(), user)); }));
    return Succeeded();
  } catch (...) {
    return Failed();
  }
}
