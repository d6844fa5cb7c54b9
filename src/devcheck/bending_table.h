// The smallest radius to which dry plywood of a given thickness bends, in
// the two directions of its face grain: the one table every verdict of the
// development check reads.
#pragma once

namespace tolmar::devcheck {

struct BendLimit {
  double alongGrain = 0;   // m: the curve follows the face grain
  double acrossGrain = 0;  // m: the curve runs across the face grain
};

// Linear between the rows of the table; thinner or thicker plywood than the
// table holds scales from the nearest row in proportion to the thickness
// (a bend strains the faces by thickness / (2 radius)).  A thickness of 0 or
// below, or not finite, needs no radius: {0, 0}.
BendLimit minimumBendRadius(double thicknessMetres);

}  // namespace tolmar::devcheck
