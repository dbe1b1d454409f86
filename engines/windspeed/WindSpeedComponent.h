// The built-in wind-speed engine as a component: inputs, site, and the results of the last `Calculate`.
#pragma once

#include <string>

#include "sitewind/BVe2X.h"
#include "sitewind/SiteState.h"
#include "windspeed/Calculation.h"
#include "windspeed/Inputs.h"
#include "windspeed/WindSpeedSources.h"

namespace orve::windspeed {

/// Inputs take anything and read back equal. Reads of results raise: 5 before the first `Calculate`, for an
/// input that isn't usable and for a site that wasn't found; 6 for a result too large; 9 for a sector outside
/// 0 to 11, as all members by sector do.
class WindSpeedComponent final : public BVe2X, public WindSpeedSources, public SiteState {
 public:
  std::string TypeName() const override { return "BVe2X"; }

  std::string datapath() const override { return m_dataPath; }
  void datapath(const std::string& value) override { m_dataPath = value; }

  // The engine opens no dialog by itself and looks for no site unasked: these four are held only.
  bool AutoWizard() const override { return m_autoWizard; }
  void AutoWizard(bool value) override { m_autoWizard = value; }
  void AutoSite(bool value) override { m_autoSite = value; }
  void SiteAltWarn(bool value) override { m_siteAltWarn = value; }
  void Tick(std::int32_t value) override { m_tick = value; }

  /// The site dialogs are the host's (`HostServices`).
  bool Browse() override;
  bool SelectDlg() override;
  bool Edit() override;

  std::string SiteID() const override { return m_siteReference; }
  void SiteID(const std::string& value) override { m_siteReference = value; }
  void GBSite() override;
  /// 1 if the site file that was loaded last says so.
  std::int32_t Wizard() const override { return m_siteEdited ? 1 : 0; }

  void ForgetSite() override;
  /// Set by a `GBSite` that finds no usable file; a good one, an accepted `Edit` and a sector value that
  /// differs from the one held empty it. Altitude and basic wind speed don't.
  std::string SiteFault() const override { return m_siteFault; }
  void SiteFault(const std::string& value) override { m_siteFault = value; }

  void Risk(float value) override;
  void Season(std::int32_t value) override;
  void StartMonth(std::int32_t value) override;
  void TopogMode(std::int32_t value) override;

  float SiteAltitude() const override { return m_inputs.site.altitude; }
  void SiteAltitude(float value) override;
  float BaseV() const override { return m_inputs.site.basicWindSpeed; }
  void BaseV(float value) override;

  float CrestHt(WindSectors sector) const override { return SectorValue(sector, Input::CrestHeight); }
  float CrestX(WindSectors sector) const override { return SectorValue(sector, Input::SiteLocation); }
  float UpwLen(WindSectors sector) const override { return SectorValue(sector, Input::UpwindLength); }
  float DnwLen(WindSectors sector) const override { return SectorValue(sector, Input::DownwindLength); }
  float BaseAlt(WindSectors sector) const override { return SectorValue(sector, Input::BaseAltitude); }
  float ObsHt(WindSectors sector) const override { return SectorValue(sector, Input::ObstructionHeight); }
  float ObsSep(WindSectors sector) const override { return SectorValue(sector, Input::ObstructionSpacing); }
  float ToSea(WindSectors sector) const override { return SectorValue(sector, Input::DistanceToSea); }
  float InTown(WindSectors sector) const override { return SectorValue(sector, Input::DistanceInTown); }
  void setCrestHt(WindSectors s, float value) override { SetSectorValue(s, Input::CrestHeight, value); }
  void setCrestX(WindSectors s, float value) override { SetSectorValue(s, Input::SiteLocation, value); }
  void setUpwLen(WindSectors s, float value) override { SetSectorValue(s, Input::UpwindLength, value); }
  void setDnwLen(WindSectors s, float value) override { SetSectorValue(s, Input::DownwindLength, value); }
  void setBaseAlt(WindSectors s, float value) override { SetSectorValue(s, Input::BaseAltitude, value); }
  void setObsHt(WindSectors s, float value) override { SetSectorValue(s, Input::ObstructionHeight, value); }
  void setObsSep(WindSectors s, float value) override { SetSectorValue(s, Input::ObstructionSpacing, value); }
  void setToSea(WindSectors s, float value) override { SetSectorValue(s, Input::DistanceToSea, value); }
  void setInTown(WindSectors s, float value) override { SetSectorValue(s, Input::DistanceInTown, value); }

