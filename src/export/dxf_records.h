// The only way into a DXF file: one comment, one ENTITIES section and 3D
// POLYLINE entities, each record exactly as the lines below say, blanks
// included.  A group-code line is right-aligned in three characters ("  0",
// " 62"), but for the " 0 " that opens SEQEND.
#pragma once

#include <string>
#include <string_view>

#include "export/text_sink.h"
#include "hull/hull_store.h"

namespace tolmar {

// Four decimals, a blank behind them and a column for the sign: 1.5 gives
// " 1.5000 ", -1.5 "-1.5000 ".  Always a point, whatever the locale.  A
// negative zero prints as zero, and a value that is not finite as " 0.0000 ",
// so that no file ever holds a NaN.
std::string dxfNumber(double x);

void dxfHeader(TextSink& out, std::string_view comment);  // comment as UTF-8
void dxfSection(TextSink& out);
void dxfPolyline(TextSink& out, i16 layer, i16 colour);
void dxfVertex(TextSink& out, i16 layer, i16 colour, double x, double y, double z);
// The same records on a layer with a name ("CUT", "MARK").
void dxfPolyline(TextSink& out, std::string_view layer, i16 colour);
void dxfVertex(TextSink& out, std::string_view layer, i16 colour, double x, double y, double z);
void dxfSeqend(TextSink& out);
void dxfEndSec(TextSink& out);
void dxfEof(TextSink& out);  // the caller commits and closes the file behind it

// The comment goes out in the single-byte code page of DXF readers
// (Windows-1252); a character outside it becomes "?".
std::string toCodePage1252(std::string_view utf8);

}  // namespace tolmar
