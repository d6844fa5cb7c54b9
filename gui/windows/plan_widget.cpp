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
  QPainter p(this);
  const QImage image = surface_->picture();
  // Beyond the picture (a widget larger than its image for a moment) is white.
  const QRegion outside = QRegion(e->rect()).subtracted(QRegion(image.rect()));
  for (const QRect& r : outside) p.fillRect(r, Qt::white);
  p.drawImage(e->rect(), image, e->rect());
}

void PlanWidget::resizeEvent(QResizeEvent*) {
  // The picture keeps what is drawn; it is not redrawn at a new size.
  const QSize dots = size().expandedTo(QSize(1, 1));
  if (dots == dots_) return;
  dots_ = dots;
  surface_->resize(dots);
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
