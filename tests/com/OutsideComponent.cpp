// Components of an outside party for the tests: the built-in engines behind late binding, with every call
// kept. TakeCalls gives the calls since it was last asked, one a line, each argument with its type ("&" by
// reference).
#include "OutsideComponent.h"

#include <functional>
#include <map>
#include <memory>
#include <string>
#include <vector>

#include "LateBound.h"
#include "coefficients/CoefficientEngine.h"
#include "common/Error.h"
#include "external/BreCpX.h"
#include "sitewind/BVe2X.h"
#include "windspeed/WindSpeedEngine.h"

namespace orve::test {

namespace {

std::string g_calls;

std::string TypedText(const VARIANT& variant) {
  static const std::map<VARTYPE, std::string> names{{VT_BOOL, "Bool"}, {VT_I2, "Int16"},  {VT_I4, "Int32"},
                                                    {VT_R4, "Single"}, {VT_R8, "Double"}, {VT_BSTR, "Text"}};
  Argument direct;
  ::VariantCopyInd(direct.Get(), const_cast<VARIANT*>(&variant));
  const auto name = names.find(direct.Type());
  return ((V_VT(&variant) & VT_BYREF) != 0 ? " &" : " ") + (name == names.end() ? "?" : name->second) + ":" +
         direct.Text();
}

template <class Cpp>
Cpp Take(const VARIANT& variant) {
  Argument direct;
  const auto as = [&](VARTYPE type) {
    if (FAILED(
            ::VariantChangeTypeEx(direct.Get(), const_cast<VARIANT*>(&variant), LOCALE_INVARIANT, 0, type)))
      throw Error(ErrorNumber::TypeMismatch, "The component can't take this");
    return direct.Get();
  };
  if constexpr (std::is_same_v<Cpp, std::string>) {
    return Narrow(V_BSTR(as(VT_BSTR)));
  } else if constexpr (std::is_same_v<Cpp, bool>) {
    return V_BOOL(as(VT_BOOL)) != VARIANT_FALSE;
  } else if constexpr (std::is_floating_point_v<Cpp>) {
    return static_cast<Cpp>(V_R8(as(VT_R8)));
  } else {
    return static_cast<Cpp>(V_I4(as(VT_I4)));
  }
}

template <class Cpp>
void Give(const Cpp& value, VARIANT* result) {
  if (result == nullptr) return;
  if constexpr (std::is_same_v<Cpp, float>) {
    V_VT(result) = VT_R4;
    V_R4(result) = value;
  } else if constexpr (std::is_integral_v<Cpp> && !std::is_same_v<Cpp, bool>) {
    ::VariantCopy(result, Argument(static_cast<long>(value)).Get());
  } else {
    ::VariantCopy(result, Argument(value).Get());
  }
}

struct Member {
  std::wstring name;
  std::function<void(const VARIANT* arguments, VARIANT* result)> get;  ///< A get or a call.
  std::function<void(const VARIANT* arguments)> let;
  UINT getArguments = 0;
};

/// The members of an engine by name; a number is a position counted from 1.
template <class Engine>
class Members {
 public:
  explicit Members(std::shared_ptr<Engine> engine) : m_engine(std::move(engine)) {}

  template <class Result>
  void Reads(const wchar_t* name, Result (Engine::*get)() const) {
    At(name).get = [this, get](const VARIANT*, VARIANT* result) { Give((m_engine.get()->*get)(), result); };
  }
  template <class Given>
  void Lets(const wchar_t* name, void (Engine::*let)(Given)) {
    At(name).let = [this, let](const VARIANT* arguments) {
      (m_engine.get()->*let)(Take<std::remove_cvref_t<Given>>(arguments[0]));
    };
  }
  void Calls(const wchar_t* name, void (Engine::*call)()) {
    At(name).get = [this, call](const VARIANT*, VARIANT*) { (m_engine.get()->*call)(); };
  }
  void Calls(const wchar_t* name, bool (Engine::*call)()) {
    At(name).get = [this, call](const VARIANT*, VARIANT* result) { Give((m_engine.get()->*call)(), result); };
  }
  void BySector(const wchar_t* name, float (Engine::*get)(WindSectors) const) {
    At(name).getArguments = 1;
    At(name).get = [this, get](const VARIANT* arguments, VARIANT* result) {
      Give((m_engine.get()->*get)(Take<WindSectors>(arguments[0])), result);
    };
  }
  void BySector(const wchar_t* name, void (Engine::*set)(WindSectors, float)) {
    At(name).getArguments = 2;
    At(name).get = [this, set](const VARIANT* arguments, VARIANT*) {
      (m_engine.get()->*set)(Take<WindSectors>(arguments[1]), Take<float>(arguments[0]));
    };
  }

