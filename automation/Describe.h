// Builds descriptions from member pointers, so that types and results come from the code itself. Only the
// descriptions of the classes include this.
#pragma once

#include <bit>
#include <stdexcept>
#include <type_traits>
#include <utility>

#include "Description.h"
#include "core/Enumerations.h"
#include "core/Records.h"

namespace orve::automation {

/// An argument as a description writes it: a name, and a default for an optional one.
struct ArgumentName {
  std::string_view name;
  std::optional<Value> defaultValue;
  bool byReference = false;
};
using ArgumentNames = std::vector<ArgumentName>;

/// What a row says in words: as the fields of `MemberDescription`.
struct MemberText {
  std::string_view unit;
  std::string_view help;
  std::string_view range = {};
  std::string_view errors = {};
  std::string_view clause = {};
};

template <class Cpp>
struct TypeOf;

#define ORVE_TYPE(Cpp, kind, typeName)                                  \
  template <>                                                           \
  struct TypeOf<Cpp> {                                                  \
    static constexpr Type type{Kind::kind, std::string_view(typeName)}; \
  };
ORVE_TYPE(void, None, "")
ORVE_TYPE(bool, Bool, "")
ORVE_TYPE(std::int16_t, Int16, "")
ORVE_TYPE(std::int32_t, Int32, "")
ORVE_TYPE(float, Single, "")
ORVE_TYPE(double, Date, "")
ORVE_TYPE(std::string, Text, "")
#define ORVE_ENUMERATION_TYPE(Name) ORVE_TYPE(orve::Name, Enumeration, #Name)
ORVE_ENUMERATION_TYPE(BuildingAreas)
ORVE_ENUMERATION_TYPE(Faces)
ORVE_ENUMERATION_TYPE(ResultsScreens)
ORVE_ENUMERATION_TYPE(ParentTypes)
ORVE_ENUMERATION_TYPE(WindSectors)
ORVE_ENUMERATION_TYPE(RoofTypes)
ORVE_ENUMERATION_TYPE(FrameTypes)
ORVE_ENUMERATION_TYPE(GableFaces)
ORVE_ENUMERATION_TYPE(LifeTime)
ORVE_ENUMERATION_TYPE(Durations)
ORVE_ENUMERATION_TYPE(Methods)
ORVE_ENUMERATION_TYPE(SaBasedOnTypes)
ORVE_ENUMERATION_TYPE(Months)
ORVE_ENUMERATION_TYPE(WindAreas)
ORVE_ENUMERATION_TYPE(Bays)
ORVE_ENUMERATION_TYPE(WallZones)
ORVE_ENUMERATION_TYPE(StructureTypes)
ORVE_ENUMERATION_TYPE(WindPressureTypes)
ORVE_ENUMERATION_TYPE(SelectedLoadTypes)
#define ORVE_RECORD_TYPE(Name)         \
  ORVE_TYPE(orve::Name, Record, #Name) \
  ORVE_TYPE(std::vector<orve::Name>, RecordArray, #Name)
ORVE_RECORD_TYPE(ZoneDimensionsXY)
ORVE_RECORD_TYPE(CantileverZones)
ORVE_RECORD_TYPE(CantileverResults)
ORVE_RECORD_TYPE(CantileverZone)
ORVE_RECORD_TYPE(ExternalPressure)
#undef ORVE_RECORD_TYPE
#undef ORVE_ENUMERATION_TYPE

/// Makes a class known as an object type; used once for each class, where an object property needs it.
#define ORVE_OBJECT_TYPE(Name) ORVE_TYPE(std::shared_ptr<orve::Name>, Object, #Name)

template <class Pointer>
ErasedPointer Erase(Pointer pointer) {
  static_assert(sizeof(Pointer) <= sizeof(ErasedPointer));
  ErasedPointer erased{};
  const auto bytes = std::bit_cast<std::array<std::byte, sizeof(Pointer)>>(pointer);
  std::copy(bytes.begin(), bytes.end(), erased.begin());
  return erased;
}

template <class Pointer>
Pointer Restore(const ErasedPointer& erased) {
  std::array<std::byte, sizeof(Pointer)> bytes;
  std::copy_n(erased.begin(), sizeof(Pointer), bytes.begin());
  return std::bit_cast<Pointer>(bytes);
}

/// A C++ result as a value.
template <class Cpp>
Value Pack(Cpp&& result) {
  using Plain = std::remove_cvref_t<Cpp>;
  constexpr Type type = TypeOf<Plain>::type;
  if constexpr (type.kind == Kind::Enumeration || type.kind == Kind::Int16) {
    return static_cast<std::int32_t>(result);
  } else if constexpr (type.kind == Kind::Object) {
    return ObjectReference{result, FindClass(type.name)};
  } else if constexpr (type.kind == Kind::Record) {
    return ReadRecord(*FindRecord(type.name), &result);
  } else if constexpr (type.kind == Kind::RecordArray) {
    std::vector<Value> rows;
    for (const auto& row : result) rows.push_back(ReadRecord(*FindRecord(type.name), &row));
    return rows;
  } else {
    return Value(std::forward<Cpp>(result));
  }
}

/// A coerced value as the C++ argument that it stands for.
template <class Cpp>
decltype(auto) Unpack(const Value& value) {
  constexpr Type type = TypeOf<Cpp>::type;
  if constexpr (type.kind == Kind::Enumeration || type.kind == Kind::Int16) {
    return static_cast<Cpp>(*value.As<std::int32_t>());
  } else if constexpr (type.kind == Kind::Object) {
    return std::static_pointer_cast<typename Cpp::element_type>(value.As<ObjectReference>()->object);
  } else if constexpr (type.kind == Kind::Record) {
    Cpp record;
    WriteRecord(*FindRecord(type.name), &record, value);
    return record;
  } else {
    return (*value.As<Cpp>());
  }
}

template <class Pointer, class Class, class Result, class... Arguments>
Value RunMember(const ErasedPointer& member, void* object, [[maybe_unused]] const Value* const* arguments) {
  const auto function = Restore<Pointer>(member);
  auto& self = *static_cast<Class*>(object);
  return [&]<std::size_t... Index>(std::index_sequence<Index...>)->Value {
    if constexpr (std::is_void_v<Result>) {
      (self.*function)(Unpack<std::remove_cvref_t<Arguments>>(*arguments[Index])...);
      return {};
    } else {
      return Pack((self.*function)(Unpack<std::remove_cvref_t<Arguments>>(*arguments[Index])...));
    }
  }
  (std::index_sequence_for<Arguments...>{});
}

template <class Class, class Result, class... Arguments>
Call CallOf(Result (Class::*function)(Arguments...)) {
  return {&RunMember<decltype(function), Class, Result, Arguments...>, Erase(function)};
}
template <class Class, class Result, class... Arguments>
Call CallOf(Result (Class::*function)(Arguments...) const) {
  return {&RunMember<decltype(function), Class, Result, Arguments...>, Erase(function)};
}

/// Collects the members and events of one class. A property's get and let bear the same name; the overloads
/// pick the pair with the same index arguments, by their number.
template <class Class>
class ClassDescriber {
 public:
  ClassDescriber(std::string_view name, std::string_view help, ClassIdentity identity) {
    m_class.name = name;
    m_class.help = help;
    m_class.identity = identity;
  }

  void CreatedBy(std::shared_ptr<void> (*create)()) { m_class.create = create; }

  template <class R, class V>
  requires(!std::is_void_v<R>) void Property(int number, std::string_view name, R (Class::*get)() const,
                                             void (Class::*let)(V), const ArgumentNames& names,
                                             const MemberText& text) {
    AddProperty<R, V>(number, name, CallOf(get), CallOf(let), names, {}, text);
  }
  template <class R, class V, class A>
  requires(!std::is_void_v<R>) void Property(int number, std::string_view name, R (Class::*get)(A),
                                             void (Class::*let)(A, V), const ArgumentNames& names,
                                             const MemberText& text) {
    AddProperty<R, V>(number, name, CallOf(get), CallOf(let), names, {TypeOf<A>::type}, text);
  }
  template <class R, class V, class A>
  requires(!std::is_void_v<R>) void Property(int number, std::string_view name, R (Class::*get)(A) const,
                                             void (Class::*let)(A, V), const ArgumentNames& names,
                                             const MemberText& text) {
    AddProperty<R, V>(number, name, CallOf(get), CallOf(let), names, {TypeOf<A>::type}, text);
  }
  template <class R, class V, class A, class B>
  requires(!std::is_void_v<R>) void Property(int number, std::string_view name, R (Class::*get)(A, B),
                                             void (Class::*let)(A, B, V), const ArgumentNames& names,
                                             const MemberText& text) {
    AddProperty<R, V>(number, name, CallOf(get), CallOf(let), names, {TypeOf<A>::type, TypeOf<B>::type},
                      text);
  }
  template <class R, class V, class A, class B>
  requires(!std::is_void_v<R>) void Property(int number, std::string_view name, R (Class::*get)(A, B) const,
                                             void (Class::*let)(A, B, V), const ArgumentNames& names,
                                             const MemberText& text) {
    AddProperty<R, V>(number, name, CallOf(get), CallOf(let), names, {TypeOf<A>::type, TypeOf<B>::type},
                      text);
  }
  template <class R, class V, class A, class B, class D>
  requires(!std::is_void_v<R>) void Property(int number, std::string_view name, R (Class::*get)(A, B, D),
                                             void (Class::*let)(A, B, D, V), const ArgumentNames& names,
                                             const MemberText& text) {
    AddProperty<R, V>(number, name, CallOf(get), CallOf(let), names,
                      {TypeOf<A>::type, TypeOf<B>::type, TypeOf<D>::type}, text);
  }

  template <class R, class... A>
  void ReadOnly(int number, std::string_view name, R (Class::*get)(A...), const ArgumentNames& names,
                const MemberText& text) {
    AddMember<R>(number, name, false, CallOf(get), names, {TypeOf<std::remove_cvref_t<A>>::type...}, text);
  }
  template <class R, class... A>
  void ReadOnly(int number, std::string_view name, R (Class::*get)(A...) const, const ArgumentNames& names,
                const MemberText& text) {
    AddMember<R>(number, name, false, CallOf(get), names, {TypeOf<std::remove_cvref_t<A>>::type...}, text);
  }
  template <class R, class... A>
  void Method(int number, std::string_view name, R (Class::*call)(A...), const ArgumentNames& names,
              const MemberText& text) {
    AddMember<R>(number, name, true, CallOf(call), names, {TypeOf<std::remove_cvref_t<A>>::type...}, text);
  }
  template <class R, class... A>
  void Method(int number, std::string_view name, R (Class::*call)(A...) const, const ArgumentNames& names,
              const MemberText& text) {
    AddMember<R>(number, name, true, CallOf(call), names, {TypeOf<std::remove_cvref_t<A>>::type...}, text);
  }

  template <class... A>
  void Event(int number, std::string_view name, orve::Event<A...> Class::*event, const ArgumentNames& names,
             std::string_view help) {
    EventDescription description;
    description.number = number;
    description.name = name;
    description.arguments = Arguments(name, names, {TypeOf<std::remove_cvref_t<A>>::type...});
    description.help = help;
    description.member = Erase(event);
    description.connect = [](const ErasedPointer& member, void* object, EventHandler handler) {
      const auto pointer = Restore<orve::Event<A...> Class::*>(member);
      return (static_cast<Class*>(object)->*pointer).Connect([handler = std::move(handler)](A... arguments) {
        const std::vector<Value> values{Pack(arguments)...};
        handler(values);
      });
    };
    m_class.events.push_back(std::move(description));
  }

  /// The finished description.
  ClassDescription Finish();

 private:
  template <class R, class V>
  void AddProperty(int number, std::string_view name, Call get, Call let, const ArgumentNames& names,
                   const std::vector<Type>& types, const MemberText& text) {
    static_assert(std::is_same_v<std::remove_cvref_t<R>, std::remove_cvref_t<V>>);
    AddMember<R>(number, name, false, get, names, types, text).let = let;
  }
  template <class R>
  MemberDescription& AddMember(int number, std::string_view name, bool isMethod, Call get,
                               const ArgumentNames& names, const std::vector<Type>& types,
                               const MemberText& text) {
    return m_class.members.emplace_back(MemberDescription{number,
                                                          name,
                                                          isMethod,
                                                          Arguments(name, names, types),
                                                          TypeOf<std::remove_cvref_t<R>>::type,
                                                          text.unit,
                                                          text.help,
                                                          text.range,
                                                          text.errors,
                                                          text.clause,
                                                          get,
                                                          {}});
  }
  static std::vector<ArgumentDescription> Arguments(std::string_view member, const ArgumentNames& names,
                                                    const std::vector<Type>& types);

  ClassDescription m_class;
};

/// Names and types of the arguments put together. A number of names that isn't that of the types, a default
/// that doesn't convert or an optional argument before one that isn't is a mistake of the description.
std::vector<ArgumentDescription> DescribeArguments(std::string_view member, const ArgumentNames& names,
                                                   const std::vector<Type>& types);
/// Sorts the names in.
void IndexMembers(ClassDescription& description);

template <class Class>
std::vector<ArgumentDescription> ClassDescriber<Class>::Arguments(std::string_view member,
                                                                  const ArgumentNames& names,
                                                                  const std::vector<Type>& types) {
  return DescribeArguments(member, names, types);
}

template <class Class>
ClassDescription ClassDescriber<Class>::Finish() {
  IndexMembers(m_class);
  return std::move(m_class);
}

// One member of the class `Class`, described by the `describe` at hand; the name is written once. After the
// help come range, errors and clause, as far as there are any.
#define ORVE_PROPERTY(number, Name, arguments, unit, ...) \
  describe.Property(number, #Name, &Class::Name, &Class::Name, arguments, {unit, __VA_ARGS__})
#define ORVE_READ_ONLY(number, Name, arguments, unit, ...) \
  describe.ReadOnly(number, #Name, &Class::Name, arguments, {unit, __VA_ARGS__})
#define ORVE_METHOD(number, Name, arguments, unit, ...) \
  describe.Method(number, #Name, &Class::Name, arguments, {unit, __VA_ARGS__})
#define ORVE_EVENT(number, Name, arguments, help) describe.Event(number, #Name, &Class::Name, arguments, help)

// The descriptions of the classes, each in a source of its own.
const ClassDescription& DescribeCurrentCase();
const ClassDescription& DescribeBuildingDimensions();
const ClassDescription& DescribeDynamicPressure();
const ClassDescription& DescribeExternalCoefficients();
const ClassDescription& DescribeInternalCoefficients();
const ClassDescription& DescribeOverallAppliedLoads();
const ClassDescription& DescribeCantileverWindLoads();
const ClassDescription& DescribeWindCaseList();

}  // namespace orve::automation
