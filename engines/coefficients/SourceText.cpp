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
    default:
      return SourceStatus::Substitute;
  }
}

bool IsSubstitute(Mark mark) {
  return StatusOf(mark) == SourceStatus::Substitute;
}

/// What the status of a figure rests on, as read after the status.
std::string BasisOf(Mark mark, bool substitute, std::string_view ofBlock) {
  switch (mark) {
    case Mark::Recalled:
      return "with high confidence";
    case Mark::RecalledMedium:
      return "with medium confidence";
    case Mark::SubstituteTwice:
      return "read in two public copies";
    case Mark::SubstituteTwiceOfMore:
      return "read in two public copies, another differs";
    case Mark::Substitute:
      return "read in one public copy";
    case Mark::SubstituteOnceOfMore:
      return "read in one public copy, another differs";
    case Mark::SubstituteRecalled:
      return "as recalled";
    case Mark::Office:
      return substitute ? "from the office's table file" : "by the office's table file";
    default:
      return std::string(ofBlock);
  }
}

void AppendNote(std::string& note, std::string_view part) {
  if (part.empty()) return;
  if (!note.empty()) note += "; ";
  note += part;
}

/// Name of the table that a substitute is used for.
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

/// A corner figure, and what is known of it beside its status.
void TakeCorner(SourceRecord& record, const Reading& reading, bool upper) {
  const Figure& figure = reading.figure;
  if (upper ? figure.upperBlank : figure.lowerBlank) record.blankCorners.push_back(record.corners.size());
  record.corners.push_back(upper ? figure.upperFigure : figure.lowerFigure);
  const double stronger = upper ? figure.upperStronger : figure.lowerStronger;
  // On a row both corners are one.
  if (IsBlank(stronger) || (upper && reading.position.upper == reading.position.lower)) return;
  const Block& block = *reading.block;
  const double parameter = block.rows[upper ? reading.position.upper : reading.position.lower].parameter;
  record.weaker.push_back({"zone " + std::string(reading.column) + ", " + std::string(block.parameter) + " " +
                               InputText(parameter) + " degrees",
                           std::string(reading.table->name), record.corners.back(), stronger});
}

void AppendAxis(SourceRecord& record, const Reading& reading) {
  const Block& block = *reading.block;
  TakeCorner(record, reading, false);
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
  TakeCorner(record, reading, true);
}

/// A substitute has a basis of its own, whatever else the figures are known by.
void AppendStatus(SourceRecord& record, const Request& request, const Reading& reading) {
  const Mark mark = reading.figure.mark;
  // A curved roof has no table of its own: whatever it is read from is a substitute.
  const bool substitute = reading.origin->substitute || request.shape == Shape::Curved;
  record.status = substitute ? SourceStatus::Substitute : StatusOf(mark);
  record.basis = BasisOf(mark, substitute, reading.block ? reading.block->basis : std::string_view());
  if (!substitute) return;
  record.replaces = ReplacedTable(request.shape);
  record.caution = reading.origin->caution;
  if (!IsSubstitute(mark) && mark != Mark::Office)
    record.basis = "that is " + std::string(SourceStatusText(StatusOf(mark))) + " " + record.basis;
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
  if (reading.block)
    AppendAxis(record, reading);
  else
    record.corners.push_back(std::round(reading.value * 1e6) / 1e6);
  AppendStatus(record, request, reading);
  AppendNote(record.note, origin.remark);
  AppendNote(record.note, reading.note);
  return record;
}

}  // namespace orve::coefficients
