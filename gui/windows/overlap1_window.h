// The screen overlap1 as a modal window over the board: the six thickness
// and lap fields in millimetres, their advice lines and the three buttons,
// bound to the Overlap1 model.  A keystroke stores the value at once but
// leaves the text as typed (a decimal point typed last stays); leaving the
// field or Enter rewrites it clean.  Closing the window is Cancel.
#pragma once

#include <QDialog>

#include "hull/hull_store.h"
#include "screens/overlap1.h"

class QLabel;
class QLineEdit;
class QPushButton;

namespace tolmar::gui {

class Overlap1Window : public QDialog {
  Q_OBJECT
 public:
  Overlap1Window(HullStore& h, QWidget* parent);

  // Shown modal: activation (captions, thicknesses from the store), the
  // user's events until a button ends it.  Returns overlapMode.
  int run();

  Overlap1& model() { return model_; }
  QLineEdit* field(Overlap1::Group g, int index);
  QPushButton* command1(int i) { return command1_[i]; }
  QLabel* advice(int i) { return label8_[i]; }

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override;
  void reject() override;

 private:
  struct Slot {
    Overlap1::Group group;
    int index;
    QLineEdit* edit;
    QLabel* label;
  };
  void build();
  void showModel();
  void clickCommand1(int i);
  const Slot* slotOf(const QObject* o) const;

  HullStore& h_;
  Overlap1 model_;
  Slot slots_[6];
  QLabel* label0_;
  QLabel* label8_[2];
  QLabel* label9_[6];
  QPushButton* command1_[3];
};

}  // namespace tolmar::gui
