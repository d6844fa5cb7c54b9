#include "sheets/nesting.h"

#include <algorithm>
#include <atomic>
#include <cmath>
#include <limits>
#include <system_error>
#include <thread>

#include "sheets/column_profile.h"
#include "sheets/nest_orders.h"

namespace tolmar::sheets {

using namespace ClipperLib;

namespace {

// The width of a column: 5 mm.  Finer costs time for little: a plank's
// edge sloping at 1 in 10 loses half a millimetre a column.  Sheets longer
// than kMaxColumns of them get wider columns.
constexpr cInt kStep = 500;
constexpr cInt kMaxColumns = 20000;
// Where a piece starts in a column is rounded to a fifth of a column (1
// mm), its columns made that much wider.
constexpr cInt kPhases = 5;

cInt floorDiv(cInt a, cInt b) { return a >= 0 ? a / b : -((-a + b - 1) / b); }

// The width of the columns of the sheets of `r`, a whole number of phases.
cInt stepOf(const NestRequest& r) {
  const cInt wide = floorDiv(r.x1 - r.x0 + kMaxColumns - 1, kMaxColumns);
  const cInt step = std::max(kStep, wide);
  return floorDiv(step + kPhases - 1, kPhases) * kPhases;
}

// `p` grown by `grow`, mitred corners (never inside the rounded growth).
Path grownBy(const Path& p, cInt grow) {
  ClipperOffset o(4.0);
  o.AddPath(p, jtMiter, etClosedPolygon);
  Paths g;
  o.Execute(g, static_cast<double>(grow));
  if (g.empty()) return p;
  return *std::max_element(g.begin(), g.end(), [](const Path& a, const Path& b) {
    return std::abs(Area(a)) < std::abs(Area(b));
  });
}

Path turned(const Path& p, int quarter) {
  Path out;
  out.reserve(p.size());
  for (const IntPoint& q : p) {
    switch (quarter & 3) {
      case 0:
        out.emplace_back(q.X, q.Y);
        break;
      case 1:
        out.emplace_back(-q.Y, q.X);
        break;
      case 2:
        out.emplace_back(-q.X, -q.Y);
        break;
      default:
        out.emplace_back(q.Y, -q.X);
        break;
    }
  }
  return out;
}

struct Box {
  cInt x0, y0, x1, y1;
};
Box boxOf(const Path& p) {
  Box b{p[0].X, p[0].Y, p[0].X, p[0].Y};
  for (const IntPoint& q : p) {
    b.x0 = std::min(b.x0, q.X), b.y0 = std::min(b.y0, q.Y);
    b.x1 = std::max(b.x1, q.X), b.y1 = std::max(b.y1, q.Y);
  }
  return b;
}

// How a pass picks among the places a piece fits on one sheet.
// Ties go to the place that leaves the least room under the piece, then
// to the least X.
enum class NestRule {
  lowest,     // the least Y the piece starts at
  lowestTop,  // the least Y the piece reaches
  leftmost,   // the least X, then the least Y
  snug,       // the least room left under the piece, then the least Y
};

constexpr NestRule kRules[] = {NestRule::lowest, NestRule::snug, NestRule::lowestTop,
                               NestRule::leftmost};

// The orders of a quick nesting: by area, length, width and box, and the
// same with the pieces that slope one way first.
constexpr std::size_t kQuickOrders = 8;

// A pass costs about the square of the number of pieces n: about
// kPassWork / n passes are run (all of them up to some 30 pieces), at
// least two for each plain order.
constexpr std::size_t kPassWork = 1800;

// A shape in one of its turns: its box, its outline grown by the kerf (as
// it blocks the pieces after it), and its columns.
struct Turn {
  int quarter = 0;
  Box box{};
  Path grown;
  // Its columns for each way it may lie across the sheet's columns: from
  // its left end on, and for its left end q .. q + 1 phases into a
  // column, columns from q + 1 phases before its left end on, a phase
  // wider.
  std::vector<ColumnSpan> exact;
  std::vector<std::vector<ColumnSpan>> phased;
};

struct Shape {
  double area = 0;
  std::vector<Turn> turns;
};

// A grown piece in one column of a sheet: its span across the grain, and
// the stretch of the column it takes (less than all of it at its ends).
struct Held {
  cInt lo, hi, x0, x1;
};

struct Sheet {
  std::vector<std::vector<Held>> columns;   // each sorted by lo
  std::vector<std::pair<cInt, cInt>> ends;  // X of the grown pieces' ends
  double freeArea = 0, usedArea = 0;
};

struct Spot {
  cInt dx = 0, dy = 0;
  double under = 0;  // the free area between the piece and what is below it
};

// The free area, units squared, between the piece with the spans `cols`
// (as lowestAt takes them) moved up by dy and the highest of the sheet's
// edge and what the columns hold below it.
double roomUnder(const Sheet& s, const std::vector<ColumnSpan>& cols, std::size_t c0, std::size_t m,
                 cInt x0, cInt x1, cInt sheetX0, cInt step, cInt sheetY0, cInt dy) {
  double room = 0;
  for (std::size_t j = 0; j < m; ++j) {
    const ColumnSpan& c = cols[j];
    const cInt cx0 = sheetX0 + cInt(c0 + j) * step;
    const cInt px0 = std::max(x0, cx0), px1 = std::min(x1, cx0 + step);
    if (c.lo > c.hi || px0 >= px1) continue;
    cInt below = sheetY0;
    for (const Held& o : s.columns[c0 + j]) {
      if (o.lo >= dy + c.lo) break;
      if (o.hi <= dy + c.lo && o.hi > below && o.x0 < px1 && px0 < o.x1) below = o.hi;
    }
    room += double(dy + c.lo - below) * double(px1 - px0);
  }
  return room;
}

// The least dy in [fy0, fy1] at which the piece with the spans `cols`,
// from sheet column c0 on, taking X from x0 to x1 on the sheet, meets
// nothing held in the sheet's columns; false when there is none.  Only
// the m first of `cols` count.
bool lowestAt(const Sheet& s, const std::vector<ColumnSpan>& cols, std::size_t c0, std::size_t m,
              cInt x0, cInt x1, cInt sheetX0, cInt step, cInt fy0, cInt fy1, cInt& dy) {
  dy = fy0;
  // Round the columns until a whole round moves nothing.
  std::size_t clean = 0;
  for (std::size_t j = 0; clean < m; j = (j + 1) % m) {
    const ColumnSpan& c = cols[j];
    const cInt cx0 = sheetX0 + cInt(c0 + j) * step;
    const cInt px0 = std::max(x0, cx0), px1 = std::min(x1, cx0 + step);
    if (c.lo > c.hi || px0 >= px1) {
      ++clean;
      continue;
    }
    bool moved = false;
    for (const Held& o : s.columns[c0 + j]) {
      if (o.lo >= dy + c.hi) break;  // sorted by lo: none further meets
      if (o.hi > dy + c.lo && o.x0 < px1 && px0 < o.x1) {
        dy = o.hi - c.lo;
        moved = true;
        if (dy > fy1) return false;
      }
    }
    clean = moved ? 1 : clean + 1;
  }
  return true;
}

class Pass {
 public:
  Pass(const NestRequest& r, const std::vector<Shape>& shapes, NestRule rule)
      : r_(r), shapes_(shapes), rule_(rule), step_(stepOf(r)) {
    columns_ =
        static_cast<std::size_t>(std::max<cInt>(1, floorDiv(r.x1 - r.x0 + step_ - 1, step_)));
  }

