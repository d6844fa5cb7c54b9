// Cross-sections of the hull sampled into the station tables, and the view
// transform that fits profile, plan and sections to the board's picture.
#pragma once

#include "hull/hull_store.h"

namespace tolmar {

// Row p (0..82) of stationX/Y/Z: section points 0..10 on the bottom from
// keel to first chine, then point p of lines 2..nChines at columns 11...
// Row 82 is the section of the stem plane.  Other p are ignored.
void buildStation(HullStore& h, int p);
void buildAllStations(HullStore& h);  // rows 0..82

// Sets scaleX, scaleY, scaleZ, originX, originY, originZ and bodyAxis for a
// picture of W x H twips.  stepIndex >= 1 lets lines 2..nChines widen the
// extents.  Every working value is rounded to single precision as it is
// assigned.  Draws nothing: the caller draws the grid afterwards.
void scaleViews(HullStore& h, double W, double H, int stepIndex);

}  // namespace tolmar
