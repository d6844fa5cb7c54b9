// The stability window on the default hull: the mass budget's loading, the
// plots drawn, the tables filled, typed values and the ones refused, both
// languages; its Print button writing the pages into a PDF read back by
// poppler, and the window following the hull redrawn on the board.  Pictures for the documentation
// when TOLMAR_SCREENSHOTS names a folder:
//   TOLMAR_SCREENSHOTS=docs xvfb-run -a -s "-screen 0 1366x768x24"
//     env QT_QPA_PLATFORM=xcb build/tests/gui/stability_window_test
#include "windows/stability_window.h"

#include <QDir>
#include <QLabel>
#include <QLineEdit>
#include <QProcess>
#include <QPushButton>
#include <QTabBar>
#include <QTabWidget>
#include <QTableWidget>
#include <QTemporaryDir>
#include <QtTest>

#include "board_session_util.h"
#include "development/hull_fixture.h"
#include "windows/dessin_window.h"
#include "windows/file_dialog.h"
#include "windows/printer_dialog.h"
#include "windows/session.h"
#include "windows_test_util.h"

using namespace tolmar;
using namespace tolmar::gui;

namespace {

void retype(QLineEdit* e, const QString& text) {
  e->clear();
  QTest::keyClicks(e, text);
}

// How many pixels of the widget's picture are neither white nor grey.
int colouredPixels(QWidget* w) {
  const QImage img = w->grab().toImage();
  int n = 0;
  for (int y = 0; y < img.height(); ++y)
    for (int x = 0; x < img.width(); ++x) {
      const QColor c = img.pixelColor(x, y);
      if (std::abs(c.red() - c.blue()) > 60 || std::abs(c.red() - c.green()) > 60) ++n;
    }
  return n;
}

}  // namespace

class StabilityWindowTest : public QObject {
  Q_OBJECT

 private slots:
  void initTestCase() { test::quietOffscreen(); }
  void showsTheCurvesOfTheMassBudget_data();
  void showsTheCurvesOfTheMassBudget();
  void typedValuesAndRefusals();
  void buildAndPrintMenuEntries();
  void printButtonWritesThePages_data();
  void printButtonWritesThePages();
  void followsTheHullRedrawn();
};

void StabilityWindowTest::showsTheCurvesOfTheMassBudget_data() {
  QTest::addColumn<int>("langue");
  QTest::newRow("en") << 1;
  QTest::newRow("fr") << 0;
}

void StabilityWindowTest::showsTheCurvesOfTheMassBudget() {
  QFETCH(int, langue);
  auto h = fixture::defaultHull();
  h->langue = static_cast<i16>(langue);
  const HullStore before = *h;
  StabilityWindow w(nullptr, *h);
  QVERIFY(*h == before);  // the window computes on its own copy
  QVERIFY2(w.result().ok(), w.result().error.c_str());
  QCOMPARE(w.result().gz.size(), std::size_t{37});
  QVERIFY(w.message()->text().isEmpty());
  QCOMPARE(w.windowTitle().startsWith(langue == 0 ? "Stabilité" : "Stability"), true);
  QCOMPARE(w.tabs()->count(), 4);
  QCOMPARE(w.tabs()->tabText(0),
           langue == 0 ? QString("Bras de levier de redressement GZ") : QString("Righting arm GZ"));
  auto* gzTable = w.findChild<QTableWidget*>("gzTable");
  QCOMPARE(gzTable->rowCount(), 37);
  QVERIFY(w.findChild<QTableWidget*>("curvesTable")->rowCount() > 10);
  QVERIFY(w.findChild<QLabel*>("summary")->text().contains("GM = "));

  w.show();
  QVERIFY(QTest::qWaitForWindowExposed(&w));
  // At the size it opens with, no placeholder and no tab title is cut.
  for (const char* name : {"lcg", "kg", "equipZ13", "equipZ18"}) {
    QLineEdit* e = w.field(name);
    QVERIFY2(e->width() > e->fontMetrics().horizontalAdvance(e->placeholderText()), name);
  }
  QTabBar* bar = w.tabs()->tabBar();
  for (int i = 0; i < bar->count(); ++i)
    QVERIFY2(bar->tabRect(i).width() > bar->fontMetrics().horizontalAdvance(bar->tabText(i)) &&
                 bar->tabRect(i).right() <= bar->width(),
             qPrintable(bar->tabText(i)));
  for (int tab = 0; tab < 2; ++tab) {
    w.tabs()->setCurrentIndex(tab);
    QTest::qWait(30);
    QVERIFY(colouredPixels(w.tabs()->currentWidget()) > 500);
    const QString folder = qEnvironmentVariable("TOLMAR_SCREENSHOTS");
    if (!folder.isEmpty())
      QVERIFY(w.grab().toImage().save(
          QDir(folder).filePath(QString(tab == 0 ? "stability-gz" : "stability-curves") +
                                (langue ? "-en" : "-fr") + ".png")));
  }
}