  std::vector<Member> table;

 private:
  Member& At(const wchar_t* name) {
    for (Member& member : table)
      if (member.name == name) return member;
    return table.emplace_back(Member{name, {}, {}, 0});
  }

  std::shared_ptr<Engine> m_engine;
};

class WindSpeedMembers : public Members<BVe2X> {
 public:
  WindSpeedMembers() : Members(CreateWindSpeedEngine()) {
#define ORVE_READS(Name) Reads(L## #Name, &BVe2X::Name);
#define ORVE_LETS(Name) Lets(L## #Name, &BVe2X::Name);
#define ORVE_BOTH(Name) ORVE_READS(Name) ORVE_LETS(Name)
#define ORVE_CALLS(Name) Calls(L## #Name, &BVe2X::Name);
#define ORVE_BY_SECTOR(Name) BySector(L## #Name, &BVe2X::Name);
#define ORVE_SITE(Name) ORVE_BY_SECTOR(Name) ORVE_BY_SECTOR(set##Name)
    // clang-format off
    ORVE_BOTH(datapath) ORVE_BOTH(AutoWizard) ORVE_LETS(AutoSite) ORVE_LETS(SiteAltWarn)
    ORVE_LETS(Tick) ORVE_CALLS(Browse) ORVE_CALLS(SelectDlg) ORVE_CALLS(Edit) ORVE_BOTH(SiteID)
    ORVE_CALLS(GBSite) ORVE_READS(Wizard) ORVE_LETS(Risk) ORVE_LETS(Season) ORVE_LETS(StartMonth)
    ORVE_LETS(TopogMode) ORVE_BOTH(SiteAltitude) ORVE_BOTH(BaseV) ORVE_SITE(CrestHt)
    ORVE_SITE(CrestX) ORVE_SITE(UpwLen) ORVE_SITE(DnwLen) ORVE_SITE(BaseAlt) ORVE_SITE(ObsHt)
    ORVE_SITE(ObsSep) ORVE_SITE(ToSea) ORVE_SITE(InTown) ORVE_BOTH(H) ORVE_BOTH(A) ORVE_BOTH(Units)
    ORVE_CALLS(Calculate) ORVE_READS(Sp) ORVE_READS(Ss) ORVE_BY_SECTOR(Sd) ORVE_BY_SECTOR(Sa)
    ORVE_BY_SECTOR(Zd) ORVE_BY_SECTOR(He) ORVE_BY_SECTOR(Sh) ORVE_BY_SECTOR(Sc) ORVE_BY_SECTOR(St)
    ORVE_BY_SECTOR(Tc) ORVE_BY_SECTOR(Tt) ORVE_BY_SECTOR(gt) ORVE_BY_SECTOR(Sb)
    ORVE_BY_SECTOR(DirVal) ORVE_BY_SECTOR(BSGust) ORVE_BY_SECTOR(HybridCa)
    // clang-format on
#undef ORVE_READS
#undef ORVE_LETS
  }
};

class CoefficientMembers : public Members<BreCpX> {
 public:
  CoefficientMembers() : Members(CreateCoefficientEngine()) {
#define ORVE_READS(Name) Reads(L## #Name, &BreCpX::Name);
#define ORVE_LETS(Name) Lets(L## #Name, &BreCpX::Name);
    // clang-format off
    ORVE_LETS(datapath) ORVE_LETS(AutoBreadth) ORVE_LETS(Reporting) ORVE_LETS(Method)
    ORVE_BOTH(TypeIndex) ORVE_LETS(Barrel_r) ORVE_LETS(Eaves_Pitch) ORVE_LETS(Eaves_Radius)
    ORVE_LETS(Parapet_H) ORVE_LETS(Roof_Pitch) ORVE_BOTH(Dim_L) ORVE_BOTH(Dim_W) ORVE_BOTH(Dim_H)
    ORVE_BOTH(Dim_gap) ORVE_LETS(Solidity) ORVE_BOTH(Theta) ORVE_LETS(ZoneIndex) ORVE_LETS(Suction)
    ORVE_READS(Valid) ORVE_READS(ZoneString) ORVE_READS(Breadth) ORVE_READS(Depth)
    ORVE_READS(Scale_b) ORVE_READS(Cpe)
    // clang-format on
  }
};

template <class MemberSet>
class Component final : public IDispatch {
 public:
  HRESULT STDMETHODCALLTYPE QueryInterface(REFIID identity, void** result) override {
    *result = identity == IID_IUnknown || identity == IID_IDispatch ? this : nullptr;
    if (*result == nullptr) return E_NOINTERFACE;
    AddRef();
    return S_OK;
  }
  ULONG STDMETHODCALLTYPE AddRef() override { return ++m_count; }
  ULONG STDMETHODCALLTYPE Release() override {
    const ULONG count = --m_count;
    if (count > 0) return count;
    g_calls += "released\n";
    delete this;
    return 0;
  }
  HRESULT STDMETHODCALLTYPE GetTypeInfoCount(UINT*) override { return E_NOTIMPL; }
  HRESULT STDMETHODCALLTYPE GetTypeInfo(UINT, LCID, ITypeInfo**) override { return E_NOTIMPL; }

