// The entries of the print menu: each runs one document on the job's
// surface, from its first page to EndDoc.  stepIndex is the board's (0 the
// bottom alone, 1 or 2 the planks as well).
#pragma once

#include "printing/print_job.h"

namespace tolmar {

// The data report.
void fmenu_P_Data(PrintJob& job);

// Profile, plan and sections, a page each.
void fmenu_P_Dessin(PrintJob& job, int stepIndex);

// The bottom, each plank and the end plates, a page each.
void fmenu_P_Develop(PrintJob& job, int stepIndex);

// The sheet of station stationIndex; the board's Draw station action has
// chosen it before.
void fmenu_P_Station(PrintJob& job);

// The development check of every plate, one table.
void fmenu_P_Check(PrintJob& job);

// Data, the three views, the offsets of every line, each plate with its
// table, and the end plates with theirs.
void fmenu_P_Tout(PrintJob& job, int stepIndex);

}  // namespace tolmar
