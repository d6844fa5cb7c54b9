// The closed hull surface as files for 3-D printers, renderers and other
// modellers: binary STL (triangles only) and OBJ (one group per plate, the
// keel, chines and sheer as polylines).  Both take the welded mesh, so
// that every edge is shared by exactly two facets.
#pragma once

#include <string>

#include "hull/hull_store.h"
#include "io/safe_write.h"
#include "surface/hull_mesh.h"

namespace tolmar {

// Units of a written model: metres or millimetres, and a scale model 1:N
// (every length divided by N).
struct MeshUnits {
  bool millimetres = false;
  double scaleDenominator = 1;  // N of 1:N, above 0
  // Metres of the hull to units of the file.
  double factor() const { return (millimetres ? 1000.0 : 1.0) / scaleDenominator; }
};

// "1:N", "1/N" or "N" with N a finite number above 0; false otherwise.
bool parseScale(const std::string& text, double& denominator);

// The name of a plate's group in OBJ: bottom, p01.., transom, bow, lid.
std::string plateGroupName(const MeshTag& tag);

// Binary STL: 80-byte header, facet count, then per facet its unit normal,
// three corners and a zero attribute, all little-endian.
std::string stlBytes(const HullMesh& m, const MeshUnits& u);

// OBJ text: the mesh's vertices, its facets grouped by plate (port and
// starboard together), then lines 0..nChines of both sides as `l`
// polylines in groups keel, chine01.., sheer.
std::string objText(const HullStore& h, const HullMesh& m, const MeshUnits& u);

enum class MeshFormat { stl, obj };

// The welded hull mesh written to `path` through the safe writer.  The
// hull must have current lines and be free of folds (the caller checks).
io::WriteResult writeHullModel(const HullStore& h, MeshFormat f, const MeshUnits& u,
                               const std::string& path);

}  // namespace tolmar
