#include "printing/page_frame.h"

#include <algorithm>
#include <limits>

#include "board/arrows.h"

namespace tolmar {

namespace {

constexpr double kInf = std::numeric_limits<double>::infinity();

// A mark shows when above < s <= atMost.  Bars lie at their own offset
// below (or, for the decimetres, above) the level of the ticks, so that
// bars of different length do not cover one another.
struct ScaleMark {
  double above, atMost;
  double metres;
  bool bar;
  float offset;
  const char* label;
  float shift;
};

constexpr ScaleMark kMarks[] = {
    {-kInf, kInf, 0, false, 0, "0", 50},         {5670, kInf, 0.1, true, -10, ".1", 80},
    {5670, kInf, 0.2, true, -10, ".2", 80},      {567, kInf, 1, true, 10, "1", 50},
    {567, kInf, 2, true, 20, "2", 50},           {56.7, 1134, 5, true, 30, "5", 50},
    {56.7, 1134, 10, true, 40, "10", 150},       {5.67, 113.4, 50, true, 50, "50", 120},
    {5.67, 113.4, 100, true, 60, "100", 120},    {0.567, 11.34, 500, true, 70, "500", 240},
    {0.567, 11.34, 1000, true, 80, "1000", 350}, {0.0567, 1.134, 10000, true, 90, "10000", 450},
};

struct LineExtent {
  double yHi = 0, zHi = 0, zLo = 0;
};

LineExtent frameExtent(const HullStore& h) {
  LineExtent e;
  const int n = std::clamp<int>(h.nChines, 0, kMaxLine);
  for (int l = 0; l <= n; ++l) {
    for (int i = 0; i <= kLastPoint; ++i) {
      e.yHi = std::max(e.yHi, h.lineY(l, i));
      e.zHi = std::max(e.zHi, h.lineZ(l, i));
      e.zLo = std::min(e.zLo, h.lineZ(l, i));
    }
  }
  return e;
}

// The horizontal axis from the left margin to `end`, its arrow and letter.
void horizontalAxis(DrawingSurface& s, double y, double end, const char* letter) {
  s.DrawStyle = kStyleDashDot;
  s.Line(static_cast<float>(kLeftMargin), static_cast<float>(y), static_cast<float>(end),
         static_cast<float>(y));
  s.DrawStyle = kStyleSolid;
  arrowRight(s);
  s.CurrentX -= 200;
  s.CurrentY += 100;
  s.Print(letter);
}

// The vertical axis at the left margin from y1 up to y2.
void verticalAxis(DrawingSurface& s, double y1, double y2, const char* letter) {
  s.DrawStyle = kStyleDashDot;
  const float x = static_cast<float>(kLeftMargin);
  s.Line(x, static_cast<float>(y1), x, static_cast<float>(y2));
  s.DrawStyle = kStyleSolid;
  arrowUp(s);
  s.CurrentX += 200;
  s.CurrentY -= 100;
  s.Print(letter);
}

}  // namespace

void ImprimeEchelle(DrawingSurface& s, const HullStore& h) {
  s.DrawStyle = kStyleSolid;
  s.DrawWidth = 1;
  const double scale = h.printScaleX;
  const float x0 = static_cast<float>(kLeftMargin);
  const float y0 = s.CurrentY + 180;
  for (const ScaleMark& m : kMarks) {
    if (!(scale > m.above && scale <= m.atMost)) continue;
    const float x = static_cast<float>(kLeftMargin + m.metres * scale);
    if (m.bar) s.Line(x0, y0 + m.offset, x, y0 + m.offset);
    s.Line(x, y0 - 50, x, y0 + 100);
    s.CurrentX -= m.shift;
    s.Print(m.label);
  }
}

void printFrame(PrintJob& job, FrameView view) {
  BusyScope busy(job.host);
  DrawingSurface& s = job.s;
  const HullStore& h = job.h;
  s.FontName = kPrinterFont;
  s.PSet(static_cast<float>(kLeftMargin), 200);
  s.Print({h.hullName, "  date:", job.today(), "   page", static_cast<int>(s.Page)});
  ImprimeEchelle(s, h);

  const LineExtent e = frameExtent(h);
  const double W = job.pageWidth();
  const double oY = h.printOriginY, oZ = h.printOriginZ;
  const double sY = h.printScaleY, sZ = h.printScaleZ;
  switch (view) {
    case FrameView::Sheet:
      horizontalAxis(s, oY, W * 0.95 - 200, "X");
      break;
    case FrameView::Plan: {
      horizontalAxis(s, oY, W * 0.95 - 400, "X");
      verticalAxis(s, sY * e.yHi + oY, oY - 1.1 * e.yHi * sY - 200, "Y");
      break;
    }
    case FrameView::Profile:
      horizontalAxis(s, oZ, W * 0.95 - 200, "X");
      verticalAxis(s, oZ + 100, oZ + 100 + 1.2 * e.zHi * sZ - 200, "Z");
      break;
    case FrameView::Sections:
      horizontalAxis(s, oZ, W * 0.95 - 200, "Y");
      verticalAxis(s, sZ * e.zLo + oZ + 100, sZ * e.zLo + oZ + 100 + 1.2 * e.zHi * sZ - 200, "Z");
      break;
  }
}

}  // namespace tolmar
