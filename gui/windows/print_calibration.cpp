#include "windows/print_calibration.h"

#include <QDoubleSpinBox>
#include <QFormLayout>
#include <QLabel>
#include <QSettings>
#include <QVBoxLayout>
#include <cmath>

namespace tolmar::gui {

namespace {

QSettings settings() { return QSettings(QStringLiteral("Tolmar"), QStringLiteral("tolmar")); }

double factor(const QSettings& s, const char* key) {
  bool ok = false;
  const double v = s.value(QLatin1String(key)).toDouble(&ok);
  return ok && calibrationError(v, 1).empty() ? v : 1.0;
}

QDoubleSpinBox* spin(double lo, double hi, int decimals, double step, QWidget* parent) {
  auto* b = new QDoubleSpinBox(parent);
  b->setRange(lo, hi);
  b->setDecimals(decimals);
  b->setSingleStep(step);
  return b;
}

}  // namespace

PaperSettings loadPaperSettings() {
  const QSettings s = settings();
  PaperSettings p;
  p.calibration = {factor(s, "print/calibrationX"), factor(s, "print/calibrationY")};
  bool ok = false;
  const double m = s.value(QStringLiteral("print/pdfMarginMm")).toDouble(&ok);
  if (ok && std::isfinite(m) && m >= 0 && m <= CalibrationTab::kMaxMarginMm) p.pdfMarginMm = m;
  return p;
}

void savePaperSettings(const PaperSettings& p) {
  QSettings s = settings();
  s.setValue(QStringLiteral("print/calibrationX"), p.calibration.x);
  s.setValue(QStringLiteral("print/calibrationY"), p.calibration.y);
  s.setValue(QStringLiteral("print/pdfMarginMm"), p.pdfMarginMm);
}

qtdraw::PaperOptions paperOptions(const PaperSettings& s, bool pdf, int langue) {
  qtdraw::PaperOptions o;
  if (pdf) o.marginMm = s.pdfMarginMm;
  o.calibration = s.calibration;
  o.langue = langue;
  return o;
}

CalibrationTab::CalibrationTab(int langue, QWidget* parent) : QWidget(parent) {
  const bool fr = langue == 0;
  setObjectName(QStringLiteral("calibration"));
  setWindowTitle(fr ? QStringLiteral("Étalonnage") : QStringLiteral("Calibration"));
  x_ = spin(kMinCalibration, kMaxCalibration, 4, 0.0005, this);
  y_ = spin(kMinCalibration, kMaxCalibration, 4, 0.0005, this);
  margin_ = spin(0, kMaxMarginMm, 1, 0.5, this);
  margin_->setSuffix(QStringLiteral(" mm"));
  x_->setObjectName(QStringLiteral("calibrationX"));
  y_->setObjectName(QStringLiteral("calibrationY"));
  margin_->setObjectName(QStringLiteral("pdfMargin"));
  auto* help = new QLabel(
      fr ? QStringLiteral("Chaque page porte une barre de 200 mm. Mesurez-la sur le papier et "
                          "entrez la longueur mesurée divisée par 200 (1,0000 : exacte).")
         : QStringLiteral("Every page carries a bar of 200 mm. Measure it on the paper and "
                          "type the measured length divided by 200 (1.0000: exact)."),
      this);
  help->setWordWrap(true);
  auto* form = new QFormLayout;
  form->addRow(fr ? QStringLiteral("Facteur X (largeur)") : QStringLiteral("X factor (across)"),
               x_);
  form->addRow(fr ? QStringLiteral("Facteur Y (hauteur)") : QStringLiteral("Y factor (down)"), y_);
  form->addRow(
      fr ? QStringLiteral("Marge d'un fichier PDF") : QStringLiteral("Margin of a PDF file"),
      margin_);
  auto* box = new QVBoxLayout(this);
  box->addWidget(help);
  box->addLayout(form);
  box->addStretch();
  setValue(loadPaperSettings());
}

PaperSettings CalibrationTab::value() const {
  return {{x_->value(), y_->value()}, margin_->value()};
}

void CalibrationTab::setValue(const PaperSettings& s) {
  x_->setValue(s.calibration.x);
  y_->setValue(s.calibration.y);
  margin_->setValue(s.pdfMarginMm);
}

}  // namespace tolmar::gui
