#include "Describe.h"
#include "storage/clsWindCaseList.h"

namespace orve::automation {

const ClassDescription& DescribeWindCaseList() {
  using Class = clsWindCaseList;
  static const ClassDescription description = [] {
    ClassDescriber<Class> describe(
        "clsWindCaseList", "The recent wind load cases with their descriptions and dates",
        {"8f901da8-bdca-4b8a-9f3a-6b2ee754ce25", "c8102d86-4f4f-4675-81ab-ffe7fe503146", ""});
    const ArgumentNames none;
    const ArgumentNames index{{"Index", -1}};
    ORVE_PROPERTY(1, Index, none, "", "The selected entry, counted from 1");
    ORVE_READ_ONLY(2, Count, none, "", "Length of the list");
    ORVE_PROPERTY(3, MaxCount, none, "", "Maximum length of the list, kept in the settings file");
    ORVE_READ_ONLY(4, Location, index, "path", "Full path of an entry, upper case; empty if there is none");
    ORVE_READ_ONLY(5, LocationCorrect, index, "", "True if the entry's file is there");
    ORVE_READ_ONLY(6, Description, index, "", "Description of the entry's case");
    ORVE_READ_ONLY(7, Created, index, "", "Date of the entry's first save; 0 if it isn't known");
    ORVE_READ_ONLY(8, Modified, index, "", "Date of the entry's last save; 0 if it isn't known");
    return describe.Finish();
  }();
  return description;
}

}  // namespace orve::automation
