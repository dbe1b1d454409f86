// The stored values of the building: each let stores a changed value and marks the case dirty.
#include "geometry/clsBuildingDimensions.h"

#include "common/Narrow.h"
#include "core/Marks.h"

namespace orve {

clsBuildingDimensions::clsBuildingDimensions() {
  ApplyDefaults();
}

void clsBuildingDimensions::OrientationUnknown(bool value) {
  StoreAndMarkDirty(m_OrientationUnknown, value);
}

void clsBuildingDimensions::Orientation(std::int16_t value) {
  StoreAndMarkDirty(m_Orientation, value);
}

void clsBuildingDimensions::RoofType(RoofTypes value) {
  StoreAndMarkDirty(m_RoofType, ToInt16(value));
}

void clsBuildingDimensions::Face1And3_Length(float value) {
  StoreAndMarkDirty(m_Face1And3_Length, value);
}

void clsBuildingDimensions::Face2And4_Width(float value) {
  StoreAndMarkDirty(m_Face2And4_Width, value);
}

void clsBuildingDimensions::ConsiderRoof(bool value) {
  StoreAndMarkDirty(m_ConsiderRoof, value);
}

void clsBuildingDimensions::ConsiderWalls(bool value) {
  StoreAndMarkDirty(m_ConsiderWalls, value);
}

void clsBuildingDimensions::ConsiderCantilever(bool value) {
  StoreAndMarkDirty(m_ConsiderCantilever, value);
}

void clsBuildingDimensions::ConsiderParapet(bool value) {
  StoreAndMarkDirty(m_ConsiderParapet, value);
}

void clsBuildingDimensions::Roof_Height(float value) {
  StoreAndMarkDirty(m_Roof_Height, value);
}

void clsBuildingDimensions::Roof_Diagonal(float value) {
  StoreAndMarkDirty(m_Roof_Diagonal, value);
}

void clsBuildingDimensions::Roof_ParapetHeight(float value) {
  StoreAndMarkDirty(m_Roof_ParapetHeight, value);
}

void clsBuildingDimensions::Roof_EavesRadius(float value) {
  StoreAndMarkDirty(m_Roof_EavesRadius, value);
}

void clsBuildingDimensions::Roof_MansardSlope(float value) {
  StoreAndMarkDirty(m_Roof_MansardSlope, value);
}

void clsBuildingDimensions::Roof_Pitch(float value) {
  StoreAndMarkDirty(m_Roof_Pitch, value);
}

void clsBuildingDimensions::Roof_RiseHeight(float value) {
  StoreAndMarkDirty(m_Roof_RiseHeight, value);
}

void clsBuildingDimensions::Roof_FrameType(FrameTypes value) {
  StoreAndMarkDirty(m_Roof_FrameType, ToInt16(value));
}

void clsBuildingDimensions::Wall_SideHeight(float value) {
  StoreAndMarkDirty(m_Wall_SideHeight, value);
}

void clsBuildingDimensions::Wall_SideDiagonal(float value) {
  StoreAndMarkDirty(m_Wall_SideDiagonal, value);
}

void clsBuildingDimensions::Wall_GableHeight(float value) {
  StoreAndMarkDirty(m_Wall_GableHeight, value);
}

void clsBuildingDimensions::Wall_GableDiagonal(float value) {
  StoreAndMarkDirty(m_Wall_GableDiagonal, value);
}

void clsBuildingDimensions::Wall_GableFaces(orve::GableFaces value) {
  StoreAndMarkDirty(m_Wall_GableFaces, ToInt16(value));
}

void clsBuildingDimensions::Wall_GapFace1(float value) {
  StoreAndMarkDirty(m_Wall_GapFace1, value);
}

void clsBuildingDimensions::Wall_GapFace2(float value) {
  StoreAndMarkDirty(m_Wall_GapFace2, value);
}

void clsBuildingDimensions::Wall_GapFace3(float value) {
  StoreAndMarkDirty(m_Wall_GapFace3, value);
}

void clsBuildingDimensions::Wall_GapFace4(float value) {
  StoreAndMarkDirty(m_Wall_GapFace4, value);
}

void clsBuildingDimensions::CantileverFace1Or2_Length(float value) {
  StoreAndMarkDirty(m_CantileverFace1Or2_Length, value);
}

void clsBuildingDimensions::CantileverFace3Or4_Length(float value) {
  StoreAndMarkDirty(m_CantileverFace3Or4_Length, value);
}

void clsBuildingDimensions::Parapet_Height(float value) {
  StoreAndMarkDirty(m_Parapet_Height, value);
}

void clsBuildingDimensions::Parapet_HeightFromFFL_m(float value) {
  StoreAndMarkDirty(m_Parapet_HeightFromFFL_m, value);
}

void clsBuildingDimensions::Parapet_SideDiagonal(float value) {
  StoreAndMarkDirty(m_Parapet_SideDiagonal, value);
}

void clsBuildingDimensions::Parapet_GableDiagonal(float value) {
  StoreAndMarkDirty(m_Parapet_GableDiagonal, value);
}

void clsBuildingDimensions::Parapet_SideReturnCorner(bool value) {
  StoreAndMarkDirty(m_Parapet_SideReturnCorner, value);
}

void clsBuildingDimensions::Parapet_GableReturnCorner(bool value) {
  StoreAndMarkDirty(m_Parapet_GableReturnCorner, value);
}

void clsBuildingDimensions::ApplyDefaults() {
  using B = clsBuildingDimensions;
  OwedLets<B> let(*this);
  let(&B::OrientationUnknown, true);
  let(&B::Orientation, 0);
  let(&B::RoofType, RoofTypes::Flat_roof_with_sharp_eaves);
  let(&B::Face1And3_Length, 0);
  let(&B::Face2And4_Width, 0);
  let(&B::ConsiderRoof, false);
  let(&B::ConsiderWalls, false);
  let(&B::ConsiderCantilever, false);
  let(&B::ConsiderParapet, false);
  let(&B::Roof_Height, 0);
  let(&B::Roof_Diagonal, Roof_Diagonal_Default());
  let(&B::Roof_ParapetHeight, 0);
  let(&B::Roof_EavesRadius, 0);
  let(&B::Roof_MansardSlope, 0);
  let(&B::Roof_Pitch, 0);
  let(&B::Roof_RiseHeight, 0);
  let(&B::Roof_FrameType, FrameTypes::Frames_1);
  let(&B::Wall_SideHeight, 0);
  let(&B::Wall_SideDiagonal, Wall_SideDiagonal_Default());
  let(&B::Wall_GableHeight, 0);
  let(&B::Wall_GableDiagonal, Wall_GableDiagonal_Default());
  let(&B::Wall_GableFaces, orve::GableFaces::Faces_2_and_4);
  let(&B::Wall_GapFace1, 0);
  let(&B::Wall_GapFace2, 0);
  let(&B::Wall_GapFace3, 0);
  let(&B::Wall_GapFace4, 0);
  let(&B::CantileverFace1Or2_Length, 0);
  let(&B::CantileverFace3Or4_Length, 0);
  let(&B::Parapet_Height, 0);
  let(&B::Parapet_HeightFromFFL_m, 0);
  let(&B::Parapet_SideDiagonal, Parapet_SideDiagonal_Default());
  let(&B::Parapet_GableDiagonal, Parapet_GableDiagonal_Default());
  let(&B::Parapet_SideReturnCorner, false);
  let(&B::Parapet_GableReturnCorner, false);
  let.Finish();
}

}  // namespace orve
