#include "common/LetterCase.h"

namespace orve {

namespace {

/// Upper case of the letters from U+0080 to U+017F.
unsigned UpperLatin(unsigned letter) {
  if (letter >= 0xE0 && letter <= 0xFE && letter != 0xF7) return letter - 0x20;
  if (letter == 0xFF) return 0x178;
  if (letter == 0x131) return 'I';
  if (letter == 0x17F) return 'S';
  // Pairs of capital and small letter: capitals are even in these ranges and odd in the others.
  const bool evenCapital =
      (letter >= 0x100 && letter <= 0x137 && letter != 0x130) || (letter >= 0x14A && letter <= 0x177);
  if (evenCapital) return letter & ~1u;
  const bool oddCapital = (letter >= 0x139 && letter <= 0x148) || (letter >= 0x179 && letter <= 0x17E);
  if (oddCapital && letter % 2 == 0) return letter - 1;
  return letter;
}

bool IsContinuation(char byte) {
  return (static_cast<unsigned char>(byte) & 0xC0) == 0x80;
}

}  // namespace

std::string UpperCase(std::string_view text) {
  std::string upper;
  upper.reserve(text.size());
  for (std::size_t at = 0; at < text.size(); ++at) {
    const auto byte = static_cast<unsigned char>(text[at]);
    if (byte >= 'a' && byte <= 'z') {
      upper += static_cast<char>(byte - 'a' + 'A');
    } else if (byte >= 0xC2 && byte <= 0xC5 && at + 1 < text.size() && IsContinuation(text[at + 1])) {
      const unsigned letter =
          UpperLatin((byte & 0x1Fu) << 6 | (static_cast<unsigned char>(text[++at]) & 0x3Fu));
      if (letter >= 0x80) upper += static_cast<char>(0xC0 | letter >> 6);
      upper += static_cast<char>(letter >= 0x80 ? 0x80 | (letter & 0x3F) : letter);
    } else {
      upper += static_cast<char>(byte);
    }
  }
  return upper;
}

}  // namespace orve
