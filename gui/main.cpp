#include <QApplication>

#include "windows/menu2.h"

int main(int argc, char** argv) {
  QApplication app(argc, argv);
  tolmar::gui::Menu2 start;
  start.show();
  return app.exec();
}
