// tolmar-cli draw3d: the hull as the 3-D view shows it, rendered off
// screen with OpenGL into a PNG.
#ifdef TOLMAR_HAVE_QTDRAW

#include <QBuffer>
#include <QCoreApplication>
#include <QGuiApplication>
#include <QImage>
#include <QOffscreenSurface>
#include <QOpenGLContext>
#include <QOpenGLFramebufferObject>
#include <cmath>
#include <cstdio>
#include <cstdlib>
#include <memory>
#include <optional>
#include <string>

#include "analysis/hydro_solver.h"
#include "command.h"
#include "gui_application.h"
#include "hull/fold_check.h"
#include "io/safe_write.h"
#include "pipeline.h"
#include "qtdraw/hull_scene.h"
#include "qtdraw/scene_renderer.h"
#include "stability/hydro_mesh.h"
#include "stability/shown_water.h"

namespace tolmar::cli {
namespace {

constexpr const char* kUsage =
    "HULL.D50 OUT.png [--view iso|front|side|top|bottom] [--size WxH] [--heel DEG]\n"
    "            [--zwl Z [--pitch DEG]] [--auto] [--set SCREEN.CONTROL=VALUE]...";

int usage() {
  std::fprintf(stderr, "usage: tolmar-cli draw3d %s\n", kUsage);
  return 2;
}

bool parseSize(const std::string& s, int& w, int& h) {
  char extra = 0;
  return std::sscanf(s.c_str(), "%dx%d%c", &w, &h, &extra) == 2 && w >= 16 && h >= 16 &&
         w <= 8000 && h <= 8000;
}

int run(const Args& args) {
  std::vector<std::string> files;
  PipelineOptions o;
  gui::StandardView view = gui::StandardView::isometric;
  int w = 1600, hgt = 1000;
  double heel = 0, pitch = 0;
  std::optional<double> zwl;
  bool pitchGiven = false;
  for (std::size_t i = 0; i < args.size(); ++i) {
    const std::string& a = args[i];
    if (a == "--auto") {
      o.autoPlanking = true;
    } else if (a == "--view" || a == "--size" || a == "--heel" || a == "--set" || a == "--zwl" ||
               a == "--pitch") {
      if (i + 1 >= args.size()) return usage();
      const std::string& v = args[++i];
      if (a == "--view") {
        if (v == "iso")
          view = gui::StandardView::isometric;
        else if (v == "front")
          view = gui::StandardView::face;
        else if (v == "side")
          view = gui::StandardView::side;
        else if (v == "top")
          view = gui::StandardView::plan;
        else if (v == "bottom")
          view = gui::StandardView::bottom;
        else {
          std::fprintf(stderr, "tolmar-cli draw3d: --view takes iso, front, side, top or bottom\n");
          return 2;
        }
      } else if (a == "--size") {
        if (!parseSize(v, w, hgt)) {
          std::fprintf(stderr, "tolmar-cli draw3d: bad size '%s', want WxH, 16..8000 each\n",
                       v.c_str());
          return 2;
        }
      } else if (a == "--heel" || a == "--pitch") {
        char* end = nullptr;
        double& deg = a == "--heel" ? heel : pitch;
        deg = std::strtod(v.c_str(), &end);
        const double most = a == "--heel" ? 180 : 45;
        if (end == v.c_str() || *end || !std::isfinite(deg) || std::fabs(deg) > most) {
          std::fprintf(stderr, "tolmar-cli draw3d: %s takes degrees, -%g to %g\n", a.c_str(), most,
                       most);
          return 2;
        }
        pitchGiven |= a == "--pitch";
      } else if (a == "--zwl") {
        char* end = nullptr;
        zwl = std::strtod(v.c_str(), &end);
        if (end == v.c_str() || *end || !std::isfinite(*zwl)) {
          std::fprintf(stderr, "tolmar-cli draw3d: --zwl takes a height in metres\n");
          return 2;
        }
      } else {
        std::string error;
        SetValue set = parseSet(v, error);
        if (!error.empty()) {
          std::fprintf(stderr, "tolmar-cli draw3d: %s\n", error.c_str());
          return 2;
        }
        o.sets.push_back(std::move(set));
      }
    } else if (a.rfind("--", 0) == 0) {
      return usage();
    } else {
      files.push_back(a);
    }
  }
  if (files.size() != 2 || (pitchGiven && !zwl)) return usage();
  if (!QString::fromStdString(files[1]).toLower().endsWith(".png")) {
    std::fprintf(stderr, "tolmar-cli draw3d: the picture must end in .png: %s\n", files[1].c_str());
    return 2;
  }
  o.hullFile = files[0];
  auto h = std::make_unique<HullStore>();
  const PipelineResult r = prepareHull(*h, o);
  if (r.status != 0) {
    std::fprintf(stderr, "tolmar-cli draw3d: %s\n", r.error.c_str());
    return r.status;
  }
  if (const FoldReport folds = checkFolds(*h); folds.folded()) {
    std::fprintf(stderr, "tolmar-cli draw3d: %s\n", folds.message(r.langue).c_str());
    return 2;
  }

  // The water as the hydrostatics screen leaves it after a pass at that
  // waterline, in this command's own copy of the hull.
  std::optional<gui::WaterQuad> water;
  if (zwl) {
    hydroAtWaterline(*h, *zwl, pitch * M_PI / 180).state.storeInto(*h);
    const auto shown = stability::shownWater(*h, stability::hullHydroMesh(*h), heel);
    if (!stability::lastWaterHeight(*h)) {
      std::fprintf(stderr, "tolmar-cli draw3d: the water at Z = %g m does not reach the hull\n",
                   *zwl);
      return 2;
    }
    if (!shown) {
      std::fprintf(stderr,
                   "tolmar-cli draw3d: the hull does not float at %g degrees of heel with the "
                   "volume under Z = %g m\n",
                   heel, *zwl);
      return 2;
    }
    water = gui::waterQuad(shown->corners);
  }

  const auto app = guiApplication(GuiPlatform::DisplayWhenThere);
  QOpenGLContext ctx;
  QOffscreenSurface surface;
  surface.create();
  if (!ctx.create() || !ctx.makeCurrent(&surface)) {
    std::fprintf(stderr,
                 "tolmar-cli draw3d: no OpenGL context can be made (run it on a display, "
                 "or under xvfb-run)\n");
    return 1;
  }
  QOpenGLFramebufferObjectFormat fmt;
  fmt.setAttachment(QOpenGLFramebufferObject::Depth);
  fmt.setSamples(4);
  QOpenGLFramebufferObject fbo(w, hgt, fmt);
  if (!fbo.isValid() || !fbo.bind()) {
    std::fprintf(stderr, "tolmar-cli draw3d: no %d x %d frame buffer\n", w, hgt);
    return 1;
  }
  gui::HullScene scene;
  scene.setHull(*h);
  scene.setHeel(heel);
  scene.setWater(water);
  gui::SceneCamera cam = gui::standardCamera(view);
  scene.fit(cam, double(w) / hgt);
  gui::SceneRenderer renderer;
  if (!renderer.initialize()) {
    std::fprintf(stderr, "tolmar-cli draw3d: the OpenGL context cannot draw the hull: %s\n",
                 qPrintable(renderer.log()));
    return 1;
  }
  renderer.paint(scene, cam, w, hgt);
  renderer.release();
  const QImage img = fbo.toImage();
  fbo.release();
  ctx.doneCurrent();
  QByteArray png;
  QBuffer buf(&png);
  buf.open(QIODevice::WriteOnly);
  if (!img.save(&buf, "PNG")) {
    std::fprintf(stderr, "tolmar-cli draw3d: the picture cannot be encoded\n");
    return 1;
  }
  const io::WriteResult wr =
      io::writeFileSafely(files[1], std::string_view(png.constData(), png.size()));
  if (!wr.ok()) {
    std::fprintf(stderr, "tolmar-cli draw3d: cannot write %s: %s\n", files[1].c_str(),
                 wr.message.c_str());
    return 1;
  }
  return 0;
}

Register reg({"draw3d", kUsage,
              "  Opens a hull file and passes its screens as `dump` does (--auto and --set as\n"
              "  there), then renders the hull as the 3-D view shows it, shaded plates and\n"
              "  lines, from iso (the default), front, side, top or bottom, heeled by --heel\n"
              "  degrees (positive with the starboard side down, as the stability window\n"
              "  counts it), on W x H pixels (1600x1000 unless given), into a PNG.  --zwl\n"
              "  floats the hull at that waterline height in m (and --pitch in degrees, bow\n"
              "  down positive) as hydro --zwl does and shows the water plane; heeled, at the\n"
              "  level that keeps the volume under it.  Needs OpenGL: a display, or xvfb-run\n"
              "  where there is none.  Status 1: a file cannot be read or written, or no\n"
              "  OpenGL; 2: a wrong command line, a hull the screens refuse, a folded hull, or\n"
              "  water that misses the hull or sinks it.",
              &run});

}  // namespace
}  // namespace tolmar::cli

#endif  // TOLMAR_HAVE_QTDRAW
