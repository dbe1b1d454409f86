#include "figure_sources.h"

#include <coefficients/CoefficientSources.h>
#include <orve3_bs6399_2.h>
#include <windspeed/WindSpeedSources.h>

namespace examples {

using namespace orve;

std::vector<SourceRecord> CoefficientSourcesOf(const clsCurrentCase& windCase, BuildingAreas area, Faces face,
                                               std::int16_t zone) {
  const auto* sources = dynamic_cast<const CoefficientSources*>(basBS6399_2::BreCp.get());
  if (!sources) return {};
  // The read of a coefficient leaves its zone and its case selected in the component, so the source is asked
  // for straight after it.
  const auto external = windCase.ExternalCoefficients();
  std::vector<SourceRecord> found;
  if (external->Hybrid_ExternalCoefficientFactor_Cpe_Pressure(area, face, zone) != 0)
    found.push_back(sources->Source());
  if (external->Hybrid_ExternalCoefficientFactor_Cpe_Suction(area, face, zone) != 0)
    found.push_back(sources->Source());
  return found;
}

std::vector<SourceRecord> WindSourcesOf(const clsCurrentCase& windCase, WindAreas area, WindSectors sector) {
  const auto* sources = dynamic_cast<const WindSpeedSources*>(basBS6399_2::BreVe.get());
  if (!sources) return {};
  windCase.DynamicPressure()->DynamicPressure_q(area, sector);
  std::vector<SourceRecord> found;
  // The hybrid method has its own fixed gt and doesn't ask the component for it.
  if (windCase.DynamicPressure()->Method() == Methods::Directional)
    found.push_back(sources->Source(WindFactor::gt, sector));
  for (const WindFactor factor :
       {WindFactor::Sp, WindFactor::Ss, WindFactor::Sd, WindFactor::Sa, WindFactor::He, WindFactor::Sc,
        WindFactor::St, WindFactor::Tc, WindFactor::Tt, WindFactor::q, WindFactor::Ca})
    found.push_back(sources->Source(factor, sector));
  return found;
}

std::string WeakestStatus(const std::vector<SourceRecord>& sources) {
  if (sources.empty()) return {};
  SourceStatus weakest = SourceStatus::Confirmed;
  for (const SourceRecord& source : sources) weakest = Weaker(weakest, source.status);
  return std::string(SourceStatusText(weakest));
}

}  // namespace examples
