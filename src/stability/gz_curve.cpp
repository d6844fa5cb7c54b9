#include "stability/gz_curve.h"

#include <algorithm>
#include <cmath>
#include <functional>
#include <limits>
#include <numbers>

#include "stability/vec3_ops.h"

namespace tolmar::stability {

namespace {

constexpr double kNaN = std::numeric_limits<double>::quiet_NaN();
constexpr double kAngleTolerance = 1e-4;  // degrees, where refined angles stop
constexpr double kZeroArm = 1e-9;         // m: closer to 0 than this, an arm is 0

double radians(double deg) { return deg * std::numbers::pi / 180; }
double degrees(double rad) { return rad * 180 / std::numbers::pi; }

GzPoint pointOf(const Balance& b, const Loading& load, double heelDeg) {
  GzPoint p;
  p.heel = heelDeg;
  p.floats = b.trim == Trim::found;
  if (!p.floats) return p;
  p.gz = b.gz;
  p.moment = b.gz * load.massKg();
  p.pitch = degrees(b.pitch);
  p.draft = b.body.depth;
  p.freeboard = b.body.freeboard;
  return p;
}

// The pitch of the nearest floating point of the curve, as a start.
double pitchNear(const std::vector<GzPoint>& curve, double heelDeg) {
  double best = kNaN, gap = std::numeric_limits<double>::max();
  for (const GzPoint& p : curve)
    if (p.floats && std::fabs(p.heel - heelDeg) < gap) {
      gap = std::fabs(p.heel - heelDeg);
      best = radians(p.pitch);
    }
  return best;
}

// A root of f between a and b, where f(a) and f(b) differ in sign, by
// regula falsi with the Illinois correction.  f gives NaN where it has no
// value; the search then stops at the bracket's middle.
double rootBetween(const std::function<double(double)>& f, double a, double fa, double b, double fb,
                   double zero) {
  if (std::fabs(fa) <= zero) return a;
  if (std::fabs(fb) <= zero) return b;
  for (int i = 0; i < 60 && std::fabs(b - a) > kAngleTolerance; ++i) {
    double c = b - fb * (b - a) / (fb - fa);
    if (!(c > std::min(a, b) && c < std::max(a, b))) c = 0.5 * (a + b);
    const double fc = f(c);
    if (!std::isfinite(fc)) return 0.5 * (a + b);
    if (std::fabs(fc) <= zero) return c;
    if ((fc < 0) != (fb < 0)) {
      a = b;
      fa = fb;
    } else {
      fa *= 0.5;
    }
    b = c;
    fb = fc;
  }
  return b;
}

}  // namespace

std::vector<double> heelAngles(double from, double to, double step) {
  std::vector<double> a;
  if (!(step > 0) || !std::isfinite(from) || !std::isfinite(to) || to < from) return a;
  if ((to - from) / step > 3600) return a;
  for (int k = 0;; ++k) {
    const double v = from + k * step;
    if (v > to - 1e-9 * step) break;
    a.push_back(v);
  }
  a.push_back(to);
  return a;
}

std::vector<GzPoint> gzCurve(const HydroMesh& m, const Loading& load,
                             const std::vector<double>& anglesDeg) {
  std::vector<GzPoint> curve;
  curve.reserve(anglesDeg.size());
  double pitch = 0, level = kNaN;
  for (double deg : anglesDeg) {
    const Balance b = balanceAt(m, radians(deg), load.volume, load.g, pitch, level);
    curve.push_back(pointOf(b, load, deg));
    if (b.trim == Trim::found) {
      pitch = b.pitch;
      level = b.level;
    }
  }
  return curve;
}

namespace {

// A balance between the curve's own points, started from the nearest.
struct Refiner {
  const HydroMesh& m;
  const Loading& load;
  const std::vector<GzPoint>& curve;

