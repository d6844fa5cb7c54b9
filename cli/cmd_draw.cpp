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

#include "command.h"
#include "pipeline.h"
#include "qtdraw/hull_picture.h"

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

// Qt's notes about the offscreen platform and its runtime folder are no
// concern of the command's user; its errors still reach stderr.
void quietQt(QtMsgType type, const QMessageLogContext&, const QString& msg) {
  if (type == QtCriticalMsg || type == QtFatalMsg) std::fprintf(stderr, "%s\n", qPrintable(msg));
}

int usage() {
  std::fprintf(stderr, "usage: tolmar-cli draw HULL.D50 OUT.png|OUT.svg [--size WxH] [--station X]\n");
  return 2;
}

int run(const Args& args) {
  std::vector<std::string> files;
  qtdraw::PictureOptions pic;
  for (std::size_t i = 0; i < args.size(); ++i) {
    const std::string& a = args[i];
    if (a == "--size" || a == "--station") {
      if (i + 1 >= args.size()) return usage();
      const std::string& v = args[++i];
      if (a == "--station") {
        pic.station = v;
      } else if (!parseSize(v, pic.dots)) {
        std::fprintf(stderr, "tolmar-cli draw: bad size '%s', want WxH, 1..20000 each\n", v.c_str());
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
    std::fprintf(stderr, "tolmar-cli draw: the picture must end in .png or .svg: %s\n", files[1].c_str());
    return 2;
  }

  PipelineOptions o;
  o.hullFile = files[0];
  auto h = std::make_unique<HullStore>();
  const PipelineResult r = prepareHull(*h, o);
  if (r.status != 0) {
    std::fprintf(stderr, "tolmar-cli draw: %s\n", r.error.c_str());
    return r.status;
  }
  pic.stepIndex = r.board.stepIndex;

  // The fonts need a GUI application; without a display the offscreen
  // platform serves.
  std::unique_ptr<QGuiApplication> app;
  if (!QCoreApplication::instance()) {
    qInstallMessageHandler(quietQt);
    if (!std::getenv("QT_QPA_PLATFORM")) setenv("QT_QPA_PLATFORM", "offscreen", 1);
    static int argc = 1;
    static char name[] = "tolmar-cli";
    static char* argv[] = {name, nullptr};
    app = std::make_unique<QGuiApplication>(argc, argv);
  }
  const std::string error = qtdraw::writeHullPicture(*h, files[1], pic);
  if (!error.empty()) {
    std::fprintf(stderr, "tolmar-cli draw: %s\n", error.c_str());
    return 1;
  }
  return 0;
}

Register reg({"draw", "HULL.D50 OUT.png|OUT.svg [--size WxH] [--station X]",
              "  Opens a hull file and passes its screens as `dump` does, redraws the board on\n"
              "  a picture of W x H dots (1600x1000 unless given; 15 twips a dot) and writes it\n"
              "  as PNG or SVG, after the extension.  --station X draws the station nearest to\n"
              "  X metres over the profile, as Draw station does.  Status 1: a file cannot be\n"
              "  read or written; 2: a screen does not pass or the command line is wrong.",
              &run});

}  // namespace
}  // namespace tolmar::cli

#endif  // TOLMAR_HAVE_QTDRAW
