// "Stability…" of the Build menu: the displacement and the centre of
// gravity (from the mass budget or typed, with the heights of the
// equipment rows), the heel angles, a crew on the side and the step of the
// hydrostatic curves; the righting-arm curve with its marked angles, the
// hydrostatic curves against draft and their tables, drawn on the
// program's drawing surface as the printed pages draw them.  The water
// chosen and the steps are remembered between runs.  It follows the hull:
// after a redraw on the board that changed it, the window computes again
// with the values typed.
#pragma once

#include <QWidget>
#include <array>
#include <memory>

#include "hull/hull_store.h"
#include "stability/stability_run.h"
#include "windows/hull_watch.h"

class QComboBox;
class QLabel;
class QLineEdit;
class QPushButton;
class QRadioButton;
class QTabWidget;
class QTableWidget;

namespace tolmar::gui {

class CmDialog1;
class CmDialog2;
class SurfacePlot;

class StabilityWindow : public QWidget {
  Q_OBJECT
 public:
  StabilityWindow(QWidget* board, const HullStore& h);
  ~StabilityWindow() override;

  // The fields as options; false with the message shown when one is not a
  // number.
  bool readOptions(stability::StabilityOptions& o);
  void compute();
  bool print();  // the printed pages of the last result
  // Computes again on the board's hull if it changed since the window last
  // took it (the Build menu asks after every event of the board).
  Q_INVOKABLE void follow();

  const stability::StabilityResult& result() const { return result_; }
  QLabel* message() const { return message_; }
  QLineEdit* field(const char* objectName) const;
  QTabWidget* tabs() const { return tabs_; }
  CmDialog2& printers() { return *printers_; }
  CmDialog1& files() { return *files_; }

 private:
  void buildControls();
  void setTexts();
  void showResult();
  void loadSettings();
  void saveSettings() const;

  const HullStore& board_;  // the board's hull
  HullWatch watch_;
  std::unique_ptr<HullStore> h_;  // the board's hull when last taken, its mass budget run
  int langue_ = 1;
  stability::StabilityResult result_;
  std::unique_ptr<CmDialog1> files_;
  std::unique_ptr<CmDialog2> printers_;

  QRadioButton* dispBudget_ = nullptr;
  QRadioButton* dispTyped_ = nullptr;
  QLineEdit* volume_ = nullptr;
  QComboBox* water_ = nullptr;
  QLineEdit* lcg_ = nullptr;
  QLineEdit* kg_ = nullptr;
  std::array<QLineEdit*, stability::kEquipmentRows> equip_{};
  std::array<QLabel*, stability::kEquipmentRows> equipLabels_{};
  QLineEdit* from_ = nullptr;
  QLineEdit* to_ = nullptr;
  QLineEdit* step_ = nullptr;
  QLineEdit* crewKg_ = nullptr;
  QLineEdit* crewY_ = nullptr;
  QLineEdit* curveStep_ = nullptr;
  QPushButton* compute_ = nullptr;
  QPushButton* print_ = nullptr;
  QPushButton* close_ = nullptr;
  QLabel* message_ = nullptr;
  QLabel* summary_ = nullptr;
  QTabWidget* tabs_ = nullptr;
  SurfacePlot* gzPlot_ = nullptr;
  SurfacePlot* curvesPlot_ = nullptr;
  QTableWidget* gzTable_ = nullptr;
  QTableWidget* curvesTable_ = nullptr;
  std::array<QLabel*, 12> labels_{};
};

// The Build menu's opener.
QWidget* openStabilityWindow(QWidget* board, const HullStore& h);

}  // namespace tolmar::gui
