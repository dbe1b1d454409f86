// The root object: one wind load case, its document state and its events.
#pragma once

#include <cstdint>
#include <memory>
#include <string>

#include "common/Event.h"
#include "core/Enumerations.h"

namespace orve {

class CaseSection;
class Document;
class clsBuildingDimensions;
class clsCantileverWindLoads;
class clsDynamicPressure;
class clsExternalCoefficients;
class clsInternalCoefficients;
class clsOverallAppliedLoads;
class clsSaveFile;
class clsWindCaseList;

/// The one wind load case open at a time. It owns the data objects of the case, which `Clear` and every
/// opening of a file replace by new ones, so a host fetches them anew afterwards. Dates are OLE dates (days
/// and fractions of a day), 0 meaning not set. Create it with `CreateCurrentCase`.
class clsCurrentCase : public std::enable_shared_from_this<clsCurrentCase> {
 public:
  ~clsCurrentCase();
  clsCurrentCase(const clsCurrentCase&) = delete;
  clsCurrentCase& operator=(const clsCurrentCase&) = delete;

  /// The coefficient component has to be told the method before its results are used.
  bool BreCp_Dirty() const { return m_BreCp_Dirty; }
  void BreCp_Dirty(bool value) { m_BreCp_Dirty = value; }
  /// Switch for the wind-speed component's database; True after `Initialize_BreApps`.
  bool BreOSDatabase() const { return m_BreOSDatabase; }
  void BreOSDatabase(bool value) { m_BreOSDatabase = value; }
  /// The inputs of the wind-speed component have changed since its last `Calculate`.
  bool BreVe_Dirty() const { return m_BreVe_Dirty; }
  void BreVe_Dirty(bool value) { m_BreVe_Dirty = value; }

  // The host's design. A let also prefills the building of a case that is blank and clean, so a host assigns
  // `Parent_Type` last. Neither `Clear` nor opening a file changes these values, and they aren't stored in
  // files. Errors: 6 for a value that doesn't fit, which keeps the old one.
  /// Kind of design in the host.
  ParentTypes Parent_Type() const { return static_cast<ParentTypes>(m_Parent_Type); }
  void Parent_Type(ParentTypes value);
  /// Span of the member, metres.
  float Parent_Span() const { return m_Parent_Span; }
  void Parent_Span(float value);
  /// Spacing of the members, metres.
  float Parent_Centres() const { return m_Parent_Centres; }
  void Parent_Centres(float value);
  /// Roof pitch, whole degrees.
  std::int16_t Parent_RoofPitch() const { return m_Parent_RoofPitch; }
  void Parent_RoofPitch(std::int16_t value);
  /// Height of the parapet post, metres.
  float Parent_HeightOfPost_m() const { return m_Parent_HeightOfPost_m; }
  void Parent_HeightOfPost_m(float value);
  /// Height of the top of the post above finished floor level, metres.
  float Parent_HeightToTopOfPostFromFFL_m() const { return m_Parent_HeightToTopOfPostFromFFL_m; }
  void Parent_HeightToTopOfPostFromFFL_m(float value);
  /// Bay size, metres.
  float Parent_BaySize_m() const { return m_Parent_BaySize_m; }
  void Parent_BaySize_m(float value);

  /// Plain storage for the host.
  const std::string& PathToHelp() const { return m_PathToHelp; }
  void PathToHelp(const std::string& value) { m_PathToHelp = value; }
  /// Folder of the wind load cases; a changed value also goes into the settings file.
  const std::string& PathToWindLoadCases() const { return m_PathToWindLoadCases; }
  void PathToWindLoadCases(const std::string& value);

  /// The case has unsaved changes. Every let raises `DirtyUpdated`.
  bool IsDirty() const;
  void IsDirty(bool value);
  /// Full path of the case's file, empty for a new one. Every let raises `LocationUpdated`.
  std::string Location() const;
  void Location(const std::string& value);
  /// True if a file of that name exists.
  bool LocationCorrect() const;
  /// Free text of the case.
  const std::string& Description() const { return m_Description; }
  void Description(const std::string& value);
  /// Dates of the first and of the last save.
  double Created() const { return m_Created; }
  double Modified() const { return m_Modified; }
  /// Data folder of the wind-speed component; a let counts for its older class only. Errors: 91 without a
  /// component.
  std::string breDataPath() const;
  void breDataPath(const std::string& value);

  // The objects of the case. A set replaces the reference and does nothing else.
  std::shared_ptr<clsBuildingDimensions> BuildingDimensions() const { return m_BuildingDimensions; }
  void BuildingDimensions(std::shared_ptr<clsBuildingDimensions> value);
  std::shared_ptr<clsDynamicPressure> DynamicPressure() const { return m_DynamicPressure; }
  void DynamicPressure(std::shared_ptr<clsDynamicPressure> value);
  std::shared_ptr<clsExternalCoefficients> ExternalCoefficients() const { return m_ExternalCoefficients; }
  void ExternalCoefficients(std::shared_ptr<clsExternalCoefficients> value);
  std::shared_ptr<clsInternalCoefficients> InternalCoefficients() const { return m_InternalCoefficients; }
  void InternalCoefficients(std::shared_ptr<clsInternalCoefficients> value);
  std::shared_ptr<clsOverallAppliedLoads> OverallAppliedLoads() const { return m_OverallAppliedLoads; }
  void OverallAppliedLoads(std::shared_ptr<clsOverallAppliedLoads> value);
  std::shared_ptr<clsWindCaseList> WindCaseList() const { return m_WindCaseList; }
  void WindCaseList(std::shared_ptr<clsWindCaseList> value);
  std::shared_ptr<clsCantileverWindLoads> CantileverWindloads() const { return m_CantileverWindloads; }
  void CantileverWindloads(std::shared_ptr<clsCantileverWindLoads> value);

