// The board's picture Plan1: a QImage backing store that keeps what was
// painted until the next Cls (an expose repaints the image, it does not
// redraw the hull), at the display's pixel ratio, and the mouse commands of
// the plan (zoom box, move, fit again) in drawing units of the picture.
#pragma once

#include <QImage>
#include <QWidget>
#include <functional>
#include <memory>

#include "board/board_model.h"
#include "board/plan_mouse.h"
#include "hull/hull_store.h"
#include "qtdraw/image_surface.h"

namespace tolmar::gui {

class PlanWidget : public QWidget {
  Q_OBJECT
 public:
  PlanWidget(HullStore& h, board::BoardState& b, QWidget* parent);
  ~PlanWidget() override;

  DrawingSurface& surface() { return *surface_; }
  // In the display's pixels: devicePixelRatio() of them to a dot.
  QImage picture() const { return surface_->picture(); }
  double pictureRatio() const { return surface_->ratio(); }
  PlanMouse& mouse() { return *mouse_; }

  // A position in dots of the widget as drawing units of the picture.
  QPointF toUnits(QPointF dots) const;

  // The double click's fit: the board runs its whole redraw with it.
  std::function<void()> onDoubleClick;

 protected:
  void paintEvent(QPaintEvent* e) override;
  void resizeEvent(QResizeEvent* e) override;
  void mousePressEvent(QMouseEvent* e) override;
  void mouseMoveEvent(QMouseEvent* e) override;
  void mouseReleaseEvent(QMouseEvent* e) override;
  void mouseDoubleClickEvent(QMouseEvent* e) override;

 private:
  std::unique_ptr<qtdraw::ImageSurface> surface_;
  std::unique_ptr<PlanMouse> mouse_;
  QSize dots_;
};

// Qt's buttons as the plan numbers them: 1 left, 2 right, 4 middle.
int planButtons(Qt::MouseButtons b);

}  // namespace tolmar::gui
