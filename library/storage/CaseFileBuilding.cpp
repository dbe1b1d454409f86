// Section [BuildingDimensions] of the case file.
#include "core/basBS6399_2.h"
#include "core/clsCurrentCase.h"
#include "geometry/clsBuildingDimensions.h"
#include "storage/CaseSection.h"

namespace orve {

namespace {

constexpr const char* BuildingSection = "BuildingDimensions";

void Describe(CaseSection& section, clsBuildingDimensions& building) {
  using B = clsBuildingDimensions;
  const PropertyKeys<B> key(section, building);
  // Key, the property's get and let, and the value for an absent key.
  key("OrientationUnknown", &B::OrientationUnknown, &B::OrientationUnknown, true);
  key("Orientation", &B::Orientation, &B::Orientation, 0);
  key("RoofType", &B::RoofType, &B::RoofType, RoofTypes(0));
  key("Face1And3_Length", &B::Face1And3_Length, &B::Face1And3_Length, 0);
  key("Face2And4_Width", &B::Face2And4_Width, &B::Face2And4_Width, 0);
  key("ConsiderRoof", &B::ConsiderRoof, &B::ConsiderRoof, false);
  key("ConsiderWalls", &B::ConsiderWalls, &B::ConsiderWalls, false);
  key("ConsiderCantilever", &B::ConsiderCantilever, &B::ConsiderCantilever, false);
  key("ConsiderParapet", &B::ConsiderParapet, &B::ConsiderParapet, false);
  key("Roof_Height", &B::Roof_Height, &B::Roof_Height, 0);
  key("Roof_Diagonal", &B::Roof_Diagonal, &B::Roof_Diagonal, &B::Roof_Diagonal_Default);
  key("Roof_ParapetHeight", &B::Roof_ParapetHeight, &B::Roof_ParapetHeight, 0);
  key("Roof_EavesRadius", &B::Roof_EavesRadius, &B::Roof_EavesRadius, 0);
  key("Roof_MansardSlope", &B::Roof_MansardSlope, &B::Roof_MansardSlope, 0);
  key("Roof_Pitch", &B::Roof_Pitch, &B::Roof_Pitch, 0);
  key("Roof_RiseHeight", &B::Roof_RiseHeight, &B::Roof_RiseHeight, 0);
  key("Roof_FrameType", &B::Roof_FrameType, &B::Roof_FrameType, FrameTypes(0));
  key("Wall_SideHeight", &B::Wall_SideHeight, &B::Wall_SideHeight, 0);
  key("Wall_SideDiagonal", &B::Wall_SideDiagonal, &B::Wall_SideDiagonal, &B::Wall_SideDiagonal_Default);
  key("Wall_GableHeight", &B::Wall_GableHeight, &B::Wall_GableHeight, 0);
  key("Wall_GableDiagonal", &B::Wall_GableDiagonal, &B::Wall_GableDiagonal, &B::Wall_GableDiagonal_Default);
  key("Wall_GableFaces", &B::Wall_GableFaces, &B::Wall_GableFaces, GableFaces::Faces_2_and_4);
  key("Wall_GapFace1", &B::Wall_GapFace1, &B::Wall_GapFace1, 0);
  key("Wall_GapFace2", &B::Wall_GapFace2, &B::Wall_GapFace2, 0);
  key("Wall_GapFace3", &B::Wall_GapFace3, &B::Wall_GapFace3, 0);
  key("Wall_GapFace4", &B::Wall_GapFace4, &B::Wall_GapFace4, 0);
  key("CantileverFace1Or2_Length", &B::CantileverFace1Or2_Length, &B::CantileverFace1Or2_Length, 0);
  key("CantileverFace3Or4_Length", &B::CantileverFace3Or4_Length, &B::CantileverFace3Or4_Length, 0);
  key("Parapet_Height", &B::Parapet_Height, &B::Parapet_Height, 0);
  key("Parapet_HeightFromFFL_m", &B::Parapet_HeightFromFFL_m, &B::Parapet_HeightFromFFL_m, 0);
  key("Parapet_SideDiagonal", &B::Parapet_SideDiagonal, &B::Parapet_SideDiagonal,
      &B::Parapet_SideDiagonal_Default);
  key("Parapet_GableDiagonal", &B::Parapet_GableDiagonal, &B::Parapet_GableDiagonal,
      &B::Parapet_GableDiagonal_Default);
  key("Parapet_SideReturnCorner", &B::Parapet_SideReturnCorner, &B::Parapet_SideReturnCorner, false);
  key("Parapet_GableReturnCorner", &B::Parapet_GableReturnCorner, &B::Parapet_GableReturnCorner, false);
}

}  // namespace

void clsBuildingDimensions::ReadFromSaveFile() {
  CaseSection section(RequireCurrentCase().m_iclsSaveFile, BuildingSection, CaseSection::Way::Read);
  Describe(section, *this);
}

void clsBuildingDimensions::WriteToSaveFile() {
  CaseSection section(RequireCurrentCase().m_iclsSaveFile, BuildingSection, CaseSection::Way::Write);
  Describe(section, *this);
}

}  // namespace orve
