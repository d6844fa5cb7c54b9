#include <algorithm>
#include <cmath>

#include "board/arrows.h"
#include "board/view_map.h"
#include "board/views.h"

namespace tolmar {

void drawGrid(DrawingSurface& s, const HullStore& h) {
  const int n = std::clamp<int>(h.nChines, 1, kMaxLine);
  const double gx = h.xFwd(0) / 10;
  double yHi = h.yMax(1);
  for (int i = 2; i <= n; ++i) yHi = std::max(yHi, h.yMax(i));
  const double gy = yHi / 5;
  const double gz = h.zMax(n) / 4;
  const Colour grid = rgb(0, 255, 255);

  s.ForeColor = lineColour(h, 4);
  s.DrawStyle = kStyleSolid;
  s.Circle(h.originX, h.originZ, 50);

  const float left = static_cast<float>(h.originX - h.scaleX * gx);
  for (int i = -1; i <= 11; ++i) {
    const float x = px(h, i * gx);
    s.Line(x, h.originY, x, py(h, 5 * gy), grid);
  }
  for (int i = -1; i <= 11; ++i) {
    const float x = px(h, i * gx);
    s.Line(x, pz(h, 5 * gz), x, static_cast<float>(h.originZ - h.scaleZ * gz), grid);
  }
  for (int i = -5; i <= 5; ++i) {
    const float x = px(h, h.bodyAxis + i * gy);
    s.Line(x, pz(h, 5 * gz), x, static_cast<float>(h.originY + std::abs(i) * gy * h.scaleY), grid);
  }
  for (int i = 0; i <= 5; ++i) {
    const float y = py(h, i * gy);
    s.Line(left, y, px(h, h.bodyAxis + i * gy), y, grid);
  }
  for (int i = -1; i <= 5; ++i) {
    const float y = pz(h, i * gz);
    s.Line(left, y, px(h, 11 * gx), y, grid);
    s.Line(px(h, h.bodyAxis - 5 * gy), y, px(h, h.bodyAxis + 5 * gy), y, grid);
  }

  if (h.originZ + 300 > s.ScaleTop) {
    s.DrawStyle = kStyleDashDot;
    const float axis = px(h, h.bodyAxis);
    s.Line(axis, h.originY - 100, axis, s.ScaleTop + 300);
    s.Line(h.originX, static_cast<float>(h.originZ - h.scaleZ * gz), h.originX, s.ScaleTop + 300);
    s.DrawStyle = kStyleSolid;
    arrowUp(s);
    s.PSetStep(-s.TextWidth("00"), 0);
    s.Print("Z");
  }

  s.DrawStyle = kStyleDashDot;
  s.Line(left, h.originZ, s.Width() - 100, h.originZ);
  s.DrawStyle = kStyleSolid;

  s.Circle(h.originX, h.originY, 50);

  if (h.originY + 400 < s.ScaleHeight) {
    s.DrawStyle = kStyleDashDot;
    s.Line(h.originX, h.originY - 100, h.originX, s.Height() - 300);
    s.DrawStyle = kStyleSolid;
    arrowDown(s);
    s.Print(" Y");
  }

  s.DrawStyle = kStyleDashDot;
  s.Line(left, h.originY, px(h, 1.25 * h.xFwd(1)), h.originY);
  s.DrawStyle = kStyleSolid;
  arrowRight(s);
  s.PSetStep(-s.TextWidth("0"), -1.5f * s.TextHeight("0"));
  s.Print("X");
}

}  // namespace tolmar