  HRESULT STDMETHODCALLTYPE GetIDsOfNames(REFIID, LPOLESTR* names, UINT, LCID, DISPID* numbers) override {
    for (std::size_t i = 0; i < m_members.table.size(); ++i) {
      if (::lstrcmpiW(m_members.table[i].name.c_str(), names[0]) != 0) continue;
      numbers[0] = static_cast<DISPID>(i + 1);
      return S_OK;
    }
    return DISP_E_UNKNOWNNAME;
  }

  HRESULT STDMETHODCALLTYPE Invoke(DISPID number, REFIID, LCID, WORD flags, DISPPARAMS* parameters,
                                   VARIANT* result, EXCEPINFO* exception, UINT*) override {
    const Member& member = m_members.table[static_cast<std::size_t>(number - 1)];
    const bool isLet = flags == DISPATCH_PROPERTYPUT;
    if (isLet && (parameters->cNamedArgs != 1 || parameters->rgdispidNamedArgs[0] != DISPID_PROPERTYPUT))
      return DISP_E_PARAMNOTFOUND;
    if (parameters->cArgs != (isLet ? 1 : member.getArguments)) return DISP_E_BADPARAMCOUNT;
    if (isLet ? !member.let : !member.get) return DISP_E_MEMBERNOTFOUND;
    g_calls += Narrow(member.name) + (isLet ? " =" : "");
    for (UINT i = parameters->cArgs; i > 0; --i) g_calls += TypedText(parameters->rgvarg[i - 1]);
    g_calls += '\n';
    try {
      if (isLet)
        member.let(parameters->rgvarg);
      else
        member.get(parameters->rgvarg, result);
      return S_OK;
    } catch (const Error& error) {
      *exception = {};
      exception->wCode = static_cast<WORD>(error.Number());
      exception->bstrDescription = NewText(error.what());
      return DISP_E_EXCEPTION;
    }
  }

 private:
  ULONG m_count = 1;
  MemberSet m_members;
};

/// Makes components; of the broken class it makes none.
class Factory final : public IClassFactory {
 public:
  explicit Factory(OutsideClass made) : m_class(made) {}
  HRESULT STDMETHODCALLTYPE QueryInterface(REFIID, void** result) override {
    *result = this;
    return S_OK;
  }
  ULONG STDMETHODCALLTYPE AddRef() override { return 2; }
  ULONG STDMETHODCALLTYPE Release() override { return 1; }
  HRESULT STDMETHODCALLTYPE CreateInstance(IUnknown*, REFIID identity, void** result) override {
    com::ComPointer<IDispatch> made;
    if (m_class == OutsideClass::WindSpeed) *made.Receive() = new Component<WindSpeedMembers>;
    if (m_class == OutsideClass::Coefficients) *made.Receive() = new Component<CoefficientMembers>;
    return made ? made->QueryInterface(identity, result) : E_FAIL;
  }
  HRESULT STDMETHODCALLTYPE LockServer(BOOL) override { return S_OK; }

 private:
  OutsideClass m_class;
};

}  // namespace

}  // namespace orve::test

using namespace orve::test;

STDAPI DllGetClassObject(REFCLSID identity, REFIID interfaceIdentity, void** result) {
  static Factory factories[] = {Factory(OutsideClass::WindSpeed), Factory(OutsideClass::Coefficients),
                                Factory(OutsideClass::Broken)};
  for (std::size_t i = 0; i < std::size(factories); ++i)
    if (identity == IdentityOf(static_cast<OutsideClass>(i)))
      return factories[i].QueryInterface(interfaceIdentity, result);
  return CLASS_E_CLASSNOTAVAILABLE;
}

STDAPI DllCanUnloadNow() {
  return S_FALSE;
}

extern "C" const char* TakeCalls() {
  static std::string taken;
  taken = std::move(g_calls);
  g_calls.clear();
  return taken.c_str();
}
