// Pictures of every window of a session, in English and in French, for the
// documentation, and of the whole display with the board, hydro1 and mass1.
// Runs only when TOLMAR_SCREENSHOTS names a folder; the documentation's are
// taken on displays of 1366 x 768 and 1920 x 1080:
//   TOLMAR_SCREENSHOTS=docs xvfb-run -a -s "-screen 0 1366x768x24"
//     env QT_QPA_PLATFORM=xcb build/tests/gui/screenshots_test
// The windows are grabbed as Qt paints them (without the window manager's
// frame), after a real show on the display.
#include <QDir>
#include <QPushButton>
#include <QRadioButton>
#include <QScreen>

#include "board_session_util.h"
#include "windows/analysis_windows.h"
#include "windows/board_commands.h"
#include "windows/bouchain2_window.h"
#include "windows/bouchain3_window.h"

using namespace tolmar;
using C = board::BoardControl;

namespace {

void save(QWidget& w, const QString& folder, const QString& name) {
  QVERIFY(QTest::qWaitForWindowExposed(&w));
  QTest::qWait(50);
  QVERIFY(w.grab().save(QDir(folder).filePath(name + ".png")));
}

}  // namespace

class ScreenshotsTest : public QObject {
  Q_OBJECT

 private slots:
  void initTestCase() { test::quietOffscreen(); }

  void everyWindow_data() {
    QTest::addColumn<int>("langue");
    QTest::newRow("en") << 1;
    QTest::newRow("fr") << 0;
  }

  void everyWindow() {
    const QString folder = qEnvironmentVariable("TOLMAR_SCREENSHOTS");
    if (folder.isEmpty()) QSKIP("TOLMAR_SCREENSHOTS is not set");
    QDir().mkpath(folder);
    QFETCH(int, langue);
    const QString tag = langue == 1 ? "-en" : "-fr";
    test::Started p;
    p.s->menu2().langueButton(langue)->click();
    save(p.s->menu2(), folder, "menu2" + tag);

    p.s->menu2().createButton()->click();
    save(p.s->bouchain1(), folder, "bouchain1" + tag);
    p.s->bouchain1().valider();

    p.board().button(C::Command1_1)->click();
    save(p.s->bouchain2(), folder, "bouchain2" + tag);
    p.s->bouchain2().valider();

    test::type(p.board().text1(), "1.8");
    p.board().button(C::DessCouple)->click();
    QEvent activate(QEvent::WindowActivate);
    QApplication::sendEvent(&p.board(), &activate);
    save(p.board(), folder, "dessin" + tag);

    p.board().button(C::Command1_2)->click();
    save(p.s->bouchain3(), folder, "bouchain3" + tag);
    p.s->bouchain3().valider();

    // The whole display with the board, hydro1 and mass1 as Hydro places
    // them, named by the display's size.
    p.board().press(C::Hmenu);
    gui::AnalysisWindows& pair = gui::BoardWindows::of(&p.board(), p.h()).analysis();
    QVERIFY(QTest::qWaitForWindowExposed(pair.massWindow()));
    QVERIFY(QTest::qWaitForWindowExposed(pair.hydroWindow()));
    QTest::qWait(200);  // placed again once shown
    QScreen* screen = p.board().screen();
    const QSize size = screen->size();
    const QString name =
        QString("screen-%1x%2%3.png").arg(size.width()).arg(size.height()).arg(tag);
    QVERIFY(screen->grabWindow(0).save(QDir(folder).filePath(name)));
  }
};

QTEST_MAIN(ScreenshotsTest)
#include "screenshots_test.moc"
