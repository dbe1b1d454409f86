#include "Describe.h"
#include "internal/clsInternalCoefficients.h"

namespace orve::automation {

const ClassDescription& DescribeInternalCoefficients() {
  using Class = clsInternalCoefficients;
  static const ClassDescription description = [] {
    // Ranges and errors that several members share.
    constexpr std::string_view Rule =
        "True if it was chosen and its coefficients still stand; a let of True writes them, one of False "
        "leaves "
        "them";
    constexpr std::string_view Wide = "6 outside 16 bits";
    constexpr std::string_view NoFace = "9 for a face that isn't there";
    constexpr std::string_view Zones = "91 without a component, and those of the component";
    constexpr std::string_view Zone =
        "9 for a zone that isn't there; 91 without a component; 5 and others of the component";
    constexpr std::string_view Component =
        "9 for a face that isn't there; 91 without a component; 5 and others of the components";
    constexpr std::string_view Load =
        "9 for a face that isn't there; 6 if the product doesn't fit; 91 without a component; 5 and others "
        "of "
        "the components";

    ClassDescriber<Class> describe(
        "clsInternalCoefficients", "Internal pressure coefficients by face and internal loads",
        {"9fc57f26-ef8b-40d6-817c-e738f1ebcc13", "29125a8a-c59a-48da-b431-d8fb785d638b", ""});
    const ArgumentNames none;
    const ArgumentNames face{{"Face", -1}};
    const ArgumentNames faceAndZone{{"Face", -1}, {"ZoneIndex", -1}};
    ORVE_PROPERTY(1, Face, none, "", "Face taken where an argument is -1", "", Wide);
    ORVE_PROPERTY(2, StructureType, none, "", "Enclosed, with a dominant opening, or open sided", "", Wide,
                  "2.6");
    ORVE_PROPERTY(3, DiagonalDimension_a, none, "m", "Diagonal of a dominant opening",
                  "0 or more; any number is stored", "", "2.6.2");
    ORVE_PROPERTY(4, InternalVolume, none, "m\u00B3", "Internal volume of the storey",
                  "0 or more; any number is stored", "", "2.6.1");
    ORVE_PROPERTY(5, WindPressureType, none, "", "The wind area that the internal wind area follows", "",
                  Wide);
    ORVE_PROPERTY(6, EnclosedBuilding_GeneralCase, none, "", "Rule: Cpi +0.2 or -0.3", Rule, "", "Table 16");
    ORVE_PROPERTY(7, EnclosedBuilding_NoPositiveInternalPressure, none, "", "Rule: Cpi 0 and -0.3", Rule, "",
                  "Table 16");
    ORVE_PROPERTY(8, EnclosedBuilding_WindNormalToPermeableFace, none, "", "Rule: Cpi +0.2", Rule, "",
                  "Table 16");
    ORVE_PROPERTY(9, EnclosedBuilding_WindNormalToImpermeableFace, none, "", "Rule: Cpi -0.3", Rule, "",
                  "Table 16");
    ORVE_PROPERTY(10, EnclosedBuilding_FourWallsEquallyPermeable, none, "", "Rule: Cpi -0.3", Rule, "",
                  "Table 16");
    ORVE_PROPERTY(11, DominantOpening_ZoneIndex, none, "", "Zone taken for DominantOpening_ZoneDescription",
                  "-32768 to 32767");
    ORVE_READ_ONLY(12, DominantOpening_ZoneIndexFrom, face, "", "First wall zone of a face", "0", Zones);
    ORVE_READ_ONLY(13, DominantOpening_ZoneIndexTo, face, "", "Last wall zone of a face", "-1 or more",
                   Zones);
    ORVE_READ_ONLY(14, DominantOpening_ZoneDescription, faceAndZone, "", "Name of a wall zone", "", Zone);
    ORVE_PROPERTY(15, DominantOpening_SelectedZoneIndex, face, "",
                  "The wall zone in which the face's dominant opening lies", "",
                  "9 for a face that isn't there; 6 outside 16 bits");
    ORVE_READ_ONLY(16, DominantOpening_SelectedZoneCpe_Pressure, face, "",
                   "External pressure coefficient of that zone", "0 or more; 0 if the face has no such zone",
                   Component);
    ORVE_READ_ONLY(17, DominantOpening_SelectedZoneCpe_Suction, face, "",
                   "External suction coefficient of that zone", "0 or more; 0 if the face has no such zone",
                   Component);
    ORVE_PROPERTY(18, DominantOpening_Ratio2, face, "", "Rule: Cpi = 0.75 Cpe", Rule, Component, "Table 17");
    ORVE_PROPERTY(19, DominantOpening_Ratio3, face, "", "Rule: Cpi = 0.9 Cpe", Rule, Component, "Table 17");
    ORVE_PROPERTY(20, InternalCoefficientFactor_Cpi_Pressure, face, "", "Internal pressure coefficient",
                  "0 or more; any number is stored", NoFace);
    ORVE_PROPERTY(21, InternalCoefficientFactor_Cpi_Suction, face, "",
                  "Internal suction coefficient, a magnitude", "0 or more; any number is stored", NoFace);
    ORVE_READ_ONLY(22, Hybrid_WorstCase_DynamicPressure_q, face, "kN/m\u00B2",
                   "q of the worst wind for the face", "0 or more", Component);
    ORVE_READ_ONLY(23, Calculated_DiagonalDimension_a, none, "m",
                   "Diagonal for the size effect factor of internal pressure",
                   "0 or more; 0 for an open-sided building", "6 if it doesn't fit", "2.6.1, 2.6.2");
    ORVE_READ_ONLY(24, Hybrid_WorstCase_SizeEffectFactor_Ca, face, "", "Ca of the worst wind for the face",
                   "0 or more", Component);
    ORVE_READ_ONLY(25, Hybrid_InternalAppliedLoad_Pressure, face, "kN/m\u00B2", "Internal pressure Ca q Cpi",
                   "0 or more", Load);
    ORVE_READ_ONLY(26, Hybrid_InternalAppliedLoad_Suction, face, "kN/m\u00B2",
                   "Internal suction Ca q Cpi, a magnitude", "0 or more", Load);
    ORVE_READ_ONLY(27, Hybrid_InternalAppliedLoads, face, "", "Both internal loads as text",
                   "as \"+0.129, -0.193 kN/m\u00B2\"; a side without a load is left out", Load);
    return describe.Finish();
  }();
  return description;
}

}  // namespace orve::automation
