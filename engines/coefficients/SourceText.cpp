#include "coefficients/SourceText.h"

#include <cmath>

#include "coefficients/Refusal.h"

namespace orve::coefficients {

namespace {

SourceStatus StatusOf(Mark mark) {
  switch (mark) {
    case Mark::Confirmed:
    case Mark::Office:
      return SourceStatus::Confirmed;
    case Mark::Consistent:
      return SourceStatus::Consistent;
    case Mark::Recalled:
    case Mark::RecalledMedium:
      return SourceStatus::Recalled;
    case Mark::StandIn:
    case Mark::StandInRecalled:
    case Mark::StandInDiffering:
      break;
  }
  return SourceStatus::StandingIn;
}

std::string_view MarkNote(Mark mark) {
  switch (mark) {
    case Mark::RecalledMedium:
      return "confidence medium";
    case Mark::StandInRecalled:
      return "recalled";
    case Mark::StandInDiffering:
      return "two public copies read differ";
    default:
      return {};
  }
}

void AppendNote(std::string& note, std::string_view part) {
  if (part.empty()) return;
  if (!note.empty()) note += "; ";
  note += part;
}

/// Name of the table that a figure stands in for.
std::string_view ReplacedTable(Shape shape) {
  switch (shape) {
    case Shape::Walls:
      return "BS 6399-2 Table 5";
    case Shape::Flat:
      return "BS 6399-2 Table 8";
    case Shape::MonoPitched:
      return "BS 6399-2 Table 9";
    case Shape::DuoPitched:
      return "BS 6399-2 Table 10";
    case Shape::Hipped:
      return "BS 6399-2 Table 11";
    case Shape::Parapet:
      return "BS 6399-2 Table 21";
    case Shape::Curved:
      return "a table of curved roofs, which BS 6399-2 hasn't";
    case Shape::None:
      break;
  }
  return {};
}

void AppendAxis(SourceRecord& record, const Reading& reading) {
  const Block& block = *reading.block;
  record.corners.push_back(reading.figure.lowerFigure);
  if (block.rowCount < 2) return;
  if (!block.rows[0].name.empty())
    AppendNote(record.note,
               "0 " + std::string(block.rows[0].name) + ", 1 " + std::string(block.rows[1].name));
  SourceAxis axis;
  axis.name = block.parameter;
  if (axis.name == "pitch") axis.unit = "degrees";
  axis.low = block.rows[reading.position.lower].parameter;
  axis.high = block.rows[reading.position.upper].parameter;
  axis.fraction = reading.position.fraction;
  record.axes.push_back(std::move(axis));
  record.corners.push_back(reading.figure.upperFigure);
}

}  // namespace

SourceRecord SourceOf(const Request& request, const Reading& reading) {
  SourceRecord record;
  const Origin& origin = *reading.origin;
  record.standard = origin.standard;
  record.edition = origin.edition;
  record.table = origin.table.empty() ? reading.table->name : origin.table;
  if (reading.block && origin.table.empty()) record.table.append(", ").append(reading.block->heading);
  record.item = "zone " + std::string(request.letters) + " at Theta " + InputText(request.inputs.theta);
  if (reading.column != request.letters) record.item.append(", read at ").append(reading.column);
  record.item += reading.figure.suction ? ", suction" : ", pressure";
  record.status = StatusOf(reading.figure.mark);
  // A curved roof has no table of its own: whatever it is read from stands in.
  if (origin.standsIn || request.shape == Shape::Curved) record.status = SourceStatus::StandingIn;
  if (reading.block)
    AppendAxis(record, reading);
  else
    record.corners.push_back(std::round(reading.value * 1e6) / 1e6);
  if (record.status == SourceStatus::StandingIn)
    AppendNote(record.note, "stands in for " + std::string(ReplacedTable(request.shape)));
  AppendNote(record.note, MarkNote(reading.figure.mark));
  AppendNote(record.note, origin.remark);
  AppendNote(record.note, reading.note);
  return record;
}

}  // namespace orve::coefficients
