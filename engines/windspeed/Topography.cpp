#include "windspeed/Topography.h"

#include <algorithm>
#include <cmath>
#include <cstddef>

#include "windspeed/Inputs.h"
#include "windspeed/Interpolation.h"
#include "windspeed/tables/Figures9And10LocationFactor.h"

namespace orve::windspeed {

namespace {

constexpr double kSlightSlope = 0.05;  // Topography is ignored up to it.
constexpr double kSteepSlope = 0.3;    // Table 25: the effective slope rises no further.

// Ranges of the fits: x/LU upwind, x/LD on a hill, x/Le on a cliff, and H/Le.
constexpr double kUpwindRange = -1.5;
constexpr double kHillRange = 2;
constexpr double kCliffRange = 3.5;
constexpr double kCliffNearCrest = 0.1;
constexpr double kCliffLeastHeight = 0.1;
constexpr double kHeightRange = 2;

// A downwind slope counts as much longer than the upwind one from twice its length on (the engine's choice).
constexpr double kMuchLonger = 2;

template <std::size_t Terms>
double Polynomial(const std::array<double, Terms>& coefficients, double value) {
  double sum = 0;
  for (std::size_t i = Terms; i-- > 0;) sum = sum * value + coefficients[i];
  return sum;
}

bool WithinReach(const Feature& feature, double z, double slope) {
  const bool steep = !AtMost(slope, kSteepSlope);
  if (feature.x < 0) return AtMost(-feature.x, steep ? 1.6 * z : 0.5 * feature.upwindLength);
  if (feature.kind == FeatureKind::HillOrRidge)
    return AtMost(feature.x, steep ? 1.6 * z : 0.5 * feature.downwindLength);
  return AtMost(feature.x, steep ? 5 * z : 1.5 * feature.upwindLength);
}

double AtCrest(double r) {
  return Polynomial(kFigures9And10Fits.crest, r);
}

double Upwind(double xOverLu, double r) {
  if (xOverLu < kUpwindRange) return 0;
  return AtCrest(r) * std::exp(Polynomial(kFigures9And10Fits.upwind, r) * xOverLu);
}

double DownwindOfHill(double xOverLd, double r) {
  if (xOverLd > kHillRange) return 0;
  return AtCrest(r) * std::exp(Polynomial(kFigures9And10Fits.downwind, r) * xOverLd);
}

double CliffFit(double xOverLe, double r) {
  const double k = std::log10(xOverLe);
  const double height = std::log10(r < kCliffLeastHeight ? kCliffLeastHeight : r);
  return (Polynomial(kFigures9And10Fits.cliffA, height) * k + Polynomial(kFigures9And10Fits.cliffB, height)) *
             k +
         Polynomial(kFigures9And10Fits.cliffC, height);
}

double DownwindOfCliff(double xOverLe, double r) {
  if (xOverLe > kCliffRange) return 0;
  if (xOverLe >= kCliffNearCrest) return CliffFit(xOverLe, r);
  return Between(AtCrest(r), CliffFit(kCliffNearCrest, r), xOverLe / kCliffNearCrest);
}

double LocationFactorOfFits(const Feature& feature, double r) {
  if (feature.x < 0) return Upwind(feature.x / feature.upwindLength, r);
  const double xOverLe = feature.x / feature.effectiveLength;
  if (feature.kind == FeatureKind::CliffOrEscarpment) return DownwindOfCliff(xOverLe, r);
  const double hill = DownwindOfHill(feature.x / feature.downwindLength, r);
  // A much longer downwind slope lies between a hill and an escarpment: the smaller of the two values holds.
  if (feature.downwindLength <= kMuchLonger * feature.upwindLength) return hill;
  const double cliff = DownwindOfCliff(xOverLe, r);
  return cliff < hill ? cliff : hill;
}

}  // namespace

Feature DescribeFeature(double z, double lu, double ld, double x) {
  Feature feature;
  if (std::isnan(z) || std::isnan(lu)) {
    feature.known = false;
    return feature;
  }
  if (z <= 0 || lu <= 0) return feature;
  const double slope = z / lu;
  if (AtMost(slope, kSlightSlope)) return feature;
  if (std::isnan(ld) || std::isnan(x)) {
    feature.known = false;
    return feature;
  }
  const bool cliff = ld <= 0 || AtMost(z / ld, kSlightSlope);
  feature.kind = cliff ? FeatureKind::CliffOrEscarpment : FeatureKind::HillOrRidge;
  feature.effectiveSlope = std::min(slope, kSteepSlope);
  feature.effectiveLength = slope > kSteepSlope ? z / kSteepSlope : lu;
  feature.x = x;
  feature.upwindLength = lu;
  feature.downwindLength = ld;
  feature.significant = WithinReach(feature, z, slope);
  return feature;
}

double LocationFactor(const Feature& feature, double h) {
  const double r = h / feature.effectiveLength;
  if (r > kHeightRange) return 0;
  const double s = LocationFactorOfFits(feature, r);
  return s < 0 ? 0 : s;
}

double TopographicIncrement(const Feature& feature, double h) {
  if (!feature.known) return kNotKnown;
  if (!feature.significant) return 0;
  return std::isnan(h) ? h : 2 * feature.effectiveSlope * LocationFactor(feature, h);
}

double AltitudeFactor(const Feature& feature, double siteAltitude, double baseAltitude) {
  if (!feature.known) return kNotKnown;
  const double altitude = feature.significant ? baseAltitude : siteAltitude;
  return std::isnan(altitude) ? altitude : 1 + 0.001 * altitude;
}

double StandardAltitudeFactor(const Feature& feature, double h, double siteAltitude, double baseAltitude) {
  if (!feature.known || std::isnan(siteAltitude)) return kNotKnown;
  const double bySite = 1 + 0.001 * siteAltitude;
  if (!feature.significant) return bySite;
  if (!AllKnown(baseAltitude, h)) return kNotKnown;
  const double byBase = 1 + 0.001 * baseAltitude + 1.2 * feature.effectiveSlope * LocationFactor(feature, h);
  return std::max(bySite, byBase);
}

}  // namespace orve::windspeed
