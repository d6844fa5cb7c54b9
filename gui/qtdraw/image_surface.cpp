#include "qtdraw/image_surface.h"

#include <algorithm>

namespace tolmar::qtdraw {

namespace {

// 96 dots per inch in the image's own unit.
constexpr int kDotsPerMetre = 3780;

QImage blankImage(QSize dots) {
  QImage img(dots.expandedTo(QSize(1, 1)), QImage::Format_RGB32);
  img.setDotsPerMeterX(kDotsPerMetre);
  img.setDotsPerMeterY(kDotsPerMetre);
  img.fill(ImageSurface::kBackground);
  return img;
}

}  // namespace

ImageSurface::ImageSurface(QSize dots) : image_(blankImage(dots)) { begin(); }

ImageSurface::~ImageSurface() {
  detach();
  painter_.end();
}

void ImageSurface::begin() {
  painter_.begin(&image_);
  painter_.setRenderHint(QPainter::Antialiasing, false);
  painter_.setRenderHint(QPainter::TextAntialiasing, false);
  attach(&painter_, &image_);
}

void ImageSurface::resize(QSize dots) {
  detach();
  painter_.end();
  QImage bigger = blankImage(dots);
  {
    QPainter copy(&bigger);
    copy.drawImage(0, 0, image_);
  }
  image_ = std::move(bigger);
  const float x = CurrentX, y = CurrentY;
  begin();
  CurrentX = x;
  CurrentY = y;
}

void ImageSurface::clearPicture() {
  painter_.setCompositionMode(QPainter::CompositionMode_Source);
  painter_.fillRect(image_.rect(), QColor::fromRgb(kBackground));
  forgetPen();
}

}  // namespace tolmar::qtdraw
