// Keeping the wind-speed component in step with the site, and the component's site dialogs.
#include "core/Marks.h"
#include "sitewind/BVe2X.h"
#include "sitewind/SectorInputs.h"
#include "sitewind/SiteState.h"
#include "sitewind/clsDynamicPressure.h"

namespace orve {

namespace {

constexpr std::int32_t TopographyByAltitude = 2;
constexpr std::int32_t TopographyByFeature = 0;
constexpr int FetchAttempts = 20;
constexpr std::size_t FirstFetch = 7;
constexpr std::int32_t WizardEdited = 1;

void SendTopographyMode(BVe2X& component, SaBasedOnTypes saBasedOn) {
  if (saBasedOn == SaBasedOnTypes::Altitude) component.TopogMode(TopographyByAltitude);
  if (saBasedOn == SaBasedOnTypes::Topography) component.TopogMode(TopographyByFeature);
}

std::string SiteFaultOf(const BVe2X& component) {
  const auto* state = dynamic_cast<const SiteState*>(&component);
  return state ? state->SiteFault() : std::string();
}

}  // namespace

void clsDynamicPressure::RefreshWindComponent() {
  const auto root = RequireCurrentCase().shared_from_this();
  if (!root->BreVe_Dirty() && !SiteDirty()) return;
  BVe2X& component = RequireBreVe();
  component.Risk(AnnualRisk());
  component.Season(static_cast<std::int32_t>(Duration()));
  component.StartMonth(static_cast<std::int32_t>(StartMonth()));
  if (!GridReference().empty() && SiteDirty() && LoadSiteByGridReference(GridReference())) return;
  SendTopographyMode(component, SaBasedOn());
  component.SiteAltitude(SiteAltitude());
  component.BaseV(BasicWindSpeed());
  for (int sector = 0; sector < SectorCount; ++sector) SendSectorValues(component, sector);
  if (auto* state = dynamic_cast<SiteState*>(&component)) state->SiteFault(m_SiteFault);
  if (component.A() <= 0) component.A(1);
  component.Calculate();
  root->BreVe_Dirty(false);
}

void clsDynamicPressure::SendSectorValues(BVe2X& component, int sector) {
  const auto windSector = static_cast<WindSectors>(sector);
  for (std::size_t input = 0; input < SectorInputs.size(); ++input) {
    const SectorInput& pair = SectorInputs[input];
    const float value = (this->*pair.values)[sector];
    if (!Differs((component.*pair.get)(windSector), value)) continue;
    // The component may not take a fetch at the first time of asking.
    const int attempts = input < FirstFetch ? 1 : FetchAttempts;
    for (int attempt = 0; attempt < attempts; ++attempt) {
      (component.*pair.set)(windSector, value);
      if (input >= FirstFetch && !Differs((component.*pair.get)(windSector), value)) break;
    }
  }
}

// False if the component says that it has no such site. The values of the case then stay, and are sent again:
// the component may hold those of another case.
bool clsDynamicPressure::LoadSiteByGridReference(const std::string& reference) {
  const auto self = weak_from_this().lock();
  const auto component = HeldBreVe();
  component->SiteID(reference);
  component->GBSite();
  if (component->Wizard() == WizardEdited) SiteEdited(true);
  component->Calculate();
  m_SiteFault = SiteFaultOf(*component);
  if (m_SiteFault.empty()) CopySiteFromComponent(*component);
  SiteDirty(false);
  return m_SiteFault.empty();
}

void clsDynamicPressure::CopySiteFromComponent(const BVe2X& component) {
  m_SiteAltitude = component.SiteAltitude();
  m_BasicWindSpeed = component.BaseV();
  for (int sector = 0; sector < SectorCount; ++sector)
    for (const SectorInput& pair : SectorInputs)
      (this->*pair.values)[sector] = (component.*pair.get)(static_cast<WindSectors>(sector));
}

// Two copies of the site compared: all that a load by reference or an edit can bring back from the component.
bool clsDynamicPressure::SiteDiffersFrom(const clsDynamicPressure& other) const {
  bool differs =
      Differs(m_SiteAltitude, other.m_SiteAltitude) || Differs(m_BasicWindSpeed, other.m_BasicWindSpeed);
  for (const SectorInput& pair : SectorInputs)
    for (int sector = 0; sector < SectorCount; ++sector)
      differs = differs || Differs((this->*pair.values)[sector], (other.*pair.values)[sector]);
  return differs;
}

bool clsDynamicPressure::SelectSite() {
  return PickSite(&BVe2X::Browse);
}
bool clsDynamicPressure::EnterSite() {
  return PickSite(&BVe2X::SelectDlg);
}

bool clsDynamicPressure::PickSite(bool (BVe2X::*dialog)()) {
  const auto self = weak_from_this().lock();
  const auto component = HeldBreVe();
  if (!(component.get()->*dialog)()) return false;
  GridReference(component->SiteID());
  if (SiteEdited()) {
    SiteDirty(true);
    SiteEdited(false);
  }
  const bool autoWizard = component->AutoWizard();
  component->AutoWizard(false);
  RefreshWindComponent();
  component->AutoWizard(autoWizard);
  return true;
}

bool clsDynamicPressure::EditSite() {
  const auto self = weak_from_this().lock();
  RefreshWindComponent();
  const auto component = HeldBreVe();
  if (!component->Edit()) return false;
  // The values come first: a handler that reads a result at the mark may send them back to the component.
  const clsDynamicPressure before = *this;
  CopySiteFromComponent(*component);
  m_SiteFault = SiteFaultOf(*component);
  const bool differs = SiteDiffersFrom(before);
  SiteEdited(true);
  if (differs) MarkDirty();
  return true;
}

}  // namespace orve
