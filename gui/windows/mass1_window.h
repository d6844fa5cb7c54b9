// The window of mass1: the table of densities, areas, masses and centres
// by row in its four groups, the totals and Calcul1, shown from the Mass1
// model.  Green boxes take input; pink ones are results and read-only.  On
// a short display the rows scroll above Calcul1.  The window only reports
// its events; AnalysisWindows runs them on the model.
#pragma once

#include <QWidget>
#include <functional>

#include "analysis/mass_screen.h"

class QLabel;
class QLineEdit;
class QPushButton;
class QScrollArea;

namespace tolmar::gui {

class Mass1Window : public QWidget {
  Q_OBJECT
 public:
  Mass1Window(analysis::Mass1& model, QWidget* parent);

  void showModel();
  void takeTexts();

  std::function<void()> onCalcul, onEnter, onFieldLeft, onClose;

  // Column 1 density, 2 area, 3 mass, 4 centre X; null where the row has no
  // box in that column.
  QLineEdit* text(int column, int row);
  QPushButton* calcul1() { return calcul1_; }
  // The rows scroll when the window is shorter than its natural height.
  QScrollArea* rows() { return scroll_; }
  int scrollBarWidth() const;
  QSize sizeHint() const override;  // every row in sight

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override;
  void closeEvent(QCloseEvent* event) override;

 private:
  Field& modelText(int column, int row);

  analysis::Mass1& model_;
  QLineEdit* text_[4][analysis::kLastMassRow + 1] = {};
  QLabel* label3_[analysis::kLastMassRow + 1] = {};
  QLabel* label2_[4];
  QLabel* label1_;
  QLabel* frame_[4];  // group captions, one grid for all rows so that columns align
  QPushButton* calcul1_;
  QScrollArea* scroll_;
};

}  // namespace tolmar::gui
