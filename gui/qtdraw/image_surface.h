// The board's picture: a white RGB32 image drawn without antialiasing, on
// which the exclusive-or pen is a true bitwise exclusive or, so that a
// figure drawn twice leaves every pixel as it was.  On a display of a
// higher pixel ratio the image has that many pixels to a dot: the drawing
// units and every size in twips stay those of the dots, only the pixels
// are finer (pens keep their width in dots).
#pragma once

#include <QImage>
#include <QPainter>
#include <QSize>

#include "qtdraw/painter_surface.h"

namespace tolmar::qtdraw {

class ImageSurface : public PainterSurface {
 public:
  // A picture of the given size in dots, at 96 dots per inch (15 twips a
  // dot), with `ratio` pixels to a dot across and down, cleared to white.
  explicit ImageSurface(QSize dots, double ratio = 1);
  ~ImageSurface() override;
  ImageSurface(const ImageSurface&) = delete;
  ImageSurface& operator=(const ImageSurface&) = delete;

  // A copy of what is drawn so far, in pixels (the painter keeps drawing
  // on the original, so a shallow copy would change under later drawing).
  QImage picture() const { return image_.copy(); }
  double ratio() const { return ratio_; }
  // A new size or ratio keeps what is drawn (brought to the new ratio), cut
  // or padded with white; the coordinate system follows the new size.
  void resize(QSize dots, double ratio = 1);

  static constexpr QRgb kBackground = 0xFFFFFFFF;

 protected:
  void clearPicture() override;
  bool rasterOps() const override { return true; }
  double penScale() const override { return ratio_; }

 private:
  void begin();
  double ratio_ = 1;
  QImage image_;
  QPainter painter_;
};

}  // namespace tolmar::qtdraw
