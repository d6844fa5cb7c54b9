// tolmar-cli offsets: a hull file taken through its screens as `dump` takes
// it, then for each plate the offsets to loft it onto plywood, as JSON on
// stdout and as a CSV file beside the hull file.
#include <cmath>
#include <cstdio>
#include <filesystem>
#include <memory>
#include <sstream>

#include "cli_session_args.h"
#include "command.h"
#include "development/developed_plate.h"
#include "development/panel_offsets.h"
#include "io/safe_write.h"
#include "json_dump.h"
#include "pipeline.h"
#include "printing/paper_setup.h"
#include "printing/pattern_pages.h"
#include "printing/pattern_plan.h"

namespace tolmar::cli {
namespace {

using nlohmann::json;

constexpr const char* kUsage =
    "HULL.D50 [--step-mm 100] [--plates p01,p02,...] [--csv FILE] [--lang fr|en] [--auto]\n"
    "      [--set SCREEN.CONTROL=VALUE]...";

struct OffsetArgs {
  double stepMm = 100;
  std::vector<std::string> plates;
  std::string csv;
  std::optional<int> langue;
};

int usage(const char* why) {
  std::fprintf(stderr, "tolmar-cli offsets: %s\nusage: tolmar-cli offsets %s\n", why, kUsage);
  return 2;
}

int parseArgs(const Args& args, OffsetArgs& o, SessionArgs& session) {
  Args rest;
  for (std::size_t i = 0; i < args.size(); ++i) {
    const std::string& a = args[i];
    auto value = [&]() -> const std::string* { return i + 1 < args.size() ? &args[++i] : nullptr; };
    if (a == "--step-mm") {
      const std::string* v = value();
      if (!v || !parsePaperNumber(*v, o.stepMm)) return usage("--step-mm needs millimetres");
    } else if (a == "--plates") {
      const std::string* v = value();
      std::stringstream names(v ? *v : "");
      for (std::string n; std::getline(names, n, ',');)
        if (!n.empty()) o.plates.push_back(n);
      if (o.plates.empty()) return usage("--plates needs names, as p01,p02,transom");
    } else if (a == "--csv") {
      const std::string* v = value();
      if (!v || v->empty()) return usage("--csv needs a file");
      o.csv = *v;
    } else if (a == "--lang") {
      const std::string* v = value();
      if (!v || (*v != "fr" && *v != "en")) return usage("--lang takes fr or en");
      o.langue = *v == "fr" ? 0 : 1;
    } else if (a == "--set") {
      rest.push_back(a);
      if (const std::string* v = value()) rest.push_back(*v);
    } else {
      rest.push_back(a);
    }
  }
  return parseSessionArgs(rest, true, session) ? 0 : 2;
}

// Hundredths of a millimetre.
double mm(double v) { return std::round(v * 100) / 100 + 0.0; }
json number(const std::optional<double>& v) { return v ? json(mm(*v)) : json(nullptr); }

json plateJson(const PanelOffsets& o, int langue) {
  const DevelopedPlate& p = *o.plate;
  json stations = json::array();
  for (const OffsetStation& s : o.stations) {
    json row = {{"at", mm(s.at)}, {"lower", number(s.lower)}, {"upper", number(s.upper)}};
    if (o.lapStrake) row["lap"] = number(s.lap);
    stations.push_back(std::move(row));
  }
  auto ends = [](const EdgeEnd(&e)[2]) {
    return json::array({{mm(e[0].at), mm(e[0].off)}, {mm(e[1].at), mm(e[1].off)}});
  };
  return {{"name", p.name},
          {"title", plateTitle(p, langue)},
          {"cutTwice", p.cutTwice},
          {"lapStrake", o.lapStrake},
          {"baselineMm", mm(o.baselineMm)},
          {"lowerEnds", ends(o.lowerEnds)},
          {"upperEnds", ends(o.upperEnds)},
          {"stations", std::move(stations)}};
}

std::string cell(const std::optional<double>& v) {
  if (!v) return "";
  char buf[32];
  std::snprintf(buf, sizeof buf, "%.2f", *v);
  return buf;
}

// plate,at_mm,lower_mm,upper_mm,lap_mm: one station a line, empty where an
// edge does not reach it.
std::string csvText(const std::vector<PanelOffsets>& all) {
  std::string t = "plate,at_mm,lower_mm,upper_mm,lap_mm\r\n";
  for (const PanelOffsets& o : all)
    for (const OffsetStation& s : o.stations)
      t += o.plate->name + "," + cell(s.at) + "," + cell(s.lower) + "," + cell(s.upper) + "," +
           cell(s.lap) + "\r\n";
  return t;
}

int run(const Args& args) {
  OffsetArgs a;
  SessionArgs session;
  if (const int status = parseArgs(args, a, session)) return status;
  auto h = std::make_unique<HullStore>();
  PipelineResult r;
  if (const int status = prepareSessionHull(session, "offsets", *h, r)) return status;
  const int langue = a.langue.value_or(h->langue == 0 ? 0 : 1);
  if (const std::string why = stepError(a.stepMm, langue); !why.empty()) {
    std::fprintf(stderr, "tolmar-cli offsets: %s\n", why.c_str());
    return 2;
  }
  const std::vector<DevelopedPlate> plates = developAll(*h);
  std::vector<std::string> unknown;
  const auto chosen = choosePlates(plates, a.plates, unknown);
  if (!unknown.empty()) {
    std::string names;
    for (const DevelopedPlate& d : plates) names += " " + d.name;
    std::fprintf(stderr, "tolmar-cli offsets: no plate '%s'; the plates are:%s\n",
                 unknown.front().c_str(), names.c_str());
    return 2;
  }
  std::vector<PanelOffsets> all;
  for (const DevelopedPlate* p : chosen) all.push_back(panelOffsets(*p, a.stepMm));

  namespace fs = std::filesystem;
  const fs::path hull(session.file);
  const std::string csv =
      a.csv.empty() ? (hull.parent_path() / (hull.stem().string() + "_offsets.csv")).string()
                    : a.csv;
  if (const io::WriteResult w = io::writeFileSafely(csv, csvText(all)); !w.ok()) {
    std::fprintf(stderr, "tolmar-cli offsets: cannot write %s: %s\n", csv.c_str(),
                 w.message.c_str());
    return 1;
  }
  json doc = {{"hull", h->hullName}, {"stepMm", a.stepMm}, {"csv", csv}};
  json list = json::array();
  for (const PanelOffsets& p : all) list.push_back(plateJson(p, langue));
  doc["plates"] = std::move(list);
  const std::string text = dumpJson(doc) + "\n";
  std::fwrite(text.data(), 1, text.size(), stdout);
  return 0;
}

Register reg({"offsets", kUsage,
              "  Opens a hull file and passes its screens as `dump` does, then gives for each\n"
              "  plate and end plate (the decks when named by --plates) the offsets to loft it\n"
              "  onto plywood: a baseline along the chord of its lower edge, stations every\n"
              "  --step-mm along it and at both ends, and at each the distance in mm, square\n"
              "  to the baseline, to the lower and upper edge and to the lap line of a\n"
              "  lap-strake plank.  JSON on stdout; the same as CSV in --csv FILE, by\n"
              "  default HULL_offsets.csv beside the hull file.  Status 1: a file cannot be\n"
              "  read or written; 2: a bad step, plate or command line, or a screen that\n"
              "  does not pass.",
              &run});

}  // namespace
}  // namespace tolmar::cli