void StabilityWindowTest::typedValuesAndRefusals() {
  auto h = fixture::defaultHull();
  h->langue = 1;
  h->equipMass(1) = 40;  // an engine at X = 0.5, on the keel unless lifted
  h->equipX(1) = 0.5;
  StabilityWindow w(nullptr, *h);
  QVERIFY(w.result().ok());
  const double kgOnKeel = w.result().kg;

  retype(w.field("equipZ13"), "1.0");
  w.findChild<QPushButton*>("compute")->click();
  QVERIFY(w.result().ok());
  QVERIFY(w.result().kg > kgOnKeel + 0.01);

  retype(w.field("kg"), "0,4");  // a decimal comma reads
  retype(w.field("crewKg"), "90");
  w.findChild<QPushButton*>("compute")->click();
  QVERIFY(w.result().ok());
  QCOMPARE(w.result().kg, 0.4);
  QVERIFY(w.result().crewAsked && w.result().crew.rests);
  QVERIFY(w.findChild<QLabel*>("summary")->text().contains("crew"));

  retype(w.field("kg"), "9");
  w.findChild<QPushButton*>("compute")->click();
  QVERIFY(w.message()->text().contains("above the sheer"));
  QVERIFY(!w.findChild<QPushButton*>("print")->isEnabled());

  retype(w.field("kg"), "abc");
  w.findChild<QPushButton*>("compute")->click();
  QCOMPARE(w.message()->text(), QString("One of the values given is not a number."));

  retype(w.field("kg"), "");
  retype(w.field("volume"), "500");  // typing selects the typed displacement
  w.findChild<QPushButton*>("compute")->click();
  QVERIFY(w.message()->text().contains("The hull sinks"));
}

void StabilityWindowTest::buildAndPrintMenuEntries() {
  test::Started p;
  p.createAndValidate();
  DessinWindow& board = p.board();
  QAction* entry = board.constructionMenu().action("fmenu_B_Stability");
  QAction* print = board.findChild<QAction*>("fmenu_P_Stability");
  QVERIFY(entry && print);
  QVERIFY(!entry->isEnabled());  // the bottom alone: no planks yet
  QVERIFY(!print->isEnabled());

  p.h() = *fixture::defaultHull();
  p.h().langue = 1;  // the start screen's English
  board.state().stepIndex = 1;
  board.dessineAction();
  QVERIFY(entry->isEnabled());
  QVERIFY(print->isEnabled());
  QCOMPARE(entry->text(), QString("Stability…"));
  QCOMPARE(print->text(), QString("Stability"));
  QCOMPARE(board.constructionMenu().menu()->title(), QString("Build"));
  entry->trigger();
  auto* w = qobject_cast<StabilityWindow*>(board.constructionMenu().window("fmenu_B_Stability"));
  QVERIFY(w);
  QVERIFY2(w->result().ok(), w->result().error.c_str());
  QVERIFY(w->windowTitle().startsWith("Stability"));
  w->close();
}

void StabilityWindowTest::printButtonWritesThePages_data() { showsTheCurvesOfTheMassBudget_data(); }

