#include "gui_application.h"

#ifdef TOLMAR_HAVE_QTDRAW

#include <QCoreApplication>
#include <cstdio>
#include <cstdlib>

namespace tolmar::cli {
namespace {

void quietQt(QtMsgType type, const QMessageLogContext&, const QString& msg) {
  if (type == QtCriticalMsg || type == QtFatalMsg) std::fprintf(stderr, "%s\n", qPrintable(msg));
}

}  // namespace

std::unique_ptr<QGuiApplication> guiApplication(GuiPlatform platform) {
  if (QCoreApplication::instance()) return nullptr;
  qInstallMessageHandler(quietQt);
  const bool display = platform == GuiPlatform::DisplayWhenThere && std::getenv("DISPLAY");
  if (!std::getenv("QT_QPA_PLATFORM") && !display) setenv("QT_QPA_PLATFORM", "offscreen", 1);
  static int argc = 1;
  static char name[] = "tolmar-cli";
  static char* argv[] = {name, nullptr};
  return std::make_unique<QGuiApplication>(argc, argv);
}

}  // namespace tolmar::cli

#endif
