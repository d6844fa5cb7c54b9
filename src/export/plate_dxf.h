// The developed plates as DXF for a cutting table: all planks, the bottom,
// the transom, the section at maximum beam and the pram bow on one sheet,
// each plate with its name in the stroke font, station ticks and a line at
// the maximum beam; the decks in a second file.  In the lap-strake form a
// plate also gets its outline with the extra material.  Metres.
//
// Layers of the plate file: n + 1 for plate n (0 the bottom), 13 the lines
// of maximum beam and the ticks, 14 the section, 15 the pram bow, 16 the
// transom.  Plate numbers above 11 are written on n + 1 all the same, and
// so share layers 13 to 16 with those groups.
#pragma once

#include "export/export_flow.h"
#include "export/text_sink.h"
#include "hull/hull_store.h"

namespace tolmar {

// The plate file from plate 0 to lastPlate, each plate developed as a
// value (the store unchanged).  lap: the lap-strake form with the outline
// with material.  The end plates are written as the store holds them.
void writePlateFile(TextSink& out, const HullStore& h, int lastPlate, bool lap);
void writeDeckFile(TextSink& out, const HullStore& h, int lastDeck);

ExportFile plateDxfFile(const HullStore& h);
ExportFile deckDxfFile(const HullStore& h);

ExportOutcome plankPlainDXF(ExportHost& host, HullStore& h, int lastPlate);
ExportOutcome plankLapDXF(ExportHost& host, HullStore& h, int lastPlate);
ExportOutcome deckDXF(ExportHost& host, HullStore& h, int lastDeck);

// The two files of fmenu_SD_DXF one by one, for the overlapMode left by
// overlap1 (1 plain, anything else lap strake).  The plate file computes the
// transom, and the bow plate for a pram bow, before it is written; with
// stepIndex 0 it holds the bottom only and the end plates as they stand,
// and the deck file deck 1 only.
ExportOutcome savePlateFile(ExportHost& host, HullStore& h, int stepIndex);
ExportOutcome saveDeckFile(ExportHost& host, HullStore& h, int stepIndex);

// fmenu_SD_DXF after its screen overlap1 has closed: nothing when
// overlapMode is 0 (or any value but 1 and 2); otherwise the plate file
// and the deck file, one dialog each, a cancel of the first not stopping
// the second.  stepIndex 0 writes the bottom and deck 1 only.  Returns
// true when no file failed.
bool saveDevelopedDxf(ExportHost& host, HullStore& h, int stepIndex);

}  // namespace tolmar
