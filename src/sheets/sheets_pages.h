// The plan on a DrawingSurface: one sheet drawn to a scale in a box, and
// the printed document (the bill of materials, then a page per sheet at a
// true scale of 1:5, 1:10, 1:20, 1:25 or 1:50, the largest that fits).
#pragma once

#include <string>

#include "board/drawing_surface.h"
#include "sheets/sheet_layout.h"

namespace tolmar::sheets {

// Sheet `sheet` with its lower left corner at (left, bottom) twips of the
// surface, `twipsPerMm` to the millimetre.
void drawSheet(DrawingSurface& s, const SheetPlan& plan, int sheet, float left, float bottom,
               float twipsPerMm, int langue);

// The scale denominator that fits the sheet in a width and height of
// twips; 0 when none does.
int pageScale(const Sheet& sheet, float widthTwips, float heightTwips);

// The whole document on a paged surface, ending with EndDoc.
void printSheets(DrawingSurface& s, const SheetPlan& plan, const std::string& hullName, int langue);

}  // namespace tolmar::sheets
