// What the three hull screens share as windows: a fixed size in twips,
// centred on the display, shown modal over the board, closed only by a
// validation that passes.  Closing the frame or pressing Escape counts as a
// press of Valider: a user who closes the screen expects the values shown
// to be taken, and a validation that changes something keeps the screen
// open with its yellow fields, as Valider does.  A modal screen cannot lose
// the activation to another screen of the program, so the validation on
// deactivation has no occasion here.
#pragma once

#include <QDialog>

#include "windows/twips.h"

namespace tolmar::gui {

class Session;

class HullScreenWindow : public QDialog {
  Q_OBJECT
 public:
  HullScreenWindow(Session& s, double widthTwips, double heightTwips);

  // The screen is activated (captions and fields from the store) and shown
  // modal; the focus goes to Valider.
  void showModalScreen();

  virtual void syncFromModel() = 0;

 public slots:
  // The screen's validation; when it passes, the end of the screen runs
  // (hide, board redraw, focus).
  virtual void valider() = 0;

 protected:
  virtual void activate() = 0;
  virtual QWidget* validerButton() = 0;
  void closeEvent(QCloseEvent* e) override;
  void reject() override;

  Session& s_;
  Twips t_;

 private:
  double width_, height_;
};

}  // namespace tolmar::gui
