#include "LateBound.h"

namespace orve::test {

std::wstring Wide(std::string_view text) {
  std::wstring wide(text.size(), L'\0');
  const int length = ::MultiByteToWideChar(CP_UTF8, 0, text.data(), static_cast<int>(text.size()),
                                           wide.data(), static_cast<int>(wide.size()));
  wide.resize(static_cast<std::size_t>(length));
  return wide;
}

std::string Narrow(std::wstring_view text) {
  std::string narrow(text.size() * 3, '\0');
  const int length = ::WideCharToMultiByte(CP_UTF8, 0, text.data(), static_cast<int>(text.size()),
                                           narrow.data(), static_cast<int>(narrow.size()), nullptr, nullptr);
  narrow.resize(static_cast<std::size_t>(length));
  return narrow;
}

BSTR NewText(const std::string& text) {
  return ::SysAllocString(Wide(text).c_str());
}

std::string TakeText(BSTR text) {
  const std::string taken = Narrow(std::wstring_view(text, ::SysStringLen(text)));
  ::SysFreeString(text);
  return taken;
}

Argument::Argument() {
  V_VT(&m_variant) = VT_ERROR;
  V_ERROR(&m_variant) = DISP_E_PARAMNOTFOUND;
}
Argument::Argument(bool value) {
  V_VT(&m_variant) = VT_BOOL;
  V_BOOL(&m_variant) = value ? VARIANT_TRUE : VARIANT_FALSE;
}
Argument::Argument(long value) {
  V_VT(&m_variant) = VT_I4;
  V_I4(&m_variant) = value;
}
Argument::Argument(double value) {
  V_VT(&m_variant) = VT_R8;
  V_R8(&m_variant) = value;
}
Argument::Argument(const char* value) {
  V_VT(&m_variant) = VT_BSTR;
  V_BSTR(&m_variant) = NewText(value);
}
Argument::Argument(IDispatch* value) {
  V_VT(&m_variant) = VT_DISPATCH;
  V_DISPATCH(&m_variant) = value;
  if (value != nullptr) value->AddRef();
}
Argument::Argument(const Argument& other) {
  ::VariantInit(&m_variant);
  ::VariantCopy(&m_variant, &other.m_variant);
}

Argument Argument::RecordOf(const Argument& other) {
  Argument record;
  V_VT(&record.m_variant) = VT_BYREF | VT_RECORD;
  V_RECORD(&record.m_variant) = V_RECORD(&other.m_variant);
  V_RECORDINFO(&record.m_variant) = V_RECORDINFO(&other.m_variant);
  return record;
}

std::string Argument::Text() const {
  if (Type() == VT_BOOL) return V_BOOL(&m_variant) ? "True" : "False";
  VARIANT text;
  ::VariantInit(&text);
  if (FAILED(::VariantChangeTypeEx(&text, &m_variant, LOCALE_INVARIANT, 0, VT_BSTR))) return "?";
  return TakeText(V_BSTR(&text));
}

Outcome Late::Get(const wchar_t* member, std::initializer_list<Argument> arguments,
                  std::initializer_list<Named> named) const {
  return Call(member, DISPATCH_METHOD | DISPATCH_PROPERTYGET, arguments, named);
}

Outcome Late::Put(const wchar_t* member, std::initializer_list<Argument> arguments) const {
  return Call(member, DISPATCH_PROPERTYPUT, arguments, {});
}

Outcome Late::PutRef(const wchar_t* member, IDispatch* value) const {
  return Call(member, DISPATCH_PROPERTYPUTREF, {Argument(value)}, {});
}

Outcome Late::Call(const wchar_t* member, WORD flags, const std::vector<Argument>& arguments,
                   const std::vector<Named>& named) const {
  Outcome outcome;
  std::vector<LPOLESTR> names{const_cast<wchar_t*>(member)};
  for (const Named& argument : named) names.push_back(const_cast<wchar_t*>(argument.name));
  std::vector<DISPID> numbers(names.size());
  outcome.result = m_object->GetIDsOfNames(IID_NULL, names.data(), static_cast<UINT>(names.size()),
                                           LOCALE_NEUTRAL, numbers.data());
  if (FAILED(outcome.result)) return outcome;

  // From the last to the first, the named ones before the others.
  std::vector<VARIANT> row;
  for (const Named& argument : named) row.push_back(argument.value.Held());
  for (auto argument = arguments.rbegin(); argument != arguments.rend(); ++argument)
    row.push_back(argument->Held());
  std::vector<DISPID> namedNumbers(numbers.begin() + 1, numbers.end());
  const bool isPut = (flags & (DISPATCH_PROPERTYPUT | DISPATCH_PROPERTYPUTREF)) != 0;
  if (isPut) namedNumbers.push_back(DISPID_PROPERTYPUT);
  DISPPARAMS parameters{row.data(), namedNumbers.data(), static_cast<UINT>(row.size()),
                        static_cast<UINT>(namedNumbers.size())};
  EXCEPINFO exception{};
  outcome.result = m_object->Invoke(numbers[0], IID_NULL, LOCALE_NEUTRAL, flags, &parameters,
                                    isPut ? nullptr : outcome.value.Get(), &exception, nullptr);
  if (outcome.result == DISP_E_EXCEPTION) {
    outcome.number = exception.scode & 0xFFFF;
    outcome.text = TakeText(exception.bstrDescription);
    outcome.source = TakeText(exception.bstrSource);
    outcome.help = TakeText(exception.bstrHelpFile) + ":" + std::to_string(exception.dwHelpContext);
    outcome.scode = exception.scode;
  }
  return outcome;
}

}  // namespace orve::test
