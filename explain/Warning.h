// What a reader has to know before relying on a load. Each warning is made by one function.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

#include "Sources.h"
#include "core/Enumerations.h"
#include "external/WorstCaseSearch.h"

namespace orve::explain {

/// What a warning is about. A number keeps its meaning for good.
enum class WarningCode : std::int32_t {
  FigureConsistent = 1,        ///< Isn't confirmed, but agrees with what the text names.
  FigureRecalled = 2,          ///< Recalled only.
  FigureEngineChoice = 3,      ///< The engine's own choice.
  FigureSubstitute = 4,        ///< Taken from a substitute table.
  FigureWeakerThanPrint = 5,   ///< Weaker than a recalled figure. Values: the figure, the recalled one.
  GableFacesAcrossRidge = 10,  ///< The gable faces don't fit the ridge of a pitched roof.
  ZoneWithoutArea = 11,        ///< A length of the zone isn't above 0. Values: the lengths, metres.
  ExternalCaZero = 20,         ///< No diagonal of the wind area, so that the external load is 0.
  InternalCaZero = 21,         ///< No diagonal for internal pressure, so that the internal load is 0.
  InternalPressureZero = 22,   ///< No diagonal of the area whose q internal pressure takes; load 0.
  WindPressureZero = 23,       ///< q is 0 in every wind looked at, so that the load is 0.
  NoPairOfLoads = 24,          ///< Only one of external and internal load is present: overall load 0.
  WorstWindNotGreatest = 30,   ///< A wind within the window has a greater q Ca than the one served. Values:
                               ///< q Ca served, its angle, greatest q Ca, its angle; kN/m², degrees.
};

struct Warning {
  WarningCode code = WarningCode::FigureRecalled;
  std::string text;
  std::vector<double> values{};  ///< The numbers of the text, as the code says.

  bool operator==(const Warning&) const = default;
};

/// What has to be known of a figure with this source. The texts name table and factor but neither face nor
/// sector, so that the same fact reads the same everywhere.
std::vector<Warning> FigureWarnings(const std::string& name, const SourceRecord& source);

/// Of a zone whose lengths aren't all above 0; nothing for one that is there, or is the rest of its surface.
/// Errors: those of the reads.
std::optional<Warning> WarnOfZoneSize(BuildingAreas area, Faces face, std::int16_t zone);

/// Of a present external coefficient whose search found no wind; nothing if it found one.
std::optional<Warning> WarnOfExternalWind(const WorstCase& search);
/// The same for an internal coefficient, whose q and Ca have searches of their own.
std::vector<Warning> WarnOfInternalWind(const WorstCase& searchOfCa, const WorstCase& searchOfq);

/// Of an overall load, by its name, for which there is no pair of external and internal load.
Warning WarnOfMissingPair(const std::string& load, const std::string& reason);

/// Of a search that serves less than its greatest candidate.
std::optional<Warning> WarnOfWorstWind(const WorstCase& search, Faces windFace);

/// The gable faces of the open case that don't fit the ridge.
std::optional<Warning> WarnOfGableFaces();

}  // namespace orve::explain
