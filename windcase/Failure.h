// How a command ends: its exit code, and what went wrong.
#pragma once

#include <stdexcept>
#include <string>

namespace windcase {

enum class ExitCode : int {
  Done = 0,
  Attention = 1,  ///< The command ran to its end, but cases differ, a case failed or a zone has no load.
  Usage = 2,      ///< A command line, key or value that isn't understood.
  File = 3,       ///< A file that can't be found, read or written, or isn't a case.
  Refused = 4,    ///< The library or an engine refused to work with the data.
  Internal = 70,
};

/// Ends the command with a message.
class Failure : public std::runtime_error {
 public:
  Failure(ExitCode code, const std::string& text) : std::runtime_error(text), m_code(code) {}
  ExitCode Code() const { return m_code; }

 private:
  ExitCode m_code;
};

}  // namespace windcase
