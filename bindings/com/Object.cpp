#include "Object.h"

#include <algorithm>
#include <array>
#include <map>
#include <optional>
#include <span>
#include <string>
#include <vector>

#include "Classes.h"
#include "ComLibrary.h"
#include "Errors.h"
#include "EventSource.h"
#include "Module.h"
#include "Plain.h"
#include "Text.h"
#include "Variants.h"
#include "common/Error.h"

namespace orve::com {

using automation::ArgumentDescription;
using automation::MemberDescription;
using automation::NamedArgument;
using automation::ObjectReference;
using automation::Value;

namespace {

std::map<const void*, Object*>& LivingObjects() {
  static std::map<const void*, Object*> objects;
  return objects;
}

/// The type of an argument of a late-bound call by its number; null if there is no such argument.
const ArgumentDescription* ArgumentAt(const MemberDescription& member, DISPID number) {
  const auto& arguments = member.arguments;
  return number >= 0 && static_cast<std::size_t>(number) < arguments.size()
             ? &arguments[static_cast<std::size_t>(number)]
             : nullptr;
}

/// The arguments of a late-bound call put into the form of the dispatch. COM gives them from the last to the
/// first, the named ones before the others.
struct LateArguments {
  std::vector<Value> positional;
  std::vector<NamedArgument> named;
  std::optional<Value> newValue;

