// The module's process-wide references.
#pragma once

#include <memory>

namespace orve {

class BVe2X;
class BreCpX;
class clsCommon;
class clsCurrentCase;
class clsWinAPI;

/// Set in the construction of the root object. Every class reaches its siblings through `CurrentCase` and the
/// components through `BreVe` and `BreCp`. A second construction overwrites all five.
namespace basBS6399_2 {

extern std::shared_ptr<clsCommon> Common;
extern std::shared_ptr<clsWinAPI> WinAPI;
extern std::shared_ptr<clsCurrentCase> CurrentCase;
extern std::shared_ptr<BVe2X> BreVe;
extern std::shared_ptr<BreCpX> BreCp;

}  // namespace basBS6399_2

/// The components, held by the caller for as long as it works on them: a handler or the component itself may
/// put another one in its place. Errors: 91 if there is none.
std::shared_ptr<BVe2X> RequireBreVe();
std::shared_ptr<BreCpX> RequireBreCp();
/// The root object. Errors: 91 if there is none.
clsCurrentCase& RequireCurrentCase();

}  // namespace orve
