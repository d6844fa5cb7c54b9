#include "qtdraw/paged_surface.h"

#include <QMarginsF>
#include <QPageLayout>

namespace tolmar::qtdraw {

PagedSurface::PagedSurface(QPagedPaintDevice& device) : device_(device) {
  device_.setPageMargins(QMarginsF(0, 0, 0, 0), QPageLayout::Millimeter);
  painter_.begin(&device_);
  attach(&painter_, &device_);
  FontName = "Arial";
  FontSize = 10;
  ForeColor = 0;
}

PagedSurface::~PagedSurface() { endDoc(); }

void PagedSurface::newPage() {
  if (!painter_.isActive()) return;
  device_.newPage();
  forgetPen();
}

void PagedSurface::endDoc() {
  if (!painter_.isActive()) return;
  detach();
  painter_.end();
}

}  // namespace tolmar::qtdraw
