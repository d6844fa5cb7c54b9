// The three hull screens as windows over the board: a replaced value keeps
// the screen open with its coloured field, closing the frame or Escape
// counts as Valider, the option groups of the planks screen, automatic
// planking to twelve planks and the board's enabling and focus after each
// screen, and the station drawn by DessCouple.
#include <QButtonGroup>
#include <QLabel>
#include <QPushButton>
#include <QRadioButton>

#include "board_session_util.h"
#include "windows/bouchain2_window.h"
#include "windows/bouchain3_window.h"
#include "windows/field_widgets.h"

using namespace tolmar;
using C = board::BoardControl;
using test::Started;

namespace {

QColor base(const QLineEdit* e) { return e->palette().color(QPalette::Base); }
const QColor kYellowQt = gui::qtColor(kYellow);
const QColor kWhiteQt = gui::qtColor(kWhite);

// Create, Valider, then the planks screen by its button.
void toPlanks(Started& p) {
  p.createAndValidate();
  p.board().button(C::Command1_1)->click();
  QVERIFY(p.s->bouchain2().isVisible());
}

}  // namespace

class HullScreensWindowTest : public QObject {
  Q_OBJECT

 private slots:
  void initTestCase() { test::quietOffscreen(); }

  void clampedFieldStaysYellowAndTheScreenOpen() {
    Started p;
    p.s->menu2().createButton()->click();
    gui::Bouchain1Window& b1 = p.s->bouchain1();
    test::type(b1.text1(1), "5.5");  // beyond 0.7 L = 4.2
    b1.validerButton()->click();
    QVERIFY(b1.isVisible());
    QCOMPARE(b1.text1(1)->text(), QString("4.2"));
    QCOMPARE(base(b1.text1(1)), kYellowQt);
    QCOMPARE(base(b1.text1(0)), kWhiteQt);
    QCOMPARE(test::inkedPixels(p.board().plan().picture()), 0);
    b1.validerButton()->click();  // the bound itself passes
    QVERIFY(!b1.isVisible());
    QCOMPARE(base(b1.text1(1)), kWhiteQt);
    QVERIFY(test::inkedPixels(p.board().plan().picture()) > 2000);
  }

  void lengthBelowTheMinimumIsOrangeWithABeep() {
    Started p;
    p.s->menu2().createButton()->click();
    gui::Bouchain1Window& b1 = p.s->bouchain1();
    test::type(b1.text1(0), "");
    b1.valider();
    QVERIFY(b1.isVisible());
    QCOMPARE(b1.text1(0)->text(), QString("0.1"));
    QCOMPARE(base(b1.text1(0)), gui::qtColor(kOrange));
    QCOMPARE(p.beeps, 1);
  }

  void stemInclinationFollowsTheHalfWidthForward() {
    Started p;
    p.s->menu2().createButton()->click();
    gui::Bouchain1Window& b1 = p.s->bouchain1();
    QVERIFY(!b1.text2(5)->isEnabled());  // pointed stem of the default hull
    test::type(b1.text1(3), "0.2");
    QVERIFY(b1.text2(5)->isEnabled());
    test::type(b1.text1(3), "0");
    QVERIFY(!b1.text2(5)->isEnabled());
  }

  void closingTheFrameOrEscapeIsValider() {
    Started p;
    p.s->menu2().createButton()->click();
    gui::Bouchain1Window& b1 = p.s->bouchain1();
    test::type(b1.text2(3), "60");  // deadrise beyond 45
    b1.close();
    QVERIFY(b1.isVisible());
    QCOMPARE(b1.text2(3)->text(), QString("45"));
    QCOMPARE(base(b1.text2(3)), kYellowQt);
    QTest::keyClick(&b1, Qt::Key_Escape);
    QVERIFY(!b1.isVisible());
    QCOMPARE(p.h().plankAngle(0), 45);
    QVERIFY(test::inkedPixels(p.board().plan().picture()) > 2000);
  }

