// One sheet as a DXF file, R12 as the other DXF files of the program
// (POLYLINE only, text in the stroke font, CR LF), in millimetres with the
// sheet's corner at the origin: layer SHEET the sheet's outline, CUT the
// closed outline of each piece, MARK the joint lines, station ticks and
// each piece's name and side.
#pragma once

#include <filesystem>
#include <string>
#include <vector>

#include "export/text_sink.h"
#include "sheets/sheet_layout.h"

namespace tolmar::sheets {

void writeSheetDxf(TextSink& out, const SheetPlan& plan, int sheet, const std::string& hullName,
                   int langue);

// The file name of sheet `sheet` (0-based): NAME_SHEET01.DXF.
std::string sheetDxfName(const std::string& stem, int sheet);

// The sheet files an earlier, longer plan left in `dir` after the `count`
// sheets of this one: NAME_SHEETnn.DXF from nn = count + 1 on, as long as
// they follow each other.  Left there, they would be cut as part of this plan.
std::vector<std::filesystem::path> staleSheetFiles(const std::filesystem::path& dir,
                                                   const std::string& stem, int count);

}  // namespace tolmar::sheets
