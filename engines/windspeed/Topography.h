// Topography of one sector: what feature it is, whether the site lies within its reach, and what it adds
// (2.2.2.2, Table 25, Figures 7 to 10).
#pragma once

namespace orve::windspeed {

enum class FeatureKind { None, HillOrRidge, CliffOrEscarpment };

/// A feature and the site's place on it. X is measured from the crest, negative upwind.
struct Feature {
  bool known = true;  ///< False if a value that decides isn't a usable number.
  FeatureKind kind = FeatureKind::None;
  bool significant = false;    ///< The site lies within the feature's reach.
  double effectiveSlope = 0;   ///< psi_e (Table 25).
  double effectiveLength = 0;  ///< Le in m (Table 25).
  double x = 0;
  double upwindLength = 0;
  double downwindLength = 0;
};

/// The feature of crest height Z, slope lengths LU and LD and site location X (m). A Z or LU not above 0: no
/// feature; an LD not above 0: cliff or escarpment (the engine's choice). NaN stands for a value that isn't
/// usable.
Feature DescribeFeature(double z, double lu, double ld, double x);

/// Topographic location factor s of a significant feature at a height above ground of h m (Figures 9 and 10).
double LocationFactor(const Feature& feature, double h);

/// Topographic increment Sh (Table 25): 0 without a significant feature.
double TopographicIncrement(const Feature& feature, double h);

/// Altitude factor Sa that goes with Sh (directional and hybrid method): by the base's altitude where
/// topography is significant, else by the site's (m).
double AltitudeFactor(const Feature& feature, double siteAltitude, double baseAltitude);

/// Altitude factor Sa that goes with Sb of Table 4 (2.2.2.2.3), which has no Sh. Recalled.
double StandardAltitudeFactor(const Feature& feature, double h, double siteAltitude, double baseAltitude);

}  // namespace orve::windspeed
