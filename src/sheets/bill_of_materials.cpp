#include "sheets/bill_of_materials.h"

#include <algorithm>
#include <cmath>
#include <cstdio>
#include <map>

#include "sheets/joints.h"

namespace tolmar::sheets {

namespace {

std::string fmt(const char* f, double v) {
  char b[48];
  std::snprintf(b, sizeof b, f, v);
  return b;
}

// "p03 1 of 2 port": the part, which piece of how many, the side.
std::string pieceText(const std::string& name, int side, int piece, int of, int langue) {
  std::string s = name;
  if (of > 1) {
    s += ' ';
    s += std::to_string(piece);
    s += langue == 0 ? " sur " : " of ";
    s += std::to_string(of);
  }
  if (side) {
    s += ' ';
    s += sideName(side, langue);
  }
  return s;
}

}  // namespace

Bom billOfMaterials(const SheetPlan& plan) {
  Bom bom;
  std::map<double, double> areaByThickness;
  std::map<double, bool> assumed;
  for (std::size_t s = 0; s < plan.sheets.size(); ++s) {
    const Sheet& sh = plan.sheets[s];
    auto it = std::find_if(bom.sheets.begin(), bom.sheets.end(), [&](const BomSheets& b) {
      return b.thicknessMm == sh.thicknessMm && b.lengthMm == sh.lengthMm &&
             b.widthMm == sh.widthMm;
    });
    if (it == bom.sheets.end()) {
      bom.sheets.push_back({sh.thicknessMm, sh.lengthMm, sh.widthMm, 0, false});
      it = bom.sheets.end() - 1;
    }
    ++it->count;
    bom.sheetAreaM2 += sh.lengthMm * sh.widthMm / 1e6;
    for (const PlacedPiece& pp : sh.pieces) {
      const Piece& p = plan.pieces[pp.piece];
      const SheetPart& part = plan.parts[p.part];
      const MmBox b = boundingBox(p.outline);
      BomPiece bp{part.name,
                  part.side,
                  p.piece,
                  p.of,
                  static_cast<int>(s) + 1,
                  b.width(),
                  b.height(),
                  polygonArea(p.outline) / 1e6,
                  part.thicknessMm};
      bom.usedAreaM2 += bp.areaM2;
      bom.massKg += bp.areaM2 * part.densityKgM2;
      areaByThickness[part.thicknessMm] += bp.areaM2;
      if (part.thicknessAssumed) it->assumed = true;
      bom.pieces.push_back(std::move(bp));
    }
  }
  bom.sheetCount = static_cast<int>(plan.sheets.size());
  const double sheetM2 = plan.options.lengthMm * plan.options.widthMm / 1e6;
  for (const auto& [t, a] : areaByThickness)
    bom.areaBound += static_cast<int>(std::ceil(a / sheetM2 - 1e-12));
  bom.wastePercent =
      bom.sheetAreaM2 > 0 ? 100 * (bom.sheetAreaM2 - bom.usedAreaM2) / bom.sheetAreaM2 : 0;
  return bom;
}

std::string pieceLabel(const SheetPlan& plan, int i, int langue) {
  const Piece& p = plan.pieces[i];
  const SheetPart& part = plan.parts[p.part];
  return pieceText(part.name, part.side, p.piece, p.of, langue);
}

std::vector<std::string> bomLines(const SheetPlan& plan, const Bom& bom, int langue) {
  const bool fr = langue == 0;
  std::vector<std::string> out;
  out.push_back(fr ? "Nomenclature des panneaux" : "Bill of materials");
  out.push_back("");
  for (const BomSheets& b : bom.sheets)
    out.push_back(std::to_string(b.count) + (fr ? " feuille(s) " : " sheet(s) ") +
                  fmt("%.0f", b.lengthMm) + " x " + fmt("%.0f", b.widthMm) + " mm, " +
                  fmt("%.1f mm", b.thicknessMm) +
                  (b.assumed ? (fr ? " (épaisseur supposée)" : " (thickness assumed)") : ""));
  out.push_back((fr ? "Feuilles : " : "Sheets: ") + std::to_string(bom.sheetCount) +
                (fr ? ", borne par la surface : " : ", area lower bound: ") +
                std::to_string(bom.areaBound));
  out.push_back((fr ? "Surface des pièces : " : "Area of the pieces: ") +
                fmt("%.3f m2", bom.usedAreaM2) + (fr ? ", des feuilles : " : ", of the sheets: ") +
                fmt("%.3f m2", bom.sheetAreaM2) + (fr ? ", chute : " : ", waste: ") +
                fmt("%.1f %%", bom.wastePercent));
  out.push_back((fr ? "Masse des pièces : " : "Mass of the pieces: ") + fmt("%.1f kg", bom.massKg) +
                (fr ? " (densités du budget de masse)" : " (mass budget densities)"));
  const SheetOptions& o = plan.options;
  out.push_back((fr ? "Marge " : "Margin ") + fmt("%.1f mm", o.marginMm) +
                (fr ? ", trait de scie " : ", kerf ") + fmt("%.1f mm", o.kerfMm));
  out.push_back("");
  for (const Joint& j : plan.joints) {
    const SheetPart& part = plan.parts[j.part];
    std::string s = "Joint ";
    s += pieceText(part.name, part.side, 1, 1, langue);
    s += (fr ? " à " : " at ") + fmt("%.3f m", j.atMm / 1000) + ": ";
    if (j.kind == JointKind::scarf)
      s += (fr ? "biseau de " : "scarf ") + fmt("%.0f mm", j.overlapMm);
    else
      s += (fr ? "couvre-joint de " : "butt strap ") + fmt("%.0f mm", o.strapWidthMm);
    out.push_back(s);
  }
  if (!plan.joints.empty()) out.push_back("");
  for (const BomPiece& p : bom.pieces) {
    std::string s = pieceText(p.part, p.side, p.piece, p.of, langue);
    s += (fr ? " — feuille " : " — sheet ") + std::to_string(p.sheet) + ", " +
         fmt("%.0f", p.lengthMm) + " x " + fmt("%.0f mm", p.widthMm) + ", " +
         fmt("%.3f m2", p.areaM2) + ", " + fmt("%.1f mm", p.thicknessMm);
    out.push_back(s);
  }
  return out;
}

LabelPlace labelPlace(const PlacedPiece& p, std::size_t characters) {
  const MmBox b = boundingBox(p.outline);
  const double n = static_cast<double>(std::max<std::size_t>(characters, 1));
  double y0 = b.y0, y1 = b.y1;
  const double xc = (b.x0 + b.x1) / 2;
  spanAt(p.outline, xc, y0, y1);
  LabelPlace l;
  l.size = std::min({40.0, (y1 - y0) / 3, 0.8 * b.width() / n});
  l.size = std::max(l.size, 1.0);
  l.x = xc - n * l.size / 2;
  l.y = (y0 + y1) / 2 - l.size / 2;
  return l;
}

}  // namespace tolmar::sheets
