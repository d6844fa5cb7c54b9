#include "analysis/waterline_drawing.h"

#include "board/view_map.h"

namespace tolmar {

namespace {

constexpr Colour kBlue = rgb(0, 0, 255);

void moveTo(DrawingSurface& s, float x, float y) {
  s.CurrentX = x;
  s.CurrentY = y;
}

void centreMark(DrawingSurface& s, float x, float y, Colour circle) {
  s.Circle(x, y, 60, circle);
  s.Line(x - 40, y - 40, x + 40, y + 40, kBlue);
  s.Line(x - 40, y + 40, x + 40, y - 40, kBlue);
}

}  // namespace

void drawWaterline(const HullStore& h, DrawingSurface& s) {
  s.DrawWidth = 2;
  s.ForeColor = kBlue;

  moveTo(s, px(h, h.wlX(0)), h.originY);
  for (int i = 0; i <= kLastPoint; ++i) s.LineTo(px(h, h.wlX(i)), py(h, h.wlY(i)));
  s.LineTo(px(h, h.wlX(kLastPoint)), h.originY);

  moveTo(s, px(h, h.wlX(0)), pz(h, h.wlZ(0)));
  for (int i = 0; i <= kLastPoint; ++i) s.LineTo(px(h, h.wlX(i)), pz(h, h.wlZ(i)));

  const double axis = h.bodyAxis;
  moveTo(s, px(h, axis), pz(h, h.wlZ(0)));
  for (int i = 0; i <= 40; ++i) s.LineTo(px(h, axis + h.wlY(i)), pz(h, h.wlZ(i)));
  moveTo(s, px(h, axis - h.wlY(40)), pz(h, h.wlZ(40)));
  for (int i = 41; i <= kLastPoint; ++i) s.LineTo(px(h, axis - h.wlY(i)), pz(h, h.wlZ(i)));
  s.LineTo(px(h, axis), pz(h, h.wlZ(kLastPoint)));

  s.DrawWidth = 1;
  centreMark(s, px(h, h.xDisp), py(h, h.yDisp), kBlue);
  centreMark(s, px(h, h.xDisp), pz(h, h.zDisp), static_cast<Colour>(h.lineColor(4)));
}

}  // namespace tolmar
