// The commands. Each prints to the standard output and gives its exit code; faults are thrown as `Failure` or
// `orve::Error`.
#pragma once

#include "Failure.h"
#include "Options.h"

namespace windcase {

ExitCode RunNew(const Options& options);
ExitCode RunSet(const Options& options);
ExitCode RunRepair(const Options& options);
ExitCode RunShow(const Options& options);
ExitCode RunLoads(const Options& options);
ExitCode RunExplain(const Options& options);
ExitCode RunCompare(const Options& options);
ExitCode RunCheck(const Options& options);
ExitCode RunRecent(const Options& options);
ExitCode RunBatch(const Options& options);
ExitCode RunSheet(const Options& options);
/// `check --sheet`: the sheet against its case.
ExitCode CheckSheet(const Options& options);

}  // namespace windcase
