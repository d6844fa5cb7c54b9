#include "cli_session_args.h"

#include <cstdio>
#include <string>

namespace tolmar::cli {

bool parseSessionArgs(const Args& args, bool allowAuto, SessionArgs& out) {
  bool haveFile = false;
  for (std::size_t i = 0; i < args.size(); ++i) {
    const std::string& a = args[i];
    std::string setArg;
    if (a == "--set") {
      if (i + 1 == args.size()) {
        std::fprintf(stderr, "tolmar-cli: --set needs SCREEN.CONTROL[=VALUE]\n");
        return false;
      }
      setArg = args[++i];
    } else if (a.rfind("--set=", 0) == 0) {
      setArg = a.substr(6);
    } else if (a == "--auto" && allowAuto) {
      out.autoPlanking = true;
      continue;
    } else if (a.size() > 1 && a[0] == '-') {
      std::fprintf(stderr, "tolmar-cli: unknown option %s\n", a.c_str());
      return false;
    } else if (!haveFile) {
      out.file = a;
      haveFile = true;
      continue;
    } else {
      std::fprintf(stderr, "tolmar-cli: one file only, %s is one too many\n", a.c_str());
      return false;
    }
    std::string error;
    out.sets.push_back(parseSet(setArg, error));
    if (!error.empty()) {
      std::fprintf(stderr, "tolmar-cli: %s\n", error.c_str());
      return false;
    }
  }
  if (!haveFile) {
    std::fprintf(stderr, "tolmar-cli: a hull file is needed\n");
    return false;
  }
  return true;
}

void printWarnings(const PipelineResult& r) {
  for (const Replacement& w : r.warnings)
    std::fprintf(stderr, "replaced: %s\n", describe(w).c_str());
  printFolds(r.board.folds, r.langue);
}

int prepareSessionHull(const SessionArgs& session, const char* command, HullStore& h,
                       PipelineResult& r) {
  PipelineOptions o;
  o.hullFile = session.file;
  o.sets = session.sets;
  o.autoPlanking = session.autoPlanking;
  r = prepareHull(h, o);
  printWarnings(r);
  if (r.status != 0) std::fprintf(stderr, "tolmar-cli %s: %s\n", command, r.error.c_str());
  return r.status;
}

void printFolds(const FoldReport& folds, int langue) {
  for (const FoldStretch& s : folds.stretches)
    std::fprintf(stderr, "warning: %s\n", foldSentence(s, langue).c_str());
}

}  // namespace tolmar::cli
