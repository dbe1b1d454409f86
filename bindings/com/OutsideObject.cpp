#include "OutsideObject.h"

#include <vector>

#include "Errors.h"
#include "Module.h"
#include "System.h"
#include "Text.h"
#include "Variants.h"
#include "common/Error.h"

namespace orve::com {

namespace {

constexpr DWORD AnyServer = CLSCTX_INPROC_SERVER | CLSCTX_LOCAL_SERVER;

HRESULT FindClass(const std::string& className, CLSID& identity) {
  return ::CLSIDFromProgID(ToWide(className).c_str(), &identity);
}

/// The name that the component's own description gives its class; else the one that it was created by.
std::string NameOfClass(IDispatch* object, const std::string& className) {
  ComPointer<IProvideClassInfo> provider;
  ComPointer<ITypeInfo> information;
  if (SUCCEEDED(
          object->QueryInterface(IID_IProvideClassInfo, reinterpret_cast<void**>(provider.Receive()))) &&
      SUCCEEDED(provider->GetClassInfo(information.Receive()))) {
    BSTR name = nullptr;
    if (SUCCEEDED(information->GetDocumentation(MEMBERID_NIL, &name, nullptr, nullptr, nullptr))) {
      const std::string text = FromText(name);
      ::SysFreeString(name);
      return text;
    }
  }
  return className.substr(className.rfind('.') + 1);
}

}  // namespace

OutsideObject::OutsideObject(const std::string& className) {
  const HostFloatState state;
  CLSID identity{};
  HRESULT result = FindClass(className, identity);
  if (SUCCEEDED(result))
    result = ::CoCreateInstance(identity, nullptr, AnyServer, IID_IDispatch,
                                reinterpret_cast<void**>(m_object.Receive()));
  if (FAILED(result))
    throw Error(com::NumberOf(result), "The component class " + className + " can't be created");
  m_typeName = NameOfClass(m_object.Get(), className);
}

OutsideObject::~OutsideObject() {
  const HostFloatState state;
  if (!ModuleStands()) m_object.Detach();
  m_object = ComPointer<IDispatch>();
}

VARIANT OutsideObject::Argument(bool value) {
  VARIANT variant;
  V_VT(&variant) = VT_BOOL;
  V_BOOL(&variant) = value ? VARIANT_TRUE : VARIANT_FALSE;
  return variant;
}

VARIANT OutsideObject::Argument(std::int16_t value) {
  VARIANT variant;
  V_VT(&variant) = VT_I2;
  V_I2(&variant) = value;
  return variant;
}

VARIANT OutsideObject::Argument(std::int32_t value) {
  VARIANT variant;
  V_VT(&variant) = VT_I4;
  V_I4(&variant) = value;
  return variant;
}

VARIANT OutsideObject::Argument(float value) {
  VARIANT variant;
  V_VT(&variant) = VT_R4;
  V_R4(&variant) = value;
  return variant;
}

VARIANT OutsideObject::Argument(double value) {
  VARIANT variant;
  V_VT(&variant) = VT_R8;
  V_R8(&variant) = value;
  return variant;
}

VARIANT OutsideObject::Argument(const std::string& value) {
  VARIANT variant;
  V_VT(&variant) = VT_BSTR;
  V_BSTR(&variant) = NewText(value);
  return variant;
}

VARIANT OutsideObject::Argument(const WindSectors& sector) {
  static_assert(sizeof(WindSectors) == sizeof(LONG));
  VARIANT variant;
  V_VT(&variant) = VT_BYREF | VT_I4;
  V_BYREF(&variant) = const_cast<WindSectors*>(&sector);
  return variant;
}

DISPID OutsideObject::NumberOfMember(const wchar_t* member) const {
  const auto known = m_numbers.find(member);
  if (known != m_numbers.end()) return known->second;
  DISPID number = DISPID_UNKNOWN;
  auto* name = const_cast<wchar_t*>(member);
  const HostFloatState state;
  const HRESULT result = m_object->GetIDsOfNames(IID_NULL, &name, 1, LOCALE_NEUTRAL, &number);
  if (FAILED(result)) throw Error(com::NumberOf(result), m_typeName + " has no member " + FromWide(member));
  return m_numbers[member] = number;
}

automation::Value OutsideObject::Run(const wchar_t* member, WORD flags, const automation::Type& resultType,
                                     std::initializer_list<VARIANT> arguments) const {
  std::vector<VARIANT> row(std::rbegin(arguments), std::rend(arguments));
  struct Clearing {
    std::vector<VARIANT>& row;
    ~Clearing() {
      for (VARIANT& variant : row) ::VariantClear(&variant);
    }
  } const clearing{row};
  DISPID newValue = DISPID_PROPERTYPUT;
  const bool isLet = (flags & DISPATCH_PROPERTYPUT) != 0;
  DISPPARAMS parameters{row.data(), isLet ? &newValue : nullptr, static_cast<UINT>(row.size()),
                        isLet ? 1u : 0u};
  Variant result;
  EXCEPINFO exception{};
  const DISPID number = NumberOfMember(member);
  const HRESULT outcome = [&] {
    const HostFloatState state;
    return m_object->Invoke(number, IID_NULL, LOCALE_NEUTRAL, flags, &parameters,
                            resultType.kind == automation::Kind::None ? nullptr : result.Get(), &exception,
                            nullptr);
  }();
  if (outcome == DISP_E_EXCEPTION) throw HandlerError(TakeException(exception));
  if (FAILED(outcome))
    throw Error(com::NumberOf(outcome), m_typeName + "." + FromWide(member) + ": the call fails");
  return FromVariant(*result.Get(), resultType);
}

bool IsRegistered(const std::string& className) {
  CLSID identity{};
  if (FAILED(FindClass(className, identity))) return false;
  ComPointer<IClassFactory> factory;
  const HostFloatState state;
  return ::CoGetClassObject(identity, AnyServer, nullptr, IID_IClassFactory,
                            reinterpret_cast<void**>(factory.Receive())) != REGDB_E_CLASSNOTREG;
}

}  // namespace orve::com
