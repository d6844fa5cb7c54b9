// Twips to the dots of a paint device: the one place where a drawing unit
// becomes a device coordinate.  On a screen a twip is 1/1440 inch of the
// device's logical resolution; on paper the program counts 568 twips to the
// centimetre, shrunk by a printer's measured stretch.
#pragma once

#include <QPaintDevice>
#include <QPointF>

#include "printing/paper_setup.h"

namespace tolmar::qtdraw {

inline constexpr double kTwipsPerInch = 1440;

struct DeviceScale {
  double dotsPerTwipX = 1.0 / 15;  // 96 dots per inch
  double dotsPerTwipY = 1.0 / 15;

  static DeviceScale of(const QPaintDevice& d) {
    return {d.logicalDpiX() / kTwipsPerInch, d.logicalDpiY() / kTwipsPerInch};
  }
  // Paper: dots of the device's resolution for a true length.
  static DeviceScale paper(const QPaintDevice& d, PrintCalibration c) {
    const double mmX = d.logicalDpiX() / 25.4, mmY = d.logicalDpiY() / 25.4;
    return {mmX * kMmPerTwip / c.x, mmY * kMmPerTwip / c.y};
  }
  QPointF toDots(double xTwips, double yTwips) const {
    return {xTwips * dotsPerTwipX, yTwips * dotsPerTwipY};
  }
  double twipsFromDotsX(double dots) const { return dots / dotsPerTwipX; }
  double twipsFromDotsY(double dots) const { return dots / dotsPerTwipY; }
};

}  // namespace tolmar::qtdraw
