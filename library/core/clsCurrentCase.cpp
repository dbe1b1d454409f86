// The plain properties of the root object and the document state that it shares with the save-file manager.
#include "core/clsCurrentCase.h"

#include <cmath>
#include <utility>

#include "common/FileLayer.h"
#include "common/Narrow.h"
#include "common/clsCommon.h"
#include "core/Marks.h"
#include "core/SaveFileConnections.h"
#include "geometry/clsBuildingDimensions.h"
#include "storage/clsSaveFile.h"

namespace orve {

namespace {

// The prefill forms up to three spans and the diagonal of two terms, which must fit 32 bits as well.
constexpr double PrefillRoom = 8;

float FittingParentValue(float value) {
  if (!std::isfinite(value)) RaiseOverflow();
  ToSingle(PrefillRoom * value);
  return value;
}

}  // namespace

void clsCurrentCase::Parent_Type(ParentTypes value) {
  m_Parent_Type = ToInt16(value);
  ApplyParentContext();
}

void clsCurrentCase::Parent_Span(float value) {
  m_Parent_Span = FittingParentValue(value);
  ApplyParentContext();
}

void clsCurrentCase::Parent_Centres(float value) {
  m_Parent_Centres = FittingParentValue(value);
  ApplyParentContext();
}

void clsCurrentCase::Parent_RoofPitch(std::int16_t value) {
  m_Parent_RoofPitch = value;
  ApplyParentContext();
}

void clsCurrentCase::Parent_HeightOfPost_m(float value) {
  m_Parent_HeightOfPost_m = FittingParentValue(value);
  ApplyParentContext();
}

void clsCurrentCase::Parent_HeightToTopOfPostFromFFL_m(float value) {
  m_Parent_HeightToTopOfPostFromFFL_m = FittingParentValue(value);
  ApplyParentContext();
}

void clsCurrentCase::Parent_BaySize_m(float value) {
  m_Parent_BaySize_m = FittingParentValue(value);
  ApplyParentContext();
}

void clsCurrentCase::PathToWindLoadCases(const std::string& value) {
  const std::string kept = StoredPath(value);
  if (!Differs(m_PathToWindLoadCases, kept)) return;
  m_PathToWindLoadCases = kept;
  m_iclsSaveFile->PathToSaveFiles(kept);
}

bool clsCurrentCase::IsDirty() const {
  return m_iclsSaveFile->Dirty();
}

void clsCurrentCase::IsDirty(bool value) {
  const auto saveFile = m_iclsSaveFile;
  saveFile->Dirty(value);
}

std::string clsCurrentCase::Location() const {
  return m_iclsSaveFile->FileName();
}

void clsCurrentCase::Location(const std::string& value) {
  const auto saveFile = m_iclsSaveFile;
  saveFile->FileName(StoredPath(value));
}

bool clsCurrentCase::LocationCorrect() const {
  return basBS6399_2::Common->FileExists(Location());
}

void clsCurrentCase::Description(const std::string& value) {
  if (!Differs(m_Description, value)) return;
  m_Description = value;
  IsDirty(true);
}

void clsCurrentCase::SetCreated(double value) {
  if (!Differs(m_Created, value)) return;
  m_Created = value;
  IsDirty(true);
}

void clsCurrentCase::SetModified(double value) {
  if (!Differs(m_Modified, value)) return;
  m_Modified = value;
  IsDirty(true);
}

void clsCurrentCase::BuildingDimensions(std::shared_ptr<clsBuildingDimensions> value) {
  m_BuildingDimensions = std::move(value);
}

void clsCurrentCase::DynamicPressure(std::shared_ptr<clsDynamicPressure> value) {
  m_DynamicPressure = std::move(value);
}

void clsCurrentCase::ExternalCoefficients(std::shared_ptr<clsExternalCoefficients> value) {
  m_ExternalCoefficients = std::move(value);
}

void clsCurrentCase::InternalCoefficients(std::shared_ptr<clsInternalCoefficients> value) {
  m_InternalCoefficients = std::move(value);
}

void clsCurrentCase::OverallAppliedLoads(std::shared_ptr<clsOverallAppliedLoads> value) {
  m_OverallAppliedLoads = std::move(value);
}

void clsCurrentCase::WindCaseList(std::shared_ptr<clsWindCaseList> value) {
  m_WindCaseList = std::move(value);
}

void clsCurrentCase::CantileverWindloads(std::shared_ptr<clsCantileverWindLoads> value) {
  m_CantileverWindloads = std::move(value);
}

}  // namespace orve
