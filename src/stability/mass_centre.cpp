#include "stability/mass_centre.h"

#include <algorithm>
#include <cmath>

#include "analysis/mass_budget.h"
#include "stability/vec3_ops.h"

namespace tolmar::stability {

namespace {

struct AreaSum {
  double a = 0, az = 0;
  void add(double area, double z) {
    if (!(area > 0) || !std::isfinite(z)) return;
    a += area;
    az += area * z;
  }
  double z(double fallback) const { return a > 0 ? az / a : fallback; }
};

// Centre height of the triangles tagged as `part` (and plank index).
double tagHeight(const HullMesh& m, SurfacePart part, int index, double fallback) {
  AreaSum s;
  for (std::size_t t = 0; t < m.triangles.size() && t < m.tags.size(); ++t) {
    const MeshTag& tag = m.tags[t];
    if (tag.part != part || (part == SurfacePart::plank && tag.index != index)) continue;
    const Vec3 &a = m.vertices[m.triangles[t][0]], &b = m.vertices[m.triangles[t][1]],
               &c = m.vertices[m.triangles[t][2]];
    s.add(0.5 * norm(cross(b - a, c - a)), (a.z + b.z + c.z) / 3);
  }
  return s.z(fallback);
}

// Mean height of line L weighted by the plan area of its strips, as the
// floors and decks measure their area.
double lineHeight(const HullStore& h, int line) {
  AreaSum s;
  for (int i = 1; i <= kLastPoint; ++i)
    s.add((h.lineX(line, i) - h.lineX(line, i - 1)) * (h.lineY(line, i) + h.lineY(line, i - 1)),
          (h.lineZ(line, i) + h.lineZ(line, i - 1)) / 2);
  return s.z(h.lineZ(line, kLastPoint / 2));
}

// Centre height of the section at point P, over the strips the mass
// budget measures.
double sectionHeight(const HullStore& h, int p) {
  AreaSum s;
  for (int k = 1; k <= h.nChines; ++k) {
    const double y0 = h.lineY(k - 1, p), y1 = h.lineY(k, p);
    const double z0 = h.lineZ(k - 1, p), z1 = h.lineZ(k, p);
    const double sum = y0 + y1;
    s.add(sum * std::hypot(z1 - z0, y1 - y0),
          sum > 0 ? z0 + (z1 - z0) * (y0 + 2 * y1) / (3 * sum) : (z0 + z1) / 2);
  }
  return s.z(h.lineZ(0, p));
}

}  // namespace

double keelZAt(const HullStore& h, double x) {
  if (!(x > h.lineX(0, 0))) return h.lineZ(0, 0);
  for (int i = 1; i <= kLastPoint; ++i) {
    const double x0 = h.lineX(0, i - 1), x1 = h.lineX(0, i);
    if (x <= x1) {
      const double t = x1 > x0 ? (x - x0) / (x1 - x0) : 0;
      return h.lineZ(0, i - 1) + t * (h.lineZ(0, i) - h.lineZ(0, i - 1));
    }
  }
  return h.lineZ(0, kLastPoint);
}

MassCentre massCentre(const HullStore& h, const HullMesh& mesh,
                      const std::array<double, kEquipmentRows>& equipZ) {
  MassCentre c;
  const int top = std::clamp<int>(h.nChines, 1, kMaxLine);
  const double keel = h.lineZ(0, kLastPoint / 2);
  auto add = [&](int row, int plank, double mass, double x, double z) {
    if (mass == 0 || !std::isfinite(mass) || !std::isfinite(x) || !std::isfinite(z)) return;
    c.items.push_back({row, plank, mass, x, z});
  };
  for (int n = 0; n < top; ++n)
    add(std::min(n + 1, 4), n, h.plankMass(n), h.plankX(n),
        n == 0 ? tagHeight(mesh, SurfacePart::bottom, 0, keel)
               : tagHeight(mesh, SurfacePart::plank, n, lineHeight(h, n)));
  add(5, -1, h.transomMass, h.transomX, tagHeight(mesh, SurfacePart::transom, 0, keel));
  add(6, -1, h.bowMass, h.bowX, tagHeight(mesh, SurfacePart::pramBow, 0, keel));
  for (int j = 1; j <= 2; ++j)
    add(6 + j, -1, h.bulkMass(j), h.bulkX(j), sectionHeight(h, bulkheadPoint(h, h.bulkX(j))));
  // The rows alive for this number of chines, as the mass budget sets them.
  const int floors = top >= 3 ? 2 : 1, decks = top >= 4 ? 2 : 1;
  for (int k = 1; k <= floors; ++k) add(20 + k, -1, h.floorMass(k), h.floorX(k), lineHeight(h, k));
  for (int k = 1; k <= decks; ++k) {
    const int line = top + 1 - k;
    add(22 + k, -1, h.deckMass(k), h.deckX(k),
        k == 1 ? tagHeight(mesh, SurfacePart::lid, 0, lineHeight(h, line)) : lineHeight(h, line));
  }
  for (int j = 1; j <= kEquipmentRows; ++j) {
    const double z = equipZ[j - 1];
    add(12 + j, -1, h.equipMass(j), h.equipX(j), std::isfinite(z) ? z : keelZAt(h, h.equipX(j)));
  }
  double mx = 0, mz = 0;
  for (const MassItem& i : c.items) {
    c.mass += i.mass;
    mx += i.mass * i.x;
    mz += i.mass * i.z;
  }
  if (c.mass != 0) {
    c.x = mx / c.mass;
    c.z = mz / c.mass;
  }
  return c;
}

}  // namespace tolmar::stability
