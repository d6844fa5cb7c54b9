#include "stability/mesh_check.h"

#include <algorithm>
#include <cmath>
#include <unordered_map>

namespace tolmar::stability {

namespace {

std::uint64_t edgeKey(int a, int b) {
  return (static_cast<std::uint64_t>(static_cast<std::uint32_t>(a)) << 32) |
         static_cast<std::uint32_t>(b);
}

}  // namespace

MeshCheck checkClosedMesh(const HullMesh& m) {
  MeshCheck r;
  for (const Vec3& p : m.vertices)
    if (!std::isfinite(p.x) || !std::isfinite(p.y) || !std::isfinite(p.z)) {
      r.fault = MeshFault::notFinite;
      return r;
    }
  if (m.triangles.empty()) {
    r.fault = MeshFault::empty;
    return r;
  }
  // Directed edges: a closed, consistently turned surface has each one
  // once, and its reverse once.
  std::unordered_map<std::uint64_t, int> directed;
  directed.reserve(m.triangles.size() * 3);
  for (const auto& t : m.triangles)
    for (int i = 0; i < 3; ++i) ++directed[edgeKey(t[i], t[(i + 1) % 3])];
  int open = 0, crowded = 0, turned = 0;
  for (const auto& [key, n] : directed) {
    const int a = static_cast<int>(key >> 32), b = static_cast<int>(key & 0xffffffffu);
    const auto back = directed.find(edgeKey(b, a));
    const int reverse = back == directed.end() ? 0 : back->second;
    if (n + reverse > 2) {
      if (reverse == 0 || a < b) ++crowded;
    } else if (n == 2) {
      ++turned;
    } else if (reverse == 0) {
      ++open;
    }
  }
  if (crowded > 0) {
    r.fault = MeshFault::nonManifold;
    r.edges = crowded;
  } else if (open > 0) {
    r.fault = MeshFault::open;
    r.edges = open;
  } else if (turned > 0) {
    r.fault = MeshFault::turned;
    r.edges = turned;
  } else if (!(std::fabs(m.volume()) > 0)) {
    r.fault = MeshFault::inside;
  }
  return r;
}

std::string MeshCheck::message(int langue) const {
  const bool fr = langue == 0;
  const std::string n = std::to_string(edges);
  switch (fault) {
    case MeshFault::none:
      return {};
    case MeshFault::empty:
      return fr ? "Le maillage n'a aucun triangle." : "The mesh has no triangle.";
    case MeshFault::notFinite:
      return fr ? "Le maillage contient des coordonnées qui ne sont pas des nombres."
                : "The mesh holds coordinates that are not numbers.";
    case MeshFault::open:
      return fr ? "Le maillage est ouvert : " + n +
                      " arêtes n'ont qu'un triangle. Il faut une surface fermée."
                : "The mesh is open: " + n +
                      " edges have one triangle only. A closed surface is needed.";
    case MeshFault::nonManifold:
      return fr ? "Le maillage n'est pas une variété : " + n + " arêtes ont plus de deux triangles."
                : "The mesh is not manifold: " + n + " edges have more than two triangles.";
    case MeshFault::turned:
      return fr ? "Les triangles du maillage ne tournent pas tous dans le même sens (" + n +
                      " arêtes)."
                : "The triangles of the mesh do not all turn the same way (" + n + " edges).";
    case MeshFault::inside:
      return fr ? "Le maillage fermé n'enferme aucun volume."
                : "The closed mesh encloses no volume.";
  }
  return {};
}

}  // namespace tolmar::stability
