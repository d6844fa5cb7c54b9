// The command line shared by `new` and `dump`: one file, --set (repeated),
// and for dump --auto.
#pragma once

#include <filesystem>
#include <vector>

#include "command.h"
#include "pipeline.h"

namespace tolmar::cli {

struct SessionArgs {
  std::filesystem::path file;
  std::vector<SetValue> sets;
  bool autoPlanking = false;
};

// Prints what is wrong on stderr and returns false for a bad command line.
// "--set X" and "--set=X" are both taken.
bool parseSessionArgs(const Args& args, bool allowAuto, SessionArgs& out);

// Every replaced field, then every stretch where the hull folds, one line
// each, on stderr.
void printWarnings(const PipelineResult& r);
// Reads the session's hull file into `h` and runs the screens on it with its
// --set values (and --auto), printing the warnings; on failure prints
// "tolmar-cli COMMAND: why" and returns the status to exit with, else 0.
int prepareSessionHull(const SessionArgs& session, const char* command, HullStore& h,
                       PipelineResult& r);
// Only the folds: "warning: Plank 1 folds under line 1 from X = ...".
void printFolds(const FoldReport& folds, int langue);

}  // namespace tolmar::cli
