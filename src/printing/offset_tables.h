// Offset tables: the points of one line, and the developed points of one
// plate, each table on a page of its own.
#pragma once

#include <vector>

#include "development/developed_plate.h"
#include "printing/print_job.h"

namespace tolmar {

// The rows of a table of points: the transom (point 0), every fourth point
// from 1 below the maximum beam, the maximum beam between blank lines, the
// grid of every fourth point on through `gridLast`, and the stem.
struct TableRow {
  enum Kind { Transom, Grid, MaxBeam, Stem };
  Kind kind;
  int point;
};
std::vector<TableRow> tableRows(int iMaxBeam, int gridLast, int stem);

// Line n (0..nChines): X, Y and Z of its points.
void printOffsets(PrintJob& job, int n);

// The developed points of the bottom (points to 83) or of a plank (to 82).
void printPlateTable(PrintJob& job, const DevelopedPlate& p);

}  // namespace tolmar
