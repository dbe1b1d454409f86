#include "PrintableText.h"

#include <cstdint>
#include <iostream>

#include "common/TextEncoding.h"

namespace windcase {

namespace {

// The character at the front of valid UTF-8, and its bytes.
struct Character {
  std::uint32_t code;
  std::size_t length;
};

Character FirstOf(std::string_view text) {
  const auto byte = [&](std::size_t i) {
    return static_cast<std::uint32_t>(static_cast<unsigned char>(text[i]));
  };
  const std::uint32_t first = byte(0);
  const std::size_t length = first < 0x80 ? 1 : first < 0xE0 ? 2 : first < 0xF0 ? 3 : 4;
  if (length == 1 || length > text.size()) return {first, 1};
  std::uint32_t code = first & (0xFFU >> (length + 1));
  for (std::size_t i = 1; i < length; ++i) code = code << 6 | (byte(i) & 0x3FU);
  return {code, length};
}

bool IsObeyed(std::uint32_t code) {
  const bool control = code < 0x20 || (code >= 0x7F && code < 0xA0) || code == 0x2028 || code == 0x2029;
  const bool direction = code == 0x061C || code == 0x200E || code == 0x200F ||
                         (code >= 0x202A && code <= 0x202E) || (code >= 0x2066 && code <= 0x2069);
  return control || direction;
}

std::string Escape(std::uint32_t code) {
  std::string text = "\\u";
  for (int shift = 12; shift >= 0; shift -= 4) text += "0123456789abcdef"[(code >> shift) & 15U];
  return text;
}

}  // namespace

std::string Printable(std::string_view bytes, bool keepLines) {
  const std::string text = orve::ToUtf8(bytes);
  std::string printable;
  printable.reserve(text.size());
  for (std::string_view rest = text; !rest.empty();) {
    const Character character = FirstOf(rest);
    if (IsObeyed(character.code) && !(keepLines && character.code == '\n'))
      printable += Escape(character.code);
    else
      printable += rest.substr(0, character.length);
    rest.remove_prefix(character.length);
  }
  return printable;
}

// Holds what is printed until a line ends, so that no character is cut.
class PrintableStreams::Filter : public std::streambuf {
 public:
  explicit Filter(std::ostream& stream) : m_stream(stream), m_target(stream.rdbuf(this)) {}
  ~Filter() override {
    Filter::sync();
    m_stream.rdbuf(m_target);
  }
  Filter(const Filter&) = delete;
  Filter& operator=(const Filter&) = delete;

 protected:
  int_type overflow(int_type character) override {
    if (traits_type::eq_int_type(character, traits_type::eof())) return traits_type::not_eof(character);
    const char added = traits_type::to_char_type(character);
    return xsputn(&added, 1) == 1 ? character : traits_type::eof();
  }

  std::streamsize xsputn(const char* text, std::streamsize length) override {
    constexpr std::size_t enough = 65536;
    m_text.append(text, static_cast<std::size_t>(length));
    const std::size_t lineEnd = m_text.size() < enough ? std::string::npos : m_text.rfind('\n');
    return lineEnd == std::string::npos || Send(lineEnd + 1) ? length : 0;
  }

  int sync() override { return Send(m_text.size()) && m_target->pubsync() == 0 ? 0 : -1; }

 private:
  bool Send(std::size_t length) {
    const std::string printable = Printable(std::string_view(m_text).substr(0, length), true);
    m_text.erase(0, length);
    const auto size = static_cast<std::streamsize>(printable.size());
    return m_target->sputn(printable.data(), size) == size;
  }

  std::ostream& m_stream;
  std::streambuf* m_target;
  std::string m_text;
};

PrintableStreams::PrintableStreams()
    : m_out(std::make_unique<Filter>(std::cout)), m_err(std::make_unique<Filter>(std::cerr)) {}

PrintableStreams::~PrintableStreams() = default;

}  // namespace windcase
