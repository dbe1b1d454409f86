#include "Describe.h"
#include "geometry/clsBuildingDimensions.h"

namespace orve::automation {

const ClassDescription& DescribeBuildingDimensions() {
  using Class = clsBuildingDimensions;
  static const ClassDescription description = [] {
    // Ranges and errors that several members share.
    constexpr std::string_view Length = "0 or more; any number is stored";
    constexpr std::string_view Wide = "6 outside 16 bits";

    ClassDescriber<Class> describe(
        "clsBuildingDimensions", "Geometry of the building",
        {"8c7adff6-799b-47d2-8746-4b428c67344e", "1a6d7cd0-4718-4dfa-9a1c-3d77f59c3b96", ""});
    const ArgumentNames none;
    ORVE_PROPERTY(1, OrientationUnknown, none, "", "The orientation isn't known and isn't used");
    ORVE_PROPERTY(2, Orientation, none, "degrees", "Angle of the normal to Face 2, whole degrees",
                  "0 to 359; any 16-bit number is stored");
    ORVE_PROPERTY(3, RoofType, none, "", "Roof form; selects which shape property is read", "", Wide);
    ORVE_PROPERTY(4, Face1And3_Length, none, "m", "Plan length along Faces 1 and 3", Length);
    ORVE_PROPERTY(5, Face2And4_Width, none, "m", "Plan length along Faces 2 and 4", Length);
    ORVE_PROPERTY(6, ConsiderRoof, none, "", "The design in hand concerns the roof");
    ORVE_PROPERTY(7, ConsiderWalls, none, "", "The design in hand concerns the walls");
    ORVE_PROPERTY(8, ConsiderCantilever, none, "", "The building has cantilevers");
    ORVE_PROPERTY(9, ConsiderParapet, none, "", "The design in hand concerns the parapet");
    ORVE_PROPERTY(10, Roof_Height, none, "m", "Height of the roof", Length);
    ORVE_PROPERTY(11, Roof_Diagonal, none, "m", "Diagonal dimension for the roof", Length, "", "Figure 5");
    ORVE_READ_ONLY(12, Roof_Diagonal_Default, none, "m", "Default of Roof_Diagonal from the parent design",
                   "0 or more", "6 if it doesn't fit");
    ORVE_PROPERTY(13, Roof_ParapetHeight, none, "m", "Parapet height of a flat roof with parapets", Length);
    ORVE_PROPERTY(14, Roof_EavesRadius, none, "m", "Eaves radius of a flat roof with curved eaves", Length);
    ORVE_PROPERTY(15, Roof_MansardSlope, none, "degrees", "Eaves slope of a flat roof with mansard eaves",
                  "any number is stored; what the tables don't have raises 5 at the read of a coefficient");
    ORVE_PROPERTY(16, Roof_Pitch, none, "degrees", "Pitch of mono-pitched, duo-pitched and hipped roofs",
                  "any number is stored; what the tables don't have raises 5 at the read of a coefficient");
    ORVE_PROPERTY(17, Roof_RiseHeight, none, "m", "Rise of a curved roof", Length);
    ORVE_PROPERTY(18, Roof_FrameType, none, "", "How many frames the building has", "", Wide, "Table 12");
    ORVE_PROPERTY(19, Wall_SideHeight, none, "m", "Height of the side walls", Length);
    ORVE_PROPERTY(20, Wall_SideDiagonal, none, "m", "Diagonal dimension for the side walls", Length);
    ORVE_READ_ONLY(21, Wall_SideDiagonal_Default, none, "m",
                   "Default of Wall_SideDiagonal from the parent design", "0 or more", "6 if it doesn't fit");
    ORVE_PROPERTY(22, Wall_GableHeight, none, "m", "Height of the gable walls", Length);
    ORVE_PROPERTY(23, Wall_GableDiagonal, none, "m", "Diagonal dimension for the gable walls", Length);
    ORVE_READ_ONLY(24, Wall_GableDiagonal_Default, none, "m",
                   "Default of Wall_GableDiagonal from the parent design", "0 or more",
                   "6 if it doesn't fit");
    ORVE_PROPERTY(25, Wall_GableFaces, none, "", "Which pair of faces are the gables", "", Wide);
    ORVE_PROPERTY(26, Wall_GapFace1, none, "m", "Gap beside Face 1", Length, "", "2.4.1.4");
    ORVE_PROPERTY(27, Wall_GapFace2, none, "m", "Gap beside Face 2", Length, "", "2.4.1.4");
    ORVE_PROPERTY(28, Wall_GapFace3, none, "m", "Gap beside Face 3", Length, "", "2.4.1.4");
    ORVE_PROPERTY(29, Wall_GapFace4, none, "m", "Gap beside Face 4", Length, "", "2.4.1.4");
    ORVE_PROPERTY(30, CantileverFace1Or2_Length, none, "m", "Length of the cantilever on Face 1 or Face 2",
                  Length);
    ORVE_PROPERTY(31, CantileverFace3Or4_Length, none, "m", "Length of the cantilever on Face 3 or Face 4",
                  Length);
    ORVE_PROPERTY(32, Parapet_Height, none, "m", "Height of the parapet itself", Length);
    ORVE_PROPERTY(33, Parapet_HeightFromFFL_m, none, "m",
                  "Height of the top of the parapet above finished floor level", Length);
    ORVE_PROPERTY(34, Parapet_SideDiagonal, none, "m", "Diagonal dimension for the side parapet", Length);
    ORVE_READ_ONLY(35, Parapet_SideDiagonal_Default, none, "m",
                   "Default of Parapet_SideDiagonal from the parent design", "0 or more",
                   "6 if it doesn't fit");
    ORVE_PROPERTY(36, Parapet_GableDiagonal, none, "m", "Diagonal dimension for the gable parapet", Length);
    ORVE_READ_ONLY(37, Parapet_GableDiagonal_Default, none, "m",
                   "Default of Parapet_GableDiagonal from the parent design", "0 or more",
                   "6 if it doesn't fit");
    ORVE_PROPERTY(38, Parapet_SideReturnCorner, none, "", "The side parapet has a return corner", "", "",
                  "Table 21");
    ORVE_PROPERTY(39, Parapet_GableReturnCorner, none, "", "The gable parapet has a return corner", "", "",
                  "Table 21");
    return describe.Finish();
  }();
  return description;
}

}  // namespace orve::automation
