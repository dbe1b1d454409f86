#include "coefficients/TableCell.h"

#include <charconv>
#include <cmath>

namespace orve::coefficients {

namespace {

/// No coefficient of the standard comes near it: a figure beyond has lost its point.
constexpr double kLargestFigure = 5;

std::string CheckFigure(std::string_view word, double figure) {
  if (IsBlank(figure)) return Quoted(word) + " is not a number";
  if (std::fabs(figure) > kLargestFigure) return Quoted(word) + " is beyond 5, larger than any coefficient";
  return {};
}

std::string ReadPair(std::string_view suction, std::string_view pressure, Cell& cell) {
  if (suction != "-") {
    cell.suction = WordToNumber(suction);
    if (auto reason = CheckFigure(suction, cell.suction); !reason.empty()) return reason;
    if (cell.suction > 0) return "suction " + Quoted(suction) + " is above 0";
  }
  if (pressure != "-") {
    cell.pressure = WordToNumber(pressure);
    if (auto reason = CheckFigure(pressure, cell.pressure); !reason.empty()) return reason;
    if (cell.pressure < 0) return "pressure " + Quoted(pressure) + " is below 0";
  }
  return {};
}

std::string ReadSingle(std::string_view word, bool net, Cell& cell) {
  const double figure = WordToNumber(word);
  if (auto reason = CheckFigure(word, figure); !reason.empty()) return reason;
  if (figure == 0 && !net)
    return Quoted(word) + " doesn't say which case it is: write 0/- for suction, -/0 for pressure";
  (figure < 0 ? cell.suction : cell.pressure) = figure;
  return {};
}

}  // namespace

std::string Quoted(std::string_view word) {
  std::string text(1, '"');
  return text.append(word).append(1, '"');
}

double WordToNumber(std::string_view word) {
  if (word.size() > 1 && word[0] == '+' && word[1] != '-') word.remove_prefix(1);
  double value = 0;
  const char* const end = word.data() + word.size();
  const auto result = std::from_chars(word.data(), end, value, std::chars_format::fixed);
  if (result.ec != std::errc() || result.ptr != end || !std::isfinite(value)) return kBlank;
  return value;
}

std::string ReadCell(std::string_view word, bool net, Cell& cell) {
  cell = {.mark = Mark::Office, .pressureMark = Mark::Office};
  if (word == "-") return {};
  const std::size_t slash = word.find('/');
  std::string reason = slash == std::string_view::npos
                           ? ReadSingle(word, net, cell)
                           : ReadPair(word.substr(0, slash), word.substr(slash + 1), cell);
  if (reason.empty() && net && !IsBlank(cell.suction))
    reason = Quoted(word) + " holds a suction; this table's figures are net and positive";
  return reason;
}

}  // namespace orve::coefficients
