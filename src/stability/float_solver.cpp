#include "stability/float_solver.h"

#include <algorithm>
#include <cmath>
#include <limits>

#include "stability/vec3_ops.h"

namespace tolmar::stability {

std::optional<Afloat> floatVolume(const HydroMesh& m, const Frame& f, double volume, double guess) {
  if (!(volume > 0) || !(volume < m.volume) || m.vertices.empty()) return std::nullopt;
  const LevelRange range = levelRange(m, f.up);
  double lo = range.low, hi = range.high;
  const double tol = 1e-11 * m.volume;
  const double span = hi - lo;
  double x = std::isfinite(guess) && guess > lo && guess < hi ? guess : lo + 0.5 * span;
  Afloat best{x, {}};
  double bestMiss = std::numeric_limits<double>::max();
  for (int iter = 0; iter < 100; ++iter) {
    const ImmersedBody b = immerse(m, f, x);
    const double miss = b.volume - volume;
    if (std::fabs(miss) < bestMiss) {
      bestMiss = std::fabs(miss);
      best = {x, b};
    }
    if (std::fabs(miss) <= tol) break;
    (miss < 0 ? lo : hi) = x;
    if (hi - lo <= 1e-12 * span) break;
    // Newton on dV/dlevel = waterplane area, kept inside the bracket.
    double next = b.plane.area > 0 ? x - miss / b.plane.area : 0.5 * (lo + hi);
    if (!(next > lo && next < hi)) next = 0.5 * (lo + hi);
    x = next;
  }
  return best;
}

namespace {

// The level that turns the plane about the last waterplane's centre, so
// that the volume stays nearly as it was.
double levelThrough(const Frame& f, const Vec3& p) { return dot(f.up, p); }

}  // namespace

Balance balanceAt(const HydroMesh& m, double heel, double volume, const Vec3& g, double pitchGuess,
                  double levelGuess) {
  Balance best;
  best.heel = heel;
  double lo = -kMaxPitch, hi = kMaxPitch;
  bool haveLo = false, haveHi = false;
  double pitch = std::isfinite(pitchGuess) ? std::clamp(pitchGuess, lo, hi) : 0.0;
  double level = levelGuess;
  Vec3 pivot;
  bool havePivot = false;
  double bestMiss = std::numeric_limits<double>::max();
  const double tol = 1e-9 * std::max(1.0, m.high.x - m.low.x);
  for (int iter = 0; iter < 60; ++iter) {
    const Frame f = frameAt(heel, pitch);
    if (havePivot) level = levelThrough(f, pivot);
    const auto a = floatVolume(m, f, volume, level);
    if (!a) return best;
    const Vec3 bg = a->body.buoyancy - g;
    const double miss = dot(bg, f.along);
    if (std::fabs(miss) < bestMiss) {
      bestMiss = std::fabs(miss);
      best.pitch = pitch;
      best.level = a->level;
      best.frame = f;
      best.body = a->body;
      best.gz = dot(bg, f.across);
    }
    if (std::fabs(miss) <= tol) {
      best.trim = Trim::found;
      return best;
    }
    // B moves forward as the bow goes down: miss grows with the pitch.
    if (miss < 0) {
      lo = pitch;
      haveLo = true;
    } else {
      hi = pitch;
      haveHi = true;
    }
    if (hi - lo < 1e-12) break;
    pivot = a->body.plane.area > 0 ? a->body.plane.centre : a->body.buoyancy;
    havePivot = true;
    // Newton with the longitudinal metacentric height as the slope.
    const double slope = a->body.plane.iAcross / volume + dot(bg, f.up);
    double next = slope > 0 ? pitch - miss / slope : 0.5 * (lo + hi);
    if (!(next > lo && next < hi)) next = 0.5 * (lo + hi);
    pitch = next;
  }
  // The bracket closed without a root: the trim needed lies beyond the
  // limits (or the balance is unstable in pitch at this heel).
  if (haveLo && haveHi && bestMiss <= 1e3 * tol) best.trim = Trim::found;
  return best;
}

}  // namespace tolmar::stability
