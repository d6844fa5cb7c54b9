#include "sheets_json.h"

#include <cmath>

#include "sheets/bill_of_materials.h"

namespace tolmar::cli {

using nlohmann::json;
using namespace tolmar::sheets;

namespace {

// Hundredths of a millimetre are all a cut needs, and short numbers keep
// the file the same from one build to the next.
double r2(double v) {
  const double r = std::round(v * 100) / 100;
  return r == 0 ? 0 : r;
}
double r4(double v) {
  const double r = std::round(v * 10000) / 10000;
  return r == 0 ? 0 : r;
}

const char* sideText(int side) { return side > 0 ? "starboard" : side < 0 ? "port" : "across"; }

const char* jointText(JointKind k) {
  return k == JointKind::scarf ? "scarf" : k == JointKind::butt ? "butt" : "none";
}

}  // namespace

json sheetsJson(const SheetPlan& plan) {
  json sheets = json::array();
  for (const Sheet& s : plan.sheets) {
    json pieces = json::array();
    for (const PlacedPiece& pp : s.pieces) {
      const Piece& p = plan.pieces[pp.piece];
      const SheetPart& part = plan.parts[p.part];
      json outline = json::array();
      for (const MmPoint& q : pp.outline) outline.push_back({r2(q.x), r2(q.y)});
      pieces.push_back({{"part", part.name},
                        {"side", sideText(part.side)},
                        {"piece", p.piece},
                        {"of", p.of},
                        {"rotation_deg", r2(pp.rotation * 180 / 3.14159265358979323846)},
                        {"outline", std::move(outline)}});
    }
    sheets.push_back({{"width_mm", r2(s.lengthMm)},
                      {"height_mm", r2(s.widthMm)},
                      {"thickness_mm", r2(s.thicknessMm)},
                      {"pieces", std::move(pieces)}});
  }
  const Bom bom = billOfMaterials(plan);
  json joints = json::array();
  for (const Joint& j : plan.joints)
    joints.push_back({{"part", plan.parts[j.part].name},
                      {"side", sideText(plan.parts[j.part].side)},
                      {"at_m", r4(j.atMm / 1000)},
                      {"kind", jointText(j.kind)},
                      {"overlap_mm", r2(j.overlapMm)}});
  json groups = json::array();
  for (const BomSheets& g : bom.sheets)
    groups.push_back({{"thickness_mm", r2(g.thicknessMm)},
                      {"width_mm", r2(g.lengthMm)},
                      {"height_mm", r2(g.widthMm)},
                      {"count", g.count},
                      {"thickness_assumed", g.assumed}});
  json pieces = json::array();
  for (const BomPiece& p : bom.pieces)
    pieces.push_back({{"part", p.part},
                      {"side", sideText(p.side)},
                      {"piece", p.piece},
                      {"of", p.of},
                      {"sheet", p.sheet},
                      {"length_mm", r2(p.lengthMm)},
                      {"width_mm", r2(p.widthMm)},
                      {"area_m2", r4(p.areaM2)},
                      {"thickness_mm", r2(p.thicknessMm)}});
  json out;
  out["sheets"] = std::move(sheets);
  out["bom"] = {{"sheet_count", bom.sheetCount},
                {"area_lower_bound", bom.areaBound},
                {"used_area_m2", r4(bom.usedAreaM2)},
                {"sheet_area_m2", r4(bom.sheetAreaM2)},
                {"utilisation", r4(bom.utilisation())},
                {"waste_percent", r2(bom.wastePercent)},
                {"mass_kg", r2(bom.massKg)},
                {"sheets", std::move(groups)},
                {"pieces", std::move(pieces)},
                {"joints", std::move(joints)}};
  out["options"] = {{"sheet_mm", {r2(plan.options.lengthMm), r2(plan.options.widthMm)}},
                    {"margin_mm", r2(plan.options.marginMm)},
                    {"kerf_mm", r2(plan.options.kerfMm)},
                    {"rotate90", plan.options.rotate90},
                    {"joint", jointText(plan.options.joint)},
                    {"scarf_ratio", r2(plan.options.scarfRatio)},
                    {"strap_mm", r2(plan.options.strapWidthMm)}};
  return out;
}

}  // namespace tolmar::cli
