// The 3-D view: disabled before the lines are drawn, then opened from the
// Build menu, shaded (the picture is not all background), turned by a drag
// with the left button, zoomed by the wheel, put in a standard view, and
// closed; it follows the hull after the planking changes.  The water plane
// once the hydrostatics have floated the hull, shown and hidden; the heel,
// typed or the stability window's, turning the hull starboard down; the
// choices remembered when the window opens again; French texts.
#include <QAction>
#include <QCheckBox>
#include <QDoubleSpinBox>
#include <QLabel>
#include <QLineEdit>
#include <QOffscreenSurface>
#include <QOpenGLContext>
#include <QPushButton>
#include <QSettings>
#include <QtTest>
#include <cmath>

#include "analysis/hydro_solver.h"
#include "board_session_util.h"
#include "gui/picture_measures.h"
#include "stability/hydro_mesh.h"
#include "windows/bouchain2_window.h"
#include "windows/hull_gl_view.h"
#include "windows/hull_view_window.h"
#include "windows/stability_window.h"

namespace tolmar {

using C = board::BoardControl;
using test::Started;

namespace {

using tolmar::test::tilt;
using tolmar::test::wateredBackground;

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

// The board with the planks drawn and the 3-D view open on it.
gui::HullViewWindow* openView(Started& p) {
  p.createAndValidate();
  p.board().button(C::Command1_1)->click();
  p.s->bouchain2().valider();
  p.board().view3dAction()->trigger();
  gui::HullViewWindow* w = p.board().view3d();
  if (w && !QTest::qWaitForWindowExposed(w)) return nullptr;
  return w;
}

}  // namespace

class HullViewTest : public QObject {
  Q_OBJECT
 private slots:
  void initTestCase() {
    test::quietOffscreen();
    QCoreApplication::setOrganizationName("tolmar-test-view3d");
    QSettings().remove("view3d");
  }

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
    QVERIFY(qAbs(gl.camera().yaw - (yaw + 20)) < 1e-9);
    QVERIFY(gl.picture() != first);

    QWheelEvent wheel(QPointF(c), gl.mapToGlobal(QPointF(c)), QPoint(), QPoint(0, 120),
                      Qt::NoButton, Qt::NoModifier, Qt::NoScrollPhase, false);
    QGuiApplication::sendEvent(&gl, &wheel);
    QVERIFY(gl.camera().distance < distance);

    // The number keys give the standard views, F the fit: on the window,
    // whether or not it is the active one, and on the picture holding the
    // focus after a click.
    w->activateWindow();
    QTest::keyClick(w, Qt::Key_2);
    QTRY_COMPARE(gl.camera().yaw, 0.0);
    QTest::keyClick(w, Qt::Key_5);
    QTRY_COMPARE(gl.camera().yaw, 56.0);
    QTest::keyClick(&gl, Qt::Key_3);
    QTRY_COMPARE(gl.camera().pitch, 40.0);
    QCOMPARE(gl.camera().yaw, 90.0);
    QTest::keyClick(&gl, Qt::Key_5);
    QTRY_COMPARE(gl.camera().yaw, 56.0);
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
    // Fitted tightly: the length takes nearly the whole width, centred.
    QVERIFY2(right - left > 0.9 * side.width(), qPrintable(QString::number(right - left)));
    QVERIFY(std::abs(left + right - side.width()) < 0.02 * side.width());

    w->close();
    QTRY_VERIFY(!p.board().view3d());
  }

  void waterPlaneComesWithTheHydrostatics() {
    if (!canMakeGl()) QSKIP("no OpenGL context on this display");
    Started p;
    gui::HullViewWindow* w = openView(p);
    QVERIFY(w);
    QCheckBox* water = w->waterBox();
    QCOMPARE(water->text(), QString("Water plane"));
    QVERIFY2(!water->isEnabled(), "no hydrostatic result yet");
    w->findChild<QPushButton*>("viewIsometric")->click();
    const int dry = wateredBackground(w->view().picture());
    QVERIFY(dry < 1000);

    // Floated half way up the hull, as the hydrostatics screen does it.
    HullStore& h = p.h();
    const stability::HydroMesh m = stability::hullHydroMesh(h);
    hydroAtWaterline(h, m.low.z + 0.4 * (m.curveTop - m.low.z), 0).state.storeInto(h);
    w->follow();
    QVERIFY(water->isEnabled());
    water->setChecked(true);
    QVERIFY(w->view().scene().water());
    const QImage wet = w->view().picture();
    // Seen from above the plane spreads well around the hull.
    QVERIFY2(wateredBackground(wet) > wet.width() * wet.height() / 10,
             qPrintable(QString::number(wateredBackground(wet))));
    water->setChecked(false);
    QVERIFY(!w->view().scene().water());
    QCOMPARE(wateredBackground(w->view().picture()), dry);
    w->close();
  }

