#include "development/developed_plate.h"

#include <algorithm>
#include <cmath>

#include "development/calc_develop.h"
#include "development/deck_develop.h"
#include "development/end_plates.h"
#include "development/plate_cut.h"
#include "text/number_format.h"
#include "text/number_text.h"

namespace tolmar {

namespace {

FlatPoint finite(double x, double y) {
  return {std::isfinite(x) ? x : 0.0, std::isfinite(y) ? y : 0.0};
}

// Shoelace area of a closed polygon, absolute.
double polygonArea(const std::vector<FlatPoint>& p) {
  double a = 0;
  for (std::size_t i = 0, n = p.size(); i < n; ++i) {
    const FlatPoint& u = p[i];
    const FlatPoint& v = p[(i + 1) % n];
    a += u.x * v.y - v.x * u.y;
  }
  return std::fabs(a) / 2;
}

void measure(DevelopedPlate& p) {
  const std::vector<FlatPoint> o = p.outline();
  if (o.empty()) {
    p.area = p.width = 0;
    p.length = 0;
    return;
  }
  double x0 = o[0].x, x1 = o[0].x, y0 = o[0].y, y1 = o[0].y;
  for (const FlatPoint& q : o) {
    x0 = std::min(x0, q.x);
    x1 = std::max(x1, q.x);
    y0 = std::min(y0, q.y);
    y1 = std::max(y1, q.y);
  }
  p.length = x1 - x0;
  p.width = y1 - y0;
  p.area = polygonArea(o);
}

void takeEdges(DevelopedPlate& p, const DevEdges& d, int last) {
  p.lower.resize(static_cast<std::size_t>(last) + 1);
  p.upper.resize(static_cast<std::size_t>(last) + 1);
  for (int i = 0; i <= last; ++i) {
    p.lower[static_cast<std::size_t>(i)] = finite(d.xi(i), d.yi(i));
    p.upper[static_cast<std::size_t>(i)] = finite(d.xs(i), d.ys(i));
  }
}

// The lap-strake outline, kept only when some material is added.
void takeCut(DevelopedPlate& p, const HullStore& h, const DevEdges& d, int last) {
  const CutOutline c = cutOutline(h, d, p.index, last);
  bool differs = false;
  std::vector<FlatPoint> lo(p.lower.size()), up(p.upper.size());
  for (int i = 0; i <= last; ++i) {
    const auto k = static_cast<std::size_t>(i);
    lo[k] = finite(c.low(i).x, c.low(i).y);
    up[k] = finite(c.up(i).x, c.up(i).y);
    differs = differs || !(lo[k] == p.lower[k]) || !(up[k] == p.upper[k]);
  }
  if (!differs) return;
  p.cutLower = std::move(lo);
  p.cutUpper = std::move(up);
}

DevelopedPlate sidePlate(const HullStore& h, int n) {
  DevelopedPlate p;
  p.kind = n == 0 ? PlateKind::bottom : PlateKind::plank;
  p.index = n;
  p.name = "p" + formatNumber(n, "00");
  const int last = n == 0 ? kBottomLastPoint : kPlankLastPoint;
  const DevEdges d = n == 0 ? bottomEdges(h) : plankEdges(h, n);
  takeEdges(p, d, last);
  p.maxBeamPoint = std::clamp<int>(h.iMaxBeam, 0, last);
  for (int i = 1; i <= 81; i += 4) p.lowerTicks.push_back(i);
  // The bottom's upper edge has ticks from the transom to the maximum beam.
  const int upTo = n == 0 ? h.iMaxBeam - 1 : 81;
  for (int i = 1; i <= upTo; i += 4) p.upperTicks.push_back(i);
  p.thickness = std::max(0.0, h.plankThick(std::clamp(n, 0, kMaxLine)));
  if (n > 0)
    for (int i = 0; i <= kPlankLastPoint; ++i) p.lap = std::max(p.lap, h.overlapWidth(n, i));
  takeCut(p, h, d, last);
  measure(p);
  return p;
}

DevelopedPlate deckPlate(const HullStore& h, int k) {
  DevelopedPlate p;
  p.kind = PlateKind::deck;
  p.index = k;
  p.name = "deck" + hullNumberText(k);
  takeEdges(p, deckEdges(h, k), kPlankLastPoint);
  measure(p);
  return p;
}

DevelopedPlate endPlate(const HullStore& h, PlateKind kind) {
  DevelopedPlate p;
  p.kind = kind;
  p.name = kind == PlateKind::transom ? "transom" : "bow";
  p.cutTwice = false;
  const EndPlate t = kind == PlateKind::transom ? transomPlateOf(h) : bowPlateOf(h);
  const int m = lastSectionPoint(h);
  for (int j = 0; j <= m; ++j) {
    p.lower.push_back(finite(-t(2, j), t(1, j)));
    p.upper.push_back(finite(t(2, j), t(1, j)));
  }
  p.thickness = std::max(0.0, kind == PlateKind::transom ? h.transomThick : h.bowThick);
  measure(p);
  return p;
}

int topLine(const HullStore& h) { return std::clamp<int>(h.nChines, 1, kMaxLine); }

}  // namespace

std::vector<FlatPoint> DevelopedPlate::outline(bool withLap) const {
  if (empty()) return {};
  const bool lap = withLap && !cutLower.empty();
  const std::vector<FlatPoint>& lo = lap ? cutLower : lower;
  const std::vector<FlatPoint>& up = lap ? cutUpper : upper;
  std::vector<FlatPoint> o(lo.begin(), lo.end());
  o.insert(o.end(), up.rbegin(), up.rend());
  return o;
}

bool DevelopedPlate::empty() const {
  if (lower.empty()) return true;
  // A nanometre: what the rounding of a development of coincident lines leaves.
  constexpr double kNoWidth = 1e-9;
  for (std::size_t i = 0; i < lower.size(); ++i)
    if (std::hypot(lower[i].x - upper[i].x, lower[i].y - upper[i].y) > kNoWidth) return false;
  return true;
}

DevelopedPlate developPlate(const HullStore& h, PlateKind kind, int index) {
  switch (kind) {
    case PlateKind::bottom:
      return sidePlate(h, 0);
    case PlateKind::plank:
      return sidePlate(h, std::clamp(index, 1, kMaxLine - 1));
    case PlateKind::deck:
      return deckPlate(h, std::clamp(index, 1, kMaxLine));
    case PlateKind::transom:
    case PlateKind::pramBow:
      return endPlate(h, kind);
  }
  return {};
}

std::vector<DevelopedPlate> developAll(const HullStore& h) {
  const int top = topLine(h);
  std::vector<DevelopedPlate> all;
  all.reserve(static_cast<std::size_t>(2 * top + 2));
  for (int n = 0; n <= top - 1; ++n) all.push_back(sidePlate(h, n));
  for (int k = 1; k <= top; ++k) all.push_back(deckPlate(h, k));
  all.push_back(endPlate(h, PlateKind::transom));
  if (hasPramBow(h)) all.push_back(endPlate(h, PlateKind::pramBow));
  return all;
}

}  // namespace tolmar
