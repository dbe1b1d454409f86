// Written by orve_generate from the description of the object model; don't edit it by hand.
#include "Records.h"

using namespace orve::c;

orve_error orve_clsBuildingDimensions_get_OrientationUnknown(orve_clsBuildingDimensions object, bool* result) {
  const orve::LibraryFloatState state;
  try {
    RequireResult(result);
    const auto self = ObjectOf<orve::clsBuildingDimensions>(object);
    Give(result, self->OrientationUnknown());
    return Succeeded();
  } catch (...) {
    return Failed();
  }
}

orve_error orve_clsBuildingDimensions_let_OrientationUnknown(orve_clsBuildingDimensions object, bool value) {
  const orve::LibraryFloatState state;
  try {
    const auto self = ObjectOf<orve::clsBuildingDimensions>(object);
    self->OrientationUnknown(value);
    return Succeeded();
  } catch (...) {
    return Failed();
  }
}

orve_error orve_clsBuildingDimensions_get_Orientation(orve_clsBuildingDimensions object, int16_t* result) {
  const orve::LibraryFloatState state;
  try {
    RequireResult(result);
    const auto self = ObjectOf<orve::clsBuildingDimensions>(object);
    Give(result, self->Orientation());
    return Succeeded();
  } catch (...) {
    return Failed();
  }
}

orve_error orve_clsBuildingDimensions_let_Orientation(orve_clsBuildingDimensions object, int16_t value) {
  const orve::LibraryFloatState state;
  try {
    const auto self = ObjectOf<orve::clsBuildingDimensions>(object);
    self->Orientation(value);
    return Succeeded();
  } catch (...) {
    return Failed();
  }
}

orve_error orve_clsBuildingDimensions_get_RoofType(orve_clsBuildingDimensions object, orve_RoofTypes* result) {
  const orve::LibraryFloatState state;
  try {
    RequireResult(result);
    const auto self = ObjectOf<orve::clsBuildingDimensions>(object);
    Give(result, self->RoofType());
    return Succeeded();
  } catch (...) {
    return Failed();
  }
}

orve_error orve_clsBuildingDimensions_let_RoofType(orve_clsBuildingDimensions object, orve_RoofTypes value) {
  const orve::LibraryFloatState state;
  try {
    const auto self = ObjectOf<orve::clsBuildingDimensions>(object);
    self->RoofType(static_cast<orve::RoofTypes>(value));
    return Succeeded();
  } catch (...) {
    return Failed();
  }
}

orve_error orve_clsBuildingDimensions_get_Face1And3_Length(orve_clsBuildingDimensions object, float* result) {
  const orve::LibraryFloatState state;
  try {
    RequireResult(result);
    const auto self = ObjectOf<orve::clsBuildingDimensions>(object);
    Give(result, self->Face1And3_Length());
    return Succeeded();
  } catch (...) {
    return Failed();
  }
}

orve_error orve_clsBuildingDimensions_let_Face1And3_Length(orve_clsBuildingDimensions object, float value) {
  const orve::LibraryFloatState state;
  try {
    const auto self = ObjectOf<orve::clsBuildingDimensions>(object);
    self->Face1And3_Length(value);
    return Succeeded();
  } catch (...) {
    return Failed();
  }
}

orve_error orve_clsBuildingDimensions_get_Face2And4_Width(orve_clsBuildingDimensions object, float* result) {
  const orve::LibraryFloatState state;
  try {
    RequireResult(result);
    const auto self = ObjectOf<orve::clsBuildingDimensions>(object);
    Give(result, self->Face2And4_Width());
    return Succeeded();
  } catch (...) {
    return Failed();
  }
}

orve_error orve_clsBuildingDimensions_let_Face2And4_Width(orve_clsBuildingDimensions object, float value) {
  const orve::LibraryFloatState state;
  try {
    const auto self = ObjectOf<orve::clsBuildingDimensions>(object);
    self->Face2And4_Width(value);
    return Succeeded();
  } catch (...) {
    return Failed();
  }
}

