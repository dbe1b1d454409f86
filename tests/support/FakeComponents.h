// Component fakes that record the order of calls, and a root object that works on them.
#pragma once

#include <array>
#include <filesystem>
#include <functional>
#include <gtest/gtest.h>
#include <memory>
#include <string>
#include <vector>

#include "common/NumberText.h"
#include "orve3_bs6399_2.h"

namespace orve::test {

/// Calls on both components in their order: "H?" for a get, "H=6" for a let, "Calculate" for a call.
struct CallLog {
  bool recording = false;
  std::vector<std::string> calls;
  std::function<void()> onCall;

  void Get(const char* name) const { Add(std::string(name) + "?"); }
  void Get(const char* name, WindSectors sector) const {
    Add(std::string(name) + "(" + std::to_string(int(sector)) + ")?");
  }
  template <class Value>
  void Let(const char* name, Value value) const {
    Add(std::string(name) + "=" + Text(value));
  }
  void Let(const char* name, WindSectors sector, float value) const {
    Add(std::string(name) + "(" + std::to_string(int(sector)) + ")=" + ShortestText(value));
  }
  void Call(const char* name) const { Add(name); }

 private:
  static std::string Text(const std::string& value) { return value; }
  static std::string Text(bool value) { return BoolText(value); }
  static std::string Text(float value) { return ShortestText(value); }
  static std::string Text(double value) { return ShortestText(value); }
  static std::string Text(int value) { return std::to_string(value); }
  void Add(std::string text) const {
    if (onCall) onCall();
    if (recording) const_cast<CallLog*>(this)->calls.push_back(std::move(text));
  }
};

using SectorValues = std::array<float, 12>;

/// A wind-speed component whose results are what a test puts in.
class FakeWindSpeed : public BVe2X {
 public:
  explicit FakeWindSpeed(std::shared_ptr<CallLog> callLog) : log(std::move(callLog)) {}

  std::shared_ptr<CallLog> log;
  std::string typeName = "BVe2X";
  std::string dataPath, siteID;
  bool dialogAnswer = true, autoWizard = false;
  std::string dialogSite;
  std::function<void()> onGBSite, onEdit, onCalculate;
  std::int32_t wizard = 0, units = 0;
  float siteAltitude = 0, baseV = 0, h = 0, a = 0;
  float sp = 1, ss = 1;
  bool refuseFetch = false;
  SectorValues crestHt{}, crestX{}, upwLen{}, dnwLen{}, baseAlt{}, obsHt{}, obsSep{}, toSea{}, inTown{};
  SectorValues sd{}, sa{}, zd{}, he{}, sh{}, sc{}, st{}, tc{}, tt{}, gustFactor{}, sb{};
  SectorValues dirVal{}, bsGust{}, hybridCa{};
  int calculations = 0;

