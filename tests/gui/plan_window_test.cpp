// The mouse on the board's picture through Qt's events: the rubber band in
// exclusive or while the left button drags, the zoom on release with the
// band gone, a box too narrow to count, the move of a right drag, and the
// double click that fits the hull again.  The picture keeps what was
// painted: a repaint shows the image, it does not redraw the hull.
#include <QPainter>

#include "board_session_util.h"

using namespace tolmar;
using test::Started;

namespace {

constexpr auto Press = QEvent::MouseButtonPress;
constexpr auto Move = QEvent::MouseMove;
constexpr auto Release = QEvent::MouseButtonRelease;

void drag(QWidget* w, Qt::MouseButton b, QPoint from, QPoint to) {
  test::mouse(w, Press, from, b, b);
  test::mouse(w, Move, (from + to) / 2, Qt::NoButton, b);
  test::mouse(w, Move, to, Qt::NoButton, b);
  test::mouse(w, Release, to, b, Qt::NoButton);
}

struct View {
  float scaleX, scaleY, scaleZ, originX, originY, originZ;
  static View of(const HullStore& h) {
    return {h.scaleX, h.scaleY, h.scaleZ, h.originX, h.originY, h.originZ};
  }
};

}  // namespace

class PlanWindowTest : public QObject {
  Q_OBJECT

 private slots:
  void initTestCase() { test::quietOffscreen(); }

  void bandIsDrawnWhileDraggingAndTheZoomRedraws() {
    Started p;
    p.createAndValidate();
    gui::PlanWidget& plan = p.board().plan();
    const QImage fitted = plan.picture();
    const float scale = p.h().scaleX;

    test::mouse(&plan, Press, {100, 80}, Qt::LeftButton, Qt::LeftButton);
    test::mouse(&plan, Move, {260, 200}, Qt::NoButton, Qt::LeftButton);
    QVERIFY(plan.picture() != fitted);  // the band is on the picture
    test::mouse(&plan, Move, {100, 80}, Qt::NoButton, Qt::LeftButton);
    QCOMPARE(plan.picture(), fitted);  // drawn twice, it is gone
    test::mouse(&plan, Move, {260, 200}, Qt::NoButton, Qt::LeftButton);
    test::mouse(&plan, Release, {260, 200}, Qt::LeftButton, Qt::NoButton);

    QVERIFY(p.h().scaleX > scale);
    QVERIFY(!plan.mouse().dragging());
    QCOMPARE(plan.picture(),
             test::viewsAsDrawn(p.h(), plan.picture().size(), p.board().state().stepIndex));
  }

  void dragEitherWayZoomsToTheSameView() {
    Started p;
    p.createAndValidate();
    gui::PlanWidget& plan = p.board().plan();
    drag(&plan, Qt::LeftButton, {120, 90}, {330, 240});
    const View forward = View::of(p.h());
    QTest::mouseDClick(&plan, Qt::LeftButton, {}, {5, 5});
    drag(&plan, Qt::LeftButton, {330, 240}, {120, 90});
    const View backward = View::of(p.h());
    QCOMPARE(backward.scaleX, forward.scaleX);
    QCOMPARE(backward.originX, forward.originX);
    QCOMPARE(backward.originZ, forward.originZ);
  }

  void aBoxTooNarrowChangesNothing() {
    Started p;
    p.createAndValidate();
    gui::PlanWidget& plan = p.board().plan();
    const QImage fitted = plan.picture();
    const View before = View::of(p.h());
    // Under 300 drawing units across, whatever its height.
    const QPointF unitsPerDot = plan.toUnits({1, 1}) - plan.toUnits({0, 0});
    const int narrow = static_cast<int>(299 / unitsPerDot.x());
    drag(&plan, Qt::LeftButton, {200, 50}, {200 + narrow, 400});
    QCOMPARE(p.h().scaleX, before.scaleX);
    QCOMPARE(p.h().originY, before.originY);
    QCOMPARE(plan.picture(), fitted);
  }

  void rightDragMovesPlanAndProfileTogether() {
    Started p;
    p.createAndValidate();
    gui::PlanWidget& plan = p.board().plan();
    const View before = View::of(p.h());
    const QPointF from = plan.toUnits({200, 200}), to = plan.toUnits({260, 150});
    drag(&plan, Qt::RightButton, {200, 200}, {260, 150});
    QCOMPARE(p.h().scaleX, before.scaleX);
    QCOMPARE(p.h().originX, static_cast<float>(before.originX + (to.x() - from.x())));
    QCOMPARE(p.h().originY - before.originY, p.h().originZ - before.originZ);
    QVERIFY(p.h().originY < before.originY);
    QCOMPARE(plan.picture(),
             test::viewsAsDrawn(p.h(), plan.picture().size(), p.board().state().stepIndex));
  }

  void doubleClickFitsAgain() {
    Started p;
    p.createAndValidate();
    gui::PlanWidget& plan = p.board().plan();
    const QImage fitted = plan.picture();
    const View before = View::of(p.h());
    drag(&plan, Qt::LeftButton, {100, 80}, {400, 260});
    QVERIFY(p.h().scaleX != before.scaleX);
    QTest::mouseDClick(&plan, Qt::LeftButton, {}, {50, 50});
    QCOMPARE(p.h().scaleX, before.scaleX);
    QCOMPARE(p.h().originX, before.originX);
    QCOMPARE(plan.picture(), fitted);
    QVERIFY(p.board().state().isEnabled(board::BoardControl::dessine));
  }

  void exposeRepaintsThePictureWithoutRedrawing() {
    Started p;
    p.createAndValidate();
    gui::PlanWidget& plan = p.board().plan();
    {
      // Something painted by hand stays until the next Cls.
      p.board().plan().surface().ForeColor = rgb(255, 0, 0);
      p.board().plan().surface().LineBox(100, 100, 2000, 1500);
    }
    const QImage painted = plan.picture();
    const QImage shown = plan.grab().toImage().convertToFormat(painted.format());
    QCOMPARE(shown, painted);
    p.board().clearPicture();
    QCOMPARE(test::inkedPixels(plan.picture()), 0);
  }
};

QTEST_MAIN(PlanWindowTest)
#include "plan_window_test.moc"
