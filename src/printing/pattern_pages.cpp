#include "printing/pattern_pages.h"

#include <algorithm>
#include <cmath>
#include <cstdio>
#include <utility>

#include "printing/flat_clip.h"
#include "printing/paper_setup.h"
#include "printing/print_job.h"

namespace tolmar {

namespace {

float tw(double mm) { return static_cast<float>(mm / kMmPerTwip); }

// Widths of the pen, in dots of the device: the cutting line stands out
// from the marks.
constexpr std::int16_t kOutlineWidth = 3;
constexpr std::int16_t kMarkWidth = 1;

std::string text(const char* fmt, int a, int b, int c, int d) {
  char buf[160];
  std::snprintf(buf, sizeof buf, fmt, a, b, c, d);
  return buf;
}

std::string headOf(const HullStore& h, const DevelopedPlate& p) {
  const int l = h.langue == 0 ? 0 : 1;
  std::string s = h.hullName + "   " + p.name + "  " + plateTitle(p, l);
  if (p.cutTwice) s += l == 0 ? "   à couper 2 fois, en miroir" : "   cut 2, mirrored";
  return s;
}

// One tile: poster millimetres to the page, the window clipping them.
class Tile {
 public:
  Tile(DrawingSurface& s, const PatternEntry& e, int row, int col)
      : s_(s), e_(e), row_(row), col_(col), box_(e.window(row, col)) {}

  void line(double u1, double v1, double u2, double v2) {
    if (!clipToBox(u1, v1, u2, v2, box_)) return;
    s_.Line(x(u1), y(v1), x(u2), y(v2));
  }

  void frame() {
    const PlateTiling& t = e_.tiling;
    s_.DrawStyle = kStyleSolid;
    s_.LineBox(x(box_.x0), y(box_.y0), x(box_.x1), y(box_.y1));
    // The bands shared with a neighbour, their inner edge dotted, and the
    // crosses on the band's middle line at a quarter and three quarters.
    const double o = t.overlap, arm = crossArmMm(o);
    auto crossesAcross = [&](double u) {  // a band along v, at u
      for (double f : {0.25, 0.75}) cross(u, box_.y0 + f * t.tileH, arm);
    };
    auto crossesDown = [&](double v) {
      for (double f : {0.25, 0.75}) cross(box_.x0 + f * t.tileW, v, arm);
    };
    if (col_ > 0) {
      dotted(box_.x0 + o, box_.y0, box_.x0 + o, box_.y1);
      crossesAcross(box_.x0 + o / 2);
    }
    if (col_ < t.cols - 1) {
      dotted(box_.x1 - o, box_.y0, box_.x1 - o, box_.y1);
      crossesAcross(box_.x1 - o / 2);
    }
    if (row_ > 0) {
      dotted(box_.x0, box_.y0 + o, box_.x1, box_.y0 + o);
      crossesDown(box_.y0 + o / 2);
    }
    if (row_ < t.rows - 1) {
      dotted(box_.x0, box_.y1 - o, box_.x1, box_.y1 - o);
      crossesDown(box_.y1 - o / 2);
    }
  }

 private:
  float x(double u) const { return tw(u - box_.x0); }
  float y(double v) const { return tw(kPatternHeadMm + v - box_.y0); }
  void dotted(double u1, double v1, double u2, double v2) {
    s_.DrawStyle = kStyleDot;
    s_.Line(x(u1), y(v1), x(u2), y(v2));
    s_.DrawStyle = kStyleSolid;
  }
  void cross(double u, double v, double arm) {
    s_.Line(x(u - arm), y(v), x(u + arm), y(v));
    s_.Line(x(u), y(v - arm), x(u), y(v + arm));
  }

