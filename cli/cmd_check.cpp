// tolmar-cli check: a hull file prepared as the program does, then the
// development check of every plate: how far each pattern is from the
// surface, how tightly the surface bends and whether plywood of the plate's
// thickness takes it.
#include <charconv>
#include <cmath>
#include <cstdio>
#include <memory>
#include <optional>
#include <string>

#include "cli_session_args.h"
#include "command.h"
#include "devcheck/plate_check.h"
#include "json_dump.h"
#include "pipeline.h"

namespace tolmar::cli {
namespace {

using nlohmann::json;
using namespace tolmar::devcheck;

struct CheckArgs {
  SessionArgs session;
  double factor = 1;
  double thicknessMm = 6;
};

// A plain decimal number (point or comma), finite; nothing otherwise.
std::optional<double> number(std::string s) {
  for (char& c : s)
    if (c == ',') c = '.';
  double v = 0;
  const auto [end, ec] = std::from_chars(s.data(), s.data() + s.size(), v);
  if (ec != std::errc() || end != s.data() + s.size() || !std::isfinite(v)) return std::nullopt;
  return v;
}

bool parseCheckArgs(const Args& args, CheckArgs& out) {
  Args rest;
  for (std::size_t i = 0; i < args.size(); ++i) {
    const std::string& a = args[i];
    if (a != "--factor" && a != "--thickness") {
      rest.push_back(a);
      continue;
    }
    if (i + 1 == args.size()) {
      std::fprintf(stderr, "tolmar-cli check: %s needs a value\n", a.c_str());
      return false;
    }
    const std::optional<double> v = number(args[++i]);
    if (a == "--factor") {
      if (!v || *v <= 0) {
        std::fprintf(stderr, "tolmar-cli check: --factor needs a number above 0, not \"%s\"\n",
                     args[i].c_str());
        return false;
      }
      out.factor = *v;
    } else {
      if (!v || *v < 0) {
        std::fprintf(stderr,
                     "tolmar-cli check: --thickness needs millimetres, 0 or more, not \"%s\"\n",
                     args[i].c_str());
        return false;
      }
      out.thicknessMm = *v;
    }
  }
  return parseSessionArgs(rest, true, out.session);
}

json plateJson(const PlateCheck& c) {
  return {{"name", c.name},
          {"with_lap", c.withLap},
          {"max_error_mm", 1000 * c.fit.maxError},
          {"max_error_mm_per_m", c.fit.errorPerMetre()},
          {"area_change_percent", c.fit.areaChangePercent()},
          {"min_radius_along_m", c.fit.minRadiusAlong},
          {"min_radius_along_at_x_m", c.alongX},
          {"min_radius_across_m", c.fit.minRadiusAcross},
          {"min_radius_across_at_x_m", c.acrossX},
          {"twist_deg_per_m", c.twistDegreesPerMetre()},
          {"thickness_mm", 1000 * c.thickness},
          {"thickness_assumed", c.thicknessAssumed},
          {"needed_radius_along_m", c.needed.alongGrain},
          {"needed_radius_across_m", c.needed.acrossGrain},
          {"verdict", verdictKey(c.verdict)},
          {"twisted", c.twisted},
          {"knuckles", c.fit.knuckles}};
}

int run(const Args& args) {
  CheckArgs a;
  if (!parseCheckArgs(args, a)) return 2;
  auto h = std::make_unique<HullStore>();
  PipelineResult r;
  if (const int status = prepareSessionHull(a.session, "check", *h, r)) return status;
  CheckOptions co;
  co.factor = a.factor;
  co.assumedThickness = a.thicknessMm / 1000;
  const CheckReport report = checkDevelopment(*h, co);
  if (report.folded) {
    std::fprintf(stderr, "tolmar-cli check: %s\n", report.message.c_str());
    return 2;
  }
  json plates = json::array();
  for (const PlateCheck& c : report.plates) plates.push_back(plateJson(c));
  json j;
  j["factor"] = report.factor;
  j["assumed_thickness_mm"] = a.thicknessMm;
  j["plates"] = std::move(plates);
  const std::string text = dumpJson(j) + "\n";
  std::fwrite(text.data(), 1, text.size(), stdout);
  return 0;
}

Register reg({"check",
              "HULL.D50 [--auto] [--set SCREEN.CONTROL=VALUE]... [--factor F] [--thickness MM]",
              "  Prepares the hull as `dump` does, then checks every developed plate (and\n"
              "  each lap-strake plate with its material): the worst length of the pattern\n"
              "  against the hull over edges, rungs and diagonals (mm and mm per metre),\n"
              "  the change of area (%), the tightest bends along and across and the twist,\n"
              "  and a verdict (fits, tight, will_not_bend) from the plywood bending table\n"
              "  with its radii times F (default 1; above 0).  A plate without a thickness\n"
              "  is judged at MM millimetres (default 6).  A folded hull is refused.",
              &run});

}  // namespace
}  // namespace tolmar::cli