  Balance at(double heelDeg, const Vec3& g) const {
    return balanceAt(m, radians(heelDeg), load.volume, g, pitchNear(curve, heelDeg), kNaN);
  }
  double gz(double heelDeg, const Vec3& g) const {
    const Balance b = at(heelDeg, g);
    return b.trim == Trim::found ? b.gz : kNaN;
  }
  double freeboard(double heelDeg) const {
    const Balance b = at(heelDeg, load.g);
    return b.trim == Trim::found ? b.body.freeboard : kNaN;
  }
};

std::optional<double> areaTo(const Refiner& r, double toDeg) {
  // Simpson's rule on 2.5 degree steps, the curve's own points reused.
  constexpr double kStep = 2.5;
  const int n = static_cast<int>(std::lround(toDeg / kStep));
  double sum = 0;
  for (int k = 0; k <= n; ++k) {
    const double deg = k * kStep;
    double gz = kNaN;
    for (const GzPoint& p : r.curve)
      if (p.floats && std::fabs(p.heel - deg) < 1e-9) gz = p.gz;
    if (!std::isfinite(gz)) gz = r.gz(deg, r.load.g);
    if (!std::isfinite(gz)) return std::nullopt;
    sum += gz * (k == 0 || k == n ? 1 : (k % 2 ? 4 : 2));
  }
  return sum * radians(kStep) / 3;
}

}  // namespace

StabilitySummary summarize(const HydroMesh& m, const Loading& load,
                           const std::vector<GzPoint>& curve) {
  StabilitySummary s;
  const Refiner r{m, load, curve};

  const Balance upright = r.at(0, load.g);
  if (upright.trim == Trim::found && load.volume > 0)
    s.gm = upright.body.plane.iAlong / load.volume +
           dot(upright.body.buoyancy - load.g, upright.frame.up);

  // The largest arm: the best point, then a golden-section search between
  // its neighbours on the curve, solved at every angle it tries.
  int best = -1;
  for (int i = 0; i < static_cast<int>(curve.size()); ++i)
    if (curve[i].floats && (best < 0 || curve[i].gz > curve[best].gz)) best = i;
  if (best >= 0) {
    s.maxGz = curve[best].gz;
    s.maxGzHeel = curve[best].heel;
    const int n = static_cast<int>(curve.size());
    double a = curve[std::max(best - 1, 0)].heel, b = curve[std::min(best + 1, n - 1)].heel;
    const double k = (std::sqrt(5.0) - 1) / 2;
    double c = b - k * (b - a), d = a + k * (b - a);
    double fc = r.gz(c, load.g), fd = r.gz(d, load.g);
    for (int it = 0; it < 30 && b - a > kAngleTolerance && std::isfinite(fc) && std::isfinite(fd);
         ++it) {
      if (fc > fd) {
        b = d;
        d = c;
        fd = fc;
        c = b - k * (b - a);
        fc = r.gz(c, load.g);
      } else {
        a = c;
        c = d;
        fc = fd;
        d = a + k * (b - a);
        fd = r.gz(d, load.g);
      }
    }
    for (auto [deg, gz] : {std::pair{c, fc}, std::pair{d, fd}})
      if (std::isfinite(gz) && gz > *s.maxGz) {
        s.maxGz = gz;
        s.maxGzHeel = deg;
      }
  }

  // Vanishing stability: the first fall to 0 after the arm has been positive.
  bool positive = false;
  for (std::size_t i = 0; i < curve.size(); ++i) {
    if (!curve[i].floats) {
      positive = false;
      continue;
    }
    if (curve[i].gz > kZeroArm) {
      positive = true;
      continue;
    }
    if (positive && i > 0) {
      const GzPoint &a = curve[i - 1], &b = curve[i];
      s.vanishing = rootBetween([&](double d) { return r.gz(d, load.g); }, a.heel, a.gz, b.heel,
                                b.gz, kZeroArm);
      break;
    }
  }
  if (!s.vanishing && best >= 0 && *s.maxGz <= kZeroArm) s.vanishing = curve.front().heel;

  if (!m.deckEdge.empty())
    for (std::size_t i = 0; i < curve.size(); ++i) {
      if (!curve[i].floats || curve[i].freeboard > 0) continue;
      if (i == 0 || !curve[i - 1].floats) {
        s.deckEdge = curve[i].heel;
      } else {
        const GzPoint &a = curve[i - 1], &b = curve[i];
        s.deckEdge = rootBetween([&](double d) { return r.freeboard(d); }, a.heel, a.freeboard,
                                 b.heel, b.freeboard, kZeroArm);
      }
      break;
    }

  s.area30 = areaTo(r, 30);
  s.area40 = areaTo(r, 40);
  return s;
}

CrewHeel crewOnSide(const HydroMesh& m, const Loading& load, const std::vector<GzPoint>& curve,
                    double crewKg, double crewY) {
  CrewHeel c;
  const Refiner r{m, load, curve};
  const double shift = load.massKg() > 0 ? crewKg * crewY / load.massKg() : 0;
  Vec3 g = load.g;
  g.y += shift;
  if (shift == 0) {
    const Balance b = r.at(0, g);
    c.rests = b.trim == Trim::found;
    c.freeboard = c.rests ? b.body.freeboard : 0;
    return c;
  }
  // The arms from the curve less the crew's heeling arm point to the first
  // crossing; it is then solved with the crew's centre of gravity.
  for (std::size_t i = 1; i < curve.size(); ++i) {
    const GzPoint &a = curve[i - 1], &b = curve[i];
    if (!a.floats || !b.floats) continue;
    const double ea = a.gz - shift * std::cos(radians(a.heel));
    const double eb = b.gz - shift * std::cos(radians(b.heel));
    if (!(ea < 0 && eb >= 0)) continue;
    const double fa = r.gz(a.heel, g), fb = r.gz(b.heel, g);
    double heel = b.heel;
    if (std::isfinite(fa) && std::isfinite(fb) && (fa < 0) != (fb < 0))
      heel = rootBetween([&](double d) { return r.gz(d, g); }, a.heel, fa, b.heel, fb, kZeroArm);
    else if (std::isfinite(fa) && std::isfinite(fb) && fb != fa)
      heel = std::clamp(a.heel - fa * (b.heel - a.heel) / (fb - fa), a.heel, b.heel);
    const Balance at = r.at(heel, g);
    if (at.trim != Trim::found) return c;
    c.rests = true;
    c.heel = heel;
    c.freeboard = at.body.freeboard;
    return c;
  }
  return c;
}

}  // namespace tolmar::stability
