// Widths in metres of the automatic planks at the three control stations.
// With N = nChines - 1 side planks, the width of plank k follows
// (k/N)^E, normalised so that the vertical rises of the N planks, each
// width times the sine of its inclination, add up to the height H of the
// sheer line above the first chine at that station:
//   w(k) = H (k/N)^E / D,  D = sum over j = 1..N of sin(plankAngle(j)) (j/N)^E.
// E is stemShape/2 at the stem, stemShape/3 at the maximum beam and aft.
// Outside nChines = 2..25 every width is 0.
#pragma once

#include "hull/hull_store.h"

namespace tolmar {

double plankW_FWD(const HullStore& h, i16 k);
double plankW_MID(const HullStore& h, i16 k);
double plankW_AFT(const HullStore& h, i16 k);

}  // namespace tolmar
