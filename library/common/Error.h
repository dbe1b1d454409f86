// The library's one error type.
#pragma once

#include <stdexcept>
#include <string>

namespace orve {

/// Numbers of the errors that the library raises by itself.
enum class ErrorNumber : int {
  InvalidArgument = 5,
  Overflow = 6,
  SubscriptOutOfRange = 9,
  DivisionByZero = 11,
  TypeMismatch = 13,
  OutOfStackSpace = 28,
  FileNotFound = 53,
  DeviceIO = 57,
  DiskFull = 61,
  PermissionDenied = 70,
  PathFileAccess = 75,
  PathNotFound = 76,
  ObjectNotSet = 91,
  CannotCreateObject = 429,
  DialogCancelled = 32755,
};

/// An error with number and text, raised to the caller of a member.
class Error : public std::runtime_error {
 public:
  Error(int number, const std::string& text) : std::runtime_error(text), m_number(number) {}
  Error(ErrorNumber number, const std::string& text) : Error(static_cast<int>(number), text) {}

  /// The error number: one of `ErrorNumber`, or what a component gave.
  int Number() const noexcept { return m_number; }

 private:
  int m_number;
};

/// Raises 9, "Subscript out of range: " and what was out of which range.
[[noreturn]] void RaiseSubscript(const char* what, long value, long low, long high);

}  // namespace orve
