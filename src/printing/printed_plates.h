// Developed plates on paper: the plate held in the dev arrays as a double
// figure about the centre line, and the page of the end plates.
#pragma once

#include "printing/print_job.h"

namespace tolmar {

// k = 0 the bottom (points 0..83), else plank k (0..82), just developed;
// the station of maximum beam dotted across each figure.
void printPlate(PrintJob& job, int k);

// Transom pattern, section at the maximum beam and, for a pram bow, the
// bow pattern, side by side; fills transomPlate and bowPlate.
void printEndPlates(PrintJob& job);

// The station sheet: its own head, the section in the middle of the page at
// the print scale, no scale bar.
void ImprimeStation(PrintJob& job, int station);

}  // namespace tolmar
