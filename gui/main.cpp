#include <QApplication>
#include <QCommandLineParser>
#include <QFile>
#include <QTimer>
#include <cstdio>
#include <cstring>
#include <string>

#include "screens/menu2.h"
#include "tolmar_version.h"
#include "windows/session.h"

namespace {

void describe(QCommandLineParser& p) {
  p.setApplicationDescription(
      "Designs hard-chine and lap-strake boats built from plywood, aluminium or steel\n"
      "sheet: hull lines, flattened plates, floating position and mass, DXF, XYZ and\n"
      "VRML files, and printed drawings at a true scale, in French and in English.");
  p.addHelpOption();
  p.addVersionOption();
  p.addPositionalArgument("HULL.D50",
                          "A hull file (.D50, or an old .D51) to open at the start, as the "
                          "board's Open does: the board comes up with the bottom screen on the "
                          "hull read.  A file that cannot be read leaves the start screen and "
                          "a message that says why.",
                          "[HULL.D50]");
}

// The package's version, then the version words of the start screen.
void printVersion() {
  std::string words = tolmar::screens::kMenu2VersionDate;
  words.erase(0, words.find_first_not_of(' '));
  words.erase(words.find_last_not_of(' ') + 1);
  std::printf("tolmar %s\n", TOLMAR_VERSION);
  std::printf("Start screen: Tolmar2008, version %s\n", words.c_str());
}

bool asks(int argc, char** argv, const char* a, const char* b) {
  for (int i = 1; i < argc; ++i)
    if (std::strcmp(argv[i], a) == 0 || std::strcmp(argv[i], b) == 0) return true;
  return false;
}

}  // namespace

int main(int argc, char** argv) {
  QCoreApplication::setApplicationName("tolmar");
  QCoreApplication::setApplicationVersion(TOLMAR_VERSION);
  // --version and --help need no display: the manual page is made from
  // them while building, where none may be.
  if (asks(argc, argv, "--version", "-v")) {
    printVersion();
    return 0;
  }
  if (asks(argc, argv, "--help", "-h") || asks(argc, argv, "--help-all", "-?")) {
    QCoreApplication app(argc, argv);
    QCommandLineParser p;
    describe(p);
    p.process(app);  // prints the help and ends the program
    return 0;
  }

  QApplication app(argc, argv);
  QGuiApplication::setDesktopFileName("tolmar");
  QCommandLineParser p;
  describe(p);
  p.process(app);  // an unknown option: its message and status 1
  const QStringList files = p.positionalArguments();
  if (files.size() > 1) {
    std::fprintf(stderr, "tolmar: one hull file at most (see tolmar --help)\n");
    return 2;
  }

  // The program ends by Terminate or the closing of menu2 only; the board
  // may be the last window shown while menu2 is hidden.
  QApplication::setQuitOnLastWindowClosed(false);
  tolmar::gui::Session session;
  QObject::connect(&session, &tolmar::gui::Session::programEnded, &app, &QApplication::quit,
                   Qt::QueuedConnection);
  session.start();
  if (!files.isEmpty()) {
    // Once the start screen is up, as a user's Open would come after it.
    const std::string path = QFile::encodeName(files.first()).toStdString();
    QTimer::singleShot(0, &session, [&session, path] { session.openAtStart(path); });
  }
  return app.exec();
}
