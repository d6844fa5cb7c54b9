#include "development/plate_cut.h"

#include <cmath>

#include "hull/angle_constants.h"
#include "hull/geometrie.h"

namespace tolmar {

namespace {

FlatPoint low(const DevEdges& h, int i) { return {h.xi(i), h.yi(i)}; }
FlatPoint up(const DevEdges& h, int i) { return {h.xs(i), h.ys(i)}; }
FlatPoint mid(FlatPoint a, FlatPoint b) { return {(a.x + b.x) / 2, (a.y + b.y) / 2}; }

FlatPoint keepFinite(FlatPoint p, FlatPoint fallback) {
  return std::isfinite(p.x) && std::isfinite(p.y) ? p : fallback;
}

FlatPoint shiftNext(FlatPoint p0, FlatPoint p1, FlatPoint p2, double d) {
  FlatPoint o;
  cornerShiftNext(p0.x, p0.y, p1.x, p1.y, p2.x, p2.y, d, o.x, o.y);
  return keepFinite(o, p1);
}

FlatPoint shiftPrev(FlatPoint p0, FlatPoint p1, FlatPoint p2, double d) {
  FlatPoint o;
  cornerShiftPrev(p0.x, p0.y, p1.x, p1.y, p2.x, p2.y, d, o.x, o.y);
  return keepFinite(o, p1);
}

FlatPoint offset(FlatPoint p1, FlatPoint p2, double d) {
  FlatPoint o;
  normalOffset(p1.x, p1.y, p2.x, p2.y, d, o.x, o.y);
  return keepFinite(o, p2);
}

}  // namespace

CutOutline cutOutline(const HullStore& h, int n, int lastPoint) {
  return cutOutline(h, devEdgesOf(h), n, lastPoint);
}

CutOutline cutOutline(const HullStore& h, const DevEdges& d, int n, int lastPoint) {
  CutOutline c;
  for (int i = 0; i <= lastPoint; ++i) {
    c.low(i) = low(d, i);
    c.up(i) = up(d, i);
  }
  const bool bottom = n == 0;

  const double dAft = bottom ? h.transomThick * 1.1 / std::cos(h.transomAngle / kDegreesPerRadian)
                             : h.transomThick * 1.2;
  c.up(0) = shiftPrev(mid(up(d, 1), up(d, 2)), up(d, 0), low(d, 0), dAft);
  c.low(0) = shiftNext(up(d, 0), low(d, 0), mid(low(d, 1), low(d, 2)), dAft);

  if (h.yFwd(1) > 0.00001) {
    const double dFwd =
        bottom ? h.bowThick * 1.2 / std::cos(h.bowAngle / kDegreesPerRadian) : h.bowThick * 1.2;
    if (bottom) {
      c.low(81) = shiftPrev(low(d, 80), low(d, 81), low(d, 82), dFwd);
      c.up(83) = shiftNext(low(d, 82), up(d, 83), up(d, 82), dFwd);
      c.low(83) = c.up(83);
      c.low(82) = offset(low(d, 81), low(d, 82), -dFwd);
    } else {
      c.low(82) = shiftPrev(mid(low(d, 80), low(d, 81)), low(d, 82), up(d, 82), dFwd);
      c.up(82) = shiftNext(low(d, 82), up(d, 82), mid(up(d, 80), up(d, 81)), dFwd);
    }
  }

  if (!bottom) {
    auto w = [&](int i) { return h.overlapWidth(n, i); };
    c.low(0) = shiftPrev(c.up(0), c.low(0), mid(low(d, 1), low(d, 2)), w(0));
    c.low(1) = offset(low(d, 2), low(d, 1), w(1));
    for (int i = 2; i <= 81; ++i) c.low(i) = offset(low(d, i - 1), low(d, i), -w(i));
    c.low(81) = offset(mid(low(d, 79), low(d, 80)), low(d, 81), -w(81));
    c.low(82) = shiftNext(mid(low(d, 80), low(d, 81)), c.low(82), c.up(82), w(82));
  }
  return c;
}

}  // namespace tolmar