orve_error orve_clsBuildingDimensions_get_ConsiderRoof(orve_clsBuildingDimensions object, bool* result) {
  const orve::LibraryFloatState state;
  try {
    RequireResult(result);
    const auto self = ObjectOf<orve::clsBuildingDimensions>(object);
    Give(result, self->ConsiderRoof());
    return Succeeded();
  } catch (...) {
    return Failed();
  }
}

orve_error orve_clsBuildingDimensions_let_ConsiderRoof(orve_clsBuildingDimensions object, bool value) {
  const orve::LibraryFloatState state;
  try {
    const auto self = ObjectOf<orve::clsBuildingDimensions>(object);
    self->ConsiderRoof(value);
    return Succeeded();
  } catch (...) {
    return Failed();
  }
}

orve_error orve_clsBuildingDimensions_get_ConsiderWalls(orve_clsBuildingDimensions object, bool* result) {
  const orve::LibraryFloatState state;
  try {
    RequireResult(result);
    const auto self = ObjectOf<orve::clsBuildingDimensions>(object);
    Give(result, self->ConsiderWalls());
    return Succeeded();
  } catch (...) {
    return Failed();
  }
}

orve_error orve_clsBuildingDimensions_let_ConsiderWalls(orve_clsBuildingDimensions object, bool value) {
  const orve::LibraryFloatState state;
  try {
    const auto self = ObjectOf<orve::clsBuildingDimensions>(object);
    self->ConsiderWalls(value);
    return Succeeded();
  } catch (...) {
    return Failed();
  }
}

orve_error orve_clsBuildingDimensions_get_ConsiderCantilever(orve_clsBuildingDimensions object, bool* result) {
  const orve::LibraryFloatState state;
  try {
    RequireResult(result);
    const auto self = ObjectOf<orve::clsBuildingDimensions>(object);
    Give(result, self->ConsiderCantilever());
    return Succeeded();
  } catch (...) {
    return Failed();
  }
}

orve_error orve_clsBuildingDimensions_let_ConsiderCantilever(orve_clsBuildingDimensions object, bool value) {
  const orve::LibraryFloatState state;
  try {
    const auto self = ObjectOf<orve::clsBuildingDimensions>(object);
    self->ConsiderCantilever(value);
    return Succeeded();
  } catch (...) {
    return Failed();
  }
}

orve_error orve_clsBuildingDimensions_get_ConsiderParapet(orve_clsBuildingDimensions object, bool* result) {
  const orve::LibraryFloatState state;
  try {
    RequireResult(result);
    const auto self = ObjectOf<orve::clsBuildingDimensions>(object);
    Give(result, self->ConsiderParapet());
    return Succeeded();
  } catch (...) {
    return Failed();
  }
}

orve_error orve_clsBuildingDimensions_let_ConsiderParapet(orve_clsBuildingDimensions object, bool value) {
  const orve::LibraryFloatState state;
  try {
    const auto self = ObjectOf<orve::clsBuildingDimensions>(object);
    self->ConsiderParapet(value);
    return Succeeded();
  } catch (...) {
    return Failed();
  }
}

orve_error orve_clsBuildingDimensions_get_Roof_Height(orve_clsBuildingDimensions object, float* result) {
  const orve::LibraryFloatState state;
  try {
    RequireResult(result);
    const auto self = ObjectOf<orve::clsBuildingDimensions>(object);
    Give(result, self->Roof_Height());
    return Succeeded();
  } catch (...) {
    return Failed();
  }
}

orve_error orve_clsBuildingDimensions_let_Roof_Height(orve_clsBuildingDimensions object, float value) {
  const orve::LibraryFloatState state;
  try {
    const auto self = ObjectOf<orve::clsBuildingDimensions>(object);
    self->Roof_Height(value);
    return Succeeded();
  } catch (...) {
    return Failed();
  }
}

orve_error orve_clsBuildingDimensions_get_Roof_Diagonal(orve_clsBuildingDimensions object, float* result) {
  const orve::LibraryFloatState state;
  try {
    RequireResult(result);
    const auto self = ObjectOf<orve::clsBuildingDimensions>(object);
    Give(result, self->Roof_Diagonal());
    return Succeeded();
  } catch (...) {
    return Failed();
  }
}

