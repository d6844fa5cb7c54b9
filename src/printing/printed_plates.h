// Developed plates on paper: a plate as a double figure about the centre
// line, and the page of the end plates.
#pragma once

#include "development/developed_plate.h"
#include "printing/print_job.h"

namespace tolmar {

// The bottom (points 0..83) or a plank (0..82); the station of maximum
// beam dotted across each figure.
void printPlate(PrintJob& job, const DevelopedPlate& p);

// Transom pattern, section at the maximum beam and, for a pram bow, the
// bow pattern, side by side; fills transomPlate and bowPlate.
void printEndPlates(PrintJob& job);

// The station sheet: its own head, the section in the middle of the page at
// the print scale, no scale bar.
void ImprimeStation(PrintJob& job, int station);

}  // namespace tolmar
