#include "common/TextEncoding.h"

namespace orve {

namespace {

/// The characters of bytes 0x80 to 0x9F in Windows-1252. The five bytes without a character keep their
/// number.
constexpr char16_t Windows1252[32] = {
    0x20AC, 0x0081, 0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021, 0x02C6, 0x2030, 0x0160,
    0x2039, 0x0152, 0x008D, 0x017D, 0x008F, 0x0090, 0x2018, 0x2019, 0x201C, 0x201D, 0x2022,
    0x2013, 0x2014, 0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, 0x009D, 0x017E, 0x0178,
};

void Append(std::string& text, char16_t character) {
  const unsigned code = character;
  if (code < 0x80) {
    text += static_cast<char>(code);
  } else if (code < 0x800) {
    text += static_cast<char>(0xC0 | code >> 6);
    text += static_cast<char>(0x80 | (code & 0x3F));
  } else {
    text += static_cast<char>(0xE0 | code >> 12);
    text += static_cast<char>(0x80 | (code >> 6 & 0x3F));
    text += static_cast<char>(0x80 | (code & 0x3F));
  }
}

/// Bytes of the sequence that begins at the front; 0 if it isn't a valid one.
std::size_t SequenceLength(std::string_view bytes) {
  const auto byte = [&](std::size_t at) { return static_cast<unsigned char>(bytes[at]); };
  const auto continues = [&](std::size_t at, unsigned low = 0x80, unsigned high = 0xBF) {
    return at < bytes.size() && byte(at) >= low && byte(at) <= high;
  };
  const unsigned lead = byte(0);
  if (lead < 0x80) return 1;
  if (lead >= 0xC2 && lead <= 0xDF) return continues(1) ? 2 : 0;
  if (lead >= 0xE0 && lead <= 0xEF) {
    const unsigned low = lead == 0xE0 ? 0xA0 : 0x80;
    const unsigned high = lead == 0xED ? 0x9F : 0xBF;
    return continues(1, low, high) && continues(2) ? 3 : 0;
  }
  if (lead >= 0xF0 && lead <= 0xF4) {
    const unsigned low = lead == 0xF0 ? 0x90 : 0x80;
    const unsigned high = lead == 0xF4 ? 0x8F : 0xBF;
    return continues(1, low, high) && continues(2) && continues(3) ? 4 : 0;
  }
  return 0;
}

bool StartsCharacter(char byte) {
  return (static_cast<unsigned char>(byte) & 0xC0) != 0x80;
}

}  // namespace

std::string FirstCharacters(std::string_view text, std::size_t count) {
  std::size_t at = 0;
  for (; at < text.size(); ++at)
    if (StartsCharacter(text[at]) && count-- == 0) break;
  return std::string(text.substr(0, at));
}

std::string ShortText(std::string_view text) {
  constexpr std::size_t mostShown = 100;
  const std::string shown = FirstCharacters(text, mostShown);
  return shown.size() < text.size() ? shown + "..." : shown;
}

std::string ToUtf8(std::string_view bytes) {
  std::string text;
  text.reserve(bytes.size() + bytes.size() / 8);
  while (!bytes.empty()) {
    const std::size_t length = SequenceLength(bytes);
    if (length > 0) {
      text += bytes.substr(0, length);
    } else {
      const auto byte = static_cast<unsigned char>(bytes.front());
      Append(text, byte >= 0x80 && byte <= 0x9F ? Windows1252[byte - 0x80] : byte);
    }
    bytes.remove_prefix(length > 0 ? length : 1);
  }
  return text;
}

std::string FileText(std::string_view bytes) {
  constexpr std::string_view byteOrderMark = "\xEF\xBB\xBF";
  if (bytes.starts_with(byteOrderMark)) bytes.remove_prefix(byteOrderMark.size());
  return ToUtf8(bytes);
}

}  // namespace orve
