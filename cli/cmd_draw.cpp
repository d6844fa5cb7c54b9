// tolmar-cli draw: a hull file taken through its screens as `dump` takes
// it, then the board's picture of it written as PNG or SVG.
#ifdef TOLMAR_HAVE_QTDRAW

#include <QCoreApplication>
#include <QGuiApplication>
#include <cstdio>
#include <cstdlib>
#include <memory>
#include <optional>
#include <string>

#include "analysis/hydro_screen.h"
#include "cli_session_args.h"
#include "command.h"
#include "gui_application.h"
#include "number_arg.h"
#include "pipeline.h"
#include "qtdraw/hull_picture.h"
#include "text/number_format.h"

namespace tolmar::cli {
namespace {

bool parseSize(const std::string& s, QSize& out) {
  const auto x = s.find_first_of("xX");
  if (x == std::string::npos) return false;
  try {
    std::size_t n1 = 0, n2 = 0;
    const int w = std::stoi(s.substr(0, x), &n1);
    const int h = std::stoi(s.substr(x + 1), &n2);
    if (n1 != x || n2 != s.size() - x - 1 || w < 1 || h < 1 || w > 20000 || h > 20000) return false;
    out = QSize(w, h);
    return true;
  } catch (...) {
    return false;
  }
}

constexpr const char* kUsage =
    "HULL.D50 OUT.png|OUT.svg [--size WxH] [--station X] [--develop]\n"
    "            [--hydro-zwl Z | --hydro-disp V] [--auto] [--set SCREEN.CONTROL=VALUE]...";

int usage() {
  std::fprintf(stderr, "usage: tolmar-cli draw %s\n", kUsage);
  return 2;
}

// hydro1 run once as a user would: mode 1 at the waterline Z, or mode 0
// floating the hull at the displacement V.
void runHydro(HullStore& h, const std::string& zwl, const std::string& disp) {
  using namespace analysis;
  Hydro1 hydro;
  loadHydro(hydro);
  setHydroTexts(hydro, h);
  hydro.Text1(1).text = formatNumber(h.xFwd(0) / 100, "0.000");
  if (!zwl.empty()) {
    hydro.Text1(1).text = zwl;
    clickHydroOption(hydro, h, 1);
  } else {
    hydro.Text1(0).text = disp;
    clickHydroOption(hydro, h, 0);
  }
}

int run(const Args& args) {
  std::vector<std::string> files;
  qtdraw::PictureOptions pic;
  PipelineOptions o;
  std::string zwl, disp;
  for (std::size_t i = 0; i < args.size(); ++i) {
    const std::string& a = args[i];
    if (a == "--develop") {
      pic.develop = true;
    } else if (a == "--auto") {
      o.autoPlanking = true;
    } else if (a == "--size" || a == "--station" || a == "--hydro-zwl" || a == "--hydro-disp" ||
               a == "--set") {
      if (i + 1 >= args.size()) return usage();
      const std::string& v = args[++i];
      if (a == "--station") {
        pic.station = v;
      } else if (a == "--hydro-zwl" || a == "--hydro-disp") {
        const bool z = a == "--hydro-zwl";
        if (!numberArg("draw", a, v, z ? NumberRange{-1000, 1000} : NumberRange{0, 1e6},
                       z ? "a height of -1000 to 1000 m" : "a volume of 0 to 1e6 m3"))
          return 2;
        (z ? zwl : disp) = v;
        if (!zwl.empty() && !disp.empty()) return usage();
        pic.waterline = true;
      } else if (a == "--set") {
        std::string error;
        SetValue set = parseSet(v, error);
        if (!error.empty()) {
          std::fprintf(stderr, "tolmar-cli draw: %s\n", error.c_str());
          return 2;
        }
        o.sets.push_back(std::move(set));
      } else if (!parseSize(v, pic.dots)) {
        std::fprintf(stderr, "tolmar-cli draw: bad size '%s', want WxH, 1..20000 each\n",
                     v.c_str());
        return 2;
      }
    } else if (a.rfind("--", 0) == 0) {
      return usage();
    } else {
      files.push_back(a);
    }
  }
  if (files.size() != 2) return usage();
  const QString out = QString::fromStdString(files[1]).toLower();
  if (!out.endsWith(".png") && !out.endsWith(".svg")) {
    std::fprintf(stderr, "tolmar-cli draw: the picture must end in .png or .svg: %s\n",
                 files[1].c_str());
    return 2;
  }

  o.hullFile = files[0];
  auto h = std::make_unique<HullStore>();
  const PipelineResult r = prepareHull(*h, o);
  if (r.status != 0) {
    std::fprintf(stderr, "tolmar-cli draw: %s\n", r.error.c_str());
    return r.status;
  }
  printFolds(r.board.folds, r.langue);
  pic.stepIndex = r.board.stepIndex;
  if (pic.waterline) runHydro(*h, zwl, disp);

  // The fonts need a GUI application; without a display the offscreen
  // platform serves.
  const auto app = guiApplication();
  const std::string error = qtdraw::writeHullPicture(*h, files[1], pic);
  if (!error.empty()) {
    std::fprintf(stderr, "tolmar-cli draw: %s\n", error.c_str());
    return 1;
  }
  return 0;
}

Register reg({"draw", kUsage,
              "  Opens a hull file and passes its screens as `dump` does (--auto and --set as\n"
              "  there), redraws the board on a picture of W x H dots (1600x1000 unless given;\n"
              "  15 twips a dot) and writes it as PNG or SVG, after the extension.  --station X\n"
              "  draws the station nearest to X metres over the profile, as Draw station does;\n"
              "  --develop draws the plates as Develop does; --hydro-zwl Z (integrate at the\n"
              "  waterline Z) or --hydro-disp V (float at V m3) runs the hydrostatics and draws\n"
              "  the water line and centres, as leaving hydro1 does.  Status 1: a file cannot\n"
              "  be read or written; 2: a screen does not pass or the command line is wrong.",
              &run});

}  // namespace
}  // namespace tolmar::cli

#endif  // TOLMAR_HAVE_QTDRAW