orve_error orve_clsBuildingDimensions_let_Roof_Diagonal(orve_clsBuildingDimensions object, float value) {
  const orve::LibraryFloatState state;
  try {
    const auto self = ObjectOf<orve::clsBuildingDimensions>(object);
    self->Roof_Diagonal(value);
    return Succeeded();
  } catch (...) {
    return Failed();
  }
}

orve_error orve_clsBuildingDimensions_get_Roof_Diagonal_Default(orve_clsBuildingDimensions object, float* result) {
  const orve::LibraryFloatState state;
  try {
    RequireResult(result);
    const auto self = ObjectOf<orve::clsBuildingDimensions>(object);
    Give(result, self->Roof_Diagonal_Default());
    return Succeeded();
  } catch (...) {
    return Failed();
  }
}

orve_error orve_clsBuildingDimensions_get_Roof_ParapetHeight(orve_clsBuildingDimensions object, float* result) {
  const orve::LibraryFloatState state;
  try {
    RequireResult(result);
    const auto self = ObjectOf<orve::clsBuildingDimensions>(object);
    Give(result, self->Roof_ParapetHeight());
    return Succeeded();
  } catch (...) {
    return Failed();
  }
}

orve_error orve_clsBuildingDimensions_let_Roof_ParapetHeight(orve_clsBuildingDimensions object, float value) {
  const orve::LibraryFloatState state;
  try {
    const auto self = ObjectOf<orve::clsBuildingDimensions>(object);
    self->Roof_ParapetHeight(value);
    return Succeeded();
  } catch (...) {
    return Failed();
  }
}

orve_error orve_clsBuildingDimensions_get_Roof_EavesRadius(orve_clsBuildingDimensions object, float* result) {
  const orve::LibraryFloatState state;
  try {
    RequireResult(result);
    const auto self = ObjectOf<orve::clsBuildingDimensions>(object);
    Give(result, self->Roof_EavesRadius());
    return Succeeded();
  } catch (...) {
    return Failed();
  }
}

orve_error orve_clsBuildingDimensions_let_Roof_EavesRadius(orve_clsBuildingDimensions object, float value) {
  const orve::LibraryFloatState state;
  try {
    const auto self = ObjectOf<orve::clsBuildingDimensions>(object);
    self->Roof_EavesRadius(value);
    return Succeeded();
  } catch (...) {
    return Failed();
  }
}

orve_error orve_clsBuildingDimensions_get_Roof_MansardSlope(orve_clsBuildingDimensions object, float* result) {
  const orve::LibraryFloatState state;
  try {
    RequireResult(result);
    const auto self = ObjectOf<orve::clsBuildingDimensions>(object);
    Give(result, self->Roof_MansardSlope());
    return Succeeded();
  } catch (...) {
    return Failed();
  }
}

orve_error orve_clsBuildingDimensions_let_Roof_MansardSlope(orve_clsBuildingDimensions object, float value) {
  const orve::LibraryFloatState state;
  try {
    const auto self = ObjectOf<orve::clsBuildingDimensions>(object);
    self->Roof_MansardSlope(value);
    return Succeeded();
  } catch (...) {
    return Failed();
  }
}

orve_error orve_clsBuildingDimensions_get_Roof_Pitch(orve_clsBuildingDimensions object, float* result) {
  const orve::LibraryFloatState state;
  try {
    RequireResult(result);
    const auto self = ObjectOf<orve::clsBuildingDimensions>(object);
    Give(result, self->Roof_Pitch());
    return Succeeded();
  } catch (...) {
    return Failed();
  }
}

orve_error orve_clsBuildingDimensions_let_Roof_Pitch(orve_clsBuildingDimensions object, float value) {
  const orve::LibraryFloatState state;
  try {
    const auto self = ObjectOf<orve::clsBuildingDimensions>(object);
    self->Roof_Pitch(value);
    return Succeeded();
  } catch (...) {
    return Failed();
  }
}

orve_error orve_clsBuildingDimensions_get_Roof_RiseHeight(orve_clsBuildingDimensions object, float* result) {
  const orve::LibraryFloatState state;
  try {
    RequireResult(result);
    const auto self = ObjectOf<orve::clsBuildingDimensions>(object);
    Give(result, self->Roof_RiseHeight());
    return Succeeded();
  } catch (...) {
    return Failed();
  }
}

