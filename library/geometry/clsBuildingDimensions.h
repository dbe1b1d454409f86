// The geometry of the building of the current case.
#pragma once

#include <cstdint>

#include "core/Enumerations.h"
#include "core/WithoutDefaults.h"

namespace orve {

/// A passive record of the building's plan, roof form, heights, diagonals, gaps and cantilevers. Lengths and
/// heights are in metres. A let that changes a value sets `IsDirty` of the root object; nothing is validated
/// or clamped.
class clsBuildingDimensions {
 public:
  clsBuildingDimensions();

  /// True: the orientation isn't known and `Orientation` isn't used. Default True.
  bool OrientationUnknown() const { return m_OrientationUnknown; }
  void OrientationUnknown(bool value);
  /// Angle in whole degrees of the normal to Face 2.
  std::int16_t Orientation() const { return m_Orientation; }
  void Orientation(std::int16_t value);
  /// Roof form; selects which shape property is read. Errors: 6 outside 16 bits.
  RoofTypes RoofType() const { return static_cast<RoofTypes>(m_RoofType); }
  void RoofType(RoofTypes value);
  /// Plan length along Faces 1 and 3.
  float Face1And3_Length() const { return m_Face1And3_Length; }
  void Face1And3_Length(float value);
  /// Plan length along Faces 2 and 4.
  float Face2And4_Width() const { return m_Face2And4_Width; }
  void Face2And4_Width(float value);
  /// The design in hand concerns the roof.
  bool ConsiderRoof() const { return m_ConsiderRoof; }
  void ConsiderRoof(bool value);
  /// The design in hand concerns the walls.
  bool ConsiderWalls() const { return m_ConsiderWalls; }
  void ConsiderWalls(bool value);
  /// The building has cantilevers, given by the two cantilever lengths.
  bool ConsiderCantilever() const { return m_ConsiderCantilever; }
  void ConsiderCantilever(bool value);
  /// The design in hand concerns the parapet.
  bool ConsiderParapet() const { return m_ConsiderParapet; }
  void ConsiderParapet(bool value);
  /// Height of the roof.
  float Roof_Height() const { return m_Roof_Height; }
  void Roof_Height(float value);
  /// Diagonal dimension for the roof (Figure 5). Default `Roof_Diagonal_Default` at construction.
  float Roof_Diagonal() const { return m_Roof_Diagonal; }
  void Roof_Diagonal(float value);
  /// Default of `Roof_Diagonal` from the parent design, metres.
  float Roof_Diagonal_Default() const;
  /// Parapet height of `Flat roof with parapets`.
  float Roof_ParapetHeight() const { return m_Roof_ParapetHeight; }
  void Roof_ParapetHeight(float value);
  /// Eaves radius of `Flat roof with curved eaves`.
  float Roof_EavesRadius() const { return m_Roof_EavesRadius; }
  void Roof_EavesRadius(float value);
  /// Eaves slope of `Flat roof with mansard eaves`, degrees.
  float Roof_MansardSlope() const { return m_Roof_MansardSlope; }
  void Roof_MansardSlope(float value);
  /// Pitch of mono-pitched, duo-pitched and hipped roofs, degrees.
  float Roof_Pitch() const { return m_Roof_Pitch; }
  void Roof_Pitch(float value);
  /// Rise of `Curved roof`.
  float Roof_RiseHeight() const { return m_Roof_RiseHeight; }
  void Roof_RiseHeight(float value);
  /// How many frames the building has (Table 12). Errors: 6 outside 16 bits.
  FrameTypes Roof_FrameType() const { return static_cast<FrameTypes>(m_Roof_FrameType); }
  void Roof_FrameType(FrameTypes value);
  /// Height of the side walls.
  float Wall_SideHeight() const { return m_Wall_SideHeight; }
  void Wall_SideHeight(float value);
  /// Diagonal dimension for the side walls. Default `Wall_SideDiagonal_Default` at construction.
  float Wall_SideDiagonal() const { return m_Wall_SideDiagonal; }
  void Wall_SideDiagonal(float value);
  /// Default of `Wall_SideDiagonal` from the parent design, metres.
  float Wall_SideDiagonal_Default() const;
  /// Height of the gable walls.
  float Wall_GableHeight() const { return m_Wall_GableHeight; }
  void Wall_GableHeight(float value);
  /// Diagonal dimension for the gable walls. Default `Wall_GableDiagonal_Default` at construction.
  float Wall_GableDiagonal() const { return m_Wall_GableDiagonal; }
  void Wall_GableDiagonal(float value);
  /// Default of `Wall_GableDiagonal` from the parent design, metres.
  float Wall_GableDiagonal_Default() const;
  /// Which pair of faces are the gables. Default `Faces 2 and 4`. Errors: 6 outside 16 bits.
  orve::GableFaces Wall_GableFaces() const { return static_cast<orve::GableFaces>(m_Wall_GableFaces); }
  void Wall_GableFaces(orve::GableFaces value);
  /// Gap beside Face 1 (2.4.1.4).
  float Wall_GapFace1() const { return m_Wall_GapFace1; }
  void Wall_GapFace1(float value);
  /// Gap beside Face 2.
  float Wall_GapFace2() const { return m_Wall_GapFace2; }
  void Wall_GapFace2(float value);
  /// Gap beside Face 3.
  float Wall_GapFace3() const { return m_Wall_GapFace3; }
  void Wall_GapFace3(float value);
  /// Gap beside Face 4.
  float Wall_GapFace4() const { return m_Wall_GapFace4; }
  void Wall_GapFace4(float value);
  /// Length of the cantilever on Face 1 or Face 2.
  float CantileverFace1Or2_Length() const { return m_CantileverFace1Or2_Length; }
  void CantileverFace1Or2_Length(float value);
  /// Length of the cantilever on Face 3 or Face 4.
  float CantileverFace3Or4_Length() const { return m_CantileverFace3Or4_Length; }
  void CantileverFace3Or4_Length(float value);
  /// Height of the parapet itself.
  float Parapet_Height() const { return m_Parapet_Height; }
  void Parapet_Height(float value);
  /// Height of the top of the parapet from finished floor level.
  float Parapet_HeightFromFFL_m() const { return m_Parapet_HeightFromFFL_m; }
  void Parapet_HeightFromFFL_m(float value);
  /// Diagonal dimension for the side parapet. Default `Parapet_SideDiagonal_Default` at construction.
  float Parapet_SideDiagonal() const { return m_Parapet_SideDiagonal; }
  void Parapet_SideDiagonal(float value);
  /// Default of `Parapet_SideDiagonal` from the parent design, metres.
  float Parapet_SideDiagonal_Default() const;
  /// Diagonal dimension for the gable parapet. Default `Parapet_GableDiagonal_Default` at construction.
  float Parapet_GableDiagonal() const { return m_Parapet_GableDiagonal; }
  void Parapet_GableDiagonal(float value);
  /// Default of `Parapet_GableDiagonal` from the parent design, metres.
  float Parapet_GableDiagonal_Default() const;
  /// The side parapet has a return corner (Table 21).
  bool Parapet_SideReturnCorner() const { return m_Parapet_SideReturnCorner; }
  void Parapet_SideReturnCorner(bool value);
  /// The gable parapet has a return corner (Table 21).
  bool Parapet_GableReturnCorner() const { return m_Parapet_GableReturnCorner; }
  void Parapet_GableReturnCorner(bool value);