  /// Presets the components; called once after construction. Errors: 91 without a component.
  void Initialize_BreApps();
  /// Starts a new, blank case. No question is asked, even with unsaved changes.
  void Clear();
  /// Asks the user for a file and opens it; True if a case was opened, False also if a handler has put
  /// another case in its place. Errors: those of reading.
  bool Browse();
  /// Opens a file; result and errors as for `Browse`.
  bool OpenExisting(const std::string& fileNameToOpen);
  /// Saves under the present `Location`; with none, asks for a name. A case that a handler put in the place
  /// of the one that was saved doesn't get its name. Errors: those of writing; 5 if that happened before the
  /// file was written, or while a new case is being made.
  void Save();
  /// Always asks for a name. Errors: as for `Save`.
  void SaveAs();
  /// True if the type name of the wind-speed component is "BVe2X", of the coefficient component "BreCpX".
  /// Errors: 91 without a component.
  bool OldBreVeVersion() const;
  bool OldBreCpVersion() const;

  /// At every assignment to `IsDirty`, also when the value doesn't change.
  Event<bool /*newValue*/> DirtyUpdated;
  /// At every assignment to `Location`, also when the value doesn't change.
  Event<const std::string& /*newValue*/> LocationUpdated;
  /// Once at the end of the reading or writing of a case, after the recent-file list has been updated.
  Event<> WindCaseListUpdated;
  /// After a case has been read; `Location` is still empty.
  Event<const std::string& /*fileName*/> WindCaseOpened;
  /// After the file has been written; `Location` still holds the former name.
  Event<const std::string& /*fileName*/> WindCaseSaved;

 private:
  friend std::shared_ptr<clsCurrentCase> CreateCurrentCase();
  friend bool CaseFileChanged();
  friend class Document;
  friend class clsBuildingDimensions;
  friend class clsDynamicPressure;
  friend class clsExternalCoefficients;
  friend class clsInternalCoefficients;
  friend class clsOverallAppliedLoads;
  friend class clsWindCaseList;

  clsCurrentCase();
  void Construct();
  void SetUpSaveFile();
  void ConnectSaveFile();
  void MigrateSettingsFile() const;
  void ApplyParentContext();
  void SetCreated(double value);
  void SetModified(double value);
  void WalkCaseSection(CaseSection& section);
  void ReadCaseFile();
  void WriteCaseFile();
  // True if the new case stands: a handler may have put another document in its place.
  bool StartNewCase();
  template <class Object>
  void Renew(std::shared_ptr<Object>& place);
  void m_iclsSaveFile_NewFile();
  bool ReadUnlessReplaced(const Document& document);
  void m_iclsSaveFile_OpenFile(const std::string& fileName, bool& cancel);
  void m_iclsSaveFile_SaveFile(const std::string& fileName, bool& cancel);
  void KeepInRecentList(const std::string& fileName);

  bool m_BreCp_Dirty = false;
  bool m_BreVe_Dirty = false;
  bool m_BreOSDatabase = false;
  std::int16_t m_Parent_Type = 0;
  float m_Parent_Span = 0;
  float m_Parent_Centres = 0;
  std::int16_t m_Parent_RoofPitch = 0;
  float m_Parent_HeightOfPost_m = 0;
  float m_Parent_HeightToTopOfPostFromFFL_m = 0;
  float m_Parent_BaySize_m = 0;
  std::string m_PathToHelp;
  std::string m_PathToWindLoadCases;
  std::string m_Description;
  double m_Created = 0;
  double m_Modified = 0;

  std::shared_ptr<clsSaveFile> m_iclsSaveFile;
  std::shared_ptr<clsWindCaseList> m_WindCaseList;
  std::shared_ptr<clsBuildingDimensions> m_BuildingDimensions;
  std::shared_ptr<clsDynamicPressure> m_DynamicPressure;
  std::shared_ptr<clsExternalCoefficients> m_ExternalCoefficients;
  std::shared_ptr<clsInternalCoefficients> m_InternalCoefficients;
  std::shared_ptr<clsOverallAppliedLoads> m_OverallAppliedLoads;
  std::shared_ptr<clsCantileverWindLoads> m_CantileverWindloads;

  // What keeps the handlers of the save-file manager's events connected.
  struct SaveFileConnections;
  std::unique_ptr<SaveFileConnections> m_saveFileConnections;
};

/// Creates the root object: starts the components by class name, sets up the save-file manager and the
/// settings file and begins a blank case. The root stays alive through `basBS6399_2::CurrentCase`; a second
/// one takes its place. Errors: those of the settings file and of the objects made; a component that can't be
/// created isn't one.
std::shared_ptr<clsCurrentCase> CreateCurrentCase();

}  // namespace orve
