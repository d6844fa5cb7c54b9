// Hulls whose hydrostatics are known by hand, built straight into the line
// tables: every section of a prism is the same polyline, points 0 and 1 at
// X = 0 and points 81 and 82 at X = length, as the line generation lays
// them out.
#pragma once

#include <functional>
#include <memory>
#include <vector>

#include "hull/hull_store.h"

namespace tolmar::shapes {

struct YZ {
  double y = 0, z = 0;
};

inline double stationX(double length, int p) {
  if (p == 0) return 0;
  if (p == kLastPoint) return length;
  return (p - 1) * length / 80;
}

// Section of line k at X, for k = 0..nChines.
using SectionAt = std::function<YZ(int line, double x)>;

inline std::unique_ptr<HullStore> shapeHull(double length, int nChines, const SectionAt& at) {
  auto h = std::make_unique<HullStore>();
  h->nChines = static_cast<i16>(nChines);
  h->xFwd(0) = h->xFwd(1) = length;
  for (int k = 0; k <= nChines; ++k) {
    for (int p = 0; p <= kLastPoint; ++p) {
      const double x = stationX(length, p);
      const YZ s = at(k, x);
      h->lineX(k, p) = x;
      h->lineY(k, p) = s.y;
      h->lineZ(k, p) = s.z;
    }
  }
  h->yMax(1) = at(1, length / 2).y;
  return h;
}

// Flat bottom of half breadth b at Z = 0, vertical sides up to Z = depth:
// line 0 the keel, line 1 the chine at (b, 0), line 2 the sheer at (b, depth).
inline std::unique_ptr<HullStore> boxHull(double length, double b, double depth) {
  return shapeHull(length, 2, [=](int k, double) {
    return k == 0 ? YZ{0, 0} : k == 1 ? YZ{b, 0} : YZ{b, depth};
  });
}

// The box with a half breadth growing linearly from bAft at X = 0 to bFwd
// at the length.
inline std::unique_ptr<HullStore> taperedBox(double length, double bAft, double bFwd,
                                             double depth) {
  return shapeHull(length, 2, [=](int k, double x) {
    const double b = bAft + (bFwd - bAft) * x / length;
    return k == 0 ? YZ{0, 0} : k == 1 ? YZ{b, 0} : YZ{b, depth};
  });
}

// V bottom from the keel at Z = 0 to the chine at (b, rise), then a
// vertical side of `side` above it.
inline std::unique_ptr<HullStore> wedgeHull(double length, double b, double rise, double side) {
  return shapeHull(length, 2, [=](int k, double) {
    return k == 0 ? YZ{0, 0} : k == 1 ? YZ{b, rise} : YZ{b, rise + side};
  });
}

}  // namespace tolmar::shapes
