// The DrawingSurface over a QPainter on any paint device.  Drawing units go
// to twips through the surface's Scale* fields and to dots through the
// device's resolution; everything is clipped to the device, widened by a
// margin, before QPainter sees it, so no coordinate is ever huge.
#pragma once

#include <QFont>
#include <QFontMetricsF>
#include <QPainter>
#include <QPen>
#include <optional>

#include "board/drawing_surface.h"
#include "qtdraw/device_scale.h"

namespace tolmar::qtdraw {

class PainterSurface : public DrawingSurface {
 public:
  float TextWidth(std::string_view text) const override;
  float TextHeight(std::string_view text) const override;

  // The device rectangle in dots, widened by this margin, is what is drawn.
  static constexpr double kClipMargin = 16;
  // Circles with a larger radius, in dots, are not drawn.
  static constexpr double kMaxCircleDots = 100000;

 protected:
  // `painter` is active on `device` and outlives every drawing call.  The
  // device's own resolution, everything within its rectangle widened by
  // kClipMargin.
  void attach(QPainter* painter, QPaintDevice* device);
  // The same with a given scale, and `area` (dots) as the surface's whole
  // extent: its size is Width x Height and nothing is drawn outside it.
  void attach(QPainter* painter, QPaintDevice* device, DeviceScale scale, const QRectF& area);
  void detach() { painter_ = nullptr; }
  void render(const DrawCall& call) override;

  virtual void clearPicture();
  // The painter's pen or mode was changed behind the surface's back.
  void forgetPen() {
    pen_.reset();
    mode_.reset();
  }
  virtual void newPage() {}
  virtual void endDoc() {}
  // Exclusive or is honoured only on raster devices.
  virtual bool rasterOps() const { return false; }
  // Device pixels to a pen's dot of width (a picture finer than its dots).
  virtual double penScale() const { return 1; }
  // A text about to be written with its top left corner at `topLeft`
  // (dots): false to leave it out; it may be shortened.  All are kept here.
  virtual bool fitText(QPointF topLeft, QString& text, const QFontMetricsF& fm) const;

  QPainter* painter_ = nullptr;
  QPaintDevice* device_ = nullptr;
  DeviceScale scale_;

 private:
  QPointF toDots(float x, float y) const;
  void applyPen(const DrawCall& call);
  QFont currentFont() const;
  void drawSegment(QPointF a, QPointF b);
  void drawBox(QPointF a, QPointF b);

  QRectF clip_;
  std::optional<QPen> pen_;
  std::optional<int> mode_;
};

// Clips the segment a-b to r (Liang-Barsky); false when nothing is left or
// a coordinate is not finite.
bool clipSegment(QPointF& a, QPointF& b, const QRectF& r);

QColor qtColour(Colour c);

}  // namespace tolmar::qtdraw
