// A straight piece of a drawing kept to a rectangle: the part of segment
// a-b inside [x0, x1] x [y0, y1] (Liang-Barsky).  False when nothing of it
// is inside or a coordinate is not finite.
#pragma once

namespace tolmar {

struct ClipBox {
  double x0, y0, x1, y1;
};

bool clipToBox(double& ax, double& ay, double& bx, double& by, const ClipBox& r);

}  // namespace tolmar
