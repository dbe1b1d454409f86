#include "Describe.h"
#include "internal/clsInternalCoefficients.h"

namespace orve::automation {

const ClassDescription& DescribeInternalCoefficients() {
  using Class = clsInternalCoefficients;
  static const ClassDescription description = [] {
    ClassDescriber<Class> describe(
        "clsInternalCoefficients", "Internal pressure coefficients by face and internal loads",
        {"9fc57f26-ef8b-40d6-817c-e738f1ebcc13", "29125a8a-c59a-48da-b431-d8fb785d638b", ""});
    const ArgumentNames none;
    const ArgumentNames face{{"Face", -1}};
    const ArgumentNames faceAndZone{{"Face", -1}, {"ZoneIndex", -1}};
    ORVE_PROPERTY(1, Face, none, "", "Face taken where an argument is -1");
    ORVE_PROPERTY(2, StructureType, none, "", "Enclosed, with a dominant opening, or open sided (2.6)");
    ORVE_PROPERTY(3, DiagonalDimension_a, none, "m", "Diagonal of a dominant opening (2.6.2)");
    ORVE_PROPERTY(4, InternalVolume, none, "m\u00B3", "Internal volume of the storey (2.6.1)");
    ORVE_PROPERTY(5, WindPressureType, none, "", "The wind area that the internal wind area follows");
    ORVE_PROPERTY(6, EnclosedBuilding_GeneralCase, none, "", "Rule: Cpi +0.2 or -0.3 (Table 16)");
    ORVE_PROPERTY(7, EnclosedBuilding_NoPositiveInternalPressure, none, "",
                  "Rule: Cpi 0 and -0.3 (Table 16)");
    ORVE_PROPERTY(8, EnclosedBuilding_WindNormalToPermeableFace, none, "", "Rule: Cpi +0.2 (Table 16)");
    ORVE_PROPERTY(9, EnclosedBuilding_WindNormalToImpermeableFace, none, "", "Rule: Cpi -0.3 (Table 16)");
    ORVE_PROPERTY(10, EnclosedBuilding_FourWallsEquallyPermeable, none, "", "Rule: Cpi -0.3 (Table 16)");
    ORVE_PROPERTY(11, DominantOpening_ZoneIndex, none, "", "Zone taken for DominantOpening_ZoneDescription");
    ORVE_READ_ONLY(12, DominantOpening_ZoneIndexFrom, face, "", "First wall zone of a face");
    ORVE_READ_ONLY(13, DominantOpening_ZoneIndexTo, face, "", "Last wall zone of a face");
    ORVE_READ_ONLY(14, DominantOpening_ZoneDescription, faceAndZone, "", "Name of a wall zone");
    ORVE_PROPERTY(15, DominantOpening_SelectedZoneIndex, face, "",
                  "The wall zone in which the face's dominant opening lies");
    ORVE_READ_ONLY(16, DominantOpening_SelectedZoneCpe_Pressure, face, "",
                   "External pressure coefficient of that zone");
    ORVE_READ_ONLY(17, DominantOpening_SelectedZoneCpe_Suction, face, "",
                   "External suction coefficient of that zone");
    ORVE_PROPERTY(18, DominantOpening_Ratio2, face, "", "Rule: Cpi = 0.75 Cpe (Table 17)");
    ORVE_PROPERTY(19, DominantOpening_Ratio3, face, "", "Rule: Cpi = 0.9 Cpe (Table 17)");
    ORVE_PROPERTY(20, InternalCoefficientFactor_Cpi_Pressure, face, "", "Internal pressure coefficient");
    ORVE_PROPERTY(21, InternalCoefficientFactor_Cpi_Suction, face, "",
                  "Internal suction coefficient, a magnitude");
    ORVE_READ_ONLY(22, Hybrid_WorstCase_DynamicPressure_q, face, "kN/m\u00B2",
                   "q of the worst wind for the face");
    ORVE_READ_ONLY(23, Calculated_DiagonalDimension_a, none, "m",
                   "Diagonal for the size effect factor of internal pressure (2.6)");
    ORVE_READ_ONLY(24, Hybrid_WorstCase_SizeEffectFactor_Ca, face, "", "Ca of the worst wind for the face");
    ORVE_READ_ONLY(25, Hybrid_InternalAppliedLoad_Pressure, face, "kN/m\u00B2", "Internal pressure Ca q Cpi");
    ORVE_READ_ONLY(26, Hybrid_InternalAppliedLoad_Suction, face, "kN/m\u00B2",
                   "Internal suction Ca q Cpi, a magnitude");
    ORVE_READ_ONLY(27, Hybrid_InternalAppliedLoads, face, "", "Both internal loads as text");
    return describe.Finish();
  }();
  return description;
}

}  // namespace orve::automation
