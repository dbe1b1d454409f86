#include "coefficients/TableSet.h"

#include "coefficients/TableFile.h"
#include "coefficients/tables/Table10.h"
#include "coefficients/tables/Table11.h"
#include "coefficients/tables/Table21.h"
#include "coefficients/tables/Table5.h"
#include "coefficients/tables/Table8.h"
#include "coefficients/tables/Table9.h"
#include "common/Error.h"
#include "common/FileLayer.h"

namespace orve::coefficients {

namespace {

constexpr std::array<const Table*, kTableCount> kBuiltIn{&kTable5,  &kTable8,  &kTable9,
                                                         &kTable10, &kTable11, &kTable21};

}  // namespace

const Table& BuiltInTable(TableNumber number) {
  return *kBuiltIn[static_cast<std::size_t>(number)];
}

const Table* FindBuiltInTable(std::string_view name) {
  for (const Table* table : kBuiltIn)
    if (table->name == name) return table;
  return nullptr;
}

TableSet::TableSet() {
  for (std::size_t i = 0; i < kTableCount; ++i) m_entries[i].table = kBuiltIn[i];
}

TableSet::~TableSet() = default;

void TableSet::ReadFolder(const std::string& folder) {
  for (std::size_t i = 0; i < kTableCount; ++i) {
    const std::string path = folder + "\\" + TableFileName(kBuiltIn[i]->name);
    if (!IsPlainFile(path)) continue;
    Entry& entry = m_entries[i];
    TableFileResult result = ReadTableFile(path);
    if (const TableFault* fault = std::get_if<TableFault>(&result)) {
      entry.table = nullptr;
      entry.fault = FaultText(path, *fault);
      continue;
    }
    entry.office = std::move(std::get<std::unique_ptr<const OfficeTable>>(result));
    entry.table = &entry.office->table;
    if (entry.table->name == kBuiltIn[i]->name) continue;
    entry.table = nullptr;
    entry.fault = FaultText(path, {0, "the head names another table"});
  }
}

void TableSet::RaiseFault(const Entry& entry) {
  throw Error(ErrorNumber::InvalidArgument, entry.fault);
}

}  // namespace orve::coefficients
