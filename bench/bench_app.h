// The one Qt application of the benchmarks that need one (fonts, PDF,
// OpenGL).  With a display (Xvfb serves) the platform is the display's, so
// that OpenGL can be had; without one, the offscreen platform, which has
// none.
#pragma once

#include <QGuiApplication>
#include <cstdlib>

namespace tolmar::bench {

inline QGuiApplication& app() {
  if (auto* a = qobject_cast<QGuiApplication*>(QCoreApplication::instance())) return *a;
  static int argc = 1;
  static char name[] = "tolmar-bench";
  static char* argv[] = {name, nullptr};
  if (!std::getenv("QT_QPA_PLATFORM") && !std::getenv("DISPLAY") && !std::getenv("WAYLAND_DISPLAY"))
    setenv("QT_QPA_PLATFORM", "offscreen", 1);
  static QGuiApplication a(argc, argv);
  return a;
}

}  // namespace tolmar::bench
