#include "JsonText.h"

#include <cmath>
#include <limits>
#include <nlohmann/json.hpp>

#include "Failure.h"
#include "common/NumberText.h"

namespace windcase {

namespace {

using Json = nlohmann::ordered_json;
using orve::explain::Quantity;

// A record is flat; a file that isn't one may be nested so deep that no program can copy it.
constexpr int kDeepestRecord = 3;

// The number that the value's own decimal text stands for, so that a 32-bit 0.31 is written as 0.31; "inf",
// "-inf" or "nan" for what JSON has no number for.
Json NumberOf(float value) {
  if (!std::isfinite(value)) return orve::ShortestText(value);
  return orve::TextToDouble(orve::ShortestText(value));
}

Json LoadOf(const ZoneLoads& zone) {
  Json json{{"area", zone.area}, {"face", zone.face}, {"zone", zone.zone}, {"dimensions", zone.dimensions}};
  if (!zone.fault.empty()) {
    json["fault"] = zone.fault;
    return json;
  }
  json["external"] = zone.external;
  json["internal"] = zone.internal;
  json["overall"] = zone.overall;
  json["pressure"] = NumberOf(zone.pressure);
  json["suction"] = NumberOf(zone.suction);
  return json;
}

const std::string& StringOf(const Json& json) {
  return json.get_ref<const std::string&>();
}

float FloatOf(const Json& json) {
  using Limits = std::numeric_limits<float>;
  if (json.is_number()) {
    const double value = json.get<double>();
    return std::fabs(value) > double(Limits::max())
               ? std::copysign(Limits::infinity(), float(value > 0 ? 1 : -1))
               : static_cast<float>(value);
  }
  for (const float value : {Limits::infinity(), -Limits::infinity()})
    if (StringOf(json) == orve::ShortestText(value)) return value;
  return Limits::quiet_NaN();
}

ZoneLoads ZoneOf(const Json& json) {
  ZoneLoads zone;
  zone.area = StringOf(json.at("area"));
  zone.face = StringOf(json.at("face"));
  zone.zone = StringOf(json.at("zone"));
  zone.dimensions = StringOf(json.at("dimensions"));
  if (const auto fault = json.find("fault"); fault != json.end()) zone.fault = StringOf(*fault);
  if (!zone.fault.empty()) return zone;
  zone.external = StringOf(json.at("external"));
  zone.internal = StringOf(json.at("internal"));
  zone.overall = StringOf(json.at("overall"));
  zone.pressure = FloatOf(json.at("pressure"));
  zone.suction = FloatOf(json.at("suction"));
  return zone;
}

Json ParseFlat(const std::string& text, const std::string& name) {
  const auto refuseDepth = [&](int depth, Json::parse_event_t, const Json&) {
    if (depth > kDeepestRecord)
      throw Failure(ExitCode::File, name + " isn't a file of stored results: it is nested too deep");
    return true;
  };
  return Json::parse(text, refuseDepth);
}

Json LoadsOf(const std::vector<ZoneLoads>& loads) {
  Json json = Json::array();
  for (const ZoneLoads& zone : loads) json.push_back(LoadOf(zone));
  return json;
}

Json InputsOf(const std::vector<InputText>& inputs) {
  Json json = Json::object();
  for (const auto& [key, value] : inputs) json[key] = value;
  return json;
}

Json SourceOf(const orve::SourceRecord& source) {
  Json json{{"standard", source.standard},
            {"edition", source.edition},
            {"table", source.table},
            {"item", source.item},
            {"status", std::string(SourceStatusText(source.status))}};
  for (const orve::SourceAxis& axis : source.axes)
    json["axes"].push_back({{"name", axis.name},
                            {"unit", axis.unit},
                            {"low", axis.low},
                            {"high", axis.high},
                            {"fraction", axis.fraction}});
  if (!source.corners.empty()) json["corners"] = source.corners;
  if (!source.basis.empty()) json["basis"] = source.basis;
  // A blank counts as 0, but the table has no figure there.
  for (const std::size_t blank : source.blankCorners) json["corners"][blank] = nullptr;
  for (const orve::WeakerFigure& figure : source.weaker)
    json["weaker"].push_back({{"place", figure.place},
                              {"table", figure.table},
                              {"served", figure.served},
                              {"recalled", figure.recalled}});
  if (!source.replaces.empty()) json["replaces"] = source.replaces;
  if (!source.caution.empty()) json["caution"] = source.caution;
  if (!source.note.empty()) json["note"] = source.note;
  return json;
}

// A quantity below several others is written once; then only its number is.
class TreeWriter {
 public:
  Json Write(const Quantity& quantity) {
    const auto [place, isNew] = m_numbers.emplace(&quantity, m_numbers.size() + 1);
    if (!isNew) return {{"see", place->second}, {"symbol", quantity.symbol}};
    Json json{{"id", place->second}, {"symbol", quantity.symbol}, {"name", quantity.name}};
    if (quantity.value) json["value"] = NumberOf(static_cast<float>(*quantity.value));
    const auto add = [&json](const char* key, const std::string& text) {
      if (!text.empty()) json[key] = text;
    };
    add("unit", quantity.unit);
    add("text", quantity.text);
    add("formula", quantity.formula);
    add("numbers", quantity.numbers);
    add("note", quantity.note);
    add("clause", quantity.clause);
    if (quantity.layer == orve::explain::Layer::Input) json["input"] = true;
    if (quantity.source) json["source"] = SourceOf(*quantity.source);
    for (const auto& warning : quantity.warnings) json["warnings"].push_back(warning.text);
    for (const auto& child : quantity.children) json["children"].push_back(Write(*child));
    return json;
  }

 private:
  std::map<const Quantity*, std::size_t> m_numbers;
};

std::string TextOf(const Json& json) {
  return json.dump(2, ' ', false, Json::error_handler_t::replace) + "\n";
}

}  // namespace

std::string InputsJson(const std::vector<InputText>& inputs) {
  return TextOf(InputsOf(inputs));
}

std::string LoadsJson(const std::vector<ZoneLoads>& loads, const std::vector<std::string>& warnings) {
  return TextOf({{"unit", "kN/m\u00B2"}, {"loads", LoadsOf(loads)}, {"warnings", warnings}});
}

std::string TreeJson(const Quantity& tree) {
  return TextOf(TreeWriter().Write(tree));
}

std::string RecentJson(const std::vector<RecentCase>& cases) {
  Json json = Json::array();
  for (const RecentCase& recent : cases)
    json.push_back({{"location", recent.location},
                    {"isThere", recent.isThere},
                    {"description", recent.description},
                    {"modified", recent.modified}});
  return TextOf(json);
}

std::string RecordJson(const CaseRecord& record) {
  return TextOf(
      {{"version", record.version}, {"inputs", InputsOf(record.inputs)}, {"loads", LoadsOf(record.loads)}});
}

CaseRecord RecordOf(const std::string& text, const std::string& name) {
  try {
    const Json json = ParseFlat(text, name);
    CaseRecord record;
    record.version = StringOf(json.at("version"));
    for (const auto& [key, value] : json.at("inputs").get_ref<const Json::object_t&>())
      record.inputs.emplace_back(key, StringOf(value));
    for (const Json& zone : json.at("loads").get_ref<const Json::array_t&>())
      record.loads.push_back(ZoneOf(zone));
    return record;
  } catch (const Json::exception& error) {
    throw Failure(ExitCode::File, name + " isn't a file of stored results: " + error.what());
  }
}

}  // namespace windcase
