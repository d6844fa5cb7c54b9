#include "printing/flat_clip.h"

#include <cmath>

namespace tolmar {

bool clipToBox(double& ax, double& ay, double& bx, double& by, const ClipBox& r) {
  if (!std::isfinite(ax) || !std::isfinite(ay) || !std::isfinite(bx) || !std::isfinite(by))
    return false;
  double t0 = 0, t1 = 1;
  const double dx = bx - ax, dy = by - ay;
  const double p[4] = {-dx, dx, -dy, dy};
  const double q[4] = {ax - r.x0, r.x1 - ax, ay - r.y0, r.y1 - ay};
  for (int i = 0; i < 4; ++i) {
    if (p[i] == 0) {
      if (q[i] < 0) return false;
      continue;
    }
    const double t = q[i] / p[i];
    if (p[i] < 0) {
      if (t > t1) return false;
      if (t > t0) t0 = t;
    } else {
      if (t < t0) return false;
      if (t < t1) t1 = t;
    }
  }
  const double x = ax, y = ay;
  if (t1 < 1) {
    bx = x + t1 * dx;
    by = y + t1 * dy;
  }
  if (t0 > 0) {
    ax = x + t0 * dx;
    ay = y + t0 * dy;
  }
  return true;
}

}  // namespace tolmar
