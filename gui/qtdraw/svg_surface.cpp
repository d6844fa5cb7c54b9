#include "qtdraw/svg_surface.h"

namespace tolmar::qtdraw {

SvgSurface::SvgSurface(QIODevice* out, QSize dots, const QString& title) : dots_(dots) {
  generator_.setOutputDevice(out);
  generator_.setSize(dots);
  generator_.setViewBox(QRect(QPoint(0, 0), dots));
  generator_.setResolution(96);
  generator_.setTitle(title);
  ok_ = painter_.begin(&generator_);
  if (ok_) attach(&painter_, &generator_);
}

SvgSurface::~SvgSurface() { finish(); }

bool SvgSurface::finish() {
  if (painter_.isActive()) {
    detach();
    ok_ = painter_.end() && ok_;
  }
  return ok_;
}

void SvgSurface::clearPicture() {
  if (!painter_.isActive()) return;
  painter_.fillRect(QRect(QPoint(0, 0), dots_), Qt::white);
  forgetPen();
}

}  // namespace tolmar::qtdraw
