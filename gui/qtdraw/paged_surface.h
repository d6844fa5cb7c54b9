// The printer side of the DrawingSurface: any paged device (QPrinter,
// QPdfWriter), the whole sheet addressed from its top left corner, Arial,
// black.  NewPage starts a sheet; EndDoc ends the document, after which
// the surface draws nothing more.
#pragma once

#include <QPagedPaintDevice>
#include <QPainter>

#include "qtdraw/painter_surface.h"

namespace tolmar::qtdraw {

class PagedSurface : public PainterSurface {
 public:
  // The device's margins are set to zero, so Width and Height are the
  // paper's size in twips.
  explicit PagedSurface(QPagedPaintDevice& device);
  ~PagedSurface() override;
  PagedSurface(const PagedSurface&) = delete;
  PagedSurface& operator=(const PagedSurface&) = delete;

  bool active() const { return painter_.isActive(); }

 protected:
  void newPage() override;
  void endDoc() override;

 private:
  QPagedPaintDevice& device_;
  QPainter painter_;
};

}  // namespace tolmar::qtdraw
