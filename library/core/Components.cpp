// Start-up of the two components and the members that deal with the loaded classes.
#include "core/Components.h"

#include "common/Error.h"
#include "common/clsWinAPI.h"
#include "core/ComponentClasses.h"
#include "core/basBS6399_2.h"
#include "core/clsCurrentCase.h"
#include "external/BreCpX.h"
#include "sitewind/BVe2X.h"

namespace orve {

namespace {

constexpr const char* WindSpeedClass = "BVe2XControl4.BVe2X";
constexpr const char* WindSpeedFallbackClass = "BVe2_2XControl1.BVe2_2X";
constexpr const char* CoefficientClass = "BreCp2_2XControl3.BreCp2_2X";
constexpr const char* CoefficientFallbackClass = "BreCpX1.BreCpX";
constexpr const char* OldWindSpeedType = "BVe2X";
constexpr const char* OldCoefficientType = "BreCpX";

std::string ComponentDataFolder() {
  return basBS6399_2::WinAPI->API_GetSystemDirectory() + "\\wzfdata";
}

// Runs one step of the start-up, whatever fails in it. True if it failed because a class can't be created.
template <class Step>
bool CannotCreate(Step step) {
  try {
    step();
  } catch (const Error& error) {
    return error.Number() == static_cast<int>(ErrorNumber::CannotCreateObject);
  } catch (...) {
    return false;
  }
  return false;
}

void StartBreVe() {
  const bool fallback =
      CannotCreate([] { basBS6399_2::BreVe = ComponentClasses().CreateWindSpeed(WindSpeedClass); });
  CannotCreate([fallback] {
    if (fallback)
      basBS6399_2::BreVe = ComponentClasses().CreateWindSpeed(WindSpeedFallbackClass);
    else
      RequireBreVe()->datapath(ComponentDataFolder());
  });
}

void StartBreCp() {
  const bool fallback =
      CannotCreate([] { basBS6399_2::BreCp = ComponentClasses().CreateCoefficients(CoefficientClass); });
  if (!fallback) return;
  CannotCreate([] { basBS6399_2::BreCp = ComponentClasses().CreateCoefficients(CoefficientFallbackClass); });
  CannotCreate([] { RequireBreCp()->datapath(ComponentDataFolder()); });
}

}  // namespace

void StartComponents() {
  basBS6399_2::BreVe.reset();
  basBS6399_2::BreCp.reset();
  StartBreVe();
  StartBreCp();
}

void clsCurrentCase::Initialize_BreApps() {
  BreOSDatabase(true);
  const auto breVe = RequireBreVe();
  breVe->AutoWizard(true);
  breVe->AutoSite(true);
  breVe->Tick(0);
  breVe->SiteAltWarn(false);
  const auto breCp = RequireBreCp();
  breCp->AutoBreadth(true);
  breCp->Reporting(0);
}

std::string clsCurrentCase::breDataPath() const {
  return RequireBreVe()->datapath();
}

void clsCurrentCase::breDataPath(const std::string& value) {
  if (OldBreVeVersion()) RequireBreVe()->datapath(value);
}

bool clsCurrentCase::OldBreVeVersion() const {
  return RequireBreVe()->TypeName() == OldWindSpeedType;
}

bool clsCurrentCase::OldBreCpVersion() const {
  return RequireBreCp()->TypeName() == OldCoefficientType;
}

}  // namespace orve
