#include <algorithm>

#include "board/view_map.h"
#include "board/views.h"

namespace tolmar {

namespace {

constexpr int kPlus = 1, kMinus = -1, kAxis = 0;
constexpr int kMidSlot = 41;  // Int(80/2 + 1): the last aft station, the first forward one

void pset(DrawingSurface& s, ViewPoint p) { s.PSet(p.x, p.y); }
void lineTo(DrawingSurface& s, ViewPoint p) { s.LineTo(p.x, p.y); }
void lineTo(DrawingSurface& s, ViewPoint p, Colour c) { s.LineTo(p.x, p.y, c); }

void bottomSections(DrawingSurface& s, const HullStore& h) {
  int prev = 0;
  pset(s, sectionPoint(h, 0, 0, kPlus));
  for (int j = 1; j <= 10; ++j) lineTo(s, sectionPoint(h, 0, j, kPlus));
  for (int i = 5; i <= kMidSlot; i += 4) {
    pset(s, sectionPoint(h, prev, 0, kPlus));
    for (int j = 0; j <= 10; ++j) lineTo(s, sectionPoint(h, i, j, kPlus));
    lineTo(s, sectionPoint(h, prev, 10, kPlus));
    prev = i;
  }
  pset(s, sectionPoint(h, kMidSlot, 0, kMinus));
  for (int j = 1; j <= 10; ++j) lineTo(s, sectionPoint(h, kMidSlot, j, kMinus));
  for (int i = 45; i <= 81; i += 4) {
    pset(s, sectionPoint(h, prev, 0, kMinus));
    for (int j = 0; j <= 10; ++j) lineTo(s, sectionPoint(h, i, j, kMinus));
    lineTo(s, sectionPoint(h, prev, 10, kMinus));
    prev = i;
  }
  pset(s, sectionPoint(h, 81, 0, kMinus));
  for (int j = 0; j <= 10; ++j) lineTo(s, sectionPoint(h, 82, j, kMinus));
  lineTo(s, sectionPoint(h, 81, 10, kMinus));
}

// A turned-in end plate shows the stroke from the axis at its first plank.
void plankSections(DrawingSurface& s, const HullStore& h) {
  const int n = std::min<int>(h.nChines, kMaxLine);
  if (n < 2) return;
  const int last = n + 9;
  auto cj = [&](int j) { return lineColour(h, j - 9); };

  int prev = 0;
  pset(s, sectionPoint(h, 0, 10, kPlus));
  for (int j = 11; j <= last; ++j) lineTo(s, sectionPoint(h, 0, j, kPlus));
  lineTo(s, sectionPoint(h, 0, last, kAxis), lineColour(h, n));
  if (h.transomTurn(2) == -1 && n == 3) {
    pset(s, sectionPoint(h, 0, 11, kPlus));
    lineTo(s, sectionPoint(h, 0, 11, kAxis), lineColour(h, 2));
  } else if (h.transomTurn(3) == -1 && n == 4) {
    pset(s, sectionPoint(h, 0, 12, kPlus));
    lineTo(s, sectionPoint(h, 0, 12, kAxis), lineColour(h, 3));
  }

  for (int i = 5; i <= kMidSlot; i += 4) {
    for (int j = 11; j <= last; ++j) {
      pset(s, sectionPoint(h, i, j - 1, kPlus));
      lineTo(s, sectionPoint(h, i, j, kPlus), cj(j));
      lineTo(s, sectionPoint(h, prev, j, kPlus), cj(j));
    }
    prev = i;
  }
  pset(s, sectionPoint(h, kMidSlot, 10, kMinus));
  for (int j = 11; j <= last; ++j) lineTo(s, sectionPoint(h, kMidSlot, j, kMinus), cj(j));
  for (int i = 45; i <= 81; i += 4) {
    for (int j = 11; j <= last; ++j) {
      pset(s, sectionPoint(h, i, j - 1, kMinus));
      lineTo(s, sectionPoint(h, i, j, kMinus), cj(j));
      lineTo(s, sectionPoint(h, prev, j, kMinus), cj(j));
    }
    prev = i;
  }
  for (int j = 11; j <= last; ++j) {
    pset(s, sectionPoint(h, 82, j - 1, kMinus));
    lineTo(s, sectionPoint(h, 82, j, kMinus), cj(j));
    lineTo(s, sectionPoint(h, 81, j, kMinus), cj(j));
  }
  pset(s, sectionPoint(h, 82, last, kMinus));
  lineTo(s, sectionPoint(h, 82, last, kAxis), lineColour(h, n));
  if (h.bowTurn(2) == -1 && n == 3) {
    pset(s, sectionPoint(h, 82, 11, kAxis));
    lineTo(s, sectionPoint(h, 82, 11, kMinus), lineColour(h, 2));
  } else if (h.bowTurn(3) == -1 && n == 4) {
    pset(s, sectionPoint(h, 82, 12, kAxis));
    lineTo(s, sectionPoint(h, 82, 12, kMinus), lineColour(h, 3));
  }
}

}  // namespace

void drawSections(DrawingSurface& s, const HullStore& h, int k) {
  s.DrawStyle = kStyleSolid;
  s.ForeColor = lineColour(h, 0);
  bottomSections(s, h);
  if (k > 0) plankSections(s, h);
}

}  // namespace tolmar
