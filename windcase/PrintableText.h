// Texts of other people's cases on a terminal.
#pragma once

#include <memory>
#include <streambuf>
#include <string>
#include <string_view>

namespace windcase {

/// The text with what a terminal would obey instead of showing: control characters, and those that turn the
/// direction of writing, as "\u001b"; bytes that aren't UTF-8 as U+FFFD. Line feeds stand if `keepLines`.
std::string Printable(std::string_view text, bool keepLines);

/// For as long as it lives, what goes to the standard output and the standard error is printable. JSON stays
/// JSON: its texts take the same form.
class PrintableStreams {
 public:
  PrintableStreams();
  ~PrintableStreams();
  PrintableStreams(const PrintableStreams&) = delete;
  PrintableStreams& operator=(const PrintableStreams&) = delete;

 private:
  class Filter;
  std::unique_ptr<Filter> m_out;
  std::unique_ptr<Filter> m_err;
};

}  // namespace windcase
