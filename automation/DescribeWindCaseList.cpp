#include "Describe.h"
#include "storage/clsWindCaseList.h"

namespace orve::automation {

const ClassDescription& DescribeWindCaseList() {
  using Class = clsWindCaseList;
  static const ClassDescription description = [] {
    // Ranges and errors that several members share.
    constexpr std::string_view File =
        "6 for an index outside 16 bits; 53 to 76 for a file that can't be read";

    ClassDescriber<Class> describe(
        "clsWindCaseList", "The recent wind load cases with their descriptions and dates",
        {"8f901da8-bdca-4b8a-9f3a-6b2ee754ce25", "c8102d86-4f4f-4675-81ab-ffe7fe503146", ""});
    const ArgumentNames none;
    const ArgumentNames index{{"Index", -1}};
    ORVE_PROPERTY(1, Index, none, "", "The selected entry, counted from 1",
                  "1 to Count; any 32-bit number is stored");
    ORVE_READ_ONLY(2, Count, none, "", "Length of the list", "0 or more");
    ORVE_PROPERTY(3, MaxCount, none, "", "Maximum length of the list, kept in the settings file",
                  "0 to 32767", "6 outside 16 bits; 70, 75, 76 if the settings file can't be written");
    ORVE_READ_ONLY(4, Location, index, "path", "Full path of an entry, upper case; empty if there is none",
                   "empty if there is no such entry", "6 for an index outside 16 bits");
    ORVE_READ_ONLY(5, LocationCorrect, index, "", "True if the entry's file is there", "",
                   "6 for an index outside 16 bits");
    ORVE_READ_ONLY(6, Description, index, "", "Description of the entry's case",
                   "empty if the file isn't there", File);
    ORVE_READ_ONLY(7, Created, index, "", "Date of the entry's first save; 0 if it isn't known",
                   "0 if the file isn't there", File);
    ORVE_READ_ONLY(8, Modified, index, "", "Date of the entry's last save; 0 if it isn't known",
                   "0 if the file isn't there", File);
    return describe.Finish();
  }();
  return description;
}

}  // namespace orve::automation
