#include "Plain.h"

#include <algorithm>
#include <cstring>
#include <map>

#include "Errors.h"
#include "Module.h"
#include "Object.h"
#include "Text.h"

namespace orve::com {

using automation::Kind;
using automation::ObjectReference;
using automation::RecordDescription;
using automation::RecordValue;
using automation::Type;
using automation::Value;

namespace {

// A record's description released early takes the layouts of living records with it.
std::map<const RecordDescription*, IRecordInfo*>& KeptRecords() {
  static std::map<const RecordDescription*, IRecordInfo*> kept;
  return kept;
}

template <class Plain>
Plain Load(const void* address) {
  Plain plain;
  std::memcpy(&plain, address, sizeof plain);
  return plain;
}

template <class Plain>
void Store(void* address, Plain plain) {
  std::memcpy(address, &plain, sizeof plain);
}

struct Extent {
  std::size_t size;
  std::size_t alignment;
};

std::size_t Aligned(std::size_t offset, std::size_t alignment) {
  return (offset + alignment - 1) / alignment * alignment;
}

Extent ExtentOf(const RecordDescription& record);

/// Size and alignment of a field; records hold numbers, texts and other records.
Extent ExtentOf(const Type& type) {
  switch (type.kind) {
    case Kind::Record:
      return ExtentOf(*automation::FindRecord(type.name));
    case Kind::Text:
      return {sizeof(BSTR), alignof(BSTR)};
    case Kind::Date:
      return {sizeof(DATE), alignof(DATE)};
    case Kind::Bool:
    case Kind::Int16:
      return {sizeof(SHORT), alignof(SHORT)};
    default:
      return {sizeof(LONG), alignof(LONG)};
  }
}

/// Calls `visit(field, offset)` for each field in order. The record's extent.
template <class Visit>
Extent WalkFields(const RecordDescription& record, Visit visit) {
  Extent whole{0, 1};
  for (std::size_t i = 0; i < record.fields.size(); ++i) {
    const Extent field = ExtentOf(record.fields[i].type);
    const std::size_t offset = Aligned(whole.size, field.alignment);
    visit(i, offset);
    whole = {offset + field.size, std::max(whole.alignment, field.alignment)};
  }
  whole.size = Aligned(whole.size, whole.alignment);
  return whole;
}

Extent ExtentOf(const RecordDescription& record) {
  return WalkFields(record, [](std::size_t, std::size_t) {});
}

Value ReadRecordAt(const RecordDescription& record, const void* address) {
  RecordValue value{&record, {}};
  WalkFields(record, [&](std::size_t i, std::size_t offset) {
    value.fields.push_back(ReadPlain(record.fields[i].type, static_cast<const char*>(address) + offset));
  });
  return value;
}

void WriteRecordAt(const RecordDescription& record, const RecordValue& value, void* address) {
  WalkFields(record, [&](std::size_t i, std::size_t offset) {
    WritePlain(record.fields[i].type, value.fields[i], static_cast<char*>(address) + offset);
  });
}

SAFEARRAY* NewRecordArray(const RecordDescription& record, const std::vector<Value>& rows) {
  IRecordInfo* information = RecordInformation(record);
  SAFEARRAYBOUND bound{static_cast<ULONG>(rows.size()), 0};
  SAFEARRAY* array = ::SafeArrayCreateEx(VT_RECORD, 1, &bound, information);
  if (array == nullptr) throw std::bad_alloc();
  char* data = nullptr;
  HRESULT result = ::SafeArrayAccessData(array, reinterpret_cast<void**>(&data));
  ULONG size = 0;
  if (SUCCEEDED(result)) result = information->GetSize(&size);
  if (FAILED(result)) ::SafeArrayDestroy(array);
  RaiseIfFailed(result);
  for (const Value& row : rows) {
    WriteRecordAt(record, *row.As<RecordValue>(), data);
    data += size;
  }
  ::SafeArrayUnaccessData(array);
  return array;
}

}  // namespace

VARTYPE VariantTypeOf(const Type& type) {
  switch (type.kind) {
    case Kind::None:
      return VT_EMPTY;
    case Kind::Bool:
      return VT_BOOL;
    case Kind::Int16:
      return VT_I2;
    case Kind::Int32:
    case Kind::Enumeration:
      return VT_I4;
    case Kind::Single:
      return VT_R4;
    case Kind::Date:
      return VT_DATE;
    case Kind::Text:
      return VT_BSTR;
    case Kind::Object:
      return VT_DISPATCH;
    case Kind::Record:
      return VT_RECORD;
    case Kind::RecordArray:
      return VT_ARRAY | VT_RECORD;
  }
  return VT_EMPTY;
}

Value ReadPlain(const Type& type, const void* address) {
  switch (type.kind) {
    case Kind::Bool:
      return Load<VARIANT_BOOL>(address) != VARIANT_FALSE;
    case Kind::Int16:
      return std::int32_t{Load<SHORT>(address)};
    case Kind::Int32:
    case Kind::Enumeration:
      return std::int32_t{Load<LONG>(address)};
    case Kind::Single:
      return Load<FLOAT>(address);
    case Kind::Date:
      return Load<DATE>(address);
    case Kind::Text:
      return FromText(Load<BSTR>(address));
    case Kind::Object:
      return ReferenceOf(Load<IDispatch*>(address));
    case Kind::Record:
      return ReadRecordAt(*automation::FindRecord(type.name), address);
    case Kind::None:
    case Kind::RecordArray:
      break;
  }
  return {};
}

void WritePlain(const Type& type, const Value& value, void* address) {
  switch (type.kind) {
    case Kind::Bool:
      return Store<VARIANT_BOOL>(address, *value.As<bool>() ? VARIANT_TRUE : VARIANT_FALSE);
    case Kind::Int16:
      return Store(address, static_cast<SHORT>(*value.As<std::int32_t>()));
    case Kind::Int32:
    case Kind::Enumeration:
      return Store<LONG>(address, *value.As<std::int32_t>());
    case Kind::Single:
      return Store<FLOAT>(address, *value.As<float>());
    case Kind::Date:
      return Store<DATE>(address, *value.As<double>());
    case Kind::Text:
      return Store(address, NewText(*value.As<std::string>()));
    case Kind::Object:
      return Store(address, Wrap(*value.As<ObjectReference>()).Detach());
    case Kind::Record:
      return WriteRecordAt(*automation::FindRecord(type.name), *value.As<RecordValue>(), address);
    case Kind::RecordArray:
      return Store(address,
                   NewRecordArray(*automation::FindRecord(type.name), *value.As<std::vector<Value>>()));
    case Kind::None:
      break;
  }
}

void ClearPlain(const Type& type, void* address) {
  if (type.kind == Kind::RecordArray || type.kind == Kind::Object)
    Store<void*>(address, nullptr);
  else if (type.kind != Kind::None)
    std::memset(address, 0, ExtentOf(type).size);
}

IRecordInfo* RecordInformation(const RecordDescription& record) {
  IRecordInfo*& information = KeptRecords()[&record];
  if (information != nullptr) return information;
  ComPointer<IRecordInfo> made;
  RaiseIfFailed(::GetRecordInfoFromTypeInfo(TypeInformation(ToGuid(record.guid)), made.Receive()));
  ULONG size = 0;
  RaiseIfFailed(made->GetSize(&size));
  if (size != ExtentOf(record).size)
    throw std::logic_error(std::string(record.name) + ": the type library has another layout");
  return information = made.Detach();
}

void ForgetRecordInformation() {
  for (const auto& [record, information] : KeptRecords())
    if (information != nullptr) information->Release();
  KeptRecords().clear();
}

const RecordDescription* RecordOf(IRecordInfo* information) {
  GUID guid{};
  if (information == nullptr || FAILED(information->GetGuid(&guid))) return nullptr;
  for (const RecordDescription& record : automation::Records())
    if (ToGuid(record.guid) == guid) return &record;
  return nullptr;
}

}  // namespace orve::com
