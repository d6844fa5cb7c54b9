#include "development/panel_offsets.h"

#include <algorithm>
#include <cmath>

namespace tolmar {

namespace {

bool endPlate(const DevelopedPlate& p) {
  return p.kind == PlateKind::transom || p.kind == PlateKind::pramBow;
}

// The baseline's first end, its unit direction and the side counted
// positive (the upper edge's), flat metres.
struct Baseline {
  FlatPoint o;
  double dx = 1, dy = 0, side = 1, length = 0;
  double at(const FlatPoint& p) const { return 1000 * ((p.x - o.x) * dx + (p.y - o.y) * dy); }
  double off(const FlatPoint& p) const {
    return side * 1000 * (-(p.x - o.x) * dy + (p.y - o.y) * dx);
  }
};

// The chord of the lower edge; for the transom and the pram bow, whose
// edges are the two sides of one panel, its centre line from the keel up.
Baseline baselineOf(const DevelopedPlate& p) {
  Baseline b;
  if (p.lower.size() < 2 || p.upper.empty()) return b;
  b.o = endPlate(p) ? FlatPoint{0, p.lower.front().y} : p.lower.front();
  const FlatPoint e = endPlate(p) ? FlatPoint{0, p.lower.back().y} : p.lower.back();
  const double ex = e.x - b.o.x, ey = e.y - b.o.y;
  const double len = std::hypot(ex, ey);
  if (!(len > 0) || !std::isfinite(len)) return b;
  b.dx = ex / len;
  b.dy = ey / len;
  b.length = 1000 * len;
  double sum = 0;
  for (const FlatPoint& q : p.upper) sum += b.off(q);
  if (sum < 0) b.side = -1;
  return b;
}

// Where the edge crosses the station at `s`: of several crossings the one
// nearest the baseline.
std::optional<double> crossing(const std::vector<FlatPoint>& edge, const Baseline& b, double s) {
  std::optional<double> best;
  for (std::size_t i = 1; i < edge.size(); ++i) {
    const double t1 = b.at(edge[i - 1]), t2 = b.at(edge[i]);
    const double n1 = b.off(edge[i - 1]), n2 = b.off(edge[i]);
    const double lo = std::fmin(t1, t2), hi = std::fmax(t1, t2);
    // A hundredth of a micrometre: the chord's own ends stay on it.
    constexpr double kSlack = 1e-5;
    if (s < lo - kSlack || s > hi + kSlack) continue;
    const double n = t1 == t2 ? (std::fabs(n1) < std::fabs(n2) ? n1 : n2)
                              : n1 + (std::clamp(s, lo, hi) - t1) / (t2 - t1) * (n2 - n1);
    if (!best || std::fabs(n) < std::fabs(*best)) best = n;
  }
  return best;
}

}  // namespace

std::string stepError(double stepMm, int langue) {
  if (std::isfinite(stepMm) && stepMm >= 0.1 && stepMm <= 100000) return {};
  return langue == 0 ? "Le pas des stations doit être compris entre 0,1 et 100000 mm."
                     : "The step of the stations must lie between 0.1 and 100000 mm.";
}

PanelOffsets panelOffsets(const DevelopedPlate& p, double stepMm) {
  PanelOffsets r;
  r.plate = &p;
  r.stepMm = stepMm;
  r.lapStrake = !p.cutLower.empty() && !p.cutUpper.empty();
  const Baseline b = baselineOf(p);
  r.baselineMm = b.length;
  if (!(b.length > 0) || !stepError(stepMm, 1).empty()) return r;
  const std::vector<FlatPoint>& lower = r.lapStrake ? p.cutLower : p.lower;
  const std::vector<FlatPoint>& upper = r.lapStrake ? p.cutUpper : p.upper;
  auto station = [&](double s) {
    OffsetStation st;
    st.at = s;
    st.lower = crossing(lower, b, s);
    st.upper = crossing(upper, b, s);
    if (r.lapStrake) st.lap = crossing(p.lower, b, s);
    r.stations.push_back(st);
  };
  // Every step and both ends; on an end plate also every section point,
  // where its sides turn at the chines.
  std::vector<double> at;
  const int n = static_cast<int>(std::floor(b.length / stepMm + 1e-9));
  for (int i = 0; i <= n; ++i) at.push_back(i * stepMm);
  at.push_back(b.length);
  if (endPlate(p))
    for (const FlatPoint& q : p.lower) at.push_back(b.at(q));
  std::sort(at.begin(), at.end());
  double last = -1;
  for (double s : at) {
    if (s < -1e-6 || s > b.length + 1e-6 || s - last < 1e-6) continue;
    station(std::clamp(s, 0.0, b.length));
    last = s;
  }
  auto ends = [&](const std::vector<FlatPoint>& e, EdgeEnd(&out)[2]) {
    if (e.empty()) return;
    out[0] = {b.at(e.front()), b.off(e.front())};
    out[1] = {b.at(e.back()), b.off(e.back())};
  };
  ends(lower, r.lowerEnds);
  ends(upper, r.upperEnds);
  return r;
}

FlatPoint offsetPoint(const DevelopedPlate& p, double atMm, double offMm) {
  const Baseline b = baselineOf(p);
  const double n = offMm * b.side;
  return {b.o.x + (atMm * b.dx - n * b.dy) / 1000, b.o.y + (atMm * b.dy + n * b.dx) / 1000};
}

}  // namespace tolmar
