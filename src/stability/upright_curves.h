// The classic hydrostatic curves: the hull upright and level at drafts
// from its lowest point up to the sheer (the lowest point of the sheer
// line; the top of a mesh read from a file).  Heights above the lowest
// point, X in the hull's axes, metres; displacement and TPC in tonnes at
// the chosen water density.
#pragma once

#include <string>
#include <vector>

#include "stability/hydro_mesh.h"

namespace tolmar::stability {

struct UprightRow {
  double draft = 0;                           // m above the lowest point
  double volume = 0;                          // m3
  double displacement = 0;                    // t
  double lcb = 0, kb = 0;                     // centre of buoyancy: X, height, m
  double waterplane = 0;                      // m2
  double lcf = 0;                             // X of the waterplane's centre, m
  double bmt = 0, bml = 0, kmt = 0, kml = 0;  // m
  double tpc = 0;                             // tonnes to sink one centimetre
  double mct = 0;  // moment to trim one centimetre, t m (with GMl taken as BMl,
                   // over the waterline's length)
  double cb = 0, cp = 0, cm = 0, cwp = 0;  // block, prismatic, midship, waterplane
  double wetted = 0;                       // m2
};

// Drafts step, 2 step, ... and the sheer itself.  Empty for a step that is
// not positive or would give more than kMaxCurveRows rows.
inline constexpr int kMaxCurveRows = 2000;
std::vector<double> curveDrafts(const HydroMesh& m, double step);

UprightRow uprightAt(const HydroMesh& m, double draft, double density);
std::vector<UprightRow> uprightCurves(const HydroMesh& m, double step, double density);

}  // namespace tolmar::stability
