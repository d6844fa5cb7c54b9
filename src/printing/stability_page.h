// The printed stability pages: the loading and the marks, the righting-arm
// curve and the hydrostatic curves on the first sheet, their tables on the
// next.
#pragma once

#include "printing/print_job.h"
#include "stability/stability_run.h"

namespace tolmar {

// The result as computed, from the first page to EndDoc.  A result that
// was refused prints its reason.
void printStability(PrintJob& job, const stability::StabilityResult& r);

// The print menu's entry: the hull's mass budget gives the displacement
// and the centre of gravity, heel 0 to 180 degrees by 5, fresh water.
void fmenu_P_Stability(PrintJob& job);

}  // namespace tolmar
