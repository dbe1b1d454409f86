// The contract of the wind-speed component.
#pragma once

#include <cstdint>
#include <string>

#include "core/Enumerations.h"

namespace orve {

/// A component that holds one site and works out its wind factors to BS 6399-2, for one height and one
/// diagonal at a time and for all twelve sectors at once. Inputs first, then `Calculate`, then results: a
/// result is that of the last `Calculate`. Sectors are 0 to 11. Distances to the sea and in the town are in
/// kilometres, all other lengths in metres, speeds in m/s.
class BVe2X {
 public:
  virtual ~BVe2X() = default;

  /// The class's type name: "BVe2X" for the class that is tried first.
  virtual std::string TypeName() const = 0;

  /// Data folder of the component.
  virtual std::string datapath() const = 0;
  virtual void datapath(const std::string& value) = 0;

  /// Whether the component may open its wizard by itself.
  virtual bool AutoWizard() const = 0;
  virtual void AutoWizard(bool value) = 0;
  virtual void AutoSite(bool value) = 0;
  virtual void SiteAltWarn(bool value) = 0;
  virtual void Tick(std::int32_t value) = 0;

  /// Site dialogs: True if the user accepted.
  virtual bool Browse() = 0;
  virtual bool SelectDlg() = 0;
  /// As above; the results are current after it.
  virtual bool Edit() = 0;

  /// Site reference.
  virtual std::string SiteID() const = 0;
  virtual void SiteID(const std::string& value) = 0;
  /// Loads the site named by `SiteID`.
  virtual void GBSite() = 0;
  /// 1 if the site is to be treated as edited.
  virtual std::int32_t Wizard() const = 0;

  /// Annual risk of exceedance Q (annex D).
  virtual void Risk(float value) = 0;
  /// A `Durations` value (annex D).
  virtual void Season(std::int32_t value) = 0;
  /// A `Months` value (annex D).
  virtual void StartMonth(std::int32_t value) = 0;
  /// 2: the altitude factor follows the site's altitude; 0: it follows the topography (2.2.2.2).
  virtual void TopogMode(std::int32_t value) = 0;

  virtual float SiteAltitude() const = 0;
  virtual void SiteAltitude(float value) = 0;
  /// Basic wind speed Vb.
  virtual float BaseV() const = 0;
  virtual void BaseV(float value) = 0;

  // Site data by sector. A value set reads back equal.
  virtual float CrestHt(WindSectors sector) const = 0;  ///< Crest height Z.
  virtual float CrestX(WindSectors sector) const = 0;  ///< Site's distance X from the crest, negative upwind.
  virtual float UpwLen(WindSectors sector) const = 0;  ///< Upwind slope length LU.
  virtual float DnwLen(WindSectors sector) const = 0;  ///< Downwind slope length LD.
  virtual float BaseAlt(WindSectors sector) const = 0;  ///< Altitude of the feature's base.
  virtual float ObsHt(WindSectors sector) const = 0;    ///< Obstruction height Ho (1.7.3).
  virtual float ObsSep(WindSectors sector) const = 0;   ///< Obstruction spacing Xo (1.7.3).
  virtual float ToSea(WindSectors sector) const = 0;    ///< Distance to the sea.
  virtual float InTown(WindSectors sector) const = 0;   ///< Distance in the town from its upwind edge.
  virtual void setCrestHt(WindSectors sector, float value) = 0;
  virtual void setCrestX(WindSectors sector, float value) = 0;
  virtual void setUpwLen(WindSectors sector, float value) = 0;
  virtual void setDnwLen(WindSectors sector, float value) = 0;
  virtual void setBaseAlt(WindSectors sector, float value) = 0;
  virtual void setObsHt(WindSectors sector, float value) = 0;
  virtual void setObsSep(WindSectors sector, float value) = 0;
  virtual void setToSea(WindSectors sector, float value) = 0;
  virtual void setInTown(WindSectors sector, float value) = 0;

  /// Height of the next results.
  virtual float H() const = 0;
  virtual void H(float value) = 0;
  /// Diagonal of the next results.
  virtual float A() const = 0;
  virtual void A(float value) = 0;
  /// Units of pressures; 1 is pascals.
  virtual std::int32_t Units() const = 0;
  virtual void Units(std::int32_t value) = 0;

  /// Brings the results up to date with the inputs.
  virtual void Calculate() = 0;

  virtual float Sp() const = 0;                          ///< Probability factor (annex D).
  virtual float Ss() const = 0;                          ///< Seasonal factor (annex D).
  virtual float Sd(WindSectors sector) const = 0;        ///< Direction factor (Table 3).
  virtual float Sa(WindSectors sector) const = 0;        ///< Altitude factor (2.2.2.2).
  virtual float Zd(WindSectors sector) const = 0;        ///< Displacement height Hd (1.7.3).
  virtual float He(WindSectors sector) const = 0;        ///< Effective height (1.7.3).
  virtual float Sh(WindSectors sector) const = 0;        ///< Topographic increment (Table 25).
  virtual float Sc(WindSectors sector) const = 0;        ///< Fetch factor (Table 22).
  virtual float St(WindSectors sector) const = 0;        ///< Turbulence factor (Table 22).
  virtual float Tc(WindSectors sector) const = 0;        ///< Fetch adjustment factor (Table 23).
  virtual float Tt(WindSectors sector) const = 0;        ///< Turbulence adjustment factor (Table 23).
  virtual float gt(WindSectors sector) const = 0;        ///< Gust peak factor (Table 24).
  virtual float Sb(WindSectors sector) const = 0;        ///< Terrain and building factor.
  virtual float DirVal(WindSectors sector) const = 0;    ///< Directional dynamic pressure.
  virtual float BSGust(WindSectors sector) const = 0;    ///< Hybrid dynamic pressure.
  virtual float HybridCa(WindSectors sector) const = 0;  ///< Size effect factor (Figure 4).
};

}  // namespace orve
