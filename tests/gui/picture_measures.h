// Measures of a rendered picture of the hull, for the 3-D tests: the tilt
// of its silhouette and how much background is seen through the water.
#pragma once

#include <QImage>
#include <QPoint>
#include <QtGlobal>
#include <cmath>

namespace tolmar::test {

// The angle of the silhouette's long axis to the picture's rows, degrees,
// from its second moments: positive when its right end lies lower (rows
// run down the picture).  The background is the colour at `background`.
inline double tilt(const QImage& img, QPoint background = {0, 0}) {
  const QRgb bg = img.pixel(background);
  double n = 0, sx = 0, sy = 0, sxx = 0, syy = 0, sxy = 0;
  for (int y = 0; y < img.height(); ++y)
    for (int x = 0; x < img.width(); ++x) {
      const QRgb p = img.pixel(x, y);
      if (qAbs(qRed(p) - qRed(bg)) + qAbs(qGreen(p) - qGreen(bg)) + qAbs(qBlue(p) - qBlue(bg)) < 30)
        continue;
      n += 1, sx += x, sy += y, sxx += double(x) * x, syy += double(y) * y, sxy += double(x) * y;
    }
  const double mx = sx / n, my = sy / n;
  const double mu20 = sxx / n - mx * mx, mu02 = syy / n - my * my, mu11 = sxy / n - mx * my;
  return 0.5 * std::atan2(2 * mu11, mu20 - mu02) * 180 / M_PI;
}

// Pixels of the background seen through the water: its light blue-grey
// blended with the water's blue.
inline int wateredBackground(const QImage& img) {
  int n = 0;
  for (int y = 0; y < img.height(); ++y)
    for (int x = 0; x < img.width(); ++x) {
      const QRgb p = img.pixel(x, y);
      n += qAbs(qRed(p) - 172) < 20 && qAbs(qGreen(p) - 198) < 20 && qAbs(qBlue(p) - 230) < 20;
    }
  return n;
}

}  // namespace tolmar::test
