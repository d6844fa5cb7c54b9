#include "windows/plan_widget.h"

#include <QMouseEvent>
#include <QPainter>
#include <QRegion>

#include "windows/busy_cursor.h"

namespace tolmar::gui {

PlanWidget::PlanWidget(HullStore& h, board::BoardState& b, QWidget* parent)
    : QWidget(parent),
      surface_(std::make_unique<qtdraw::ImageSurface>(QSize(1, 1))),
      mouse_(std::make_unique<PlanMouse>(*surface_, h, b)),
      dots_(1, 1) {
  setObjectName("Plan1");
  setAttribute(Qt::WA_OpaquePaintEvent);
  setMouseTracking(false);
}

PlanWidget::~PlanWidget() = default;

int planButtons(Qt::MouseButtons b) {
  int n = 0;
  if (b & Qt::LeftButton) n |= kLeftButton;
  if (b & Qt::RightButton) n |= kRightButton;
  if (b & Qt::MiddleButton) n |= kMiddleButton;
  return n;
}

QPointF PlanWidget::toUnits(QPointF dots) const {
  const DrawingSurface& s = *surface_;
  return {s.ScaleLeft + dots.x() * s.ScaleWidth / dots_.width(),
          s.ScaleTop + dots.y() * s.ScaleHeight / dots_.height()};
}

void PlanWidget::paintEvent(QPaintEvent* e) {
  // Moved to a display of another pixel ratio, the picture takes it on.
  if (devicePixelRatioF() != surface_->ratio()) surface_->resize(dots_, devicePixelRatioF());
  QPainter p(this);
  QImage image = surface_->picture();
  // The picture has ratio() pixels to a dot: painted one to one on the
  // display's pixels.
  const double k = surface_->ratio();
  image.setDevicePixelRatio(k);
  const QRect dots(0, 0, static_cast<int>(image.width() / k), static_cast<int>(image.height() / k));
  // Beyond the picture (a widget larger than its image for a moment) is white.
  const QRegion outside = QRegion(e->rect()).subtracted(QRegion(dots));
  for (const QRect& r : outside) p.fillRect(r, Qt::white);
  const QRectF r = QRectF(e->rect()).intersected(dots);
  p.drawImage(r, image, QRectF(r.topLeft() * k, r.size() * k));
}

void PlanWidget::resizeEvent(QResizeEvent*) {
  // The picture keeps what is drawn; it is not redrawn at a new size.
  const QSize dots = size().expandedTo(QSize(1, 1));
  if (dots == dots_ && devicePixelRatioF() == surface_->ratio()) return;
  dots_ = dots;
  surface_->resize(dots, devicePixelRatioF());
}

void PlanWidget::mousePressEvent(QMouseEvent* e) {
  const QPointF u = toUnits(e->position());
  mouse_->buttonDown(planButtons(e->button()), static_cast<float>(u.x()),
                     static_cast<float>(u.y()));
  update();
}

void PlanWidget::mouseMoveEvent(QMouseEvent* e) {
  const QPointF u = toUnits(e->position());
  mouse_->mouseMove(planButtons(e->buttons()), static_cast<float>(u.x()),
                    static_cast<float>(u.y()));
  update();
}

void PlanWidget::mouseReleaseEvent(QMouseEvent* e) {
  const QPointF u = toUnits(e->position());
  const int button = planButtons(e->button());
  if (mouse_->dragging()) {
    // A zoom or a move redraws; the busy pointer covers that redraw.
    BusyCursor busy;
    mouse_->buttonUp(button, static_cast<float>(u.x()), static_cast<float>(u.y()));
  } else {
    mouse_->buttonUp(button, static_cast<float>(u.x()), static_cast<float>(u.y()));
  }
  update();
}

void PlanWidget::mouseDoubleClickEvent(QMouseEvent*) {
  if (onDoubleClick) onDoubleClick();
  update();
}

}  // namespace tolmar::gui