orve_error orve_clsBuildingDimensions_let_Roof_RiseHeight(orve_clsBuildingDimensions object, float value) {
  const orve::LibraryFloatState state;
  try {
    const auto self = ObjectOf<orve::clsBuildingDimensions>(object);
    self->Roof_RiseHeight(value);
    return Succeeded();
  } catch (...) {
    return Failed();
  }
}

orve_error orve_clsBuildingDimensions_get_Roof_FrameType(orve_clsBuildingDimensions object, orve_FrameTypes* result) {
  const orve::LibraryFloatState state;
  try {
    RequireResult(result);
    const auto self = ObjectOf<orve::clsBuildingDimensions>(object);
    Give(result, self->Roof_FrameType());
    return Succeeded();
  } catch (...) {
    return Failed();
  }
}

orve_error orve_clsBuildingDimensions_let_Roof_FrameType(orve_clsBuildingDimensions object, orve_FrameTypes value) {
  const orve::LibraryFloatState state;
  try {
    const auto self = ObjectOf<orve::clsBuildingDimensions>(object);
    self->Roof_FrameType(static_cast<orve::FrameTypes>(value));
    return Succeeded();
  } catch (...) {
    return Failed();
  }
}

orve_error orve_clsBuildingDimensions_get_Wall_SideHeight(orve_clsBuildingDimensions object, float* result) {
  const orve::LibraryFloatState state;
  try {
    RequireResult(result);
    const auto self = ObjectOf<orve::clsBuildingDimensions>(object);
    Give(result, self->Wall_SideHeight());
    return Succeeded();
  } catch (...) {
    return Failed();
  }
}

orve_error orve_clsBuildingDimensions_let_Wall_SideHeight(orve_clsBuildingDimensions object, float value) {
  const orve::LibraryFloatState state;
  try {
    const auto self = ObjectOf<orve::clsBuildingDimensions>(object);
    self->Wall_SideHeight(value);
    return Succeeded();
  } catch (...) {
    return Failed();
  }
}

orve_error orve_clsBuildingDimensions_get_Wall_SideDiagonal(orve_clsBuildingDimensions object, float* result) {
  const orve::LibraryFloatState state;
  try {
    RequireResult(result);
    const auto self = ObjectOf<orve::clsBuildingDimensions>(object);
    Give(result, self->Wall_SideDiagonal());
    return Succeeded();
  } catch (...) {
    return Failed();
  }
}

orve_error orve_clsBuildingDimensions_let_Wall_SideDiagonal(orve_clsBuildingDimensions object, float value) {
  const orve::LibraryFloatState state;
  try {
    const auto self = ObjectOf<orve::clsBuildingDimensions>(object);
    self->Wall_SideDiagonal(value);
    return Succeeded();
  } catch (...) {
    return Failed();
  }
}

orve_error orve_clsBuildingDimensions_get_Wall_SideDiagonal_Default(orve_clsBuildingDimensions object, float* result) {
  const orve::LibraryFloatState state;
  try {
    RequireResult(result);
    const auto self = ObjectOf<orve::clsBuildingDimensions>(object);
    Give(result, self->Wall_SideDiagonal_Default());
    return Succeeded();
  } catch (...) {
    return Failed();
  }
}

orve_error orve_clsBuildingDimensions_get_Wall_GableHeight(orve_clsBuildingDimensions object, float* result) {
  const orve::LibraryFloatState state;
  try {
    RequireResult(result);
    const auto self = ObjectOf<orve::clsBuildingDimensions>(object);
    Give(result, self->Wall_GableHeight());
    return Succeeded();
  } catch (...) {
    return Failed();
  }
}

orve_error orve_clsBuildingDimensions_let_Wall_GableHeight(orve_clsBuildingDimensions object, float value) {
  const orve::LibraryFloatState state;
  try {
    const auto self = ObjectOf<orve::clsBuildingDimensions>(object);
    self->Wall_GableHeight(value);
    return Succeeded();
  } catch (...) {
    return Failed();
  }
}

