// The board's warning line for a hull that folds: hidden for the default
// hull, shown over the picture after automatic planking whose first plank
// folds under line 1, in the store's language, and gone again once the
// planking is made sound; the folded stretch is drawn in the warning
// colour.
#include <QLabel>
#include <QtTest>

#include "board/fold_drawing.h"
#include "board_session_util.h"
#include "windows/bouchain2_window.h"
#include "windows/bouchain3_window.h"
#include "windows/field_widgets.h"

namespace tolmar {

using board::BoardControl;
using C = board::BoardControl;
using test::Started;

namespace {

// The 20 planks, typed into bouchain3 and validated.
void foldingPlanks(Started& p, const char* last, const char* stemShape) {
  p.board().button(C::Command1_2)->click();
  gui::Bouchain3Window& b3 = p.s->bouchain3();
  test::type(b3.text0(), "20");
  test::type(b3.text1(0), "20");
  test::type(b3.text2(0), last);
  test::type(b3.text2(1), "1.2");
  test::type(b3.text2(2), "0.95");
  test::type(b3.text2(3), "1.0");
  test::type(b3.text4(), stemShape);
  b3.validerButton()->click();
}

int pixelsOf(const QImage& img, QRgb c) {
  int n = 0;
  for (int y = 0; y < img.height(); ++y)
    for (int x = 0; x < img.width(); ++x) n += (img.pixel(x, y) & 0xFFFFFF) == (c & 0xFFFFFF);
  return n;
}

}  // namespace

class FoldLineTest : public QObject {
  Q_OBJECT
 private slots:
  void initTestCase() { test::quietOffscreen(); }

  void soundHullShowsNoLine() {
    Started p;
    p.createAndValidate();
    QVERIFY(p.board().foldLine()->isHidden());
    p.board().button(C::Command1_1)->click();
    p.s->bouchain2().valider();
    QVERIFY(p.board().foldLine()->isHidden());
    QCOMPARE(pixelsOf(p.board().plan().picture(), gui::qtColor(kFoldColour).rgb()), 0);
  }

  void foldedPlanksShowTheLineAndTheStretch() {
    Started p;
    p.createAndValidate();
    foldingPlanks(p, "115", "0.6");
    QVERIFY(!p.s->bouchain3().isVisible());  // the screen accepts the numbers
    QLabel* line = p.board().foldLine();
    QVERIFY(!line->isHidden());
    QCOMPARE(line->text(),
             QString("Plank 1 folds under line 1 from X = 3.8 m to 5.5 m (up to 23 mm)"));
    QCOMPARE(line->geometry().topLeft(), p.board().plan().geometry().topLeft());
    QVERIFY(pixelsOf(p.board().plan().picture(), gui::qtColor(kFoldColour).rgb()) > 50);

    // French on the next activation of the board, as its captions.
    p.h().langue = 0;
    p.board().syncFromModel();
    QCOMPARE(line->text(), QString::fromUtf8("Le bordé 1 se replie sous le bouchain 1 de X = 3.8 m "
                                             "à 5.5 m (jusqu'à 23 mm)"));

    // A sound planking validated over it takes the line away.
    p.h().langue = 1;
    foldingPlanks(p, "77", "0");
    QVERIFY(line->isHidden());
    QCOMPARE(pixelsOf(p.board().plan().picture(), gui::qtColor(kFoldColour).rgb()), 0);
  }
};

}  // namespace tolmar

QTEST_MAIN(tolmar::FoldLineTest)
#include "fold_line_test.moc"
