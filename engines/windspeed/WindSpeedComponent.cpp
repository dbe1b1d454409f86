#include "windspeed/WindSpeedComponent.h"

#include <bit>
#include <cmath>
#include <cstdint>

#include "common/Error.h"
#include "common/Host.h"
#include "windspeed/Refusal.h"
#include "windspeed/SiteFile.h"

namespace orve::windspeed {

namespace {

std::size_t SectorIndex(WindSectors sector) {
  const auto value = static_cast<std::int32_t>(sector);
  if (value < 0 || value >= static_cast<std::int32_t>(kSectors))
    RaiseSubscript("wind sector", value, 0, kSectors - 1);
  return static_cast<std::size_t>(value);
}

// Stores a value; true if it differs in any bit, so that NaN and a signed zero read back as they were set.
bool Store(float& field, float value) {
  if (std::bit_cast<std::uint32_t>(field) == std::bit_cast<std::uint32_t>(value)) return false;
  field = value;
  return true;
}

bool Store(std::int32_t& field, std::int32_t value) {
  if (field == value) return false;
  field = value;
  return true;
}

bool AskForSite(const std::function<bool(std::string&)>& dialog, std::string& reference) {
  std::string chosen = reference;
  if (!dialog || !dialog(chosen)) return false;
  reference = chosen;
  return true;
}

}  // namespace

bool WindSpeedComponent::Browse() {
  return AskForSite(Host().SiteBrowse, m_siteReference);
}

bool WindSpeedComponent::SelectDlg() {
  return AskForSite(Host().SiteSelect, m_siteReference);
}

bool WindSpeedComponent::Edit() {
  const auto dialog = Host().SiteEdit;
  if (!dialog || !dialog()) return false;
  m_siteFault.clear();
  Calculate();
  return true;
}

void WindSpeedComponent::GBSite() {
  const SiteFile site = ReadSite(m_dataPath, m_siteReference);
  m_siteEdited = site.edited && site.fault.empty();
  m_siteFault = site.fault;
  if (site.fault.empty()) SetSite(site.values);
}

void WindSpeedComponent::ForgetSite() {
  m_siteReference.clear();
  m_siteEdited = false;
  SetSite(SiteValues{});
  m_siteFault.clear();
}

void WindSpeedComponent::SetSite(const SiteValues& values) {
  SiteAltitude(values.altitude);
  BaseV(values.basicWindSpeed);
  for (std::size_t sector = 0; sector < kSectors; ++sector)
    for (std::size_t index = 0; index < kSectorValues; ++index)
      SetSectorValue(static_cast<WindSectors>(sector), static_cast<Input>(index),
                     values.sectors[sector][index]);
}

void WindSpeedComponent::Risk(float value) {
  if (Store(m_inputs.risk, value)) m_changes.seasonAndRisk = true;
}

void WindSpeedComponent::Season(std::int32_t value) {
  if (Store(m_inputs.season, value)) m_changes.seasonAndRisk = true;
}

void WindSpeedComponent::StartMonth(std::int32_t value) {
  if (Store(m_inputs.startMonth, value)) m_changes.seasonAndRisk = true;
}

void WindSpeedComponent::TopogMode(std::int32_t value) {
  if (Store(m_inputs.topographyMode, value)) m_changes.topographyMode = true;
}

void WindSpeedComponent::SiteAltitude(float value) {
  if (Store(m_inputs.site.altitude, value)) m_changes.speed = true;
}

void WindSpeedComponent::BaseV(float value) {
  if (Store(m_inputs.site.basicWindSpeed, value)) m_changes.speed = true;
}

float WindSpeedComponent::SectorValue(WindSectors sector, Input input) const {
  return m_inputs.site.sectors[SectorIndex(sector)][static_cast<std::size_t>(input)];
}

void WindSpeedComponent::SetSectorValue(WindSectors sector, Input input, float value) {
  const std::size_t index = SectorIndex(sector);
  if (!Store(m_inputs.site.sectors[index][static_cast<std::size_t>(input)], value)) return;
  m_changes.site[index] = true;
  m_siteFault.clear();
}

void WindSpeedComponent::H(float value) {
  if (Store(m_inputs.height, value)) m_changes.height = true;
}

void WindSpeedComponent::A(float value) {
  if (Store(m_inputs.diagonal, value)) m_changes.diagonal = true;
}

void WindSpeedComponent::Units(std::int32_t value) {
  m_inputs.units = value;
}

void WindSpeedComponent::Calculate() {
  m_used = m_inputs;
  Update(m_results, m_used, m_changes);
  m_changes.Clear();
  m_calculated = true;
}

void WindSpeedComponent::RequireResults() const {
  if (!m_calculated)
    throw Error(ErrorNumber::InvalidArgument, "The wind-speed component has no results before Calculate");
}

std::size_t WindSpeedComponent::RequireSiteResults(WindSectors sector) const {
  const std::size_t index = SectorIndex(sector);
  RequireResults();
  if (!m_siteFault.empty()) throw Error(ErrorNumber::InvalidArgument, m_siteFault);
  return index;
}

float WindSpeedComponent::Served(WindFactor factor, std::size_t sector, double value) const {
  if (!std::isnan(value) && std::abs(value) <= kLargest) return static_cast<float>(value);
  Refuse(factor, m_used, sector);
}

float WindSpeedComponent::Read(WindFactor factor, WindSectors sector, double SectorResults::*value) const {
  const std::size_t index = RequireSiteResults(sector);
  return Served(factor, index, m_results.sectors[index].*value);
}

float WindSpeedComponent::Read(WindFactor factor, WindSectors sector, double TerrainFactors::*value) const {
  const std::size_t index = RequireSiteResults(sector);
  return Served(factor, index, m_results.sectors[index].terrain.*value);
}

float WindSpeedComponent::Pressure(WindSectors sector) const {
  const std::size_t index = RequireSiteResults(sector);
  const double q = m_results.sectors[index].q;
  if (m_used.units == kPascals) return Served(WindFactor::q, index, q);
  const bool known = m_used.units == kKilonewtons && !std::isnan(q);
  return Served(WindFactor::q, index, known ? q / 1000 : kNotKnown);
}

float WindSpeedComponent::Sp() const {
  RequireResults();
  return Served(WindFactor::Sp, 0, m_results.Sp);
}

float WindSpeedComponent::Ss() const {
  RequireResults();
  return Served(WindFactor::Ss, 0, m_results.Ss);
}

float WindSpeedComponent::Sd(WindSectors sector) const {
  const std::size_t index = SectorIndex(sector);
  RequireResults();
  return static_cast<float>(DirectionFactor(index));
}

float WindSpeedComponent::StandardSb(WindSectors sector) const {
  const std::size_t index = RequireSiteResults(sector);
  const SectorResults& results = m_results.sectors[index];
  const double factor = windspeed::StandardSb(results);
  if (std::isnan(factor) || results.He > kTable4Height) RefuseStandardSb(m_used, index, results.He);
  return static_cast<float>(factor);
}

float WindSpeedComponent::StandardSa(WindSectors sector) const {
  const std::size_t index = RequireSiteResults(sector);
  const double factor = windspeed::StandardSa(m_results.sectors[index], m_used, index);
  if (std::isnan(factor) || factor > kLargest) RefuseStandardSa(m_used, index);
  return static_cast<float>(factor);
}

}  // namespace orve::windspeed
