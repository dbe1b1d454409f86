#include "Describe.h"
#include "core/clsCurrentCase.h"

namespace orve::automation {

ORVE_OBJECT_TYPE(clsBuildingDimensions)
ORVE_OBJECT_TYPE(clsDynamicPressure)
ORVE_OBJECT_TYPE(clsExternalCoefficients)
ORVE_OBJECT_TYPE(clsInternalCoefficients)
ORVE_OBJECT_TYPE(clsOverallAppliedLoads)
ORVE_OBJECT_TYPE(clsWindCaseList)
ORVE_OBJECT_TYPE(clsCantileverWindLoads)

const ClassDescription& DescribeCurrentCase() {
  using Class = clsCurrentCase;
  static const ClassDescription description = [] {
    // Ranges and errors that several members share.
    constexpr std::string_view NoComponent = "91 without a component";
    constexpr std::string_view Misfit = "6 for a value that doesn't fit; the old one stays";
    constexpr std::string_view Reading =
        "those of reading: 5 for a file over 16 MB, 6 and 13 for a value, 53 to 76 of the file system";
    constexpr std::string_view Writing = "those of writing: 53 to 76 of the file system";

    ClassDescriber<Class> describe(
        "clsCurrentCase", "The one wind load case that is open",
        {"dc20106d-503b-4e6a-8d62-9d210aacb40d", "41c2f3e6-a8a3-47de-9b25-9d4130523d2c",
         "25689385-837f-4818-bfd2-3eb28a6b5018"});
    describe.CreatedBy([]() -> std::shared_ptr<void> { return CreateCurrentCase(); });
    const ArgumentNames none;
    ORVE_PROPERTY(1, BreCp_Dirty, none, "", "The coefficient component has to be told the method anew");
    ORVE_PROPERTY(2, BreOSDatabase, none, "", "Switch for the wind-speed component's database");
    ORVE_PROPERTY(3, BreVe_Dirty, none, "", "Inputs of the wind-speed component have changed");
    ORVE_PROPERTY(4, Parent_Type, none, "", "Kind of design in the host; let it last of the Parent values",
                  "None to ptParapetDesign", Misfit);
    ORVE_PROPERTY(5, Parent_Span, none, "m", "Span of the host's member",
                  "any finite number; 0 where there is none", Misfit);
    ORVE_PROPERTY(6, Parent_Centres, none, "m", "Spacing of the host's members",
                  "any finite number; 0 where there is none", Misfit);
    ORVE_PROPERTY(7, Parent_RoofPitch, none, "degrees", "Roof pitch in the host, whole degrees",
                  "-32768 to 32767");
    ORVE_PROPERTY(8, Parent_HeightOfPost_m, none, "m", "Height of the parapet post",
                  "any finite number; 0 where there is none", Misfit);
    ORVE_PROPERTY(9, Parent_HeightToTopOfPostFromFFL_m, none, "m",
                  "Height of the top of the post above finished floor level",
                  "any finite number; 0 where there is none", Misfit);
    ORVE_PROPERTY(10, Parent_BaySize_m, none, "m", "Bay size", "any finite number; 0 where there is none",
                  Misfit);
    ORVE_PROPERTY(11, PathToHelp, none, "path", "Plain storage for the host", "any text");
    ORVE_PROPERTY(12, PathToWindLoadCases, none, "path", "Folder of the wind load cases", "any text",
                  "70, 75, 76 if the settings file can't be written");
    ORVE_PROPERTY(13, IsDirty, none, "", "The case has unsaved changes; every let raises DirtyUpdated", "",
                  "those of a handler");
    ORVE_PROPERTY(14, Location, none, "path", "Full path of the case's file, empty for a new one", "any text",
                  "those of a handler");
    ORVE_READ_ONLY(15, LocationCorrect, none, "", "True if a file of that name is there");
    ORVE_PROPERTY(16, Description, none, "", "Free text of the case", "any text");
    ORVE_READ_ONLY(17, Created, none, "", "Date of the first save, 0 if there was none", "0 for none");
    ORVE_READ_ONLY(18, Modified, none, "", "Date of the last save, 0 if there was none", "0 for none");
    ORVE_PROPERTY(19, breDataPath, none, "path", "Data folder of the wind-speed component", "any text",
                  NoComponent);
    ORVE_PROPERTY(20, BuildingDimensions, none, "", "Geometry of the building",
                  "an object of the class, or nothing");
    ORVE_PROPERTY(21, DynamicPressure, none, "", "Site and dynamic pressures",
                  "an object of the class, or nothing");
    ORVE_PROPERTY(22, ExternalCoefficients, none, "", "Zones and external pressure coefficients",
                  "an object of the class, or nothing");
    ORVE_PROPERTY(23, InternalCoefficients, none, "", "Internal pressure coefficients",
                  "an object of the class, or nothing");
    ORVE_PROPERTY(24, OverallAppliedLoads, none, "", "Loads", "an object of the class, or nothing");
    ORVE_PROPERTY(25, WindCaseList, none, "", "The recent wind load cases",
                  "an object of the class, or nothing");
    ORVE_PROPERTY(26, CantileverWindloads, none, "", "Wall pressures under the cantilevers",
                  "an object of the class, or nothing");
    ORVE_METHOD(27, Initialize_BreApps, none, "", "Presets the components; call it once after construction",
                "", NoComponent);
    ORVE_METHOD(28, Clear, none, "", "Starts a new, blank case without a question", "", "those of a handler");
    ORVE_METHOD(29, Browse, none, "", "Asks the user for a file and opens it; True if a case was opened",
                "False after Cancel", Reading);
    ORVE_METHOD(30, OpenExisting, ArgumentNames({{"FileNameToOpen", {}}}), "",
                "Opens a file; True if a case was opened",
                "False if there is no such file, or after No to the question about unsaved changes", Reading);
    ORVE_METHOD(31, Save, none, "", "Saves under the present location; with none, asks for a name", "",
                Writing);
    ORVE_METHOD(32, SaveAs, none, "", "Asks for a name and saves", "", Writing);
    ORVE_READ_ONLY(33, OldBreVeVersion, none, "", "The type name of the wind-speed component is BVe2X", "",
                   NoComponent);
    ORVE_READ_ONLY(34, OldBreCpVersion, none, "", "The type name of the coefficient component is BreCpX", "",
                   NoComponent);

    const ArgumentNames newValue{{"NewValue", {}}};
    const ArgumentNames fileName{{"FileName", {}}};
    ORVE_EVENT(1, DirtyUpdated, newValue, "At every assignment to IsDirty");
    ORVE_EVENT(2, LocationUpdated, newValue, "At every assignment to Location");
    ORVE_EVENT(3, WindCaseListUpdated, none, "At the end of the reading or writing of a case");
    ORVE_EVENT(4, WindCaseOpened, fileName, "After a case has been read; Location is still empty");
    ORVE_EVENT(5, WindCaseSaved, fileName,
               "After the file has been written; Location still holds the former name");
    return describe.Finish();
  }();
  return description;
}

}  // namespace orve::automation
