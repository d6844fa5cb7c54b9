// The program's windows from the start screen to the board and back: the
// start in English, Create, the board's enabling, menu and shortcuts after
// each event, the hull name field, Quit, Cancel with its save, the closing
// of the board's frame and resizing to any size.
#include <QAction>
#include <QLabel>
#include <QPushButton>
#include <QRadioButton>
#include <QTemporaryDir>

#include "board/board_control.h"
#include "board_session_util.h"
#include "screens/control.h"
#include "windows/analysis_windows.h"
#include "windows/board_commands.h"
#include "windows/bouchain2_window.h"
#include "windows/field_widgets.h"
#include "windows/file_dialog.h"

using namespace tolmar;
using board::BoardControl;
using C = board::BoardControl;
using test::Started;

class BoardSessionTest : public QObject {
  Q_OBJECT

 private:
  // Every button, field and menu entry of the board as its model has it.
  static void checkEnablingFollowsModel(gui::DessinWindow& d) {
    const board::BoardState& b = d.state();
    for (std::size_t i = 0; i < board::kBoardControlCount; ++i) {
      const auto c = static_cast<BoardControl>(i);
      if (QWidget* w = d.widget(c)) QCOMPARE(w->isEnabled(), b.isEnabled(c));
      if (QAction* a = d.action(c)) QCOMPARE(a->isEnabled(), b.isEnabled(c));
    }
  }

 private slots:
  void initTestCase() { test::quietOffscreen(); }

  void startComesUpInEnglishWithTheOtherScreensLoaded() {
    Started p;
    gui::Menu2Window& m = p.s->menu2();
    QVERIFY(m.isVisible());
    QCOMPARE(m.windowTitle(), QString(" Tolmar2008  - version  2 Dec 2007 "));
    QCOMPARE(m.createButton()->text(), QString("Create a hull"));
    QCOMPARE(m.terminateButton()->text(), QString("Quit"));
    QVERIFY(m.langueButton(1)->isChecked());
    QVERIFY(!m.langueButton(0)->isChecked());
    QCOMPARE(p.h().langue, 1);
    QCOMPARE(QString::fromStdString(p.h().hullName), QString("TOLMAR2005"));
    QVERIFY(p.s->loadedDessin() != nullptr);
    QVERIFY(!p.board().isVisible());
    QVERIFY(!p.s->bouchain1().isVisible());
    QCOMPARE(QApplication::overrideCursor(), nullptr);  // the busy pointer is gone
    // 5000 x 6500 twips through the screen's resolution.
    // Edges are rounded one by one: a pixel either way.
    QVERIFY(std::abs(m.width() - 5000.0 * m.logicalDpiX() / 1440) <= 1);
    QVERIFY(std::abs(m.height() - 6500.0 * m.logicalDpiY() / 1440) <= 1);
  }

  void languageSwitchChangesMenu2Only() {
    Started p;
    const auto before = p.h().hullName;
    p.s->menu2().langueButton(0)->click();
    QCOMPARE(p.h().langue, 0);
    QCOMPARE(p.s->menu2().createButton()->text(), QString("Créer une tolmar"));
    QCOMPARE(p.s->menu2().terminateButton()->text(), QString("Quitter"));
    p.s->menu2().langueButton(1)->click();
    QCOMPARE(p.s->menu2().createButton()->text(), QString("Create a hull"));
    QCOMPARE(p.h().hullName, before);
  }

  void createShowsBoardAndBottomScreenModal() {
    Started p;
    p.s->menu2().createButton()->click();
    QVERIFY(!p.s->menu2().isVisible());
    QVERIFY(p.board().isVisible());
    gui::Bouchain1Window& b1 = p.s->bouchain1();
    QVERIFY(b1.isVisible());
    QCOMPARE(b1.windowModality(), Qt::ApplicationModal);
    QCOMPARE(b1.windowTitle(), QString("  Bottom "));
    QCOMPARE(b1.text1(0)->text(), QString("6"));
    QVERIFY(!p.board().button(C::Command1_1)->isEnabled());
    QVERIFY(!p.board().button(C::Command1_2)->isEnabled());
    checkEnablingFollowsModel(p.board());
  }

