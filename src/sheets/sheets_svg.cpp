#include "sheets/sheets_svg.h"

#include <cstdio>

#include "sheets/bill_of_materials.h"
#include "text/utf8.h"

namespace tolmar::sheets {

namespace {

std::string num(double v) {
  char b[32];
  std::snprintf(b, sizeof b, "%.2f", v);
  std::string s = b;
  return s == "-0.00" ? "0.00" : s;
}

std::string escaped(const std::string& s) {
  std::string out;
  for (char c : s) {
    if (c == '&')
      out += "&amp;";
    else if (c == '<')
      out += "&lt;";
    else if (c == '>')
      out += "&gt;";
    else if (c == '"')
      out += "&quot;";
    else
      out += c;
  }
  return out;
}

}  // namespace

std::string sheetsSvg(const SheetPlan& plan, const std::string& hullName, int langue) {
  const double gap = 150, caption = 60;
  double width = 0, height = 0;
  for (const Sheet& s : plan.sheets) {
    width = std::max(width, s.lengthMm);
    height += caption + s.widthMm + gap;
  }
  std::string o;
  o += "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n";
  o += "<svg xmlns=\"http://www.w3.org/2000/svg\" width=\"" + num(width) + "mm\" height=\"" +
       num(height) + "mm\" viewBox=\"0 0 " + num(width) + " " + num(height) + "\">\n";
  o += "<title>" + escaped(hullName) + "</title>\n";
  double top = 0;
  for (std::size_t i = 0; i < plan.sheets.size(); ++i) {
    const Sheet& s = plan.sheets[i];
    char head[128];
    std::snprintf(head, sizeof head, "%s %d / %d — %.0f x %.0f x %.1f mm",
                  langue == 0 ? "Feuille" : "Sheet", static_cast<int>(i) + 1,
                  static_cast<int>(plan.sheets.size()), s.lengthMm, s.widthMm, s.thicknessMm);
    o += "<g id=\"sheet" + std::to_string(i + 1) + "\">\n";
    o += "<text x=\"0\" y=\"" + num(top + caption - 15) +
         "\" font-family=\"sans-serif\" font-size=\"40\">" + escaped(head) + "</text>\n";
    const double base = top + caption + s.widthMm;  // Y of the sheet's X axis
    auto pt = [&](const MmPoint& p) { return num(p.x) + "," + num(base - p.y); };
    o += "<rect x=\"0\" y=\"" + num(top + caption) + "\" width=\"" + num(s.lengthMm) +
         "\" height=\"" + num(s.widthMm) +
         "\" fill=\"#f4ecd8\" stroke=\"black\" stroke-width=\"2\"/>\n";
    for (const PlacedPiece& pp : s.pieces) {
      o += "<polygon fill=\"#ffffff\" stroke=\"red\" stroke-width=\"1.5\" points=\"";
      for (std::size_t k = 0; k < pp.outline.size(); ++k) {
        if (k) o += ' ';
        o += pt(pp.outline[k]);
      }
      o += "\"/>\n";
      for (const MmPolyline& m : pp.marks) {
        o += "<polyline fill=\"none\" stroke=\"blue\" stroke-width=\"1\" points=\"";
        for (std::size_t k = 0; k < m.size(); ++k) {
          if (k) o += ' ';
          o += pt(m[k]);
        }
        o += "\"/>\n";
      }
      const std::string label = pieceLabel(plan, pp.piece, langue);
      const LabelPlace l = labelPlace(pp, utf8Length(label));
      o += "<text x=\"" + num(l.x) + "\" y=\"" + num(base - l.y) +
           "\" font-family=\"sans-serif\" font-size=\"" + num(l.size * 1.2) + "\" fill=\"blue\">" +
           escaped(label) + "</text>\n";
    }
    o += "</g>\n";
    top += caption + s.widthMm + gap;
  }
  o += "</svg>\n";
  return o;
}

}  // namespace tolmar::sheets
