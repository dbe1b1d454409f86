// The object model as data: enumerations, records and classes with their members and events.
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <functional>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "Value.h"
#include "common/Event.h"

namespace orve::automation {

/// A member pointer without its type; the function kept beside it knows the type.
using ErasedPointer = std::array<std::byte, 2 * sizeof(void*)>;

/// Calls a member function: object, then the arguments in the form of `Coerce`.
struct Call {
  Value (*run)(const ErasedPointer& member, void* object, const Value* const* arguments) = nullptr;
  ErasedPointer member{};

  explicit operator bool() const { return run != nullptr; }
  Value operator()(void* object, const Value* const* arguments) const {
    return run(member, object, arguments);
  }
};

struct Enumerator {
  std::string_view name;       ///< As the C++ enumerator is spelled, "Face_1".
  std::int32_t value = 0;      ///< The value that case files store.
  std::string_view published;  ///< The published text, "Face 1".
};

struct EnumerationDescription {
  std::string_view name;
  std::string_view help;
  std::vector<Enumerator> enumerators;  ///< In declared order.
};

struct FieldDescription {
  std::string_view name;
  Type type;
  Value (*read)(const ErasedPointer& member, const void* record) = nullptr;
  void (*write)(const ErasedPointer& member, void* record, const Value& value) = nullptr;
  ErasedPointer member{};
};

struct RecordDescription {
  std::string_view name;
  std::string_view help;
  std::string_view guid;
  std::vector<FieldDescription> fields;  ///< In declared order.
};

struct ArgumentDescription {
  std::string_view name;
  Type type;
  std::optional<Value> defaultValue;  ///< Nothing for an argument that must be given.
  bool byReference = false;           ///< The COM interface takes it by reference; it is never changed.
};

/// A property (index arguments, a type, a get and perhaps a let or set) or a method.
struct MemberDescription {
  int number = 0;  ///< Fixed for ever.
  std::string_view name;
  bool isMethod = false;
  std::vector<ArgumentDescription> arguments;
  Type type;                ///< Of the property, or of the method's result.
  std::string_view unit;    ///< "m", "degrees", "kN/m²", "path" for a stored path, or empty.
  std::string_view help;    ///< One line.
  std::string_view range;   ///< Of the value, where the type doesn't say it.
  std::string_view errors;  ///< Numbers with their causes; empty if only a wrong type or object raises.
  std::string_view clause;  ///< Of BS 6399-2, "Table 3", or empty.
  Call get;                 ///< The get, or the method.
  Call let;                 ///< The let or set; the value is its last argument.

  bool ReadOnly() const { return !isMethod && !let; }
  /// The help with its clause.
  std::string Summary() const;
};

using EventHandler = std::function<void(std::span<const Value>)>;

struct EventDescription {
  int number = 0;
  std::string_view name;
  std::vector<ArgumentDescription> arguments;
  std::string_view help;
  Connection (*connect)(const ErasedPointer& member, void* object, EventHandler handler) = nullptr;
  ErasedPointer member{};
};

/// Identities of a class, its interface and its event interface for the COM interface description.
struct ClassIdentity {
  std::string_view classGuid;
  std::string_view interfaceGuid;
  std::string_view eventsGuid;
};

struct ClassDescription {
  std::string_view name;
  std::string_view help;
  ClassIdentity identity;
  std::shared_ptr<void> (*create)() = nullptr;  ///< Null for a class that a host can't create.
  std::vector<MemberDescription> members;       ///< In declared order.
  std::vector<EventDescription> events;         ///< In declared order.

  /// A member or event by name, case ignored, or by number; null if there is none.
  const MemberDescription* Find(std::string_view memberName) const;
  const MemberDescription* Find(int memberNumber) const;
  const EventDescription* FindEvent(std::string_view eventName) const;

  /// Positions of the members in the order of their lower-case names.
  std::vector<std::pair<std::string, std::size_t>> byName;
};

/// True if two names are equal, ASCII case ignored.
bool SameName(std::string_view a, std::string_view b);

/// All enumerations, records and classes, in the order in which they are published.
const std::vector<EnumerationDescription>& Enumerations();
const std::vector<RecordDescription>& Records();
const std::vector<const ClassDescription*>& Classes();

/// One of them by name, case ignored; null if there is none.
const EnumerationDescription* FindEnumeration(std::string_view name);
const RecordDescription* FindRecord(std::string_view name);
const ClassDescription* FindClass(std::string_view name);

/// What a member's documentation says besides its help; empty where there is nothing to say. The range of the
/// value and those of the index arguments follow from their types where the row doesn't give one.
std::string RangeText(const MemberDescription& member);
std::string ArgumentRangesText(const MemberDescription& member);
/// All of it, a line for each: help and unit, then "Range: ", "Arguments: ", "Errors: " and "BS 6399-2: " as
/// far as there is something to say.
std::vector<std::string> DocumentationOf(const MemberDescription& member);

/// A record as a value, and a value's fields put into a record.
Value ReadRecord(const RecordDescription& description, const void* record);
void WriteRecord(const RecordDescription& description, void* record, const Value& value);

}  // namespace orve::automation
