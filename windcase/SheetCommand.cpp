// The calculation sheet: written, and compared with its case.
#include <filesystem>
#include <fstream>
#include <iostream>
#include <iterator>
#include <orve3_bs6399_2.h>
#include <sheet/Sheet.h>

#include "Commands.h"
#include "Records.h"
#include "Settings.h"

namespace windcase {

namespace {

std::string OutputOf(const Options& options) {
  if (!options.output.empty()) return options.output;
  return std::filesystem::path(options.file).replace_extension(".html").string();
}

// A sheet may be signed already.
void KeepExisting(const std::string& path, const Options& options) {
  if (options.force || !std::filesystem::exists(path)) return;
  throw Failure(ExitCode::File, path + " is there already; --force writes over it");
}

std::string TextOf(const std::string& path) {
  std::ifstream file(path, std::ios::binary);
  if (!file) throw Failure(ExitCode::File, "The sheet " + path + " can't be read");
  return {std::istreambuf_iterator<char>(file), {}};
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
  KeepExisting(path, options);
  WriteFile(path, orve::sheet::MakeSheet(
                      {options.project, options.author, options.checker, options.revision, options.date}));
  std::cout << path << " written\n";
  return ExitCode::Done;
}

ExitCode CheckSheet(const Options& options) {
  const PrivateFolder folder;
  OpenCase windCase(folder.Path());
  windCase.Open(options.file);
  const orve::sheet::SheetVerdict verdict = orve::sheet::CheckSheet(TextOf(options.sheet));
  if (!verdict.isSheet) throw Failure(ExitCode::File, options.sheet + " isn't a calculation sheet");
  std::cout << "Digest of the sheet: " << verdict.printedDigest << "\nDigest of the case:  " << verdict.digest
            << "\n"
            << Judgement(verdict) << "\n";
  return verdict.sameBytes ? ExitCode::Done : ExitCode::Attention;
}

}  // namespace windcase
