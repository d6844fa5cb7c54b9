#include "stability_source.h"

#include <cmath>
#include <cstdio>
#include <cstdlib>

#include "analysis/mass_screen.h"
#include "cli_session_args.h"
#include "hull/fold_check.h"
#include "mass_sets.h"
#include "screens/control.h"
#include "stability/stl_mesh.h"

namespace tolmar::cli {

bool optionNumber(const char* command, const std::string& option, const std::string& text,
                  double& out) {
  std::string t = text;
  for (char& c : t)
    if (c == ',') c = '.';
  char* end = nullptr;
  out = std::strtod(t.c_str(), &end);
  if (t.empty() || end != t.c_str() + t.size() || !std::isfinite(out)) {
    std::fprintf(stderr, "tolmar-cli %s: %s takes a number, not '%s'\n", command, option.c_str(),
                 text.c_str());
    return false;
  }
  return true;
}

int loadStabilitySource(const char* command, const Args& words, StabilitySource& out) {
  Args rest;
  std::optional<std::string> meshFile;
  for (std::size_t i = 0; i < words.size(); ++i) {
    if (words[i] == "--mesh") {
      if (i + 1 == words.size()) {
        std::fprintf(stderr, "tolmar-cli %s: --mesh needs an STL file\n", command);
        return 2;
      }
      meshFile = words[++i];
    } else {
      rest.push_back(words[i]);
    }
  }
  if (meshFile) {
    if (!rest.empty()) {
      std::fprintf(stderr, "tolmar-cli %s: --mesh takes no hull file, --auto or --set\n", command);
      return 2;
    }
    const stability::StlRead r = stability::readStlMesh(*meshFile, 1);
    if (!r.ok()) {
      std::fprintf(stderr, "tolmar-cli %s: %s: %s\n", command, meshFile->c_str(), r.error.c_str());
      return 2;
    }
    out.mesh = stability::fileHydroMesh(r.mesh);
    return 0;
  }

  SessionArgs s;
  if (!parseSessionArgs(rest, true, s)) return 2;
  std::vector<SetValue> hullSets, massSets;
  for (SetValue& v : s.sets) (v.screen == "mass1" ? massSets : hullSets).push_back(v);
  PipelineOptions o;
  o.hullFile = s.file;
  o.sets = hullSets;
  o.autoPlanking = s.autoPlanking;
  out.hull = std::make_unique<HullStore>();
  const PipelineResult p = prepareHull(*out.hull, o);
  printWarnings(p);
  if (p.status != 0) {
    std::fprintf(stderr, "tolmar-cli %s: %s\n", command, p.error.c_str());
    return p.status;
  }
  const FoldReport folds = checkFolds(*out.hull);
  if (folds.folded()) {
    std::fprintf(stderr, "tolmar-cli %s: %s\n", command, folds.message(1).c_str());
    return 2;
  }
  analysis::Mass1 mass;
  analysis::loadMass(mass, *out.hull);
  analysis::massActivated(mass, *out.hull);
  for (const SetValue& v : massSets)
    if (!typeIntoMass(mass, v)) {
      std::fprintf(stderr, "tolmar-cli %s: --set %s: mass1 has no such field\n", command,
                   v.arg.c_str());
      return 2;
    }
  analysis::calcMass(mass, *out.hull);
  return 0;
}

}  // namespace tolmar::cli