  void validerDrawsTheBoardAndMovesTheFocus() {
    Started p;
    p.createAndValidate();
    QVERIFY(!p.s->bouchain1().isVisible());
    QVERIFY(p.board().isVisible());
    QVERIFY(test::inkedPixels(p.board().plan().picture()) > 2000);
    QVERIFY(p.h().scaleX > 0);
    QVERIFY(p.board().button(C::Command1_1)->isEnabled());
    QVERIFY(p.board().button(C::Developer)->isEnabled());
    QVERIFY(!p.board().button(C::DessCouple)->isEnabled());
    QVERIFY(p.board().action(C::fmenu_P_Tout)->isEnabled());
    QVERIFY(!p.board().action(C::fmenu_S_DXF2D)->isEnabled());
    QCOMPARE(p.board().focusWidget(), p.board().button(C::Command1_1));
    checkEnablingFollowsModel(p.board());
  }

  void menuHasItsShortcutsAndEveryEntry() {
    Started p;
    gui::DessinWindow& d = p.board();
    for (const board::MenuEntry& e : board::boardMenu()) {
      QAction* a = d.action(e.control);
      QVERIFY2(a != nullptr, board::controlName(e.control).data());
      QCOMPARE(a->isSeparator(), e.separator);
      QCOMPARE(a->shortcut(),
               QKeySequence(QString::fromUtf8(e.key.data(), static_cast<int>(e.key.size()))));
    }
    QCOMPARE(d.action(C::fmenu_New)->shortcut(), QKeySequence("Ctrl+N"));
    QCOMPARE(d.action(C::fmenu_Quit)->shortcut(), QKeySequence("Ctrl+Q"));
    QCOMPARE(d.action(C::Hmenu)->text(), QString("&Hydro"));
    QCOMPARE(d.action(C::fmenu_S_DXF2D)->text(), QString("Lines 2D DXF"));
  }

  void shortcutOfADisabledEntryDoesNothing() {
    Started p;
    p.createAndValidate();
    gui::DessinWindow& d = p.board();
    QVERIFY(!d.action(C::fmenu_S_VRML)->isEnabled());
    d.action(C::fmenu_S_VRML)->trigger();  // a disabled action ignores the trigger
    QVERIFY(d.isVisible());
    // Ctrl+Q is open at all times: back to menu2, the board stays behind.
    d.action(C::fmenu_Quit)->trigger();
    QVERIFY(p.s->menu2().isVisible());
    QVERIFY(d.isVisible());
  }

  void shortcutKeysReachTheMenu() {
    Started p;
    p.createAndValidate();
    p.board().activateWindow();
    if (!QTest::qWaitForWindowActive(&p.board(), 2000))
      QSKIP("no window activation on this platform");
    QTest::keyClick(&p.board(), Qt::Key_Q, Qt::ControlModifier);
    QVERIFY(p.s->menu2().isVisible());
  }

  void quitThenCreateKeepsTheHullAndThePicture() {
    Started p;
    p.createAndValidate();
    test::type(p.s->bouchain1().text1(0), "7");  // not validated: the store keeps 6
    const QImage drawn = p.board().plan().picture();
    p.board().press(C::fmenu_Quit);
    p.s->menu2().createButton()->click();
    QCOMPARE(p.s->bouchain1().text1(0)->text(), QString("6"));
    QCOMPARE(p.board().plan().picture(), drawn);
    p.s->bouchain1().valider();
    QVERIFY(!p.s->bouchain1().isVisible());
  }

  void closingTheBoardFrameUnloadsIt() {
    Started p;
    p.createAndValidate();
    p.board().close();
    QVERIFY(p.s->loadedDessin() == nullptr);
    QVERIFY(p.s->menu2().isVisible());
    p.s->menu2().createButton()->click();
    QVERIFY(p.board().isVisible());
    QCOMPARE(test::inkedPixels(p.board().plan().picture()), 0);
    QCOMPARE(p.board().windowTitle(), QString("Tolmar2008  -  New Hull : TOLMAR2005"));
    p.s->bouchain1().valider();
    QVERIFY(test::inkedPixels(p.board().plan().picture()) > 2000);
  }

