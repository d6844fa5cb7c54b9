#include "shape_meshes.h"

#include <cstdint>
#include <cstring>
#include <sstream>

namespace tolmar::stability::test {

namespace {

void quad(HullMesh& m, int a, int b, int c, int d) {  // a b c d anticlockwise from outside
  m.triangles.push_back({a, b, c});
  m.triangles.push_back({a, c, d});
  m.tags.push_back({});
  m.tags.push_back({});
}

}  // namespace

HullMesh boxMesh(double length, double beam, double depth) {
  HullMesh m;
  const double h = beam / 2;
  for (int k = 0; k < 8; ++k)
    m.vertices.push_back({k & 1 ? length : 0, k & 2 ? h : -h, k & 4 ? depth : 0});
  quad(m, 0, 2, 3, 1);  // bottom, seen from below
  quad(m, 4, 5, 7, 6);  // top
  quad(m, 0, 1, 5, 4);  // port, Y = -h
  quad(m, 2, 6, 7, 3);  // starboard
  quad(m, 0, 4, 6, 2);  // aft, X = 0
  quad(m, 1, 3, 7, 5);  // forward
  return m;
}

HullMesh prismMesh(double length, double halfTop, double height) {
  HullMesh m;
  for (double x : {0.0, length}) {
    m.vertices.push_back({x, 0, 0});
    m.vertices.push_back({x, halfTop, height});
    m.vertices.push_back({x, -halfTop, height});
  }
  quad(m, 0, 1, 4, 3);               // starboard side
  quad(m, 0, 3, 5, 2);               // port side
  quad(m, 1, 2, 5, 4);               // deck
  m.triangles.push_back({0, 2, 1});  // aft end
  m.triangles.push_back({3, 4, 5});  // forward end
  m.tags.push_back({});
  m.tags.push_back({});
  return m;
}

HullMesh wigleyMesh(double length, double beam, double draft, double freeboard, int nx, int nz) {
  HullMesh m;
  const int ring = 2 * (nz + 2);  // starboard keel..WL, deck edge; port deck edge, WL..keel
  auto half = [&](double x, double z) {
    const double u = 2 * x / length, w = z / draft;
    return beam / 2 * (1 - u * u) * (1 - w * w);
  };
  for (int i = 0; i <= nx; ++i) {
    const double x = -length / 2 + length * i / nx;
    for (int side : {1, -1})
      for (int k = 0; k <= nz + 1; ++k) {
        const int j = side > 0 ? k : nz + 1 - k;
        const double z = j <= nz ? -draft + draft * j / nz : freeboard;
        const double y = half(x, j <= nz ? z : 0.0);
        m.vertices.push_back({x, side * y + 0.0, z});
      }
  }
  for (int i = 0; i < nx; ++i)
    for (int j = 0; j < ring; ++j) {
      const int jn = (j + 1) % ring;
      quad(m, i * ring + j, (i + 1) * ring + j, (i + 1) * ring + jn, i * ring + jn);
    }
  if (m.volume() < 0)
    for (auto& t : m.triangles) std::swap(t[1], t[2]);
  return weldedMesh(m);
}

std::string stlBytes(const HullMesh& m, bool binary) {
  if (!binary) {
    std::ostringstream s;
    s.precision(17);
    s << "solid shape\n";
    for (const auto& t : m.triangles) {
      s << "facet normal 0 0 0\nouter loop\n";
      for (int k : t)
        s << "vertex " << m.vertices[k].x << ' ' << m.vertices[k].y << ' ' << m.vertices[k].z
          << '\n';
      s << "endloop\nendfacet\n";
    }
    s << "endsolid shape\n";
    return s.str();
  }
  std::string b(80, ' ');
  auto put = [&](const void* p, std::size_t n) { b.append(static_cast<const char*>(p), n); };
  const auto n = static_cast<std::uint32_t>(m.triangles.size());
  put(&n, 4);
  for (const auto& t : m.triangles) {
    const float normal[3] = {0, 0, 0};
    put(normal, sizeof normal);
    for (int k : t) {
      const float v[3] = {static_cast<float>(m.vertices[k].x), static_cast<float>(m.vertices[k].y),
                          static_cast<float>(m.vertices[k].z)};
      put(v, sizeof v);
    }
    const std::uint16_t attr = 0;
    put(&attr, 2);
  }
  return b;
}

}  // namespace tolmar::stability::test
