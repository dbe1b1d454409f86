// The site, and dynamic pressure q and size effect factor Ca by wind area and sector.
#pragma once

#include <array>
#include <cstdint>
#include <memory>
#include <string>

#include "core/Enumerations.h"
#include "core/WithoutDefaults.h"

namespace orve {

class BVe2X;
class CaseSteps;

/// Holds the site, keeps the wind-speed component in step with it, and answers for one wind area of the
/// building and one of the twelve sectors. No result is kept: every read asks the component. Argument
/// `windArea` is 0 to 5, `windSector` 0 to 11; exactly -1 means the object's own property. Errors of the
/// component pass to the caller unchanged; 91 if there is no component.
class clsDynamicPressure : public std::enable_shared_from_this<clsDynamicPressure> {
 public:
  clsDynamicPressure();

  /// Current wind area and sector, used where an argument is -1. Plain storage. Errors: 6 outside 16 bits.
  WindAreas WindArea() const { return static_cast<WindAreas>(m_WindArea); }
  void WindArea(WindAreas value);
  WindSectors WindSector() const { return static_cast<WindSectors>(m_WindSector); }
  void WindSector(WindSectors value);

  /// The site named by `GridReference` is still to be loaded into the component. Marks nothing.
  bool SiteDirty() const { return m_SiteDirty; }
  void SiteDirty(bool value);
  /// A site reference has been assigned. Only the host reads it. Marks nothing.
  bool SiteSelected() const { return m_SiteSelected; }
  void SiteSelected(bool value);
  /// The site differs from what its reference alone gives, so the per-sector values are persisted.
  bool SiteEdited() const { return m_SiteEdited; }
  void SiteEdited(bool value);
  /// The method of BS 6399-2. Default `Hybrid`. A change sets `IsDirty` and `BreCp_Dirty`. Errors: 6 outside
  /// 16 bits.
  Methods Method() const { return static_cast<Methods>(m_Method); }
  void Method(Methods value);
  /// q and Ca come from the hand-entered tables and not from the component.
  bool ManualResults() const { return m_ManualResults; }
  void ManualResults(bool value);
  /// Site reference of the component; empty: none. A change sets `IsDirty`, `SiteDirty` and `SiteSelected`.
  const std::string& GridReference() const { return m_GridReference; }
  void GridReference(const std::string& value);
  /// Whether the altitude factor rests on altitude or on topography (2.2.2.2).
  SaBasedOnTypes SaBasedOn() const { return m_SaBasedOn; }
  void SaBasedOn(SaBasedOnTypes value);
  /// Altitude of the site, metres.
  float SiteAltitude() const { return m_SiteAltitude; }
  void SiteAltitude(float value);
  /// Basic wind speed Vb, m/s (Figure 6).
  float BasicWindSpeed() const { return m_BasicWindSpeed; }
  void BasicWindSpeed(float value);
  /// Annual risk of exceedance Q (annex D). Default 0.02.
  float AnnualRisk() const { return m_AnnualRisk; }
  void AnnualRisk(float value);
  /// Stored and persisted, never sent to the component.
  orve::LifeTime LifeTime() const { return m_LifeTime; }
  void LifeTime(orve::LifeTime value);
  /// Part of the year of the exposure (annex D).
  Durations Duration() const { return m_Duration; }
  void Duration(Durations value);
  /// First month of the exposure (annex D).
  Months StartMonth() const { return m_StartMonth; }
  void StartMonth(Months value);