  NestResult run(const std::vector<std::size_t>& order) {
    NestResult out;
    out.places.resize(shapes_.size());
    for (std::size_t i : order) {
      const Shape& sh = shapes_[i];
      if (sh.turns.empty()) continue;
      bool placed = false;
      for (std::size_t s = 0; s <= sheets_.size() && !placed; ++s) {
        if (s == sheets_.size()) newSheet();
        Sheet& sheet = sheets_[s];
        if (sheet.freeArea < sh.area) continue;
        const Turn* bestTurn = nullptr;
        Spot best;
        for (const Turn& t : sh.turns) {
          Spot at;
          if (bestSpot(sheet, t, at) && (!bestTurn || better(t, at, *bestTurn, best)))
            best = at, bestTurn = &t;
        }
        if (!bestTurn) {
          if (sheet.usedArea == 0) {
            sheets_.pop_back();  // fits no sheet at all
            break;
          }
          continue;
        }
        place(sheet, *bestTurn, best, sh.area);
        out.places[i] = {static_cast<int>(s), bestTurn->quarter * 1.5707963267948966, best.dx,
                         best.dy};
        placed = true;
      }
    }
    out.sheets = static_cast<int>(sheets_.size());
    out.lastSheetArea = sheets_.empty() ? 0 : sheets_.back().usedArea;
    return out;
  }

