#include "sheets/sheets_pages.h"

#include <cstdio>

#include "sheets/bill_of_materials.h"
#include "text/utf8.h"

namespace tolmar::sheets {

namespace {

constexpr float kTwipsPerMm = 1440.0f / 25.4f;
constexpr Colour kBlack = 0, kRed = 0x0000FF, kBlue = 0xFF0000;

}  // namespace

void drawSheet(DrawingSurface& s, const SheetPlan& plan, int sheet, float left, float bottom,
               float k, int langue) {
  const Sheet& sh = plan.sheets[sheet];
  auto X = [&](double x) { return left + static_cast<float>(x) * k; };
  auto Y = [&](double y) { return bottom - static_cast<float>(y) * k; };
  s.ForeColor = kBlack;
  s.LineBox(X(0), Y(0), X(sh.lengthMm), Y(sh.widthMm));
  for (const PlacedPiece& pp : sh.pieces) {
    s.ForeColor = kRed;
    const MmPolygon& o = pp.outline;
    for (std::size_t i = 0; i < o.size(); ++i) {
      const MmPoint& a = o[i];
      const MmPoint& b = o[(i + 1) % o.size()];
      s.Line(X(a.x), Y(a.y), X(b.x), Y(b.y));
    }
    s.ForeColor = kBlue;
    for (const MmPolyline& m : pp.marks)
      for (std::size_t i = 1; i < m.size(); ++i)
        s.Line(X(m[i - 1].x), Y(m[i - 1].y), X(m[i].x), Y(m[i].y));
    const std::string label = pieceLabel(plan, pp.piece, langue);
    const LabelPlace l = labelPlace(pp, utf8Length(label));
    const float w = s.TextWidth(label), h = s.TextHeight(label);
    s.CurrentX = X((boundingBox(o).x0 + boundingBox(o).x1) / 2) - w / 2;
    s.CurrentY = Y(l.y + l.size / 2) - h / 2;
    s.Print(label);
  }
  s.ForeColor = kBlack;
}

int pageScale(const Sheet& sh, float w, float h) {
  for (int n : {5, 10, 20, 25, 50}) {
    const float k = kTwipsPerMm / n;
    if (sh.lengthMm * k <= w && sh.widthMm * k <= h) return n;
  }
  return 0;
}

void printSheets(DrawingSurface& s, const SheetPlan& plan, const std::string& hullName,
                 int langue) {
  const bool fr = langue == 0;
  const float margin = 15 * kTwipsPerMm;
  const Bom bom = billOfMaterials(plan);
  s.FontSize = 10;
  s.CurrentX = margin;
  s.CurrentY = margin;
  s.Print(hullName);
  for (const std::string& line : bomLines(plan, bom, langue)) {
    if (s.CurrentY > s.Height() - margin - s.TextHeight("X")) {
      s.NewPage();
      s.CurrentY = margin;
    }
    s.CurrentX = margin;
    s.Print(line);
  }
  for (std::size_t i = 0; i < plan.sheets.size(); ++i) {
    const Sheet& sh = plan.sheets[i];
    s.NewPage();
    s.FontSize = 10;
    const float top = margin + 2 * s.TextHeight("X");
    const int n = pageScale(sh, s.Width() - 2 * margin, s.Height() - top - margin);
    char head[160];
    std::snprintf(head, sizeof head, "%s — %s %d / %d — %.0f x %.0f x %.1f mm — %s 1:%d",
                  hullName.c_str(), fr ? "feuille" : "sheet", static_cast<int>(i) + 1,
                  static_cast<int>(plan.sheets.size()), sh.lengthMm, sh.widthMm, sh.thicknessMm,
                  fr ? "échelle" : "scale", n);
    s.CurrentX = margin;
    s.CurrentY = margin;
    s.Print(head);
    if (n == 0) continue;
    const float k = kTwipsPerMm / n;
    s.FontSize = 7;
    drawSheet(s, plan, static_cast<int>(i), margin, top + static_cast<float>(sh.widthMm) * k, k,
              langue);
  }
  s.EndDoc();
}

}  // namespace tolmar::sheets