  // Site data by sector. A get first brings the component up to date and then asks it; a let stores into the
  // class. Errors of a let: 9 for a sector outside 0 to 11.
  /// Crest height Z of the topographic feature, metres (Figure 7).
  float CrestHeight_Z(WindSectors windSector = WindSectors(-1));
  void CrestHeight_Z(WindSectors windSector, float value);
  /// Distance X of the site from the crest, negative upwind, metres (Figure 7).
  float SiteLocation_X(WindSectors windSector = WindSectors(-1));
  void SiteLocation_X(WindSectors windSector, float value);
  /// Upwind slope length LU, metres (Figure 7).
  float UpwindLength_LU(WindSectors windSector = WindSectors(-1));
  void UpwindLength_LU(WindSectors windSector, float value);
  /// Downwind slope length LD, metres (Figure 7).
  float DownwindLength_LD(WindSectors windSector = WindSectors(-1));
  void DownwindLength_LD(WindSectors windSector, float value);
  /// Altitude of the base of the feature, metres.
  float BaseAltitude(WindSectors windSector = WindSectors(-1));
  void BaseAltitude(WindSectors windSector, float value);
  /// Height Ho of the obstructions, metres (1.7.3).
  float ObstructionHeight_Ho(WindSectors windSector = WindSectors(-1));
  void ObstructionHeight_Ho(WindSectors windSector, float value);
  /// Upwind spacing Xo of the obstructions, metres (1.7.3).
  float ObstructionSpacing_Xo(WindSectors windSector = WindSectors(-1));
  void ObstructionSpacing_Xo(WindSectors windSector, float value);
  /// Distance to the sea, kilometres (Table 22).
  float FetchesToSea(WindSectors windSector = WindSectors(-1));
  void FetchesToSea(WindSectors windSector, float value);
  /// Distance in the town from its upwind edge, kilometres (Table 23).
  float FetchesInTown(WindSectors windSector = WindSectors(-1));
  void FetchesInTown(WindSectors windSector, float value);

  /// Probability factor Sp (annex D).
  float ProbabilityFactor_Sp();
  /// Seasonal factor Ss (annex D).
  float SeasonalFactor_Ss();
  /// Direction factor Sd (Table 3).
  float DirectionFactor_Sd(WindAreas windArea = WindAreas(-1), WindSectors windSector = WindSectors(-1));
  /// Altitude factor Sa (2.2.2.2).
  float AltitudeFactor_Sa(WindAreas windArea = WindAreas(-1), WindSectors windSector = WindSectors(-1));
  /// Displacement height Hd, metres (1.7.3).
  float DisplacementHeight_Hd(WindAreas windArea = WindAreas(-1), WindSectors windSector = WindSectors(-1));
  /// Effective height He, metres (1.7.3).
  float EffectiveHeight_He(WindAreas windArea = WindAreas(-1), WindSectors windSector = WindSectors(-1));
  /// Topographic increment Sh (Table 25).
  float TopographicIncrement_Sh(WindAreas windArea = WindAreas(-1), WindSectors windSector = WindSectors(-1));
  /// Fetch factor Sc (Table 22).
  float FetchFactor_Sc(WindAreas windArea = WindAreas(-1), WindSectors windSector = WindSectors(-1));
  /// Turbulence factor St (Table 22).
  float TurbulenceFactor_St(WindAreas windArea = WindAreas(-1), WindSectors windSector = WindSectors(-1));
  /// Fetch adjustment factor Tc (Table 23).
  float FetchAdjustmentFactor_Tc(WindAreas windArea = WindAreas(-1),
                                 WindSectors windSector = WindSectors(-1));
  /// Turbulence adjustment factor Tt (Table 23).
  float TurbulenceAdjustmentFactor_Tt(WindAreas windArea = WindAreas(-1),
                                      WindSectors windSector = WindSectors(-1));
  /// Gust peak factor gt (Table 24): 3.44 under `Hybrid`, whatever the arguments.
  float GustPeakFactor_gt(WindAreas windArea = WindAreas(-1), WindSectors windSector = WindSectors(-1));
  /// Terrain and building factor Sb; for a diagonal of 5 m under `Hybrid`.
  float TerrainAndBuildingFactor_Sb(WindAreas windArea = WindAreas(-1),
                                    WindSectors windSector = WindSectors(-1));
  /// Effective wind speed Ve = Sb Vs, m/s.
  float EffectiveWindSpeed_Ve(WindAreas windArea = WindAreas(-1), WindSectors windSector = WindSectors(-1));

