#include "Html.h"

#include <array>
#include <cstdint>

#include "common/TextEncoding.h"

namespace orve::sheet {

namespace {

constexpr std::string_view kReplacement = "\uFFFD";

bool IsContinuation(std::string_view text, std::size_t at) {
  return at < text.size() && (static_cast<unsigned char>(text[at]) & 0xC0U) == 0x80U;
}

// Bytes of the UTF-8 character at the front; 0 for bytes that are none.
std::size_t CharacterLength(std::string_view text) {
  const auto first = static_cast<unsigned char>(text[0]);
  if (first < 0x80) return 1;
  const std::size_t length = first >= 0xF0 ? 4 : first >= 0xE0 ? 3 : 2;
  if (first < 0xC2 || first > 0xF4) return 0;
  for (std::size_t i = 1; i < length; ++i)
    if (!IsContinuation(text, i)) return 0;
  const auto second = static_cast<unsigned char>(text[1]);
  const bool overlong = (first == 0xE0 && second < 0xA0) || (first == 0xF0 && second < 0x90);
  const bool outside = (first == 0xED && second >= 0xA0) || (first == 0xF4 && second >= 0x90);
  return overlong || outside ? 0 : length;
}

bool IsControl(char c) {
  return static_cast<unsigned char>(c) < ' ' || c == '\x7F';
}

struct Entity {
  char character;
  std::string_view name;
};
constexpr std::array<Entity, 5> kEntities = {
    {{'&', "&amp;"}, {'<', "&lt;"}, {'>', "&gt;"}, {'"', "&quot;"}, {'\'', "&#39;"}}};

std::string_view EntityOf(char character) {
  for (const Entity& entity : kEntities)
    if (entity.character == character) return entity.name;
  return {};
}

std::string Unescaped(std::string_view text) {
  std::string result;
  while (!text.empty()) {
    std::size_t used = 1;
    char character = text.front();
    for (const Entity& entity : kEntities)
      if (text.substr(0, entity.name.size()) == entity.name) {
        used = entity.name.size();
        character = entity.character;
      }
    result += character;
    text.remove_prefix(used);
  }
  return result;
}

std::string MetaHead(std::string_view name) {
  return "<meta name=\"orve-" + std::string(name) + "\" content=\"";
}

}  // namespace

std::string PlainText(std::string_view text) {
  std::string plain = ToUtf8(text);
  for (char& c : plain)
    if (IsControl(c)) c = ' ';
  return plain;
}

std::string Escaped(std::string_view text) {
  std::string result;
  result.reserve(text.size());
  while (!text.empty()) {
    const std::size_t length = CharacterLength(text);
    const char first = text.front();
    if (length == 0)
      result += kReplacement;
    else if (length == 1 && IsControl(first))
      result += ' ';
    else if (const std::string_view entity = EntityOf(first); !entity.empty())
      result += entity;
    else
      result += text.substr(0, length);
    text.remove_prefix(length == 0 ? 1 : length);
  }
  return result;
}

// Every character of ASCII but letters, digits and blanks goes as a number, so that no text can end the
// string or the style sheet.
std::string StyleString(std::string_view text) {
  std::string result = "\"";
  for (const char c : PlainText(text)) {
    const bool plain = (c >= '0' && c <= '9') || (c >= 'A' && c <= 'Z') || (c >= 'a' && c <= 'z') ||
                       c == ' ' || static_cast<unsigned char>(c) >= 0x80;
    if (plain) {
      result += c;
      continue;
    }
    const auto code = static_cast<unsigned char>(c);
    result += '\\';
    result += "0123456789abcdef"[code >> 4];
    result += "0123456789abcdef"[code & 15];
    result += ' ';
  }
  return result + "\"";
}

std::string MetaTag(std::string_view name, std::string_view content) {
  return MetaHead(name) + Escaped(content) + "\">\n";
}

std::string MetaContent(std::string_view html, std::string_view name) {
  const std::string head = MetaHead(name);
  const std::size_t start = html.find(head);
  if (start == std::string_view::npos) return {};
  const std::string_view rest = html.substr(start + head.size());
  return Unescaped(rest.substr(0, rest.find('"')));
}

}  // namespace orve::sheet
