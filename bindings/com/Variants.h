// Values in a VARIANT, as late-bound calls and events pass them.
#pragma once

#include "Description.h"
#include "System.h"

namespace orve::com {

/// A VARIANT that is cleared when it goes.
class Variant {
 public:
  Variant() { ::VariantInit(&m_variant); }
  ~Variant() { ::VariantClear(&m_variant); }
  Variant(const Variant&) = delete;
  Variant& operator=(const Variant&) = delete;

  VARIANT* Get() { return &m_variant; }
  const VARIANT* Get() const { return &m_variant; }
  VARIANT* operator->() { return &m_variant; }
  const VARIANT* operator->() const { return &m_variant; }

 private:
  VARIANT m_variant;
};

/// A value of a type as a new VARIANT; what `variant` held isn't freed.
void ToVariant(const automation::Value& value, const automation::Type& type, VARIANT& variant);

/// What a VARIANT holds, for an argument of a type: by reference as by value; a left-out argument as the
/// empty value; an empty VARIANT as 0, False or the empty text; an array of VARIANT, in declared order of the
/// fields, as a record. Errors: 13 for what has no counterpart, 94 for Null.
automation::Value FromVariant(const VARIANT& variant, const automation::Type& type);

}  // namespace orve::com