orve_error orve_clsBuildingDimensions_get_Wall_GableDiagonal(orve_clsBuildingDimensions object, float* result) {
  const orve::LibraryFloatState state;
  try {
    RequireResult(result);
    const auto self = ObjectOf<orve::clsBuildingDimensions>(object);
    Give(result, self->Wall_GableDiagonal());
    return Succeeded();
  } catch (...) {
    return Failed();
  }
}

orve_error orve_clsBuildingDimensions_let_Wall_GableDiagonal(orve_clsBuildingDimensions object, float value) {
  const orve::LibraryFloatState state;
  try {
    const auto self = ObjectOf<orve::clsBuildingDimensions>(object);
    self->Wall_GableDiagonal(value);
    return Succeeded();
  } catch (...) {
    return Failed();
  }
}

orve_error orve_clsBuildingDimensions_get_Wall_GableDiagonal_Default(orve_clsBuildingDimensions object, float* result) {
  const orve::LibraryFloatState state;
  try {
    RequireResult(result);
    const auto self = ObjectOf<orve::clsBuildingDimensions>(object);
    Give(result, self->Wall_GableDiagonal_Default());
    return Succeeded();
  } catch (...) {
    return Failed();
  }
}

orve_error orve_clsBuildingDimensions_get_Wall_GableFaces(orve_clsBuildingDimensions object, orve_GableFaces* result) {
  const orve::LibraryFloatState state;
  try {
    RequireResult(result);
    const auto self = ObjectOf<orve::clsBuildingDimensions>(object);
    Give(result, self->Wall_GableFaces());
    return Succeeded();
  } catch (...) {
    return Failed();
  }
}

orve_error orve_clsBuildingDimensions_let_Wall_GableFaces(orve_clsBuildingDimensions object, orve_GableFaces value) {
  const orve::LibraryFloatState state;
  try {
    const auto self = ObjectOf<orve::clsBuildingDimensions>(object);
    self->Wall_GableFaces(static_cast<orve::GableFaces>(value));
    return Succeeded();
  } catch (...) {
    return Failed();
  }
}

orve_error orve_clsBuildingDimensions_get_Wall_GapFace1(orve_clsBuildingDimensions object, float* result) {
  const orve::LibraryFloatState state;
  try {
    RequireResult(result);
    const auto self = ObjectOf<orve::clsBuildingDimensions>(object);
    Give(result, self->Wall_GapFace1());
    return Succeeded();
  } catch (...) {
    return Failed();
  }
}

orve_error orve_clsBuildingDimensions_let_Wall_GapFace1(orve_clsBuildingDimensions object, float value) {
  const orve::LibraryFloatState state;
  try {
    const auto self = ObjectOf<orve::clsBuildingDimensions>(object);
    self->Wall_GapFace1(value);
    return Succeeded();
  } catch (...) {
    return Failed();
  }
}

orve_error orve_clsBuildingDimensions_get_Wall_GapFace2(orve_clsBuildingDimensions object, float* result) {
  const orve::LibraryFloatState state;
  try {
    RequireResult(result);
    const auto self = ObjectOf<orve::clsBuildingDimensions>(object);
    Give(result, self->Wall_GapFace2());
    return Succeeded();
  } catch (...) {
    return Failed();
  }
}

orve_error orve_clsBuildingDimensions_let_Wall_GapFace2(orve_clsBuildingDimensions object, float value) {
  const orve::LibraryFloatState state;
  try {
    const auto self = ObjectOf<orve::clsBuildingDimensions>(object);
    self->Wall_GapFace2(value);
    return Succeeded();
  } catch (...) {
    return Failed();
  }
}

orve_error orve_clsBuildingDimensions_get_Wall_GapFace3(orve_clsBuildingDimensions object, float* result) {
  const orve::LibraryFloatState state;
  try {
    RequireResult(result);
    const auto self = ObjectOf<orve::clsBuildingDimensions>(object);
    Give(result, self->Wall_GapFace3());
    return Succeeded();
  } catch (...) {
    return Failed();
  }
}

