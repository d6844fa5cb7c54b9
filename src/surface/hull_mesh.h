// The hull below the sheer line as a closed triangle mesh, metres, both
// sides: the bottom and every plank, the transom, the pram bow panel (or
// the stem where the lines meet), closed across the sheer by a flat lid.
// Triangles turn anticlockwise seen from outside, so that normals point
// out and the divergence theorem gives a positive volume.  Each triangle
// carries the plate it belongs to.
#pragma once

#include <array>
#include <cstdint>
#include <vector>

#include "hull/hull_store.h"

namespace tolmar {

struct Vec3 {
  double x = 0, y = 0, z = 0;
  bool operator==(const Vec3&) const = default;
};

enum class SurfacePart : std::uint8_t { bottom, plank, transom, pramBow, lid };

struct MeshTag {
  SurfacePart part = SurfacePart::bottom;
  // Plank k (1..nChines-1) between lines k and k+1; 0 otherwise.
  std::int16_t index = 0;
  // +1 starboard (Y > 0), -1 port, 0 across the centre plane (keel strip,
  // lid, transom, pram bow).
  std::int8_t side = 0;
  bool operator==(const MeshTag&) const = default;
};

struct HullMesh {
  std::vector<Vec3> vertices;
  std::vector<std::array<int, 3>> triangles;
  std::vector<MeshTag> tags;  // one for each triangle

  // By the divergence theorem, m3; and the centre of that volume.
  double volume() const;
  Vec3 volumeCentre() const;
  double surfaceArea() const;
  // Lowest and highest corners of the bounding box.
  Vec3 low() const;
  Vec3 high() const;
};

// The mesh as the lines give it: one ring of vertices for each of the 83
// points (starboard lines 0..nChines, then port lines nChines..0), joined
// ring to ring and capped at both ends.  Points where port and starboard
// meet (the keel on the centre plane, a pointed stem) are separate
// vertices at one place, so the mesh is closed and every edge has exactly
// two triangles, some of zero area.  Needs current lines (a validated hull
// with at least the first chine).
//
// The span limits the mesh to points first..last of the lines (0..82 the
// whole hull).  Points 1 and 81 lie on the planes X = 0 and X = xFwd(0) on
// every line, where the hydrostatics' sections begin and end: the span
// 1..81 is the body that the section integration counts, without the
// overhang of a raked transom and stem.
struct MeshSpan {
  int first = 0, last = kLastPoint;
};
HullMesh buildHullMesh(const HullStore& h, MeshSpan span = {});

// The same mesh with vertices at one place merged and the triangles that
// this collapses removed: what a 3-D printer or a viewer wants.  Still
// closed, with every edge shared by two triangles.
HullMesh weldedMesh(const HullMesh& m);

}  // namespace tolmar
