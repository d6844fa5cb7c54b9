// A closed mesh from an STL file, ASCII or binary, read by the Open Asset
// Import Library: metres, X forward, Y to starboard, Z up.  Vertices at one
// place are merged; a mesh turned inside out is turned outward; an open or
// non-manifold mesh, or a file that is not an STL, is refused with a
// sentence saying why.
#pragma once

#include <filesystem>
#include <string>

#include "surface/hull_mesh.h"

namespace tolmar::stability {

struct StlRead {
  HullMesh mesh;      // empty when refused
  std::string error;  // in the language asked for; empty when read
  bool ok() const { return error.empty(); }
};

StlRead readStlMesh(const std::filesystem::path& file, int langue);
StlRead readStlBytes(const std::string& bytes, int langue);

}  // namespace tolmar::stability
