// Twips to the dots of a paint device, from the device's own resolution:
// the one place where a drawing unit becomes a device coordinate.
#pragma once

#include <QPaintDevice>
#include <QPointF>

namespace tolmar::qtdraw {

inline constexpr double kTwipsPerInch = 1440;

struct DeviceScale {
  double dotsPerTwipX = 1.0 / 15;  // 96 dots per inch
  double dotsPerTwipY = 1.0 / 15;

  static DeviceScale of(const QPaintDevice& d) {
    return {d.logicalDpiX() / kTwipsPerInch, d.logicalDpiY() / kTwipsPerInch};
  }
  QPointF toDots(double xTwips, double yTwips) const {
    return {xTwips * dotsPerTwipX, yTwips * dotsPerTwipY};
  }
  double twipsFromDotsX(double dots) const { return dots / dotsPerTwipX; }
  double twipsFromDotsY(double dots) const { return dots / dotsPerTwipY; }
};

}  // namespace tolmar::qtdraw
