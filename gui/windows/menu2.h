// The start screen: language, Create and Quit.
#pragma once

#include <QWidget>

class QLabel;
class QPushButton;
class QRadioButton;

namespace tolmar::gui {

class Menu2 : public QWidget {
  Q_OBJECT
 public:
  explicit Menu2(QWidget* parent = nullptr);

 private:
  QLabel* label1_;
  QLabel* label3_;
  QPushButton* create_;
  QPushButton* terminate_;
  QRadioButton* langue_[2];
};

}  // namespace tolmar::gui