  /// Dynamic pressure q, kN/m². A let stores into the hand-entered table while `ManualResults` is True and is
  /// dropped otherwise. Errors with `ManualResults` True: 9 for an area outside 0 to 5 or a sector outside 0
  /// to 11.
  float DynamicPressure_q(WindAreas windArea = WindAreas(-1), WindSectors windSector = WindSectors(-1));
  void DynamicPressure_q(WindAreas windArea, WindSectors windSector, float value);
  /// Size effect factor Ca (Figure 4); 0 for a diagonal of 0 or less. Let and errors as for q.
  float SizeEffectFactor_Ca(WindAreas windArea = WindAreas(-1), WindSectors windSector = WindSectors(-1));
  void SizeEffectFactor_Ca(WindAreas windArea, WindSectors windSector, float value);
  /// Site wind speed Vs = Sa Vb Sd Ss Sp, m/s.
  float SiteWindSpeed_Vs(WindAreas windArea = WindAreas(-1), WindSectors windSector = WindSectors(-1));

  /// Site dialogs of the component: pick a site, enter one, edit the present one. True if the user accepted.
  bool SelectSite();
  bool EnterSite();
  bool EditSite();

 private:
  friend class clsCurrentCase;
  static constexpr int SectorCount = 12;
  static constexpr int AreaCount = 6;
  using SectorValues = std::array<float, SectorCount>;
  using ResultTable = std::array<SectorValues, AreaCount>;
  using ComponentFactor = float (BVe2X::*)(WindSectors) const;
  struct SectorInput;
  static const std::array<SectorInput, 9> SectorInputs;

  explicit clsDynamicPressure(WithoutDefaults) {}
  void ApplyDefaults();
  void ReadFromSaveFile();
  void WriteToSaveFile();

  bool PickSite(bool (BVe2X::*dialog)());
  void TakePickedSite(BVe2X& component, CaseSteps& marks);
  bool IsOpenCases() const;
  void RefreshWindComponent();
  void RefreshWindComponent(CaseSteps& marks);
  bool LoadSiteByGridReference(BVe2X& component, CaseSteps& marks);
  void SendSectorValues(BVe2X& component, int sector);
  void CopySiteFromComponent(const BVe2X& component);
  bool SiteDiffersFrom(const clsDynamicPressure& other) const;
  float SectorValue(WindSectors windSector, float (BVe2X::*get)(WindSectors) const);
  void SectorValue(WindSectors windSector, SectorValues& values, float value);

  WindAreas Resolve(WindAreas windArea) const;
  WindSectors Resolve(WindSectors windSector) const;
  WindAreas FollowWindPressureType(WindAreas windArea) const;
  float HeightOf(WindAreas windArea) const;
  float DiagonalOf(WindAreas windArea) const;
  static void SetHeightAndDiagonal(BVe2X& component, float height, float diagonal);
  float Factor(WindAreas windArea, WindSectors windSector, ComponentFactor factor,
               bool terrainFactor = false);
  float& ManualResult(ResultTable& table, WindAreas windArea, WindSectors windSector) const;

  std::int16_t m_WindArea = 0;
  std::int16_t m_WindSector = 0;
  bool m_SiteDirty = false;
  bool m_SiteSelected = false;
  bool m_SiteEdited = false;
  std::int16_t m_Method = 0;
  bool m_ManualResults = false;
  std::string m_GridReference;
  std::string m_SiteFault;  // why the site of the reference isn't there, as the component said
  SaBasedOnTypes m_SaBasedOn{};
  float m_SiteAltitude = 0;
  float m_BasicWindSpeed = 0;
  float m_AnnualRisk = 0;
  orve::LifeTime m_LifeTime{};
  Durations m_Duration{};
  Months m_StartMonth{};
  SectorValues m_CrestHeight_Z{};
  SectorValues m_SiteLocation_X{};
  SectorValues m_UpwindLength_LU{};
  SectorValues m_DownwindLength_LD{};
  SectorValues m_BaseAltitude{};
  SectorValues m_ObstructionHeight_Ho{};
  SectorValues m_ObstructionSpacing_Xo{};
  SectorValues m_FetchesToSea{};
  SectorValues m_FetchesInTown{};
  ResultTable m_ManualDynamicPressure_q{};
  ResultTable m_ManualSizeEffectFactor_Ca{};
};

}  // namespace orve
