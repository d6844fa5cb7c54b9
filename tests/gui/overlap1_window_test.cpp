// The overlap1 window on the default hull: typing keeps a decimal point
// while the value reaches the store, leaving a field rewrites it clean,
// the advice follows the typing, Enter presses no button, and the three
// buttons and the window's closing leave overlapMode as the screen says.
#include "windows/overlap1_window.h"

#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QtTest>
#include <memory>

#include "development/hull_fixture.h"
#include "windows_test_util.h"

using namespace tolmar;
using namespace tolmar::gui;
using Group = Overlap1::Group;

class Overlap1WindowTest : public QObject {
  Q_OBJECT

 private:
  std::unique_ptr<HullStore> h_;
  std::unique_ptr<Overlap1Window> w_;

  // Runs the modal window and answers it with `user` once the window is
  // active, so that a focus moved between its fields is a field left.
  int run(std::function<void(Overlap1Window*)> user) {
    test::whenModal<Overlap1Window>([user](Overlap1Window* w) {
      if (!QTest::qWaitForWindowActive(w)) qWarning("overlap1 never became active");
      user(w);
    });
    return w_->run();
  }

 private slots:
  void init() {
    h_ = fixture::defaultHull();
    h_->langue = 1;
    w_ = std::make_unique<Overlap1Window>(*h_, nullptr);
  }
  void cleanup() { w_.reset(); }

  void activationShowsTheStoreInMillimetres();
  void decimalPointTypedLastStays();
  void leavingRewritesTheField();
  void adviceFollowsTheTyping();
  void adviceKeepsTheLayoutStill_data();
  void adviceKeepsTheLayoutStill();
  void enterPressesNoButton();
  void lapStrakeKeepsTheFields();
  void stripPlankingResetsAll();
  void closingTheWindowCancels();
  void lapsStayForTheNextOpening();
};

void Overlap1WindowTest::activationShowsTheStoreInMillimetres() {
  h_->plankThick(0) = 0.009;
  h_->plankThick(1) = 0.006;
  h_->transomThick = 0.012;
  QString bottom, sides, transom, title, notice;
  run([&](Overlap1Window* w) {
    bottom = w->field(Group::text1, 0)->text();
    sides = w->field(Group::text2, 0)->text();
    transom = w->field(Group::text3, 1)->text();
    title = w->windowTitle();
    w->command1(0)->click();
  });
  QCOMPARE(bottom, QString("9"));
  QCOMPARE(sides, QString("6"));
  QCOMPARE(transom, QString("12"));
  QCOMPARE(title, QString("Overlap"));
  QCOMPARE(h_->overlapMode, i16{0});
}

void Overlap1WindowTest::decimalPointTypedLastStays() {
  QString shown;
  run([&](Overlap1Window* w) {
    QLineEdit* e = w->field(Group::text1, 0);
    e->setFocus();
    e->selectAll();
    QTest::keyClicks(e, "2.");
    shown = e->text();
    QTest::keyClicks(e, "5");
    w->command1(2)->click();
  });
  QCOMPARE(shown, QString("2."));
  QCOMPARE(h_->plankThick(0), static_cast<double>(2.5f) / 1000);
  QCOMPARE(h_->overlapMode, i16{2});
}

void Overlap1WindowTest::leavingRewritesTheField() {
  QString afterLeaving, transom;
  run([&](Overlap1Window* w) {
    QLineEdit* e = w->field(Group::text2, 0);
    e->setFocus();
    e->selectAll();
    QTest::keyClicks(e, "-4,");
    w->field(Group::text3, 1)->setFocus();  // leaves Text2(0)
    afterLeaving = e->text();
    QTest::keyClicks(w->field(Group::text3, 1), "15");
    w->command1(2)->click();
    transom = w->field(Group::text3, 1)->text();
  });
  QCOMPARE(afterLeaving, QString("4"));
  for (int k = 1; k <= h_->nChines - 1; ++k) QCOMPARE(h_->plankThick(k), 0.004);
  QCOMPARE(h_->transomThick, static_cast<double>(15.0f) / 1000);
  QCOMPARE(transom, QString("15"));
}

void Overlap1WindowTest::adviceFollowsTheTyping() {
  QString bottomAdvice, sideAdvice;
  run([&](Overlap1Window* w) {
    QLineEdit* e = w->field(Group::text1, 0);
    e->setFocus();
    e->selectAll();
    QTest::keyClicks(e, "9");
    bottomAdvice = w->advice(0)->text();
    QLineEdit* s = w->field(Group::text2, 0);
    s->setFocus();
    s->selectAll();
    QTest::keyClicks(s, "6");
    sideAdvice = w->advice(1)->text();
    w->command1(0)->click();
  });
  QVERIFY2(bottomAdvice.startsWith("Recommended width of overlap at point"),
           qPrintable(bottomAdvice));
  QVERIFY(bottomAdvice.contains("(Bmax):"));
  QCOMPARE(sideAdvice, QString("Recommended width of overlap  18mm "));
}

