#include "printing/printed_views.h"

#include <algorithm>

#include "board/view_map.h"
#include "printing/paper_map.h"

namespace tolmar {

namespace {

int lastLine(const HullStore& h) { return std::clamp<int>(h.nChines, 0, kMaxLine); }

void psetProfile(DrawingSurface& s, const HullStore& h, int l, int i) {
  s.PSet(qx(h, h.lineX(l, i)), qz(h, h.lineZ(l, i)));
}
void toProfile(DrawingSurface& s, const HullStore& h, int l, int i) {
  s.LineTo(qx(h, h.lineX(l, i)), qz(h, h.lineZ(l, i)));
}

// Side +1 is qy, side -1 the mirror qm.
float planY(const HullStore& h, int l, int i, int side) {
  return side > 0 ? qy(h, h.lineY(l, i)) : qm(h, h.lineY(l, i));
}
void psetPlan(DrawingSurface& s, const HullStore& h, int l, int i, int side) {
  s.PSet(qx(h, h.lineX(l, i)), planY(h, l, i, side));
}
void toPlan(DrawingSurface& s, const HullStore& h, int l, int i, int side) {
  s.LineTo(qx(h, h.lineX(l, i)), planY(h, l, i, side));
}

void planPlanks(DrawingSurface& s, const HullStore& h, int side) {
  const int n = lastLine(h);
  const float centre = h.printOriginY;
  for (int j = 2; j <= n; ++j) {
    if (h.transomTurn(j) != h.transomTurn(j - 1) || j == n) {
      const float x = qx(h, h.lineX(j, 0));
      s.Line(x, centre, x, planY(h, j, 0, side));
    }
    psetPlan(s, h, j - 1, 0, side);
    for (int i = 0; i <= kLastPoint; ++i) toPlan(s, h, j, i, side);
    toPlan(s, h, j - 1, kLastPoint, side);
    if (h.bowTurn(j) != h.bowTurn(j - 1) || j == n) {
      const float x = qx(h, h.lineX(j, kLastPoint));
      s.Line(x, planY(h, j, kLastPoint, side), x, centre);
    }
  }
}

// The section view: station slot st, section point j, on side +1 or -1 of
// the axis ax (metres along the paper's X), or on the axis for side 0.
class SectionView {
 public:
  explicit SectionView(DrawingSurface& s, const HullStore& h)
      : s_(s), h_(h), ax_(h.lineX(1, 80) / 2) {}

  float axisX() const { return static_cast<float>(h_.printScaleX * ax_ + h_.printOriginX); }
  float x(int st, int j, int side) const {
    return static_cast<float>(h_.printScaleX * (ax_ + side * h_.stationY(st, j)) + h_.printOriginX);
  }
  float y(int st, int j) const { return qz(h_, h_.stationZ(st, j)); }
  void pset(int st, int j, int side) { s_.PSet(x(st, j, side), y(st, j)); }
  void to(int st, int j, int side) { s_.LineTo(x(st, j, side), y(st, j)); }
  void to(int st, int j, int side, Colour c) { s_.LineTo(x(st, j, side), y(st, j), c); }

  void axis();
  void bottom();
  void planks();

