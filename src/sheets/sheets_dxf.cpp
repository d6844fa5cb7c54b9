#include "sheets/sheets_dxf.h"

#include <cstdio>

#include "export/dxf_records.h"
#include "export/stroke_font.h"
#include "sheets/bill_of_materials.h"
#include "text/plain_letters.h"
#include "text/utf8.h"

namespace tolmar::sheets {

namespace {

void polyline(TextSink& out, std::string_view layer, i16 colour, const MmPolyline& pts,
              bool closed) {
  dxfPolyline(out, layer, colour);
  for (const MmPoint& p : pts) dxfVertex(out, layer, colour, p.x, p.y, 0);
  if (closed && !pts.empty()) dxfVertex(out, layer, colour, pts.front().x, pts.front().y, 0);
  dxfSeqend(out);
}

}  // namespace

std::string sheetDxfName(const std::string& stem, int sheet) {
  char b[16];
  std::snprintf(b, sizeof b, "%02d", sheet + 1);
  return stem + "_SHEET" + b + ".DXF";
}

std::vector<std::filesystem::path> staleSheetFiles(const std::filesystem::path& dir,
                                                   const std::string& stem, int count) {
  std::vector<std::filesystem::path> stale;
  std::error_code ec;
  for (int s = count; s < count + 1000; ++s) {
    std::filesystem::path f = dir / sheetDxfName(stem, s);
    if (!std::filesystem::is_regular_file(f, ec)) break;
    stale.push_back(std::move(f));
  }
  return stale;
}

void writeSheetDxf(TextSink& out, const SheetPlan& plan, int s, const std::string& hullName,
                   int langue) {
  const Sheet& sh = plan.sheets[s];
  char info[96];
  std::snprintf(info, sizeof info, " - Sheet %d of %d, %.1f mm - created with ", s + 1,
                static_cast<int>(plan.sheets.size()), sh.thicknessMm);
  dxfHeader(out, hullName + info + "Tolmar2008");
  dxfSection(out);
  polyline(out, "SHEET", 7, {{0, 0}, {sh.lengthMm, 0}, {sh.lengthMm, sh.widthMm}, {0, sh.widthMm}},
           true);
  for (const PlacedPiece& pp : sh.pieces) polyline(out, "CUT", 1, pp.outline, true);
  for (const PlacedPiece& pp : sh.pieces) {
    for (const MmPolyline& m : pp.marks) polyline(out, "MARK", 5, m, false);
    // The stroke font draws plain letters: "babord", not a missing glyph.
    const std::string label = plainLetters(pieceLabel(plan, pp.piece, langue));
    const LabelPlace l = labelPlace(pp, utf8Length(label));
    dxfText(out, label, static_cast<float>(l.size), l.x, l.y, 0, std::string_view("MARK"), 5);
  }
  dxfEndSec(out);
  dxfEof(out);
}

}  // namespace tolmar::sheets
