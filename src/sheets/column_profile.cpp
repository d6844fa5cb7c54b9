#include "sheets/column_profile.h"

#include <algorithm>
#include <cmath>
#include <limits>

namespace tolmar::sheets {

using ClipperLib::cInt;

namespace {

cInt floorDiv(cInt a, cInt b) { return a >= 0 ? a / b : -((-a + b - 1) / b); }

}  // namespace

std::vector<ColumnSpan> columnProfile(const ClipperLib::Path& p, cInt start, cInt step,
                                      cInt reach) {
  if (p.empty() || step <= 0 || reach < 0) return {};
  cInt right = p[0].X;
  for (const auto& q : p) right = std::max(right, q.X);
  if (right < start) return {};
  const cInt count = std::max<cInt>(1, floorDiv(right - start + step - 1, step));
  std::vector<ColumnSpan> out(static_cast<std::size_t>(count),
                              {std::numeric_limits<cInt>::max(), std::numeric_limits<cInt>::min()});
  auto add = [&](cInt j, double y0, double y1) {
    if (j < 0 || j >= count) return;
    ColumnSpan& c = out[static_cast<std::size_t>(j)];
    c.lo = std::min(c.lo, static_cast<cInt>(std::floor(std::min(y0, y1))));
    c.hi = std::max(c.hi, static_cast<cInt>(std::ceil(std::max(y0, y1))));
  };
  for (std::size_t i = 0, n = p.size(); i < n; ++i) {
    ClipperLib::IntPoint a = p[i], b = p[(i + 1) % n];
    if (a.X > b.X) std::swap(a, b);
    if (b.X < start) continue;
    // The columns that hold [a.X, b.X]; a point on a boundary lies in both
    // columns beside it.
    cInt j0 = -floorDiv(start + reach - a.X, step) - 1, j1 = floorDiv(b.X - start, step);
    j0 = std::max<cInt>(j0, 0);
    j1 = std::min(j1, count - 1);
    const double ax = double(a.X), bx = double(b.X), ay = double(a.Y), by = double(b.Y);
    for (cInt j = j0; j <= j1; ++j) {
      const double c0 = double(start + j * step), c1 = c0 + double(step + reach);
      if (a.X == b.X) {
        add(j, ay, by);
        continue;
      }
      const double x0 = std::max(ax, c0), x1 = std::min(bx, c1);
      if (x0 > x1) continue;
      const double t = (by - ay) / (bx - ax);
      add(j, ay + t * (x0 - ax), ay + t * (x1 - ax));
    }
  }
  return out;
}

}  // namespace tolmar::sheets
