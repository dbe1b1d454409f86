// The calculation sheet: written, and compared with its case.
#include <filesystem>
#include <iostream>
#include <orve3_bs6399_2.h>
#include <sheet/Sheet.h>

#include "Commands.h"
#include "Files.h"
#include "OpenCase.h"
#include "Settings.h"

namespace windcase {

namespace {

std::string OutputOf(const Options& options) {
  if (!options.output.empty()) return options.output;
  return std::filesystem::path(options.file).replace_extension(".html").string();
}

const char* Judgement(const orve::sheet::SheetVerdict& verdict) {
  if (verdict.sameBytes) return "The sheet is the one that this case gives.";
  if (!verdict.sameVersion)
    return "The sheet was made by another version: make it again and compare the two.";
  if (!verdict.sameDigest) return "Inputs or results of the case aren't those of the sheet.";
  return "The digest is that of the case, but the sheet was changed after it was made.";
}

}  // namespace

ExitCode RunSheet(const Options& options) {
  const PrivateFolder folder;
  OpenCase windCase(folder.Path());
  windCase.Open(options.file);
  const std::string path = OutputOf(options);
  WriteOutput({path, ResolvedName(options.file), options.force},
              orve::sheet::MakeSheet(
                  {options.project, options.author, options.checker, options.revision, options.date}));
  std::cout << path << " written\n";
  return ExitCode::Done;
}

ExitCode CheckSheet(const Options& options) {
  const PrivateFolder folder;
  OpenCase windCase(folder.Path());
  windCase.Open(options.file);
  const orve::sheet::SheetVerdict verdict = orve::sheet::CheckSheet(ReadPlainFile(options.sheet));
  if (!verdict.isSheet) throw Failure(ExitCode::File, options.sheet + " isn't a calculation sheet");
  std::cout << "Digest of the sheet: " << verdict.printedDigest << "\nDigest of the case:  " << verdict.digest
            << "\n"
            << Judgement(verdict) << "\n";
  return verdict.sameBytes ? ExitCode::Done : ExitCode::Attention;
}

}  // namespace windcase
