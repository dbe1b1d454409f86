#include "Describe.h"
#include "sitewind/clsDynamicPressure.h"

namespace orve::automation {

const ClassDescription& DescribeDynamicPressure() {
  using Class = clsDynamicPressure;
  static const ClassDescription description = [] {
    // Ranges and errors that several members share.
    constexpr std::string_view Wide = "6 outside 16 bits";
    constexpr std::string_view Sector =
        "a let: 9 for a sector that isn't there; a get: 91 without a component, and those of the component";
    constexpr std::string_view Component = "91 without a component; 5 and others of the component";
    constexpr std::string_view Manual =
        "91 without a component; 5 and others of the component; with ManualResults 9 for an area or sector "
        "that "
        "isn't there";

    ClassDescriber<Class> describe(
        "clsDynamicPressure", "The site, and dynamic pressure and its factors by wind area and sector",
        {"e2094852-7afe-4354-af28-392def7faa9d", "65d41dee-4e50-4a0e-a156-ad44ab4e663f", ""});
    const ArgumentNames none;
    const ArgumentNames sector{{"WindSector", -1}};
    const ArgumentNames areaAndSector{{"WindArea", -1}, {"WindSector", -1}};
    ORVE_PROPERTY(1, WindArea, none, "", "Wind area taken where an argument is -1", "", Wide);
    ORVE_PROPERTY(2, WindSector, none, "", "Wind sector taken where an argument is -1", "", Wide);
    ORVE_PROPERTY(3, SiteDirty, none, "", "The site is still to be loaded into the component");
    ORVE_PROPERTY(4, SiteSelected, none, "", "A site reference has been assigned");
    ORVE_PROPERTY(5, SiteEdited, none, "", "The site differs from what its reference alone gives");
    ORVE_PROPERTY(6, Method, none, "", "The method of BS 6399-2", "", Wide);
    ORVE_PROPERTY(7, ManualResults, none, "", "q and Ca come from the hand-entered tables");
    ORVE_PROPERTY(8, GridReference, none, "", "Site reference of the component; empty: none",
                  "any text; the built-in engine looks for a site file of that name");
    ORVE_PROPERTY(9, SaBasedOn, none, "", "What the altitude factor rests on", "", Wide, "2.2.2.2");
    ORVE_PROPERTY(10, SiteAltitude, none, "m", "Altitude of the site", "any number is stored");
    ORVE_PROPERTY(11, BasicWindSpeed, none, "m/s", "Basic wind speed Vb", "above 0; any number is stored", "",
                  "Figure 6");
    ORVE_PROPERTY(12, AnnualRisk, none, "", "Annual risk of exceedance Q",
                  "above 0 and below 1; any number is stored", "", "annex D");
    ORVE_PROPERTY(13, LifeTime, none, "", "Permanent or temporary structure", "", Wide);
    ORVE_PROPERTY(14, Duration, none, "", "Part of the year of the exposure", "", Wide, "annex D");
    ORVE_PROPERTY(15, StartMonth, none, "", "First month of the exposure", "", Wide, "annex D");
    ORVE_PROPERTY(16, CrestHeight_Z, sector, "m", "Crest height Z of the topographic feature",
                  "0 or more; any number is stored", Sector, "Figure 7");
    ORVE_PROPERTY(17, SiteLocation_X, sector, "m", "Distance X of the site from the crest, negative upwind",
                  "any number", Sector, "Figure 7");
    ORVE_PROPERTY(18, UpwindLength_LU, sector, "m", "Upwind slope length LU",
                  "0 or more; any number is stored", Sector, "Figure 7");
    ORVE_PROPERTY(19, DownwindLength_LD, sector, "m", "Downwind slope length LD",
                  "0 or more; any number is stored", Sector, "Figure 7");
    ORVE_PROPERTY(20, BaseAltitude, sector, "m", "Altitude of the base of the feature", "any number", Sector);
    ORVE_PROPERTY(21, ObstructionHeight_Ho, sector, "m", "Height Ho of the obstructions",
                  "0 or more; any number is stored", Sector, "1.7.3");
    ORVE_PROPERTY(22, ObstructionSpacing_Xo, sector, "m", "Upwind spacing Xo of the obstructions",
                  "0 or more; any number is stored", Sector, "1.7.3");
    ORVE_PROPERTY(23, FetchesToSea, sector, "km", "Distance to the sea", "0 or more; any number is stored",
                  Sector, "Table 22");
    ORVE_PROPERTY(24, FetchesInTown, sector, "km", "Distance in the town from its upwind edge",
                  "0 or more; any number is stored", Sector, "Table 23");
    ORVE_READ_ONLY(25, ProbabilityFactor_Sp, none, "", "Probability factor Sp", "0 or more", Component,
                   "annex D");
    ORVE_READ_ONLY(26, SeasonalFactor_Ss, none, "", "Seasonal factor Ss", "0 or more", Component, "annex D");
    ORVE_READ_ONLY(27, DirectionFactor_Sd, areaAndSector, "", "Direction factor Sd", "0 or more", Component,
                   "Table 3");
    ORVE_READ_ONLY(28, AltitudeFactor_Sa, areaAndSector, "", "Altitude factor Sa", "0 or more", Component,
                   "2.2.2.2");
    ORVE_READ_ONLY(29, DisplacementHeight_Hd, areaAndSector, "m", "Displacement height Hd", "0 or more",
                   Component, "1.7.3");
    ORVE_READ_ONLY(30, EffectiveHeight_He, areaAndSector, "m", "Effective height He", "0 or more", Component,
                   "1.7.3");
    ORVE_READ_ONLY(31, TopographicIncrement_Sh, areaAndSector, "", "Topographic increment Sh", "0 or more",
                   Component, "Table 25");
    ORVE_READ_ONLY(32, FetchFactor_Sc, areaAndSector, "", "Fetch factor Sc", "0 or more", Component,
                   "Table 22");
    ORVE_READ_ONLY(33, TurbulenceFactor_St, areaAndSector, "", "Turbulence factor St", "0 or more", Component,
                   "Table 22");
    ORVE_READ_ONLY(34, FetchAdjustmentFactor_Tc, areaAndSector, "", "Fetch adjustment factor Tc", "0 or more",
                   Component, "Table 23");
    ORVE_READ_ONLY(35, TurbulenceAdjustmentFactor_Tt, areaAndSector, "", "Turbulence adjustment factor Tt",
                   "0 or more", Component, "Table 23");
    ORVE_READ_ONLY(36, GustPeakFactor_gt, areaAndSector, "", "Gust peak factor gt",
                   "3.44 under Hybrid, whatever the arguments", Component, "Table 24");
    ORVE_READ_ONLY(37, TerrainAndBuildingFactor_Sb, areaAndSector, "", "Terrain and building factor Sb",
                   "0 or more", Component);
    ORVE_READ_ONLY(38, EffectiveWindSpeed_Ve, areaAndSector, "m/s", "Effective wind speed Ve", "0 or more",
                   Component);
    ORVE_PROPERTY(39, DynamicPressure_q, areaAndSector, "kN/m\u00B2",
                  "Dynamic pressure q; a let counts while ManualResults is True", "0 or more", Manual);
    ORVE_PROPERTY(40, SizeEffectFactor_Ca, areaAndSector, "",
                  "Size effect factor Ca; a let counts while ManualResults is True",
                  "0 for a diagonal of 0 or less", Manual, "Figure 4");
    ORVE_READ_ONLY(41, SiteWindSpeed_Vs, areaAndSector, "m/s", "Site wind speed Vs", "0 or more", Component);
    ORVE_METHOD(42, SelectSite, none, "", "Site dialog that picks a site; True if the user accepted",
                "False after Cancel", Component);
    ORVE_METHOD(43, EnterSite, none, "", "Site dialog that enters a site; True if the user accepted",
                "False after Cancel", Component);
    ORVE_METHOD(44, EditSite, none, "", "Site dialog that edits the present site; True if the user accepted",
                "False after Cancel", Component);
    return describe.Finish();
  }();
  return description;
}

}  // namespace orve::automation
