// Whether a triangle mesh bounds a solid that the water can cut: every
// edge shared by exactly two triangles that run along it in opposite
// directions, and a positive volume.  Vertices must already be merged
// (weldedMesh).
#pragma once

#include <string>

#include "surface/hull_mesh.h"

namespace tolmar::stability {

enum class MeshFault {
  none,
  empty,        // no triangle with an area
  notFinite,    // a coordinate is not a number
  open,         // an edge with one triangle only: the surface has a hole
  nonManifold,  // an edge with more than two triangles
  turned,       // two neighbours run along their edge the same way
  inside,       // closed but with no volume
};

struct MeshCheck {
  MeshFault fault = MeshFault::none;
  int edges = 0;  // how many edges show the fault
  bool ok() const { return fault == MeshFault::none; }
  std::string message(int langue) const;  // empty when ok
};

MeshCheck checkClosedMesh(const HullMesh& m);

}  // namespace tolmar::stability
