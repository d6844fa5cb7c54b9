// How well a flat pattern matches the 3-D strip it was developed from, and
// how the strip is bent: a plate between two edges, point i of one edge and
// point i of the other being the two ends of rung i, as the development
// lays them.  Metres throughout.
#pragma once

#include <vector>

#include "development/flat_point.h"

namespace tolmar::devcheck {

struct Point3 {
  double x = 0, y = 0, z = 0;
};

struct Strip {
  std::vector<Point3> lower, upper;             // on the hull
  std::vector<FlatPoint> flatLower, flatUpper;  // the pattern, point for point
  // A panel built with knuckles (the transom and the pram bow with a
  // turn-in): a turn sharper than kKnuckleAngle between two steps is a
  // joint, not a bend.
  bool knuckled = false;
};

// Radians, between the directions of two neighbouring steps.
inline constexpr double kKnuckleAngle = 0.2;

// A radius of this many metres or more is reported as this: a plate that
// straight needs no check, and every figure stays finite.
inline constexpr double kStraightRadius = 1000.0;

// Which length of a quadrilateral (between rungs i and i+1) is worst.
enum class Measure { lowerEdge, upperEdge, rung, diagonalLowUp, diagonalUpLow };

struct StripFit {
  // Largest |flat length - 3-D length| over both edges, every rung and
  // both diagonals of every quadrilateral, m; where (the quadrilateral's
  // first point) and which length.
  double maxError = 0;
  int errorPoint = -1;
  Measure errorMeasure = Measure::rung;
  // Length of the longer 3-D edge, m: what the error is taken per metre of.
  double length = 0;
  // The 3-D area (each quadrilateral as the mean of its two splits into
  // triangles) and the pattern's area (its outline), m2.
  double area = 0, flatArea = 0;
  // Smallest normal radius of the surface along the strip (the direction of
  // the edges) and across it, m, capped at kStraightRadius; where (point
  // index, -1 when the strip is straight there everywhere).
  double minRadiusAlong = kStraightRadius, minRadiusAcross = kStraightRadius;
  int alongPoint = -1, acrossPoint = -1;
  // Largest rate at which the surface turns about the strip's direction,
  // rad/m, and where.
  double maxTwist = 0;
  int twistPoint = -1;
  // Joints found on a knuckled strip.
  int knuckles = 0;

  double errorPerMetre() const;      // mm per m of length; 0 for a strip of no length
  double areaChangePercent() const;  // (flat - 3-D)/3-D in %; 0 for a strip of no area
};

// Quadrilaterals with a point that is not finite, rungs of no length and
// steps of no length are left out of what they cannot measure; the result
// is finite for every input, all zero for an empty strip.  The across
// radius takes the rungs as straight lines of the surface, as the
// development does.
StripFit measureStrip(const Strip& s);

}  // namespace tolmar::devcheck
