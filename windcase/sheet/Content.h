// What stands on a sheet, gathered from the open case before anything is laid out.
#pragma once

#include <Quantity.h>
#include <array>
#include <string>
#include <vector>

#include "Layout.h"
#include "Warnings.h"
#include "core/Enumerations.h"
#include "core/Records.h"

namespace orve::sheet {

inline constexpr std::array<Faces, 4> kFaces = {Faces::Face_1, Faces::Face_2, Faces::Face_3, Faces::Face_4};
/// Printed where a value can't be had.
inline constexpr const char* kRefused = "\u2013";

/// A text with the warnings that touch it.
struct Marked {
  std::string text;
  Marks marks;
};

/// An input as it was entered.
struct InputRow {
  std::string group;
  std::string name;
  Marked value;
  std::string unit;
  bool shown = true;  ///< False for one that plays no part in this case; the digest holds it all the same.
};

/// A table by wind sector: a column for each head.
struct SectorColumn {
  std::string symbol;  ///< As explain writes symbols.
  std::string name;
  std::string unit;
  std::array<Marked, 12> values;
};
struct SectorTable {
  std::string title;
  std::vector<SectorColumn> columns;
  std::array<double, 12> q{};  ///< For the rose; 0 where it was refused. The site's own table has none.
  bool hasRose = false;
};

/// A zone with its coefficients and loads, each text as the library gives it.
struct ZoneRow {
  std::int16_t zone = 0;
  std::string name;
  Marked dimensions;
  bool absent = false;   ///< A length isn't above 0.
  std::string windFrom;  ///< Number of the face that the wind blows on.
  Marked cpePressure, cpeSuction, q, Ca, external, internal, overall;
  float pressure = 0;  ///< Overall loads, kN/m².
  float suction = 0;
  ZoneSize size;              ///< On the whole surface, cantilevers included.
  explain::QuantityPtr tree;  ///< Null for a zone that was refused.
  Marks refusal;
};

/// The zones of one face.
struct FaceZones {
  Faces face = Faces::Face_1;
  std::vector<ZoneRow> rows;
  Marks refusal{};  ///< Why there are no zones.
};

/// The zone that governs one sign of an area's loads.
struct Governing {
  int face = -1;  ///< Position in `AreaZones::faces`; -1 if no zone has such a load.
  std::size_t row = 0;
  float load = 0;
};

struct AreaZones {
  BuildingAreas area = BuildingAreas::baRoof;
  std::string title;
  std::vector<FaceZones> faces;
  Governing pressure;
  Governing suction;

  const ZoneRow& Row(const Governing& governing) const {
    return faces[static_cast<std::size_t>(governing.face)].rows[governing.row];
  }
  /// The one with the greater load; none if no zone has a load.
  const Governing& Worst() const;
  float GreatestLoad() const;
};

/// A load chosen for a member, and the steps behind a stepped one.
struct MemberRow {
  std::string area;
  std::string face;
  std::string choice;
  Marked load;
  bool stepped = false;
  bool continuous = false;
  std::array<float, 3> loads{};
  std::array<float, 3> distances{};
  float span = 0;
  float average = 0;
  std::string endBay;
  std::string internalBay;
};

struct CantileverFace {
  Faces face = Faces::Face_1;
  std::vector<CantileverZones> zones;
  Marks refusal;
};

/// Plan and heights for the drawings, metres; angles in degrees.
struct BuildingForm {
  RoofTypes roofType = RoofTypes::Flat_roof_with_sharp_eaves;
  double length = 0;  ///< Along Faces 1 and 3.
  double width = 0;   ///< Along Faces 2 and 4.
  std::array<double, 4> wallHeight{};
  std::array<bool, 4> gable{};
  double parapetHeight = 0;
  double cantilever12 = 0;  ///< 0 without cantilevers.
  double cantilever34 = 0;
  bool orientationKnown = false;
  double orientation = 0;
};

struct Content {
  std::string description;
  std::string version;
  std::string modified;  ///< The day of the last save; empty for a case that wasn't saved.
  BuildingForm building;
  std::vector<InputRow> inputs;
  SectorTable siteData;
  std::vector<SectorTable> factors;
  std::vector<AreaZones> areas;
  std::vector<CantileverFace> cantilevers;
  std::vector<MemberRow> members;
  std::vector<std::string> sources;
  Warnings warnings;
  int refusals = 0;
  std::string digest;
};

/// Reads the open case. What the library or an engine refuses becomes a warning at its place. The cantilever
/// zone table of the case is worked out anew. Errors: 91 without a case.
Content GatherContent();

// Its parts.
BuildingForm ReadBuilding();
std::vector<InputRow> ReadInputs(Warnings& warnings);
SectorTable ReadSiteData(Warnings& warnings);
std::vector<SectorTable> ReadFactors(const std::vector<BuildingAreas>& areas, Warnings& warnings);
std::vector<BuildingAreas> ConsideredAreas();
AreaZones ReadZones(BuildingAreas area, Warnings& warnings);
std::vector<CantileverFace> ReadCantilevers(Warnings& warnings);
std::vector<MemberRow> ReadMembers(Warnings& warnings);
/// The tables that figures of these zones come from, each once.
std::vector<std::string> SourcesOf(const std::vector<AreaZones>& areas);

/// Inputs and results as one text, of which the digest is made.
std::string DigestText(const Content& content);

}  // namespace orve::sheet
