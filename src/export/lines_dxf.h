// The hull lines as DXF: a 2D lines plan (plan, profile and section views
// on one sheet, with stations and construction lines) and a 3D wire model
// of both sides in hull coordinates.  Metres.
#pragma once

#include "export/export_flow.h"
#include "export/text_sink.h"
#include "hull/hull_store.h"

namespace tolmar {

// Smallest and largest X, Y, Z over lines 0..nChines, points 0..82, in
// single precision; all six start at 0, so a minimum is never above 0 and a
// maximum never below it.
struct HullExtremes {
  float minX = 0, maxX = 0, minY = 0, maxY = 0, minZ = 0, maxZ = 0;
};
HullExtremes hullExtremes(const HullStore& h);

// Whole number above v: Int((v * 10 + 5) / 10 + 0.5), never equal to v.
double sheetRound(float v);

// The files, comment to EOF.  Layers of the 2D file: 1 plan, 2 profile,
// 3 section view, 4 stations, 5 construction lines.
void writeLines2D(TextSink& out, const HullStore& h, const HullExtremes& e);
void writeLines3D(TextSink& out, const HullStore& h, const HullExtremes& e);

ExportFile lines2DFile(const HullStore& h);
ExportFile lines3DFile(const HullStore& h);

// The menu entries: extremes scanned first, then the dialog; the hull name
// follows the file and the comment carries the new name.
ExportOutcome saveLines2D(ExportHost& host, HullStore& h);
ExportOutcome saveLines3D(ExportHost& host, HullStore& h);

}  // namespace tolmar
