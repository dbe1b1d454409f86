#include "external/WorstCaseSearch.h"

#include "common/Narrow.h"
#include "common/clsCommon.h"
#include "core/Ranges.h"
#include "sitewind/clsDynamicPressure.h"

namespace orve {

namespace {

constexpr float SectorWidth = 30;
constexpr float HalfWindow = 45;

// One walk over sectors: Best is the greatest product of the whole sectors looked at so far.
class Walk {
 public:
  Walk(clsDynamicPressure& dynamicPressure, WorstCase& record)
      : m_pressure(dynamicPressure), m_record(record) {}

  void TakeSector(std::int16_t sector, float angle) {
    const float q = Pressure(sector);
    const float ca = SizeEffect(sector);
    if (Take({angle, sector, sector, q, ca, ToSingle(double(q) * ca)})) m_best = Last().Product;
  }

  // An end of the window that lies between two sectors; it is measured against Best, which stays.
  void TakeEnd(std::int16_t sector1, std::int16_t sector2, float angle) {
    const clsCommon common;
    const float angle1 = ToInt16(common.IndexToAngle(sector1));
    const float angle2 = ToInt16(common.IndexToAngle(sector2));
    const float q1 = Pressure(sector1);
    const float q2 = Pressure(sector2);
    const float q = common.ValueForIntermediateAngle(angle1, angle2, q1, q2, angle);
    const float ca1 = SizeEffect(sector1);
    const float ca2 = SizeEffect(sector2);
    const float ca = common.ValueForIntermediateAngle(angle1, angle2, ca1, ca2, angle);
    Take({angle, sector1, sector2, q, ca, ToSingle(double(q) * ca)});
  }

 private:
  float Pressure(std::int16_t sector) {
    return m_pressure.DynamicPressure_q(m_record.WindArea, static_cast<WindSectors>(sector));
  }
  float SizeEffect(std::int16_t sector) {
    return m_pressure.SizeEffectFactor_Ca(m_record.WindArea, static_cast<WindSectors>(sector));
  }
  const WindCandidate& Last() const { return m_record.Candidates[m_record.Count - 1]; }

  bool Take(const WindCandidate& candidate) {
    m_record.Candidates[m_record.Count++] = candidate;
    if (!(candidate.Product > m_best)) return false;
    m_record.Winner = m_record.Count - 1;
    return true;
  }

  clsDynamicPressure& m_pressure;
  WorstCase& m_record;
  float m_best = 0;
};

void WalkAllSectors(Walk& walk) {
  for (std::int16_t sector = 0; sector < WindSectorCount; ++sector)
    walk.TakeSector(sector, sector * SectorWidth);
}

std::int16_t Neighbour(std::int16_t sector, int step) {
  return static_cast<std::int16_t>((sector + step + WindSectorCount) % WindSectorCount);
}

void WalkWindow(Walk& walk, float normal) {
  const clsCommon common;
  const float from = normal - HalfWindow;
  const float to = normal + HalfWindow;
  const bool onSector = common.FractionalMod(from, SectorWidth) == 0;
  const std::int16_t start =
      onSector
          ? ToInt16(from)
          : ToInt16(from + (SectorWidth - common.FractionalMod(common.AngleToPositive(from), SectorWidth)));
  const double beyondEnd = SectorWidth - common.FractionalMod(common.AngleToPositive(to), SectorWidth);
  const std::int16_t end = ToInt16(to + beyondEnd - SectorWidth);
  for (int angle = start; angle <= end; angle += static_cast<int>(SectorWidth))
    walk.TakeSector(common.AngleToIndex(static_cast<float>(angle)), static_cast<float>(angle));
  if (onSector) return;
  const std::int16_t low = common.AngleToIndex(start);
  const std::int16_t high = common.AngleToIndex(end);
  walk.TakeEnd(Neighbour(low, -1), low, from);
  walk.TakeEnd(high, Neighbour(high, 1), to);
}

}  // namespace

WorstCase SearchWorstCase(clsDynamicPressure& dynamicPressure, WindAreas windArea, bool orientationUnknown,
                          float angleNormalToFace) {
  WorstCase record;
  record.WindArea = windArea;
  record.AngleNormalToFace = orientationUnknown ? -1.0f : angleNormalToFace;
  Walk walk(dynamicPressure, record);
  if (orientationUnknown)
    WalkAllSectors(walk);
  else
    WalkWindow(walk, angleNormalToFace);
  return record;
}

}  // namespace orve