 private:
  static constexpr int kPlus = 1, kMinus = -1, kAxis = 0;
  DrawingSurface& s_;
  const HullStore& h_;
  double ax_;
};

void SectionView::axis() {
  s_.DrawStyle = kStyleDashDot;
  const double sZ = h_.printScaleZ, oZ = h_.printOriginZ;
  s_.Line(axisX(), static_cast<float>(1.1 * h_.lineZ(4, 40) * sZ + oZ - 300), axisX(),
          static_cast<float>(1.1 * h_.lineZ(0, 40) * sZ + oZ + 300));
  s_.DrawStyle = kStyleSolid;
}

void SectionView::bottom() {
  int prev = 0;
  pset(0, 0, kPlus);
  for (int j = 1; j <= 10; ++j) to(0, j, kMinus);
  for (int i = 4; i <= 40; i += 4) {
    pset(prev, 0, kMinus);
    for (int j = 0; j <= 10; ++j) to(i, j, kMinus);
    to(prev, 10, kMinus);
    prev = i;
  }
  pset(40, 0, kPlus);
  for (int j = 1; j <= 10; ++j) to(40, j, kPlus);
  for (int i = 44; i <= 80; i += 4) {
    pset(prev, 0, kPlus);
    for (int j = 0; j <= 10; ++j) to(i, j, kPlus);
    to(prev, 10, kPlus);
    prev = i;
  }
  pset(80, 0, kPlus);
  for (int j = 0; j <= 10; ++j) to(82, j, kPlus);
  to(80, 10, kPlus);
}

void SectionView::planks() {
  const int n = lastLine(h_);
  const int last = std::min(n + 9, 35);
  int prev = 0;
  pset(0, 10, kMinus);
  for (int j = 11; j <= last; ++j) to(0, j, kMinus);
  to(0, last, kAxis, lineColour(h_, 2));
  if (h_.transomTurn(2) == -1) {
    pset(0, 11, kMinus);
    to(0, 11, kAxis, lineColour(h_, 1));
  } else if (h_.transomTurn(3) == -1 && n == 4) {
    pset(0, 12, kMinus);
    to(0, 12, kAxis, lineColour(h_, 1));
  }
  auto stationPlanks = [&](int i, int side) {
    for (int j = 11; j <= last; ++j) {
      pset(prev, j - 1, side);
      to(i, j - 1, side);
      to(i, j, side);
    }
    to(prev, last, side);
    prev = i;
  };
  for (int i = 4; i <= 40; i += 4) stationPlanks(i, kMinus);
  pset(40, 10, kPlus);
  for (int j = 11; j <= last; ++j) to(40, j, kPlus);
  for (int i = 44; i <= 80; i += 4) stationPlanks(i, kPlus);
  for (int j = 1; j <= last; ++j) {
    pset(80, j - 1, kPlus);
    to(82, j - 1, kPlus);
    to(82, j, kPlus);
  }
  pset(82, last, kAxis);
  to(82, last, kPlus);
  to(80, last, kPlus);
  if (h_.bowTurn(2) == -1) {
    pset(82, 11, kAxis);
    to(82, 11, kPlus);
  } else if (h_.bowTurn(3) == -1 && n == 4) {
    pset(82, 12, kAxis);
    to(82, 12, kPlus);
  }
}

}  // namespace

void printProfile(PrintJob& job, int k) {
  BusyScope busy(job.host);
  DrawingSurface& s = job.s;
  const HullStore& h = job.h;
  s.DrawStyle = kStyleSolid;
  if (k == 0) {
    psetProfile(s, h, 0, 0);
    for (int i = 0; i <= kLastPoint; ++i) toProfile(s, h, 1, i);
    toProfile(s, h, 0, kLastPoint);
    psetProfile(s, h, 0, 0);
    for (int i = 0; i <= kLastPoint; ++i) toProfile(s, h, 0, i);
    return;
  }
  for (int j = 2; j <= lastLine(h); ++j) {
    psetProfile(s, h, j - 1, 0);
    for (int i = 0; i <= kLastPoint; ++i) toProfile(s, h, j, i);
    toProfile(s, h, j - 1, kLastPoint);
  }
}

void printPlan(PrintJob& job, int k) {
  BusyScope busy(job.host);
  DrawingSurface& s = job.s;
  const HullStore& h = job.h;
  s.DrawStyle = kStyleSolid;
  if (k == 0) {
    for (int side : {1, -1}) {
      psetPlan(s, h, 0, 0, 1);
      for (int i = 0; i <= kLastPoint; ++i) toPlan(s, h, 1, i, side);
      toPlan(s, h, 0, kLastPoint, 1);
    }
    return;
  }
  planPlanks(s, h, 1);
  planPlanks(s, h, -1);
}

void printSections(PrintJob& job, int k) {
  BusyScope busy(job.host);
  job.s.DrawStyle = kStyleSolid;
  SectionView v(job.s, job.h);
  v.axis();
  v.bottom();
  if (k > 0) v.planks();
}

}  // namespace tolmar
