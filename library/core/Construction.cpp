// Construction and destruction of the root object, and the migration of an earlier settings file.
#include "common/FileLayer.h"
#include "common/clsCommon.h"
#include "common/clsMousePointer.h"
#include "common/clsWinAPI.h"
#include "core/Components.h"
#include "core/SaveFileConnections.h"
#include "core/basBS6399_2.h"
#include "core/clsCurrentCase.h"
#include "external/BreCpX.h"
#include "sitewind/BVe2X.h"
#include "storage/clsCommonDialog.h"
#include "storage/clsSaveFile.h"
#include "storage/clsWindCaseList.h"

namespace orve {

namespace {

constexpr const char* ApplicationName = "BS6399-2 Library";
constexpr const char* SettingsFile = "ORVE_BS6399_2.INI";
constexpr const char* EarlierSettingsFile = "QX1_BS6399_2.INI";
constexpr const char* EarlierSection = "[QX1 BS6399-2 Library]";

// The five references as they were, put back if the construction fails, so that no half-made object stays
// global.
class ReferenceGuard {
 public:
  ~ReferenceGuard() {
    if (m_released) return;
    basBS6399_2::Common = m_common;
    basBS6399_2::WinAPI = m_winAPI;
    basBS6399_2::CurrentCase = m_currentCase;
    basBS6399_2::BreVe = m_breVe;
    basBS6399_2::BreCp = m_breCp;
  }
  void Release() { m_released = true; }

 private:
  std::shared_ptr<clsCommon> m_common = basBS6399_2::Common;
  std::shared_ptr<clsWinAPI> m_winAPI = basBS6399_2::WinAPI;
  std::shared_ptr<clsCurrentCase> m_currentCase = basBS6399_2::CurrentCase;
  std::shared_ptr<BVe2X> m_breVe = basBS6399_2::BreVe;
  std::shared_ptr<BreCpX> m_breCp = basBS6399_2::BreCp;
  bool m_released = false;
};

std::string ReplaceAll(std::string text, std::string_view from, const std::string& to) {
  for (std::size_t at = text.find(from); at != std::string::npos; at = text.find(from, at + to.size()))
    text.replace(at, from.size(), to);
  return text;
}

}  // namespace

std::shared_ptr<clsCurrentCase> CreateCurrentCase() {
  const clsMousePointer pointer(clsMousePointer::Wait);
  ReferenceGuard references;
  const std::shared_ptr<clsCurrentCase> root(new clsCurrentCase);
  root->Construct();
  references.Release();
  return root;
}

clsCurrentCase::clsCurrentCase() = default;

clsCurrentCase::~clsCurrentCase() {
  m_BuildingDimensions.reset();
  m_DynamicPressure.reset();
  m_ExternalCoefficients.reset();
  m_InternalCoefficients.reset();
  m_OverallAppliedLoads.reset();
  m_WindCaseList.reset();
  m_saveFileConnections.reset();
  m_iclsSaveFile.reset();
}

void clsCurrentCase::Construct() {
  basBS6399_2::Common = std::make_shared<clsCommon>();
  basBS6399_2::WinAPI = std::make_shared<clsWinAPI>();
  StartComponents();
  basBS6399_2::CurrentCase = shared_from_this();
  SetUpSaveFile();
  MigrateSettingsFile();
  m_WindCaseList = std::make_shared<clsWindCaseList>();
  Clear();
  Parent_Type(ParentTypes::None);
  Parent_Span(0);
  Parent_Centres(0);
  Parent_RoofPitch(0);
  Parent_HeightOfPost_m(0);
  Parent_HeightToTopOfPostFromFFL_m(0);
  Parent_BaySize_m(0);
}

void clsCurrentCase::SetUpSaveFile() {
  m_iclsSaveFile = std::make_shared<clsSaveFile>();
  ConnectSaveFile();
  m_iclsSaveFile->ApplicationName(ApplicationName);
  m_iclsSaveFile->PathToApplicationINI(basBS6399_2::Common->AppPathWithSlash() + SettingsFile);
  m_iclsSaveFile->CommonDialog(&frmHolder_CommonDialog());
  m_iclsSaveFile->FileExtension("WLC");
  m_iclsSaveFile->FileDescription("Wind Load Case");
}

// The manager's events reach the root by a weak reference: a handler of the host may let go of it meanwhile.
void clsCurrentCase::ConnectSaveFile() {
  const std::weak_ptr<clsCurrentCase> weak = weak_from_this();
  const auto with = [weak](auto action) {
    if (const auto self = weak.lock()) action(*self);
  };
  m_saveFileConnections = std::make_unique<SaveFileConnections>();
  m_saveFileConnections->dirtyUpdated = m_iclsSaveFile->DirtyUpdated.Connect(
      [with](bool value) { with([&](clsCurrentCase& self) { self.DirtyUpdated.Raise(value); }); });
  m_saveFileConnections->fileNameUpdated = m_iclsSaveFile->FileNameUpdated.Connect(
      [with](const std::string& value) { with([&](auto& self) { self.LocationUpdated.Raise(value); }); });
  m_saveFileConnections->newFile = m_iclsSaveFile->NewFileEvent.Connect(
      [with](bool&) { with([](auto& self) { self.m_iclsSaveFile_NewFile(); }); });
  m_saveFileConnections->openFile =
      m_iclsSaveFile->OpenFileEvent.Connect([with](const std::string& name, bool& cancel) {
        with([&](auto& self) { self.m_iclsSaveFile_OpenFile(name, cancel); });
      });
  m_saveFileConnections->saveFile =
      m_iclsSaveFile->SaveFileEvent.Connect([with](const std::string& name, bool& cancel) {
        with([&](auto& self) { self.m_iclsSaveFile_SaveFile(name, cancel); });
      });
}

void clsCurrentCase::MigrateSettingsFile() const {
  const std::string settings = m_iclsSaveFile->PathToApplicationINI();
  const std::string earlier = basBS6399_2::Common->AppPathWithSlash() + EarlierSettingsFile;
  if (basBS6399_2::Common->FileExists(settings) || !basBS6399_2::Common->FileExists(earlier)) return;
  const std::string section = "[" + m_iclsSaveFile->ApplicationName() + "]";
  WriteWholeFile(settings, ReplaceAll(ReadWholeFile(earlier), EarlierSection, section), Durability::Flushed);
}

}  // namespace orve
