#include "stability/shown_water.h"

#include <algorithm>
#include <cmath>

#include "stability/float_solver.h"
#include "stability/immersion.h"
#include "stability/vec3_ops.h"

namespace tolmar::stability {

namespace {

constexpr double kDeg = 3.14159265358979323846 / 180;

}  // namespace

std::optional<double> lastWaterHeight(const HullStore& h) {
  if (!std::isfinite(h.pitch) || std::fabs(h.pitch) >= kMaxPitch) return std::nullopt;
  const double slope = std::tan(h.pitch);
  // Each wet section stands at its own X on the one pitched plane.
  double sum = 0;
  int wet = 0;
  for (int i = 0; i <= kLastPoint; ++i) {
    if (!(h.sectArea(i) > 0)) continue;
    const double height = h.wlZ(i) - slope * h.wlX(i);
    if (!std::isfinite(height)) return std::nullopt;
    sum += height;
    ++wet;
  }
  if (wet == 0) return std::nullopt;
  return sum / wet;
}

std::optional<ShownWater> shownWater(const HullStore& h, const HydroMesh& m, double heelDeg) {
  const std::optional<double> height = lastWaterHeight(h);
  if (!height || m.vertices.empty() || !std::isfinite(heelDeg)) return std::nullopt;
  ShownWater w;
  const Frame upright = frameAt(0, h.pitch);
  // The point (0, 0, height) lies on the plane.
  const double level0 = *height * upright.up.z;
  w.volume = immerse(m, upright, level0).volume;
  w.frame = frameAt(heelDeg * kDeg, h.pitch);
  if (heelDeg == 0) {
    w.level = level0;
  } else {
    const std::optional<Afloat> afloat = floatVolume(m, w.frame, w.volume, level0);
    if (!afloat) return std::nullopt;
    w.level = afloat->level;
  }
  // A rectangle well beyond the hull: the box's middle brought down onto
  // the plane, a quarter of the length further each way, and across as
  // far as the hull reaches plus as much again.
  const Vec3 mid = m.middle;
  const Vec3 centre = mid - (dot(w.frame.up, mid) - w.level) * w.frame.up;
  const double length = m.high.x - m.low.x;
  const double reach = std::max({m.high.y - m.low.y, m.high.z - m.low.z, 0.1});
  const double along = 0.75 * length, across = reach + 0.25 * length;
  w.corners = {centre + along * w.frame.along + across * w.frame.across,
               centre - along * w.frame.along + across * w.frame.across,
               centre - along * w.frame.along - across * w.frame.across,
               centre + along * w.frame.along - across * w.frame.across};
  return w;
}

}  // namespace tolmar::stability
