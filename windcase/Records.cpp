#include "Records.h"

#include <cmath>
#include <map>
#include <orve3_bs6399_2.h>
#include <ostream>

#include "Failure.h"
#include "TextTable.h"
#include "common/NumberText.h"

namespace windcase {

namespace {

bool PrintInputs(std::ostream& out, const CaseRecord& a, const CaseRecord& b) {
  const std::map<std::string, std::string> before(a.inputs.begin(), a.inputs.end());
  const std::map<std::string, std::string> after(b.inputs.begin(), b.inputs.end());
  TextTable table({"Input", "A", "B"});
  const auto value = [](const auto& inputs, const std::string& key) {
    const auto found = inputs.find(key);
    return found == inputs.end() ? std::string() : found->second;
  };
  for (const auto& [key, text] : a.inputs)
    if (const std::string other = value(after, key); other != text) table.Add({key, text, other});
  for (const auto& [key, text] : b.inputs)
    if (!before.count(key) && !text.empty()) table.Add({key, "", text});
  if (table.Empty()) {
    out << "The inputs are the same.\n";
    return false;
  }
  table.Print(out);
  return true;
}

std::string Name(const ZoneLoads& zone) {
  return zone.area + ", " + zone.face + ", " + zone.zone;
}

// Infinite loads stand for themselves.
bool Same(float a, float b) {
  return !(a < b || a > b) && std::isnan(a) == std::isnan(b);
}

std::string Moved(float from, float to) {
  if (Same(from, to)) return orve::FormatSigned(0.0);
  return orve::FormatSigned(double(to) - double(from));
}

std::string Shown(const ZoneLoads& zone) {
  return zone.fault.empty() ? zone.overall : "no load: " + zone.fault;
}

bool Differ(const ZoneLoads& a, const ZoneLoads& b) {
  return Shown(a) != Shown(b) || a.external != b.external || a.internal != b.internal ||
         a.dimensions != b.dimensions || !Same(a.pressure, b.pressure) || !Same(a.suction, b.suction);
}

bool PrintLoads(std::ostream& out, const CaseRecord& a, const CaseRecord& b) {
  std::map<std::string, const ZoneLoads*> after;
  for (const ZoneLoads& zone : b.loads) after.emplace(Name(zone), &zone);
  TextTable table({"Zone", "Overall A", "Overall B", "Pressure moved", "Suction moved"});
  for (const ZoneLoads& zone : a.loads) {
    const auto found = after.find(Name(zone));
    if (found == after.end()) {
      table.Add({Name(zone), Shown(zone), "no such zone"});
      continue;
    }
    const ZoneLoads& other = *found->second;
    if (Differ(zone, other))
      table.Add({Name(zone), Shown(zone), Shown(other), Moved(zone.pressure, other.pressure),
                 Moved(zone.suction, other.suction)});
    after.erase(found);
  }
  for (const ZoneLoads& zone : b.loads)
    if (after.count(Name(zone))) table.Add({Name(zone), "no such zone", Shown(zone)});
  if (table.Empty()) {
    out << "All " << a.loads.size() << " zones are the same.\n";
    return false;
  }
  table.Print(out);
  return true;
}

}  // namespace

std::vector<InputText> ReadInputs(OpenCase& windCase, const std::vector<InputKey>& keys) {
  const Inputs inputs(*windCase);
  std::vector<InputText> texts;
  for (const InputKey& key : keys) {
    std::string text;
    try {
      text = inputs.Read(inputs.Find(key).front());
    } catch (const orve::Error&) {
      // A zone's coefficient that this case, or its engine, doesn't have.
    }
    texts.emplace_back(key.Text(true), text);
  }
  return texts;
}

CaseRecord RecordOf(OpenCase& windCase, const std::vector<InputKey>& keys) {
  return {orve::clsCommon().AppVersion(), ReadInputs(windCase, keys), ReadLoads(*windCase, {})};
}

bool PrintDifferences(std::ostream& out, const CaseRecord& a, const CaseRecord& b) {
  const bool inputs = PrintInputs(out, a, b);
  out << "\n";
  const bool loads = PrintLoads(out, a, b);
  return inputs || loads;
}

}  // namespace windcase
