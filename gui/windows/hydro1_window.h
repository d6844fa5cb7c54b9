// The window of hydro1: displacement, waterline height and pitch fields,
// the two modes, Calcul1, cdQuit and the comment lines, shown from the
// Hydro1 model.  The window only reports its events; AnalysisWindows runs
// them on the model.
#pragma once

#include <QWidget>
#include <functional>

#include "analysis/hydro_screen.h"

class QLabel;
class QLineEdit;
class QPushButton;
class QRadioButton;

namespace tolmar::gui {

class Hydro1Window : public QWidget {
  Q_OBJECT
 public:
  Hydro1Window(analysis::Hydro1& model, QWidget* parent);

  void showModel();  // model to widgets
  void takeTexts();  // typed texts to the model

  std::function<void()> onCalcul, onQuit, onClose;
  std::function<void(int n)> onOption;  // a click on Option1(n)
  std::function<void(int n)> onEnter;   // Enter in Text1(n)

  QLineEdit* text1(int i) { return text1_[i]; }
  QLineEdit* text3() { return text3_; }
  QRadioButton* option1(int i) { return option1_[i]; }
  QPushButton* calcul1() { return calcul1_; }
  QPushButton* cdQuit() { return cdQuit_; }
  QLabel* label2(int i) { return label2_[i]; }

 protected:
  void closeEvent(QCloseEvent* event) override;

 private:
  analysis::Hydro1& model_;
  QLineEdit* text1_[2];
  QLineEdit* text3_;
  QLabel* label3_;
  QRadioButton* option1_[2];
  QPushButton* calcul1_;
  QPushButton* cdQuit_;
  QLabel* label2_[2];
  QLabel* label1_[3];
};

}  // namespace tolmar::gui
