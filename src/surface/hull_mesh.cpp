#include "surface/hull_mesh.h"

#include <algorithm>
#include <cmath>
#include <map>
#include <tuple>

namespace tolmar {

namespace {

Vec3 sub(const Vec3& a, const Vec3& b) { return {a.x - b.x, a.y - b.y, a.z - b.z}; }
Vec3 cross(const Vec3& a, const Vec3& b) {
  return {a.y * b.z - a.z * b.y, a.z * b.x - a.x * b.z, a.x * b.y - a.y * b.x};
}
double dot(const Vec3& a, const Vec3& b) { return a.x * b.x + a.y * b.y + a.z * b.z; }

double finite(double v) { return std::isfinite(v) ? v : 0.0; }

}  // namespace

double HullMesh::volume() const {
  double v = 0;
  for (const auto& t : triangles) v += dot(vertices[t[0]], cross(vertices[t[1]], vertices[t[2]]));
  return v / 6;
}

Vec3 HullMesh::volumeCentre() const {
  double v = 0;
  Vec3 m;
  for (const auto& t : triangles) {
    const Vec3 &a = vertices[t[0]], &b = vertices[t[1]], &c = vertices[t[2]];
    const double d = dot(a, cross(b, c)) / 6;  // signed tetrahedron with the origin
    v += d;
    m.x += d * (a.x + b.x + c.x) / 4;
    m.y += d * (a.y + b.y + c.y) / 4;
    m.z += d * (a.z + b.z + c.z) / 4;
  }
  if (v == 0) return {};
  return {m.x / v, m.y / v, m.z / v};
}

double HullMesh::surfaceArea() const {
  double a = 0;
  for (const auto& t : triangles) {
    const Vec3 n = cross(sub(vertices[t[1]], vertices[t[0]]), sub(vertices[t[2]], vertices[t[0]]));
    a += std::sqrt(dot(n, n)) / 2;
  }
  return a;
}

Vec3 HullMesh::low() const {
  if (vertices.empty()) return {};
  Vec3 l = vertices[0];
  for (const Vec3& p : vertices) l = {std::min(l.x, p.x), std::min(l.y, p.y), std::min(l.z, p.z)};
  return l;
}

Vec3 HullMesh::high() const {
  if (vertices.empty()) return {};
  Vec3 u = vertices[0];
  for (const Vec3& p : vertices) u = {std::max(u.x, p.x), std::max(u.y, p.y), std::max(u.z, p.z)};
  return u;
}

HullMesh buildHullMesh(const HullStore& h, MeshSpan span) {
  HullMesh m;
  const int first = std::clamp(span.first, 0, kLastPoint - 1);
  const int last = std::clamp(span.last, first + 1, kLastPoint);
  const int top = std::clamp<int>(h.nChines, 1, kMaxLine);
  const int ring = 2 * (top + 1);  // starboard 0..top, port top..0
  auto vid = [&](int i, int j) { return (i - first) * ring + j; };
  auto lineOf = [&](int j) { return j <= top ? j : ring - 1 - j; };

  m.vertices.reserve(static_cast<std::size_t>((last - first + 1) * ring));
  for (int i = first; i <= last; ++i)
    for (int j = 0; j < ring; ++j) {
      const int k = lineOf(j);
      const double y = std::fabs(finite(h.lineY(k, i)));
      m.vertices.push_back({finite(h.lineX(k, i)), j <= top ? y : -y, finite(h.lineZ(k, i))});
    }

  // The part of the ring edge from j to j + 1.
  auto edgeTag = [&](int j) {
    if (j == top) return MeshTag{SurfacePart::lid, 0, 0};
    if (j == ring - 1) return MeshTag{SurfacePart::bottom, 0, 0};
    const bool starboard = j < top;
    const int k = starboard ? j : lineOf(j + 1);  // lower line of the strip
    const auto side = static_cast<std::int8_t>(starboard ? 1 : -1);
    if (k == 0) return MeshTag{SurfacePart::bottom, 0, side};
    return MeshTag{SurfacePart::plank, static_cast<std::int16_t>(k), side};
  };
  auto tri = [&](int a, int b, int c, MeshTag t) {
    m.triangles.push_back({a, b, c});
    m.tags.push_back(t);
  };

  // Quads between rings; the port side takes the mirror image of the
  // starboard diagonal, so that the mesh is symmetric.
  for (int i = first; i < last; ++i)
    for (int j = 0; j < ring; ++j) {
      const int jn = (j + 1) % ring;
      const MeshTag t = edgeTag(j);
      const int a = vid(i, j), b = vid(i + 1, j), c = vid(i + 1, jn), d = vid(i, jn);
      if (j < top) {
        tri(a, b, c, t);
        tri(a, c, d, t);
      } else {
        tri(a, b, d, t);
        tri(b, c, d, t);
      }
    }

  // End caps, as strips across from starboard line k to port line k.
  auto cap = [&](int i, SurfacePart part, bool reverse) {
    for (int k = 0; k < top; ++k) {
      const int a = vid(i, k), b = vid(i, k + 1), c = vid(i, ring - 2 - k),
                d = vid(i, ring - 1 - k);
      if (reverse) {
        tri(a, c, b, {part, 0, 0});
        tri(a, d, c, {part, 0, 0});
      } else {
        tri(a, b, c, {part, 0, 0});
        tri(a, c, d, {part, 0, 0});
      }
    }
  };
  cap(first, SurfacePart::transom, false);
  cap(last, SurfacePart::pramBow, true);

  if (m.volume() < 0)
    for (auto& t : m.triangles) std::swap(t[1], t[2]);
  return m;
}

HullMesh weldedMesh(const HullMesh& m) {
  HullMesh w;
  std::map<std::tuple<double, double, double>, int> at;
  std::vector<int> to(m.vertices.size());
  for (std::size_t v = 0; v < m.vertices.size(); ++v) {
    const Vec3& p = m.vertices[v];
    // -0 and 0 are one place.
    const auto key = std::make_tuple(p.x + 0.0, p.y + 0.0, p.z + 0.0);
    auto [it, fresh] = at.try_emplace(key, static_cast<int>(w.vertices.size()));
    if (fresh) w.vertices.push_back(p);
    to[v] = it->second;
  }
  for (std::size_t t = 0; t < m.triangles.size(); ++t) {
    const auto& tr = m.triangles[t];
    const int a = to[tr[0]], b = to[tr[1]], c = to[tr[2]];
    if (a == b || b == c || a == c) continue;
    w.triangles.push_back({a, b, c});
    w.tags.push_back(m.tags[t]);
  }
  return w;
}

}  // namespace tolmar
