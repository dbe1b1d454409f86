// A late-bound host of the tests: calls by name, by the system's own means alone.
#pragma once

#include <initializer_list>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "ComPointer.h"
#include "System.h"

namespace orve::test {

std::wstring Wide(std::string_view text);
std::string Narrow(std::wstring_view text);
/// A text that is the caller's.
BSTR NewText(const std::string& text);
std::string TakeText(BSTR text);

/// A VARIANT of a host, cleared when it goes.
class Argument {
 public:
  /// Left out.
  Argument();
  Argument(bool value);
  Argument(long value);
  Argument(int value) : Argument(static_cast<long>(value)) {}
  Argument(double value);
  Argument(const char* value);
  Argument(const std::string& value) : Argument(value.c_str()) {}
  Argument(IDispatch* value);
  Argument(const Argument& other);
  /// A record of another argument, by reference: wine copies a record within a record without its texts.
  static Argument RecordOf(const Argument& other);
  Argument& operator=(const Argument&) = delete;
  ~Argument() { ::VariantClear(&m_variant); }

  VARIANT* Get() { return &m_variant; }
  const VARIANT& Held() const { return m_variant; }
  VARTYPE Type() const { return V_VT(&m_variant); }
  /// The value as a host shows it, by the system's conversion.
  std::string Text() const;
  IDispatch* Object() const { return Type() == VT_DISPATCH ? V_DISPATCH(&m_variant) : nullptr; }

 private:
  mutable VARIANT m_variant;
};

/// What a call came to.
struct Outcome {
  HRESULT result = S_OK;
  HRESULT scode = S_OK;
  long number = 0;  ///< The error's number as hosts show it.
  std::string text;
  std::string source;
  std::string help;  ///< File and context.
  Argument value;
};

struct Named {
  const wchar_t* name;
  Argument value;
};

/// An object as a late-bound host holds it.
class Late {
 public:
  explicit Late(IDispatch* object) : m_object(object) {}

  Outcome Get(const wchar_t* member, std::initializer_list<Argument> arguments = {},
              std::initializer_list<Named> named = {}) const;
  /// The value comes last.
  Outcome Put(const wchar_t* member, std::initializer_list<Argument> arguments) const;
  Outcome PutRef(const wchar_t* member, IDispatch* value) const;
  Late Object(const wchar_t* member) const { return Late(Get(member).value.Object()); }
  IDispatch* Dispatch() const { return m_object.Get(); }

  Outcome Call(const wchar_t* member, WORD flags, const std::vector<Argument>& arguments,
               const std::vector<Named>& named) const;

 private:
  com::ComPointer<IDispatch> m_object;
};

}  // namespace orve::test