  std::string TypeName() const override { return typeName; }
  std::string datapath() const override { return log->Get("datapath"), dataPath; }
  void datapath(const std::string& v) override { log->Let("datapath", v), dataPath = v; }
  bool AutoWizard() const override { return log->Get("AutoWizard"), autoWizard; }
  void AutoWizard(bool v) override { log->Let("AutoWizard", v), autoWizard = v; }
  void AutoSite(bool v) override { log->Let("AutoSite", v); }
  void SiteAltWarn(bool v) override { log->Let("SiteAltWarn", v); }
  void Tick(std::int32_t v) override { log->Let("Tick", v); }
  bool Browse() override { return log->Call("Browse"), Dialog(); }
  bool SelectDlg() override { return log->Call("SelectDlg"), Dialog(); }
  bool Edit() override {
    log->Call("Edit");
    if (dialogAnswer && onEdit) onEdit();
    return dialogAnswer;
  }
  std::string SiteID() const override { return log->Get("SiteID"), siteID; }
  void SiteID(const std::string& v) override { log->Let("SiteID", v), siteID = v; }
  void GBSite() override {
    log->Call("GBSite");
    if (onGBSite) onGBSite();
  }
  std::int32_t Wizard() const override { return log->Get("Wizard"), wizard; }
  void Risk(float v) override { log->Let("Risk", v); }
  void Season(std::int32_t v) override { log->Let("Season", v); }
  void StartMonth(std::int32_t v) override { log->Let("StartMonth", v); }
  void TopogMode(std::int32_t v) override { log->Let("TopogMode", v); }
  float SiteAltitude() const override { return log->Get("SiteAltitude"), siteAltitude; }
  void SiteAltitude(float v) override { log->Let("SiteAltitude", v), siteAltitude = v; }
  float BaseV() const override { return log->Get("BaseV"), baseV; }
  void BaseV(float v) override { log->Let("BaseV", v), baseV = v; }
  float CrestHt(WindSectors s) const override { return Read("CrestHt", crestHt, s); }
  float CrestX(WindSectors s) const override { return Read("CrestX", crestX, s); }
  float UpwLen(WindSectors s) const override { return Read("UpwLen", upwLen, s); }
  float DnwLen(WindSectors s) const override { return Read("DnwLen", dnwLen, s); }
  float BaseAlt(WindSectors s) const override { return Read("BaseAlt", baseAlt, s); }
  float ObsHt(WindSectors s) const override { return Read("ObsHt", obsHt, s); }
  float ObsSep(WindSectors s) const override { return Read("ObsSep", obsSep, s); }
  float ToSea(WindSectors s) const override { return Read("ToSea", toSea, s); }
  float InTown(WindSectors s) const override { return Read("InTown", inTown, s); }
  void setCrestHt(WindSectors s, float v) override { Write("setCrestHt", crestHt, s, v); }
  void setCrestX(WindSectors s, float v) override { Write("setCrestX", crestX, s, v); }
  void setUpwLen(WindSectors s, float v) override { Write("setUpwLen", upwLen, s, v); }
  void setDnwLen(WindSectors s, float v) override { Write("setDnwLen", dnwLen, s, v); }
  void setBaseAlt(WindSectors s, float v) override { Write("setBaseAlt", baseAlt, s, v); }
  void setObsHt(WindSectors s, float v) override { Write("setObsHt", obsHt, s, v); }
  void setObsSep(WindSectors s, float v) override { Write("setObsSep", obsSep, s, v); }
  void setToSea(WindSectors s, float v) override { Write("setToSea", toSea, s, v, refuseFetch); }
  void setInTown(WindSectors s, float v) override { Write("setInTown", inTown, s, v); }
  float H() const override { return log->Get("H"), h; }
  void H(float v) override { log->Let("H", v), h = v; }
  float A() const override { return log->Get("A"), a; }
  void A(float v) override { log->Let("A", v), a = v; }
  std::int32_t Units() const override { return log->Get("Units"), units; }
  void Units(std::int32_t v) override { log->Let("Units", v), units = v; }
  void Calculate() override {
    log->Call("Calculate");
    ++calculations;
    if (onCalculate) onCalculate();
  }
  float Sp() const override { return log->Get("Sp"), sp; }
  float Ss() const override { return log->Get("Ss"), ss; }
  float Sd(WindSectors s) const override { return Read("Sd", sd, s); }
  float Sa(WindSectors s) const override { return Read("Sa", sa, s); }
  float Zd(WindSectors s) const override { return Read("Zd", zd, s); }
  float He(WindSectors s) const override { return Read("He", he, s); }
  float Sh(WindSectors s) const override { return Read("Sh", sh, s); }
  float Sc(WindSectors s) const override { return Read("Sc", sc, s); }
  float St(WindSectors s) const override { return Read("St", st, s); }
  float Tc(WindSectors s) const override { return Read("Tc", tc, s); }
  float Tt(WindSectors s) const override { return Read("Tt", tt, s); }
  float gt(WindSectors s) const override { return Read("gt", gustFactor, s); }
  float Sb(WindSectors s) const override { return Read("Sb", sb, s); }
  float DirVal(WindSectors s) const override { return Read("DirVal", dirVal, s); }
  float BSGust(WindSectors s) const override { return Read("BSGust", bsGust, s); }
  float HybridCa(WindSectors s) const override { return Read("HybridCa", hybridCa, s); }

 private:
  bool Dialog() {
    if (dialogAnswer) siteID = dialogSite;
    return dialogAnswer;
  }
  float Read(const char* name, const SectorValues& values, WindSectors sector) const {
    log->Get(name, sector);
    return int(sector) >= 0 && int(sector) < 12 ? values[int(sector)] : -1;
  }
  void Write(const char* name, SectorValues& values, WindSectors sector, float value, bool refuse = false) {
    log->Let(name, sector, value);
    if (!refuse) values[int(sector)] = value;
  }
};

/// A zone that the fake coefficient component offers.
struct FakeZone {
  int typeIndex;
  double theta;
  int zone;
  std::string letters;
  float pressure;
  float suction;
};

/// A coefficient component that offers the zones that a test puts in, with B, D and b of a rectangular
/// building.
class FakeCoefficients : public BreCpX {
 public:
  explicit FakeCoefficients(std::shared_ptr<CallLog> callLog) : log(std::move(callLog)) {}

