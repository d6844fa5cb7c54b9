// What the rebuild after a hull screen's validation writes, kept so that a
// rebuild that comes out non-finite can be undone: the store never holds a
// NaN or an infinity, and the screen refuses the values instead.
#pragma once

#include "hull/hull_store.h"

namespace tolmar {

class GeometryBackup {
 public:
  explicit GeometryBackup(const HullStore& h);
  void restore(HullStore& h) const;

 private:
  i16 bowAngle_;
  LineArr xAft_, yAft_, zAft_, xMax_, yMax_, zMax_, xFwd_, yFwd_, zFwd_;
  LineArr planeA_, planeB_, planeC_;
  PointTable lineX_, lineY_, lineZ_;
  Grid<double, 0, 1, -1, kMaxDev> edgeX_;
  Grid<double, 0, 1, 0, kMaxDev> edgeY_, edgeZ_;
  BevelTable bevelAngle_;
};

// No point of a hull typed within kLargestTyped lies this far out; one that
// does comes from values that blow the equations up (an exponent of a huge
// height), and its numbers would reach the files as hundreds of digits.
inline constexpr double kLargestCoordinate = 1e5;

// Checks of what a rebuild wrote: finite, and coordinates within
// kLargestCoordinate.
bool controlValuesFinite(const HullStore& h, int line);  // the nine values and the plane
bool linePointsFinite(const HullStore& h, int line);     // points 0..82
bool bottomEdgesFinite(const HullStore& h);              // indices 0..83 of both sides
bool bevelRowFinite(const HullStore& h, int line);       // points 0..82

}  // namespace tolmar
