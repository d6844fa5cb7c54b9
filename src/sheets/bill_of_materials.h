// The bill of materials of a plan: sheets per thickness and size, each
// piece with its part, side, length, width and area, the joints, the area
// used, the waste, and the mass of the pieces by the mass budget's
// densities; the area lower bound of the sheet count.
#pragma once

#include <string>
#include <vector>

#include "sheets/sheet_layout.h"

namespace tolmar::sheets {

struct BomSheets {
  double thicknessMm = 0, lengthMm = 0, widthMm = 0;
  int count = 0;
  bool assumed = false;  // the thickness is a default of the part kinds
};

struct BomPiece {
  std::string part;
  int side = 0, piece = 1, of = 1, sheet = 0;  // sheet 1-based
  double lengthMm = 0, widthMm = 0, areaM2 = 0, thicknessMm = 0;
};

struct Bom {
  std::vector<BomSheets> sheets;
  std::vector<BomPiece> pieces;
  int sheetCount = 0;
  int areaBound = 0;  // the sum over thicknesses of ceil(pieces' area / sheet area)
  double usedAreaM2 = 0, sheetAreaM2 = 0, wastePercent = 0, massKg = 0;
  double utilisation() const { return sheetAreaM2 > 0 ? usedAreaM2 / sheetAreaM2 : 0; }
};

Bom billOfMaterials(const SheetPlan& plan);

// The text of a piece's label and of the lines of the bill, in the
// language `langue`.
std::string pieceLabel(const SheetPlan& plan, int piece, int langue);
std::vector<std::string> bomLines(const SheetPlan& plan, const Bom& bom, int langue);

// Where a piece's label goes on its sheet: inside the piece, along X.
struct LabelPlace {
  double x = 0, y = 0, size = 0;
};
LabelPlace labelPlace(const PlacedPiece& p, std::size_t characters);

}  // namespace tolmar::sheets
