// The stepped wind loads: three steps for each area and face, and the uniform loads that stand for them.
#include <cstddef>

#include "common/Error.h"
#include "common/Narrow.h"
#include "core/Marks.h"
#include "loads/BayLoads.h"
#include "loads/clsOverallAppliedLoads.h"

namespace orve {

clsOverallAppliedLoads::AreaFace clsOverallAppliedLoads::Entry(BuildingAreas buildingArea, Faces face) const {
  const auto area = static_cast<std::int32_t>(Resolve(buildingArea));
  const auto faceNumber = static_cast<std::int32_t>(Resolve(face));
  if (area < 0 || area >= AreaCount) RaiseSubscript("building area", area, 0, AreaCount - 1);
  if (faceNumber < 0 || faceNumber >= FaceCount) RaiseSubscript("face", faceNumber, 0, FaceCount - 1);
  return {static_cast<std::size_t>(area), static_cast<std::size_t>(faceNumber)};
}

float clsOverallAppliedLoads::SteppedValue(const AreaFaceTable<float>& table, BuildingAreas buildingArea,
                                           Faces face) const {
  const AreaFace entry = Entry(buildingArea, face);
  return table[entry.Area][entry.Face];
}

void clsOverallAppliedLoads::SteppedValue(AreaFaceTable<float>& table, BuildingAreas buildingArea, Faces face,
                                          float value) {
  const AreaFace entry = Entry(buildingArea, face);
  StoreAndMarkDirty(table[entry.Area][entry.Face], value);
}

float clsOverallAppliedLoads::SteppedWind_Load_1(BuildingAreas buildingArea, Faces face) const {
  return SteppedValue(m_SteppedWind_Load_1, buildingArea, face);
}
void clsOverallAppliedLoads::SteppedWind_Load_1(BuildingAreas buildingArea, Faces face, float value) {
  SteppedValue(m_SteppedWind_Load_1, buildingArea, face, value);
}

float clsOverallAppliedLoads::SteppedWind_Load_2(BuildingAreas buildingArea, Faces face) const {
  return SteppedValue(m_SteppedWind_Load_2, buildingArea, face);
}
void clsOverallAppliedLoads::SteppedWind_Load_2(BuildingAreas buildingArea, Faces face, float value) {
  SteppedValue(m_SteppedWind_Load_2, buildingArea, face, value);
}

float clsOverallAppliedLoads::SteppedWind_Load_3(BuildingAreas buildingArea, Faces face) const {
  return SteppedValue(m_SteppedWind_Load_3, buildingArea, face);
}
void clsOverallAppliedLoads::SteppedWind_Load_3(BuildingAreas buildingArea, Faces face, float value) {
  SteppedValue(m_SteppedWind_Load_3, buildingArea, face, value);
}

float clsOverallAppliedLoads::SteppedWind_Distance_1(BuildingAreas buildingArea, Faces face) const {
  return SteppedValue(m_SteppedWind_Distance_1, buildingArea, face);
}
void clsOverallAppliedLoads::SteppedWind_Distance_1(BuildingAreas buildingArea, Faces face, float value) {
  SteppedValue(m_SteppedWind_Distance_1, buildingArea, face, value);
}

float clsOverallAppliedLoads::SteppedWind_Distance_2(BuildingAreas buildingArea, Faces face) const {
  return SteppedValue(m_SteppedWind_Distance_2, buildingArea, face);
}
void clsOverallAppliedLoads::SteppedWind_Distance_2(BuildingAreas buildingArea, Faces face, float value) {
  SteppedValue(m_SteppedWind_Distance_2, buildingArea, face, value);
}

float clsOverallAppliedLoads::SteppedWind_Distance_3(BuildingAreas buildingArea, Faces face) const {
  return SteppedValue(m_SteppedWind_Distance_3, buildingArea, face);
}
void clsOverallAppliedLoads::SteppedWind_Distance_3(BuildingAreas buildingArea, Faces face, float value) {
  SteppedValue(m_SteppedWind_Distance_3, buildingArea, face, value);
}

float clsOverallAppliedLoads::SteppedWind_Span(BuildingAreas buildingArea, Faces face) const {
  return SteppedValue(m_SteppedWind_Span, buildingArea, face);
}
void clsOverallAppliedLoads::SteppedWind_Span(BuildingAreas buildingArea, Faces face, float value) {
  SteppedValue(m_SteppedWind_Span, buildingArea, face, value);
}

float clsOverallAppliedLoads::SteppedWind_Load(BuildingAreas buildingArea, Faces face) const {
  const BuildingAreas area = Resolve(buildingArea);
  const Faces resolvedFace = Resolve(face);
  const double span = SteppedWind_Span(area, resolvedFace);
  if (span == 0) return 0;
  const double load1 = SteppedWind_Load_1(area, resolvedFace);
  const double distance1 = SteppedWind_Distance_1(area, resolvedFace);
  const double load2 = SteppedWind_Load_2(area, resolvedFace);
  const double distance2 = SteppedWind_Distance_2(area, resolvedFace);
  const double load3 = SteppedWind_Load_3(area, resolvedFace);
  const double distance3 = SteppedWind_Distance_3(area, resolvedFace);
  return ToSingle((load1 * distance1 + load2 * distance2 + load3 * distance3) / span);
}

// The span is that of two equal bays, and the third step runs on to the end of the second.
BayLoadCase clsOverallAppliedLoads::SteppedBays(BuildingAreas buildingArea, Faces face) const {
  const BuildingAreas area = Resolve(buildingArea);
  const Faces resolvedFace = Resolve(face);
  BayLoadCase bays;
  bays.L1 = bays.L2 = ToSingle(static_cast<double>(SteppedWind_Span(area, resolvedFace)) / 2);
  bays.W1 = SteppedWind_Load_1(area, resolvedFace);
  bays.W2 = SteppedWind_Load_2(area, resolvedFace);
  bays.W3 = SteppedWind_Load_3(area, resolvedFace);
  bays.Z1 = SteppedWind_Distance_1(area, resolvedFace);
  bays.Z2 = SteppedWind_Distance_2(area, resolvedFace);
  return bays;
}

float clsOverallAppliedLoads::SteppedWind_Load_External(BuildingAreas buildingArea, Faces face) const {
  const BayLoadCase bays = SteppedBays(buildingArea, face);
  return bays.L1 == 0 ? 0 : EndBayLoad(bays);
}

float clsOverallAppliedLoads::SteppedWind_Load_Internal(BuildingAreas buildingArea, Faces face) const {
  const BayLoadCase bays = SteppedBays(buildingArea, face);
  return bays.L1 == 0 ? 0 : SecondBayLoad(bays);
}

float clsOverallAppliedLoads::ExternalBayLoad(float span_L1, float span_L2, float /*span_L3*/,
                                              float windLoad_W1, float windLoad_W2, float windLoad_W3,
                                              float step_Z1, float step_Z2) const {
  return EndBayLoad({span_L1, span_L2, windLoad_W1, windLoad_W2, windLoad_W3, step_Z1, step_Z2});
}

float clsOverallAppliedLoads::InternalBayLoad(float span_L1, float span_L2, float /*span_L3*/,
                                              float windLoad_W1, float windLoad_W2, float windLoad_W3,
                                              float step_Z1, float step_Z2) const {
  return SecondBayLoad({span_L1, span_L2, windLoad_W1, windLoad_W2, windLoad_W3, step_Z1, step_Z2});
}

}  // namespace orve
