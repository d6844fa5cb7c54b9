#include <QApplication>

#include "windows/session.h"

int main(int argc, char** argv) {
  QApplication app(argc, argv);
  // The program ends by Terminate or the closing of menu2 only; the board
  // may be the last window shown while menu2 is hidden.
  QApplication::setQuitOnLastWindowClosed(false);
  tolmar::gui::Session session;
  QObject::connect(&session, &tolmar::gui::Session::programEnded, &app, &QApplication::quit,
                   Qt::QueuedConnection);
  session.start();
  return app.exec();
}
