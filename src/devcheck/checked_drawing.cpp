#include "devcheck/checked_drawing.h"

#include <algorithm>
#include <cmath>
#include <functional>

#include "devcheck/check_table.h"

namespace tolmar::devcheck {

namespace {

using ToView = std::function<std::pair<float, float>(double x, double y)>;

void outline(DrawingSurface& s, const std::vector<FlatPoint>& pts, const ToView& at) {
  bool first = true;
  for (const FlatPoint& p : pts) {
    if (!std::isfinite(p.x) || !std::isfinite(p.y)) continue;
    const auto [x, y] = at(p.x, p.y);
    if (first)
      s.PSet(x, y);
    else
      s.LineTo(x, y);
    first = false;
  }
}

}  // namespace

void drawCheckedPlates(DrawingSurface& s, const HullStore& h,
                       const std::vector<DevelopedPlate>& plates, const CheckReport& r) {
  const Colour colour = s.ForeColor;
  const auto width = s.DrawWidth;
  const auto style = s.DrawStyle;
  s.DrawWidth = 2;
  s.DrawStyle = kStyleSolid;
  std::size_t row = 0;
  for (const DevelopedPlate& p : plates) {
    while (row < r.plates.size() && (r.plates[row].withLap || r.plates[row].name != p.name)) ++row;
    if (row == r.plates.size()) break;
    s.ForeColor = verdictColour(r.plates[row].verdict);
    ToView at;
    switch (p.kind) {
      case PlateKind::bottom:
        at = [&](double x, double y) {
          return std::pair{static_cast<float>(h.originX + h.scaleX * x),
                           static_cast<float>(h.originY + h.scaleY * y)};
        };
        break;
      case PlateKind::plank: {
        const int k = p.index;
        const double ox = h.lineX(k + 1, 0), oy = (1 + 0.1 * k) * h.lineZ(k, 40);
        at = [&h, ox, oy](double x, double y) {
          return std::pair{static_cast<float>(h.originX + h.scaleX * (x + ox)),
                           static_cast<float>(h.originZ + h.scaleZ * (y + oy))};
        };
        break;
      }
      case PlateKind::transom:
        // Half the panel, running distance across the board as Developer
        // lays it: the starboard edge is (half breadth, run).
        at = [&](double y, double run) {
          return std::pair{static_cast<float>(h.originX + 300 + h.scaleX * run),
                           static_cast<float>(h.originY + h.scaleY * y)};
        };
        break;
      case PlateKind::pramBow:
        at = [&](double y, double run) {
          return std::pair{static_cast<float>(h.originX + h.scaleX * (h.lineX(0, 80) - run)),
                           static_cast<float>(h.originY + h.scaleY * y)};
        };
        break;
      case PlateKind::deck:
        continue;
    }
    if (p.kind == PlateKind::transom || p.kind == PlateKind::pramBow) {
      std::vector<FlatPoint> half = p.upper;
      if (!half.empty()) half.push_back({0, half.back().y});
      outline(s, half, at);
    } else {
      outline(s, p.outline(), at);
      if (!p.lower.empty()) {
        const auto [x, y] = at(p.lower.front().x, p.lower.front().y);
        s.LineTo(x, y);
      }
    }
  }
  s.ForeColor = colour;
  s.DrawWidth = width;
  s.DrawStyle = style;
}

void drawVerdictLegend(DrawingSurface& s, int langue) {
  const Colour colour = s.ForeColor;
  const auto width = s.DrawWidth;
  const auto style = s.DrawStyle;
  const Verdict verdicts[] = {Verdict::fits, Verdict::tight, Verdict::willNotBend};
  const float line = s.TextHeight("X");
  float widest = 0;
  for (Verdict v : verdicts) widest = std::max(widest, s.TextWidth(verdictText(v, langue)));
  const float stroke = 3 * line;
  const float left = s.ScaleLeft + s.ScaleWidth - line - stroke - line / 2 - widest;
  float top = s.ScaleTop + s.ScaleHeight - line / 2 - 3.2f * line;
  s.DrawWidth = 2;
  s.DrawStyle = kStyleSolid;
  for (Verdict v : verdicts) {
    s.ForeColor = verdictColour(v);
    s.Line(left, top + line / 2, left + stroke, top + line / 2);
    s.CurrentX = left + stroke + line / 2;
    s.CurrentY = top;
    s.Print(verdictText(v, langue));
    top += 1.1f * line;
  }
  s.ForeColor = colour;
  s.DrawWidth = width;
  s.DrawStyle = style;
}

}  // namespace tolmar::devcheck
