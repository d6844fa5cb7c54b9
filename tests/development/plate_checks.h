// Measures of a developed plate against the 3-D edges it came from: the
// lengths that the triangle strip lays exactly (edge steps, rungs and the
// diagonal of each quadrilateral) and the orientation of every triangle.
#pragma once

#include <algorithm>
#include <cmath>
#include <limits>

#include "hull/hull_store.h"

namespace tolmar::checks {

inline constexpr int kStartRung = 10;

struct PlateFit {
  double edge = 0;                                      // largest |flat - 3-D| of an edge step, m
  double rung = 0;                                      // of a rung
  double diagonal = 0;                                  // of a diagonal the strip lays
  double minArea = std::numeric_limits<double>::max();  // signed, twice the area, m2
  bool finite = true;
};

struct Tables {
  TableRef x, y, z;
  double dist(int l1, int i1, int l2, int i2) const {
    const double dx = x(l1, i1) - x(l2, i2), dy = y(l1, i1) - y(l2, i2), dz = z(l1, i1) - z(l2, i2);
    return std::sqrt(dx * dx + dy * dy + dz * dz);
  }
};

inline double flatLo(const HullStore& h, int i, int j) {
  return std::hypot(h.devXi(i) - h.devXi(j), h.devYi(i) - h.devYi(j));
}
inline double flatUp(const HullStore& h, int i, int j) {
  return std::hypot(h.devXs(i) - h.devXs(j), h.devYs(i) - h.devYs(j));
}
// From lower point i to upper point j.
inline double flatCross(const HullStore& h, int i, int j) {
  return std::hypot(h.devXi(i) - h.devXs(j), h.devYi(i) - h.devYs(j));
}

struct Flat {
  double x, y;
};
inline double cross(Flat a, Flat b, Flat c) {
  return (b.x - a.x) * (c.y - a.y) - (b.y - a.y) * (c.x - a.x);
}

// The plate between rows line and line+1 of t, points 0..last, as left in
// the store's dev arrays.
inline PlateFit measurePlate(const HullStore& h, const Tables& t, int line, int last) {
  PlateFit f;
  const int lo = line, up = line + 1;
  auto lo2 = [&](int i) { return Flat{h.devXi(i), h.devYi(i)}; };
  auto up2 = [&](int i) { return Flat{h.devXs(i), h.devYs(i)}; };
  for (int i = 0; i <= last; ++i) {
    f.finite = f.finite && std::isfinite(h.devXi(i)) && std::isfinite(h.devYi(i)) &&
               std::isfinite(h.devXs(i)) && std::isfinite(h.devYs(i));
    f.rung = std::max(f.rung, std::abs(flatCross(h, i, i) - t.dist(lo, i, up, i)));
  }
  for (int i = 0; i < last; ++i) {
    f.edge = std::max(f.edge, std::abs(flatLo(h, i, i + 1) - t.dist(lo, i, lo, i + 1)));
    f.edge = std::max(f.edge, std::abs(flatUp(h, i, i + 1) - t.dist(up, i, up, i + 1)));
    double a1 = 0, a2 = 0;
    if (i < kStartRung) {  // aft sweep: diagonal from lower i to upper i+1
      f.diagonal =
          std::max(f.diagonal, std::abs(flatCross(h, i, i + 1) - t.dist(lo, i, up, i + 1)));
      a1 = cross(lo2(i), lo2(i + 1), up2(i + 1));
      a2 = cross(lo2(i), up2(i + 1), up2(i));
    } else {  // forward sweep: diagonal from lower i+1 to upper i
      f.diagonal =
          std::max(f.diagonal, std::abs(flatCross(h, i + 1, i) - t.dist(lo, i + 1, up, i)));
      a1 = cross(lo2(i), lo2(i + 1), up2(i));
      a2 = cross(lo2(i + 1), up2(i + 1), up2(i));
    }
    f.minArea = std::min({f.minArea, a1, a2});
  }
  return f;
}

struct Extent {
  double minX, minY, maxX, maxY;
};

inline Extent outlineExtent(const HullStore& h, int last) {
  Extent e{1e300, 1e300, -1e300, -1e300};
  for (int i = 0; i <= last; ++i) {
    e.minX = std::min({e.minX, h.devXi(i), h.devXs(i)});
    e.minY = std::min({e.minY, h.devYi(i), h.devYs(i)});
    e.maxX = std::max({e.maxX, h.devXi(i), h.devXs(i)});
    e.maxY = std::max({e.maxY, h.devYi(i), h.devYs(i)});
  }
  return e;
}

}  // namespace tolmar::checks
