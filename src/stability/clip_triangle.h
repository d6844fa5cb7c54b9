// One triangle cut by a plane: the part where the signed distance s is
// negative, as a convex polygon in the triangle's own turning, and the
// edge the plane leaves on it.
#pragma once

#include <array>

#include "surface/hull_mesh.h"

namespace tolmar::stability {

struct ClippedTriangle {
  std::array<Vec3, 4> p;
  int n = 0;  // 0 when nothing lies below, 3 or 4 otherwise
  // The polygon runs ..., exit, entry, ... along the plane when cut:
  // the face that closes the cut runs from entry to exit.
  bool cut = false;
  Vec3 exit, entry;
};

// s: signed distances of a, b, c (negative below).  The point where an edge
// meets the plane lies between its ends whatever the values, since the
// ends lie strictly on either side.
ClippedTriangle clipTriangle(const Vec3& a, const Vec3& b, const Vec3& c, double sa, double sb,
                             double sc);

}  // namespace tolmar::stability
