// What the command line asks for.
#pragma once

#include <string>
#include <vector>

namespace windcase {

enum class Command { New, Repair, Show, Set, Loads, Explain, Compare, Recent, Check, Batch, Sheet };

struct Options {
  Command command = Command::Show;
  std::string file;                      ///< The case; the folder of `Batch`.
  std::string other;                     ///< The second case of `Compare`.
  std::vector<std::string> assignments;  ///< KEY=VALUE.
  std::string area;                      ///< As typed; empty for all.
  std::string face;
  std::string zone;
  std::string results;  ///< Stored results of `Check`, results folder of `Batch`; empty for the default.
  std::string output;   ///< File of the sheet; empty for the case's own name with .html.
  std::string sheet;    ///< The sheet that `Check` compares with the case.
  std::string project;  ///< For the head of a sheet.
  std::string author;
  std::string checker;
  std::string revision;
  std::string date;
  int depth = 0;  ///< Levels of a tree that are shown; 0 for all.
  int jobs = 0;   ///< Worker processes; 0 for one per core.
  bool json = false;
  bool force = false;    ///< Write over an existing file.
  bool changed = false;  ///< Show only what differs from a new case.
  bool store = false;    ///< Store the results instead of comparing.
};

}  // namespace windcase
