// tolmar-cli hydro: a hull file prepared as the program does, then the
// hydrostatics screen run once: floated at a displacement (mode 0, trimmed
// to the mass budget's centre of mass with --mass) or at a waterline
// (mode 1).  Prints hydro1's fields as shown, the store's results and, with
// --mass, every row of mass1 as shown.
#include <cstdio>
#include <memory>
#include <optional>
#include <string>

#include "analysis/hydro_screen.h"
#include "analysis/mass_screen.h"
#include "cli_session_args.h"
#include "command.h"
#include "json_dump.h"
#include "mass_sets.h"
#include "number_arg.h"
#include "pipeline.h"
#include "text/number_format.h"

namespace tolmar::cli {
namespace {

using nlohmann::json;
using namespace tolmar::analysis;

struct HydroArgs {
  std::string file;
  std::optional<std::string> disp, zwl;
  std::string pitch = "0";
  bool mass = false;
  bool autoPlanking = false;
  std::vector<SetValue> hullSets, massSets;
};

bool parseHydroArgs(const Args& args, HydroArgs& out) {
  Args rest;
  for (std::size_t i = 0; i < args.size(); ++i) {
    const std::string& a = args[i];
    auto value = [&](const char* what) -> std::optional<std::string> {
      if (i + 1 == args.size()) {
        std::fprintf(stderr, "tolmar-cli hydro: %s needs a value\n", what);
        return std::nullopt;
      }
      return args[++i];
    };
    if (a == "--disp" || a == "--zwl" || a == "--pitch") {
      const auto v = value(a.c_str());
      if (!v) return false;
      if (a == "--disp")
        out.disp = *v;
      else if (a == "--zwl")
        out.zwl = *v;
      else
        out.pitch = *v;
    } else if (a == "--mass") {
      out.mass = true;
    } else {
      rest.push_back(a);
    }
  }
  SessionArgs s;
  if (!parseSessionArgs(rest, true, s)) return false;
  out.file = s.file.string();
  out.autoPlanking = s.autoPlanking;
  for (SetValue& v : s.sets) (v.screen == "mass1" ? out.massSets : out.hullSets).push_back(v);
  if (out.disp && out.zwl) {
    std::fprintf(stderr, "tolmar-cli hydro: --disp or --zwl, not both\n");
    return false;
  }
  if (!out.disp && !out.zwl && !out.mass) {
    std::fprintf(stderr, "tolmar-cli hydro: --disp M3, --zwl Z or --mass is needed\n");
    return false;
  }
  // The screen reads what it is given; the command line refuses what would
  // float the hull on its side or at no finite size.
  if (out.disp && !numberArg("hydro", "--disp", *out.disp, {0, 1e6}, "a volume of 0 to 1e6 m3"))
    return false;
  if (out.zwl &&
      !numberArg("hydro", "--zwl", *out.zwl, {-1000, 1000}, "a height of -1000 to 1000 m"))
    return false;
  if (!numberArg("hydro", "--pitch", out.pitch, {-45, 45, true},
                 "degrees strictly between -45 and 45"))
    return false;
  if (!out.massSets.empty() && !out.mass) {
    std::fprintf(stderr, "tolmar-cli hydro: --set mass1.* needs --mass\n");
    return false;
  }
  return true;
}

json fieldJson(const Field& f) { return {{"text", f.text}, {"backColor", f.backColor}}; }

json massRows(const Mass1& m) {
  json rows = json::array();
  auto row = [&](int r) {
    json j = {{"row", r}, {"caption", m.Label3(r).caption}};
    if (m.Text1(r).visible) j["Text1"] = m.Text1(r).text;
    if (m.Text2(r).visible) j["Text2"] = m.Text2(r).text;
    if (m.Text3(r).visible) j["Text3"] = m.Text3(r).text;
    if (m.Text4(r).visible) j["Text4"] = m.Text4(r).text;
    rows.push_back(std::move(j));
  };
  for (int r : kMassTableRows) row(r);
  row(0);
  return rows;
}

json pointArray(const PointArr& a) {
  json j = json::array();
  for (int i = 0; i <= kLastPoint; ++i) j.push_back(a(i));
  return j;
}

int run(const Args& args) {
  HydroArgs a;
  if (!parseHydroArgs(args, a)) return 2;
  PipelineOptions o;
  o.hullFile = a.file;
  o.sets = a.hullSets;
  o.autoPlanking = a.autoPlanking;
  auto h = std::make_unique<HullStore>();
  const PipelineResult r = prepareHull(*h, o);
  printWarnings(r);
  if (r.status != 0) {
    std::fprintf(stderr, "tolmar-cli hydro: %s\n", r.error.c_str());
    return r.status;
  }

  Mass1 mass;
  if (a.mass) {
    loadMass(mass, *h);
    massActivated(mass, *h);
    for (const SetValue& v : a.massSets) {
      if (!typeIntoMass(mass, v)) {
        std::fprintf(stderr, "tolmar-cli hydro: --set %s: mass1 has no such field\n",
                     v.arg.c_str());
        return 2;
      }
    }
    calcMass(mass, *h);
  }

  Hydro1 hydro;
  loadHydro(hydro);
  setHydroTexts(hydro, *h);
  hydro.Text3(0).text = a.pitch;
  hydro.Text1(1).text = formatNumber(h->xFwd(0) / 100, "0.000");
  if (a.zwl) {
    hydro.Text1(1).text = *a.zwl;
    clickHydroOption(hydro, *h, 1);
  } else {
    hydro.Text1(0).text = a.disp ? *a.disp : formatNumber(h->totalMass / 1000, "0.000");
    clickHydroOption(hydro, *h, 0);
  }

  json j;
  j["hydro1"] = {{"mode", hydro.mode},
                 {"Text1(0)", fieldJson(hydro.Text1(0))},
                 {"Text1(1)", fieldJson(hydro.Text1(1))},
                 {"Text3(0)", fieldJson(hydro.Text3(0))},
                 {"Label2(0)",
                  {{"caption", hydro.Label2(0).caption}, {"backColor", hydro.Label2(0).backColor}}},
                 {"Label2(1)", {{"caption", hydro.Label2(1).caption}}}};
  j["pitch"] = h->pitch;
  j["dispTarget"] = h->dispTarget;
  j["xDisp"] = h->xDisp;
  j["yDisp"] = h->yDisp;
  j["zDisp"] = h->zDisp;
  j["totalMass"] = h->totalMass;
  j["xMass"] = h->xMass;
  j["immersedChine"] = hydro.immersedChine;
  j["V"] = hydro.last.sums.V;
  j["Aw"] = hydro.last.sums.Aw;
  j["outerPasses"] = hydro.last.outerPasses;
  j["countedPasses"] = hydro.last.innerPasses;
  j["wlX"] = pointArray(h->wlX);
  j["wlY"] = pointArray(h->wlY);
  j["wlZ"] = pointArray(h->wlZ);
  j["sectArea"] = pointArray(h->sectArea);
  if (a.mass) j["mass1"] = massRows(mass);
  const std::string text = dumpJson(j) + "\n";
  std::fwrite(text.data(), 1, text.size(), stdout);
  return 0;
}

Register reg(
    {"hydro",
     "HULL.D50 (--disp M3 | --zwl Z) [--pitch DEG] [--mass] [--set mass1.CONTROL=VALUE]...\n"
     "            [--auto] [--set SCREEN.CONTROL=VALUE]...",
     "  Prepares the hull as `dump` does, then runs the hydrostatics screen once:\n"
     "  --disp floats it at a displacement in m3 (the solver, starting from a\n"
     "  waterline at a hundredth of the length), --zwl integrates at a waterline\n"
     "  height in m; --pitch gives the pitch in degrees (default 0).  --mass runs\n"
     "  the mass budget first, with any --set mass1.Text1(r)=VALUE typed into its\n"
     "  fields: its centre of mass steers the pitch, and without --disp or --zwl\n"
     "  its total mass / 1000 is the displacement.  Other --set values go to the\n"
     "  hull screens, and --auto validates automatic planking, as for dump.  Prints hydro1's "
     "fields as shown, pitch (rad), dispTarget,\n"
     "  xDisp, yDisp, zDisp, totalMass, xMass, immersedChine, the comments, wlX,\n"
     "  wlY, wlZ, sectArea (points 0..82) and with --mass every row of mass1.",
     &run});

}  // namespace
}  // namespace tolmar::cli
