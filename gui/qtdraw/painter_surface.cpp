#include "qtdraw/painter_surface.h"

#include <QFontMetricsF>
#include <QVector>
#include <algorithm>
#include <cmath>

#include "printing/flat_clip.h"

namespace tolmar::qtdraw {

namespace {

// Dash patterns in twips, so that a dotted line looks the same on a 96 dpi
// picture (one dot on, two off) and on a 1200 dpi printer.
QVector<qreal> dashTwips(std::int16_t style) {
  switch (style) {
    case kStyleDash:
      return {60, 30};
    case kStyleDot:
      return {15, 30};
    case kStyleDashDot:
      return {60, 30, 15, 30};
    case kStyleDashDotDot:
      return {60, 30, 15, 30, 15, 30};
    default:
      return {};
  }
}

bool finite(QPointF p) { return std::isfinite(p.x()) && std::isfinite(p.y()); }

}  // namespace

QColor qtColour(Colour c) { return QColor(c & 0xFF, (c >> 8) & 0xFF, (c >> 16) & 0xFF); }

bool clipSegment(QPointF& a, QPointF& b, const QRectF& r) {
  double ax = a.x(), ay = a.y(), bx = b.x(), by = b.y();
  if (!clipToBox(ax, ay, bx, by, ClipBox{r.left(), r.top(), r.right(), r.bottom()})) return false;
  a = QPointF(ax, ay);
  b = QPointF(bx, by);
  return true;
}

void PainterSurface::attach(QPainter* painter, QPaintDevice* device) {
  attach(painter, device, DeviceScale::of(*device),
         QRectF(0, 0, device->width(), device->height()));
  clip_ = QRectF(-kClipMargin, -kClipMargin, device->width() + 2 * kClipMargin,
                 device->height() + 2 * kClipMargin);
}

void PainterSurface::attach(QPainter* painter, QPaintDevice* device, DeviceScale scale,
                            const QRectF& area) {
  painter_ = painter;
  device_ = device;
  scale_ = scale;
  clip_ = area;
  setOuterSize(static_cast<float>(scale_.twipsFromDotsX(area.width())),
               static_cast<float>(scale_.twipsFromDotsY(area.height())));
  pen_.reset();
  mode_.reset();
}

bool PainterSurface::fitText(QPointF, QString&, const QFontMetricsF&) const { return true; }

QPointF PainterSurface::toDots(float x, float y) const { return scale_.toDots(twipX(x), twipY(y)); }

QFont PainterSurface::currentFont() const {
  QFont f(FontName.empty() ? QStringLiteral("Arial") : QString::fromStdString(FontName));
  f.setPointSizeF(FontSize > 0 && std::isfinite(FontSize) ? FontSize : 8);
  if (rasterOps()) f.setStyleStrategy(QFont::NoAntialias);
  return f;
}

float PainterSurface::TextWidth(std::string_view text) const {
  if (!device_) return 0;
  const QFontMetricsF fm(currentFont(), device_);
  const double dots =
      fm.horizontalAdvance(QString::fromUtf8(text.data(), static_cast<int>(text.size())));
  const double twips = scale_.twipsFromDotsX(dots);
  return static_cast<float>(ScaleWidth != 0 && Width() != 0 ? twips * ScaleWidth / Width() : twips);
}

float PainterSurface::TextHeight(std::string_view) const {
  if (!device_) return 0;
  const QFontMetricsF fm(currentFont(), device_);
  const double twips = scale_.twipsFromDotsY(fm.height());
  return static_cast<float>(ScaleHeight != 0 && Height() != 0 ? twips * ScaleHeight / Height()
                                                              : twips);
}

void PainterSurface::applyPen(const DrawCall& call) {
  QPen pen(qtColour(call.colour));
  pen.setCosmetic(true);
  const int dots = call.width < 1 ? 1 : call.width;
  const int width = std::max(1, static_cast<int>(std::lround(dots * penScale())));
  pen.setWidth(width);
  pen.setCapStyle(Qt::FlatCap);
  pen.setJoinStyle(Qt::MiterJoin);
  const QVector<qreal> dashes = dots == 1 ? dashTwips(call.style) : QVector<qreal>{};
  if (!dashes.isEmpty()) {
    // A dash pattern counts in pen widths.
    QVector<qreal> d;
    for (qreal t : dashes) d.push_back(std::max(1.0, t * scale_.dotsPerTwipX) / width);
    pen.setDashPattern(d);
  }
  if (!pen_ || *pen_ != pen) {
    painter_->setPen(pen);
    pen_ = pen;
  }
  const int mode = rasterOps() && call.mode == kModeXorPen ? kModeXorPen : kModeCopyPen;
  if (!mode_ || *mode_ != mode) {
    painter_->setCompositionMode(mode == kModeXorPen ? QPainter::RasterOp_SourceXorDestination
                                                     : QPainter::CompositionMode_SourceOver);
    mode_ = mode;
  }
}

// A segment whose two ends fall on one point draws nothing, as a line that
// leaves out its last dot would.
void PainterSurface::drawSegment(QPointF a, QPointF b) {
  if (a == b || !clipSegment(a, b, clip_)) return;
  painter_->drawLine(a, b);
}

void PainterSurface::drawBox(QPointF a, QPointF b) {
  if (!finite(a) || !finite(b) || a == b) return;
  const QRectF box = QRectF(a, b).normalized();
  if (clip_.contains(box)) {
    painter_->drawRect(box);
    return;
  }
  drawSegment(box.topLeft(), box.topRight());
  drawSegment(box.topRight(), box.bottomRight());
  drawSegment(box.bottomRight(), box.bottomLeft());
  drawSegment(box.bottomLeft(), box.topLeft());
}

void PainterSurface::clearPicture() {}

void PainterSurface::render(const DrawCall& call) {
  if (!painter_) return;
  switch (call.op) {
    case DrawOp::Cls:
      clearPicture();
      return;
    case DrawOp::NewPage:
      newPage();
      return;
    case DrawOp::EndDoc:
      endDoc();
      return;
    default:
      break;
  }
  applyPen(call);
  const QPointF a = toDots(call.x1, call.y1);
  switch (call.op) {
    case DrawOp::Line:
    case DrawOp::LineTo:
    case DrawOp::LineStep:
      drawSegment(a, toDots(call.x2, call.y2));
      break;
    case DrawOp::LineBox:
      drawBox(a, toDots(call.x2, call.y2));
      break;
    case DrawOp::PSet:
      if (finite(a) && clip_.contains(a)) painter_->drawPoint(a);
      break;
    case DrawOp::Circle: {
      const double rx = std::fabs(twipX(call.radius) - twipX(0)) * scale_.dotsPerTwipX;
      const double ry = std::fabs(twipY(call.radius) - twipY(0)) * scale_.dotsPerTwipY;
      if (!finite(a) || !std::isfinite(rx) || !std::isfinite(ry) || rx > kMaxCircleDots ||
          ry > kMaxCircleDots)
        break;
      if (clip_.intersects(QRectF(a.x() - rx, a.y() - ry, 2 * rx, 2 * ry)))
        painter_->drawEllipse(a, rx, ry);
      break;
    }
    case DrawOp::Print: {
      if (!finite(a) || call.text.empty()) break;
      // Short texts only: anything starting this far out cannot reach the device.
      const QRectF reach = clip_.adjusted(-10000, -10000, 10000, 10000);
      if (!reach.contains(a)) break;
      const QFont f = currentFont();
      const QFontMetricsF fm(f, device_);
      QString text = QString::fromStdString(call.text);
      if (!fitText(a, text, fm)) break;
      painter_->setFont(f);
      painter_->drawText(QPointF(a.x(), a.y() + fm.ascent()), text);
      break;
    }
    default:
      break;
  }
}

}  // namespace tolmar::qtdraw
