// Keeping the wind-speed component in step with the site, and the component's site dialogs.
#include "core/KeepAlive.h"
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

// Lets the open case calculate anew after another object has worked on the component.
template <class IsOpenCases>
class AnewForOpenCase {
 public:
  explicit AnewForOpenCase(IsOpenCases isOpenCases) : m_isOpenCases(isOpenCases) {}
  ~AnewForOpenCase() {
    if (basBS6399_2::CurrentCase && !m_isOpenCases()) basBS6399_2::CurrentCase->BreVe_Dirty(true);
  }

 private:
  IsOpenCases m_isOpenCases;
};

}  // namespace

// False for an object of a former case, or one that a handler has just put aside.
bool clsDynamicPressure::IsOpenCases() const {
  return RequireCurrentCase().m_DynamicPressure.get() == this;
}

void clsDynamicPressure::RefreshWindComponent() {
  if (IsOpenCases() && !RequireCurrentCase().BreVe_Dirty() && !SiteDirty()) return;
  const KeepAlive keep(*this);
  CaseSteps steps;
  steps.Run([&] { RefreshWindComponent(steps); });
  steps.Finish();
}

// What a handler raises at a mark is kept in `marks`, so that the work is finished; an error of the component
// ends it.
void clsDynamicPressure::RefreshWindComponent(CaseSteps& marks) {
  const auto root = RequireCurrentCase().shared_from_this();
  if (IsOpenCases() && !root->BreVe_Dirty() && !SiteDirty()) return;
  const AnewForOpenCase anew([this] { return IsOpenCases(); });
  const auto component = RequireBreVe();
  component->Risk(AnnualRisk());
  component->Season(static_cast<std::int32_t>(Duration()));
  component->StartMonth(static_cast<std::int32_t>(StartMonth()));
  if (!GridReference().empty() && SiteDirty() && LoadSiteByGridReference(*component, marks)) return;
  SendTopographyMode(*component, SaBasedOn());
  component->SiteAltitude(SiteAltitude());
  component->BaseV(BasicWindSpeed());
  for (int sector = 0; sector < SectorCount; ++sector) SendSectorValues(*component, sector);
  if (auto* state = dynamic_cast<SiteState*>(component.get())) state->SiteFault(m_SiteFault);
  if (component->A() <= 0) component->A(1);
  component->Calculate();
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
bool clsDynamicPressure::LoadSiteByGridReference(BVe2X& component, CaseSteps& marks) {
  const std::string reference = GridReference();
  component.SiteID(reference);
  component.GBSite();
  if (component.Wizard() == WizardEdited) marks.Run([this] { SiteEdited(true); });
  component.Calculate();
  m_SiteFault = SiteFaultOf(component);
  if (m_SiteFault.empty()) CopySiteFromComponent(component);
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
  const KeepAlive keep(*this);
  const AnewForOpenCase anew([this] { return IsOpenCases(); });
  const auto component = RequireBreVe();
  if (!(component.get()->*dialog)()) return false;
  CaseSteps steps;
  steps.Run([&] { TakePickedSite(*component, steps); });
  steps.Finish();
  return true;
}

void clsDynamicPressure::TakePickedSite(BVe2X& component, CaseSteps& marks) {
  const std::string reference = component.SiteID();
  marks.Run([&] { GridReference(reference); });
  if (SiteEdited()) {
    SiteDirty(true);
    marks.Run([this] { SiteEdited(false); });
  }
  const bool autoWizard = component.AutoWizard();
  component.AutoWizard(false);
  RefreshWindComponent(marks);
  component.AutoWizard(autoWizard);
}

bool clsDynamicPressure::EditSite() {
  const KeepAlive keep(*this);
  const AnewForOpenCase anew([this] { return IsOpenCases(); });
  RefreshWindComponent();
  const auto component = RequireBreVe();
  if (!component->Edit()) return false;
  // The values come first: a handler that reads a result at the mark may send them back to the component.
  const clsDynamicPressure before = *this;
  CopySiteFromComponent(*component);
  m_SiteFault = SiteFaultOf(*component);
  const bool differs = SiteDiffersFrom(before);
  RunAll([this] { SiteEdited(true); },
         [differs] {
           if (differs) MarkDirty();
         });
  return true;
}

}  // namespace orve
