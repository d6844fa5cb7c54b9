// The water's directions in the hull's axes (X forward from the transom, Y
// to starboard, Z up) for a heel and a pitch.  Heel is positive with the
// starboard side (Y > 0) down and runs to 180 degrees (upside down); pitch
// is positive bow down, as the hydrostatics screen counts it, so that at
// no heel the water stands at Z = tan(pitch) X + height.
#pragma once

#include "surface/hull_mesh.h"

namespace tolmar::stability {

struct Frame {
  Vec3 up;      // the upward vertical
  Vec3 along;   // horizontal, in the centre plane: the axis the hull heels about
  Vec3 across;  // horizontal, towards the side that goes down: righting arms point along it
};

// Radians.  (along, across, up) is right-handed and orthonormal; across is
// (0, cos heel, sin heel) whatever the pitch.
Frame frameAt(double heel, double pitch);

}  // namespace tolmar::stability
