// tolmar-cli curves: the upright hydrostatic curves of a hull file or a
// closed STL mesh, a row per draft, JSON or CSV.
#include <cstdio>
#include <nlohmann/json.hpp>
#include <string>

#include "command.h"
#include "json_dump.h"
#include "stability/upright_curves.h"
#include "stability_source.h"

namespace tolmar::cli {
namespace {

using nlohmann::json;
using namespace tolmar::stability;

constexpr const char* kName = "curves";

// The columns, in the order of the CSV.
constexpr const char* kColumns[] = {"draft_m",   "volume_m3", "displacement_t",
                                    "lcb_m",     "kb_m",      "waterplane_m2",
                                    "lcf_m",     "bmt_m",     "bml_m",
                                    "kmt_m",     "kml_m",     "tpc_t_cm",
                                    "mct_tm_cm", "cb",        "cp",
                                    "cm",        "cwp",       "wetted_m2"};

json rowJson(const UprightRow& r) {
  const double v[] = {r.draft, r.volume, r.displacement, r.lcb, r.kb,  r.waterplane,
                      r.lcf,   r.bmt,    r.bml,          r.kmt, r.kml, r.tpc,
                      r.mct,   r.cb,     r.cp,           r.cm,  r.cwp, r.wetted};
  json j;
  for (std::size_t k = 0; k < std::size(kColumns); ++k) j[kColumns[k]] = v[k];
  return j;
}

int run(const Args& args) {
  double step = 0.02, density = kFreshWater;
  TableFormat format = TableFormat::json;
  Args words;
  for (std::size_t i = 0; i < args.size(); ++i) {
    const std::string& w = args[i];
    if (w == "--step" || w == "--density") {
      if (i + 1 == args.size()) {
        std::fprintf(stderr, "tolmar-cli curves: %s needs a value\n", w.c_str());
        return 2;
      }
      if (!optionNumber(kName, w, args[++i], w == "--step" ? step : density)) return 2;
    } else if (w == "--json" || w == "--csv") {
      format = w == "--json" ? TableFormat::json : TableFormat::csv;
    } else if (w == "--set" || w == "--mesh") {
      words.push_back(w);
      if (i + 1 < args.size()) words.push_back(args[++i]);
    } else {
      words.push_back(w);
    }
  }
  if (!(density >= 0.5 && density <= 2)) {
    std::fprintf(stderr, "tolmar-cli curves: the water density must lie between 0.5 and 2 t/m3\n");
    return 2;
  }
  StabilitySource src;
  if (const int status = loadStabilitySource(kName, words, src)) return status;
  const HydroMesh m = src.hull ? hullHydroMesh(*src.hull) : *src.mesh;
  if (!(m.volume > 0)) {
    std::fprintf(stderr, "tolmar-cli curves: the hull encloses no volume\n");
    return 2;
  }
  if (curveDrafts(m, step).empty()) {
    std::fprintf(stderr, "tolmar-cli curves: --step must be above 0 (%d drafts at most)\n",
                 kMaxCurveRows);
    return 2;
  }
  const std::vector<UprightRow> rows = uprightCurves(m, step, density);
  std::string text;
  if (format == TableFormat::json) {
    json j;
    j["source"] = src.hull ? "hull" : "mesh";
    j["keel_z_m"] = m.low.z;
    j["density_t_m3"] = density;
    j["rows"] = json::array();
    for (const UprightRow& r : rows) j["rows"].push_back(rowJson(r));
    text = dumpJson(j) + "\n";
  } else {
    for (std::size_t k = 0; k < std::size(kColumns); ++k)
      text += std::string(k ? "," : "") + kColumns[k];
    text += '\n';
    for (const UprightRow& r : rows) {
      const json j = rowJson(r);
      for (std::size_t k = 0; k < std::size(kColumns); ++k) {
        char buf[40];
        std::snprintf(buf, sizeof buf, "%s%.9g", k ? "," : "", j[kColumns[k]].get<double>());
        text += buf;
      }
      text += '\n';
    }
  }
  std::fwrite(text.data(), 1, text.size(), stdout);
  return 0;
}

Register reg({"curves",
              "(HULL.D50 | --mesh FILE.stl) [--step M] [--density 1.025] [--json | --csv]\n"
              "            [--auto] [--set SCREEN.CONTROL=VALUE]...",
              "  The upright hydrostatic curves, level keel, at drafts of --step m (default\n"
              "  0.02) from the lowest point of the hull up to the lowest point of its sheer\n"
              "  (the top of a mesh), the last row at the sheer itself.  Heights (draft_m,\n"
              "  kb_m, kmt_m, kml_m) are metres ABOVE THE LOWEST POINT OF THE HULL (the\n"
              "  keel); lcb_m and lcf_m are X in the hull's axes.  Per row: volume,\n"
              "  displacement (t at --density, default 1.000), LCB, KB, waterplane area,\n"
              "  LCF, BMt, BMl, KMt, KMl, TPC (t/cm), MCT 1 cm (t m/cm, GMl taken as BMl,\n"
              "  over the waterline's length), Cb, Cp, Cm, Cwp (on the waterline's length\n"
              "  and breadth and the largest section), wetted surface (m2).  The whole\n"
              "  hull is counted, overhangs of transom and stem included.  A mesh: as for\n"
              "  `stability`.",
              &run});

}  // namespace
}  // namespace tolmar::cli
