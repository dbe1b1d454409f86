// The command line.
#pragma once

#include <optional>

#include "Options.h"

namespace windcase {

/// Reads the command line. Gives the exit code if there is nothing more to do: help, version or a fault that
/// has been told.
std::optional<int> ParseCommandLine(int argc, const char* const* argv, Options& options);

}  // namespace windcase
