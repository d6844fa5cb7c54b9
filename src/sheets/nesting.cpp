#include "sheets/nesting.h"

#include <algorithm>
#include <cmath>
#include <limits>
#include <numeric>

namespace tolmar::sheets {

using namespace ClipperLib;

namespace {

// Sheets that still take pieces.
constexpr std::size_t kOpenSheets = 3;

// `p` grown by `grow`, mitred corners (never inside the rounded growth).
Path grownBy(const Path& p, cInt grow) {
  ClipperOffset o(4.0);
  o.AddPath(p, jtMiter, etClosedPolygon);
  Paths g;
  o.Execute(g, static_cast<double>(grow));
  if (g.empty()) return p;
  return *std::max_element(g.begin(), g.end(), [](const Path& a, const Path& b) {
    return std::abs(Area(a)) < std::abs(Area(b));
  });
}

Path turned(const Path& p, int quarter) {
  Path out;
  out.reserve(p.size());
  for (const IntPoint& q : p) {
    switch (quarter & 3) {
      case 0:
        out.emplace_back(q.X, q.Y);
        break;
      case 1:
        out.emplace_back(-q.Y, q.X);
        break;
      case 2:
        out.emplace_back(-q.X, -q.Y);
        break;
      default:
        out.emplace_back(q.Y, -q.X);
        break;
    }
  }
  return out;
}

struct Box {
  cInt x0, y0, x1, y1;
};
Box boxOf(const Path& p) {
  Box b{p[0].X, p[0].Y, p[0].X, p[0].Y};
  for (const IntPoint& q : p) {
    b.x0 = std::min(b.x0, q.X), b.y0 = std::min(b.y0, q.Y);
    b.x1 = std::max(b.x1, q.X), b.y1 = std::max(b.y1, q.Y);
  }
  return b;
}

struct Placed {
  Path grownOutline;  // in sheet coordinates, grown by the kerf
  Box box;
};

struct Sheet {
  std::vector<Placed> pieces;
  double freeArea = 0;
};

// The lowest and highest Y of the edges of `p` at X = x (its cross-section,
// holes and notches filled); false when x misses it.
bool crossSection(const Path& p, double x, double& y0, double& y1) {
  bool hit = false;
  for (std::size_t i = 0, n = p.size(); i < n; ++i) {
    const double ax = double(p[i].X), ay = double(p[i].Y);
    const double bx = double(p[(i + 1) % n].X), by = double(p[(i + 1) % n].Y);
    if ((ax - x) * (bx - x) > 0) continue;
    double lo, hi;
    if (ax == bx) {
      lo = std::min(ay, by), hi = std::max(ay, by);
    } else {
      lo = hi = ay + (by - ay) * (x - ax) / (bx - ax);
    }
    if (!hit || lo < y0) y0 = lo;
    if (!hit || hi > y1) y1 = hi;
    hit = true;
  }
  return hit;
}

// The shifts dy for which `piece` moved by (dx, dy) meets `other`: an open
// interval, from the cross-sections at every corner of either within their
// common stretch of X (both outlines are straight between corners).  With
// the cross-sections filled the interval can only be too wide, never too
// narrow.
bool blockedShifts(const Path& piece, const Box& pb, cInt dx, const Path& other, const Box& ob,
                   double& lo, double& hi) {
  const double x0 = double(std::max(pb.x0 + dx, ob.x0)), x1 = double(std::min(pb.x1 + dx, ob.x1));
  if (x0 >= x1) return false;
  bool any = false;
  auto at = [&](double x) {
    double p0, p1, q0, q1;
    if (!crossSection(piece, x - double(dx), p0, p1) || !crossSection(other, x, q0, q1)) return;
    if (!any || q0 - p1 < lo) lo = q0 - p1;
    if (!any || q1 - p0 > hi) hi = q1 - p0;
    any = true;
  };
  at(x0);
  at(x1);
  for (const IntPoint& q : piece)
    if (double(q.X + dx) > x0 && double(q.X + dx) < x1) at(double(q.X + dx));
  for (const IntPoint& q : other)
    if (double(q.X) > x0 && double(q.X) < x1) at(double(q.X));
  return any && lo < hi;
}

// The least (x, y) at which the piece `shape` (turned, its reference its
// own origin) fits on `sheet`; false when it does not.  The X tried are
// the margin and just past the right end of every piece there; at each,
// the piece drops to the lowest Y that no piece blocks.
bool bottomLeft(const Path& shape, const Sheet& sheet, const NestRequest& r, IntPoint& at) {
  const Box b = boxOf(shape);
  // Reference positions that keep the piece inside the margins.
  const cInt fx0 = r.x0 - b.x0, fy0 = r.y0 - b.y0, fx1 = r.x1 - b.x1, fy1 = r.y1 - b.y1;
  if (fx0 > fx1 || fy0 > fy1) return false;
  std::vector<cInt> xs = {fx0};
  for (const Placed& q : sheet.pieces)
    if (q.box.x1 - b.x0 > fx0 && q.box.x1 - b.x0 <= fx1) xs.push_back(q.box.x1 - b.x0);
  std::sort(xs.begin(), xs.end());
  xs.erase(std::unique(xs.begin(), xs.end()), xs.end());
  for (cInt dx : xs) {
    std::vector<std::pair<double, double>> blocked;
    for (const Placed& q : sheet.pieces) {
      double lo, hi;
      if (blockedShifts(shape, b, dx, q.grownOutline, q.box, lo, hi)) blocked.emplace_back(lo, hi);
    }
    std::sort(blocked.begin(), blocked.end());
    // The lowest dy of [fy0, fy1] in no open interval.
    double dy = double(fy0);
    for (const auto& [lo, hi] : blocked)
      if (lo < dy && dy < hi)
        dy = std::ceil(hi);
      else if (lo >= dy)
        break;
    // Intervals that began below dy but reach past it were skipped by the
    // early stop; one more pass settles them.
    for (bool moved = true; moved;) {
      moved = false;
      for (const auto& [lo, hi] : blocked)
        if (lo < dy && dy < hi) dy = std::ceil(hi), moved = true;
    }
    if (dy <= double(fy1)) {
      at = IntPoint(dx, static_cast<cInt>(dy));
      return true;
    }
  }
  return false;
}

}  // namespace

std::vector<NestPlace> nestShapes(const NestRequest& r) {
  const std::size_t n = r.shapes.size();
  std::vector<NestPlace> out(n);
  std::vector<double> area(n);
  for (std::size_t i = 0; i < n; ++i) area[i] = std::abs(Area(r.shapes[i]));
  std::vector<std::size_t> order(n);
  std::iota(order.begin(), order.end(), 0);
  std::stable_sort(order.begin(), order.end(),
                   [&](std::size_t a, std::size_t b) { return area[a] > area[b]; });
  const std::vector<int> turns = r.rotate90 ? std::vector<int>{0, 2, 1, 3} : std::vector<int>{0, 2};
  const double sheetArea = double(r.x1 - r.x0) * double(r.y1 - r.y0);
  std::vector<Sheet> sheets;
  for (std::size_t i : order) {
    if (r.shapes[i].size() < 3) continue;
    const Path grownShape = grownBy(r.shapes[i], r.gap);
    bool placed = false;
    // Only the last few sheets stay open: earlier ones are full enough, and
    // trying them all would cost a sum per piece on every sheet.
    const std::size_t firstOpen = sheets.size() > kOpenSheets ? sheets.size() - kOpenSheets : 0;
    for (std::size_t s = firstOpen; s <= sheets.size() && !placed; ++s) {
      if (s == sheets.size()) sheets.push_back({{}, sheetArea});
      if (sheets[s].freeArea < area[i]) continue;
      IntPoint best;
      int bestTurn = -1;
      for (int t : turns) {
        IntPoint at;
        if (!bottomLeft(turned(r.shapes[i], t), sheets[s], r, at)) continue;
        if (bestTurn < 0 || at.X < best.X || (at.X == best.X && at.Y < best.Y))
          best = at, bestTurn = t;
      }
      if (bestTurn < 0) {
        if (sheets[s].pieces.empty()) {
          sheets.pop_back();  // fits no sheet at all
          break;
        }
        continue;
      }
      Placed p;
      p.grownOutline = turned(grownShape, bestTurn);
      for (IntPoint& q : p.grownOutline) q.X += best.X, q.Y += best.Y;
      p.box = boxOf(p.grownOutline);
      sheets[s].pieces.push_back(std::move(p));
      sheets[s].freeArea -= area[i];
      out[i] = {static_cast<int>(s), bestTurn * 1.5707963267948966, best.X, best.Y};
      placed = true;
    }
  }
  return out;
}

}  // namespace tolmar::sheets