  void cancelSavesAndReturnsToTheStartScreen() {
    Started p;
    p.createAndValidate();
    QTemporaryDir dir;
    gui::BoardWindows& w = gui::BoardWindows::of(&p.board(), p.h());
    w.setUnattended(true);
    const QString path = dir.filePath("Boat.D50");
    w.files().answerWith(path.toStdString());
    p.board().button(C::Cancel)->click();
    QVERIFY(QFile::exists(path));
    QCOMPARE(QString::fromStdString(p.h().hullName), QString("Boat"));
    QVERIFY(!p.board().isVisible());
    QVERIFY(p.s->menu2().isVisible());
  }

  void cancelledSaveStillReturns() {
    Started p;
    p.createAndValidate();
    gui::BoardWindows::of(&p.board(), p.h()).setUnattended(true);  // no answer: a cancel
    p.board().button(C::Cancel)->click();
    QVERIFY(!p.board().isVisible());
    QVERIFY(p.s->menu2().isVisible());
    QCOMPARE(QString::fromStdString(p.h().hullName), QString("TOLMAR2005"));
  }

  void hullNameEnterRule_data() {
    QTest::addColumn<QString>("typed");
    QTest::addColumn<QString>("shown");
    QTest::addColumn<QString>("kept");
    QTest::addColumn<int>("colour");  // -1 the screen's own
    QTest::addColumn<int>("beeps");
    QTest::newRow("2 refused") << "ab"
                               << "TOLMAR"
                               << "TOLMAR2005" << int(rgb(255, 127, 0)) << 1;
    QTest::newRow("3 taken") << "abc"
                             << "ABC"
                             << "ABC" << -1 << 0;
    QTest::newRow("15 taken") << "abcdefghijklmno"
                              << "ABCDEFGHIJKLMNO"
                              << "ABCDEFGHIJKLMNO" << -1 << 0;
    QTest::newRow("16 cut") << "abcdefghijklmnop"
                            << "ABCDEFGHIJKLMNO"
                            << "ABCDEFGHIJKLMNO" << int(rgb(255, 255, 0)) << 0;
    QTest::newRow("accents") << "bélouga"
                             << "BÉLOUGA"
                             << "BÉLOUGA" << -1 << 0;
  }

  void hullNameEnterRule() {
    QFETCH(QString, typed);
    QFETCH(QString, shown);
    QFETCH(QString, kept);
    QFETCH(int, colour);
    QFETCH(int, beeps);
    Started p;
    p.createAndValidate();
    QLineEdit* t2 = p.board().text2();
    test::type(t2, typed);
    QTest::keyClick(t2, Qt::Key_Return);
    QCOMPARE(t2->text(), shown);
    QCOMPARE(QString::fromStdString(p.h().hullName), kept);
    QCOMPARE(p.beeps, beeps);
    const QColor expected =
        colour == -1 ? p.board().palette().color(QPalette::Window) : gui::qtColor(colour);
    QCOMPARE(t2->palette().color(QPalette::Base), expected);
  }

  void newHullStartsOverWithTheBottomScreen() {
    Started p;
    p.createAndValidate();
    p.board().action(C::fmenu_New)->trigger();
    QVERIFY(p.s->bouchain1().isVisible());
    QCOMPARE(QString::fromStdString(p.h().hullName), QString("Tolmar"));
    QCOMPARE(test::inkedPixels(p.board().plan().picture()), 0);
    p.s->bouchain1().valider();
    // After the modal screen of Command1(0): DessCouple and Developer closed.
    QVERIFY(!p.board().button(C::Developer)->isEnabled());
    QVERIFY(test::inkedPixels(p.board().plan().picture()) > 2000);
    checkEnablingFollowsModel(p.board());
  }

  // Text1 holds the station's X with a blank in the place of its sign, on
  // every board that loads and after DessCouple.
  void stationFieldHasABlankForTheSign() {
    Started p;
    QCOMPARE(p.board().text1()->text(), QString(" 3"));
    p.createAndValidate();
    QCOMPARE(p.board().text1()->text(), QString(" 3"));
    p.board().close();  // unloaded; Create loads it again
    p.s->menu2().createButton()->click();
    p.s->bouchain1().valider();
    QCOMPARE(p.board().text1()->text(), QString(" 3"));
    p.board().button(C::Command1_1)->click();
    p.s->bouchain2().valider();
    test::type(p.board().text1(), "1.8");
    p.board().button(C::DessCouple)->click();
    QCOMPARE(p.board().text1()->text(), QString(" 1.8"));
  }

