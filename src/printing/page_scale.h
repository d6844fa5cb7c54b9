// The true scale of a print document: fitted to the paper once per
// command, then brought down to a whole number of fixed steps.  On paper
// the program counts 568 twips to the centimetre, so 568 twips per metre
// is 1:100.
#pragma once

#include "hull/hull_store.h"
#include "printing/print_job.h"

namespace tolmar {

// Extents of lines 1..4 over points 0..82, every one starting from 0 so
// that the hull's origin always lies inside.  Lines 2..4 are read whatever
// nChines is.
struct PrintExtent {
  double xLo = 0, xHi = 0, yHi = 0, zLo = 0, zHi = 0;
};
PrintExtent printExtent(const HullStore& h);

// A raw scale (twips per metre) brought down to its step: multiples of
// 1136 from 1136 up, 568 between, multiples of 113.6 from 113.6 to 568,
// 56.8 below, multiples of 5.68 from 5.68, and below 5.68 unrounded.
double stepScale(double raw);

// The largest scale a fit may give: a hull of no extent fits any scale.
inline constexpr double kMaxPrintScale = 1136.0 * 10000;
// The scale of a paper smaller than its margins, where no scale fits.
inline constexpr double kNoRoomScale = 5.68;

// The raw fit of the hull to a page of W x H twips, before the steps.
double fitScale(const HullStore& h, double W, double H);

// Sets printScaleX, printScaleY, printScaleZ (= -s) and the three origins
// for a page of W x H twips.
void pageScale(HullStore& h, double W, double H);
void pageScale(PrintJob& job);  // the job's page, busy pointer around

}  // namespace tolmar
