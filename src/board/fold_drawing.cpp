#include "board/fold_drawing.h"

#include <algorithm>

#include "board/view_map.h"

namespace tolmar {

namespace {

// Column of line l in the station tables: the bottom's points 0..10 run
// from keel to first chine, line n >= 2 stands at n + 9.
int stationColumn(int l) { return l == 0 ? 0 : l == 1 ? 10 : l + 9; }

// The stations of the section view: 0, 5, 9 .. 41 on the + side, 41, 45 ..
// 81 and 82 on the - side.
bool drawnStation(int p, int& side) {
  side = p <= 41 ? 1 : -1;
  if (p == 0 || p == 82) return true;
  return p >= 5 && p <= 81 && (p - 1) % 4 == 0;
}

void alongLine(DrawingSurface& s, const HullStore& h, int line, int from, int to,
               ViewPoint (*view)(const HullStore&, int, int)) {
  const ViewPoint a = view(h, line, from);
  if (from == to) {
    s.Circle(a.x, a.y, 60);
    return;
  }
  s.PSet(a.x, a.y);
  for (int p = from + 1; p <= to; ++p) {
    const ViewPoint b = view(h, line, p);
    s.LineTo(b.x, b.y);
  }
}

void stretch(DrawingSurface& s, const HullStore& h, const FoldStretch& f) {
  const int top = std::min<int>(h.nChines, kMaxLine);
  const int from = std::clamp(f.fromPoint, 0, kLastPoint);
  const int to = std::clamp(f.toPoint, from, kLastPoint);
  const int lower = std::clamp(f.plank, 0, top), upper = std::clamp(f.plank + 1, 0, top);
  for (int l : {lower, upper}) {
    alongLine(s, h, l, from, to, planPoint);
    alongLine(s, h, l, from, to, profilePoint);
  }
  for (int p = from; p <= to; ++p) {
    int side = 1;
    if (!drawnStation(p, side)) continue;
    const int c0 = stationColumn(lower), c1 = stationColumn(upper);
    const ViewPoint a = sectionPoint(h, p, c0, side);
    s.PSet(a.x, a.y);
    for (int j = c0 + 1; j <= c1; ++j) {
      const ViewPoint b = sectionPoint(h, p, j, side);
      s.LineTo(b.x, b.y);
    }
  }
}

}  // namespace

void drawFolds(DrawingSurface& s, const HullStore& h, const FoldReport& r, int stepIndex) {
  if (!r.folded()) return;
  const Colour colour = s.ForeColor;
  const std::int16_t width = s.DrawWidth, style = s.DrawStyle;
  s.ForeColor = kFoldColour;
  s.DrawWidth = kFoldWidth;
  s.DrawStyle = kStyleSolid;
  for (const FoldStretch& f : r.stretches) {
    if (f.plank == 0 || stepIndex >= 1) stretch(s, h, f);
  }
  s.ForeColor = colour;
  s.DrawWidth = width;
  s.DrawStyle = style;
}

}  // namespace tolmar