  std::shared_ptr<CallLog> log;
  std::string typeName = "BreCp2_2X";
  std::string dataPath;
  std::vector<FakeZone> zones;
  std::int32_t typeIndex = 0;
  float dimL = 0, dimW = 0, dimH = 0, dimGap = 0;
  double theta = 0;
  std::int16_t zoneIndex = 0;
  bool suction = false;

  std::string TypeName() const override { return typeName; }
  void datapath(const std::string& v) override { log->Let("datapath", v), dataPath = v; }
  void AutoBreadth(bool v) override { log->Let("AutoBreadth", v); }
  void Reporting(std::int32_t v) override { log->Let("Reporting", v); }
  void Method(std::int32_t v) override { log->Let("Method", v); }
  std::int32_t TypeIndex() const override { return log->Get("TypeIndex"), typeIndex; }
  void TypeIndex(std::int32_t v) override { log->Let("TypeIndex", v), typeIndex = v; }
  void Barrel_r(float v) override { log->Let("Barrel_r", v); }
  void Eaves_Pitch(float v) override { log->Let("Eaves_Pitch", v); }
  void Eaves_Radius(float v) override { log->Let("Eaves_Radius", v); }
  void Parapet_H(float v) override { log->Let("Parapet_H", v); }
  void Roof_Pitch(float v) override { log->Let("Roof_Pitch", v); }
  float Dim_L() const override { return log->Get("Dim_L"), dimL; }
  void Dim_L(float v) override { log->Let("Dim_L", v), dimL = v; }
  float Dim_W() const override { return log->Get("Dim_W"), dimW; }
  void Dim_W(float v) override { log->Let("Dim_W", v), dimW = v; }
  float Dim_H() const override { return log->Get("Dim_H"), dimH; }
  void Dim_H(float v) override { log->Let("Dim_H", v), dimH = v; }
  float Dim_gap() const override { return log->Get("Dim_gap"), dimGap; }
  void Dim_gap(float v) override { log->Let("Dim_gap", v), dimGap = v; }
  void Solidity(std::int32_t v) override { log->Let("Solidity", v); }
  double Theta() const override { return log->Get("Theta"), theta; }
  void Theta(double v) override { log->Let("Theta", v), theta = v; }
  void ZoneIndex(std::int16_t v) override { log->Let("ZoneIndex", int(v)), zoneIndex = v; }
  void Suction(bool v) override { log->Let("Suction", v), suction = v; }
  bool Valid() const override { return log->Get("Valid"), Find() != nullptr; }
  std::string ZoneString() const override { return log->Get("ZoneString"), Find() ? Find()->letters : ""; }
  float Breadth() const override { return log->Get("Breadth"), AlongFace() ? dimL : dimW; }
  float Depth() const override { return log->Get("Depth"), AlongFace() ? dimW : dimL; }
  float Scale_b() const override {
    return log->Get("Scale_b"), std::min(AlongFace() ? dimL : dimW, 2 * dimH);
  }
  float Cpe() const override {
    return log->Get("Cpe"), !Find() ? 0 : suction ? Find()->suction : Find()->pressure;
  }

 private:
  bool AlongFace() const { return theta == 0 || theta == 180; }
  const FakeZone* Find() const {
    for (const FakeZone& zone : zones)
      if (zone.typeIndex == typeIndex && std::abs(zone.theta - theta) < 0.05 && zone.zone == zoneIndex)
        return &zone;
    return nullptr;
  }
};

/// A folder of its own for the settings file and case files of one test.
class PrivateFolder {
 public:
  PrivateFolder();
  ~PrivateFolder();
  /// A name in the folder, as the machine writes it.
  std::string Path(const std::string& name) const { return (m_folder / name).string(); }

 private:
  std::filesystem::path m_folder;
};

/// A root object on component fakes, with its settings in a private folder.
class FakeCase : public ::testing::Test {
 protected:
  FakeCase();
  ~FakeCase() override;

  /// Starts recording calls on the components, forgetting what was there.
  void Record() { log->recording = true, log->calls.clear(); }

  PrivateFolder folder;
  std::shared_ptr<CallLog> log = std::make_shared<CallLog>();
  std::shared_ptr<FakeWindSpeed> wind = std::make_shared<FakeWindSpeed>(log);
  std::shared_ptr<FakeCoefficients> coefficients = std::make_shared<FakeCoefficients>(log);
  std::shared_ptr<clsCurrentCase> root;
};

/// Lets go of the process-wide references and of what a test registered or assigned.
void ReleaseProcess();

/// The number of the `orve::Error` that an action raises; 0 if it raises none.
int ErrorOf(const std::function<void()>& action);

}  // namespace orve::test
