// What every function of the C binding does: take a handle, check its pointers, and turn exceptions into an
// error number and text.
#pragma once

#include <cstddef>
#include <cstdint>
#include <memory>
#include <string>
#include <string_view>
#include <type_traits>
#include <vector>

#include "../FloatState.h"
#include "orve3_bs6399_2.h"
#include "orve3_bs6399_2_c.h"

namespace orve::c {

/// Ends a call that went well: 0, and no error text.
orve_error Succeeded() noexcept;
/// Ends a call whose exception is being handled: its number, its text kept.
orve_error Failed() noexcept;

/// One address for each type, by which a handle knows what it holds.
template <class Held>
inline constexpr char TagOf = 0;

/// A new handle that holds a reference.
void* NewHandle(std::shared_ptr<void> held, const void* tag);
/// What a handle holds. Errors: 91 for a null handle, a released one or one of another type.
std::shared_ptr<void> Held(const void* handle, const void* tag);

template <class Class>
std::shared_ptr<Class> ObjectOf(const void* handle) {
  return std::static_pointer_cast<Class>(Held(handle, &TagOf<Class>));
}
/// An object property may be set to nothing, by a null handle.
template <class Class>
std::shared_ptr<Class> ObjectOrNothing(const void* handle) {
  return handle == nullptr ? nullptr : ObjectOf<Class>(handle);
}

// Errors: 5 for a null pointer.
[[noreturn]] void RaiseNull(const char* what);
inline void RequireResult(const void* result) {
  if (result == nullptr) RaiseNull("the pointer to the result");
}
inline void RequireCallback(bool given) {
  if (!given) RaiseNull("the callback");
}
template <class Record>
const Record& RecordArgument(const Record* record, const char* name) {
  if (record == nullptr) RaiseNull(name);
  return *record;
}
std::string TextArgument(const char* text, const char* name);
inline std::string TextOrEmpty(const char* text) {
  return text == nullptr ? std::string() : std::string(text);
}

/// A copy on the C heap, for `orve_free_text`.
char* NewText(const std::string& text);
/// Frees a text of a record and leaves null.
void FreeText(const char*& text);
/// A published text, which lies in the library; null for an empty one.
const char* StaticText(std::string_view text);

/// Calls a function of the host under the host's own floating-point state.
template <class Function, class... Arguments>
auto CallHost(Function function, Arguments... arguments) {
  const HostFloatState state;
  return function(arguments...);
}

/// Error 0 is none; any other that a callback returned goes on as an exception.
void RaiseFromCallback(orve_error number);

inline void Give(bool* result, bool value) {
  *result = value;
}
inline void Give(std::int16_t* result, std::int16_t value) {
  *result = value;
}
inline void Give(std::int32_t* result, std::int32_t value) {
  *result = value;
}
inline void Give(float* result, float value) {
  *result = value;
}
inline void Give(double* result, double value) {
  *result = value;
}
inline void Give(char** result, const std::string& value) {
  *result = NewText(value);
}
template <class Enumeration>
requires std::is_enum_v<Enumeration>
void Give(std::int32_t* result, Enumeration value) {
  *result = static_cast<std::int32_t>(value);
}

/// A null handle for nothing.
template <class Handle, class Class>
void GiveObject(Handle* result, std::shared_ptr<Class> object) {
  *result = object ? static_cast<Handle>(NewHandle(std::move(object), &TagOf<Class>)) : nullptr;
}
void GiveConnection(orve_connection* result, Connection connection);

/// The objects that a host may create.
template <class Class>
std::shared_ptr<Class> Create() {
  return std::make_shared<Class>();
}
template <>
inline std::shared_ptr<clsCurrentCase> Create() {
  return CreateCurrentCase();
}

}  // namespace orve::c
