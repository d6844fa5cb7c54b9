// The data report: the parameters of the first chine, the plank and end
// plate angles, the control points of every line and the inclination of
// the chine planes, from the current position of the page.
#pragma once

#include "printing/print_job.h"

namespace tolmar {

void printData(PrintJob& job);

}  // namespace tolmar
