// The results of a site, worked out in stages, so that a changed input redoes only what hangs on it.
#pragma once

#include <array>
#include <cstddef>
#include <optional>

#include "windspeed/Inputs.h"
#include "windspeed/SizeEffect.h"
#include "windspeed/TerrainFactors.h"
#include "windspeed/Topography.h"

namespace orve::windspeed {

/// The results of one sector, by stage. NaN stands for a result whose own inputs aren't usable.
struct SectorResults {
  std::array<double, kSectorValues> usable{};  // the sector's values, NaN for one outside its range
  Feature feature;
  double Zd = 0;

  double He = 0;
  double Sh = 0;
  TerrainFactors terrain;
  std::optional<Figure4Key::Line> line;

  double Sa = 0;
  double Vs = 0;
  double logOfSpeed = 0;
  double q = 0;  // Pa

  double gt = 0;
  double Sb = 0;
  double Ca = 0;
};

struct SiteResults {
  double Sp = 0;
  double Ss = 0;
  double logOfDiagonal = 0;
  std::array<double, 3> sizeEffect{};
  std::array<SectorResults, kSectors> sectors;
};

/// Which stages are out of date.
struct Changes {
  bool seasonAndRisk = true;
  bool topographyMode = true;
  bool height = true;
  bool speed = true;
  bool diagonal = true;
  std::array<bool, kSectors> site;

  Changes() { site.fill(true); }
  void Clear();
};

/// Brings the results up to date. Allocates nothing, raises nothing.
void Update(SiteResults& results, const InputValues& inputs, const Changes& changes);

/// Direction factor Sd of a sector (Table 3).
double DirectionFactor(std::size_t sector);

/// Sa and Sb of the standard method, worked out from results and their inputs.
double StandardSa(const SectorResults& results, const InputValues& inputs, std::size_t sector);
double StandardSb(const SectorResults& results);

}  // namespace orve::windspeed