 private:
  friend class clsCurrentCase;
  explicit clsBuildingDimensions(WithoutDefaults) {}
  void ApplyDefaults();
  void ReadFromSaveFile();
  void WriteToSaveFile();

  bool m_OrientationUnknown = false;
  std::int16_t m_Orientation = 0;
  std::int16_t m_RoofType = 0;
  float m_Face1And3_Length = 0;
  float m_Face2And4_Width = 0;
  bool m_ConsiderRoof = false;
  bool m_ConsiderWalls = false;
  bool m_ConsiderCantilever = false;
  bool m_ConsiderParapet = false;
  float m_Roof_Height = 0;
  float m_Roof_Diagonal = 0;
  float m_Roof_ParapetHeight = 0;
  float m_Roof_EavesRadius = 0;
  float m_Roof_MansardSlope = 0;
  float m_Roof_Pitch = 0;
  float m_Roof_RiseHeight = 0;
  std::int16_t m_Roof_FrameType = 0;
  float m_Wall_SideHeight = 0;
  float m_Wall_SideDiagonal = 0;
  float m_Wall_GableHeight = 0;
  float m_Wall_GableDiagonal = 0;
  std::int16_t m_Wall_GableFaces = 0;
  float m_Wall_GapFace1 = 0;
  float m_Wall_GapFace2 = 0;
  float m_Wall_GapFace3 = 0;
  float m_Wall_GapFace4 = 0;
  float m_CantileverFace1Or2_Length = 0;
  float m_CantileverFace3Or4_Length = 0;
  float m_Parapet_Height = 0;
  float m_Parapet_HeightFromFFL_m = 0;
  float m_Parapet_SideDiagonal = 0;
  float m_Parapet_GableDiagonal = 0;
  bool m_Parapet_SideReturnCorner = false;
  bool m_Parapet_GableReturnCorner = false;
};

}  // namespace orve
