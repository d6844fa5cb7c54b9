// Every sheet of a plan in one SVG file, one under the other, in
// millimetres, drawn as the DXF files draw them (Y upwards on the sheet).
#pragma once

#include <string>

#include "sheets/sheet_layout.h"

namespace tolmar::sheets {

std::string sheetsSvg(const SheetPlan& plan, const std::string& hullName, int langue);

}  // namespace tolmar::sheets
