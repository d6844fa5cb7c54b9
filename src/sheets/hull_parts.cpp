#include "sheets/hull_parts.h"

#include <algorithm>
#include <cmath>

#include "analysis/calc_section.h"
#include "analysis/mass_budget.h"
#include "development/developed_plate.h"
#include "hull/fold_check.h"
#include "sheets/clipper_geometry.h"

namespace tolmar::sheets {

namespace {

struct Candidate {
  SheetPart part;  // starboard copy, or the one panel across
  bool twice = false;
  bool budgeted = false;
};

MmPolygon toMm(const std::vector<FlatPoint>& pts) {
  MmPolygon out;
  out.reserve(pts.size());
  for (const FlatPoint& p : pts) out.push_back({p.x * 1000, p.y * 1000});
  return out;
}

// Moves the outline and its marks so that the outline's box starts at 0, 0.
void placeAtOrigin(SheetPart& p) {
  const MmBox b = boundingBox(p.outline);
  auto shift = [&](MmPoint& q) {
    q.x -= b.x0;
    q.y -= b.y0;
  };
  for (MmPoint& q : p.outline) shift(q);
  for (MmPolyline& m : p.marks)
    for (MmPoint& q : m) shift(q);
}

SheetPart mirrored(const SheetPart& p) {
  SheetPart m = p;
  m.side = -1;
  const double h = boundingBox(p.outline).y1;
  for (MmPoint& q : m.outline) q.y = h - q.y;
  std::reverse(m.outline.begin(), m.outline.end());
  for (MmPolyline& l : m.marks)
    for (MmPoint& q : l) q.y = h - q.y;
  return m;
}

std::vector<MmPolyline> plateMarks(const DevelopedPlate& d) {
  std::vector<MmPolyline> marks;
  auto mm = [](const FlatPoint& p) { return MmPoint{p.x * 1000, p.y * 1000}; };
  for (int i : d.lowerTicks) {
    if (i < 0 || i >= static_cast<int>(d.lower.size())) continue;
    const MmPoint q = mm(d.lower[i]);
    marks.push_back({{q.x - 5, q.y + 5}, q, {q.x, q.y + 10}});
  }
  for (int i : d.upperTicks) {
    if (i < 0 || i >= static_cast<int>(d.upper.size())) continue;
    const MmPoint q = mm(d.upper[i]);
    marks.push_back({{q.x - 5, q.y - 5}, q, {q.x, q.y - 10}});
  }
  const int m = d.maxBeamPoint;
  if (m >= 0 && m < static_cast<int>(d.lower.size()) && m < static_cast<int>(d.upper.size()))
    marks.push_back({mm(d.lower[m]), mm(d.upper[m])});
  return marks;
}

double thicknessOf(PartKind k, const HullStore& h, bool& assumed) {
  double t = 0, fallback = kOtherMm;
  switch (k) {
    case PartKind::bottom:
      t = h.plankThick(0), fallback = kBottomMm;
      break;
    case PartKind::plank:
      t = h.nChines >= 2 ? h.plankThick(1) : 0, fallback = kPlankMm;
      break;
    case PartKind::transom:
      t = h.transomThick, fallback = kTransomMm;
      break;
    case PartKind::pramBow:
      t = h.bowThick, fallback = kBowMm;
      break;
    default:
      break;
  }
  t *= 1000;
  assumed = !(std::isfinite(t) && t > 0.01);
  return assumed ? fallback : t;
}

// The closed section at point P, both halves: up the starboard side from
// the keel to the sheer, across, and down the port side.
MmPolygon sectionOutline(const HullStore& h, int P) {
  MmPolygon s;
  const int last = lastLine(h);
  for (int k = 0; k <= last; ++k) s.push_back({h.lineY(k, P) * 1000, h.lineZ(k, P) * 1000});
  for (int k = last; k >= 0; --k) s.push_back({-h.lineY(k, P) * 1000, h.lineZ(k, P) * 1000});
  return s;
}

// The plan inside line L, one side: along the line, back on the centre.
MmPolygon floorOutline(const HullStore& h, int L) {
  MmPolygon s;
  for (int i = 0; i <= kLastPoint; ++i) s.push_back({h.lineX(L, i) * 1000, h.lineY(L, i) * 1000});
  for (int i = kLastPoint; i >= 0; --i) s.push_back({h.lineX(L, i) * 1000, 0});
  return s;
}

bool finiteOutline(const MmPolygon& p) {
  return std::all_of(p.begin(), p.end(),
                     [](const MmPoint& q) { return std::isfinite(q.x) && std::isfinite(q.y); });
}

void addCandidate(std::vector<Candidate>& out, const HullStore& h, std::string name, PartKind k,
                  MmPolygon outline, std::vector<MmPolyline> marks, bool twice, double density) {
  if (!finiteOutline(outline)) return;
  Candidate c;
  c.part.name = std::move(name);
  c.part.kind = k;
  c.part.side = twice ? 1 : 0;
  c.part.outline = cleanOutline(outline);
  if (c.part.outline.empty() || polygonArea(c.part.outline) < 1) return;
  c.part.marks = std::move(marks);
  c.part.densityKgM2 = std::isfinite(density) ? density : 0;
  c.part.thicknessMm = thicknessOf(k, h, c.part.thicknessAssumed);
  c.twice = twice;
  c.budgeted = c.part.densityKgM2 > 0;
  placeAtOrigin(c.part);
  out.push_back(std::move(c));
}

std::vector<Candidate> candidates(const HullStore& h) {
  std::vector<Candidate> out;
  const int nChines = lastLine(h);
  const int nDecks = nChines >= 4 ? 2 : 1;
  const int nFloors = nChines >= 3 ? 2 : 1;
  const bool lap = h.overlapMode == 2;
  for (const DevelopedPlate& d : developAll(h)) {
    if (d.empty()) continue;
    PartKind k = PartKind::plank;
    double density = 0;
    switch (d.kind) {
      case PlateKind::bottom:
        k = PartKind::bottom, density = h.panelDensity(1);
        break;
      case PlateKind::plank:
        k = PartKind::plank, density = plankDensity(h, d.index);
        break;
      case PlateKind::deck:
        k = PartKind::deck;
        // Deck 1 of the budget is the last line, deck 2 the one below.
        for (int j = 1; j <= nDecks; ++j)
          if (d.index == nChines + 1 - j) density = h.deckDensity(j);
        break;
      case PlateKind::transom:
        k = PartKind::transom, density = h.panelDensity(5);
        break;
      case PlateKind::pramBow:
        k = PartKind::pramBow, density = h.panelDensity(6);
        break;
    }
    addCandidate(out, h, d.name, k, toMm(d.outline(lap)), plateMarks(d), d.cutTwice, density);
  }
  for (int j = 1; j <= nFloors && j <= nChines; ++j)
    addCandidate(out, h, "floor " + std::to_string(j), PartKind::floor, floorOutline(h, j), {},
                 true, h.floorDensity(j));
  for (int j = 1; j <= 2; ++j) {
    const int P = bulkheadPoint(h, h.bulkX(j));
    addCandidate(out, h, "bulkhead " + std::to_string(j), PartKind::bulkhead, sectionOutline(h, P),
                 {}, false, h.panelDensity(6 + j));
  }
  return out;
}

void emit(std::vector<SheetPart>& parts, const Candidate& c) {
  parts.push_back(c.part);
  if (c.twice) parts.push_back(mirrored(c.part));
}

}  // namespace

PartsResult partsFromHull(const HullStore& h, const SheetOptions& o) {
  PartsResult r;
  const bool fr = h.langue == 0;
  if (h.nChines < 2) {
    r.error = fr ? "Les bordés ne sont pas définis : il n'y a pas de panneaux à découper."
                 : "The planks are not defined: there are no panels to cut.";
    return r;
  }
  const FoldReport folds = checkFolds(h);
  if (folds.folded()) {
    r.error = folds.message(h.langue);
    return r;
  }
  const std::vector<Candidate> all = candidates(h);
  auto find = [&](const std::string& name) -> const Candidate* {
    for (const Candidate& c : all)
      if (c.part.name == name) return &c;
    return nullptr;
  };
  for (const auto* list : {&o.only, &o.skip})
    for (const std::string& name : *list)
      if (!find(name)) {
        r.error = (fr ? "Il n'y a pas de panneau nommé « " : "There is no part named \"") + name +
                  (fr ? " »." : "\".");
        return r;
      }
  auto skipped = [&](const std::string& name) {
    return std::find(o.skip.begin(), o.skip.end(), name) != o.skip.end();
  };
  if (!o.only.empty()) {
    for (const std::string& name : o.only)
      if (!skipped(name)) emit(r.parts, *find(name));
  } else {
    for (const Candidate& c : all)
      if (c.budgeted && !skipped(c.part.name)) emit(r.parts, c);
  }
  if (r.parts.empty()) r.error = fr ? "Aucun panneau à découper." : "No part left to cut.";
  return r;
}

}  // namespace tolmar::sheets
