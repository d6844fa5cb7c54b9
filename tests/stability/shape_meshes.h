// Closed meshes with known hydrostatics, built directly as triangles: a
// box, a V-shaped prism and a Wigley hull (with vertical sides above its
// design waterline up to a flat deck).  Metres, X forward, Z up.
#pragma once

#include <string>

#include "surface/hull_mesh.h"

namespace tolmar::stability::test {

// X 0..length, Y -beam/2..beam/2, Z 0..depth.
HullMesh boxMesh(double length, double beam, double depth);

// The apex (keel) on Z = 0 along X 0..length, the sides rising to half
// breadth halfTop at Z = height.
HullMesh prismMesh(double length, double halfTop, double height);

// y = beam/2 (1 - (2x/length)^2) (1 - (z/draft)^2) for X -length/2..length/2
// and Z -draft..0, vertical sides from Z = 0 up to Z = freeboard, nx and nz
// steps along and down.  Welded: the ends and the keel are single lines.
HullMesh wigleyMesh(double length, double beam, double draft, double freeboard, int nx, int nz);

// The mesh as an STL file, binary or ASCII.
std::string stlBytes(const HullMesh& m, bool binary);

}  // namespace tolmar::stability::test
