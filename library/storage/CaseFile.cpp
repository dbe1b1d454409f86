// The case as a whole: section [WindLoadCase], the order of the sections, and the file operations of the root
// object.
#include "common/FileLayer.h"
#include "common/HostCalls.h"
#include "common/clsCommon.h"
#include "common/clsMousePointer.h"
#include "core/OwedSteps.h"
#include "core/Required.h"
#include "core/basBS6399_2.h"
#include "core/clsCurrentCase.h"
#include "external/clsExternalCoefficients.h"
#include "geometry/clsBuildingDimensions.h"
#include "internal/clsInternalCoefficients.h"
#include "loads/clsOverallAppliedLoads.h"
#include "sitewind/clsDynamicPressure.h"
#include "storage/CaseSection.h"
#include "storage/clsSaveFile.h"

namespace orve {

namespace {

constexpr std::int32_t YesNoQuestion = 36;
constexpr std::int32_t Yes = 6;

}  // namespace

void clsCurrentCase::WalkCaseSection(CaseSection& section) {
  section.Key(
      "Description", std::string(), [this] { return Description(); },
      [this](const std::string& value) { Description(value); });
  section.Key(
      "Created", CaseDate{}, [this] { return CaseDate{Created()}; },
      [this](CaseDate date) { SetCreated(date.value); });
  section.Key(
      "Modified", CaseDate{}, [this] { return CaseDate{Modified()}; },
      [this](CaseDate date) { SetModified(date.value); });
}

// The zones of hand-entered coefficients depend on the building, so the order of the sections is fixed. Each
// object is held while it works: a handler of the host may start a new case meanwhile.
void clsCurrentCase::ReadCaseFile() {
  CaseSection section(m_iclsSaveFile, "WindLoadCase", CaseSection::Way::Read);
  WalkCaseSection(section);
  Required(m_BuildingDimensions, "BuildingDimensions")->ReadFromSaveFile();
  Required(m_DynamicPressure, "DynamicPressure")->ReadFromSaveFile();
  Required(m_ExternalCoefficients, "ExternalCoefficients")->ReadFromSaveFile();
  Required(m_InternalCoefficients, "InternalCoefficients")->ReadFromSaveFile();
  Required(m_OverallAppliedLoads, "OverallAppliedLoads")->ReadFromSaveFile();
}

void clsCurrentCase::WriteCaseFile() {
  const Document document(*m_iclsSaveFile);
  document.RequireOpen();
  const double now = HostNow();
  if (!(m_Created < 0 || m_Created > 0)) SetCreated(now);
  SetModified(now);
  document.RequireOpen();
  CaseSection section(m_iclsSaveFile, "WindLoadCase", CaseSection::Way::Write);
  WalkCaseSection(section);
  Required(m_BuildingDimensions, "BuildingDimensions")->WriteToSaveFile();
  Required(m_DynamicPressure, "DynamicPressure")->WriteToSaveFile();
  Required(m_ExternalCoefficients, "ExternalCoefficients")->WriteToSaveFile();
  Required(m_InternalCoefficients, "InternalCoefficients")->WriteToSaveFile();
  Required(m_OverallAppliedLoads, "OverallAppliedLoads")->WriteToSaveFile();
}

void clsCurrentCase::m_iclsSaveFile_OpenFile(const std::string& fileName, bool& cancel) {
  const auto file = m_iclsSaveFile;
  if (file->Dirty()) {
    const std::string prompt = "Current " + file->FileDescription() + " Information Will Be Lost - Proceed?";
    cancel = basBS6399_2::Common->MsgBox(prompt, YesNoQuestion, "Open " + file->FileDescription()) != Yes;
    if (cancel) return;
  }
  const clsMousePointer pointer(clsMousePointer::Wait);
  const bool stands = StartNewCase();
  const Document document(*file);
  if (stands) {
    file->ReadData(fileName);
    if (ReadUnlessReplaced(document)) WindCaseOpened.Raise(fileName);
  }
  KeepInRecentList(fileName);
  WindCaseListUpdated.Raise();
  cancel = !stands || !document.IsOpen();
}

// False if a handler put another document in the place of the one that was being read.
bool clsCurrentCase::ReadUnlessReplaced(const Document& document) {
  try {
    ReadCaseFile();
  } catch (const DocumentReplaced&) {
    if (document.IsOpen()) throw;
  }
  return document.IsOpen();
}

void clsCurrentCase::m_iclsSaveFile_SaveFile(const std::string& fileName, bool& cancel) {
  const auto file = m_iclsSaveFile;
  const clsMousePointer pointer(clsMousePointer::Wait);
  const Document document(*file);
  OwedSteps steps;
  bool written = false;
  steps.Run([&] {
    WriteCaseFile();
    file->WriteData(fileName);
    written = true;
  });
  // What didn't reach the disk is unsaved, also where the new date equals the old one.
  if (!written && document.IsOpen() && !file->Dirty()) steps.Run([&] { file->Dirty(true); });
  steps.Finish();
  WindCaseSaved.Raise(fileName);
  KeepInRecentList(fileName);
  WindCaseListUpdated.Raise();
  cancel = !document.IsOpen();
}

// A list that can't be kept is no reason for a case not to be opened or saved.
void clsCurrentCase::KeepInRecentList(const std::string& fileName) {
  try {
    m_iclsSaveFile->RecentFileAdd(fileName);
  } catch (const Error&) {
  }
}

bool clsCurrentCase::Browse() {
  return OpenExisting(std::string());
}

bool clsCurrentCase::OpenExisting(const std::string& fileNameToOpen) {
  const auto self = shared_from_this();
  const auto file = m_iclsSaveFile;
  return file->OpenFile(fileNameToOpen);
}

void clsCurrentCase::Save() {
  const auto self = shared_from_this();
  const auto file = m_iclsSaveFile;
  const clsMousePointer pointer(clsMousePointer::Wait);
  file->SaveFile(file->FileName());
}

void clsCurrentCase::SaveAs() {
  const auto self = shared_from_this();
  const auto file = m_iclsSaveFile;
  file->SaveFile(std::string());
}

}  // namespace orve
