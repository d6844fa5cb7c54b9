#include <algorithm>
#include <cmath>
#include <string>

#include "board/arrows.h"
#include "board/view_map.h"
#include "board/views.h"

namespace tolmar {

namespace {

void planOutline(DrawingSurface& s, const HullStore& h, int lower, int line) {
  const ViewPoint a = planPoint(h, lower, 0);
  s.PSet(a.x, a.y);
  for (int i = 0; i <= kLastPoint; ++i) {
    const ViewPoint p = planPoint(h, line, i);
    s.LineTo(p.x, p.y);
  }
  const ViewPoint b = planPoint(h, lower, kLastPoint);
  s.LineTo(b.x, b.y);
}

void profileOutline(DrawingSurface& s, const HullStore& h, int lower, int line) {
  const ViewPoint a = profilePoint(h, lower, 0);
  s.PSet(a.x, a.y);
  for (int i = 0; i <= kLastPoint; ++i) {
    const ViewPoint p = profilePoint(h, line, i);
    s.LineTo(p.x, p.y);
  }
  const ViewPoint b = profilePoint(h, lower, kLastPoint);
  s.LineTo(b.x, b.y);
}

void drawBottom(DrawingSurface& s, const HullStore& h) {
  const int iBeam = boardBeamPoint(h);
  s.ForeColor = lineColour(h, 0);

  // Station of maximum beam and half beam.
  const float x0 = px(h, h.lineX(1, iBeam));
  s.Line(x0, h.originY - 50, x0, h.originY);
  arrowRight(s);
  std::string t = dimensionText(h.lineX(1, iBeam));
  s.CurrentX = x0 - s.TextWidth(t) - 120;
  s.CurrentY = h.originY - s.TextHeight(t);
  s.Print(t);
  s.LineFromStep(x0, h.originY, 0, static_cast<float>(h.scaleY * h.lineY(1, iBeam)));
  arrowDown(s);
  s.CurrentX = x0 + 50;
  s.CurrentY = py(h, h.lineY(1, iBeam) / 2);
  s.Print(dimensionText(h.lineY(1, iBeam)));

  // Overall length.
  const float x1 = px(h, h.xFwd(0));
  s.Line(x1, pz(h, h.lineZ(0, 82)) + 100, x1, pz(h, h.lineZ(0, 64)));
  arrowRight(s);
  s.LineStep(-300, 0);
  t = dimensionText(h.xFwd(0));
  s.CurrentX = x1 - s.TextWidth(t) - 120;
  s.CurrentY = s.CurrentY + 60;
  s.Print(t);

  // Plan: first chine from the aft end of the keel to the stem, closed by
  // the centre line.
  planOutline(s, h, 0, 1);
  const ViewPoint keelAft = planPoint(h, 0, 0);
  s.LineTo(keelAft.x, keelAft.y);

  // Profile: first chine, then the keel.
  profileOutline(s, h, 0, 1);
  const ViewPoint k0 = profilePoint(h, 0, 0);
  s.PSet(k0.x, k0.y);
  for (int i = 0; i <= kLastPoint; ++i) {
    const ViewPoint p = profilePoint(h, 0, i);
    s.LineTo(p.x, p.y);
  }

  // Depth of the keel at the maximum beam.
  const int m = std::clamp<int>(h.iMaxBeam, 0, kLastPoint);
  s.PSet(px(h, h.lineX(0, m)), h.originZ);
  s.LineStep(0, static_cast<float>(h.scaleZ * h.lineZ(0, m)));
  arrowDown(s);
  s.PSetStep(-150, 50);
  s.Print(dimensionText(h.lineZ(0, m)));
}

// The dimensions of the planks show the outermost of the last two lines.
void plankDimensions(DrawingSurface& s, const HullStore& h, int n, int iBeam) {
  int m = h.lineX(n, 82) < h.lineX(n - 1, 82) ? n - 1 : n;
  s.ForeColor = lineColour(h, m);
  s.LineFromStep(px(h, h.lineX(m, 82)), py(h, h.lineY(m, 82)) + 100, 0, 500);
  arrowRight(s);
  s.LineStep(-300, 0);
  s.CurrentY = s.CurrentY + 0.5f * s.TextHeight("0");
  s.Print(dimensionText(h.lineX(m, 82)));

  m = h.lineX(n, 0) < h.lineX(n - 1, 0) ? n : n - 1;
  s.ForeColor = lineColour(h, m);
  s.LineFromStep(px(h, h.lineX(m, 0)), py(h, h.lineY(m, 0)) + 100, 0, 400);
  arrowLeft(s);
  s.LineStep(static_cast<float>(-h.scaleX * h.lineX(m, 0)), 0);
  s.CurrentX = px(h, h.lineX(m, 0));
  s.CurrentY = s.CurrentY + 0.5f * s.TextHeight("0");
  s.Print(dimensionText(h.lineX(m, 0)));

  m = h.lineY(n, iBeam) <= h.lineY(n - 1, iBeam) ? n - 1 : n;
  s.ForeColor = lineColour(h, m);
  const float x0 = px(h, h.lineX(m, iBeam));
  const float y0 = py(h, h.lineY(m, iBeam));
  s.LineFromStep(x0 - 50, y0 + 100, 50, -100);
  s.LineStep(50, 100);
  s.LineFromStep(x0, y0, 0, 300);
  s.CurrentX = x0 + 50;
  s.CurrentY = y0 + 150;
  s.Print(dimensionText(h.lineY(m, iBeam)));

  s.ForeColor = lineColour(h, n);
  s.LineFromStep(px(h, h.lineX(n, 82)) + 50, pz(h, h.lineZ(n, 82)), 200, 0);
  arrowDown(s);
  s.LineStep(0, -400);
  const std::string t = dimensionText(h.lineZ(n, 82));
  s.CurrentX = s.CurrentX - s.TextWidth(t) - 50;
  s.Print(t);
}

void drawPlanks(DrawingSurface& s, const HullStore& h) {
  const int n = std::min<int>(h.nChines, kMaxLine);
  if (n < 2) return;
  plankDimensions(s, h, n, boardBeamPoint(h));
  for (int j = 2; j <= n; ++j) {
    s.ForeColor = lineColour(h, j);
    profileOutline(s, h, j - 1, j);
    if (h.transomTurn(j) != h.transomTurn(j - 1) || j == n) {
      const float x = px(h, h.lineX(j, 0));
      s.Line(x, h.originY, x, py(h, h.lineY(j, 0)));
    }
    planOutline(s, h, j - 1, j);
    if (h.bowTurn(j) != h.bowTurn(j - 1) || j == n) {
      const float x = px(h, h.lineX(j, 82));
      s.Line(x, py(h, h.lineY(j, 82)), x, h.originY);
    }
  }
}

}  // namespace

void drawLines(DrawingSurface& s, const HullStore& h, int k) {
  s.DrawStyle = kStyleSolid;
  if (k == 0)
    drawBottom(s, h);
  else
    drawPlanks(s, h);
}

}  // namespace tolmar
