// The calibration tab of the printer dialog: what it remembers between
// runs, what it makes of stored values that are not its own, and the page
// a PDF then gets: its margin, the stretch of the drawing, and a margin too
// large for the paper refused with a message.
#include "windows/print_calibration.h"

#include <QDoubleSpinBox>
#include <QFile>
#include <QPrinter>
#include <QSettings>
#include <QStandardPaths>
#include <QTemporaryDir>
#include <QtTest>

#include "hull/hull_store.h"
#include "windows/file_dialog.h"
#include "windows/printer_dialog.h"

using namespace tolmar;
using namespace tolmar::gui;

class PrintCalibrationTest : public QObject {
  Q_OBJECT

 private slots:
  void initTestCase();
  void init();
  void tabRemembersTheChoice();
  void strangeStoredValuesGiveDefaults();
  void fieldsHoldTheirRange();
  void pdfPageInsideTheRememberedMargin();
  void marginTooLargeForThePaper();
};

namespace {

QSettings store() { return QSettings(QStringLiteral("Tolmar"), QStringLiteral("tolmar")); }

// The page size in twips that a PDF document offers its drawing.
QSizeF printedPage(CmDialog1& files, CmDialog2& printers, const QString& path, PrintOutcome& out) {
  HullStore h;
  h.langue = 1;
  QSizeF size;
  files.answerWith(path.toStdString());
  out = printDocument(files, printers, h, [&](DrawingSurface& s) {
    size = QSizeF(s.Width(), s.Height());
    s.Print("page 1");
    s.EndDoc();
  });
  return size;
}

}  // namespace

void PrintCalibrationTest::initTestCase() { QStandardPaths::setTestModeEnabled(true); }

void PrintCalibrationTest::init() { store().clear(); }

void PrintCalibrationTest::tabRemembersTheChoice() {
  QCOMPARE(loadPaperSettings().calibration.x, 1.0);
  QCOMPARE(loadPaperSettings().pdfMarginMm, kDefaultPdfMarginMm);
  CalibrationTab tab(1);
  tab.setValue({{1.002, 0.998}, 8.5});
  savePaperSettings(tab.value());
  const PaperSettings back = loadPaperSettings();
  QCOMPARE(back.calibration.x, 1.002);
  QCOMPARE(back.calibration.y, 0.998);
  QCOMPARE(back.pdfMarginMm, 8.5);
  CalibrationTab again(0);
  QCOMPARE(again.value().calibration.y, 0.998);
  QCOMPARE(again.windowTitle(), QString("Étalonnage"));
}

void PrintCalibrationTest::strangeStoredValuesGiveDefaults() {
  QSettings s = store();
  s.setValue("print/calibrationX", "abc");
  s.setValue("print/calibrationY", 1.5);
  s.setValue("print/pdfMarginMm", -3);
  s.sync();
  const PaperSettings p = loadPaperSettings();
  QCOMPARE(p.calibration.x, 1.0);
  QCOMPARE(p.calibration.y, 1.0);
  QCOMPARE(p.pdfMarginMm, kDefaultPdfMarginMm);
}

void PrintCalibrationTest::fieldsHoldTheirRange() {
  CalibrationTab tab(1);
  auto* x = tab.findChild<QDoubleSpinBox*>("calibrationX");
  auto* margin = tab.findChild<QDoubleSpinBox*>("pdfMargin");
  QVERIFY(x && margin);
  x->setValue(0);
  QCOMPARE(tab.value().calibration.x, kMinCalibration);
  x->setValue(3);
  QCOMPARE(tab.value().calibration.x, kMaxCalibration);
  margin->setValue(400);
  QCOMPARE(tab.value().pdfMarginMm, CalibrationTab::kMaxMarginMm);
}

// A4 within 15 mm margins, less the 7 mm band of the vertical bar (the
// horizontal one needs 200 mm across), at 568 twips to the centimetre; a
// printer that prints X 5 % long gets 5 % more twips across.
void PrintCalibrationTest::pdfPageInsideTheRememberedMargin() {
  QTemporaryDir dir;
  CmDialog1 files(nullptr);
  files.setUnattended(true);
  CmDialog2 printers(nullptr);
  printers.pdfOnly = true;
  savePaperSettings({{1.0, 1.0}, 15});
  PrintOutcome out{};
  QSizeF page = printedPage(files, printers, dir.filePath("a.pdf"), out);
  QCOMPARE(out, PrintOutcome::printed);
  // Qt's A4 is 595 x 842 points, and the margins whole points: 15 mm is 43.
  const double mmPerPt = 25.4 / 72;
  const double wMm = (595 - 86) * mmPerPt, hMm = (842 - 86) * mmPerPt;
  const double tol = 2;  // twips: the device has whole dots of 1/1200 inch, 1.2 twips
  QVERIFY2(std::fabs(page.width() - (wMm - 7) / kMmPerTwip) < tol,
           qPrintable(QString::number(page.width())));
  QVERIFY2(std::fabs(page.height() - hMm / kMmPerTwip) < tol,
           qPrintable(QString::number(page.height())));

  savePaperSettings({{1.05, 1.0}, 15});
  page = printedPage(files, printers, dir.filePath("b.pdf"), out);
  QCOMPARE(out, PrintOutcome::printed);
  QVERIFY2(std::fabs(page.width() - (wMm * 1.05 - 7) / kMmPerTwip) < tol,
           qPrintable(QString::number(page.width())));
  QVERIFY(files.messages().empty());
}

void PrintCalibrationTest::marginTooLargeForThePaper() {
  QTemporaryDir dir;
  CmDialog1 files(nullptr);
  files.setUnattended(true);
  CmDialog2 printers(nullptr);
  printers.pdfOnly = true;
  printers.printer().setPageSize(QPageSize(QPageSize::A7));  // 74 x 105 mm
  savePaperSettings({{1.0, 1.0}, 40});
  PrintOutcome out{};
  printedPage(files, printers, dir.filePath("c.pdf"), out);
  QCOMPARE(out, PrintOutcome::failed);
  QVERIFY(!QFile::exists(dir.filePath("c.pdf")));
  QCOMPARE(files.messages().size(), std::size_t{1});
}

QTEST_MAIN(PrintCalibrationTest)
#include "print_calibration_test.moc"
