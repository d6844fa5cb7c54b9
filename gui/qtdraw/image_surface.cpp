#include "qtdraw/image_surface.h"

#include <algorithm>
#include <cmath>

namespace tolmar::qtdraw {

namespace {

// 96 dots per inch in the image's own unit.
constexpr double kDotsPerMetre = 3780;

double validRatio(double ratio) { return std::isfinite(ratio) && ratio >= 1 ? ratio : 1; }

QImage blankImage(QSize dots, double ratio) {
  const QSize pixels(static_cast<int>(std::lround(dots.width() * ratio)),
                     static_cast<int>(std::lround(dots.height() * ratio)));
  QImage img(pixels.expandedTo(QSize(1, 1)), QImage::Format_RGB32);
  // The resolution says how many pixels make an inch: the surface turns
  // twips into pixels through it.
  img.setDotsPerMeterX(static_cast<int>(std::lround(kDotsPerMetre * ratio)));
  img.setDotsPerMeterY(static_cast<int>(std::lround(kDotsPerMetre * ratio)));
  img.fill(ImageSurface::kBackground);
  return img;
}

}  // namespace

ImageSurface::ImageSurface(QSize dots, double ratio)
    : ratio_(validRatio(ratio)), image_(blankImage(dots, ratio_)) {
  begin();
}

ImageSurface::~ImageSurface() {
  detach();
  painter_.end();
}

void ImageSurface::begin() {
  painter_.begin(&image_);
  painter_.setRenderHint(QPainter::Antialiasing, false);
  painter_.setRenderHint(QPainter::TextAntialiasing, false);
  // A pen of several pixels is centred on its line: moved by half the
  // extra pixels, it covers the pixels of its dot, as one pixel would.
  const double half = (ratio_ - 1) / 2;
  painter_.translate(half, half);
  attach(&painter_, &image_);
}

void ImageSurface::resize(QSize dots, double ratio) {
  detach();
  painter_.end();
  const double old = ratio_;
  ratio_ = validRatio(ratio);
  QImage bigger = blankImage(dots, ratio_);
  {
    QPainter copy(&bigger);
    if (ratio_ == old) {
      copy.drawImage(0, 0, image_);
    } else {
      const double k = ratio_ / old;
      copy.drawImage(QRectF(0, 0, image_.width() * k, image_.height() * k), image_);
    }
  }
  image_ = std::move(bigger);
  const float x = CurrentX, y = CurrentY;
  begin();
  CurrentX = x;
  CurrentY = y;
}

void ImageSurface::clearPicture() {
  painter_.save();
  painter_.resetTransform();
  painter_.setCompositionMode(QPainter::CompositionMode_Source);
  painter_.fillRect(image_.rect(), QColor::fromRgb(kBackground));
  painter_.restore();
  forgetPen();
}

}  // namespace tolmar::qtdraw
