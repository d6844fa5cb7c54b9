#include "windows/hull_screen_window.h"

#include <QCloseEvent>

#include "windows/session.h"

namespace tolmar::gui {

HullScreenWindow::HullScreenWindow(Session& s, double widthTwips, double heightTwips)
    : QDialog(nullptr), s_(s), t_(*this), width_(widthTwips), height_(heightTwips) {
  setWindowModality(Qt::ApplicationModal);
  const QSizeF display = displayTwips(*this);
  setGeometry(
      t_.rect((display.width() - width_) / 2, (display.height() - height_) / 2, width_, height_));
  setFixedSize(size());
}

void HullScreenWindow::showModalScreen() {
  activate();
  syncFromModel();
  show();
  raise();
  activateWindow();
  if (QWidget* v = validerButton()) v->setFocus();
}

void HullScreenWindow::closeEvent(QCloseEvent* e) {
  e->ignore();
  valider();
}

void HullScreenWindow::reject() { valider(); }

}  // namespace tolmar::gui
