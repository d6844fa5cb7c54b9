// The part of a closed mesh below a water plane, exactly for the mesh:
// every triangle is clipped by the plane, the volume and its centre come
// from tetrahedra with their apex on the plane (so that the plane's own
// face adds nothing), and the waterplane from the cut edges by Green's
// theorem.  Several separate waterplanes (a hull on its side, a
// catamaran) add up.
#pragma once

#include "stability/frame.h"
#include "stability/hydro_mesh.h"

namespace tolmar::stability {

struct Waterplane {
  double area = 0;  // m2
  Vec3 centre;      // centre of its area (the centre of flotation), on the plane
  // Second moments of the area about the axes through its centre: along
  // the hull (transverse stability, BMt = iAlong / V) and across
  // (longitudinal, BMl = iAcross / V), m4.
  double iAlong = 0, iAcross = 0;
  double length = 0, breadth = 0;  // extent along and across, m
};

struct ImmersedBody {
  double volume = 0;  // m3
  Vec3 buoyancy;      // centre of the volume, hull axes
  double wetted = 0;  // m2 of the triangles that wet
  Waterplane plane;
  double depth = 0;      // how far the deepest point lies below the water, m
  double freeboard = 0;  // height of the lowest deck-edge point above the water, m
};

// The water below the plane up . p = level (the frame's up, metres).  A
// point exactly on the plane counts as dry.  An empty body has its
// buoyancy and waterplane centre on the plane below the box's middle.
ImmersedBody immerse(const HydroMesh& m, const Frame& f, double level);

// The lowest and highest level at which the plane touches the mesh.
struct LevelRange {
  double low = 0, high = 0;
};
LevelRange levelRange(const HydroMesh& m, const Vec3& up);

// Upright and level: the largest transverse section below height z among
// `samples` planes X = const spread evenly over (x0, x1), m2 both sides.
double largestSection(const HydroMesh& m, double z, double x0, double x1, int samples);

}  // namespace tolmar::stability
