#include "Describe.h"
#include "loads/clsCantileverWindLoads.h"

namespace orve::automation {

const ClassDescription& DescribeCantileverWindLoads() {
  using Class = clsCantileverWindLoads;
  static const ClassDescription description = [] {
    ClassDescriber<Class> describe(
        "clsCantileverWindLoads", "The wall pressures under the cantilevers, filled by the host",
        {"a2ccc91d-3f0f-4ee2-b982-f3e3c44fb694", "cc36cd7d-be08-49f7-a545-67ca37869d4e", ""});
    describe.CreatedBy([]() -> std::shared_ptr<void> { return std::make_shared<Class>(); });
    const ArgumentNames none;
    ORVE_PROPERTY(1, ExternalPressures, none, "", "The record of pressures; get and let copy it whole",
                  "texts, \"0\" at first; CantileverValues reads the numbers in them");
    return describe.Finish();
  }();
  return description;
}

}  // namespace orve::automation
