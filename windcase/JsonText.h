// JSON of results, inputs and trees.
#pragma once

#include <map>
#include <string>
#include <utility>
#include <vector>

#include "Quantity.h"
#include "Results.h"

namespace windcase {

/// An input's key and its value as text.
using InputText = std::pair<std::string, std::string>;

/// A case as it was worked out once.
struct CaseRecord {
  std::string version;  ///< Of the library.
  std::vector<InputText> inputs;
  std::vector<ZoneLoads> loads;
};

std::string InputsJson(const std::vector<InputText>& inputs);
std::string LoadsJson(const std::vector<ZoneLoads>& loads, const std::vector<std::string>& warnings);
std::string TreeJson(const orve::explain::Quantity& tree);

struct RecentCase {
  std::string location;
  bool isThere = false;
  std::string description;
  std::string modified;
};
std::string RecentJson(const std::vector<RecentCase>& cases);

std::string RecordJson(const CaseRecord& record);
/// Failure: File for a text that isn't a record; `name` is that of its file.
CaseRecord RecordOf(const std::string& json, const std::string& name);

}  // namespace windcase
