// orve-check-table FILE...: checks table files before they are put in the data folder. A fault is told with
// file, line and reason. Exit code: 0 all good, 1 a faulty or unreadable file, 2 no file given.
#include <cstdio>

#include "coefficients/TableFile.h"
#include "common/FileLayer.h"

namespace {

using namespace orve::coefficients;

bool Check(const char* file) {
  const TableFileResult result = ReadTableFile(orve::StoredPath(file));
  if (const TableFault* fault = std::get_if<TableFault>(&result)) {
    std::fprintf(stderr, "%s\n", FaultText(file, *fault).c_str());
    return false;
  }
  const OfficeTable& office = *std::get<std::unique_ptr<const OfficeTable>>(result);
  std::printf("%s: good; %s (%s), %s, %s; to be named %s in the data folder\n", file,
              std::string(office.table.name).c_str(), std::string(office.table.title).c_str(),
              office.standard.c_str(), office.edition.c_str(), TableFileName(office.table.name).c_str());
  return true;
}

}  // namespace

int main(int count, char** arguments) {
  if (count < 2) {
    std::fputs("usage: orve-check-table FILE...\n", stderr);
    return 2;
  }
  bool good = true;
  for (int i = 1; i < count; ++i) good = Check(arguments[i]) && good;
  return good ? 0 : 1;
}
