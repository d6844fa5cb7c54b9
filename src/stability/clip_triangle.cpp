#include "stability/clip_triangle.h"

namespace tolmar::stability {

namespace {

Vec3 between(const Vec3& a, const Vec3& b, double sa, double sb) {
  const double t = sa / (sa - sb);  // sa and sb have opposite signs: 0 <= t <= 1
  return {a.x + t * (b.x - a.x), a.y + t * (b.y - a.y), a.z + t * (b.z - a.z)};
}

}  // namespace

ClippedTriangle clipTriangle(const Vec3& a, const Vec3& b, const Vec3& c, double sa, double sb,
                             double sc) {
  ClippedTriangle r;
  const std::array<const Vec3*, 3> v = {&a, &b, &c};
  const std::array<double, 3> s = {sa, sb, sc};
  for (int i = 0; i < 3; ++i) {
    const int j = (i + 1) % 3;
    const bool in = s[i] < 0, nextIn = s[j] < 0;
    if (in) r.p[r.n++] = *v[i];
    if (in && !nextIn) {
      r.exit = between(*v[i], *v[j], s[i], s[j]);
      r.p[r.n++] = r.exit;
      r.cut = true;
    } else if (!in && nextIn) {
      r.entry = between(*v[i], *v[j], s[i], s[j]);
      r.p[r.n++] = r.entry;
    }
  }
  if (r.n < 3) r.n = 0;
  return r;
}

}  // namespace tolmar::stability