  void heelTurnsTheHullStarboardDown() {
    if (!canMakeGl()) QSKIP("no OpenGL context on this display");
    Started p;
    gui::HullViewWindow* w = openView(p);
    QVERIFY(w);
    w->findChild<QPushButton*>("viewFace")->click();
    QDoubleSpinBox* heel = w->heelBox();
    heel->setValue(0);
    const double upright = tilt(w->view().picture(), QPoint(2, 2));
    QVERIFY2(std::abs(upright) < 1, qPrintable(QString::number(upright)));
    // From ahead starboard is on the left: it goes down, the hull tilts by
    // the heel, the fit following it.
    heel->setValue(20);
    QCOMPARE(w->view().scene().heel(), 20.0);
    const QImage heeled = w->view().picture();
    const double turned = tilt(heeled, QPoint(2, 2));
    QVERIFY2(std::abs(turned + 20) < 3, qPrintable(QString::number(turned)));
    int left = heeled.width(), right = -1;
    for (int y = 0; y < heeled.height(); ++y)
      for (int x = 0; x < heeled.width(); ++x)
        if (heeled.pixel(x, y) != heeled.pixel(2, 2))
          left = std::min(left, x), right = std::max(right, x);
    QVERIFY2(left > 0 && right < heeled.width() - 1, "framed whole");

    // No stability window open: nothing to take.
    QVERIFY(!w->stabilityHeelButton()->isEnabled());
    w->setStabilityHeel([] { return std::optional<double>(-12.5); });
    QVERIFY(w->stabilityHeelButton()->isEnabled());
    w->stabilityHeelButton()->click();
    QCOMPARE(heel->value(), -12.5);
    QCOMPARE(w->view().scene().heel(), -12.5);
    w->close();
    QTRY_VERIFY(!p.board().view3d());

    // Opened again: the face view and the heel as they were left.
    p.board().view3dAction()->trigger();
    w = p.board().view3d();
    QVERIFY(w);
    QCOMPARE(w->heelBox()->value(), -12.5);
    QCOMPARE(w->view().camera().yaw, 0.0);
    QCOMPARE(w->view().camera().pitch, 0.0);
    w->heelBox()->setValue(0);
    w->close();
  }

  void takesTheStabilityWindowsCrewHeel() {
    if (!canMakeGl()) QSKIP("no OpenGL context on this display");
    Started p;
    gui::HullViewWindow* w = openView(p);
    QVERIFY(w);
    QVERIFY(!w->stabilityHeelButton()->isEnabled());
    gui::BuildMenu& build = p.board().constructionMenu();
    build.action("fmenu_B_Stability")->trigger();
    auto* stab = qobject_cast<gui::StabilityWindow*>(build.window("fmenu_B_Stability"));
    QVERIFY(stab);
    test::type(stab->field("kg"), "0.4");
    test::type(stab->field("crewKg"), "90");
    stab->findChild<QPushButton*>("compute")->click();
    QVERIFY(stab->result().ok() && stab->result().crew.rests);
    const double crew = stab->result().crew.heel;
    QVERIFY(crew > 0.5);  // the crew on the starboard side heels it that way
    w->follow();
    QVERIFY(w->stabilityHeelButton()->isEnabled());
    w->stabilityHeelButton()->click();
    QVERIFY(qAbs(w->heelBox()->value() - crew) < 0.051);  // a tenth of a degree shown
    w->heelBox()->setValue(0);
    stab->close();
    w->close();
  }

  void textsFollowTheLanguage() {
    Started p;
    p.createAndValidate();
    p.board().button(C::Command1_1)->click();
    p.s->bouchain2().valider();
    p.h().langue = 0;
    gui::HullViewWindow w(nullptr, p.h());
    QCOMPARE(w.windowTitle(), QString("Vue 3D"));
    QCOMPARE(w.waterBox()->text(), QString("Plan d'eau"));
    QCOMPARE(w.findChild<QPushButton*>("viewFit")->text(), QString("Cadrer"));
    QCOMPARE(w.stabilityHeelButton()->text(), QString::fromUtf8("Gîte de la stabilité"));
    p.h().langue = 1;
    w.follow();
    QCOMPARE(w.windowTitle(), QString("3-D view"));
    QCOMPARE(w.waterBox()->text(), QString("Water plane"));
  }
};

}  // namespace tolmar

QTEST_MAIN(tolmar::HullViewTest)
#include "hull_view_test.moc"
