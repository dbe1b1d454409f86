// Calls on the object model by name or number, with loosely typed arguments, as a scripting host makes them.
#pragma once

#include <span>
#include <string>
#include <string_view>

#include "Description.h"

namespace orve::automation {

/// Numbers of the errors that a wrong call raises, besides 13 and 6 of the conversions and 91 for a null
/// object.
enum class DispatchError : int {
  OutOfMemory = 7,
  MemberNotFound = 438,    ///< No such member, or a let of a read-only one.
  AutomationFailed = 440,  ///< An exception that isn't one of the library's.
  NamedArgumentNotFound = 448,
  ArgumentNotOptional = 449,
  WrongArgumentCount = 450,  ///< More arguments than the member has, or one given twice.
};

/// An argument given by its name, case ignored.
struct NamedArgument {
  std::string_view name;
  Value value;
};

/// Creates an object of a class that a host may create. Errors: 429 for any other name.
ObjectReference CreateObject(std::string_view className);

/// Reads a property or calls a method. An argument that is left out, or is the empty value, takes its
/// declared default. Errors: 438, 448, 449 and 450 for a call that doesn't fit the member, 13 and 6 for an
/// argument that doesn't convert, 91 for a null object; those of the member pass unchanged.
Value Invoke(const ObjectReference& object, const MemberDescription& member, std::span<const Value> arguments,
             std::span<const NamedArgument> named = {});
Value Invoke(const ObjectReference& object, std::string_view member, std::span<const Value> arguments,
             std::span<const NamedArgument> named = {});

/// Lets or sets a property: index arguments, then the value. Errors as for `Invoke`.
void Assign(const ObjectReference& object, const MemberDescription& member, std::span<const Value> arguments,
            const Value& value, std::span<const NamedArgument> named = {});
void Assign(const ObjectReference& object, std::string_view member, std::span<const Value> arguments,
            const Value& value, std::span<const NamedArgument> named = {});

/// A member by name or number. Errors: 438.
const MemberDescription& RequireMember(const ObjectReference& object, std::string_view member);
const MemberDescription& RequireMember(const ObjectReference& object, int number);

/// Connects a handler to an event by its name. Errors: 438, 91.
[[nodiscard]] Connection ConnectEvent(const ObjectReference& object, std::string_view event,
                                      EventHandler handler);

/// Number and text of the exception being handled: an `orve::Error` as it stands, 7 for a lack of memory, 440
/// with the exception's text for any other. Call it inside a catch block.
struct ErrorReport {
  int number = 0;
  std::string text;
};
ErrorReport CurrentError();

}  // namespace orve::automation
