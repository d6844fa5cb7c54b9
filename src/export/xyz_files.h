// Coordinate tables in plain text, columns separated by TAB, lines ended by
// CR LF, numbers with three decimals and a point as decimal separator
// whatever the locale: the hull lines and stations in one file, and one
// small file for each developed plate.  Metres.
#pragma once

#include "development/developed_plate.h"
#include "export/export_flow.h"
#include "export/text_sink.h"
#include "hull/hull_store.h"

namespace tolmar {

// Hull lines file: every line, then the stations 0, 1, 5, .. 81, 82, each
// down one side to the keel and up the other.  Texts in the language of
// h.langue.
void writeLinesXyz(TextSink& out, const HullStore& h);

// Plate files from the dev arrays as they stand: call the development
// first.  lastPoint is 83 for the bottom, 82 for a plank.
void writePlankXyz(TextSink& out, const HullStore& h, const DevelopedPlate& p);
void writeDeckXyz(TextSink& out, const HullStore& h, const DevelopedPlate& p);
void writeTransomXyz(TextSink& out, const HullStore& h);
void writeBowXyz(TextSink& out, const HullStore& h);

ExportFile linesXyzFile(const HullStore& h);
ExportFile plankXyzFile(const HullStore& h, int n);
ExportFile deckXyzFile(const HullStore& h, int n);
ExportFile transomXyzFile(const HullStore& h);
ExportFile bowXyzFile(const HullStore& h);

ExportOutcome saveLinesXyz(ExportHost& host, HullStore& h);  // fmenu_S_XYZ

// Each develops its plate before the dialog, then writes it.
ExportOutcome plankXYZ(ExportHost& host, HullStore& h, int n);
ExportOutcome deckXYZ(ExportHost& host, HullStore& h, int n);
ExportOutcome transomXYZ(ExportHost& host, HullStore& h);  // transomPlate as it stands
ExportOutcome bowXYZ(ExportHost& host, HullStore& h);      // bowPlate as it stands

// fmenu_SD_XYZ: with stepIndex 0 the bottom and deck 1 only; otherwise every
// plank, every deck, the transom and, for a pram bow, the bow plate.  One
// dialog per file; a cancel or a failure goes on with the next.  Returns
// true when no file failed.
bool saveDevelopedXyz(ExportHost& host, HullStore& h, int stepIndex);

}  // namespace tolmar
