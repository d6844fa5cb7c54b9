// Flattening of one plate between two neighbouring edges of the hull: a
// triangle strip unrolled from the rung at point 10 towards both ends, each
// triangle laid from the true 3-D lengths of its sides, then levelled and
// moved into the first quadrant.  Output: points 0..n+2 of the store's
// devXi, devYi (lower edge) and devXs, devYs (upper edge), metres; slots
// above n+2 keep what an earlier plate left there.
#pragma once

#include "hull/hull_store.h"

namespace tolmar {

// The two developed edges of one plate: lower (xi, yi) and upper (xs, ys),
// points 0..n+2 used.
struct DevEdges {
  DevArr xi, yi, xs, ys;
  bool operator==(const DevEdges&) const = default;
};

// The store's dev arrays as edges, and back.
DevEdges devEdgesOf(const HullStore& h);
void storeDevEdges(HullStore& h, const DevEdges& d);

// The development itself on edges of one's own: slots above n+2 keep what
// they held.  iMaxBeam levels the bottom (line 0).
void calcDevelop(DevEdges& d, int iMaxBeam, int n, int line, const TableRef& x, const TableRef& y,
                 const TableRef& z);

// Develops the strip between rows `line` and `line`+1 of the three tables,
// points 0..n+2 (n >= 8, n+2 <= 90).  Only distances and exact equality of
// points are used, so the order of the three tables does not matter.
// Levelling: line 0 makes the lower edge level between points iMaxBeam-2 and
// iMaxBeam+2, line 1 the lower edge end to end, higher lines the upper edge
// end to end.  A chord with no X extent is turned a quarter turn (the limit
// of the levelling formula) if it has a Y extent, and not turned at all if
// its two ends coincide.
void calcDevelop(HullStore& h, int n, int line, const TableRef& x, const TableRef& y,
                 const TableRef& z);

// The two forms in use: the bottom from the bottom edges, points 0..83, and
// plank k (1..nChines-1) between lines k and k+1, points 0..82.
void developBottom(HullStore& h);
void developPlank(HullStore& h, int k);
// The same on edges of their own, the store unchanged.
DevEdges bottomEdges(const HullStore& h, DevEdges start = {});
DevEdges plankEdges(const HullStore& h, int k, DevEdges start = {});

inline constexpr int kBottomLastPoint = 83;
inline constexpr int kPlankLastPoint = 82;

// Rotation that makes the chord from (x1, y1) to (x2, y2) level:
// atan((y1 - y2)/(x2 - x1)), finite for every finite input.
double levellingAngle(double x1, double y1, double x2, double y2);

}  // namespace tolmar
