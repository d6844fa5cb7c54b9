// From the control values of a hull to its stored geometry: the plane of
// each line, where the line ends on stem, pram bow and transom, the 83
// points of every line, the paired edges of the bottom plate and the bevel
// table.  Calling order after the first screen: buildBottomLines,
// buildBottomEdges.  After a planks screen, for n = 2..nChines:
// fitChinePlane(n), fitLineEnds(n), buildLine(n), buildBevel(n - 1); then
// buildBevel(nChines).
#pragma once

#include <functional>

#include "hull/hull_store.h"

namespace tolmar {

// The turning pointer while lines and bevels are built: called with step i
// (the point being done), the host shows pointer shape 9 - (i mod 4) and
// puts its previous pointer back when the build returns.  May be empty.
using BusyStep = std::function<void(int step)>;

// X where the straight line through (x1, y1), (x2, y2) has Y = level; the
// mean of x1 and x2 when the line is vertical, level or gives no finite X.
double crossingX(double level, double x1, double y1, double x2, double y2);

void buildBottomLines(HullStore& h);
void buildBottomEdges(HullStore& h);

// Returns false, and leaves the plane untouched, when the three control
// points give no plane (a zero denominator that the 0.0001 guard misses).
bool fitChinePlane(HullStore& h, int line);
void fitLineEnds(HullStore& h, int line);
void buildLine(HullStore& h, int line, const BusyStep& busy = {});
void buildBevel(HullStore& h, int line, const BusyStep& busy = {});

// Lines 2..nChines with their bevels, in the order above.
void buildUpperLines(HullStore& h, const BusyStep& busy = {});

}  // namespace tolmar
