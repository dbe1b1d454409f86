// Written by orve_generate from the description of the object model; don't edit it by hand.
#pragma once

#include "Guard.h"

namespace orve::c {

void Fill(orve_ZoneDimensionsXY& to, const orve::ZoneDimensionsXY& from);
orve::ZoneDimensionsXY FromC(const orve_ZoneDimensionsXY& from);
inline void FreeRecord(orve_ZoneDimensionsXY&) {}
void Fill(orve_CantileverZones& to, const orve::CantileverZones& from);
orve::CantileverZones FromC(const orve_CantileverZones& from);
inline void FreeRecord(orve_CantileverZones& record) { orve_CantileverZones_free(&record); }
void Fill(orve_CantileverResults& to, const orve::CantileverResults& from);
orve::CantileverResults FromC(const orve_CantileverResults& from);
inline void FreeRecord(orve_CantileverResults& record) { orve_CantileverResults_free(&record); }
void Fill(orve_CantileverZone& to, const orve::CantileverZone& from);
orve::CantileverZone FromC(const orve_CantileverZone& from);
inline void FreeRecord(orve_CantileverZone& record) { orve_CantileverZone_free(&record); }
void Fill(orve_ExternalPressure& to, const orve::ExternalPressure& from);
orve::ExternalPressure FromC(const orve_ExternalPressure& from);
inline void FreeRecord(orve_ExternalPressure& record) { orve_ExternalPressure_free(&record); }

}  // namespace orve::c
