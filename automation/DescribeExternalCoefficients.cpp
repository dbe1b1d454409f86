#include "Describe.h"
#include "external/clsExternalCoefficients.h"

namespace orve::automation {

const ClassDescription& DescribeExternalCoefficients() {
  using Class = clsExternalCoefficients;
  static const ClassDescription description = [] {
    // Ranges and errors that several members share.
    constexpr std::string_view Wide = "6 outside 16 bits";
    constexpr std::string_view Zones = "91 without a component, and those of the component";
    constexpr std::string_view Zone =
        "9 for a zone that isn't there; 91 without a component; 5 and others of the components";
    constexpr std::string_view Manual =
        "9 for a zone that isn't there, by hand zones 0 to 27; 91 without a component; 5 and others of the "
        "components";
    constexpr std::string_view Load =
        "9 for a zone that isn't there; 6 if the product doesn't fit; 91 without a component; 5 and others "
        "of "
        "the components";

    ClassDescriber<Class> describe(
        "clsExternalCoefficients", "Zones of roof, walls and parapets, their coefficients and external loads",
        {"81c1dc65-6c5f-4e75-999e-beb915169fa9", "55d144ae-7cae-4c4f-bb95-627c6f272ca5", ""});
    const ArgumentNames none;
    const ArgumentNames face{{"Face", -1}};
    const ArgumentNames areaAndFace{{"BuildingArea", -1}, {"Face", -1}};
    const ArgumentNames areaFaceAndScreen{{"BuildingArea", -1}, {"Face", -1}, {"ResultsScreen", -1}};
    const ArgumentNames zone{{"BuildingArea", -1}, {"Face", -1}, {"ZoneIndex", -1}};
    const ArgumentNames zoneAndScreen{
        {"BuildingArea", -1}, {"Face", -1}, {"ZoneIndex", -1}, {"ResultsScreen", -1}};
    ORVE_PROPERTY(1, BuildingArea, none, "", "Building area taken where an argument is -1", "", Wide);
    ORVE_PROPERTY(2, Face, none, "", "Face taken where an argument is -1", "", Wide);
    ORVE_PROPERTY(3, ZoneIndex, none, "", "Zone taken where an argument is -1", "-32768 to 32767");
    ORVE_READ_ONLY(4, ZoneIndexFrom, areaAndFace, "", "First zone of a face: 0", "0", Zones);
    ORVE_READ_ONLY(5, ZoneIndexTo, areaFaceAndScreen, "", "Last zone of a face; -1 if there are none",
                   "-1 or more", Zones);
    ORVE_PROPERTY(6, ManualResults, none, "", "Coefficients come from the hand-entered tables");
    ORVE_PROPERTY(7, Bay, none, "", "Bay of a multi-span roof", "", Wide, "Table 12");
    ORVE_READ_ONLY(8, GableFace, face, "", "Whether the face is a gable wall");
    ORVE_READ_ONLY(9, Hybrid_WindFromFace, zone, "",
                   "The face whose normal wind gives the zone its coefficients", "0 to 3, a value of Faces",
                   Zone);
    ORVE_READ_ONLY(10, Hybrid_AngleNormalToFace, face, "degrees",
                   "Wind angle normal to the face; -1 if the orientation is unknown", "0 to 359, or -1");
    ORVE_READ_ONLY(11, Hybrid_WorstCase_DynamicPressure_q, zone, "kN/m\u00B2",
                   "q of the worst wind for the zone", "0 or more", Zone);
    ORVE_READ_ONLY(12, Hybrid_WorstCase_SizeEffectFactor_Ca, zone, "", "Ca of the worst wind for the zone",
                   "0 or more", Zone);
    ORVE_READ_ONLY(13, Hybrid_ZoneDescription, zone, "", "The zone's name", "", Zone);
    ORVE_READ_ONLY(14, Hybrid_ZoneDimensionsXY, zoneAndScreen, "m",
                   "The zone's two lengths; 0 where it shows none", "0 or more", Zone);
    ORVE_READ_ONLY(15, Hybrid_ZoneDimensionX, zoneAndScreen, "m", "The zone's first length", "0 or more",
                   Zone);
    ORVE_READ_ONLY(16, Hybrid_ZoneDimensionY, zoneAndScreen, "m", "The zone's second length", "0 or more",
                   Zone);
    ORVE_READ_ONLY(17, Hybrid_ZoneDimensions, zoneAndScreen, "", "The zone's lengths as text", "", Zone);
    ORVE_PROPERTY(18, Hybrid_ExternalCoefficientFactor_Cpe_Pressure, zone, "",
                  "External pressure coefficient; a let counts while ManualResults is True",
                  "0 or more; leeward zones of a parapet keep the component's sign", Manual);
    ORVE_PROPERTY(19, Hybrid_ExternalCoefficientFactor_Cpe_Suction, zone, "",
                  "External suction coefficient, a magnitude; a let counts while ManualResults is True",
                  "0 or more; leeward zones of a parapet keep the component's sign", Manual);
    ORVE_READ_ONLY(20, Hybrid_ExternalAppliedLoad_Pressure, zone, "kN/m\u00B2", "External pressure Ca q Cpe",
                   "0 or more; leeward zones of a parapet keep the component's sign", Load);
    ORVE_READ_ONLY(21, Hybrid_ExternalAppliedLoad_Suction, zone, "kN/m\u00B2",
                   "External suction Ca q Cpe, a magnitude",
                   "0 or more; leeward zones of a parapet keep the component's sign", Load);
    ORVE_READ_ONLY(22, Hybrid_ExternalAppliedLoads, zone, "", "Both external loads as text",
                   "as \"+0.512, -0.300 kN/m\u00B2\"; a side without a load is left out", Load);
    return describe.Finish();
  }();
  return description;
}

}  // namespace orve::automation
