#include "core/basBS6399_2.h"

#include "common/Error.h"
#include "common/clsCommon.h"
#include "common/clsWinAPI.h"
#include "core/clsCurrentCase.h"
#include "external/BreCpX.h"
#include "sitewind/BVe2X.h"

namespace orve {

namespace basBS6399_2 {

std::shared_ptr<clsCommon> Common;
std::shared_ptr<clsWinAPI> WinAPI;
std::shared_ptr<clsCurrentCase> CurrentCase;
std::shared_ptr<BVe2X> BreVe;
std::shared_ptr<BreCpX> BreCp;

}  // namespace basBS6399_2

namespace {

template <class Object>
const std::shared_ptr<Object>& Require(const std::shared_ptr<Object>& object, const char* what) {
  if (!object) throw Error(ErrorNumber::ObjectNotSet, std::string("There is no ") + what);
  return object;
}

}  // namespace

std::shared_ptr<BVe2X> RequireBreVe() {
  return Require(basBS6399_2::BreVe, "wind-speed component");
}
std::shared_ptr<BreCpX> RequireBreCp() {
  return Require(basBS6399_2::BreCp, "pressure-coefficient component");
}
clsCurrentCase& RequireCurrentCase() {
  return *Require(basBS6399_2::CurrentCase, "current case");
}

}  // namespace orve
