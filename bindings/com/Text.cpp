#include "Text.h"

#include <new>

#include "System.h"

namespace orve::com {

std::wstring ToWide(std::string_view text) {
  const int size = static_cast<int>(text.size());
  const int length = ::MultiByteToWideChar(CP_UTF8, 0, text.data(), size, nullptr, 0);
  std::wstring wide(static_cast<std::size_t>(length), L'\0');
  ::MultiByteToWideChar(CP_UTF8, 0, text.data(), size, wide.data(), length);
  return wide;
}

std::string FromWide(std::wstring_view text) {
  const int size = static_cast<int>(text.size());
  const int length = ::WideCharToMultiByte(CP_UTF8, 0, text.data(), size, nullptr, 0, nullptr, nullptr);
  std::string narrow(static_cast<std::size_t>(length), '\0');
  ::WideCharToMultiByte(CP_UTF8, 0, text.data(), size, narrow.data(), length, nullptr, nullptr);
  return narrow;
}

BSTR NewText(std::string_view text) {
  const std::wstring wide = ToWide(text);
  const BSTR result = ::SysAllocStringLen(wide.data(), static_cast<UINT>(wide.size()));
  if (result == nullptr) throw std::bad_alloc();
  return result;
}

std::string FromText(BSTR text) {
  return FromWide(std::wstring_view(text, ::SysStringLen(text)));
}

GUID ToGuid(std::string_view text) {
  GUID guid{};
  ::CLSIDFromString((L"{" + ToWide(text) + L"}").c_str(), &guid);
  return guid;
}

}  // namespace orve::com
