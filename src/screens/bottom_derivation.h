// What the validation of the bottom screen derives from its inputs: the
// keel's heights, the plane of the first chine, and where the first chine
// really ends on the raked stem and transom.  In this order, after the
// inputs of lines 0 and 1 are in the store.
#pragma once

#include "hull/hull_store.h"

namespace tolmar {

// zFwd(0), zAft(0), zMax(0) where the bottom meets the centre plane; the
// lines 2..4 no lower than the one beneath them at the control stations,
// and their stations those of lines 0 and 1.
void deriveBottomHeights(HullStore& h);

// planeA(1), planeB(1), planeC(1) through the three control points of
// line 1.  A zero denominator (control points in one line in plan, which
// the screen's bounds exclude) gives a non-finite plane for the caller to
// refuse.
void fitFirstChinePlane(HullStore& h);

// xFwd(1) and xAft(1): ten fixed-point passes each along the inclined stem
// and transom.  A stem raked so far that the chine would cross the centre
// plane loses one degree of bowAngle at a time.
void fitFirstChineEnds(HullStore& h);

// Whether the ten passes of fitFirstChineEnds found where the chine meets
// the transom (aft) and the stem (forward): one more pass may not move the
// end by more than a hundredth of the length plus the end's own run.  A steep transom over a
// strongly shaped chine makes the passes run away (ends hundreds of metres
// off); the screen refuses such a hull instead of drawing it.
struct ChineEndsSettled {
  bool aft = true, fwd = true;
};
ChineEndsSettled chineEndsSettled(const HullStore& h);

}  // namespace tolmar
