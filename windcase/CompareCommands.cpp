// Two cases against each other, and one against its stored results.
#include <algorithm>
#include <filesystem>
#include <iostream>
#include <orve3_bs6399_2.h>

#include "Commands.h"
#include "Files.h"
#include "Records.h"
#include "Settings.h"

namespace windcase {

namespace {

std::vector<InputKey> KeysOf(OpenCase& windCase, const std::string& file, const PrivateFolder& folder) {
  windCase.Open(file);
  return StoredKeys(windCase, folder.Path());
}

void AddMissing(std::vector<InputKey>& keys, const std::vector<InputKey>& others) {
  for (const InputKey& other : others) {
    const auto same = [&](const InputKey& key) { return key.Text(true) == other.Text(true); };
    if (std::none_of(keys.begin(), keys.end(), same)) keys.push_back(other);
  }
}

CaseRecord StoredRecord(const std::string& path, const std::string& file) {
  if (!std::filesystem::exists(path))
    throw Failure(ExitCode::File, "There are no stored results " + path + "; \"windcase check " + file +
                                      " --store\" makes them");
  return RecordOf(ReadPlainFile(path), path);
}

}  // namespace

// A value that only one of the files holds, as one by sector, is read from both cases.
ExitCode RunCompare(const Options& options) {
  const PrivateFolder folder;
  OpenCase windCase(folder.Path());
  std::vector<InputKey> keys = KeysOf(windCase, options.file, folder);
  AddMissing(keys, KeysOf(windCase, options.other, folder));
  const CaseRecord b = RecordOf(windCase, keys);
  windCase.Open(options.file);
  const CaseRecord a = RecordOf(windCase, keys);
  return PrintDifferences(std::cout, a, b) ? ExitCode::Attention : ExitCode::Done;
}

ExitCode RunCheck(const Options& options) {
  if (!options.sheet.empty()) return CheckSheet(options);
  const std::string path = options.results.empty() ? options.file + ".results.json" : options.results;
  const PrivateFolder folder;
  OpenCase windCase(folder.Path());
  const std::vector<InputKey> keys = KeysOf(windCase, options.file, folder);
  const CaseRecord now = RecordOf(windCase, keys);
  if (options.store) {
    WriteOutput({path, ResolvedName(options.file), options.force}, RecordJson(now));
    std::cout << path << " holds the results of " << now.loads.size() << " zones\n";
    return ExitCode::Done;
  }
  const CaseRecord stored = StoredRecord(path, options.file);
  std::cout << "A: stored by " << stored.version << "; B: worked out now by " << now.version << "\n\n";
  return PrintDifferences(std::cout, stored, now) ? ExitCode::Attention : ExitCode::Done;
}

}  // namespace windcase
