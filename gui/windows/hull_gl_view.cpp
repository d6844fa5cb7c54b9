#include "windows/hull_gl_view.h"

#include <QMouseEvent>
#include <QOpenGLContext>
#include <QSurfaceFormat>
#include <QWheelEvent>
#include <algorithm>
#include <cmath>

namespace tolmar::gui {

HullGlView::HullGlView() : QOpenGLWindow(QOpenGLWindow::NoPartialUpdate) {
  setObjectName("hullGl");
  QSurfaceFormat f = format();
  f.setDepthBufferSize(24);
  setFormat(f);
  cam_ = standardCamera(StandardView::isometric);
}

HullGlView::~HullGlView() { releaseGl(); }

void HullGlView::releaseGl() {
  if (!context()) return;
  makeCurrent();
  renderer_.release();
  doneCurrent();
}

void HullGlView::initializeGL() {
  if (!renderer_.initialize()) qWarning("3-D view: %s", qPrintable(renderer_.log()));
  connect(context(), &QOpenGLContext::aboutToBeDestroyed, this, &HullGlView::releaseGl,
          Qt::UniqueConnection);
}

double HullGlView::aspect() const { return height() > 0 ? double(width()) / height() : 1.6; }

void HullGlView::setHull(const HullStore& h) {
  scene_.setHull(h);
  if (framed_) scene_.fit(cam_, aspect());
  update();
}

void HullGlView::setHeel(double heelDeg) {
  scene_.setHeel(heelDeg);
  if (framed_) scene_.fit(cam_, aspect());
  update();
}

void HullGlView::setWater(const std::optional<WaterQuad>& water) {
  scene_.setWater(water);
  update();
}

void HullGlView::showView(StandardView v) {
  cam_ = standardCamera(v);
  fit();
}

void HullGlView::fit() {
  framed_ = true;
  scene_.fit(cam_, aspect());
  update();
}

void HullGlView::resizeGL(int, int) {
  if (framed_) scene_.fit(cam_, aspect());
}

void HullGlView::orbit(double dx, double dy) {
  framed_ = false;
  // The hull turns as if held: its near side follows the pointer.
  cam_.yaw += dx * 0.4;
  cam_.pitch = std::clamp(cam_.pitch + dy * 0.4, -90.0, 90.0);
  update();
}

void HullGlView::paintGL() {
  const qreal r = devicePixelRatio();
  renderer_.paint(scene_, cam_, static_cast<int>(width() * r), static_cast<int>(height() * r));
}

QImage HullGlView::picture() {
  if (!isValid()) return {};
  makeCurrent();
  paintGL();
  return grabFramebuffer();
}

void HullGlView::mousePressEvent(QMouseEvent* e) { last_ = e->position(); }

void HullGlView::mouseMoveEvent(QMouseEvent* e) {
  const QPointF d = e->position() - last_;
  last_ = e->position();
  if (e->buttons() & Qt::LeftButton) {
    orbit(d.x(), d.y());
  } else if (e->buttons() & Qt::RightButton) {
    // The target moves with the pointer, in the plane facing the camera.
    framed_ = false;
    const double perPixel =
        2 * cam_.distance * std::tan(cam_.fovY * M_PI / 360) / std::max(1, height());
    cam_.target -= (cam_.right() * float(d.x()) - cam_.up() * float(d.y())) * float(perPixel);
    update();
  }
}

void HullGlView::wheelEvent(QWheelEvent* e) {
  const double steps = e->angleDelta().y() / 120.0;
  if (steps == 0) return;
  framed_ = false;
  const double k = std::pow(0.85, steps);
  // The point under the pointer stays there: the target moves toward it by
  // the share of the distance the zoom takes off.
  const double perPixel =
      2 * cam_.distance * std::tan(cam_.fovY * M_PI / 360) / std::max(1, height());
  const QPointF c = e->position() - QPointF(width() / 2.0, height() / 2.0);
  const QVector3D under =
      cam_.target + (cam_.right() * float(c.x()) - cam_.up() * float(c.y())) * float(perPixel);
  cam_.target += (under - cam_.target) * float(1 - k);
  cam_.distance = std::clamp(cam_.distance * k, 1e-3, 1e4);
  update();
}

}  // namespace tolmar::gui
