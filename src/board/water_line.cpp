#include "board/water_line.h"

#include "board/view_map.h"

namespace tolmar {

namespace {

void centreMark(DrawingSurface& s, float cx, float cy, Colour circle, Colour cross) {
  s.Circle(cx, cy, 60, circle);
  s.Line(cx - 40, cy - 40, cx + 40, cy + 40, cross);
  s.Line(cx - 40, cy + 40, cx + 40, cy - 40, cross);
}

}  // namespace

void drawWaterline(DrawingSurface& s, const HullStore& h) {
  const Colour blue = rgb(0, 0, 255);
  s.DrawWidth = 2;
  s.ForeColor = blue;

  s.CurrentX = px(h, h.wlX(0));
  s.CurrentY = h.originY;
  for (int i = 0; i <= kLastPoint; ++i) s.LineTo(px(h, h.wlX(i)), py(h, h.wlY(i)));
  s.LineTo(px(h, h.wlX(kLastPoint)), h.originY);

  s.CurrentX = px(h, h.wlX(0));
  s.CurrentY = pz(h, h.wlZ(0));
  for (int i = 0; i <= kLastPoint; ++i) s.LineTo(px(h, h.wlX(i)), pz(h, h.wlZ(i)));

  s.CurrentX = px(h, h.bodyAxis);
  s.CurrentY = pz(h, h.wlZ(0));
  for (int i = 0; i <= 40; ++i) s.LineTo(px(h, h.bodyAxis + h.wlY(i)), pz(h, h.wlZ(i)));
  s.CurrentX = px(h, h.bodyAxis - h.wlY(40));
  s.CurrentY = pz(h, h.wlZ(40));
  for (int i = 41; i <= kLastPoint; ++i) s.LineTo(px(h, h.bodyAxis - h.wlY(i)), pz(h, h.wlZ(i)));
  s.LineTo(px(h, h.bodyAxis), pz(h, h.wlZ(kLastPoint)));

  s.DrawWidth = 1;
  centreMark(s, px(h, h.xDisp), py(h, h.yDisp), blue, blue);
  centreMark(s, px(h, h.xDisp), pz(h, h.zDisp), lineColour(h, 4), blue);
}

}  // namespace tolmar
