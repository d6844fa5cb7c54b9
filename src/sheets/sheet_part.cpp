#include "sheets/sheet_part.h"

#include <algorithm>
#include <cmath>

namespace tolmar::sheets {

double polygonArea(const MmPolygon& p) {
  double a = 0;
  for (std::size_t i = 0, n = p.size(); i < n; ++i) {
    const MmPoint& u = p[i];
    const MmPoint& v = p[(i + 1) % n];
    a += u.x * v.y - v.x * u.y;
  }
  return std::abs(a) / 2;
}

MmBox boundingBox(const MmPolygon& p) {
  if (p.empty()) return {};
  MmBox b{p[0].x, p[0].y, p[0].x, p[0].y};
  for (const MmPoint& q : p) {
    b.x0 = std::min(b.x0, q.x);
    b.y0 = std::min(b.y0, q.y);
    b.x1 = std::max(b.x1, q.x);
    b.y1 = std::max(b.y1, q.y);
  }
  return b;
}

std::string sideName(int side, int langue) {
  if (side > 0) return langue == 0 ? "tribord" : "starboard";
  if (side < 0) return langue == 0 ? "bâbord" : "port";
  return {};
}

}  // namespace tolmar::sheets
