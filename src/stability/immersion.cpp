#include "stability/immersion.h"

#include <algorithm>
#include <cmath>
#include <limits>
#include <vector>

#include "stability/clip_triangle.h"
#include "stability/vec3_ops.h"

namespace tolmar::stability {

namespace {

// Sums of the waterplane's cut edges, in plane coordinates (u along, v
// across) about the point o on the plane.
struct PlaneSums {
  double a = 0, su = 0, sv = 0, suu = 0, svv = 0;
  double uMin = std::numeric_limits<double>::max(), uMax = -std::numeric_limits<double>::max();
  double vMin = uMin, vMax = uMax;

  void edge(double u1, double v1, double u2, double v2) {
    const double c = u1 * v2 - u2 * v1;
    a += c;
    su += (u1 + u2) * c;
    sv += (v1 + v2) * c;
    suu += (u1 * u1 + u1 * u2 + u2 * u2) * c;
    svv += (v1 * v1 + v1 * v2 + v2 * v2) * c;
    uMin = std::min({uMin, u1, u2});
    uMax = std::max({uMax, u1, u2});
    vMin = std::min({vMin, v1, v2});
    vMax = std::max({vMax, v1, v2});
  }
};

double triangleArea(const Vec3& a, const Vec3& b, const Vec3& c) {
  return 0.5 * norm(cross(b - a, c - a));
}

}  // namespace

LevelRange levelRange(const HydroMesh& m, const Vec3& up) {
  if (m.vertices.empty()) return {};
  LevelRange r{dot(up, m.vertices[0]), dot(up, m.vertices[0])};
  for (const Vec3& p : m.vertices) {
    const double s = dot(up, p);
    r.low = std::min(r.low, s);
    r.high = std::max(r.high, s);
  }
  return r;
}

ImmersedBody immerse(const HydroMesh& m, const Frame& f, double level) {
  ImmersedBody r;
  const Vec3 o = m.middle - (dot(f.up, m.middle) - level) * f.up;  // on the plane
  thread_local std::vector<double> s;
  s.resize(m.vertices.size());
  double lowest = 0;
  for (std::size_t i = 0; i < m.vertices.size(); ++i) {
    s[i] = dot(f.up, m.vertices[i]) - level;
    lowest = std::min(lowest, s[i]);
  }
  r.depth = -lowest;

  double v6 = 0;  // six times the volume
  Vec3 mv;        // 24 times the first moment about o
  PlaneSums w;
  auto tetra = [&](const Vec3& a, const Vec3& b, const Vec3& c) {
    const Vec3 pa = a - o, pb = b - o, pc = c - o;
    const double d = dot(pa, cross(pb, pc));
    v6 += d;
    mv = mv + d * (pa + pb + pc);
  };
  for (std::size_t t = 0; t < m.triangles.size(); ++t) {
    const auto& tr = m.triangles[t];
    const double sa = s[tr[0]], sb = s[tr[1]], sc = s[tr[2]];
    if (sa >= 0 && sb >= 0 && sc >= 0) continue;
    const Vec3 &a = m.vertices[tr[0]], &b = m.vertices[tr[1]], &c = m.vertices[tr[2]];
    if (sa < 0 && sb < 0 && sc < 0) {
      tetra(a, b, c);
      if (m.wets[t]) r.wetted += triangleArea(a, b, c);
      continue;
    }
    const ClippedTriangle k = clipTriangle(a, b, c, sa, sb, sc);
    for (int i = 1; i + 1 < k.n; ++i) {
      tetra(k.p[0], k.p[i], k.p[i + 1]);
      if (m.wets[t]) r.wetted += triangleArea(k.p[0], k.p[i], k.p[i + 1]);
    }
    if (k.cut) {
      const Vec3 e = k.entry - o, x = k.exit - o;
      w.edge(dot(e, f.along), dot(e, f.across), dot(x, f.along), dot(x, f.across));
    }
  }

  r.volume = v6 / 6;
  r.buoyancy = r.volume > 0 ? o + (1.0 / (4 * v6)) * mv : o;
  if (w.a > 0) {
    const double area = w.a / 2;
    const double uc = w.su / (3 * w.a), vc = w.sv / (3 * w.a);
    r.plane.area = area;
    r.plane.centre = o + uc * f.along + vc * f.across;
    r.plane.iAlong = std::max(0.0, w.svv / 12 - area * vc * vc);
    r.plane.iAcross = std::max(0.0, w.suu / 12 - area * uc * uc);
    r.plane.length = w.uMax - w.uMin;
    r.plane.breadth = w.vMax - w.vMin;
  } else {
    r.plane.centre = o;
  }
  if (!m.deckEdge.empty()) {
    r.freeboard = std::numeric_limits<double>::max();
    for (const Vec3& p : m.deckEdge) r.freeboard = std::min(r.freeboard, dot(f.up, p) - level);
  }
  return r;
}

double largestSection(const HydroMesh& m, double z, double x0, double x1, int samples) {
  if (samples <= 0 || !(x1 > x0)) return 0;
  const double dx = (x1 - x0) / (samples + 1);
  std::vector<double> area(static_cast<std::size_t>(samples), 0.0);
  for (const auto& tr : m.triangles) {
    const Vec3 &a = m.vertices[tr[0]], &b = m.vertices[tr[1]], &c = m.vertices[tr[2]];
    if (a.z >= z && b.z >= z && c.z >= z) continue;
    const double lo = std::min({a.x, b.x, c.x}), hi = std::max({a.x, b.x, c.x});
    const int first =
        static_cast<int>(std::clamp(std::ceil((lo - x0) / dx) - 1, 0.0, 1.0 * samples));
    const int last =
        static_cast<int>(std::clamp(std::floor((hi - x0) / dx) - 1, -1.0, samples - 1.0));
    for (int k = first; k <= last; ++k) {
      const double xs = x0 + (k + 1) * dx;
      const ClippedTriangle aft = clipTriangle(a, b, c, a.x - xs, b.x - xs, c.x - xs);
      if (!aft.cut) continue;
      // The section runs from entry to exit; only its part below z counts,
      // and the water line itself adds nothing to -(z' dy).
      Vec3 p = aft.entry, q = aft.exit;
      const double zp = p.z - z, zq = q.z - z;
      if (zp >= 0 && zq >= 0) continue;
      if (zp >= 0 || zq >= 0) {
        const double t = zp / (zp - zq);
        const Vec3 w = {p.x + t * (q.x - p.x), p.y + t * (q.y - p.y), z};
        (zp >= 0 ? p : q) = w;
      }
      area[static_cast<std::size_t>(k)] -= 0.5 * ((p.z - z) + (q.z - z)) * (q.y - p.y);
    }
  }
  return std::max(0.0, *std::max_element(area.begin(), area.end()));
}

}  // namespace tolmar::stability
