// A case file whose lines the library doesn't read as they are meant, written anew.
#include <filesystem>
#include <iostream>
#include <orve3_bs6399_2.h>

#include "CaseLock.h"
#include "CaseTextCheck.h"
#include "Commands.h"
#include "Files.h"
#include "OpenCase.h"
#include "Settings.h"
#include "common/FileLayer.h"

namespace windcase {

namespace {

// A value that converts to nothing stays one: only a person knows what it should be.
void RequireOpens(const std::string& text, const std::string& shownName) {
  const PrivateFolder folder;
  const std::string file = (folder.Path() / "repaired.wlc").string();
  orve::WriteWholeFile(file, text, orve::Durability::Atomic);
  try {
    OpenCase(folder.Path()).Open(file);
  } catch (const Failure& failure) {
    const std::string reason = failure.what();
    const bool named = reason.compare(0, file.size(), file) == 0;
    throw Failure(ExitCode::File, shownName + " can't be repaired: its lines don't make a case" +
                                      (named ? reason.substr(file.size()) : ": " + reason) +
                                      "; nothing is changed");
  }
}

std::string KeepBeside(const std::string& file, const std::string& bytes) {
  const std::string name = file + ".before-repair";
  std::string kept = name;
  for (int number = 2; std::filesystem::exists(std::filesystem::symlink_status(kept)); ++number)
    kept = name + "-" + std::to_string(number);
  WriteOutput({kept, file, false}, bytes);
  return kept;
}

}  // namespace

ExitCode RunRepair(const Options& options) {
  const std::string file = ResolvedName(options.file);
  const CaseLock lock(file);
  const std::string bytes = ReadCaseFile(options.file);
  const std::vector<CaseTextFault> faults = CheckCaseText(bytes);
  if (faults.empty()) {
    std::cout << options.file << " has nothing to repair\n";
    return ExitCode::Done;
  }
  const std::string meant = MeantCaseText(bytes);
  RequireOpens(meant, options.file);
  const std::string kept = KeepBeside(file, bytes);
  orve::WriteWholeFile(file, meant, orve::Durability::Flushed);
  for (const CaseTextFault& fault : faults) std::cout << "line " << fault.line << " " << fault.text << "\n";
  std::cout << options.file << " is written as its lines are meant; the old file is kept as "
            << std::filesystem::path(kept).filename().string() << "\n";
  return ExitCode::Done;
}

}  // namespace windcase