 private:
  void newSheet() {
    Sheet s;
    s.columns.resize(columns_);
    s.freeArea = double(r_.x1 - r_.x0) * double(r_.y1 - r_.y0);
    sheets_.push_back(std::move(s));
  }

  // Sheet Y of the piece's lowest or highest point at a spot.
  cInt key(const Turn& t, const Spot& s) const {
    return s.dy + (rule_ == NestRule::lowestTop ? t.box.y1 : t.box.y0);
  }
  bool better(const Turn& t, const Spot& a, const Turn& u, const Spot& b) const {
    const cInt ax = a.dx + t.box.x0, bx = b.dx + u.box.x0;
    if (rule_ == NestRule::leftmost && ax != bx) return ax < bx;
    if (rule_ == NestRule::snug && a.under != b.under) return a.under < b.under;
    if (key(t, a) != key(u, b)) return key(t, a) < key(u, b);
    if (a.under != b.under) return a.under < b.under;
    return ax < bx;
  }

  // The X tried: against the sheet's start or end, or just past either
  // end of a piece there (its grown outline touched).
  bool bestSpot(const Sheet& sheet, const Turn& t, Spot& best) {
    const cInt dxMin = r_.x0 - t.box.x0, dxMax = r_.x1 - t.box.x1;
    const cInt fy0 = r_.y0 - t.box.y0, fy1 = r_.y1 - t.box.y1;
    if (dxMin > dxMax || fy0 > fy1) return false;
    std::vector<cInt> dxs = {dxMin, dxMax};
    for (const auto& [gx0, gx1] : sheet.ends) {
      dxs.push_back(gx1 - t.box.x0);
      dxs.push_back(gx0 - t.box.x1);
    }
    std::sort(dxs.begin(), dxs.end());
    dxs.erase(std::unique(dxs.begin(), dxs.end()), dxs.end());
    bool found = false;
    for (cInt dx : dxs) {
      if (dx < dxMin || dx > dxMax) continue;
      // The piece's columns on the sheet's grid; those past the sheet's
      // last column (of a wider column) hold nothing of it.
      const cInt c0 = floorDiv(dx + t.box.x0 - r_.x0, step_),
                 phase = dx + t.box.x0 - r_.x0 - c0 * step_;
      const std::vector<ColumnSpan>& cols =
          phase == 0 ? t.exact : t.phased[phase / (step_ / kPhases)];
      if (c0 < 0 || static_cast<std::size_t>(c0) >= columns_) continue;
      const std::size_t m = std::min(cols.size(), columns_ - static_cast<std::size_t>(c0));
      Spot at{dx, 0};
      if (!lowestAt(sheet, cols, static_cast<std::size_t>(c0), m, dx + t.box.x0, dx + t.box.x1,
                    r_.x0, step_, fy0, fy1, at.dy))
        continue;
      at.under = roomUnder(sheet, cols, static_cast<std::size_t>(c0), m, dx + t.box.x0,
                           dx + t.box.x1, r_.x0, step_, r_.y0, at.dy);
      if (!found || better(t, at, t, best)) best = at, found = true;
    }
    return found;
  }

