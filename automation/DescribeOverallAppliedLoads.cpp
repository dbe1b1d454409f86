#include "Describe.h"
#include "loads/clsOverallAppliedLoads.h"

namespace orve::automation {

const ClassDescription& DescribeOverallAppliedLoads() {
  using Class = clsOverallAppliedLoads;
  static const ClassDescription description = [] {
    // Ranges and errors that several members share.
    constexpr std::string_view Wide = "6 outside 16 bits";
    constexpr std::string_view NoFace = "9 for an area or face that isn't there";
    constexpr std::string_view Row = "9 for a row that isn't there";
    constexpr std::string_view Zones = "91 without a component, and those of the component";
    constexpr std::string_view Zone =
        "9 for a zone that isn't there; 91 without a component; 5 and others of the components";
    constexpr std::string_view Selected =
        "9 for an area, face or zone that isn't there; 91 without a component; 5 and others of the "
        "components";

    ClassDescriber<Class> describe(
        "clsOverallAppliedLoads", "Loads by zone, selected, stepped and bay loads, and cantilevers",
        {"94c02973-6155-4495-a673-76f9d0acc7c7", "f8713f73-a830-453a-bd29-d64369840e2e", ""});
    const ArgumentNames none;
    const ArgumentNames areaAndFace{{"BuildingArea", -1}, {"Face", -1}};
    const ArgumentNames zone{{"BuildingArea", -1}, {"Face", -1}, {"ZoneIndex", -1}};
    const ArgumentNames row{{"CantileverZoneIndex", {}}};
    const ArgumentNames steps{{"Span_L1", {}, true},     {"Span_L2", {}, true},     {"Span_L3", {}, true},
                              {"WindLoad_W1", {}, true}, {"WindLoad_W2", {}, true}, {"WindLoad_W3", {}, true},
                              {"Step_Z1", {}, true},     {"Step_Z2", {}, true}};
    ORVE_METHOD(1, GetCantileverZones, none, "", "Copy of the cantilever zone table",
                "no rows before CantileverValues");
    ORVE_METHOD(2, GetCantileverResults, none, "", "Copy of the cantilever result table",
                "no rows before CantileverValues");
    ORVE_PROPERTY(3, BuildingArea, none, "", "Building area taken where an argument is -1", "", Wide);
    ORVE_PROPERTY(4, Face, none, "", "Face taken where an argument is -1", "", Wide);
    ORVE_PROPERTY(5, ZoneIndex, none, "", "Zone taken where an argument is -1", "-32768 to 32767");
    ORVE_READ_ONLY(6, ZoneIndexFrom, areaAndFace, "", "First zone of a face", "0", Zones);
    ORVE_READ_ONLY(7, ZoneIndexTo, areaAndFace, "", "Last zone of a face; -1 if there are none", "-1 or more",
                   Zones);
    ORVE_READ_ONLY(8, Hybrid_ZoneDescription, zone, "", "The zone's name", "", Zone);
    ORVE_READ_ONLY(9, Hybrid_ZoneDimensions, zone, "", "The zone's lengths as text", "", Zone);
    ORVE_READ_ONLY(10, Hybrid_ExternalAppliedLoads, zone, "", "The zone's external loads as text", "", Zone);
    ORVE_READ_ONLY(11, Hybrid_InternalAppliedLoads, zone, "", "The zone's internal loads as text",
                   "empty for a parapet", Zone);
    ORVE_READ_ONLY(12, Hybrid_OverallAppliedLoad_Pressure, zone, "kN/m\u00B2", "Greatest positive net load",
                   "0 or more; 0 where no combination is positive", Zone);
    ORVE_READ_ONLY(13, Hybrid_OverallAppliedLoad_Suction, zone, "kN/m\u00B2", "Most negative net load",
                   "0 or less; 0 where no combination is negative", Zone);
    ORVE_READ_ONLY(14, Hybrid_OverallAppliedLoads, zone, "", "Both net loads as text",
                   "as \"+1.250, -0.500 kN/m\u00B2\"; a side without a load is left out", Zone);
    ORVE_PROPERTY(15, SelectedFace, none, "", "The face that the host has chosen");
    ORVE_PROPERTY(16, SelectedLoadType, areaAndFace, "", "The load chosen for an area and face", "",
                  "9 for an area or face that isn't there; 6 outside 16 bits");
    ORVE_READ_ONLY(17, SelectedLoadValues, areaAndFace, "", "The chosen load as text", "", Selected);
    ORVE_READ_ONLY(18, SelectedLoadValues_External, areaAndFace, "",
                   "The stepped load over the end bay as text", "empty unless a stepped load is chosen",
                   Selected);
    ORVE_READ_ONLY(19, SelectedLoadValues_Internal, areaAndFace, "",
                   "The stepped load over the internal bay as text", "empty unless a stepped load is chosen",
                   Selected);
    ORVE_PROPERTY(20, SteppedWind_Load_1, areaAndFace, "kN/m\u00B2", "Load of the first step", "any number",
                  NoFace);
    ORVE_PROPERTY(21, SteppedWind_Load_2, areaAndFace, "kN/m\u00B2", "Load of the second step", "any number",
                  NoFace);
    ORVE_PROPERTY(22, SteppedWind_Load_3, areaAndFace, "kN/m\u00B2", "Load behind the second step",
                  "any number", NoFace);
    ORVE_PROPERTY(23, SteppedWind_Distance_1, areaAndFace, "m", "Length of the first step",
                  "0 or more; any number is stored", NoFace);
    ORVE_PROPERTY(24, SteppedWind_Distance_2, areaAndFace, "m", "Length of the second step",
                  "0 or more; any number is stored", NoFace);
    ORVE_PROPERTY(25, SteppedWind_Distance_3, areaAndFace, "m", "Length of the third step",
                  "0 or more; any number is stored", NoFace);
    ORVE_PROPERTY(26, SteppedWind_Span, areaAndFace, "m", "Span of the member",
                  "0 or more; any number is stored", NoFace);
    ORVE_READ_ONLY(27, SteppedWind_Load, areaAndFace, "kN/m\u00B2", "Average over the span",
                   "0 for a span of 0", "9 for an area or face that isn't there; 6 if it doesn't fit");
    ORVE_READ_ONLY(28, SteppedWind_Load_External, areaAndFace, "kN/m\u00B2", "Average over the end bay",
                   "0 for a span of 0", "9 for an area or face that isn't there; 6 if it doesn't fit");
    ORVE_READ_ONLY(29, SteppedWind_Load_Internal, areaAndFace, "kN/m\u00B2", "Average over the internal bay",
                   "0 for a span of 0", "9 for an area or face that isn't there; 6 if it doesn't fit");
    ORVE_PROPERTY(30, CantileverZoneIndexFrom, none, "", "First row of the cantilever zone table",
                  "-32768 to 32767, plain storage");
    ORVE_PROPERTY(31, CantileverZoneIndexTo, none, "", "Last row of the cantilever zone table",
                  "-32768 to 32767, plain storage");
    ORVE_READ_ONLY(32, CantileverZoneDescription, row, "", "Label of a cantilever zone", "", Row);
    ORVE_READ_ONLY(33, CantileverZoneDimensions, row, "", "Lengths of a cantilever zone as text", "", Row);
    ORVE_READ_ONLY(34, Cantilever_ExternalAppliedLoads, row, "", "Roof load above a cantilever zone as text",
                   "", Row);
    ORVE_READ_ONLY(35, Cantilever_InternalAppliedLoads, row, "",
                   "Wall pressures under a cantilever zone as text", "", Row);
    ORVE_READ_ONLY(36, Cantilever_OverallAppliedLoads, row, "", "Net loads of a cantilever zone as text", "",
                   Row);
    ORVE_METHOD(37, ExternalBayLoad, steps, "kN/m\u00B2", "Average of a stepped load over the first bay",
                "any number", "11 for a bay length of 0 where it divides; 6 if the result doesn't fit");
    ORVE_METHOD(38, InternalBayLoad, steps, "kN/m\u00B2", "Average of a stepped load over the second bay",
                "any number", "11 for a bay length of 0 where it divides; 6 if the result doesn't fit");
    ORVE_METHOD(39, CantileverValues, ArgumentNames({{"BuildingArea", -1}, {"Face", -1}, {"Results", false}}),
                "", "Finds the cantilever zones of a wind face and their loads; True if there are any", "",
                "5 for a zone without an external load; 9 without a result table; 13 for texts of the wall "
                "pressures that don't convert; those of the components");
    ORVE_METHOD(40, SelectedCantileverLoadValues, areaAndFace, "",
                "The chosen load in the form of a cantilever text", "", Selected);
    ORVE_METHOD(41, ResetCantileverResults, none, "", "Makes the result table one blank row");
    ORVE_METHOD(42, TrimCantileverResults, none, "", "Drops the blank last row of the result table", "",
                "9 if there is no table");
    ORVE_READ_ONLY(43, CantileverZoneWidthWarning, areaAndFace, "",
                   "Unequal cantilevers lie across the wind on this roof face");
    ORVE_READ_ONLY(44, ContinuousSteppedWind, areaAndFace, "",
                   "The end-bay and internal-bay loads are the ones that apply", "",
                   "9 for an area or face that isn't there");
    ORVE_METHOD(45, ZoneIndexFromSelectedLoadType,
                ArgumentNames({{"SelectedLoadType", {}}, {"BuildingArea", -1}, {"Face", -1}}), "",
                "Zone of a load type on a face; ZoneIndexTo + 1 if there is none", "0 to ZoneIndexTo + 1",
                Zones);
    ORVE_METHOD(46, SelectedLoadTypeFromZoneIndex,
                ArgumentNames({{"ZoneIndex", {}}, {"BuildingArea", -1}, {"Face", -1}}), "",
                "Load type of a zone of a face", "0 to 26; 0 if the zone has none", Zone);
    ORVE_METHOD(47, SelectedLoadTypeFromZoneDescription, ArgumentNames({{"ZoneDescription", {}}}), "",
                "Load type of a zone's name", "0 to 26; 0 if the name isn't known");
    ORVE_METHOD(48, ZoneDescriptionFromSelectedLoadType, ArgumentNames({{"SelectedLoadType", {}}}), "",
                "Zone's name of a load type", "empty for a value outside the enumeration");
    ORVE_METHOD(49, ZoneIndexFromZoneDescription,
                ArgumentNames({{"ZoneDescription", {}}, {"BuildingArea", -1}, {"Face", -1}}), "",
                "Zone of a name on a face; ZoneIndexTo + 1 if there is none", "0 to ZoneIndexTo + 1", Zones);
    return describe.Finish();
  }();
  return description;
}

}  // namespace orve::automation
