#include "board/plate_drawing.h"

#include <algorithm>
#include <functional>

#include "board/view_map.h"
#include "development/calc_develop.h"
#include "development/end_plates.h"

namespace tolmar {

namespace {

using FlatToView = std::function<ViewPoint(double x, double y)>;

void devOutline(DrawingSurface& s, const HullStore& h, int last, const FlatToView& at) {
  last = std::clamp(last, 0, kMaxDev);
  ViewPoint p = at(h.devXi(0), h.devYi(0));
  s.PSet(p.x, p.y);
  for (int i = 0; i <= last; ++i) {
    p = at(h.devXi(i), h.devYi(i));
    s.LineTo(p.x, p.y);
  }
  p = at(h.devXi(0), h.devYi(0));
  s.PSet(p.x, p.y);
  for (int i = 0; i <= last; ++i) {
    p = at(h.devXs(i), h.devYs(i));
    s.LineTo(p.x, p.y);
  }
  p = at(h.devXi(last), h.devYi(last));
  s.LineTo(p.x, p.y);
}

// Outline of an end plate from the centre line round its section points
// and back to the centre line; then the turn-in stroke if any.
void endPlate(DrawingSurface& s, const HullStore& h, const EndPlate& t, const LineI16& turn,
              const FlatToView& at) {
  const int last = lastSectionPoint(h);
  s.ForeColor = lineColour(h, 1);
  s.DrawStyle = kStyleSolid;
  ViewPoint p = at(t(1, 0), t(2, 0));
  s.PSet(p.x, p.y);
  for (int j = 1; j <= last; ++j) {
    p = at(t(1, j), t(2, j));
    s.LineTo(p.x, p.y);
  }
  p = at(t(1, last), 0);
  s.LineTo(p.x, p.y);
  for (int line : {2, 3}) {
    const int j = line + 9;
    if (turn(line) != -1) continue;
    if (j <= last) {
      const ViewPoint a = at(t(1, j), 0), b = at(t(1, j), t(2, j));
      s.Line(a.x, a.y, b.x, b.y, lineColour(h, line));
    }
    break;
  }
}

}  // namespace

void drawDevBottom(DrawingSurface& s, const HullStore& h, int last) {
  s.ForeColor = lineColour(h, 0);
  s.DrawStyle = kStyleDot;
  devOutline(s, h, last, [&](double x, double y) {
    return ViewPoint{static_cast<float>(h.originX + h.scaleX * x),
                     static_cast<float>(h.originY + h.scaleY * y)};
  });
  s.DrawStyle = kStyleSolid;
}

void drawDevPlank(DrawingSurface& s, const HullStore& h, int last, int colourIndex, double offsetX,
                  double offsetY) {
  s.ForeColor = lineColour(h, std::clamp(colourIndex, 0, kMaxLine));
  s.DrawStyle = kStyleDot;
  devOutline(s, h, last, [&](double x, double y) {
    return ViewPoint{static_cast<float>(h.originX + h.scaleX * (x + offsetX)),
                     static_cast<float>(h.originZ + h.scaleZ * (y + offsetY))};
  });
  s.DrawStyle = kStyleSolid;
  s.ForeColor = lineColour(h, 0);
}

void drawTransomPlate(DrawingSurface& s, const HullStore& h) {
  endPlate(s, h, h.transomPlate, h.transomTurn, [&](double d, double y) {
    return ViewPoint{static_cast<float>(h.originX + 300 + h.scaleX * d),
                     static_cast<float>(h.originY + h.scaleY * y)};
  });
}

void drawBowPlate(DrawingSurface& s, const HullStore& h) {
  endPlate(s, h, h.bowPlate, h.bowTurn, [&](double d, double y) {
    return ViewPoint{static_cast<float>(h.originX + h.scaleX * (h.lineX(0, 80) - d)),
                     static_cast<float>(h.originY + h.scaleY * y)};
  });
}

void developerDisplay(DrawingSurface& s, HullStore& h, int stepIndex) {
  developBottom(h);
  drawDevBottom(s, h, kBottomLastPoint);
  if (stepIndex == 0) return;
  const int n = std::min<int>(h.nChines, kMaxLine);
  for (int k = 1; k <= n - 1; ++k) {
    developPlank(h, k);
    drawDevPlank(s, h, kPlankLastPoint, k + 1, h.lineX(k + 1, 0), (1 + 0.1 * k) * h.lineZ(k, 40));
  }
  calcTransomPlate(h);
  drawTransomPlate(s, h);
  if (hasPramBow(h)) {
    calcBowPlate(h);
    drawBowPlate(s, h);
  }
  s.ForeColor = lineColour(h, 0);
}

}  // namespace tolmar
