#include "OutsideComponents.h"

#include <memory>
#include <string>

#include "OutsideObject.h"
#include "coefficients/CoefficientEngine.h"
#include "core/ComponentClasses.h"
#include "external/BreCpX.h"
#include "sitewind/BVe2X.h"
#include "windspeed/WindSpeedEngine.h"

namespace orve::com {

namespace {

// The members of the two contracts, each handed on by its name.
#define ORVE_READ(Type, Name)             \
  Type Name() const override {            \
    return m_object.Get<Type>(L## #Name); \
  }
#define ORVE_LET(Type, Name)        \
  void Name(Type value) override {  \
    m_object.Let(L## #Name, value); \
  }
#define ORVE_CALL(Name)       \
  void Name() override {      \
    m_object.Call(L## #Name); \
  }
#define ORVE_ASK(Name)                    \
  bool Name() override {                  \
    return m_object.Get<bool>(L## #Name); \
  }
#define ORVE_BY_SECTOR(Name)                       \
  float Name(WindSectors sector) const override {  \
    return m_object.Get<float>(L## #Name, sector); \
  }
#define ORVE_SET_BY_SECTOR(Name)                        \
  void Name(WindSectors sector, float value) override { \
    m_object.Call(L## #Name, sector, value);            \
  }

class OutsideWindSpeed final : public BVe2X {
 public:
  explicit OutsideWindSpeed(const std::string& className) : m_object(className) {}

  std::string TypeName() const override { return m_object.TypeName(); }
  ORVE_READ(std::string, datapath)
  ORVE_LET(const std::string&, datapath)
  ORVE_READ(bool, AutoWizard)
  ORVE_LET(bool, AutoWizard)
  ORVE_LET(bool, AutoSite)
  ORVE_LET(bool, SiteAltWarn)
  ORVE_LET(std::int32_t, Tick)
  ORVE_ASK(Browse)
  ORVE_ASK(SelectDlg)
  ORVE_ASK(Edit)
  ORVE_READ(std::string, SiteID)
  ORVE_LET(const std::string&, SiteID)
  ORVE_CALL(GBSite)
  ORVE_READ(std::int32_t, Wizard)
  ORVE_LET(float, Risk)
  ORVE_LET(std::int32_t, Season)
  ORVE_LET(std::int32_t, StartMonth)
  ORVE_LET(std::int32_t, TopogMode)
  ORVE_READ(float, SiteAltitude)
  ORVE_LET(float, SiteAltitude)
  ORVE_READ(float, BaseV)
  ORVE_LET(float, BaseV)
  ORVE_BY_SECTOR(CrestHt)
  ORVE_BY_SECTOR(CrestX)
  ORVE_BY_SECTOR(UpwLen)
  ORVE_BY_SECTOR(DnwLen)
  ORVE_BY_SECTOR(BaseAlt)
  ORVE_BY_SECTOR(ObsHt)
  ORVE_BY_SECTOR(ObsSep)
  ORVE_BY_SECTOR(ToSea)
  ORVE_BY_SECTOR(InTown)
  ORVE_SET_BY_SECTOR(setCrestHt)
  ORVE_SET_BY_SECTOR(setCrestX)
  ORVE_SET_BY_SECTOR(setUpwLen)
  ORVE_SET_BY_SECTOR(setDnwLen)
  ORVE_SET_BY_SECTOR(setBaseAlt)
  ORVE_SET_BY_SECTOR(setObsHt)
  ORVE_SET_BY_SECTOR(setObsSep)
  ORVE_SET_BY_SECTOR(setToSea)
  ORVE_SET_BY_SECTOR(setInTown)
  ORVE_READ(float, H)
  ORVE_LET(float, H)
  ORVE_READ(float, A)
  ORVE_LET(float, A)
  ORVE_READ(std::int32_t, Units)
  ORVE_LET(std::int32_t, Units)
  ORVE_CALL(Calculate)
  ORVE_READ(float, Sp)
  ORVE_READ(float, Ss)
  ORVE_BY_SECTOR(Sd)
  ORVE_BY_SECTOR(Sa)
  ORVE_BY_SECTOR(Zd)
  ORVE_BY_SECTOR(He)
  ORVE_BY_SECTOR(Sh)
  ORVE_BY_SECTOR(Sc)
  ORVE_BY_SECTOR(St)
  ORVE_BY_SECTOR(Tc)
  ORVE_BY_SECTOR(Tt)
  ORVE_BY_SECTOR(gt)
  ORVE_BY_SECTOR(Sb)
  ORVE_BY_SECTOR(DirVal)
  ORVE_BY_SECTOR(BSGust)
  ORVE_BY_SECTOR(HybridCa)

 private:
  OutsideObject m_object;
};

class OutsideCoefficients final : public BreCpX {
 public:
  explicit OutsideCoefficients(const std::string& className) : m_object(className) {}

  std::string TypeName() const override { return m_object.TypeName(); }
  ORVE_LET(const std::string&, datapath)
  ORVE_LET(bool, AutoBreadth)
  ORVE_LET(std::int32_t, Reporting)
  ORVE_LET(std::int32_t, Method)
  ORVE_READ(std::int32_t, TypeIndex)
  ORVE_LET(std::int32_t, TypeIndex)
  ORVE_LET(float, Barrel_r)
  ORVE_LET(float, Eaves_Pitch)
  ORVE_LET(float, Eaves_Radius)
  ORVE_LET(float, Parapet_H)
  ORVE_LET(float, Roof_Pitch)
  ORVE_READ(float, Dim_L)
  ORVE_LET(float, Dim_L)
  ORVE_READ(float, Dim_W)
  ORVE_LET(float, Dim_W)
  ORVE_READ(float, Dim_H)
  ORVE_LET(float, Dim_H)
  ORVE_READ(float, Dim_gap)
  ORVE_LET(float, Dim_gap)
  ORVE_LET(std::int32_t, Solidity)
  ORVE_READ(double, Theta)
  ORVE_LET(double, Theta)
  ORVE_LET(std::int16_t, ZoneIndex)
  ORVE_LET(bool, Suction)
  ORVE_READ(bool, Valid)
  ORVE_READ(std::string, ZoneString)
  ORVE_READ(float, Breadth)
  ORVE_READ(float, Depth)
  ORVE_READ(float, Scale_b)
  ORVE_READ(float, Cpe)

 private:
  OutsideObject m_object;
};

struct ClassPair {
  std::string first;
  std::string fallback;
};

/// Registers both names of a component: under the first one also the built-in engine, if neither is there.
template <class Outside, class Component>
void RegisterPair(const ClassPair& names, std::shared_ptr<Component> (*makeEngine)()) {
  using Factory = std::function<std::shared_ptr<Component>()>;
  ComponentClasses().Register(names.first, Factory([names, makeEngine]() -> std::shared_ptr<Component> {
                                if (!IsRegistered(names.first) && !IsRegistered(names.fallback))
                                  return makeEngine();
                                return std::make_shared<Outside>(names.first);
                              }));
  ComponentClasses().Register(names.fallback, Factory([names]() -> std::shared_ptr<Component> {
                                return std::make_shared<Outside>(names.fallback);
                              }));
}

}  // namespace

void RegisterComponentClasses() {
  RegisterPair<OutsideWindSpeed, BVe2X>({"BVe2XControl4.BVe2X", "BVe2_2XControl1.BVe2_2X"},
                                        &CreateWindSpeedEngine);
  RegisterPair<OutsideCoefficients, BreCpX>({"BreCp2_2XControl3.BreCp2_2X", "BreCpX1.BreCpX"},
                                            &CreateCoefficientEngine);
}

}  // namespace orve::com