orve_error orve_clsBuildingDimensions_let_Wall_GapFace3(orve_clsBuildingDimensions object, float value) {
  const orve::LibraryFloatState state;
  try {
    const auto self = ObjectOf<orve::clsBuildingDimensions>(object);
    self->Wall_GapFace3(value);
    return Succeeded();
  } catch (...) {
    return Failed();
  }
}

orve_error orve_clsBuildingDimensions_get_Wall_GapFace4(orve_clsBuildingDimensions object, float* result) {
  const orve::LibraryFloatState state;
  try {
    RequireResult(result);
    const auto self = ObjectOf<orve::clsBuildingDimensions>(object);
    Give(result, self->Wall_GapFace4());
    return Succeeded();
  } catch (...) {
    return Failed();
  }
}

orve_error orve_clsBuildingDimensions_let_Wall_GapFace4(orve_clsBuildingDimensions object, float value) {
  const orve::LibraryFloatState state;
  try {
    const auto self = ObjectOf<orve::clsBuildingDimensions>(object);
    self->Wall_GapFace4(value);
    return Succeeded();
  } catch (...) {
    return Failed();
  }
}

orve_error orve_clsBuildingDimensions_get_CantileverFace1Or2_Length(orve_clsBuildingDimensions object, float* result) {
  const orve::LibraryFloatState state;
  try {
    RequireResult(result);
    const auto self = ObjectOf<orve::clsBuildingDimensions>(object);
    Give(result, self->CantileverFace1Or2_Length());
    return Succeeded();
  } catch (...) {
    return Failed();
  }
}

orve_error orve_clsBuildingDimensions_let_CantileverFace1Or2_Length(orve_clsBuildingDimensions object, float value) {
  const orve::LibraryFloatState state;
  try {
    const auto self = ObjectOf<orve::clsBuildingDimensions>(object);
    self->CantileverFace1Or2_Length(value);
    return Succeeded();
  } catch (...) {
    return Failed();
  }
}

orve_error orve_clsBuildingDimensions_get_CantileverFace3Or4_Length(orve_clsBuildingDimensions object, float* result) {
  const orve::LibraryFloatState state;
  try {
    RequireResult(result);
    const auto self = ObjectOf<orve::clsBuildingDimensions>(object);
    Give(result, self->CantileverFace3Or4_Length());
    return Succeeded();
  } catch (...) {
    return Failed();
  }
}

orve_error orve_clsBuildingDimensions_let_CantileverFace3Or4_Length(orve_clsBuildingDimensions object, float value) {
  const orve::LibraryFloatState state;
  try {
    const auto self = ObjectOf<orve::clsBuildingDimensions>(object);
    self->CantileverFace3Or4_Length(value);
    return Succeeded();
  } catch (...) {
    return Failed();
  }
}

orve_error orve_clsBuildingDimensions_get_Parapet_Height(orve_clsBuildingDimensions object, float* result) {
  const orve::LibraryFloatState state;
  try {
    RequireResult(result);
    const auto self = ObjectOf<orve::clsBuildingDimensions>(object);
    Give(result, self->Parapet_Height());
    return Succeeded();
  } catch (...) {
    return Failed();
  }
}

orve_error orve_clsBuildingDimensions_let_Parapet_Height(orve_clsBuildingDimensions object, float value) {
  const orve::LibraryFloatState state;
  try {
    const auto self = ObjectOf<orve::clsBuildingDimensions>(object);
    self->Parapet_Height(value);
    return Succeeded();
  } catch (...) {
    return Failed();
  }
}

orve_error orve_clsBuildingDimensions_get_Parapet_HeightFromFFL_m(orve_clsBuildingDimensions object, float* result) {
  const orve::LibraryFloatState state;
  try {
    RequireResult(result);
    const auto self = ObjectOf<orve::clsBuildingDimensions>(object);
    Give(result, self->Parapet_HeightFromFFL_m());
    return Succeeded();
  } catch (...) {
    return Failed();
  }
}

orve_error orve_clsBuildingDimensions_let_Parapet_HeightFromFFL_m(orve_clsBuildingDimensions object, float value) {
  const orve::LibraryFloatState state;
  try {
    const auto self = ObjectOf<orve::clsBuildingDimensions>(object);
    self->Parapet_HeightFromFFL_m(value);
    return Succeeded();
  } catch (...) {
    return Failed();
  }
}

