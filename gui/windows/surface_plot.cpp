#include "windows/surface_plot.h"

#include <QPainter>

#include "qtdraw/image_surface.h"

namespace tolmar::gui {

SurfacePlot::SurfacePlot(QWidget* parent) : QWidget(parent) { setMinimumSize(320, 200); }

void SurfacePlot::setDraw(Draw d) {
  draw_ = std::move(d);
  update();
}

void SurfacePlot::paintEvent(QPaintEvent*) {
  QPainter p(this);
  p.fillRect(rect(), Qt::white);
  if (!draw_) return;
  qtdraw::ImageSurface s(size());
  s.FontSize = 8;
  draw_(s, s.Width(), s.Height());
  p.drawImage(0, 0, s.picture());
}

}  // namespace tolmar::gui
