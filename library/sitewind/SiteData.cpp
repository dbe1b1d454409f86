// The site half of the class: its scalar values and the values by sector.
#include "common/Error.h"
#include "core/KeepAlive.h"
#include "core/Marks.h"
#include "sitewind/BVe2X.h"
#include "sitewind/SectorInputs.h"
#include "sitewind/clsDynamicPressure.h"

namespace orve {

const std::array<clsDynamicPressure::SectorInput, 9> clsDynamicPressure::SectorInputs = {{
    {&clsDynamicPressure::m_CrestHeight_Z, &BVe2X::CrestHt, &BVe2X::setCrestHt},
    {&clsDynamicPressure::m_SiteLocation_X, &BVe2X::CrestX, &BVe2X::setCrestX},
    {&clsDynamicPressure::m_UpwindLength_LU, &BVe2X::UpwLen, &BVe2X::setUpwLen},
    {&clsDynamicPressure::m_DownwindLength_LD, &BVe2X::DnwLen, &BVe2X::setDnwLen},
    {&clsDynamicPressure::m_BaseAltitude, &BVe2X::BaseAlt, &BVe2X::setBaseAlt},
    {&clsDynamicPressure::m_ObstructionHeight_Ho, &BVe2X::ObsHt, &BVe2X::setObsHt},
    {&clsDynamicPressure::m_ObstructionSpacing_Xo, &BVe2X::ObsSep, &BVe2X::setObsSep},
    {&clsDynamicPressure::m_FetchesToSea, &BVe2X::ToSea, &BVe2X::setToSea},
    {&clsDynamicPressure::m_FetchesInTown, &BVe2X::InTown, &BVe2X::setInTown},
}};

namespace {

// Stores a changed input of the wind-speed component and marks the case and the component.
template <class Field, class Value>
void StoreComponentInput(Field& field, const Value& value) {
  StoreAndMarkDirty(field, value, [] { RequireCurrentCase().BreVe_Dirty(true); });
}

}  // namespace

void clsDynamicPressure::SiteDirty(bool value) {
  m_SiteDirty = value;
}
void clsDynamicPressure::SiteSelected(bool value) {
  m_SiteSelected = value;
}
void clsDynamicPressure::SiteEdited(bool value) {
  StoreAndMarkDirty(m_SiteEdited, value);
}

void clsDynamicPressure::GridReference(const std::string& value) {
  const KeepAlive keep(*this);
  if (value.empty()) m_SiteFault.clear();
  StoreAndMarkDirty(
      m_GridReference, value, [this] { SiteDirty(true); }, [this] { SiteSelected(true); });
}

void clsDynamicPressure::SaBasedOn(SaBasedOnTypes value) {
  StoreComponentInput(m_SaBasedOn, value);
}
void clsDynamicPressure::SiteAltitude(float value) {
  StoreComponentInput(m_SiteAltitude, value);
}
void clsDynamicPressure::BasicWindSpeed(float value) {
  StoreComponentInput(m_BasicWindSpeed, value);
}
void clsDynamicPressure::AnnualRisk(float value) {
  StoreComponentInput(m_AnnualRisk, value);
}
void clsDynamicPressure::LifeTime(orve::LifeTime value) {
  StoreComponentInput(m_LifeTime, value);
}
void clsDynamicPressure::Duration(Durations value) {
  StoreComponentInput(m_Duration, value);
}
void clsDynamicPressure::StartMonth(Months value) {
  StoreComponentInput(m_StartMonth, value);
}

float clsDynamicPressure::SectorValue(WindSectors windSector, float (BVe2X::*get)(WindSectors) const) {
  const KeepAlive keep(*this);
  const WindSectors sector = Resolve(windSector);
  RefreshWindComponent();
  return (RequireBreVe().get()->*get)(sector);
}

void clsDynamicPressure::SectorValue(WindSectors windSector, SectorValues& values, float value) {
  const KeepAlive keep(*this);
  const auto sector = static_cast<std::int32_t>(Resolve(windSector));
  if (sector < 0 || sector >= SectorCount) RaiseSubscript("wind sector", sector, 0, SectorCount - 1);
  if (Differs(values[sector], value)) m_SiteFault.clear();
  StoreAndMarkDirty(
      values[sector], value, [this] { SiteEdited(true); }, [] { RequireCurrentCase().BreVe_Dirty(true); });
}

float clsDynamicPressure::CrestHeight_Z(WindSectors windSector) {
  return SectorValue(windSector, &BVe2X::CrestHt);
}
void clsDynamicPressure::CrestHeight_Z(WindSectors windSector, float value) {
  SectorValue(windSector, m_CrestHeight_Z, value);
}

float clsDynamicPressure::SiteLocation_X(WindSectors windSector) {
  return SectorValue(windSector, &BVe2X::CrestX);
}
void clsDynamicPressure::SiteLocation_X(WindSectors windSector, float value) {
  SectorValue(windSector, m_SiteLocation_X, value);
}

float clsDynamicPressure::UpwindLength_LU(WindSectors windSector) {
  return SectorValue(windSector, &BVe2X::UpwLen);
}
void clsDynamicPressure::UpwindLength_LU(WindSectors windSector, float value) {
  SectorValue(windSector, m_UpwindLength_LU, value);
}

float clsDynamicPressure::DownwindLength_LD(WindSectors windSector) {
  return SectorValue(windSector, &BVe2X::DnwLen);
}
void clsDynamicPressure::DownwindLength_LD(WindSectors windSector, float value) {
  SectorValue(windSector, m_DownwindLength_LD, value);
}

float clsDynamicPressure::BaseAltitude(WindSectors windSector) {
  return SectorValue(windSector, &BVe2X::BaseAlt);
}
void clsDynamicPressure::BaseAltitude(WindSectors windSector, float value) {
  SectorValue(windSector, m_BaseAltitude, value);
}

float clsDynamicPressure::ObstructionHeight_Ho(WindSectors windSector) {
  return SectorValue(windSector, &BVe2X::ObsHt);
}
void clsDynamicPressure::ObstructionHeight_Ho(WindSectors windSector, float value) {
  SectorValue(windSector, m_ObstructionHeight_Ho, value);
}

float clsDynamicPressure::ObstructionSpacing_Xo(WindSectors windSector) {
  return SectorValue(windSector, &BVe2X::ObsSep);
}
void clsDynamicPressure::ObstructionSpacing_Xo(WindSectors windSector, float value) {
  SectorValue(windSector, m_ObstructionSpacing_Xo, value);
}

float clsDynamicPressure::FetchesToSea(WindSectors windSector) {
  return SectorValue(windSector, &BVe2X::ToSea);
}
void clsDynamicPressure::FetchesToSea(WindSectors windSector, float value) {
  SectorValue(windSector, m_FetchesToSea, value);
}

float clsDynamicPressure::FetchesInTown(WindSectors windSector) {
  return SectorValue(windSector, &BVe2X::InTown);
}
void clsDynamicPressure::FetchesInTown(WindSectors windSector, float value) {
  SectorValue(windSector, m_FetchesInTown, value);
}

}  // namespace orve
