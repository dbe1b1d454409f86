// The two tables of the cantilevers: the zones of the last search and the results gathered.
#include <cmath>
#include <iterator>
#include <string>

#include "common/Error.h"
#include "common/Narrow.h"
#include "common/NumberText.h"
#include "loads/CantileverTexts.h"
#include "loads/clsOverallAppliedLoads.h"

namespace orve {
namespace {

[[noreturn]] void RaiseNoRow(const char* what, long index, std::size_t size) {
  RaiseSubscript(what, index, 0, static_cast<long>(size) - 1);
}

std::string Magnitude(const std::string& number) {
  return ShortestText(std::fabs(TextToDouble(number)));
}

}  // namespace

const CantileverZones& clsOverallAppliedLoads::CantileverRow(std::int16_t cantileverZoneIndex) const {
  const auto row = static_cast<std::size_t>(cantileverZoneIndex);
  if (cantileverZoneIndex < 0 || row >= m_CantileverZones.size())
    RaiseNoRow("cantilever zone", cantileverZoneIndex, m_CantileverZones.size());
  return m_CantileverZones[row];
}

CantileverZones& clsOverallAppliedLoads::LastCantileverRow() {
  if (m_CantileverZones.empty()) RaiseNoRow("cantilever zone", 0, 0);
  return m_CantileverZones.back();
}

std::string clsOverallAppliedLoads::CantileverZoneDescription(std::int16_t cantileverZoneIndex) const {
  return CantileverRow(cantileverZoneIndex).Cantilever_ZoneDescription;
}

std::string clsOverallAppliedLoads::CantileverZoneDimensions(std::int16_t cantileverZoneIndex) const {
  return CantileverRow(cantileverZoneIndex).Cantilever_ZoneDimensions;
}

std::string clsOverallAppliedLoads::Cantilever_ExternalAppliedLoads(std::int16_t cantileverZoneIndex) const {
  return CantileverRow(cantileverZoneIndex).Cantilever_ExternalAppliedLoads;
}

std::string clsOverallAppliedLoads::Cantilever_InternalAppliedLoads(std::int16_t cantileverZoneIndex) const {
  return CantileverRow(cantileverZoneIndex).Cantilever_InternalAppliedLoads;
}

std::string clsOverallAppliedLoads::Cantilever_OverallAppliedLoads(std::int16_t cantileverZoneIndex) const {
  return CantileverRow(cantileverZoneIndex).Cantilever_OverallAppliedLoads;
}

void clsOverallAppliedLoads::ResetCantileverResults() {
  m_CantileverResults.assign(1, {});
}

void clsOverallAppliedLoads::TrimCantileverResults() {
  if (m_CantileverResults.empty()) RaiseNoRow("cantilever result", 0, 0);
  m_CantileverResults.pop_back();
}

void clsOverallAppliedLoads::AppendCantileverResult(Faces face, const std::string& label,
                                                    const std::string& overallLoads) {
  if (m_CantileverResults.empty()) RaiseNoRow("cantilever result", 0, 0);
  CantileverResults& row = m_CantileverResults.back();
  row.Cantilever_Face = std::to_string(static_cast<std::int32_t>(face) + 1);
  row.Cantilever_Zone = label;
  const WindAndUplift loads = SplitWindAndUplift(overallLoads);
  row.Cantilever_WindPressure = Magnitude(loads.Wind);
  row.Cantilever_WindUplift = Magnitude(loads.Uplift);
  ToInt16(std::ssize(m_CantileverResults));  // The index of the table is a 16-bit number.
  m_CantileverResults.emplace_back();
}

}  // namespace orve
