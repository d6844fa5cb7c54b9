// The DrawingSurface as an SVG picture of a given size in dots at 96 dots
// per inch, the same coordinates as the board's picture of that size.
#pragma once

#include <QPainter>
#include <QSize>
#include <QString>
#include <QSvgGenerator>

#include "qtdraw/painter_surface.h"

namespace tolmar::qtdraw {

class SvgSurface : public PainterSurface {
 public:
  SvgSurface(QIODevice* out, QSize dots, const QString& title);  // out must outlive finish()
  ~SvgSurface() override;
  SvgSurface(const SvgSurface&) = delete;
  SvgSurface& operator=(const SvgSurface&) = delete;

  // Writes the end of the file; true when the file was written whole.
  bool finish();

 protected:
  // An SVG cannot be wiped: Cls paints the whole picture white.
  void clearPicture() override;
  void endDoc() override { finish(); }

 private:
  QSvgGenerator generator_;
  QPainter painter_;
  QSize dots_;
  bool ok_ = false;
};

}  // namespace tolmar::qtdraw
