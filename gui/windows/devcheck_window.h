// "Development check…" of the board's Build menu: one row per plate with
// its figures and its verdict's colour, the legend of the colours, the
// factor and the thickness taken for plates without one (remembered), and
// a button that draws the patterns on the board in their verdicts'
// colours.  Its texts keep the language the hull had when it opened.
#pragma once

#include <QWidget>
#include <functional>
#include <vector>

#include "devcheck/plate_check.h"
#include "development/developed_plate.h"
#include "hull/hull_store.h"
#include "windows/hull_watch.h"

class QDoubleSpinBox;
class QLabel;
class QPushButton;
class QTableWidget;

namespace tolmar::gui {

class DevCheckWindow : public QWidget {
  Q_OBJECT
 public:
  using DrawOnBoard =
      std::function<void(const std::vector<DevelopedPlate>&, const devcheck::CheckReport&)>;
  DevCheckWindow(QWidget* parent, const HullStore& h, DrawOnBoard draw);

  // Checks the hull as it is now and fills the table.
  void refresh();
  // Checks again if the hull changed since the last check (after a redraw
  // on the board).
  void follow();
  int langue() const { return langue_; }
  QTableWidget* table() const { return table_; }
  QDoubleSpinBox* factor() const { return factor_; }
  QPushButton* drawButton() const { return draw_; }
  QLabel* notes() const { return notes_; }
  // The legend: a label per verdict, fits, tight, will not bend.
  QLabel* legend(devcheck::Verdict v) const { return legend_[static_cast<int>(v)]; }
  const devcheck::CheckReport& report() const { return report_; }

 private:
  const HullStore& h_;
  int langue_;
  HullWatch watch_;
  DrawOnBoard drawOnBoard_;
  QTableWidget* table_;
  QDoubleSpinBox* factor_;
  QDoubleSpinBox* thickness_;
  QPushButton* draw_;
  QLabel* notes_;
  QLabel* legend_[3] = {};
  std::vector<DevelopedPlate> plates_;
  devcheck::CheckReport report_;
};

}  // namespace tolmar::gui
