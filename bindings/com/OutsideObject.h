// A component of an outside party, driven by the names of its members.
#pragma once

#include <initializer_list>
#include <map>
#include <string>
#include <string_view>

#include "ComPointer.h"
#include "Describe.h"
#include "System.h"
#include "Value.h"

namespace orve::com {

class OutsideObject {
 public:
  /// Creates an object of a registered class. Errors: 429 if there is no such class, else what the system
  /// gives.
  explicit OutsideObject(const std::string& className);
  ~OutsideObject();
  OutsideObject(const OutsideObject&) = delete;
  OutsideObject& operator=(const OutsideObject&) = delete;

  /// The name of its class, by which a host tells its kind.
  std::string TypeName() const { return m_typeName; }

  /// Calls by name. An argument is a number or text by value, or a sector by reference. Errors: what the
  /// component raises, with its number and text; 438 for a member that it doesn't have.
  template <class Result, class... Arguments>
  Result Get(const wchar_t* member, const Arguments&... arguments) const {
    const automation::Type type = automation::TypeOf<Result>::type;
    automation::Value storage;
    const automation::Value given =
        Run(member, DISPATCH_METHOD | DISPATCH_PROPERTYGET, type, {Argument(arguments)...});
    return automation::Unpack<Result>(automation::Coerce(given, type, storage));
  }
  template <class Given>
  void Let(const wchar_t* member, const Given& value) const {
    Run(member, DISPATCH_PROPERTYPUT, {}, {Argument(value)});
  }
  template <class... Arguments>
  void Call(const wchar_t* member, const Arguments&... arguments) const {
    Run(member, DISPATCH_METHOD, {}, {Argument(arguments)...});
  }

 private:
  /// A VARIANT that borrows what it points to.
  static VARIANT Argument(bool value);
  static VARIANT Argument(std::int16_t value);
  static VARIANT Argument(std::int32_t value);
  static VARIANT Argument(float value);
  static VARIANT Argument(double value);
  static VARIANT Argument(const std::string& value);
  static VARIANT Argument(const WindSectors& sector);

  DISPID NumberOfMember(const wchar_t* member) const;
  automation::Value Run(const wchar_t* member, WORD flags, const automation::Type& resultType,
                        std::initializer_list<VARIANT> arguments) const;

  std::string m_typeName;
  ComPointer<IDispatch> m_object;
  mutable std::map<std::wstring_view, DISPID> m_numbers;
};

/// True if a class of that name is registered and can be loaded into this process.
bool IsRegistered(const std::string& className);

}  // namespace orve::com
