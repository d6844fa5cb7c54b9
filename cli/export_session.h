// What the two export commands share: the hull prepared as the program
// does (opened, its screens validated, the board redrawn), the language,
// the overlap screen answered from the command line, and the export kinds.
#pragma once

#include <string>
#include <vector>

#include "command.h"
#include "export/export_host.h"
#include "hull/hull_store.h"
#include "pipeline.h"

namespace tolmar::cli {

// How overlap1 is left: its three buttons.
enum class OverlapAnswer { cancel = 0, strip = 1, lap = 2 };

struct ExportArgs {
  std::vector<std::string> positional;
  int langue = 1;                                // --lang en (default) or fr
  bool autoPlanking = false;                     // --auto
  OverlapAnswer overlap = OverlapAnswer::strip;  // --overlap strip|lap|cancel
  std::vector<SetValue> screenSets;              // --set bouchainN.CONTROL=VALUE
  std::vector<SetValue> overlapSets;             // --set overlap1.TextG(i)=VALUE, mm
  std::string stationAt;  // --station X: the station's X, as typed on the board
};

// Prints what is wrong on stderr and returns false for a bad command line.
bool parseExportArgs(const Args& args, ExportArgs& out);

// Opens and validates the hull; on failure prints why and returns the
// status (1 file, 2 screens), 0 when the hull is ready.
int prepareForExport(HullStore& h, const ExportArgs& a, PipelineResult& r);

// overlap1 answered: its fields typed from the --set values, then the
// button of --overlap; leaves overlapMode 0, 1 or 2 and the thickness and
// lap tables.  Returns false for a field the screen does not have.
bool answerOverlap(HullStore& h, const ExportArgs& a);

// The station of fmenu_Station_DXF: the board's station action on --at,
// or on the X the board shows after a redraw.
int chosenStation(HullStore& h, PipelineResult& r, const ExportArgs& a);

// The export kinds of `export`, in the order `export-all` writes them.
const std::vector<std::string>& exportKinds();

// Runs one kind; the dialog is answered by the host.  "plank-xyz:N" and
// "deck-xyz:N" take a plate number.  Returns 0, 1 when the file failed, 2
// for an unknown kind.
int runExportKind(ExportHost& host, HullStore& h, PipelineResult& r, const ExportArgs& a,
                  const std::string& kind);

}  // namespace tolmar::cli
