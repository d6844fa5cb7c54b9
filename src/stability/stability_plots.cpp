#include "stability/stability_plots.h"

#include <algorithm>
#include <cmath>
#include <limits>

#include "stability/stability_text.h"
#include "text/number_format.h"

namespace tolmar::stability {

namespace {

constexpr Colour kBlack = 0;
constexpr Colour kGrey = 0xC0C0C0;
constexpr Colour kBlue = 0xFF0000;  // red in the low byte
constexpr Colour kRed = 0x0000FF;
constexpr Colour kGreen = 0x008000;
constexpr Colour kOrange = 0x0080FF;

std::string str(std::string_view v) { return std::string(v); }
std::string fmt(double v, const char* picture = "0.000") { return formatNumber(v, picture); }

// 1, 2 or 5 times a power of ten, near range / n.
double niceStep(double range, int n) {
  if (!(range > 0)) return 1;
  const double raw = range / n;
  const double p = std::pow(10.0, std::floor(std::log10(raw)));
  for (double k : {1.0, 2.0, 5.0})
    if (k * p >= raw) return k * p;
  return 10 * p;
}

// Maps values into the box's inner area.
struct Axes {
  PlotBox inner;
  double x0 = 0, x1 = 1, y0 = 0, y1 = 1;
  float px(double x) const {
    return inner.left + static_cast<float>((x - x0) / (x1 - x0)) * inner.width;
  }
  float py(double y) const {
    return inner.top + inner.height - static_cast<float>((y - y0) / (y1 - y0)) * inner.height;
  }
};

void textAt(DrawingSurface& s, float x, float y, const std::string& t, Colour c = kBlack) {
  s.ForeColor = c;
  s.CurrentX = x;
  s.CurrentY = y;
  s.Print(t);
}

// Frame, grid and tick labels.
void drawAxes(DrawingSurface& s, const Axes& a, double dx, double dy, const char* xPicture,
              const char* yPicture, const std::string& xLabel, const std::string& yLabel,
              const std::string& title) {
  const float th = s.TextHeight("0");
  s.DrawWidth = 1;
  s.DrawStyle = kStyleSolid;
  for (double x = std::ceil(a.x0 / dx) * dx; x <= a.x1 + 1e-9 * dx; x += dx) {
    s.Line(a.px(x), a.inner.top, a.px(x), a.inner.top + a.inner.height, kGrey);
    const std::string t = fmt(x, xPicture);
    textAt(s, a.px(x) - s.TextWidth(t) / 2, a.inner.top + a.inner.height + th / 4, t);
  }
  for (double y = std::ceil(a.y0 / dy) * dy; y <= a.y1 + 1e-9 * dy; y += dy) {
    s.Line(a.inner.left, a.py(y), a.inner.left + a.inner.width, a.py(y), kGrey);
    const std::string t = fmt(std::fabs(y) < 1e-12 ? 0 : y, yPicture);
    textAt(s, a.inner.left - s.TextWidth(t) - th / 3, a.py(y) - th / 2, t);
  }
  s.ForeColor = kBlack;
  s.LineBox(a.inner.left, a.inner.top, a.inner.left + a.inner.width, a.inner.top + a.inner.height);
  textAt(s, a.inner.left + a.inner.width - s.TextWidth(xLabel),
         a.inner.top + a.inner.height + th * 1.3f, xLabel);
  textAt(s, a.inner.left - s.TextWidth("0.000") - th / 2, a.inner.top - th * 1.2f, yLabel);
  textAt(s, a.inner.left + (a.inner.width - s.TextWidth(title)) / 2, a.inner.top - th * 2.4f,
         title);
}

PlotBox innerBox(DrawingSurface& s, const PlotBox& b) {
  const float th = s.TextHeight("0");
  const float left = s.TextWidth("-0.000") + th;
  return {b.left + left, b.top + th * 2.6f, b.width - left - th, b.height - th * 5.2f};
}

}  // namespace

void drawGzPlot(DrawingSurface& s, const PlotBox& box, const StabilityResult& r, int langue) {
  if (r.gz.empty() || box.width <= 0 || box.height <= 0) return;
  Axes a;
  a.inner = innerBox(s, box);
  a.x0 = r.gz.front().heel;
  a.x1 = std::max(r.gz.back().heel, a.x0 + 1);
  double lo = 0, hi = 0;
  for (const GzPoint& p : r.gz)
    if (p.floats) {
      lo = std::min(lo, p.gz);
      hi = std::max(hi, p.gz);
    }
  if (hi - lo < 1e-6) hi = lo + 0.1;
  const double dy = niceStep(hi - lo, 6);
  a.y0 = std::floor(lo / dy) * dy;
  a.y1 = std::ceil(hi / dy) * dy;
  drawAxes(s, a, niceStep(a.x1 - a.x0, 9), dy, "0", dy < 0.01 ? "0.000" : "0.00",
           str(text(Text::heelAxis, langue)), str(text(Text::gzAxis, langue)),
           str(text(Text::gzTitle, langue)));
  s.Line(a.px(a.x0), a.py(0), a.px(a.x1), a.py(0), kBlack);

  // The curve, broken where the hull cannot float; those angles crossed.
  s.DrawWidth = 2;
  bool pen = false;
  for (const GzPoint& p : r.gz) {
    if (!p.floats) {
      pen = false;
      const float x = a.px(p.heel), y = a.py(0), d = 60;
      s.DrawWidth = 1;
      s.Line(x - d, y - d, x + d, y + d, kRed);
      s.Line(x - d, y + d, x + d, y - d, kRed);
      s.DrawWidth = 2;
      continue;
    }
    if (pen)
      s.LineTo(a.px(p.heel), a.py(p.gz), kBlue);
    else {
      s.PSet(a.px(p.heel), a.py(p.gz));
      s.CurrentX = a.px(p.heel);
      s.CurrentY = a.py(p.gz);
    }
    pen = true;
  }
  s.DrawWidth = 1;
  const float th = s.TextHeight("0");
  const StabilitySummary& m = r.summary;
  if (m.gm && *m.gm > 0) {
    // The tangent at the origin reaches GM at one radian.
    const double deg = 180 / 3.141592653589793;
    double xEnd = std::min(a.x1, deg), yEnd = *m.gm * xEnd / deg;
    if (yEnd > a.y1) {  // cut at the top of the plot
      xEnd = a.y1 / *m.gm * deg;
      yEnd = a.y1;
    }
    if (xEnd > a.x0) {
      s.DrawStyle = kStyleDash;
      s.Line(a.px(0), a.py(0), a.px(xEnd), a.py(yEnd), kOrange);
      s.DrawStyle = kStyleSolid;
      textAt(s, a.px(xEnd) + th / 4, a.py(yEnd) - th,
             str(text(Text::gmLine, langue)) + " = " + fmt(*m.gm) + " m", kOrange);
    }
  }
  auto vertical = [&](double deg, Colour c, const std::string& label, int row) {
    if (deg < a.x0 || deg > a.x1) return;
    s.DrawStyle = kStyleDot;
    s.Line(a.px(deg), a.inner.top, a.px(deg), a.inner.top + a.inner.height, c);
    s.DrawStyle = kStyleSolid;
    const float w = s.TextWidth(label);
    const float x = a.px(deg) + w + th / 3 < a.inner.left + a.inner.width ? a.px(deg) + th / 4
                                                                          : a.px(deg) - w - th / 4;
    textAt(s, x, a.inner.top + th * (0.3f + 1.1f * row), label, c);
  };
  if (m.maxGz && m.maxGzHeel) {
    s.Circle(a.px(*m.maxGzHeel), a.py(*m.maxGz), 70, kRed);
    vertical(*m.maxGzHeel, kRed,
             str(text(Text::maxGz, langue)) + " " + fmt(*m.maxGz) + " m, " +
                 fmt(*m.maxGzHeel, "0.0") + "°",
             0);
  }
  if (m.deckEdge)
    vertical(*m.deckEdge, kGreen,
             str(text(Text::deckEdge, langue)) + " " + fmt(*m.deckEdge, "0.0") + "°", 1);
  if (m.vanishing)
    vertical(*m.vanishing, kBlack,
             str(text(Text::vanishing, langue)) + " " + fmt(*m.vanishing, "0.0") + "°", 2);
  if (r.crewAsked && r.crew.rests)
    vertical(r.crew.heel, kOrange,
             str(text(Text::crewHeel, langue)) + " " + fmt(r.crew.heel, "0.0") + "°", 3);
}

void drawCurvesPlot(DrawingSurface& s, const PlotBox& box, const std::vector<UprightRow>& rows,
                    int langue) {
  if (rows.empty() || box.width <= 0 || box.height <= 0) return;
  struct Curve {
    const char* name;
    double UprightRow::*field;
    const char* unit;
    bool position;  // scaled over its own range rather than from 0
    Colour colour;
  };
  const bool fr = langue == 0;
  const Curve curves[] = {
      {fr ? "Déplacement" : "Displacement", &UprightRow::displacement, "t", false, kBlue},
      {"LCB", &UprightRow::lcb, "m", true, kRed},
      {"KB", &UprightRow::kb, "m", false, 0x808000},
      {fr ? "Flottaison" : "Waterplane", &UprightRow::waterplane, "m2", false, kGreen},
      {"LCF", &UprightRow::lcf, "m", true, 0x800080},
      {"KMt", &UprightRow::kmt, "m", false, kOrange},
      {"TPC", &UprightRow::tpc, "t/cm", false, 0x404040},
      {"MCT 1 cm", &UprightRow::mct, "t m/cm", false, 0x008080},
      {fr ? "Surface mouillée" : "Wetted surface", &UprightRow::wetted, "m2", false, 0x8080FF},
  };
  const float th = s.TextHeight("0");
  PlotBox legendless = box;
  const float legend = s.TextWidth("Wetted surface 00.000 - 00.000 t m/cm") + th;
  legendless.width = std::max(box.width * 0.5f, box.width - legend);
  Axes a;
  a.inner = innerBox(s, legendless);
  a.x0 = 0;
  a.x1 = 1;
  a.y0 = 0;
  a.y1 = std::max(rows.back().draft, 1e-6);
  drawAxes(s, a, 0.2, niceStep(a.y1, 6), "0.0", "0.00",
           fr ? "Échelle de chaque courbe" : "Each curve to its scale",
           str(text(Text::draftAxis, langue)), str(text(Text::curvesTitle, langue)));
  float legendY = a.inner.top;
  const float legendX = a.inner.left + a.inner.width + th;
  for (const Curve& c : curves) {
    double lo = std::numeric_limits<double>::max(), hi = -lo;
    for (const UprightRow& r : rows) {
      lo = std::min(lo, r.*c.field);
      hi = std::max(hi, r.*c.field);
    }
    const double from = c.position ? lo : std::min(0.0, lo);
    const double span = hi - from > 1e-12 ? hi - from : 1;
    s.DrawWidth = 2;
    s.CurrentX = a.px((rows.front().*c.field - from) / span);
    s.CurrentY = a.py(rows.front().draft);
    for (const UprightRow& r : rows)
      s.LineTo(a.px((r.*c.field - from) / span), a.py(r.draft), c.colour);
    s.DrawWidth = 1;
    s.Line(legendX, legendY + th / 2, legendX + th, legendY + th / 2, c.colour);
    textAt(s, legendX + th * 1.3f, legendY,
           std::string(c.name) + " " + fmt(from) + " - " + fmt(hi) + " " + c.unit, kBlack);
    legendY += th * 1.2f;
  }
}

std::vector<std::string> summaryLines(const StabilityResult& r, int langue) {
  const bool fr = langue == 0;
  auto angle = [&](const std::optional<double>& v) {
    return v ? fmt(*v, "0.0") + "°" : str(text(Text::none, langue));
  };
  auto length = [&](const std::optional<double>& v) {
    return v ? fmt(*v) + " m" : str(text(Text::none, langue));
  };
  auto area = [&](const std::optional<double>& v) {
    return v ? fmt(*v, "0.0000") + " m rad" : str(text(Text::none, langue));
  };
  std::vector<std::string> l;
  l.push_back(str(text(Text::loading, langue)) + " : " + fmt(r.load.volume) +
              " m3 = " + fmt(r.load.massKg(), "0") + " kg (" + fmt(r.load.density) +
              " t/m3), LCG = " + fmt(r.lcg) + " m, KG = " + fmt(r.kg) + " m");
  if (!fr) l.back().replace(l.back().find(" : "), 3, ": ");
  l.push_back(str(text(Text::heightsNote, langue)));
  const StabilitySummary& m = r.summary;
  l.push_back("GM = " + length(m.gm) + "    " + str(text(Text::maxGz, langue)) + " = " +
              length(m.maxGz) + (m.maxGzHeel ? (fr ? " à " : " at ") + angle(m.maxGzHeel) : ""));
  l.push_back(str(text(Text::vanishing, langue)) + " = " + angle(m.vanishing) + "    " +
              str(text(Text::deckEdge, langue)) + " " + angle(m.deckEdge));
  l.push_back(str(text(Text::area30, langue)) + " = " + area(m.area30) + "    " +
              str(text(Text::area40, langue)) + " = " + area(m.area40));
  if (r.crewAsked) {
    const std::string who =
        fmt(r.crewKg, "0") + " kg " + (fr ? "à" : "at") + " Y = " + fmt(r.crewY) + " m";
    if (r.crew.rests)
      l.push_back(str(text(Text::crewHeel, langue)) + " (" + who + ") = " + angle(r.crew.heel) +
                  "    " + str(text(Text::crewFreeboard, langue)) + " = " +
                  length(r.crew.freeboard));
    else
      l.push_back(str(text(Text::crewHeel, langue)) + " (" + who +
                  ") : " + str(text(Text::capsizes, langue)));
  }
  return l;
}

Table gzTable(const StabilityResult& r, int langue) {
  const bool fr = langue == 0;
  Table t;
  t.head = {fr ? "Gîte (deg)" : "Heel (deg)",       "GZ (m)",
            fr ? "Moment (kg m)" : "Moment (kg m)", fr ? "Tirant d'eau (m)" : "Draft (m)",
            fr ? "Assiette (deg)" : "Pitch (deg)",  fr ? "Franc-bord (m)" : "Freeboard (m)"};
  for (const GzPoint& p : r.gz) {
    if (!p.floats) {
      t.rows.push_back({fmt(p.heel, "0.0"), str(text(Text::cannotFloat, langue))});
      continue;
    }
    t.rows.push_back({fmt(p.heel, "0.0"), fmt(p.gz), fmt(p.moment, "0"), fmt(p.draft),
                      fmt(p.pitch, "0.00"), fmt(p.freeboard)});
  }
  return t;
}

Table curvesTable(const std::vector<UprightRow>& rows, int langue) {
  const bool fr = langue == 0;
  Table t;
  t.head = {"T",   "V",   fr ? "Dépl." : "Disp.",
            "LCB", "KB",  "Aw",
            "LCF", "BMt", "BMl",
            "KMt", "KMl", "TPC",
            "MCT", "Cb",  "Cp",
            "Cm",  "Cwp", fr ? "Mouil." : "Wet"};
  for (const UprightRow& r : rows)
    t.rows.push_back({fmt(r.draft), fmt(r.volume), fmt(r.displacement), fmt(r.lcb), fmt(r.kb),
                      fmt(r.waterplane), fmt(r.lcf), fmt(r.bmt, "0.00"), fmt(r.bml, "0.0"),
                      fmt(r.kmt), fmt(r.kml, "0.0"), fmt(r.tpc, "0.0000"), fmt(r.mct, "0.0000"),
                      fmt(r.cb), fmt(r.cp), fmt(r.cm), fmt(r.cwp), fmt(r.wetted)});
  return t;
}

std::size_t drawTable(DrawingSurface& s, const Table& t, std::size_t first, float left, float top,
                      float width, float bottom) {
  const std::size_t columns = std::max<std::size_t>(1, t.head.size());
  const float cw = width / static_cast<float>(columns);
  const float rh = s.TextHeight("0") * 1.15f;
  auto row = [&](const std::vector<std::string>& cells, float y) {
    for (std::size_t k = 0; k < cells.size() && k < columns; ++k) {
      const float w = s.TextWidth(cells[k]);
      textAt(s, left + cw * static_cast<float>(k + 1) - w - cw * 0.08f, y, cells[k]);
    }
  };
  row(t.head, top);
  float y = top + rh;
  s.Line(left, y, left + width, y, kBlack);
  y += rh * 0.2f;
  std::size_t i = first;
  for (; i < t.rows.size() && y + rh <= bottom; ++i, y += rh) row(t.rows[i], y);
  return i;
}

}  // namespace tolmar::stability
