// The start screen menu2 as a window: the product title, the disclaimer,
// Create, Terminate and the language options, bound to screens::Menu2.
#pragma once

#include <QWidget>
#include <array>

#include "screens/menu2.h"

class QLabel;
class QPushButton;
class QRadioButton;

namespace tolmar::gui {

class Session;

class Menu2Window : public QWidget {
  Q_OBJECT
 public:
  explicit Menu2Window(Session& s);

  screens::Menu2& model() { return m_; }
  // Places the window and its controls from the model's layout (twips).
  void applyLayout();
  void syncFromModel();

  QPushButton* createButton() const { return create_; }
  QPushButton* terminateButton() const { return terminate_; }
  QRadioButton* langueButton(int i) const { return langue_[i == 0 ? 0 : 1]; }

 public slots:
  void createClicked();
  void terminateClicked();
  void langueClicked(int i);

 protected:
  void closeEvent(QCloseEvent* e) override;

 private:
  Session& s_;
  screens::Menu2 m_;
  QLabel* label1_;
  QLabel* label2_;
  QLabel* label3_;
  QPushButton* create_;
  QPushButton* terminate_;
  std::array<QRadioButton*, 2> langue_;
};

}  // namespace tolmar::gui