  float H() const override { return m_inputs.height; }
  void H(float value) override;
  float A() const override { return m_inputs.diagonal; }
  void A(float value) override;
  /// 1: pressures in Pa. 0: in kN/m2. With any other value the pressures refuse.
  std::int32_t Units() const override { return m_inputs.units; }
  void Units(std::int32_t value) override;

  void Calculate() override;

  float Sp() const override;
  float Ss() const override;
  float Sd(WindSectors sector) const override;
  float Sa(WindSectors sector) const override { return Read(WindFactor::Sa, sector, &SectorResults::Sa); }
  float Zd(WindSectors sector) const override { return Read(WindFactor::Zd, sector, &SectorResults::Zd); }
  float He(WindSectors sector) const override { return Read(WindFactor::He, sector, &SectorResults::He); }
  float Sh(WindSectors sector) const override { return Read(WindFactor::Sh, sector, &SectorResults::Sh); }
  float Sc(WindSectors sector) const override { return Read(WindFactor::Sc, sector, &TerrainFactors::Sc); }
  float St(WindSectors sector) const override { return Read(WindFactor::St, sector, &TerrainFactors::St); }
  float Tc(WindSectors sector) const override { return Read(WindFactor::Tc, sector, &TerrainFactors::Tc); }
  float Tt(WindSectors sector) const override { return Read(WindFactor::Tt, sector, &TerrainFactors::Tt); }
  float gt(WindSectors sector) const override { return Read(WindFactor::gt, sector, &SectorResults::gt); }
  float Sb(WindSectors sector) const override { return Read(WindFactor::Sb, sector, &SectorResults::Sb); }
  /// Both with the gust peak factor of a 5 m diagonal, 3.44: size enters the loads by `HybridCa` alone, and
  /// with the diagonal's own factor it would count twice.
  float DirVal(WindSectors sector) const override { return Pressure(sector); }
  float BSGust(WindSectors sector) const override { return Pressure(sector); }
  float HybridCa(WindSectors sector) const override {
    return Read(WindFactor::Ca, sector, &SectorResults::Ca);
  }

  SourceRecord Source(WindFactor factor, WindSectors sector) const override;
  float StandardSb(WindSectors sector) const override;
  float StandardSa(WindSectors sector) const override;

 private:
  float SectorValue(WindSectors sector, Input input) const;
  void SetSectorValue(WindSectors sector, Input input, float value);
  void SetSite(const SiteValues& values);

  void RequireResults() const;
  /// The sector's index once it and the results behind a site result are sure.
  std::size_t RequireSiteResults(WindSectors sector) const;
  float Served(WindFactor factor, std::size_t sector, double value) const;
  float Read(WindFactor factor, WindSectors sector, double SectorResults::*value) const;
  float Read(WindFactor factor, WindSectors sector, double TerrainFactors::*value) const;
  float Pressure(WindSectors sector) const;

  std::string m_dataPath;
  std::string m_siteReference;
  std::string m_siteFault;  // why the values of the last GBSite aren't there; empty if all is well
  bool m_siteEdited = false;
  bool m_autoWizard = false;
  bool m_autoSite = false;
  bool m_siteAltWarn = false;
  std::int32_t m_tick = 0;

  InputValues m_inputs;
  Changes m_changes;
  bool m_calculated = false;
  InputValues m_used;  // those of the last Calculate
  SiteResults m_results;
};

}  // namespace orve::windspeed