  void place(Sheet& sheet, const Turn& t, const Spot& at, double area) {
    Path g = t.grown;
    for (IntPoint& q : g) q.X += at.dx, q.Y += at.dy;
    const std::vector<ColumnSpan> cols = columnProfile(g, r_.x0, step_);
    const Box gb = boxOf(g);
    for (std::size_t j = 0; j < cols.size() && j < columns_; ++j) {
      if (cols[j].lo > cols[j].hi) continue;
      const cInt cx0 = r_.x0 + cInt(j) * step_;
      const Held h{cols[j].lo, cols[j].hi, std::max(gb.x0, cx0), std::min(gb.x1, cx0 + step_)};
      auto& c = sheet.columns[j];
      c.insert(std::upper_bound(c.begin(), c.end(), h,
                                [](const Held& a, const Held& b) { return a.lo < b.lo; }),
               h);
    }
    sheet.ends.emplace_back(gb.x0, gb.x1);
    sheet.freeArea -= area;
    sheet.usedArea += area;
  }

  const NestRequest& r_;
  const std::vector<Shape>& shapes_;
  NestRule rule_;
  cInt step_;
  std::size_t columns_ = 1;
  std::vector<Sheet> sheets_;
};

std::vector<Shape> prepare(const NestRequest& r) {
  const cInt step = stepOf(r), phase = step / kPhases;
  const std::vector<int> quarters =
      r.rotate90 ? std::vector<int>{0, 2, 1, 3} : std::vector<int>{0, 2};
  std::vector<Shape> out(r.shapes.size());
  for (std::size_t i = 0; i < r.shapes.size(); ++i) {
    if (r.shapes[i].size() < 3) continue;
    out[i].area = std::abs(Area(r.shapes[i]));
    const Path grown = grownBy(r.shapes[i], r.gap);
    for (int q : quarters) {
      Turn t;
      t.quarter = q;
      const Path p = turned(r.shapes[i], q);
      t.box = boxOf(p);
      t.exact = columnProfile(p, t.box.x0, step);
      for (cInt at = 0; at < step; at += phase)
        t.phased.push_back(columnProfile(p, t.box.x0 - at - phase, step, phase));
      t.grown = turned(grown, q);
      out[i].turns.push_back(std::move(t));
    }
  }
  return out;
}

}  // namespace

NestResult nestBest(const NestRequest& r, int threads, bool quick) {
  const std::vector<Shape> shapes = prepare(r);
  const std::vector<std::vector<std::size_t>> orders = nestOrders(r.shapes);
  // The passes, those most often best first: the plain and sloped orders
  // with each rule in turn, then the shaken orders with every rule.
  std::vector<std::pair<std::size_t, NestRule>> tasks;
  const std::size_t plain = std::min(kQuickOrders, orders.size());
  for (NestRule rule : kRules)
    for (std::size_t k = 0; k < plain; ++k) tasks.emplace_back(k, rule);
  for (std::size_t k = plain; k < orders.size(); ++k)
    for (NestRule rule : kRules) tasks.emplace_back(k, rule);
  const std::size_t n = std::max<std::size_t>(1, r.shapes.size());
  tasks.resize(std::min(tasks.size(), quick ? plain : std::max(2 * plain, kPassWork / n)));
  std::vector<NestResult> results(tasks.size());
  std::atomic<std::size_t> next{0};
  auto work = [&] {
    for (std::size_t t; (t = next++) < tasks.size();)
      results[t] = Pass(r, shapes, tasks[t].second).run(orders[tasks[t].first]);
  };
  std::vector<std::thread> pool;
  // Without more threads the passes all run on this one.
  try {
    for (int i = 1; i < threads; ++i) pool.emplace_back(work);
  } catch (const std::system_error&) {
  }
  work();
  for (std::thread& t : pool) t.join();
  std::size_t best = 0;
  for (std::size_t t = 1; t < tasks.size(); ++t)
    if (results[t].betterThan(results[best])) best = t;
  return tasks.empty() ? NestResult{} : std::move(results[best]);
}

}  // namespace tolmar::sheets
