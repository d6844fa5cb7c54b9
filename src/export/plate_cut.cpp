#include "export/plate_cut.h"

#include <cmath>

#include "hull/angle_constants.h"
#include "hull/geometrie.h"

namespace tolmar {

namespace {

FlatPoint low(const HullStore& h, int i) { return {h.devXi(i), h.devYi(i)}; }
FlatPoint up(const HullStore& h, int i) { return {h.devXs(i), h.devYs(i)}; }
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
  CutOutline c;
  for (int i = 0; i <= lastPoint; ++i) {
    c.low(i) = low(h, i);
    c.up(i) = up(h, i);
  }
  const bool bottom = n == 0;

  const double dAft = bottom ? h.transomThick * 1.1 / std::cos(h.transomAngle / kDegreesPerRadian)
                             : h.transomThick * 1.2;
  c.up(0) = shiftPrev(mid(up(h, 1), up(h, 2)), up(h, 0), low(h, 0), dAft);
  c.low(0) = shiftNext(up(h, 0), low(h, 0), mid(low(h, 1), low(h, 2)), dAft);

  if (h.yFwd(1) > 0.00001) {
    const double dFwd =
        bottom ? h.bowThick * 1.2 / std::cos(h.bowAngle / kDegreesPerRadian) : h.bowThick * 1.2;
    if (bottom) {
      c.low(81) = shiftPrev(low(h, 80), low(h, 81), low(h, 82), dFwd);
      c.up(83) = shiftNext(low(h, 82), up(h, 83), up(h, 82), dFwd);
      c.low(83) = c.up(83);
      c.low(82) = offset(low(h, 81), low(h, 82), -dFwd);
    } else {
      c.low(82) = shiftPrev(mid(low(h, 80), low(h, 81)), low(h, 82), up(h, 82), dFwd);
      c.up(82) = shiftNext(low(h, 82), up(h, 82), mid(up(h, 80), up(h, 81)), dFwd);
    }
  }

  if (!bottom) {
    auto w = [&](int i) { return h.overlapWidth(n, i); };
    c.low(0) = shiftPrev(c.up(0), c.low(0), mid(low(h, 1), low(h, 2)), w(0));
    c.low(1) = offset(low(h, 2), low(h, 1), w(1));
    for (int i = 2; i <= 81; ++i) c.low(i) = offset(low(h, i - 1), low(h, i), -w(i));
    c.low(81) = offset(mid(low(h, 79), low(h, 80)), low(h, 81), -w(81));
    c.low(82) = shiftNext(mid(low(h, 80), low(h, 81)), c.low(82), c.up(82), w(82));
  }
  return c;
}

}  // namespace tolmar