  // New, then the bottom validated: Hydro stays open, since only the
  // board's load closes it, and the mass budget runs on what the store holds.
  void newHullLeavesHydroOpen() {
    Started p;
    p.createAndValidate();
    QVERIFY(!p.board().action(C::Hmenu)->isEnabled());
    p.board().button(C::Command1_1)->click();
    p.s->bouchain2().valider();
    QVERIFY(p.board().action(C::Hmenu)->isEnabled());
    p.board().action(C::fmenu_New)->trigger();
    p.s->bouchain1().valider();
    QVERIFY(p.board().action(C::Hmenu)->isEnabled());
    p.board().action(C::Hmenu)->trigger();
    gui::Mass1Window* mass = gui::BoardWindows::of(&p.board(), p.h()).analysis().massWindow();
    QVERIFY(mass->isVisible());
    QVERIFY(mass->text(2, 2)->text().toDouble() > 0);  // first side plank, to zeroed line 2
  }

  void resizingToAnySizeKeepsTheBoard() {
    Started p;
    p.createAndValidate();
    gui::DessinWindow& d = p.board();
    const QRect plan = d.plan().geometry();
    const board::BoardLayout before = d.layout();
    for (QSize s :
         {QSize(1, 1), QSize(10, 10), QSize(300, 120), QSize(2000, 80), QSize(80, 2000)}) {
      d.resize(s);
      QCoreApplication::processEvents();
      QCOMPARE(d.plan().geometry(), plan);  // below the limits nothing moves
    }
    // Exactly 10000 twips wide is still below the limit.
    const gui::Twips t(d);
    d.resize(t.x(10000), t.y(9000));
    QCoreApplication::processEvents();
    if (qFuzzyCompare(t.twipsX(d.width()), 10000.0)) QCOMPARE(d.plan().geometry(), plan);
    d.resize(t.x(before.window.width), t.y(before.window.height));
    QCoreApplication::processEvents();
    QVERIFY(test::inkedPixels(d.plan().picture()) > 2000);  // kept through the sizes
    p.board().press(C::dessine);
    QVERIFY(test::inkedPixels(d.plan().picture()) > 2000);
  }

  void terminateEndsTheProgram() {
    Started p;
    QSignalSpy ended(p.s.get(), &gui::Session::programEnded);
    p.s->menu2().terminateButton()->click();
    QCOMPARE(ended.count(), 1);
    QVERIFY(p.s->ended());
    QVERIFY(!p.s->menu2().isVisible());
  }

  // Quit on the board leaves it open behind menu2; closing menu2 by its
  // frame then ends the program, and the application's closing of every
  // window on its way out must not bring a start screen back.
  void closingMenu2AfterQuitEndsTheProgram() {
    Started p;
    p.createAndValidate();
    p.board().press(C::fmenu_Quit);
    QVERIFY(p.s->menu2().isVisible());
    QVERIFY(p.board().isVisible());
    QSignalSpy ended(p.s.get(), &gui::Session::programEnded);
    QVERIFY(p.s->menu2().close());
    QCOMPARE(ended.count(), 1);
    QApplication::closeAllWindows();  // what the application's quit does first
    for (QWidget* w : QApplication::topLevelWidgets())
      QVERIFY2(!w->isVisible(), qPrintable(w->objectName()));
    QCOMPARE(ended.count(), 1);
  }

  void frenchCaptionsOnTheNextAppearance() {
    Started p;
    p.s->menu2().langueButton(0)->click();
    p.s->menu2().createButton()->click();
    QCOMPARE(p.s->bouchain1().windowTitle(), QString("  Fond "));
    QCOMPARE(p.board().windowTitle(), QString("Tolmar2008  -  Nouvelle tolmar : TOLMAR2005"));
    p.s->bouchain1().valider();
    QEvent activate(QEvent::WindowActivate);
    QApplication::sendEvent(&p.board(), &activate);
    QCOMPARE(p.board().button(C::Command1_1)->text(), QString("Bordés"));
    QCOMPARE(p.board().windowTitle(), QString("  Planche à dessin  "));
  }
};

QTEST_MAIN(BoardSessionTest)
#include "board_session_test.moc"
