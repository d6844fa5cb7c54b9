// "Plywood sheets…" of the Build menu: the panels of the hull laid on
// sheets, drawn to scale, with the bill of materials and the builder's
// choices (sheet size, margin, kerf, joint, turning across the grain),
// which the platform's settings keep between runs.  Its buttons write the
// DXF files, the SVG and the PDF through a file dialog.
#pragma once

#include <QWidget>
#include <memory>

#include "hull/hull_store.h"
#include "sheets/sheet_layout.h"
#include "windows/file_dialog.h"
#include "windows/hull_watch.h"

class QCheckBox;
class QComboBox;
class QDoubleSpinBox;
class QLabel;
class QPlainTextEdit;
class QPushButton;
class QScrollArea;

namespace tolmar::gui {

class SheetsWindow : public QWidget {
  Q_OBJECT
 public:
  SheetsWindow(QWidget* board, const HullStore& h);
  ~SheetsWindow() override;

  const sheets::SheetPlan& plan() const { return plan_; }
  CmDialog1& dialog() { return *dialog_; }
  QLabel* message() const { return message_; }

  // The choices as the fields show them; and the plan made from them.
  sheets::SheetOptions options() const;
  void compute();

  // Plans again on the board's hull if it changed since the last plan
  // (after a redraw on the board; a zoom or a station changes nothing).
  Q_INVOKABLE void follow();

  // The buttons: the files of the plan, through the dialog.  False when
  // nothing was written (cancelled, no plan, or a failed write).
  bool saveDxf();
  bool saveSvg();
  bool savePdf();

 private:
  void buildControls();
  void setTexts();
  void loadSettings();
  void saveSettings() const;
  void showPlan();
  std::string stem() const;
  bool write(const std::string& path, const std::string& bytes);
  // The title of its error boxes, in langue.
  std::string errorTitle() const;

  const HullStore& board_;
  HullWatch watch_;
  std::unique_ptr<HullStore> h_;  // a copy of the board's hull as it was last planned
  int langue_ = 1;
  sheets::SheetPlan plan_;
  std::unique_ptr<CmDialog1> dialog_;

  QComboBox* size_ = nullptr;
  QDoubleSpinBox* length_ = nullptr;
  QDoubleSpinBox* width_ = nullptr;
  QDoubleSpinBox* margin_ = nullptr;
  QDoubleSpinBox* kerf_ = nullptr;
  QComboBox* joint_ = nullptr;
  QDoubleSpinBox* ratio_ = nullptr;
  QDoubleSpinBox* strap_ = nullptr;
  QCheckBox* rotate_ = nullptr;
  QPushButton* computeButton_ = nullptr;
  QPushButton* dxfButton_ = nullptr;
  QPushButton* svgButton_ = nullptr;
  QPushButton* pdfButton_ = nullptr;
  QLabel* picture_ = nullptr;
  QScrollArea* scroll_ = nullptr;
  QPlainTextEdit* bom_ = nullptr;
  QLabel* message_ = nullptr;
  std::vector<QLabel*> captions_;
};

// The Build menu's entry.
QWidget* openSheetsWindow(QWidget* board, const HullStore& h);

}  // namespace tolmar::gui