// The button's path, with the file dialog answered from its queue and the
// pages going to a PDF (no printer): the title, the tables' titles and the
// value typed in the window, as poppler reads them; a failed file keeps
// the one before and says why.
void StabilityWindowTest::printButtonWritesThePages() {
  QFETCH(int, langue);
  if (QStandardPaths::findExecutable("pdftotext").isEmpty()) QSKIP("pdftotext is not installed");
  auto h = fixture::defaultHull();
  h->langue = static_cast<i16>(langue);
  h->hullName = "DORY";
  StabilityWindow w(nullptr, *h);
  w.printers().pdfOnly = true;
  w.files().setUnattended(true);
  retype(w.field("kg"), "0,4");
  w.findChild<QPushButton*>("compute")->click();
  QVERIFY(w.result().ok());

  QTemporaryDir dir;
  const QString pdf = dir.filePath("stability.pdf");
  w.files().answerWith(pdf.toStdString());
  QPushButton* print = w.findChild<QPushButton*>("print");
  QCOMPARE(print->text(), langue == 0 ? QString("Imprimer") : QString("Print"));
  print->click();
  QCOMPARE(w.files().answersLeft(), std::size_t{0});
  QVERIFY(w.files().messages().empty());
  QCOMPARE(w.files().asked().back().title, QString(kPdfTitle));
  QCOMPARE(w.files().asked().back().name, QString("DORY.PDF"));
  QVERIFY(test::readAll(pdf).startsWith("%PDF"));

  QProcess text;
  text.start("pdftotext", {"-layout", pdf, "-"});
  QVERIFY(text.waitForFinished(30000));
  QCOMPARE(text.exitCode(), 0);
  const QString pages = QString::fromUtf8(text.readAllStandardOutput());
  const QStringList expected =
      langue == 0
          ? QStringList{"Stabilité DORY", "Courbe GZ, assiette libre", "Courbes hydrostatiques",
                        "KG = 0.4"}
          : QStringList{"Stability DORY", "GZ curve, free trim", "Hydrostatic curves", "KG = 0.4"};
  QString flat = pages;
  flat.replace(QRegularExpression(" +"), " ");
  for (const QString& e : expected) QVERIFY2(flat.contains(e), qPrintable(e + " in\n" + pages));
  QVERIFY(pages.count('\f') >= 3);  // the plots, then a sheet per table

  // A file that cannot be written: the system's reason in a message, the
  // PDF before as it was.
  const QByteArray before = test::readAll(pdf);
  qputenv("TOLMAR_WRITE_FAULT", "rename");
  w.files().answerWith(pdf.toStdString());
  print->click();
  qunsetenv("TOLMAR_WRITE_FAULT");
  QCOMPARE(w.files().messages().size(), std::size_t{1});
  QCOMPARE(w.files().messages()[0].title, std::string(kPrintErrorTitle));
  QVERIFY2(w.files().messages()[0].text.find("Invalid cross-device link") != std::string::npos,
           w.files().messages()[0].text.c_str());
  QCOMPARE(test::readAll(pdf), before);
  QCOMPARE(QDir(dir.path()).entryList(QDir::Files | QDir::Hidden), QStringList{"stability.pdf"});
}

// Opened from the Build menu, the window computes again once the board has
// redrawn a changed hull, keeping what was typed; a redraw of the same hull
// leaves it as it was.
void StabilityWindowTest::followsTheHullRedrawn() {
  test::Started p;
  p.createAndValidate();
  DessinWindow& board = p.board();
  p.h() = *fixture::defaultHull();
  p.h().langue = 1;
  board.state().stepIndex = 1;
  board.dessineAction();
  board.constructionMenu().action("fmenu_B_Stability")->trigger();
  auto* w = qobject_cast<StabilityWindow*>(board.constructionMenu().window("fmenu_B_Stability"));
  QVERIFY(w);
  retype(w->field("kg"), "0.3");
  w->findChild<QPushButton*>("compute")->click();
  QVERIFY(w->result().ok());
  const double gm = *w->result().summary.gm;
  const double volume = w->result().load.volume;

  // The same hull redrawn (as a zoom does): nothing is computed again, so
  // a field left unreadable does not replace the result.
  retype(w->field("crewKg"), "abc");
  board.dessineAction();
  QVERIFY(w->result().ok());
  QCOMPARE(*w->result().summary.gm, gm);
  retype(w->field("crewKg"), "");

  // An engine of 120 kg aft in the mass budget, then a redraw: a heavier
  // boat on the same KG typed, floating deeper.
  p.h().equipMass(1) = 120;
  p.h().equipX(1) = 0.5;
  board.dessineAction();
  QCOMPARE(qobject_cast<StabilityWindow*>(board.constructionMenu().window("fmenu_B_Stability")), w);
  QVERIFY(w->result().ok());
  QCOMPARE(w->result().kg, 0.3);
  QVERIFY(w->result().load.volume > volume + 0.1);
  QVERIFY(*w->result().summary.gm != gm);
  w->close();
}

QTEST_MAIN(StabilityWindowTest)
#include "stability_window_test.moc"
