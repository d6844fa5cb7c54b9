#include "qtdraw/paged_surface.h"

#include <QMarginsF>
#include <QPageLayout>
#include <algorithm>
#include <cmath>

namespace tolmar::qtdraw {

namespace {

// Qt keeps a page's margins in whole points, rounded to the nearest, which
// may come out narrower than asked; they are rounded up here instead.
QMarginsF wholePoints(const QMarginsF& mm) {
  auto pt = [](double v) { return std::ceil(v * 72 / 25.4 - 1e-6); };
  return QMarginsF(pt(mm.left()), pt(mm.top()), pt(mm.right()), pt(mm.bottom()));
}

// The margins asked for, or the device's own held to what it can print.
void setMargins(QPagedPaintDevice& device, const std::optional<double>& marginMm) {
  QMarginsF mm;
  if (marginMm) {
    mm = QMarginsF(*marginMm, *marginMm, *marginMm, *marginMm);
  } else {
    QPageLayout layout = device.pageLayout();
    layout.setUnits(QPageLayout::Millimeter);
    const QMarginsF now = layout.margins(), least = layout.minimumMargins();
    mm = QMarginsF(std::max(now.left(), least.left()), std::max(now.top(), least.top()),
                   std::max(now.right(), least.right()), std::max(now.bottom(), least.bottom()));
  }
  device.setPageMargins(wholePoints(mm), QPageLayout::Point);
}

}  // namespace

PagedSurface::PagedSurface(QPagedPaintDevice& device, const PaperOptions& options)
    : device_(device), options_(options) {
  setMargins(device_, options_.marginMm);
  painter_.begin(&device_);
  if (!painter_.isActive()) return;
  const DeviceScale scale = DeviceScale::paper(device_, options_.calibration);
  const double dotsPerMmX = device_.logicalDpiX() / 25.4;
  const double dotsPerMmY = device_.logicalDpiY() / 25.4;
  printable_ = QRectF(0, 0, device_.width(), device_.height());
  // The bars are laid out in true millimetres: the device's, stretched by
  // the printer.
  if (options_.calibrationBars) {
    bars_ = calibrationLayout(device_.width() / dotsPerMmX * options_.calibration.x,
                              device_.height() / dotsPerMmY * options_.calibration.y);
    area_ = QRectF(0, 0, bars_.drawW / options_.calibration.x * dotsPerMmX,
                   bars_.drawH / options_.calibration.y * dotsPerMmY);
  } else {
    area_ = printable_;
  }
  attach(&painter_, &device_, scale, area_);
  FontName = "Arial";
  FontSize = 10;
  ForeColor = 0;
  startPage();
}

PagedSurface::~PagedSurface() { endDoc(); }

void PagedSurface::startPage() {
  if (options_.calibrationBars) drawCalibrationBars();
  painter_.setClipRect(area_);
  forgetPen();
}

void PagedSurface::drawCalibrationBars() {
  const PrintCalibration c = options_.calibration;
  const double kx = device_.logicalDpiX() / 25.4 / c.x;
  const double ky = device_.logicalDpiY() / 25.4 / c.y;
  auto dot = [&](double xMm, double yMm) { return QPointF(xMm * kx, yMm * ky); };
  using L = CalibrationLayout;
  painter_.save();
  painter_.setClipping(false);
  QPen pen(Qt::black);
  pen.setWidthF(0.25 * kx);
  pen.setCapStyle(Qt::FlatCap);
  painter_.setPen(pen);
  QFont font(QStringLiteral("Arial"));
  font.setPointSizeF(6);
  painter_.setFont(font);
  const QFontMetricsF fm(font, &device_);
  if (bars_.horizontal) {
    const double x0 = bars_.hx, x1 = bars_.hx + kCalibrationBarMm, y = bars_.hy;
    painter_.drawLine(dot(x0, y), dot(x1, y));
    for (int mm = 0; mm <= kCalibrationBarMm; mm += 10) {
      const double t = mm % 100 == 0 ? L::kTickMm : L::kTickMm / 2;
      painter_.drawLine(dot(x0 + mm, y - t), dot(x0 + mm, y + t));
    }
    const QString label = QString::fromStdString(calibrationLabel('X', c.x, options_.langue));
    painter_.drawText(dot(x0 + 2, y - L::kLabelDrop) + QPointF(0, fm.ascent()), label);
  }
  if (bars_.vertical) {
    const double x = bars_.vx, y0 = bars_.vy, y1 = bars_.vy + kCalibrationBarMm;
    painter_.drawLine(dot(x, y0), dot(x, y1));
    for (int mm = 0; mm <= kCalibrationBarMm; mm += 10) {
      const double t = mm % 100 == 0 ? L::kTickMm : L::kTickMm / 2;
      painter_.drawLine(dot(x - t, y1 - mm), dot(x + t, y1 - mm));
    }
    const QString label = QString::fromStdString(calibrationLabel('Y', c.y, options_.langue));
    painter_.translate(dot(x - L::kTickMm - 1, y1 - 2));
    painter_.rotate(-90);
    painter_.drawText(QPointF(0, 0), label);
  }
  painter_.restore();
}

void PagedSurface::newPage() {
  if (!painter_.isActive()) return;
  device_.newPage();
  startPage();
}

void PagedSurface::endDoc() {
  if (!painter_.isActive()) return;
  detach();
  painter_.end();
}

bool PagedSurface::fitText(QPointF topLeft, QString& text, const QFontMetricsF& fm) const {
  const double slack = 0.5;  // dots: a text set exactly on the edge stays
  if (topLeft.x() < area_.left() - slack || topLeft.y() < area_.top() - slack ||
      topLeft.y() + fm.height() > area_.bottom() + slack)
    return false;
  while (!text.isEmpty() && topLeft.x() + fm.horizontalAdvance(text) > area_.right() + slack)
    text.chop(1);
  return !text.isEmpty();
}

}  // namespace tolmar::qtdraw