void Overlap1WindowTest::enterPressesNoButton() {
  bool stillOpen = false;
  QString shown;
  run([&](Overlap1Window* w) {
    QLineEdit* e = w->field(Group::text1, 1);
    e->setFocus();
    e->selectAll();
    QTest::keyClicks(e, "20.");
    QTest::keyClick(e, Qt::Key_Return);
    stillOpen = w->isVisible();
    shown = e->text();
    w->command1(2)->click();
  });
  QVERIFY(stillOpen);
  QCOMPARE(shown, QString("20"));
  QCOMPARE(h_->overlapWidth(1, 40), static_cast<double>(20.0f) / 1000);
}

void Overlap1WindowTest::lapStrakeKeepsTheFields() {
  const int mode = run([&](Overlap1Window* w) {
    QLineEdit* e = w->field(Group::text1, 1);
    e->setFocus();
    e->selectAll();
    QTest::keyClicks(e, "25");
    w->command1(2)->click();
  });
  QCOMPARE(mode, 2);
  QCOMPARE(h_->overlapWidth(1, 0), static_cast<double>(25.0f) / 1000);
  QCOMPARE(h_->overlapWidth(0, 0), 0.0);
}

void Overlap1WindowTest::stripPlankingResetsAll() {
  h_->plankThick(0) = 0.009;
  QString bottom;
  const int mode = run([&](Overlap1Window* w) {
    w->command1(1)->click();
    bottom = w->field(Group::text1, 0)->text();
  });
  QCOMPARE(mode, 1);
  QCOMPARE(bottom, QString("0"));
  QCOMPARE(h_->plankThick(0), 0.0);
  for (int n = 1; n <= h_->nChines; ++n) QCOMPARE(h_->overlapWidth(n, 40), 0.0);
}

void Overlap1WindowTest::closingTheWindowCancels() {
  h_->overlapMode = 2;
  const int mode = run([&](Overlap1Window* w) {
    QLineEdit* e = w->field(Group::text1, 0);
    e->setFocus();
    e->selectAll();
    QTest::keyClicks(e, "7");
    w->close();
  });
  QCOMPARE(mode, 0);
  // What was typed stays in the store; only no file will be written.
  QCOMPARE(h_->plankThick(0), static_cast<double>(7.0f) / 1000);
}

void Overlap1WindowTest::lapsStayForTheNextOpening() {
  run([&](Overlap1Window* w) {
    QLineEdit* e = w->field(Group::text2, 1);
    e->setFocus();
    e->selectAll();
    QTest::keyClicks(e, "30");
    w->command1(2)->click();
  });
  QString lap;
  run([&](Overlap1Window* w) {
    lap = w->field(Group::text2, 1)->text();
    w->command1(0)->click();
  });
  QCOMPARE(lap, QString("30"));
}

namespace {

void typeInto(QLineEdit* e, const char* text) {
  e->setFocus();
  e->selectAll();
  QTest::keyClicks(e, text);
}

}  // namespace

void Overlap1WindowTest::adviceKeepsTheLayoutStill_data() {
  QTest::addColumn<int>("langue");
  QTest::newRow("en") << 1;
  QTest::newRow("fr") << 0;
}

// The advice lines have their room from the start: typing a thickness or
// clearing it moves no field and does not resize the window.
void Overlap1WindowTest::adviceKeepsTheLayoutStill() {
  QFETCH(int, langue);
  h_->langue = static_cast<i16>(langue);
  QSize before, withAdvice, cleared;
  QList<QRect> fieldsBefore, fieldsWithAdvice;
  QRect adviceRect;
  auto fieldRects = [](Overlap1Window* w) {
    QList<QRect> r;
    for (Group g : {Group::text1, Group::text2})
      for (int i = 0; i < 2; ++i) r << w->field(g, i)->geometry();
    r << w->field(Group::text3, 1)->geometry() << w->field(Group::text3, 2)->geometry();
    return r;
  };
  run([&](Overlap1Window* w) {
    QVERIFY(QTest::qWaitForWindowExposed(w));
    before = w->size();
    fieldsBefore = fieldRects(w);
    typeInto(w->field(Group::text1, 0), "12");
    typeInto(w->field(Group::text2, 0), "6");
    QApplication::processEvents();
    withAdvice = w->size();
    fieldsWithAdvice = fieldRects(w);
    adviceRect = w->advice(0)->geometry();
    QVERIFY(w->advice(0)->text().contains('\n'));
    // The two lines of the bottom's advice are seen whole.
    QVERIFY(adviceRect.height() >= 2 * w->advice(0)->fontMetrics().lineSpacing());
    QVERIFY(w->advice(0)->sizeHint().width() <= adviceRect.width());
    QVERIFY(w->advice(1)->sizeHint().width() <= w->advice(1)->width());
    typeInto(w->field(Group::text2, 1), "1");  // the advice of the sides goes
    QApplication::processEvents();
    QVERIFY(w->advice(1)->text().isEmpty());
    cleared = w->size();
    w->command1(0)->click();
  });
  QCOMPARE(withAdvice, before);
  QCOMPARE(cleared, before);
  QCOMPARE(fieldsWithAdvice, fieldsBefore);
}

QTEST_MAIN(Overlap1WindowTest)
#include "overlap1_window_test.moc"
