// The command-line host: makes, changes, shows and compares wind load cases, works out their loads and tells
// why they are what they are.
#include <filesystem>
#include <iostream>
#include <orve3_bs6399_2.h>

#include "CommandLine.h"
#include "Commands.h"
#include "PrintableText.h"

namespace windcase {

namespace {

ExitCode Run(const Options& options) {
  switch (options.command) {
    case Command::New:
      return RunNew(options);
    case Command::Repair:
      return RunRepair(options);
    case Command::Show:
      return RunShow(options);
    case Command::Set:
      return RunSet(options);
    case Command::Loads:
      return RunLoads(options);
    case Command::Explain:
      return RunExplain(options);
    case Command::Compare:
      return RunCompare(options);
    case Command::Recent:
      return RunRecent(options);
    case Command::Check:
      return RunCheck(options);
    case Command::Batch:
      return RunBatch(options);
    case Command::Sheet:
      return RunSheet(options);
  }
  return ExitCode::Internal;
}

ExitCode CodeOf(const orve::Error& error) {
  switch (static_cast<orve::ErrorNumber>(error.Number())) {
    case orve::ErrorNumber::FileNotFound:
    case orve::ErrorNumber::DeviceIO:
    case orve::ErrorNumber::DiskFull:
    case orve::ErrorNumber::PermissionDenied:
    case orve::ErrorNumber::PathFileAccess:
    case orve::ErrorNumber::PathNotFound:
      return ExitCode::File;
    default:
      return ExitCode::Refused;
  }
}

ExitCode Tell(ExitCode code, const std::string& text) {
  std::cout.flush();
  std::cerr << "windcase: " << text << "\n";
  return code;
}

ExitCode RunGuarded(const Options& options) {
  try {
    return Run(options);
  } catch (const Failure& failure) {
    return Tell(failure.Code(), failure.what());
  } catch (const orve::Error& error) {
    return Tell(CodeOf(error), std::string(error.what()) + " (error " + std::to_string(error.Number()) + ")");
  } catch (const std::filesystem::filesystem_error& error) {
    return Tell(ExitCode::File, error.what());
  } catch (const std::exception& error) {
    return Tell(ExitCode::Internal, error.what());
  }
}

}  // namespace

}  // namespace windcase

int main(int argc, char** argv) {
  const windcase::PrintableStreams printable;
  windcase::Options options;
  if (const auto code = windcase::ParseCommandLine(argc, argv, options)) return *code;
  windcase::ExitCode ending = windcase::RunGuarded(options);
  // A result that couldn't be printed whole, as into a file on a full disk, isn't one.
  if (!std::cout.flush()) ending = windcase::Tell(windcase::ExitCode::File, "Can't write the results");
  return static_cast<int>(ending);
}
