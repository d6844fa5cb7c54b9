// The stability window on the default hull: the mass budget's loading, the
// plots drawn, the tables filled, typed values and the ones refused, both
// languages.  Pictures for the documentation when TOLMAR_SCREENSHOTS names
// a folder:
//   TOLMAR_SCREENSHOTS=docs xvfb-run -a -s "-screen 0 1366x768x24"
//     env QT_QPA_PLATFORM=xcb build/tests/gui/stability_window_test
#include "windows/stability_window.h"

#include <QDir>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QTabWidget>
#include <QTableWidget>
#include <QtTest>

#include "board_session_util.h"
#include "development/hull_fixture.h"
#include "windows/dessin_window.h"
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

  w.resize(1200, 760);
  w.show();
  QVERIFY(QTest::qWaitForWindowExposed(&w));
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

QTEST_MAIN(StabilityWindowTest)
#include "stability_window_test.moc"
