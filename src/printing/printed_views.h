// The hull's three views on paper at the print scale: profile, plan (both
// halves) and sections, in the printer's black.  Each draws over a page
// whose frame printFrame has drawn; none begins or ends a page.
#pragma once

#include "printing/print_job.h"

namespace tolmar {

// k = 0 the keel and first chine; k != 0 lines 2..nChines.
void printProfile(PrintJob& job, int k);
void printPlan(PrintJob& job, int k);

// The stations 0, 4 .. 40 on the - side of an axis at half the length, 40,
// 44 .. 80 and 82 on the + side; k > 0 adds the planks.
void printSections(PrintJob& job, int k);

}  // namespace tolmar
