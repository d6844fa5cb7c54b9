// A closed mesh made ready for the water to cut it again and again: its
// triangles, which of them wet (not the lid across the sheer, which only
// closes the hull), the points of the deck edge whose immersion is
// watched, and its extent.  From the hull's lines or from any closed mesh.
#pragma once

#include <array>
#include <string>
#include <vector>

#include "hull/hull_store.h"
#include "surface/hull_mesh.h"

namespace tolmar::stability {

struct HydroMesh {
  std::vector<Vec3> vertices;
  std::vector<std::array<int, 3>> triangles;
  std::vector<unsigned char> wets;  // per triangle: 1 counts in the wetted surface
  std::vector<Vec3> deckEdge;       // the sheer line, both sides
  Vec3 low, high;                   // bounding box
  Vec3 middle;                      // centre of the bounding box
  double volume = 0;                // of the whole closed body, m3
  // Upright curves stop here: the lowest point of the sheer for a hull,
  // the top of a mesh read from a file.
  double curveTop = 0;
  bool fromLines = false;  // built from the hull's lines (else read from a file)
};

// A closed, outward mesh; deckEdge as given.  Triangles tagged as lid do
// not wet.
HydroMesh hydroMeshOf(const HullMesh& m, std::vector<Vec3> deckEdge);

// The whole hull of the store, overhangs of transom and stem included: the
// sheer line (points 0..82, both sides) is its deck edge.
HydroMesh hullHydroMesh(const HullStore& h);
// The same from the hull's mesh as buildHullMesh gives it.
HydroMesh hullHydroMesh(const HullStore& h, const HullMesh& mesh);

// A mesh read from a file has no sheer line: its deck edge is every point
// within a millimetre of its top.
HydroMesh fileHydroMesh(const HullMesh& m);

}  // namespace tolmar::stability
