#include "stability/hydro_mesh.h"

#include <algorithm>
#include <cmath>

#include "stability/vec3_ops.h"

namespace tolmar::stability {

HydroMesh hydroMeshOf(const HullMesh& m, std::vector<Vec3> deckEdge) {
  HydroMesh h;
  h.vertices = m.vertices;
  h.triangles = m.triangles;
  h.wets.resize(m.triangles.size(), 1);
  for (std::size_t t = 0; t < m.tags.size() && t < h.wets.size(); ++t)
    if (m.tags[t].part == SurfacePart::lid) h.wets[t] = 0;
  h.deckEdge = std::move(deckEdge);
  h.low = m.low();
  h.high = m.high();
  h.middle = 0.5 * (h.low + h.high);
  h.volume = m.volume();
  h.curveTop = h.high.z;
  return h;
}

HydroMesh hullHydroMesh(const HullStore& h) { return hullHydroMesh(h, buildHullMesh(h)); }

HydroMesh hullHydroMesh(const HullStore& h, const HullMesh& mesh) {
  const int top = std::clamp<int>(h.nChines, 1, kMaxLine);
  std::vector<Vec3> sheer;
  double lowest = 0;
  for (int i = 0; i <= kLastPoint; ++i) {
    const double x = h.lineX(top, i), y = std::fabs(h.lineY(top, i)), z = h.lineZ(top, i);
    if (!std::isfinite(x) || !std::isfinite(y) || !std::isfinite(z)) continue;
    lowest = sheer.empty() ? z : std::min(lowest, z);
    sheer.push_back({x, y, z});
    sheer.push_back({x, -y, z});
  }
  HydroMesh m = hydroMeshOf(weldedMesh(mesh), std::move(sheer));
  m.curveTop = m.deckEdge.empty() ? m.high.z : lowest;
  m.fromLines = true;
  return m;
}

HydroMesh fileHydroMesh(const HullMesh& m) {
  const double top = m.high().z;
  std::vector<Vec3> edge;
  for (const Vec3& p : m.vertices)
    if (p.z >= top - 0.001) edge.push_back(p);
  return hydroMeshOf(m, std::move(edge));
}

}  // namespace tolmar::stability
