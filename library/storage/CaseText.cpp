#include "storage/CaseText.h"

#include <array>
#include <utility>

namespace orve {

namespace {

constexpr std::string_view Mark = "%%";

using Escape = std::pair<char, std::string_view>;
constexpr std::array<Escape, 4> Escapes = {Escape{'%', "%25"}, Escape{'\r', "%0D"}, Escape{'\n', "%0A"},
                                           Escape{'[', "%5B"}};
constexpr Escape LastBlank{' ', "%20"};

bool NeedsMark(std::string_view text) {
  return text.find_first_of("\r\n[") != std::string_view::npos || text.starts_with(Mark) ||
         text.ends_with(' ');
}

}  // namespace

std::string EncodeCaseText(std::string_view text) {
  if (!NeedsMark(text)) return std::string(text);
  std::string value(Mark);
  for (std::size_t at = 0; at < text.size(); ++at) {
    std::string_view written = text.substr(at, 1);
    for (const auto& [character, escape] : Escapes)
      if (text[at] == character) written = escape;
    if (text[at] == LastBlank.first && at + 1 == text.size()) written = LastBlank.second;
    value += written;
  }
  return value;
}

std::string DecodeCaseText(std::string_view value) {
  if (!value.starts_with(Mark)) return std::string(value);
  // Blanks behind an encoded value were left there by an older, longer one.
  value = value.substr(Mark.size(), value.find_last_not_of(' ') + 1 - Mark.size());
  std::string text;
  while (!value.empty()) {
    std::string_view written = value.substr(0, 1);
    char character = value.front();
    const auto take = [&](const Escape& escape) {
      if (!value.starts_with(escape.second)) return;
      written = escape.second;
      character = escape.first;
    };
    for (const Escape& escape : Escapes) take(escape);
    take(LastBlank);
    text += character;
    value.remove_prefix(written.size());
  }
  return text;
}

}  // namespace orve
