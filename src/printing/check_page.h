// The printed page of the development check: the table the check window
// shows, one row per plate in its verdict's colour, and the notes under it.
#pragma once

#include "devcheck/plate_check.h"
#include "printing/print_job.h"

namespace tolmar {

// The check of job.h with the options given (a folded hull prints where it
// folds instead).  Ends with EndDoc.
void printDevCheck(PrintJob& job, const devcheck::CheckOptions& o = {});

}  // namespace tolmar
