#include "Variants.h"

#include <limits>

#include "Errors.h"
#include "Object.h"
#include "Plain.h"
#include "Text.h"
#include "common/DateText.h"
#include "common/Error.h"

namespace orve::com {

using automation::Kind;
using automation::RecordDescription;
using automation::RecordValue;
using automation::Type;
using automation::Value;

namespace {

constexpr int InvalidUseOfNull = 94;

[[noreturn]] void RaiseMismatch() {
  throw Error(ErrorNumber::TypeMismatch, "Type mismatch: a value of this kind can't be taken");
}

/// What an empty VARIANT stands for.
Value EmptyOf(const Type& type) {
  switch (type.kind) {
    case Kind::Text:
      return "";
    case Kind::Object:
      return automation::ObjectReference{};
    case Kind::Record:
    case Kind::RecordArray:
      RaiseMismatch();
    default:
      return std::int32_t{0};
  }
}

template <class Whole>
Value WholeNumber(Whole value) {
  if (value >= std::numeric_limits<std::int32_t>::min() && value <= std::numeric_limits<std::int32_t>::max())
    return static_cast<std::int32_t>(value);
  return static_cast<double>(value);
}

Value DecimalNumber(const VARIANT& variant) {
  double number = 0;
  RaiseIfFailed(::VarR8FromDec(const_cast<DECIMAL*>(&V_DECIMAL(&variant)), &number));
  return number;
}

Value CurrencyNumber(const VARIANT& variant) {
  constexpr double scale = 10000;
  return static_cast<double>(V_CY(&variant).int64) / scale;
}

/// The fields of a record from an array of VARIANT.
Value RecordFromArray(const VARIANT& variant, const Type& type) {
  const RecordDescription& record = *automation::FindRecord(type.name);
  SAFEARRAY* array = V_ARRAY(&variant);
  LONG low = 0;
  LONG high = -1;
  if (::SafeArrayGetDim(array) != 1) RaiseMismatch();
  RaiseIfFailed(::SafeArrayGetLBound(array, 1, &low));
  RaiseIfFailed(::SafeArrayGetUBound(array, 1, &high));
  if (static_cast<std::size_t>(high - low + 1) != record.fields.size()) RaiseMismatch();
  RecordValue value{&record, {}};
  for (LONG i = low; i <= high; ++i) {
    Variant element;
    RaiseIfFailed(::SafeArrayGetElement(array, &i, element.Get()));
    value.fields.push_back(
        FromVariant(*element.Get(), record.fields[static_cast<std::size_t>(i - low)].type));
  }
  return value;
}

/// A property of an object of the host, by name. Errors: 13 if there is none.
void ReadProperty(IDispatch* object, const std::wstring& name, VARIANT* result) {
  const HostFloatState state;
  auto* asked = const_cast<wchar_t*>(name.c_str());
  DISPID number = DISPID_UNKNOWN;
  DISPPARAMS none{};
  if (FAILED(object->GetIDsOfNames(IID_NULL, &asked, 1, LOCALE_NEUTRAL, &number)) ||
      FAILED(object->Invoke(number, IID_NULL, LOCALE_NEUTRAL, DISPATCH_PROPERTYGET, &none, result, nullptr,
                            nullptr)))
    RaiseMismatch();
}

/// The fields of a record from an array of JScript: an object with a length and the elements by their
/// positions.
Value RecordFromScript(IUnknown* array, const Type& type) {
  const RecordDescription& record = *automation::FindRecord(type.name);
  ComPointer<IDispatch> object;
  if (array == nullptr ||
      FAILED(array->QueryInterface(IID_IDispatch, reinterpret_cast<void**>(object.Receive()))))
    RaiseMismatch();
  Variant length;
  ReadProperty(object.Get(), L"length", length.Get());
  if (V_VT(length.Get()) != VT_I4 || static_cast<std::size_t>(V_I4(length.Get())) != record.fields.size())
    RaiseMismatch();
  RecordValue value{&record, {}};
  for (const automation::FieldDescription& field : record.fields) {
    Variant element;
    ReadProperty(object.Get(), std::to_wstring(value.fields.size()), element.Get());
    value.fields.push_back(FromVariant(*element.Get(), field.type));
  }
  return value;
}

Value RecordFromVariant(const VARIANT& variant) {
  const RecordDescription* record = RecordOf(V_RECORDINFO(&variant));
  if (record == nullptr || V_RECORD(&variant) == nullptr) RaiseMismatch();
  return ReadPlain({Kind::Record, record->name}, V_RECORD(&variant));
}

Value ObjectFromVariant(IUnknown* object) {
  ComPointer<IDispatch> dispatch;
  const HostFloatState state;
  if (object != nullptr &&
      FAILED(object->QueryInterface(IID_IDispatch, reinterpret_cast<void**>(dispatch.Receive()))))
    RaiseMismatch();
  return ReferenceOf(dispatch.Get());
}

Value FromDirectVariant(const VARIANT& variant, const Type& type) {
  switch (V_VT(&variant)) {
    case VT_EMPTY:
      return EmptyOf(type);
    case VT_NULL:
      throw Error(InvalidUseOfNull, "Invalid use of Null");
    case VT_ERROR:
      if (V_ERROR(&variant) == DISP_E_PARAMNOTFOUND) return {};
      RaiseMismatch();
    case VT_BOOL:
      return V_BOOL(&variant) != VARIANT_FALSE;
    case VT_I1:
      return std::int32_t{static_cast<signed char>(V_I1(&variant))};
    case VT_UI1:
      return std::int32_t{V_UI1(&variant)};
    case VT_I2:
      return std::int32_t{V_I2(&variant)};
    case VT_UI2:
      return std::int32_t{V_UI2(&variant)};
    case VT_I4:
    case VT_INT:
      return std::int32_t{V_I4(&variant)};
    case VT_UI4:
    case VT_UINT:
      return WholeNumber(static_cast<long long>(V_UI4(&variant)));
    case VT_I8:
      return WholeNumber(V_I8(&variant));
    case VT_UI8:
      return static_cast<double>(V_UI8(&variant));
    case VT_R4:
      return V_R4(&variant);
    case VT_R8:
      return V_R8(&variant);
    case VT_DATE:
      if (type.kind == Kind::Text) return DateText(V_DATE(&variant));
      return V_DATE(&variant);
    case VT_CY:
      return CurrencyNumber(variant);
    case VT_DECIMAL:
      return DecimalNumber(variant);
    case VT_BSTR:
      return FromText(V_BSTR(&variant));
    case VT_DISPATCH:
    case VT_UNKNOWN:
      if (type.kind == Kind::Record) return RecordFromScript(V_UNKNOWN(&variant), type);
      return ObjectFromVariant(V_UNKNOWN(&variant));
    case VT_RECORD:
      return RecordFromVariant(variant);
    case VT_ARRAY | VT_VARIANT:
      if (type.kind == Kind::Record) return RecordFromArray(variant, type);
      RaiseMismatch();
    default:
      RaiseMismatch();
  }
}

void ToRecordVariant(const Value& value, const Type& type, VARIANT& variant) {
  IRecordInfo* information = RecordInformation(*automation::FindRecord(type.name));
  void* record = information->RecordCreate();
  if (record == nullptr) throw std::bad_alloc();
  WritePlain(type, value, record);
  information->AddRef();
  V_RECORD(&variant) = record;
  V_RECORDINFO(&variant) = information;
}

}  // namespace

void ToVariant(const Value& value, const Type& type, VARIANT& variant) {
  ::VariantInit(&variant);
  if (type.kind == Kind::Record)
    ToRecordVariant(value, type, variant);
  else
    WritePlain(type, value, &V_R8(&variant));
  V_VT(&variant) = VariantTypeOf(type);
}

Value FromVariant(const VARIANT& variant, const Type& type) {
  if (V_VT(&variant) == (VT_BYREF | VT_RECORD)) return RecordFromVariant(variant);
  if ((V_VT(&variant) & VT_BYREF) == 0) return FromDirectVariant(variant, type);
  Variant direct;
  RaiseIfFailed(::VariantCopyInd(direct.Get(), const_cast<VARIANT*>(&variant)));
  return FromDirectVariant(*direct.Get(), type);
}

}  // namespace orve::com
