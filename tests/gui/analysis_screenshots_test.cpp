// Pictures of overlap1, hydro1 and mass1 on the default hull for the
// documentation, and the time a user waits on a 21-line hull: from a click
// on Calcul1 of mass1 to hydro1 showing the result, and from a click on
// Develop to the patterns painted.  Pictures are written only when
// TOLMAR_SCREENSHOTS names a folder:
//   TOLMAR_SCREENSHOTS=docs xvfb-run -a -s "-screen 0 1366x768x24"
//     env QT_QPA_PLATFORM=xcb build/tests/gui/analysis_screenshots_test
#include <QDir>
#include <QElapsedTimer>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QtTest>

#include "board_session_util.h"
#include "development/hull_fixture.h"
#include "windows/analysis_windows.h"
#include "windows/board_commands.h"
#include "windows/overlap1_window.h"
#include "windows_test_util.h"

using namespace tolmar;
using namespace tolmar::gui;
using C = board::BoardControl;

namespace {

// Grabs the window as Qt paints it; saved when a folder is given.
void picture(QWidget& w, const QString& name) {
  QVERIFY(QTest::qWaitForWindowExposed(&w));
  QTest::qWait(30);
  const QImage img = w.grab().toImage();
  QVERIFY(img.width() > 200 && img.height() > 150);
  const QString folder = qEnvironmentVariable("TOLMAR_SCREENSHOTS");
  if (!folder.isEmpty()) QVERIFY(img.save(QDir(folder).filePath(name + ".png")));
}

QString suffix(int langue) { return langue == 1 ? "-en" : "-fr"; }

}  // namespace

class AnalysisScreenshotsTest : public QObject {
  Q_OBJECT

 private slots:
  void initTestCase() { test::quietOffscreen(); }
  void overlap1_data();
  void overlap1();
  void hydroAndMass_data();
  void hydroAndMass();
  void waitOn21Lines();
};

void AnalysisScreenshotsTest::overlap1_data() {
  QTest::addColumn<int>("langue");
  QTest::newRow("en") << 1;
  QTest::newRow("fr") << 0;
}

void AnalysisScreenshotsTest::overlap1() {
  QFETCH(int, langue);
  auto h = fixture::defaultHull();
  h->langue = static_cast<i16>(langue);
  Overlap1Window w(*h, nullptr);
  test::whenModal<Overlap1Window>([&](Overlap1Window* o) {
    // The laps first: the advice lines answer the thickness fields.
    test::type(o->field(Overlap1::Group::text1, 1), "22");
    test::type(o->field(Overlap1::Group::text2, 1), "18");
    test::type(o->field(Overlap1::Group::text3, 1), "12");
    test::type(o->field(Overlap1::Group::text1, 0), "9");
    test::type(o->field(Overlap1::Group::text2, 0), "6");
    QVERIFY(!o->advice(0)->text().isEmpty());
    QVERIFY(!o->advice(1)->text().isEmpty());
    picture(*o, "overlap1" + suffix(langue));
    o->command1(0)->click();
  });
  w.run();
}

void AnalysisScreenshotsTest::hydroAndMass_data() { overlap1_data(); }

void AnalysisScreenshotsTest::hydroAndMass() {
  QFETCH(int, langue);
  auto h = fixture::defaultHull();
  h->langue = static_cast<i16>(langue);
  QWidget board;
  AnalysisWindows pair(*h, &board);
  pair.open();
  test::type(pair.massWindow()->text(3, 13), "25");
  test::type(pair.massWindow()->text(4, 13), "0.3");
  test::type(pair.massWindow()->text(3, 15), "160");
  test::type(pair.massWindow()->text(4, 15), "2.5");
  QTest::mouseClick(pair.massWindow()->calcul1(), Qt::LeftButton);
  picture(*pair.hydroWindow(), "hydro1" + suffix(langue));
  picture(*pair.massWindow(), "mass1" + suffix(langue));
}

void AnalysisScreenshotsTest::waitOn21Lines() {
  test::Started p;
  p.s->menu2().createButton()->click();
  p.s->bouchain1().valider();
  DessinWindow& board = p.board();
  p.h() = *fixture::manyLineHull();
  p.h().langue = 1;
  board.state().stepIndex = 2;
  board.dessineAction();
  QVERIFY(board.button(C::Developer)->isEnabled());
  QVERIFY(QTest::qWaitForWindowExposed(&board));

  QElapsedTimer clock;
  clock.start();
  QTest::mouseClick(board.button(C::Developer), Qt::LeftButton);
  QCoreApplication::processEvents();  // the picture painted
  const qint64 develop = clock.elapsed();

  board.state().enable(C::Hmenu);  // as the end of bouchain3 leaves it
  board.press(C::Hmenu);
  AnalysisWindows& pair = BoardWindows::of(&board, p.h()).analysis();
  QVERIFY(QTest::qWaitForWindowExposed(pair.massWindow()));
  clock.restart();
  QTest::mouseClick(pair.massWindow()->calcul1(), Qt::LeftButton);
  QCoreApplication::processEvents();  // hydro1 painted with the result
  const qint64 calcul = clock.elapsed();
  QVERIFY(!pair.hydroWindow()->text1(0)->text().isEmpty());
  qInfo(
      "21 lines (%s): Develop to the patterns drawn %lld ms; Calcul1 of mass1 to the result shown "
      "%lld ms "
      "(%d outer, %d inner solver passes)",
      qPrintable(QGuiApplication::platformName()), develop, calcul,
      pair.screens().hydro.last.outerPasses, pair.screens().hydro.last.innerPasses);

  // An engine far aft: the solver trims the hull, pass after pass.
  pair.activated(analysis::ActiveScreen::mass1);
  test::type(pair.massWindow()->text(3, 13), "300");
  test::type(pair.massWindow()->text(4, 13), "0.2");
  clock.restart();
  QTest::mouseClick(pair.massWindow()->calcul1(), Qt::LeftButton);
  QCoreApplication::processEvents();
  const qint64 trimmed = clock.elapsed();
  qInfo(
      "21 lines, engine aft: Calcul1 of mass1 to the result shown %lld ms (%d outer, %d inner "
      "solver passes)",
      trimmed, pair.screens().hydro.last.outerPasses, pair.screens().hydro.last.innerPasses);
}

QTEST_MAIN(AnalysisScreenshotsTest)
#include "analysis_screenshots_test.moc"
