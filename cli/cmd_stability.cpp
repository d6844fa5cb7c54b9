// tolmar-cli stability: the righting-arm curve with free trim, its marks
// and the crew's heel, for a hull file (centre of gravity from the mass
// budget unless typed) or a closed STL mesh; JSON or CSV.
#include <cmath>
#include <cstdio>
#include <nlohmann/json.hpp>
#include <optional>
#include <string>

#include "command.h"
#include "json_dump.h"
#include "stability/stability_run.h"
#include "stability_source.h"

namespace tolmar::cli {
namespace {

using nlohmann::json;
using namespace tolmar::stability;

constexpr const char* kName = "stability";

struct StabilityArgs {
  StabilityOptions o;
  bool massAsked = false;
  TableFormat format = TableFormat::json;
  Args sourceWords;
};

bool parseAngles(const std::string& text, StabilityOptions& o) {
  double v[3];
  std::size_t start = 0;
  for (int k = 0; k < 3; ++k) {
    const std::size_t colon = text.find(':', start);
    if ((k < 2) != (colon != std::string::npos)) break;
    if (!optionNumber(kName, "--angles", text.substr(start, colon - start), v[k])) return false;
    if (k == 2) {
      o.fromDeg = v[0];
      o.toDeg = v[1];
      o.stepDeg = v[2];
      return true;
    }
    start = colon + 1;
  }
  std::fprintf(stderr, "tolmar-cli stability: --angles takes FROM:TO:STEP in degrees, not '%s'\n",
               text.c_str());
  return false;
}

bool parseCrew(const std::string& text, StabilityOptions& o) {
  const std::size_t colon = text.find(':');
  double kg = 0, y = 0;
  if (!optionNumber(kName, "--crew", text.substr(0, colon), kg)) return false;
  o.crewKg = kg;
  if (colon != std::string::npos) {
    if (!optionNumber(kName, "--crew", text.substr(colon + 1), y)) return false;
    o.crewY = y;
  }
  return true;
}

// Returns 0, or the exit status of a bad command line.
int parseArgs(const Args& args, StabilityArgs& a) {
  for (std::size_t i = 0; i < args.size(); ++i) {
    const std::string& w = args[i];
    auto value = [&]() -> const std::string* { return i + 1 < args.size() ? &args[++i] : nullptr; };
    double v = 0;
    if (w == "--disp" || w == "--lcg" || w == "--kg" || w == "--density") {
      const std::string* t = value();
      if (!t) {
        std::fprintf(stderr, "tolmar-cli stability: %s needs a value\n", w.c_str());
        return 2;
      }
      if (!optionNumber(kName, w, *t, v)) return 2;
      if (w == "--disp")
        a.o.volume = v;
      else if (w == "--lcg")
        a.o.lcg = v;
      else if (w == "--kg")
        a.o.kg = v;
      else
        a.o.density = v;
    } else if (w == "--angles" || w == "--crew") {
      const std::string* t = value();
      if (!t) {
        std::fprintf(stderr, "tolmar-cli stability: %s needs a value\n", w.c_str());
        return 2;
      }
      if (!(w == "--angles" ? parseAngles(*t, a.o) : parseCrew(*t, a.o))) return 2;
    } else if (w == "--equip-z") {
      const std::string* t = value();
      const std::size_t eq = t ? t->find('=') : std::string::npos;
      double row = 0, z = 0;
      if (eq == std::string::npos || !optionNumber(kName, w, t->substr(0, eq), row) ||
          !optionNumber(kName, w, t->substr(eq + 1), z) || row < 13 || row > 18 ||
          row != std::floor(row)) {
        std::fprintf(stderr, "tolmar-cli stability: --equip-z takes ROW=Z, ROW 13..18\n");
        return 2;
      }
      a.o.equipHeights[static_cast<std::size_t>(row) - 13] = z;
    } else if (w == "--mass") {
      a.massAsked = true;
    } else if (w == "--json") {
      a.format = TableFormat::json;
    } else if (w == "--csv") {
      a.format = TableFormat::csv;
    } else if (w == "--set" || w == "--mesh") {
      a.sourceWords.push_back(w);
      if (const std::string* t = value()) a.sourceWords.push_back(*t);
    } else {
      a.sourceWords.push_back(w);
    }
  }
  if (a.massAsked && a.o.volume) {
    std::fprintf(stderr, "tolmar-cli stability: --disp or --mass, not both\n");
    return 2;
  }
  return 0;
}

json optional(const std::optional<double>& v) { return v ? json(*v) : json(nullptr); }

const char* sourceName(GSource s) {
  return s == GSource::typed ? "typed" : s == GSource::massBudget ? "mass budget" : "buoyancy";
}

json resultJson(const StabilityResult& r, bool fromHull) {
  json j;
  j["source"] = fromHull ? "hull" : "mesh";
  j["keel_z_m"] = r.keelZ;
  j["density_t_m3"] = r.load.density;
  j["displacement_m3"] = r.load.volume;
  j["displacement_kg"] = r.load.massKg();
  j["displacement_from"] = sourceName(r.volumeFrom);
  j["lcg_m"] = r.lcg;
  j["lcg_from"] = sourceName(r.lcgFrom);
  j["kg_m"] = r.kg;
  j["kg_from"] = sourceName(r.kgFrom);
  if (r.budget) {
    json rows = json::array();
    for (const MassItem& i : r.budget->items) {
      json row = {{"row", i.row}, {"mass_kg", i.mass}, {"x_m", i.x}, {"z_m", i.z - r.keelZ}};
      if (i.plank >= 0) row["plank"] = i.plank;
      rows.push_back(row);
    }
    j["mass_rows"] = rows;
  }
  json gz = json::array();
  for (const GzPoint& p : r.gz) {
    json row = {{"heel_deg", p.heel}, {"floats", p.floats}};
    if (p.floats) {
      row["gz_m"] = p.gz;
      row["draft_m"] = p.draft;
      row["pitch_deg"] = p.pitch;
      row["righting_moment_kgm"] = p.moment;
      row["freeboard_m"] = p.freeboard;
    } else {
      for (const char* k : {"gz_m", "draft_m", "pitch_deg", "righting_moment_kgm", "freeboard_m"})
        row[k] = nullptr;
    }
    gz.push_back(row);
  }
  j["gz"] = gz;
  const StabilitySummary& s = r.summary;
  j["gm_m"] = optional(s.gm);
  j["max_gz_m"] = optional(s.maxGz);
  j["max_gz_deg"] = optional(s.maxGzHeel);
  j["vanishing_deg"] = optional(s.vanishing);
  j["deck_edge_deg"] = optional(s.deckEdge);
  j["area_30_mrad"] = optional(s.area30);
  j["area_40_mrad"] = optional(s.area40);
  if (r.crewAsked) {
    j["crew_kg"] = r.crewKg;
    j["crew_y_m"] = r.crewY;
    j["crew_rests"] = r.crew.rests;
    j["crew_heel_deg"] = r.crew.rests ? json(r.crew.heel) : json(nullptr);
    j["crew_freeboard_m"] = r.crew.rests ? json(r.crew.freeboard) : json(nullptr);
  } else {
    j["crew_heel_deg"] = nullptr;
    j["crew_freeboard_m"] = nullptr;
  }
  return j;
}

std::string csvNumber(const json& v) {
  if (v.is_null()) return {};
  if (v.is_boolean()) return v.get<bool>() ? "1" : "0";
  if (v.is_string()) return v.get<std::string>();
  char buf[40];
  std::snprintf(buf, sizeof buf, "%.9g", v.get<double>());
  return buf;
}

// The curve's rows under a header, then a blank line and the marks as
// key,value rows.
std::string resultCsv(const json& j) {
  std::string out = "heel_deg,floats,gz_m,draft_m,pitch_deg,righting_moment_kgm,freeboard_m\n";
  for (const json& row : j["gz"]) {
    bool first = true;
    for (const char* k : {"heel_deg", "floats", "gz_m", "draft_m", "pitch_deg",
                          "righting_moment_kgm", "freeboard_m"}) {
      if (!first) out += ',';
      out += csvNumber(row[k]);
      first = false;
    }
    out += '\n';
  }
  out += "\nkey,value\n";
  for (const auto& [k, v] : j.items())
    if (!v.is_array()) out += k + "," + csvNumber(v) + "\n";
  return out;
}

int run(const Args& args) {
  StabilityArgs a;
  if (const int status = parseArgs(args, a)) return status;
  StabilitySource src;
  if (const int status = loadStabilitySource(kName, a.sourceWords, src)) return status;
  const StabilityResult r =
      src.hull ? runStability(*src.hull, a.o, 1) : runStability(*src.mesh, a.o, 1);
  if (!r.ok()) {
    std::fprintf(stderr, "tolmar-cli stability: %s\n", r.error.c_str());
    return 2;
  }
  const json j = resultJson(r, src.hull != nullptr);
  const std::string text = a.format == TableFormat::json ? dumpJson(j) + "\n" : resultCsv(j);
  std::fwrite(text.data(), 1, text.size(), stdout);
  return 0;
}

Register reg(
    {"stability",
     "(HULL.D50 | --mesh FILE.stl) [--disp M3 | --mass [--set mass1.CONTROL=VALUE]...]\n"
     "            [--lcg X] [--kg Z] [--equip-z ROW=Z]... [--density 1.025] [--angles 0:180:5]\n"
     "            [--crew KG[:Y]]\n"
     "            [--json | --csv] [--auto] [--set SCREEN.CONTROL=VALUE]...",
     "  The righting-arm (GZ) curve with free trim: at each heel the draft and\n"
     "  pitch are solved so that the hull displaces the displacement with its\n"
     "  centre of buoyancy on the vertical through G.  Heel towards starboard\n"
     "  (+Y), degrees, FROM:TO:STEP within 0..180.  Heights (--kg, kg_m, z_m)\n"
     "  are metres ABOVE THE LOWEST POINT OF THE HULL (the keel); X (--lcg) in\n"
     "  the hull's axes from the transom.  For a hull the displacement (m3) and\n"
     "  G come from its mass budget (mass1, --set mass1.Text3(13)=80 types into\n"
     "  it) unless --disp, --lcg, --kg are given; the displacement in m3 is the\n"
     "  mass / (1000 x density).  Each plate of the budget stands at the centre of\n"
     "  its own area on the hull; an equipment row (13..18) on the keel at its X\n"
     "  unless --equip-z ROW=Z gives its height.  A mesh (metres, X forward, Y to\n"
     "  starboard, Z up; closed, ASCII or binary STL) needs --disp and --kg; its\n"
     "  LCG defaults to the upright centre of buoyancy.  --crew KG[:Y]: a crew,\n"
     "  part of the displacement, moved to Y m from the centre plane (default the\n"
     "  half beam at the sheer at LCG): crew_heel_deg and the lowest freeboard\n"
     "  there.\n"
     "  JSON (default): gz rows (heel_deg, gz_m, draft_m = depth of the deepest\n"
     "  point, pitch_deg bow down, righting_moment_kgm, freeboard_m; null where\n"
     "  the hull cannot float: floats false), gm_m, max_gz_m, max_gz_deg,\n"
     "  vanishing_deg, deck_edge_deg, area_30_mrad, area_40_mrad, crew_heel_deg,\n"
     "  crew_freeboard_m (null when not found).  --csv: the gz rows, a blank\n"
     "  line, then key,value rows.  Status 2: bad input (a hull that folds or\n"
     "  sinks, KG above the sheer, an open mesh, a file that is not an STL).",
     &run});

}  // namespace
}  // namespace tolmar::cli