  /// `at` is the place of the argument that is being converted.
  LateArguments(const ObjectReference& object, const MemberDescription& member, const DISPPARAMS& parameters,
                UINT& at) {
    const auto convert = [&](UINT place, const automation::Type& type, std::string_view name) {
      at = place;
      try {
        return FromVariant(parameters.rgvarg[place], type);
      } catch (const Error& error) {
        throw Error(error.Number(), std::string(object.type->name) + "." + std::string(member.name) + ", " +
                                        std::string(name) + ": " + error.what());
      }
    };
    for (UINT i = 0; i < parameters.cNamedArgs; ++i) {
      const DISPID number = parameters.rgdispidNamedArgs[i];
      if (number == DISPID_PROPERTYPUT) {
        newValue = convert(i, member.type, "value");
        continue;
      }
      const ArgumentDescription* argument = ArgumentAt(member, number);
      if (argument == nullptr)
        throw Error(static_cast<int>(automation::DispatchError::NamedArgumentNotFound),
                    std::string(member.name) + " has no argument of number " + std::to_string(number));
      named.push_back({argument->name, convert(i, argument->type, argument->name)});
    }
    for (UINT i = parameters.cArgs; i > parameters.cNamedArgs; --i) {
      const ArgumentDescription* argument = ArgumentAt(member, static_cast<DISPID>(positional.size()));
      // One too many is told by the dispatch, whatever it holds.
      positional.push_back(argument == nullptr ? Value() : convert(i - 1, argument->type, argument->name));
    }
    at = 0;
  }
};

}  // namespace

Object::Object(const ObjectReference& reference) : m_reference(reference) {
  LivingObjects()[reference.object.get()] = this;
  CountModule(1);
}

Object::~Object() {
  LivingObjects().erase(m_reference.object.get());
  CountModule(-1);
}

ULONG Object::Count(int change) {
  return m_count += static_cast<ULONG>(change);
}

IUnknown* Object::FurtherInterface(REFIID identity) {
  const automation::ClassDescription& library = automation::DescribeComLibrary();
  if (m_reference.type != automation::Classes().front() || identity != ToGuid(library.identity.interfaceGuid))
    return nullptr;
  if (!m_library) {
    m_library.reset(New_clsLibrary({library.create(), &library}));
    m_library->m_whole = Dispatch();
  }
  return m_library->Dispatch();
}

GUID Object::InterfaceIdentity() const {
  return ToGuid(m_reference.type->identity.interfaceGuid);
}

IConnectionPointContainer* Object::Events() {
  if (m_reference.type->events.empty()) return nullptr;
  if (!m_events) m_events = std::make_unique<EventSource>(*this);
  return m_events->Container();
}

HRESULT Object::Get(int number, std::initializer_list<const void*> arguments, void* result) {
  const MemberDescription& member = *m_reference.type->Find(number);
  const bool hasResult = member.type.kind != automation::Kind::None;
  if (hasResult && result == nullptr) return E_POINTER;
  const ComPointer<IDispatch> keep(Dispatch());
  if (hasResult) ClearPlain(member.type, result);
  return Guarded(InterfaceIdentity(), [&] {
    std::vector<Value> values;
    for (const void* argument : arguments) {
      if (argument == nullptr) RaiseIfFailed(E_INVALIDARG);
      values.push_back(ReadPlain(member.arguments[values.size()].type, argument));
    }
    const Value value = automation::Invoke(m_reference, member, values);
    if (hasResult) WritePlain(member.type, value, result);
  });
}

HRESULT Object::Put(int number, std::initializer_list<const void*> arguments, const void* value) {
  const MemberDescription& member = *m_reference.type->Find(number);
  const ComPointer<IDispatch> keep(Dispatch());
  return Guarded(InterfaceIdentity(), [&] {
    if (value == nullptr) RaiseIfFailed(E_INVALIDARG);
    std::vector<Value> values;
    for (const void* argument : arguments)
      values.push_back(ReadPlain(member.arguments[values.size()].type, argument));
    automation::Assign(m_reference, member, values, ReadPlain(member.type, value));
  });
}

HRESULT Object::TypeInfoOfInterface(UINT index, ITypeInfo** information) {
  if (information == nullptr) return E_POINTER;
  *information = nullptr;
  if (index != 0) return DISP_E_BADINDEX;
  return Guarded(IID_IDispatch, [&] {
    *information = TypeInformation(InterfaceIdentity());
    (*information)->AddRef();
  });
}

HRESULT Object::TypeInfoOfClass(ITypeInfo** information) {
  if (information == nullptr) return E_POINTER;
  *information = nullptr;
  return Guarded(IID_IProvideClassInfo, [&] {
    *information = TypeInformation(ToGuid(m_reference.type->identity.classGuid));
    (*information)->AddRef();
  });
}

HRESULT Object::EventsIdentity(DWORD kind, GUID* identity) {
  if (identity == nullptr) return E_POINTER;
  *identity = GUID{};
  if (kind != GUIDKIND_DEFAULT_SOURCE_DISP_IID || m_reference.type->events.empty()) return E_INVALIDARG;
  *identity = ToGuid(m_reference.type->identity.eventsGuid);
  return S_OK;
}

HRESULT Object::NumbersOfNames(LPOLESTR* names, UINT count, DISPID* numbers) {
  if (names == nullptr || numbers == nullptr) return E_POINTER;
  std::fill_n(numbers, count, DISPID_UNKNOWN);
  if (count == 0) return S_OK;
  const MemberDescription* member = m_reference.type->Find(FromWide(names[0]));
  if (member == nullptr) return DISP_E_UNKNOWNNAME;
  numbers[0] = member->number;
  HRESULT result = S_OK;
  for (UINT i = 1; i < count; ++i) {
    const std::string name = FromWide(names[i]);
    const auto found = std::find_if(
        member->arguments.begin(), member->arguments.end(),
        [&name](const ArgumentDescription& argument) { return automation::SameName(argument.name, name); });
    if (found == member->arguments.end())
      result = DISP_E_UNKNOWNNAME;
    else
      numbers[i] = static_cast<DISPID>(found - member->arguments.begin());
  }
  return result;
}

HRESULT Object::InvokeByNumber(DISPID number, REFIID identity, WORD flags, DISPPARAMS* parameters,
                               VARIANT* result, EXCEPINFO* exception, UINT* wrongArgument) {
  const LibraryFloatState state;
  if (identity != IID_NULL) return DISP_E_UNKNOWNINTERFACE;
  if (parameters == nullptr) return E_POINTER;
  if (result != nullptr) ::VariantInit(result);
  UINT unwanted = 0;
  UINT& wrong = wrongArgument != nullptr ? *wrongArgument : unwanted;
  wrong = 0;
  const MemberDescription* member = m_reference.type->Find(static_cast<int>(number));
  if (member == nullptr) return DISP_E_MEMBERNOTFOUND;
  const ComPointer<IDispatch> keep(Dispatch());
  try {
    return CallByNumber(*member, flags, *parameters, result, wrong);
  } catch (...) {
    if (exception != nullptr) FillException(*exception, CurrentFailure());
    return DISP_E_EXCEPTION;
  }
}

HRESULT Object::CallByNumber(const MemberDescription& member, WORD flags, const DISPPARAMS& parameters,
                             VARIANT* result, UINT& wrongArgument) {
  const LateArguments arguments(m_reference, member, parameters, wrongArgument);
  if ((flags & (DISPATCH_PROPERTYPUT | DISPATCH_PROPERTYPUTREF)) != 0) {
    if (!arguments.newValue) return DISP_E_PARAMNOTOPTIONAL;
    automation::Assign(m_reference, member, arguments.positional, *arguments.newValue, arguments.named);
    return S_OK;
  }
  if ((flags & (DISPATCH_METHOD | DISPATCH_PROPERTYGET)) == 0) return DISP_E_MEMBERNOTFOUND;
  const Value value = automation::Invoke(m_reference, member, arguments.positional, arguments.named);
  if (result != nullptr) ToVariant(value, member.type, *result);
  return S_OK;
}

ComPointer<IDispatch> Wrap(const ObjectReference& reference) {
  if (!reference.object) return {};
  const auto living = LivingObjects().find(reference.object.get());
  if (living != LivingObjects().end()) return ComPointer<IDispatch>(living->second->Dispatch());
  for (const ClassMaker& maker : ClassMakers) {
    if (maker.name != reference.type->name) continue;
    ComPointer<IDispatch> made;
    *made.Receive() = maker.make(reference)->Dispatch();
    return made;
  }
  throw std::logic_error(std::string(reference.type->name) + " has no COM class");
}

ObjectReference ReferenceOf(IDispatch* object) {
  if (object == nullptr) return {};
  Object* own = nullptr;
  const HostFloatState state;
  if (FAILED(object->QueryInterface(ObjectIdentity, reinterpret_cast<void**>(&own))))
    throw Error(ErrorNumber::TypeMismatch, "Type mismatch: an object of this library is wanted");
  return own->Reference();
}

}  // namespace orve::com