  DrawingSurface& s_;
  const PatternEntry& e_;
  int row_, col_;
  ClipBox box_;
};

void tilePage(DrawingSurface& s, const HullStore& h, const PatternPlan& plan, const PatternEntry& e,
              const std::vector<PosterSegment>& lines, int row, int col) {
  const int l = h.langue == 0 ? 0 : 1;
  s.FontName = kPrinterFont;
  s.FontSize = 10;
  s.ForeColor = 0;
  s.DrawWidth = kMarkWidth;
  s.DrawStyle = kStyleSolid;
  s.PSet(0, 0);
  s.Print(headOf(h, *e.plate));
  s.Print(text(l == 0 ? "rangée %d sur %d, colonne %d sur %d" : "row %d of %d, column %d of %d",
               row + 1, e.tiling.rows, col + 1, e.tiling.cols) +
          text("      page %d / %d", e.page(row, col), plan.pages, 0, 0));
  Tile t(s, e, row, col);
  t.frame();
  // The lap line dashed, the ticks thin, the cutting line last and wide.
  for (const PosterSegment& g : lines) {
    if (g.kind == PosterLine::outline) continue;
    s.DrawStyle = g.kind == PosterLine::lap ? kStyleDash : kStyleSolid;
    t.line(g.u1, g.v1, g.u2, g.v2);
  }
  s.DrawStyle = kStyleSolid;
  s.DrawWidth = kOutlineWidth;
  for (const PosterSegment& g : lines)
    if (g.kind == PosterLine::outline) t.line(g.u1, g.v1, g.u2, g.v2);
  s.DrawWidth = kMarkWidth;
}

void mapHead(DrawingSurface& s, const HullStore& h, PrintHost& host, const PatternPlan& plan,
             const std::string& paper, int mapPage) {
  const int l = h.langue == 0 ? 0 : 1;
  s.FontName = kPrinterFont;
  s.FontSize = 10;
  s.PSet(0, 0);
  s.Print(h.hullName + "   " +
          (l == 0 ? "Gabarits grandeur nature : plan des feuilles"
                  : "Full-size patterns: map of the tiles") +
          "   " + dateText(host.today()) + text("   page %d / %d", mapPage, plan.pages, 0, 0));
  char buf[200];
  std::snprintf(buf, sizeof buf,
                l == 0 ? "%s, recouvrement %.0f mm : %d gabarits, %d pages. Chaque case porte le "
                         "numéro de sa page."
                       : "%s, overlap %.0f mm: %d patterns, %d pages. Each cell carries the "
                         "number of its page.",
                paper.c_str(), plan.entries.empty() ? 0.0 : plan.entries.front().tiling.overlap,
                static_cast<int>(plan.entries.size()), plan.pages);
  s.Print(std::string(buf));
}

void mapFigure(DrawingSurface& s, const HullStore& h, const PatternEntry& e) {
  const int l = h.langue == 0 ? 0 : 1;
  const PlateTiling& t = e.tiling;
  s.FontSize = 9;
  s.DrawWidth = kMarkWidth;
  s.DrawStyle = kStyleSolid;
  s.PSet(0, tw(e.mapTop));
  char buf[200];
  std::snprintf(buf, sizeof buf,
                l == 0 ? "   %d x %d feuilles, %d imprimées" : "   %d x %d tiles, %d printed",
                t.rows, t.cols, e.printed);
  s.Print(headOf(h, *e.plate) + buf);
  // The plate lies along the map, its X across, whichever way it lies on
  // the tiles.
  const double top = e.mapTop + kMapCaptionMm, k = e.mapScale;
  auto P = [&](double u, double v) {
    const double mx = t.turned ? v : u, my = t.turned ? t.gridW() - u : v;
    return std::pair<float, float>{tw(mx * k), tw(top + my * k)};
  };
  auto line = [&](double u1, double v1, double u2, double v2) {
    const auto [x1, y1] = P(u1, v1);
    const auto [x2, y2] = P(u2, v2);
    s.Line(x1, y1, x2, y2);
  };
  // The cells: each tile's window less the band it shares with the next.
  line(0, 0, t.gridW(), 0);
  line(t.gridW(), 0, t.gridW(), t.gridH());
  line(t.gridW(), t.gridH(), 0, t.gridH());
  line(0, t.gridH(), 0, 0);
  for (int c = 1; c < t.cols; ++c) line(t.u0(c), 0, t.u0(c), t.gridH());
  for (int r = 1; r < t.rows; ++r) line(0, t.v0(r), t.gridW(), t.v0(r));
  for (const PosterSegment& g : posterLines(*e.plate, e.map))
    if (g.kind == PosterLine::outline) line(g.u1, g.v1, g.u2, g.v2);
  s.FontSize = 5;
  for (int r = 0; r < t.rows; ++r)
    for (int c = 0; c < t.cols; ++c) {
      if (e.page(r, c) == 0) continue;
      const std::string n = std::to_string(e.page(r, c));
      // The cell's corner nearest the map's top left.
      const auto [xa, ya] = P(t.u0(c), t.v0(r));
      const auto [xb, yb] = P(t.u0(c) + t.stepU(), t.v0(r) + t.stepV());
      const float cellW = std::fabs(xb - xa), cellH = std::fabs(yb - ya);
      if (s.TextWidth(n) + 30 > cellW || s.TextHeight(n) + 20 > cellH) continue;
      s.PSet(std::min(xa, xb) + 15, std::min(ya, yb) + 10);
      s.Print(n);
    }
}

}  // namespace

std::string plateTitle(const DevelopedPlate& p, int langue) {
  const bool fr = langue == 0;
  switch (p.kind) {
    case PlateKind::bottom:
      return fr ? "fond" : "bottom";
    case PlateKind::plank:
      return (fr ? "bordé " : "plank ") + std::to_string(p.index);
    case PlateKind::deck:
      return (fr ? "pont " : "deck ") + std::to_string(p.index);
    case PlateKind::transom:
      return fr ? "tableau" : "transom";
    case PlateKind::pramBow:
      return fr ? "marotte" : "pram bow";
  }
  return {};
}

double crossArmMm(double overlapMm) { return std::clamp(overlapMm / 2 - 1, 1.0, 4.0); }

PatternPlan planPatterns(const DrawingSurface& s, const std::vector<const DevelopedPlate*>& plates,
                         double overlapMm) {
  return planPatterns(plates, s.Width() * kMmPerTwip, s.Height() * kMmPerTwip, overlapMm);
}

void printPatterns(DrawingSurface& s, const HullStore& h, PrintHost& host, const PatternPlan& plan,
                   const std::string& paper) {
  BusyScope busy(host);
  bool first = true;
  auto next = [&] {
    if (!first) s.NewPage();
    first = false;
  };
  int mapPage = 0;
  for (const PatternEntry& e : plan.entries) {
    if (e.mapPage != mapPage) {
      next();
      mapPage = e.mapPage;
      mapHead(s, h, host, plan, paper, mapPage);
    }
    mapFigure(s, h, e);
  }
  for (const PatternEntry& e : plan.entries) {
    const std::vector<PosterSegment> lines = posterLines(*e.plate, e.map);
    for (int r = 0; r < e.tiling.rows; ++r)
      for (int c = 0; c < e.tiling.cols; ++c) {
        if (e.page(r, c) == 0) continue;
        next();
        tilePage(s, h, plan, e, lines, r, c);
      }
  }
  s.EndDoc();
}

}  // namespace tolmar
