// The water the 3-D view shows: the plane of the hydrostatics' last result
// that the store keeps (its waterline and pitch), and the same water with
// the hull heeled: the level at which the hull displaces the same volume
// at the same pitch.
#pragma once

#include <array>
#include <optional>

#include "hull/hull_store.h"
#include "stability/frame.h"
#include "stability/hydro_mesh.h"

namespace tolmar::stability {

// The height at X = 0 of the store's last waterline Z = tan(pitch) X +
// height; none while the store holds no hydrostatic result (no section
// under water) or a value that is not finite.
std::optional<double> lastWaterHeight(const HullStore& h);

struct ShownWater {
  Frame frame;        // the water's directions in the hull's axes
  double level = 0;   // the plane: frame.up . p = level
  double volume = 0;  // m3 of the mesh under it
  // The plane's rectangle about the hull, corners in turn, hull axes.
  std::array<Vec3, 4> corners;
};

// At heelDeg degrees (positive with the starboard side down): upright the
// store's plane itself, heeled the plane of the same volume under the
// mesh.  None without a hydrostatic result, or when the hull would not
// float heeled (that volume above the mesh's own).
std::optional<ShownWater> shownWater(const HullStore& h, const HydroMesh& m, double heelDeg);

}  // namespace tolmar::stability
