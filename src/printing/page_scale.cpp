#include "printing/page_scale.h"

#include <algorithm>
#include <cmath>

namespace tolmar {

namespace {

double radius(const PrintExtent& e) {
  double r = e.yHi;
  if (r < e.zHi) r = e.zHi;
  if (std::fabs(e.zLo) > r) r = std::fabs(e.zLo);
  return r;
}

double span(const PrintExtent& e) { return radius(e) * 0.8 + e.xHi - e.xLo; }

// Room over length; a length of zero sets no limit.
double fit(double room, double length) { return length > 0 ? room / length : kMaxPrintScale; }

double fitExtent(const PrintExtent& e, double W, double H) {
  const double s1 = fit(W * 0.95 - kLeftMargin - 400, span(e));
  const double s2 = fit(H * 0.95 - 568 - 400, radius(e) * 2.2);
  double s = s1 < s2 ? s1 : s2;
  if (!(s > 0)) s = kNoRoomScale;
  return std::min(s, kMaxPrintScale);
}

}  // namespace

PrintExtent printExtent(const HullStore& h) {
  PrintExtent e;
  for (int l = 1; l <= 4; ++l) {
    for (int i = 0; i <= kLastPoint; ++i) {
      e.xHi = std::max(e.xHi, h.lineX(l, i));
      e.xLo = std::min(e.xLo, h.lineX(l, i));
      e.zHi = std::max(e.zHi, h.lineZ(l, i));
      e.zLo = std::min(e.zLo, h.lineZ(l, i));
      e.yHi = std::max(e.yHi, h.lineY(l, i));
    }
  }
  return e;
}

double stepScale(double s) {
  if (s >= 1136) return std::floor(s / 1136) * 1136;
  if (s > 568) return 568;
  if (s >= 113.6) return std::floor(s / 113.6) * 113.6;
  if (s >= 56.8) return 56.8;
  if (s >= 5.68) return std::floor(s / 5.68) * 5.68;
  return s;
}

double fitScale(const HullStore& h, double W, double H) { return fitExtent(printExtent(h), W, H); }

void pageScale(HullStore& h, double W, double H) {
  const PrintExtent e = printExtent(h);
  const float s = static_cast<float>(stepScale(fitExtent(e, W, H)));
  h.printScaleX = s;
  h.printScaleY = s;
  h.printScaleZ = -s;
  h.printOriginX = static_cast<float>((W * 0.95 - span(e) * s) / 2 + kLeftMargin - s * e.xLo);
  h.printOriginY = static_cast<float>(H * 0.5 + 668);
  h.printOriginZ = h.printOriginY;
}

void pageScale(PrintJob& job) {
  BusyScope busy(job.host);
  pageScale(job.h, job.pageWidth(), job.pageHeight());
}

}  // namespace tolmar
