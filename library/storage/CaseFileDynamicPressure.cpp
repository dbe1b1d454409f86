// Section [DynamicPressure] of the case file.
#include "core/Ranges.h"
#include "core/basBS6399_2.h"
#include "core/clsCurrentCase.h"
#include "sitewind/clsDynamicPressure.h"
#include "storage/CaseSection.h"

namespace orve {

namespace {

constexpr const char* DynamicPressureSection = "DynamicPressure";

using D = clsDynamicPressure;

/// The wind areas with results of their own, as their keys name them. The internal wind area has none.
struct AreaName {
  WindAreas area;
  const char* text;
};
constexpr AreaName AreaNames[] = {{WindAreas::waRoof, "Roof"},
                                  {WindAreas::waSidewall, "Sidewall"},
                                  {WindAreas::waGable, "Gable"},
                                  {WindAreas::waSidewallParapet, "waSidewallParapet"},
                                  {WindAreas::waGableParapet, "waGableParapet"}};

using ResultGet = float (D::*)(WindAreas, WindSectors);
using ResultSet = void (D::*)(WindAreas, WindSectors, float);
using SectorGet = float (D::*)(WindSectors);
using SectorSet = void (D::*)(WindSectors, float);

void DescribeManualResults(CaseSection& section, D& site) {
  const auto keys = [&](const char* name, WindSectors sector, ResultGet get, ResultSet set) {
    for (const auto& [area, text] : AreaNames) {
      const std::string key =
          std::string(name) + "(" + text + ", " + std::to_string(static_cast<std::int32_t>(sector)) + ")";
      section.Key(
          key, 0.0f, [&, a = area] { return (site.*get)(a, sector); },
          [&, a = area](float value) { (site.*set)(a, sector, value); });
    }
  };
  for (std::int32_t index = 0; index < WindSectorCount; ++index) {
    const auto sector = WindSectors(index);
    keys("DynamicPressure_q", sector, &D::DynamicPressure_q, &D::DynamicPressure_q);
    keys("SizeEffectFactor_Ca", sector, &D::SizeEffectFactor_Ca, &D::SizeEffectFactor_Ca);
  }
}

void DescribeSectors(CaseSection& section, D& site) {
  for (std::int32_t index = 0; index < WindSectorCount; ++index) {
    const auto sector = WindSectors(index);
    const auto key = [&](const char* name, SectorGet get, SectorSet set) {
      section.Key(
          IndexedKey(name, {index}), 0.0f, [&] { return (site.*get)(sector); },
          [&](float value) { (site.*set)(sector, value); });
    };
    key("CrestHeight_Z", &D::CrestHeight_Z, &D::CrestHeight_Z);
    key("SiteLocation_X", &D::SiteLocation_X, &D::SiteLocation_X);
    key("UpwindLength_LU", &D::UpwindLength_LU, &D::UpwindLength_LU);
    key("DownwindLength_LD", &D::DownwindLength_LD, &D::DownwindLength_LD);
    key("BaseAltitude", &D::BaseAltitude, &D::BaseAltitude);
    key("ObstructionHeight_Ho", &D::ObstructionHeight_Ho, &D::ObstructionHeight_Ho);
    key("ObstructionSpacing_Xo", &D::ObstructionSpacing_Xo, &D::ObstructionSpacing_Xo);
    key("FetchesToSea", &D::FetchesToSea, &D::FetchesToSea);
    key("FetchesInTown", &D::FetchesInTown, &D::FetchesInTown);
  }
}

/// `loadSite` brings the site that the reference names into the component, so that the values read behind the
/// reference overlay what it gives.
template <class LoadSite>
void Describe(CaseSection& section, D& site, LoadSite loadSite) {
  const PropertyKeys<D> key(section, site);
  // Key, the property's get and let, and the value for an absent key.
  key("Method", &D::Method, &D::Method, Methods::Hybrid);
  key("ManualResults", &D::ManualResults, &D::ManualResults, false);
  if (site.ManualResults()) DescribeManualResults(section, site);
  key("GridReference", &D::GridReference, &D::GridReference, "");
  if (section.Reading()) loadSite();
  key("SaBasedOn", &D::SaBasedOn, &D::SaBasedOn, SaBasedOnTypes(0));
  key("SiteAltitude", &D::SiteAltitude, &D::SiteAltitude, 0);
  key("BasicWindSpeed", &D::BasicWindSpeed, &D::BasicWindSpeed, 0);
  key("AnnualRisk", &D::AnnualRisk, &D::AnnualRisk, 0.02f);
  key("LifeTime", &D::LifeTime, &D::LifeTime, LifeTime(0));
  key("Duration", &D::Duration, &D::Duration, Durations(0));
  key("StartMonth", &D::StartMonth, &D::StartMonth, Months(0));
  key("SiteEdited", &D::SiteEdited, &D::SiteEdited, false);
  if (site.SiteEdited()) DescribeSectors(section, site);
}

}  // namespace

void clsDynamicPressure::ReadFromSaveFile() {
  CaseSection section(RequireCurrentCase().m_iclsSaveFile, DynamicPressureSection, CaseSection::Way::Read);
  Describe(section, *this, [this] { RefreshWindComponent(); });
  // Sector values of its own make up for a site that isn't there.
  if (!SiteEdited() || m_SiteFault.empty()) return;
  m_SiteFault.clear();
  RequireCurrentCase().BreVe_Dirty(true);
}

void clsDynamicPressure::WriteToSaveFile() {
  CaseSection section(RequireCurrentCase().m_iclsSaveFile, DynamicPressureSection, CaseSection::Way::Write);
  Describe(section, *this, [this] { RefreshWindComponent(); });
}

}  // namespace orve
