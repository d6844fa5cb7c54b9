// tolmar-cli dump: a hull file opened, its screens validated as a user
// would pass them, the board redrawn, and the store printed as JSON with
// the station tables and bevels that the redraw and the validation made.
#include <algorithm>
#include <cstdio>
#include <memory>

#include "cli_session_args.h"
#include "command.h"
#include "json_dump.h"
#include "pipeline.h"
#include "plates_json.h"
#include "store_json.h"

namespace tolmar::cli {
namespace {

using nlohmann::json;

const char* foldKindName(FoldKind k) {
  switch (k) {
    case FoldKind::under:
      return "under";
    case FoldKind::narrow:
      return "narrow";
    case FoldKind::across:
      return "across";
  }
  return "under";
}

// Rows 0..82 of a station table, section points 0..nChines + 9.
json stationRows(const StationTable& t, int lastColumn) {
  json rows = json::array();
  for (int p = 0; p <= kLastPoint; ++p) {
    json row = json::array();
    for (int j = 0; j <= lastColumn; ++j) row.push_back(t(p, j));
    rows.push_back(std::move(row));
  }
  return rows;
}

json dumpDocument(HullStore& h, const PipelineResult& r) {
  json j = storeJson(h);
  const int n = std::clamp<int>(h.nChines, 0, kMaxLine);
  j["stepIndex"] = r.board.stepIndex;
  j["stationX"] = stationRows(h.stationX, n + 9);
  j["stationY"] = stationRows(h.stationY, n + 9);
  j["stationZ"] = stationRows(h.stationZ, n + 9);
  json bevel = json::array();
  for (int line = 1; line <= n; ++line) {
    json row = json::array();
    for (int p = 0; p <= kLastPoint; ++p) row.push_back(h.bevelAngle(line, p));
    bevel.push_back(std::move(row));
  }
  j["bevelAngle"] = std::move(bevel);
  json warnings = json::array();
  for (const Replacement& w : r.warnings)
    warnings.push_back(
        {{"screen", w.screen}, {"control", w.control}, {"typed", w.typed}, {"kept", w.kept}});
  for (const FoldStretch& f : r.board.folds.stretches)
    warnings.push_back({{"fold", foldKindName(f.kind)},
                        {"plank", f.plank},
                        {"line", f.line},
                        {"fromPoint", f.fromPoint},
                        {"toPoint", f.toPoint},
                        {"fromX", f.fromX},
                        {"toX", f.toX},
                        {"depth", f.depth},
                        {"message", foldSentence(f, r.langue)}});
  j["warnings"] = std::move(warnings);
  const json plates = platesJson(h);
  for (auto it = plates.begin(); it != plates.end(); ++it) j[it.key()] = it.value();
  return j;
}

int run(const Args& args) {
  SessionArgs a;
  if (!parseSessionArgs(args, true, a)) return 2;
  auto h = std::make_unique<HullStore>();
  PipelineResult r;
  if (const int status = prepareSessionHull(a, "dump", *h, r)) return status;
  const std::string text = dumpJson(dumpDocument(*h, r)) + "\n";
  std::fwrite(text.data(), 1, text.size(), stdout);
  return 0;
}

Register reg({"dump", "HULL.D50 [--auto] [--set SCREEN.CONTROL=VALUE]...",
              "  Opens a hull file as the program does, validates bouchain1 with the values\n"
              "  the file gives (and any --set typed over them), then bouchain2, or bouchain3\n"
              "  with --auto or for more than six lines, redraws the board, and prints the\n"
              "  store as JSON with stepIndex, stationX/Y/Z (83 rows of nChines + 10 points),\n"
              "  bevelAngle (lines 1..nChines, points 0..82), the developed plates, decks\n"
              "  and end plates, and as warnings the replaced fields and every stretch where\n"
              "  the hull folds (fold: under, narrow or across; plank, line, fromPoint,\n"
              "  toPoint, fromX, toX, depth in m, message), also on stderr.  Status 1: the\n"
              "  file cannot be read; 2: a screen does not pass.",
              &run});

}  // namespace
}  // namespace tolmar::cli