orve_error orve_clsBuildingDimensions_get_Parapet_SideDiagonal(orve_clsBuildingDimensions object, float* result) {
  const orve::LibraryFloatState state;
  try {
    RequireResult(result);
    const auto self = ObjectOf<orve::clsBuildingDimensions>(object);
    Give(result, self->Parapet_SideDiagonal());
    return Succeeded();
  } catch (...) {
    return Failed();
  }
}

orve_error orve_clsBuildingDimensions_let_Parapet_SideDiagonal(orve_clsBuildingDimensions object, float value) {
  const orve::LibraryFloatState state;
  try {
    const auto self = ObjectOf<orve::clsBuildingDimensions>(object);
    self->Parapet_SideDiagonal(value);
    return Succeeded();
  } catch (...) {
    return Failed();
  }
}

orve_error orve_clsBuildingDimensions_get_Parapet_SideDiagonal_Default(orve_clsBuildingDimensions object, float* result) {
  const orve::LibraryFloatState state;
  try {
    RequireResult(result);
    const auto self = ObjectOf<orve::clsBuildingDimensions>(object);
    Give(result, self->Parapet_SideDiagonal_Default());
    return Succeeded();
  } catch (...) {
    return Failed();
  }
}

orve_error orve_clsBuildingDimensions_get_Parapet_GableDiagonal(orve_clsBuildingDimensions object, float* result) {
  const orve::LibraryFloatState state;
  try {
    RequireResult(result);
    const auto self = ObjectOf<orve::clsBuildingDimensions>(object);
    Give(result, self->Parapet_GableDiagonal());
    return Succeeded();
  } catch (...) {
    return Failed();
  }
}

orve_error orve_clsBuildingDimensions_let_Parapet_GableDiagonal(orve_clsBuildingDimensions object, float value) {
  const orve::LibraryFloatState state;
  try {
    const auto self = ObjectOf<orve::clsBuildingDimensions>(object);
    self->Parapet_GableDiagonal(value);
    return Succeeded();
  } catch (...) {
    return Failed();
  }
}

orve_error orve_clsBuildingDimensions_get_Parapet_GableDiagonal_Default(orve_clsBuildingDimensions object, float* result) {
  const orve::LibraryFloatState state;
  try {
    RequireResult(result);
    const auto self = ObjectOf<orve::clsBuildingDimensions>(object);
    Give(result, self->Parapet_GableDiagonal_Default());
    return Succeeded();
  } catch (...) {
    return Failed();
  }
}

orve_error orve_clsBuildingDimensions_get_Parapet_SideReturnCorner(orve_clsBuildingDimensions object, bool* result) {
  const orve::LibraryFloatState state;
  try {
    RequireResult(result);
    const auto self = ObjectOf<orve::clsBuildingDimensions>(object);
    Give(result, self->Parapet_SideReturnCorner());
    return Succeeded();
  } catch (...) {
    return Failed();
  }
}

orve_error orve_clsBuildingDimensions_let_Parapet_SideReturnCorner(orve_clsBuildingDimensions object, bool value) {
  const orve::LibraryFloatState state;
  try {
    const auto self = ObjectOf<orve::clsBuildingDimensions>(object);
    self->Parapet_SideReturnCorner(value);
    return Succeeded();
  } catch (...) {
    return Failed();
  }
}

orve_error orve_clsBuildingDimensions_get_Parapet_GableReturnCorner(orve_clsBuildingDimensions object, bool* result) {
  const orve::LibraryFloatState state;
  try {
    RequireResult(result);
    const auto self = ObjectOf<orve::clsBuildingDimensions>(object);
    Give(result, self->Parapet_GableReturnCorner());
    return Succeeded();
  } catch (...) {
    return Failed();
  }
}

orve_error orve_clsBuildingDimensions_let_Parapet_GableReturnCorner(orve_clsBuildingDimensions object, bool value) {
  const orve::LibraryFloatState state;
  try {
    const auto self = ObjectOf<orve::clsBuildingDimensions>(object);
    self->Parapet_GableReturnCorner(value);
    return Succeeded();
  } catch (...) {
    return Failed();
  }
}