  void planksScreenOptionsAndShearLine() {
    Started p;
    toPlanks(p);
    gui::Bouchain2Window& b2 = p.s->bouchain2();
    QCOMPARE(b2.windowTitle(), QString("  Planks "));
    // The default hull: sheer on row 3, bow turn-in on row 3, transom on 2.
    QVERIFY(b2.optShear(3)->isChecked());
    QVERIFY(b2.optMarotte(3)->isChecked());
    QVERIFY(b2.optTableau(2)->isChecked());
    QVERIFY(b2.field(0, 3)->isEnabled());
    QVERIFY(!b2.field(0, 4)->isEnabled());

    b2.optShear(1)->click();
    QCOMPARE(p.h().nChines, 3);
    QVERIFY(b2.optShear(1)->isChecked());
    QVERIFY(!b2.optShear(3)->isChecked());
    for (int c = 0; c < 4; ++c) {
      QVERIFY(b2.field(c, 1)->isEnabled());
      QVERIFY(!b2.field(c, 2)->isEnabled());
    }
    // A turn-in beyond the last plank stands for the last plank's row.
    b2.optTableau(3)->click();
    QVERIFY(b2.optTableau(1)->isChecked());
    QVERIFY(!b2.optTableau(3)->isChecked());

    b2.validerButton()->click();
    QVERIFY(!b2.isVisible());
    QCOMPARE(p.h().nChines, 3);
    gui::DessinWindow& d = p.board();
    QCOMPARE(d.state().stepIndex, 1);
    QVERIFY(d.action(C::Hmenu)->isEnabled());
    QVERIFY(d.action(C::fmenu_S_VRML)->isEnabled());
    QVERIFY(d.button(C::DessCouple)->isEnabled());
    QVERIFY(d.action(C::fmenu_S_DXF2D)->isEnabled());
    QVERIFY(!d.action(C::fmenu_Station_DXF)->isEnabled());
    QCOMPARE(d.focusWidget(), d.button(C::Command1_1));
  }

  void planksClampedInclinationStaysOpen() {
    Started p;
    toPlanks(p);
    gui::Bouchain2Window& b2 = p.s->bouchain2();
    test::type(b2.field(3, 0), "2");  // below the bottom's 12 + 5
    b2.valider();
    QVERIFY(b2.isVisible());
    QCOMPARE(b2.field(3, 0)->text(), QString("17"));
    QCOMPARE(base(b2.field(3, 0)), kYellowQt);
    b2.valider();
    QVERIFY(!b2.isVisible());
  }

  void automaticPlankingToTwelvePlanks() {
    Started p;
    p.createAndValidate();
    p.board().button(C::Command1_2)->click();
    gui::Bouchain3Window& b3 = p.s->bouchain3();
    QVERIFY(b3.isVisible());
    QCOMPARE(b3.windowTitle(), QString("Automatic planking"));
    test::type(b3.text0(), "12");
    b3.validerButton()->click();
    QVERIFY(!b3.isVisible());
    QCOMPARE(p.h().nChines, 13);
    QCOMPARE(b3.progressLine()->text(), QString());
    gui::DessinWindow& d = p.board();
    QVERIFY(!d.button(C::Command1_1)->isEnabled());  // seven lines or more
    QVERIFY(d.button(C::Command1_2)->isEnabled());
    QCOMPARE(d.focusWidget(), d.button(C::Command1_2));
    QVERIFY(test::inkedPixels(d.plan().picture()) > 4000);

    // The bottom screen again: Command1(1) stays closed, the redraw's focus
    // goes to the automatic planking.
    d.button(C::Command1_0)->click();
    p.s->bouchain1().valider();
    QVERIFY(!d.button(C::Command1_1)->isEnabled());
    QCOMPARE(d.focusWidget(), d.button(C::Command1_2));
  }

  void automaticPlankingCountOutOfRange() {
    Started p;
    p.createAndValidate();
    p.board().button(C::Command1_2)->click();
    gui::Bouchain3Window& b3 = p.s->bouchain3();
    test::type(b3.text0(), "1");
    b3.valider();
    QVERIFY(b3.isVisible());
    QCOMPARE(b3.text0()->text(), QString("2"));
    QCOMPARE(base(b3.text0()), kYellowQt);
  }

  void dessCoupleDrawsTheStationAndOpensItsExport() {
    Started p;
    toPlanks(p);
    p.s->bouchain2().valider();
    gui::DessinWindow& d = p.board();
    const QImage before = d.plan().picture();
    test::type(d.text1(), "2,5");
    d.button(C::DessCouple)->click();
    QVERIFY(d.plan().picture() != before);
    QVERIFY(p.h().stationIndex >= 1 && p.h().stationIndex <= 81);
    QCOMPARE(d.text1()->text().toDouble(), p.h().lineX(0, p.h().stationIndex));
    QVERIFY(d.action(C::fmenu_Station_DXF)->isEnabled());
  }

  void developerDrawsThePlatesOverTheViews() {
    Started p;
    toPlanks(p);
    p.s->bouchain2().valider();
    gui::DessinWindow& d = p.board();
    QVERIFY(d.button(C::Developer)->isEnabled());
    const QImage views = d.plan().picture();
    d.button(C::Developer)->click();
    QVERIFY(test::inkedPixels(d.plan().picture()) > test::inkedPixels(views));
  }
};

QTEST_MAIN(HullScreensWindowTest)
#include "hull_screens_window_test.moc"
