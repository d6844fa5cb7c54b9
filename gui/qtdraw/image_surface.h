// The board's picture: a white RGB32 image drawn without antialiasing, on
// which the exclusive-or pen is a true bitwise exclusive or, so that a
// figure drawn twice leaves every pixel as it was.
#pragma once

#include <QImage>
#include <QPainter>
#include <QSize>

#include "qtdraw/painter_surface.h"

namespace tolmar::qtdraw {

class ImageSurface : public PainterSurface {
 public:
  // A picture of the given size in dots, at 96 dots per inch (15 twips a
  // dot), cleared to white.
  explicit ImageSurface(QSize dots);
  ~ImageSurface() override;
  ImageSurface(const ImageSurface&) = delete;
  ImageSurface& operator=(const ImageSurface&) = delete;

  // A copy of what is drawn so far (the painter keeps drawing on the
  // original, so a shallow copy would change under later drawing).
  QImage picture() const { return image_.copy(); }
  // A new size keeps what is drawn, cut or padded with white; the
  // coordinate system follows the new size.
  void resize(QSize dots);

  static constexpr QRgb kBackground = 0xFFFFFFFF;

 protected:
  void clearPicture() override;
  bool rasterOps() const override { return true; }

 private:
  void begin();
  QImage image_;
  QPainter painter_;
};

}  // namespace tolmar::qtdraw
