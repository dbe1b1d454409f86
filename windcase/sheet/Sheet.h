// The calculation sheet of the open case: one self-contained HTML file that prints on A4.
#pragma once

#include <string>
#include <string_view>

namespace orve::sheet {

/// What the case doesn't hold: names for the head of the sheet. Empty ones leave a line to write on.
struct SheetOptions {
  std::string project;
  std::string author;
  std::string checker;
  std::string revision;
  std::string date;  ///< Empty for the day on which the case was last saved.
};

/// The sheet of the open case. The same case, options and version give the same bytes. Whatever the library
/// or an engine refuses is told at its place. Errors: 91 without a case.
std::string MakeSheet(const SheetOptions& options);

/// How a sheet stands to the open case.
struct SheetVerdict {
  bool isSheet = false;      ///< The text is a sheet at all.
  bool sameVersion = false;  ///< Made by this version of the program.
  bool sameDigest = false;   ///< Inputs and results are those of the open case.
  bool sameBytes = false;    ///< The sheet is the one that this case gives, to the byte.
  std::string printedDigest;
  std::string digest;  ///< That of the open case.
};

/// Compares a sheet with the open case: works the case out again with the names that the sheet bears.
SheetVerdict CheckSheet(std::string_view html);

}  // namespace orve::sheet
