// The 3-D view: disabled before the lines are drawn, then opened from the
// Build menu, shaded (the picture is not all background), turned by a drag
// with the left button, zoomed by the wheel, put in a standard view, and
// closed; it follows the hull after the planking changes.
#include <QAction>
#include <QOffscreenSurface>
#include <QOpenGLContext>
#include <QPushButton>
#include <QtTest>

#include "board_session_util.h"
#include "windows/bouchain2_window.h"
#include "windows/hull_view_window.h"

namespace tolmar {

using C = board::BoardControl;
using test::Started;

namespace {

bool canMakeGl() {
  QOpenGLContext c;
  QOffscreenSurface s;
  s.create();
  return c.create() && c.makeCurrent(&s);
}

// A press, a move or a release on the picture's window, buttons held.
void mouse(QWindow* w, QEvent::Type t, QPoint p, Qt::MouseButton b, Qt::MouseButtons held) {
  QMouseEvent e(t, QPointF(p), w->mapToGlobal(QPointF(p)), b, held, Qt::NoModifier);
  QGuiApplication::sendEvent(w, &e);
}

int unlike(const QImage& img, QRgb background) {
  int n = 0;
  for (int y = 0; y < img.height(); ++y)
    for (int x = 0; x < img.width(); ++x)
      n += qAbs(qRed(img.pixel(x, y)) - qRed(background)) > 24 ||
           qAbs(qBlue(img.pixel(x, y)) - qBlue(background)) > 24;
  return n;
}

}  // namespace

class HullViewTest : public QObject {
  Q_OBJECT
 private slots:
  void initTestCase() { test::quietOffscreen(); }

  void opensOrbitsZoomsAndCloses() {
    Started p;
    QAction* entry = p.board().view3dAction();
    QVERIFY(entry);
    QVERIFY(!entry->isEnabled());
    QCOMPARE(p.board().model3dAction()->isEnabled(), false);
    p.createAndValidate();
    p.board().button(C::Command1_1)->click();
    p.s->bouchain2().valider();
    QVERIFY(entry->isEnabled());
    QVERIFY(p.board().model3dAction()->isEnabled());
    QCOMPARE(entry->text(), QString::fromUtf8("3-D view…"));
    if (!canMakeGl()) QSKIP("no OpenGL context on this display");

    entry->trigger();
    gui::HullViewWindow* w = p.board().view3d();
    QVERIFY(w);
    QVERIFY(QTest::qWaitForWindowExposed(w));
    gui::HullGlView& gl = w->view();
    const QImage first = gl.picture();
    QVERIFY(!first.isNull());
    // The hull fills a good part of the fitted view.
    const int inked = unlike(first, first.pixel(2, 2));
    QVERIFY2(inked > first.width() * first.height() / 20, qPrintable(QString::number(inked)));

    const double yaw = gl.camera().yaw, distance = gl.camera().distance;
    const QPoint c(gl.width() / 2, gl.height() / 2);
    mouse(&gl, QEvent::MouseButtonPress, c, Qt::LeftButton, Qt::LeftButton);
    mouse(&gl, QEvent::MouseMove, c + QPoint(50, 0), Qt::NoButton, Qt::LeftButton);
    mouse(&gl, QEvent::MouseButtonRelease, c + QPoint(50, 0), Qt::LeftButton, Qt::NoButton);
    QVERIFY(qAbs(gl.camera().yaw - (yaw - 20)) < 1e-9);
    QVERIFY(gl.picture() != first);

    QWheelEvent wheel(QPointF(c), gl.mapToGlobal(QPointF(c)), QPoint(), QPoint(0, 120),
                      Qt::NoButton, Qt::NoModifier, Qt::NoScrollPhase, false);
    QGuiApplication::sendEvent(&gl, &wheel);
    QVERIFY(gl.camera().distance < distance);

    w->findChild<QPushButton*>("viewSide")->click();
    QCOMPARE(gl.camera().yaw, 90.0);
    QCOMPARE(gl.camera().pitch, 0.0);
    const QImage side = gl.picture();
    // From the side the hull is long and low: wider inked span than tall.
    int left = side.width(), right = -1, top = side.height(), bottom = -1;
    const QRgb bg = side.pixel(2, 2);
    for (int y = 0; y < side.height(); ++y)
      for (int x = 0; x < side.width(); ++x)
        if (qAbs(qRed(side.pixel(x, y)) - qRed(bg)) > 24) {
          left = std::min(left, x), right = std::max(right, x);
          top = std::min(top, y), bottom = std::max(bottom, y);
        }
    QVERIFY(right - left > 2 * (bottom - top));

    w->close();
    QTRY_VERIFY(!p.board().view3d());
  }
};

}  // namespace tolmar

QTEST_MAIN(tolmar::HullViewTest)
#include "hull_view_test.moc"
