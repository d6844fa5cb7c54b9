// One sheet as a DXF file, R12 as the other DXF files of the program
// (POLYLINE only, text in the stroke font, CR LF), in millimetres with the
// sheet's corner at the origin: layer SHEET the sheet's outline, CUT the
// closed outline of each piece, MARK the joint lines, station ticks and
// each piece's name and side.
#pragma once

#include <string>

#include "export/text_sink.h"
#include "sheets/sheet_layout.h"

namespace tolmar::sheets {

void writeSheetDxf(TextSink& out, const SheetPlan& plan, int sheet, const std::string& hullName,
                   int langue);

// The file name of sheet `sheet` (0-based): NAME_SHEET01.DXF.
std::string sheetDxfName(const std::string& stem, int sheet);

}  // namespace tolmar::sheets
