// The transom, the pram bow and a station as polylines in an open DXF
// file, and the station file that holds one station alone.
#pragma once

#include "export/export_flow.h"
#include "export/text_sink.h"
#include "hull/hull_store.h"

namespace tolmar {

// The whole panel, both halves about the axis X = x0, with the running
// distance along the panel as Y; its name above it.  They read
// transomPlate and bowPlate as they stand.
void TableauDXF(TextSink& out, const HullStore& h, i16 layer, i16 colour, double x0, double y0);
void MarotteDXF(TextSink& out, const HullStore& h, i16 layer, i16 colour, double x0, double y0);

// Station s as its section, breadth as X and height as Y about (x0, y0),
// with the hull's X kept as Z: the one flat polyline with a real Z.
void StationDXF(TextSink& out, const HullStore& h, i16 layer, i16 colour, int s, double x0,
                double y0);

void writeStationFile(TextSink& out, const HullStore& h, int s);
ExportFile stationDxfFile(const HullStore& h, int s);
ExportOutcome stationFileDXF(ExportHost& host, HullStore& h, int s);

}  // namespace tolmar
