// The "Calibration" tab of the printer dialog: the stretch a user measured
// on the 200 mm bars of a printed page, and the margin of a PDF page.  The
// choice is remembered between runs of the program.
#pragma once

#include <QWidget>

#include "printing/paper_setup.h"
#include "qtdraw/paged_surface.h"

class QDoubleSpinBox;

namespace tolmar::gui {

struct PaperSettings {
  PrintCalibration calibration;
  double pdfMarginMm = kDefaultPdfMarginMm;
};

// The remembered settings; a value missing or out of its range is the
// default.
PaperSettings loadPaperSettings();
void savePaperSettings(const PaperSettings& s);

// The paper of one document: a printer keeps its own margins, a PDF file
// gets the remembered one; langue is that of the bars' captions.
qtdraw::PaperOptions paperOptions(const PaperSettings& s, bool pdf, int langue);

class CalibrationTab : public QWidget {
  Q_OBJECT
 public:
  CalibrationTab(int langue, QWidget* parent = nullptr);
  PaperSettings value() const;
  void setValue(const PaperSettings& s);

  // Widest PDF margin offered, mm.
  static constexpr double kMaxMarginMm = 50;

 private:
  QDoubleSpinBox* x_;
  QDoubleSpinBox* y_;
  QDoubleSpinBox* margin_;
};

}  // namespace tolmar::gui
