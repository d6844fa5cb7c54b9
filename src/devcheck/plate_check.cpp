#include "devcheck/plate_check.h"

#include <algorithm>
#include <cmath>

#include "development/end_plates.h"
#include "hull/angle_constants.h"
#include "hull/fold_check.h"

namespace tolmar::devcheck {

namespace {

Point3 at(const TableRef& x, const TableRef& y, const TableRef& z, int r, int c) {
  return {x(r, c), y(r, c), z(r, c)};
}

// The 3-D point of a pattern point moved off the plate by d (flat): the
// move expressed on the rung and the edge step beside point i, carried to
// the hull by the same two vectors there.  The base point where they give
// no frame.
Point3 carry(const std::vector<Point3>& base, const std::vector<Point3>& other,
             const std::vector<FlatPoint>& flatBase, const std::vector<FlatPoint>& flatOther,
             std::size_t i, FlatPoint d) {
  const Point3& P = base[i];
  if (d.x == 0 && d.y == 0) return P;
  // The nearest neighbour that makes a frame: the ends of a plate often
  // repeat a point.
  const std::size_t n = base.size();
  for (std::size_t k = 1; k < 2 * n; ++k) {
    const std::size_t j = k % 2 ? i + (k + 1) / 2 : i - k / 2;
    if (j >= n) continue;  // past either end (i - k/2 wraps)
    const FlatPoint e1{flatOther[i].x - flatBase[i].x, flatOther[i].y - flatBase[i].y};
    const FlatPoint e2{flatBase[j].x - flatBase[i].x, flatBase[j].y - flatBase[i].y};
    const double det = e1.x * e2.y - e1.y * e2.x;
    const double scale = std::hypot(e1.x, e1.y) * std::hypot(e2.x, e2.y);
    if (!(std::fabs(det) > 1e-6 * scale) || scale == 0) continue;
    const double a = (d.x * e2.y - d.y * e2.x) / det;
    const double b = (e1.x * d.y - e1.y * d.x) / det;
    const Point3& O = other[i];
    const Point3& Q = base[j];
    return {P.x + a * (O.x - P.x) + b * (Q.x - P.x), P.y + a * (O.y - P.y) + b * (Q.y - P.y),
            P.z + a * (O.z - P.z) + b * (Q.z - P.z)};
  }
  return P;
}

double xAt(const Strip& s, int i) {
  if (i < 0 || static_cast<std::size_t>(i) >= s.lower.size()) return 0;
  const double x =
      (s.lower[static_cast<std::size_t>(i)].x + s.upper[static_cast<std::size_t>(i)].x) / 2;
  return std::isfinite(x) ? x : 0;
}

PlateCheck judge(const Strip& s, const DevelopedPlate& p, const CheckOptions& o, double factor,
                 bool withLap) {
  PlateCheck c;
  c.name = p.name;
  c.kind = p.kind;
  c.index = p.index;
  c.withLap = withLap;
  c.empty = p.empty();
  c.thickness = p.thickness;
  if (!(c.thickness > 0)) {
    c.thicknessAssumed = true;
    c.thickness = std::isfinite(o.assumedThickness) ? std::max(0.0, o.assumedThickness) : 0;
  }
  const BendLimit table = minimumBendRadius(c.thickness);
  c.needed = {table.alongGrain * factor, table.acrossGrain * factor};
  if (c.empty) return c;
  c.fit = measureStrip(s);
  c.alongX = xAt(s, c.fit.alongPoint);
  c.acrossX = xAt(s, c.fit.acrossPoint);
  c.twistX = xAt(s, c.fit.twistPoint);
  c.verdict = verdictFor(c.fit, c.needed);
  c.twisted = c.fit.maxError > kTwistedLimit;
  return c;
}

}  // namespace

double PlateCheck::twistDegreesPerMetre() const { return fit.maxTwist * kDegreesPerRadian; }

Verdict verdictFor(const StripFit& f, const BendLimit& needed) {
  double worst = kStraightRadius;  // radius over radius needed; large: no bend
  if (needed.alongGrain > 0) worst = std::min(worst, f.minRadiusAlong / needed.alongGrain);
  if (needed.acrossGrain > 0) worst = std::min(worst, f.minRadiusAcross / needed.acrossGrain);
  if (worst < 1) return Verdict::willNotBend;
  if (worst < kTightMargin) return Verdict::tight;
  return Verdict::fits;
}

Strip plateStrip(const HullStore& h, const DevelopedPlate& p) {
  Strip s;
  s.flatLower = p.lower;
  s.flatUpper = p.upper;
  const int n = static_cast<int>(std::min(p.lower.size(), p.upper.size()));
  s.lower.resize(static_cast<std::size_t>(n));
  s.upper.resize(static_cast<std::size_t>(n));
  for (int i = 0; i < n; ++i) {
    const auto k = static_cast<std::size_t>(i);
    switch (p.kind) {
      case PlateKind::bottom:
        s.lower[k] = at(h.edgeXRef(), h.edgeYRef(), h.edgeZRef(), 0, std::min(i, kMaxDev));
        s.upper[k] = at(h.edgeXRef(), h.edgeYRef(), h.edgeZRef(), 1, std::min(i, kMaxDev));
        break;
      case PlateKind::plank: {
        const int l = std::clamp(p.index, 0, kMaxLine - 1), c = std::min(i, kLastPoint);
        s.lower[k] = at(h.lineXRef(), h.lineYRef(), h.lineZRef(), l, c);
        s.upper[k] = at(h.lineXRef(), h.lineYRef(), h.lineZRef(), l + 1, c);
        break;
      }
      case PlateKind::deck: {
        const int l = std::clamp(p.index, 0, kMaxLine), c = std::min(i, kLastPoint);
        s.upper[k] = at(h.lineXRef(), h.lineYRef(), h.lineZRef(), l, c);
        s.lower[k] = {s.upper[k].x, 0, s.upper[k].z};
        break;
      }
      case PlateKind::transom:
      case PlateKind::pramBow: {
        const int row = p.kind == PlateKind::transom ? 0 : kLastPoint;
        const int j = std::min(i, StationTable::colHi);
        s.upper[k] = {h.stationX(row, j), h.stationY(row, j), h.stationZ(row, j)};
        s.lower[k] = {s.upper[k].x, -s.upper[k].y, s.upper[k].z};
        s.knuckled = true;
        break;
      }
    }
  }
  return s;
}

Strip lapStrip(const HullStore& h, const DevelopedPlate& p) {
  if (p.cutLower.empty() || p.cutUpper.size() != p.upper.size() ||
      p.cutLower.size() != p.lower.size())
    return {};
  const Strip base = plateStrip(h, p);
  Strip s;
  s.flatLower = p.cutLower;
  s.flatUpper = p.cutUpper;
  for (std::size_t i = 0; i < base.lower.size(); ++i) {
    const FlatPoint dl{p.cutLower[i].x - p.lower[i].x, p.cutLower[i].y - p.lower[i].y};
    const FlatPoint du{p.cutUpper[i].x - p.upper[i].x, p.cutUpper[i].y - p.upper[i].y};
    s.lower.push_back(carry(base.lower, base.upper, p.lower, p.upper, i, dl));
    s.upper.push_back(carry(base.upper, base.lower, p.upper, p.lower, i, du));
  }
  return s;
}

CheckReport checkDevelopment(const HullStore& h, const CheckOptions& o) {
  const FoldReport folds = checkFolds(h);
  if (folds.folded()) {
    CheckReport r;
    r.folded = true;
    r.message = folds.message(h.langue);
    return r;
  }
  return checkDevelopment(h, developAll(h), o);
}

CheckReport checkDevelopment(const HullStore& h, const std::vector<DevelopedPlate>& plates,
                             const CheckOptions& o) {
  CheckReport r;
  r.factorReplaced = !(std::isfinite(o.factor) && o.factor > 0);
  r.factor = r.factorReplaced ? 1.0 : o.factor;
  r.plates.reserve(plates.size() * 2);
  for (const DevelopedPlate& p : plates) {
    r.plates.push_back(judge(plateStrip(h, p), p, o, r.factor, false));
    // The outline with material is cut only on a lap-strake hull.
    if (h.overlapMode == 2 && !p.cutLower.empty())
      r.plates.push_back(judge(lapStrip(h, p), p, o, r.factor, true));
  }
  return r;
}

std::string verdictText(Verdict v, int langue) {
  const bool fr = langue == 0;
  switch (v) {
    case Verdict::fits:
      return fr ? "se pose" : "fits";
    case Verdict::tight:
      return fr ? "juste" : "tight";
    case Verdict::willNotBend:
      return fr ? "ne se cintre pas sans saignées ni étuvage"
                : "will not bend without kerfing or steaming";
  }
  return {};
}

std::string verdictKey(Verdict v) {
  switch (v) {
    case Verdict::fits:
      return "fits";
    case Verdict::tight:
      return "tight";
    case Verdict::willNotBend:
      return "will_not_bend";
  }
  return {};
}

}  // namespace tolmar::devcheck
